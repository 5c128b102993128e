// NumberField.cpp - see NumberField.h.
//
// The foot of the reading direction is a hair longer than a foot: it makes up for the truncation of
// whole feet to millimetres. The taxi dialogs use the plain one.
#include "dialogs/NumberField.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstring>

#include "app/Settings.h"
#include "model/Geodesy.h"
#include "platform/Platform.h"

namespace dialogs {

namespace {

constexpr double kMetresPerReadFoot = 0.3048000000012192;
constexpr double kTruncationGuard = 1e-4;  // of a millimetre or hertz: decimals that binary cannot hold
constexpr std::string_view kBlanks = " \t";
constexpr int kWidestNumber = 400;  // characters of the largest double with its decimals

bool IsMetric(Unit unit) {
    return unit == Unit::ParkingLength ? app::settings.metricParkingRadius : app::settings.metric;
}

bool IsLength(Unit unit) {
    return unit == Unit::Length || unit == Unit::TaxiLength || unit == Unit::ParkingLength || unit == Unit::Elevation;
}

double ReadFoot(Unit unit) {
    return unit == Unit::Length || unit == Unit::Elevation ? kMetresPerReadFoot : model::kMetresPerFoot;
}

double Truncated(double value) { return std::trunc(value + std::copysign(kTruncationGuard, value)); }

double EastPositive(double stored) { return stored > 180 ? 360 - stored : 0 - stored; }

double WestPositive(double shown) {
    const double west = shown > 0 ? 360 - shown : 0 - shown;
    return static_cast<float>(west) >= 360.0F ? 0 : west;  // a tiny angle to the east
}

int DecimalsOf(const Quantity& quantity) {
    return IsLength(quantity.unit) && !IsMetric(quantity.unit) ? quantity.imperialDecimals : quantity.decimals;
}

std::string Decimal(double value, int decimals, int minimumCharacters = 0) {
    char text[kWidestNumber];
    // Halves go away from zero; -0.0 loses its sign.
    if (decimals == 0) value = std::round(value);
    std::snprintf(text, sizeof text, "%*.*f", minimumCharacters, decimals, value + 0.0);
    return text;
}

// A limit of the range, rounded into it, without zeros that say nothing.
std::string LimitText(double limit, int decimals, bool isLeast) {
    double scale = 1;
    for (int i = 0; i < decimals; ++i) scale *= 10;
    const double scaled = limit * scale;
    const double nearest = std::round(scaled);
    const bool exact = std::fabs(nearest - scaled) < 1e-6;
    const double rounded = exact ? nearest : isLeast ? std::ceil(scaled) : std::floor(scaled);
    std::string text = Decimal(rounded / scale, decimals);
    if (text.find('.') == std::string::npos) return text;
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
    return text;
}

const char* UnitInMessages(Unit unit) {
    switch (unit) {
    case Unit::Range: return IsMetric(unit) ? " km" : " nm";
    case Unit::Degrees:
    case Unit::Variation: return " degrees";
    case Unit::Megahertz: return " MHz";
    case Unit::Kilohertz: return " kHz";
    case Unit::Plain: return "";
    default: return IsMetric(unit) ? " metres" : " feet";
    }
}

bool IsWhole(const Quantity& quantity) { return quantity.whole || (quantity.wholeMetres && IsMetric(quantity.unit)); }

// Takes the blanks and the sign before a number away; whether it is a minus.
bool TakeSign(std::string_view* text) {
    text->remove_prefix(std::min(text->find_first_not_of(kBlanks), text->size()));
    const bool negative = !text->empty() && text->front() == '-';
    if (negative || (!text->empty() && text->front() == '+')) text->remove_prefix(1);
    return negative;
}

// A number begins with a digit or a point: from_chars knows "inf" and "nan" too.
bool BeginsNumber(std::string_view text) {
    return !text.empty() && ((text.front() >= '0' && text.front() <= '9') || text.front() == '.');
}

void ShowRange(const Quantity& quantity) {
    const bool whole = IsWhole(quantity);
    const int decimals = whole ? 0 : DecimalsOf(quantity);
    const bool variation = quantity.unit == Unit::Variation;
    const double least = variation ? quantity.least : ShownNumber(quantity, quantity.least);
    const double most = variation ? quantity.most : ShownNumber(quantity, quantity.most);
    const char* what = whole ? " must be a whole number from " : " must be a number from ";
    platform::ShowError(std::string("The ") + quantity.name + what + LimitText(least, decimals, true) + " to " +
                        LimitText(most, decimals, false) + UnitInMessages(quantity.unit));
}

}  // namespace

bool ReadNumber(std::string_view text, double* number) {
    text = text.substr(0, text.find_last_not_of(kBlanks) + 1);
    const bool negative = TakeSign(&text);
    if (!BeginsNumber(text)) return false;
    double value = 0;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value, std::chars_format::fixed);
    if (result.ec != std::errc() || result.ptr != end) return false;
    *number = negative && value != 0 ? -value : value;
    return true;
}

