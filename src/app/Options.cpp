// Options.cpp - see Options.h.
#include "app/Options.h"

#include <cstdio>

#include "app/Settings.h"
#include "map/Grid.h"
#include "platform/Platform.h"

namespace app {

namespace {

constexpr int kFirstFormat = 1;  // the setting counts from 1

// The same position in each format, in the order of the setting.
constexpr const char* kFormatTexts[] = {
    "N49.12345", "N49* 15.1234'", "N49* 15' 45.1234\"", "N49:15.1234", "N49:15:45.1234",
};

int ChoiceWithin(int choice, size_t count) { return choice >= 0 && choice < static_cast<int>(count) ? choice : -1; }

}  // namespace

std::span<const char* const> LatLongFormatTexts() { return kFormatTexts; }

std::vector<std::string> GridDivisionTexts() {
    std::vector<std::string> texts;
    for (const int seconds : map::kGridDivisions) {
        char text[32];
        std::snprintf(text, sizeof text, "%2d Sec (%4.2lf Min)", seconds, seconds / 60.0);
        texts.emplace_back(text);
    }
    return texts;
}

OptionsFields LoadOptions() {
    OptionsFields fields;
    fields.metric = settings.metric;
    fields.metricParkingRadius = settings.metricParkingRadius;
    fields.latLongFormat = ChoiceWithin(settings.latLongFormat - kFirstFormat, std::size(kFormatTexts));
    fields.gridDivisions = ChoiceWithin(settings.latLongGridDivs, std::size(map::kGridDivisions));
    fields.gridDecimal = settings.latLongGridDecimal;
    return fields;
}

void StoreOptions(const OptionsFields& fields) {
    settings.metric = fields.metric;
    settings.metricParkingRadius = fields.metricParkingRadius;
    if (fields.latLongFormat >= 0) settings.latLongFormat = fields.latLongFormat + kFirstFormat;
    if (fields.gridDivisions >= 0) settings.latLongGridDivs = fields.gridDivisions;
    settings.latLongGridDecimal = fields.gridDecimal;
    platform::RequestRepaint();
}

}  // namespace app
