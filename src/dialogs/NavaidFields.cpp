// NavaidFields.cpp - see NavaidFields.h. The bands are those of ICAO Annex 10.
#include "dialogs/NavaidFields.h"

#include "dialogs/TextField.h"
#include "model/ObjectList.h"
#include "model/Records.h"
#include "platform/Platform.h"

namespace dialogs {

namespace {

constexpr Quantity kVhf = { "frequency", Unit::Megahertz, 108e6, 117.95e6, 2, 0, false, false, 6 };
constexpr Quantity kLocalizer = { "localizer frequency", Unit::Megahertz, 108.1e6, 111.95e6, 2, 0, false, false, 6 };
constexpr Quantity kLowFrequency = { "frequency", Unit::Kilohertz, 190e3, 1750e3, 1, 0, false, false, 5 };

constexpr uint32_t kVhfStep = 50000, kTenth = 100000, kLowStep = 500;  // hertz
constexpr uint32_t kLocalizerEnd = 112000000;

const Quantity& QuantityOf(FrequencyKind kind) {
    if (kind == FrequencyKind::Ndb) return kLowFrequency;
    return kind == FrequencyKind::Localizer ? kLocalizer : kVhf;
}

// Null when the frequency is one of the kind.
const char* FaultOf(FrequencyKind kind, uint32_t hertz) {
    if (kind == FrequencyKind::Ndb)
        return hertz % kLowStep == 0 ? nullptr : "The frequency must be a multiple of 0.5 kHz";
    if (hertz % kVhfStep != 0) return "The frequency must be a multiple of 0.05 MHz";
    const bool odd = hertz / kTenth % 2 == 1;
    if (kind == FrequencyKind::Localizer && !odd)
        return "The tenth of a localizer frequency must be odd, for example 110.3";
    if (kind == FrequencyKind::Vor && hertz < kLocalizerEnd && odd)
        return "The tenth of a VOR frequency below 112 MHz must be even, for example 110.2";
    return nullptr;
}

bool Refuse(const char* message, BadField* bad) {
    if (message) platform::ShowError(message);
    *bad = { Field::Frequency };
    return false;
}

}  // namespace

std::string ShowNavFrequency(uint32_t hertz, FrequencyKind kind) { return ShowNumber(QuantityOf(kind), hertz); }

bool ReadNavFrequency(FrequencyKind kind, const std::string& shown, const std::string& entered, bool judgeOld,
                      uint32_t* hertz, BadField* bad) {
    if (entered == shown ? *hertz == 0 : ReadsAsZero(QuantityOf(kind), entered))
        return Refuse(kind == FrequencyKind::Ndb         ? "You must enter a frequency, for example 350.0"
                      : kind == FrequencyKind::Localizer ? "You must enter a frequency, for example 110.3"
                                                         : "You must enter a frequency, for example 113.5",
                      bad);
    if (entered == shown && !judgeOld) return true;
    double value = 0;
    if (!ReadQuantity(QuantityOf(kind), "", entered, &value)) return Refuse(nullptr, bad);
    if (const char* fault = FaultOf(kind, static_cast<uint32_t>(value))) return Refuse(fault, bad);
    if (entered != shown) *hertz = static_cast<uint32_t>(value);
    return true;
}

std::string DmeChannel(uint32_t hertz) {
    constexpr uint32_t kFirst = 108000000, kUpper = 112300000, kLast = 117950000;
    if (hertz < kFirst || hertz > kLast || hertz % kVhfStep != 0) return "";
    // The channels 60 to 69 lie outside the VOR band.
    const uint32_t number = hertz < kUpper ? 17 + (hertz - kFirst) / kTenth : 70 + (hertz - kUpper) / kTenth;
    return std::to_string(number) + (hertz % kTenth == 0 ? "X" : "Y");
}

std::string DmeChannelOf(const std::string& megahertz) {
    double number = 0;
    if (!ReadNumber(megahertz, &number) || number < 0 || number > 1000) return "";
    return DmeChannel(static_cast<uint32_t>(StoredNumber(kVhf, number)));
}

float AirportVariation() {
    return model::state.airport ? model::PayloadAs<model::AirportRecord>(model::state.airport).magneticVariation : 0;
}

}  // namespace dialogs
