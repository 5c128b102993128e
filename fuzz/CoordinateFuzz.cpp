// Any two lines as latitude and longitude. What is accepted lies on the globe, and in every display format
// it reads back as the same place.
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>

#include "app/Settings.h"
#include "fakes/FakePlatform.h"
#include "model/CoordinateText.h"
#include "SavedAirport.h"

namespace {

constexpr double kClose = 1e-5 * model::kRadiansPerDegree;  // the coarsest format shows hundredths of a second
constexpr double kEdge = 1e-3 * model::kRadiansPerDegree;   // closer to the limits formats round up to them

void RequireThatEveryFormatReadsBack(model::LatLon place) {
    if (std::fabs(place.lat) > model::kPi / 2 - kEdge || std::fabs(place.lon) > model::kPi - kEdge) return;
    for (int format = 1; format <= 5; ++format) {
        app::settings.latLongFormat = format;
        model::LatLon again;
        model::CoordinateField bad;
        const model::ParseResult result = model::ParseLatLon(model::FormatLatLon(place), {}, &again, &bad);
        Require(result == model::ParseResult::Changed, "what is shown can be entered");
        Require(std::fabs(again.lat - place.lat) < kClose && std::fabs(again.lon - place.lon) < kClose,
                "what is shown is the same place");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    ResetFakes();
    const uint8_t* lineEnd = std::find(data, data + size, uint8_t{ '\n' });
    const model::CoordinateTexts entered = { std::string(data, lineEnd),
                                             std::string(std::min(lineEnd + 1, data + size), data + size) };
    model::LatLon place;
    model::CoordinateField bad = model::CoordinateField::None;
    const model::ParseResult result = model::ParseLatLon(entered, { "shown", "shown" }, &place, &bad);
    Require((result == model::ParseResult::Error) == (fake.messages.size() == 1), "an error shows one message");
    Require((result == model::ParseResult::Error) == (bad != model::CoordinateField::None), "an error names its field");
    if (result != model::ParseResult::Changed) return 0;
    Require(std::fabs(place.lat) < model::kPi / 2 + kClose && std::fabs(place.lon) < model::kPi + kClose,
            "what is accepted lies on the globe");
    RequireThatEveryFormatReadsBack(place);
    return 0;
}
