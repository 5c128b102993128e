// RunwayVasiPage.cpp - the VASI page of the runway editor.
//
// The record measures a unit from the runway's centre (biasZ, positive toward the threshold), the page from
// the runway end: distance = length / 2 - biasZ. A unit of the system "none" is absent: all zero.
#include <cmath>
#include <cstring>

#include "dialogs/NumberField.h"
#include "dialogs/RunwayParts.h"
#include "model/Names.h"

namespace dialogs {

namespace {

using model::RunwayPayload;
using model::VasiPart;

constexpr double kFarthest = 50000;  // metres
constexpr Quantity kDistance = { "VASI distance", Unit::Length, -kFarthest, kFarthest };
constexpr Quantity kOffset = { "VASI offset", Unit::Length, -1000, 1000 };
constexpr Quantity kSpacing = { "VASI spacing", Unit::Length, 0, 1000 };
constexpr Quantity kSlope = { "VASI slope", Unit::Degrees, 0, 90, 2 };

// A PAPI as ICAO Annex 14 places it: 305 m (1000 ft) past the threshold, 15 m beside the edge, lamps 9 m apart. The
// bars of a VASI begin 500 ft past it and stand 700 ft apart (FAA JO 6850.2); its place is that of the last one.
constexpr double kUsualDistance = 304.8, kUsualSideways = 15, kUsualSpacing = 9, kUsualSlope = 3;
constexpr double kFirstBar = 152.4, kBarSpacing = 213.36;
constexpr int kLastVasi = 6;  // the systems up to this one have bars, every second of them three

VasiPart UnitAt(const SceneryObject* runway, size_t offset) {
    VasiPart unit;
    std::memcpy(&unit, runway->payload + offset, sizeof unit);
    return unit;
}

size_t UnitOffset(size_t end, bool right) { return right ? kEndPlaces[end].rightVasi : kEndPlaces[end].leftVasi; }

VasiFields LoadUnit(const SceneryObject* runway, size_t offset) {
    const VasiPart unit = UnitAt(runway, offset);
    const double half = model::PayloadAs<RunwayPayload>(runway).body.length / 2.0;
    VasiFields fields;
    fields.system = unit.type < model::SlopeLightsNames().size() ? static_cast<int>(unit.type) : -1;
    fields.distance = ShowNumber(kDistance, unit.type == model::kNoSlopeLights ? 0 : half - unit.biasZ);
    fields.offset = ShowNumber(kOffset, unit.biasX);
    fields.spacing = ShowNumber(kSpacing, unit.spacing);
    fields.slope = ShowNumber(kSlope, unit.pitch);
    return fields;
}

void RemoveUnit(size_t offset, SceneryObject* draft) {
    const VasiPart absent = {};
    std::memcpy(draft->payload + offset, &absent, sizeof absent);
}

bool StoreUnit(const VasiFields& shown, const VasiFields& entered, size_t offset, SceneryObject* draft, BadField* bad) {
    if (!HasVasiUnit(entered)) {
        if (HasVasiUnit(shown)) RemoveUnit(offset, draft);
        return true;
    }
    VasiPart unit = UnitAt(draft, offset);
    const VasiPart before = unit;
    const double half = model::PayloadAs<RunwayPayload>(draft).body.length / 2.0;
    double distance = 0, sideways = 0, spacing = 0, slope = 0;
    if (!ReadField(kDistance, shown.distance, entered.distance, Field::VasiDistance, &distance, bad) ||
        !ReadField(kOffset, shown.offset, entered.offset, Field::VasiOffset, &sideways, bad) ||
        !ReadField(kSpacing, shown.spacing, entered.spacing, Field::VasiSpacing, &spacing, bad) ||
        !ReadField(kSlope, shown.slope, entered.slope, Field::VasiSlope, &slope, bad))
        return false;
    if (entered.system >= 0 && entered.system != shown.system) unit.type = static_cast<uint16_t>(entered.system);
    const bool placed = before.type == model::kNoSlopeLights &&
                        unit.type != model::kNoSlopeLights;  // the place of what was no unit counts for nothing
    if (entered.distance != shown.distance || placed) unit.biasZ = static_cast<float>(half - distance);
    if (entered.offset != shown.offset) unit.biasX = static_cast<float>(sideways);
    if (entered.spacing != shown.spacing) unit.spacing = static_cast<float>(spacing);
    if (entered.slope != shown.slope) unit.pitch = static_cast<float>(slope);
    std::memcpy(draft->payload + offset, &unit, sizeof unit);
    return true;
}

}  // namespace

void LoadVasiPage(const SceneryObject* runway, RunwayFields* fields) {
    for (size_t end = 0; end < 2; ++end) {
        fields->ends[end].left = LoadUnit(runway, UnitOffset(end, false));
        fields->ends[end].right = LoadUnit(runway, UnitOffset(end, true));
    }
}

bool StoreVasiPage(const RunwayFields& shown, const RunwayFields& entered, SceneryObject* draft, BadField* bad) {
    for (size_t end = 0; end < 2; ++end) {
        for (const bool right : { false, true }) {
            const auto unit = right ? &RunwayEndFields::right : &RunwayEndFields::left;
            const VasiFields &was = shown.ends[end].*unit, &is = entered.ends[end].*unit;
            if (StoreUnit(was, is, UnitOffset(end, right), draft, bad)) continue;
            bad->part = static_cast<int>(2 * end) + right;
            return false;
        }
    }
    return true;
}

bool HasVasiUnit(const VasiFields& fields) { return fields.system != 0; }

void KeepVasiDistances(double oldLength, SceneryObject* draft) {
    const double growth = (model::PayloadAs<RunwayPayload>(draft).body.length - oldLength) / 2;
    if (growth == 0 || !std::isfinite(growth)) return;  // a file may hold any length
    for (size_t end = 0; end < 2; ++end) {
        for (const bool right : { false, true }) {
            VasiPart unit = UnitAt(draft, UnitOffset(end, right));
            if (unit.type == model::kNoSlopeLights) continue;
            unit.biasZ = static_cast<float>(unit.biasZ + growth);
            std::memcpy(draft->payload + UnitOffset(end, right), &unit, sizeof unit);
        }
    }
}

void ChooseVasiSystem(VasiFields* fields, int system, const RunwayFields& runway, size_t end) {
    const auto isZero = [](const std::string& text) {
        double number = 0;
        return ReadNumber(text, &number) && number == 0;
    };
    const auto metresIn = [](const std::string& text) {
        double shown = 0;
        ReadNumber(text, &shown);
        return StoredNumber(kDistance, shown);
    };
    const bool untouched =
        isZero(fields->distance) && isZero(fields->offset) && isZero(fields->spacing) && isZero(fields->slope);
    fields->system = system;
    if (system <= 0 || !untouched) return;
    const bool hasBars = system <= kLastVasi;
    const double lastBar = kFirstBar + (system % 2 == 0 ? 2 : 1) * kBarSpacing;
    fields->distance =
        ShowNumber(kDistance, metresIn(runway.ends[end].displaced) + (hasBars ? lastBar : kUsualDistance));
    fields->offset = ShowNumber(kOffset, metresIn(runway.width) / 2 + kUsualSideways);
    fields->spacing = ShowNumber(kSpacing, hasBars ? kBarSpacing : kUsualSpacing);
    fields->slope = ShowNumber(kSlope, kUsualSlope);
}

}  // namespace dialogs