bool ReadsAsZero(const Quantity& quantity, std::string_view text) {
    TakeSign(&text);
    if (!BeginsNumber(text)) return true;
    double value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
    return result.ec != std::errc::result_out_of_range && StoredNumber(quantity, value) == 0;
}

double ShownNumber(const Quantity& quantity, double stored) {
    switch (quantity.unit) {
    case Unit::Range: return stored / (IsMetric(quantity.unit) ? 1000 : model::kMetresPerNauticalMile);
    case Unit::Variation: return EastPositive(stored);
    case Unit::Megahertz: return stored * 1e-6;
    case Unit::Kilohertz: return stored * 1e-3;
    case Unit::Degrees:
    case Unit::Plain: return stored;
    default: break;
    }
    const double metres = quantity.unit == Unit::Elevation ? stored * 1e-3 : stored;
    return IsMetric(quantity.unit) ? metres : metres * model::kFeetPerMetre;
}

double StoredNumber(const Quantity& quantity, double shown) {
    switch (quantity.unit) {
    case Unit::Range: return shown * (IsMetric(quantity.unit) ? 1000 : model::kMetresPerNauticalMile);
    case Unit::Variation: return WestPositive(shown);
    case Unit::Megahertz: return Truncated(shown * 1e6);
    case Unit::Kilohertz: return Truncated(shown * 1e3);
    case Unit::Degrees:
    case Unit::Plain: return shown;
    default: break;
    }
    const double metres = IsMetric(quantity.unit) ? shown : shown * ReadFoot(quantity.unit);
    if (quantity.unit != Unit::Elevation) return metres;
    return IsMetric(quantity.unit) ? Truncated(metres * 1000) : std::trunc(metres * 1000);
}

std::string ShowNumber(const Quantity& quantity, double stored) {
    return Decimal(ShownNumber(quantity, stored), DecimalsOf(quantity), quantity.minimumCharacters);
}

std::string HeadingText(double degrees) {
    const std::string text = ShowNumber(kHeading, degrees);
    return text == "360.0" ? "0.0" : text;
}

bool ReadQuantity(const Quantity& quantity, const std::string& shown, const std::string& entered, double* stored) {
    if (entered == shown) return true;
    double number = 0;
    bool ok = ReadNumber(entered, &number) && std::fabs(number) < 1e12;
    if (ok && IsWhole(quantity)) ok = std::trunc(number) == number;
    const double value = ok ? StoredNumber(quantity, number) : 0;
    const double judged = quantity.unit == Unit::Variation ? number : value;
    if (!ok || judged < quantity.least || judged > quantity.most) {
        ShowRange(quantity);
        return false;
    }
    *stored = value;
    return true;
}

bool ReadField(const Quantity& quantity, const std::string& shown, const std::string& entered, Field field,
               double* stored, BadField* bad) {
    if (ReadQuantity(quantity, shown, entered, stored)) return true;
    *bad = { field };
    return false;
}

const char* UnitLabel(Unit unit) {
    if (unit == Unit::Range) return IsMetric(unit) ? "km" : "nm";
    return IsMetric(unit) ? "m" : "ft";
}

double StoredAt(const uint8_t* place, Unit unit) {
    if (unit == Unit::Elevation) {
        int32_t value;
        std::memcpy(&value, place, sizeof value);
        return value;
    }
    if (unit == Unit::Megahertz || unit == Unit::Kilohertz) {
        uint32_t value;
        std::memcpy(&value, place, sizeof value);
        return value;
    }
    float value;
    std::memcpy(&value, place, sizeof value);
    return value;
}

void StoreAt(uint8_t* place, Unit unit, double value) {
    if (unit == Unit::Elevation) {
        const auto whole = static_cast<int32_t>(value);
        std::memcpy(place, &whole, sizeof whole);
    } else if (unit == Unit::Megahertz || unit == Unit::Kilohertz) {
        const auto whole = static_cast<uint32_t>(value);
        std::memcpy(place, &whole, sizeof whole);
    } else {
        const auto single = static_cast<float>(value);
        std::memcpy(place, &single, sizeof single);
    }
}

std::string ShowNumberAt(const Quantity& quantity, const uint8_t* place) {
    return ShowNumber(quantity, StoredAt(place, quantity.unit));
}

bool ReadNumberAt(const Quantity& quantity, const std::string& shown, const std::string& entered, uint8_t* place) {
    double value = 0;
    if (entered == shown) return true;
    if (!ReadQuantity(quantity, shown, entered, &value)) return false;
    StoreAt(place, quantity.unit, value);
    return true;
}

}  // namespace dialogs
