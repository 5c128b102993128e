// CoordinateText.cpp - see CoordinateText.h.
//
// Minutes and seconds are clamped below 60 when shown, so that a rounded value never prints as "60".
// Latitude errors offer Cancel, longitude errors do not, and one text says "sconds": both are kept.
#include "model/CoordinateText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <string_view>

#include "app/Settings.h"
#include "platform/Platform.h"

namespace model {

namespace {

std::string FormatCoordinate(double radians, char positive, char negative) {
    const double degrees = std::fabs(radians * kDegreesPerRadian);
    const char letter = radians >= 0 ? positive : negative;
    const int wholeDegrees = static_cast<int>(degrees);
    const double minutes = (degrees - wholeDegrees) * 60;
    const double shownMinutes = std::min(minutes, 59.9999);
    const int wholeMinutes = static_cast<int>(minutes);
    const double seconds = std::min(std::fabs(minutes - wholeMinutes) * 60, 59.99);
    char text[64];
    switch (app::settings.latLongFormat) {
    case 1: std::snprintf(text, sizeof text, "%c%.6lf", letter, degrees); break;
    case 2: std::snprintf(text, sizeof text, "%c%d* %07.4f'", letter, wholeDegrees, shownMinutes); break;
    case 3:
        std::snprintf(text, sizeof text, "%c%d* %02d' %05.2f\"", letter, wholeDegrees, wholeMinutes, seconds);
        break;
    case 4: std::snprintf(text, sizeof text, "%c%d:%07.4f", letter, wholeDegrees, shownMinutes); break;
    default: std::snprintf(text, sizeof text, "%c%d:%02d:%05.2f", letter, wholeDegrees, wholeMinutes, seconds); break;
    }
    return text;
}

// What differs between the two coordinates.
struct CoordinateRules {
    char positive, negative;
    double degreeLimit;
    platform::Buttons buttons;
    const char* badFormat;
    const char* tooManyDegrees;
    const char* tooManyMinutes;
};

constexpr CoordinateRules kLatitudeRules = {
    'N',
    'S',
    90,
    platform::Buttons::OkCancel,
    "ERROR: The latitude format is bad.\nIt should look something like N51* 31.421'",
    "ERROR: Latitude cannot be more than 90 degrees",
    "ERROR: Latitude minutes and sconds must be less than 60.0",
};
constexpr CoordinateRules kLongitudeRules = {
    'W',
    'E',
    180,
    platform::Buttons::Ok,
    "ERROR: The Longitude format is bad.\nIt should look something like W75* 20.425'",
    "ERROR: Longitude cannot be more than 180 degrees",
    "ERROR: Longitude minutes and seconds must be less than 60.0",
};

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

void SkipAnyOf(std::string_view* text, std::string_view characters) {
    text->remove_prefix(std::min(text->find_first_not_of(characters), text->size()));
}

// The decimal number at the start of the text, which loses it; 0 when there is none.
double TakeNumber(std::string_view* text) {
    if (text->empty() || (!IsDigit(text->front()) && text->front() != '.')) return 0;
    double number = 0;
    const auto end = std::from_chars(text->data(), text->data() + text->size(), number, std::chars_format::fixed);
    text->remove_prefix(static_cast<size_t>(end.ptr - text->data()));
    return end.ec == std::errc() ? number : 0;
}

char UpperCase(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

// Null when the text was read, else the message that says what is wrong with it.
const char* ParseCoordinate(std::string_view text, const CoordinateRules& rules, double* radians) {
    text = text.substr(0, kCoordinateTextLimit);
    SkipAnyOf(&text, " ");
    if (text.size() < 2 || !IsDigit(text[1])) return rules.badFormat;
    const char letter = UpperCase(text[0]);
    if (letter != rules.positive && letter != rules.negative) return rules.badFormat;
    text.remove_prefix(1);
    const double degrees = TakeNumber(&text);
    if (degrees >= rules.degreeLimit) return rules.tooManyDegrees;
    SkipAnyOf(&text, "* :");
    const double minutes = TakeNumber(&text);
    if (minutes >= 60) return rules.tooManyMinutes;
    SkipAnyOf(&text, " :'");
    const double seconds = TakeNumber(&text);
    if (seconds >= 60) return rules.tooManyMinutes;
    SkipAnyOf(&text, " *:'\"");
    if (!text.empty()) return rules.badFormat;  // half of what was typed must not count as all
    const double total = seconds / 3600 + minutes / 60 + degrees;
    if (total >= rules.degreeLimit) return rules.tooManyDegrees;  // fractions of a degree and minutes besides
    const double sign = letter == rules.positive ? 1 : -1;
    *radians = total * sign * kRadiansPerDegree;
    return nullptr;
}

// A text as shown leaves the coordinate alone. An empty one is none: both must be entered.
const char* ReadCoordinate(const std::string& entered, const std::string& shown, const CoordinateRules& rules,
                           double* radians) {
    if (entered == shown && !shown.empty()) return nullptr;
    return ParseCoordinate(entered, rules, radians);
}

}  // namespace

CoordinateTexts FormatLatLon(LatLon position) {
    const double lon = std::remainder(position.lon, kTwoPi);  // the map goes on beyond the 180th meridian
    return { FormatCoordinate(position.lat, 'N', 'S'), FormatCoordinate(lon, 'W', 'E') };
}

ParseResult ParseLatLon(const CoordinateTexts& entered, const CoordinateTexts& shown, LatLon* position,
                        CoordinateField* badField) {
    *badField = CoordinateField::None;
    if (entered.latitude == shown.latitude && entered.longitude == shown.longitude) return ParseResult::Unchanged;
    LatLon read = *position;
    const char* error = ReadCoordinate(entered.latitude, shown.latitude, kLatitudeRules, &read.lat);
    const CoordinateRules* rules = &kLatitudeRules;
    *badField = CoordinateField::Latitude;
    if (!error) {
        error = ReadCoordinate(entered.longitude, shown.longitude, kLongitudeRules, &read.lon);
        rules = &kLongitudeRules;
        *badField = CoordinateField::Longitude;
    }
    if (error) {
        platform::ShowMessage(error, rules->buttons, platform::Icon::Exclamation);
        return ParseResult::Error;
    }
    *badField = CoordinateField::None;
    *position = read;
    return ParseResult::Changed;
}

}  // namespace model
