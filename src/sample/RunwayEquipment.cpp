// RunwayEquipment.cpp - the markings, lights and approach aids that a runway of its size usually has.
#include <algorithm>
#include <vector>

#include "model/RunwayBits.h"
#include "sample/RunwayPlans.h"
#include "sample/TableWords.h"

namespace sample {

namespace {

constexpr uint16_t kVisualMarkings = model::kCentreLine | model::kDesignation;
constexpr uint16_t kInstrumentMarkings = kVisualMarkings | model::kThresholdStripes | model::kAimingPoints;
constexpr uint16_t kPrecisionMarkings =
    kInstrumentMarkings | model::kEdgeLines | model::kTouchdownMarks | model::kPrecision;

constexpr double kInstrumentLength = 1200, kPrecisionLength = 2100, kHeavyLength = 2700;  // metres
constexpr uint8_t kLow = 1, kMedium = 2, kHigh = 3;

// Distance of the hold-short line from the centre line: ICAO Annex 14, table 3-2, by the runway's code number;
// off the pavement of a very wide runway, and never so far from a narrow one that AI aircraft stop there for good.
double HoldDistance(const RunwayPlan& runway) {
    constexpr double kNearest = 20, kFarthest = 62;  // metres from the edge
    const double usual = runway.length < 800                 ? 30
                         : runway.length < kInstrumentLength ? 40
                         : runway.length < 1800              ? 60
                                                             : 75;
    return std::clamp(usual, runway.width / 2 + kNearest, runway.width / 2 + kFarthest);
}

void EquipEnd(const RunwayPlan& runway, RunwayEndPlan* end) {
    if (runway.length >= 900) end->vasi = runway.length >= 1500 ? kPapi4 : kVasi2;
    if (runway.length < kInstrumentLength) return;
    end->reil = runway.length < kPrecisionLength;
    end->approach = runway.length >= kPrecisionLength ? kMals : kOdals;
    end->endLights = true;
}

void EquipForPrecision(RunwayPlan* runway, RunwayEndPlan* end) {
    const bool heavy = runway->length >= kHeavyLength;
    end->approach = heavy ? kAlsf2 : kMalsr;
    end->strobes = heavy ? 15 : 5;
    end->touchdownLights = heavy;
    end->endLights = true;
    end->reil = false;
    runway->markings = kPrecisionMarkings;
    runway->ilsHoldDistance = 100;
    runway->edgeLights = kHigh;
    if (heavy) {
        runway->centreLights = kMedium;
        runway->redEndLights = true;
    }
}

// A number that depends on the text alone, for choices that should look picked by hand.
uint32_t TextNumber(std::string_view text) {
    uint32_t number = 2166136261u;
    for (const char c : text) number = (number ^ static_cast<uint8_t>(c)) * 16777619u;
    return number;
}

// "I" and the airport's last three letters; further ones of the same airport end in another letter.
std::string IlsIdent(const std::string& airport, uint32_t index) {
    std::string ident = airport.size() > 3 ? airport.substr(airport.size() - 3) : airport;
    while (ident.size() < 3) ident += 'X';
    if (index > 0) ident[2] = static_cast<char>('A' + (static_cast<uint32_t>(ident[2]) + 7 * index) % 26);
    return "I" + ident;
}

}  // namespace

void EquipRunway(RunwayPlan* runway, bool lighted) {
    runway->holdDistance = HoldDistance(*runway);
    if (!IsPaved(runway->surface)) {
        if (lighted) runway->edgeLights = kLow;
        return;
    }
    runway->markings = runway->length >= kInstrumentLength ? kInstrumentMarkings : kVisualMarkings;
    if (!lighted) return;
    runway->edgeLights = runway->length >= 1500 ? kMedium : kLow;
    for (RunwayEndPlan& end : runway->ends) EquipEnd(*runway, &end);
}

void AssignIls(AirportPlan* plan) {
    if (!plan->hasTower) return;
    std::vector<RunwayPlan*> runways;
    for (RunwayPlan& runway : plan->runways) {
        const bool fit = IsPaved(runway.surface) && runway.edgeLights > 0 && runway.length >= kPrecisionLength;
        if (fit) runways.push_back(&runway);
    }
    std::ranges::stable_sort(runways, std::greater{}, &RunwayPlan::length);
    constexpr uint32_t kChannels = 20, kLowest = 108100000, kStep = 200000;  // Hz: 108.1 to 111.9 MHz
    const uint32_t first = TextNumber(plan->ident);
    uint32_t count = 0;
    for (RunwayPlan* runway : runways) {
        const int ends = runway->length >= kHeavyLength ? 2 : 1;
        for (int i = 0; i < ends && count < 4; ++i, ++count) {
            RunwayEndPlan& end = runway->ends[i];
            end.ils = { IlsIdent(plan->ident, count), kLowest + (first + 7 * count) % kChannels * kStep };
            EquipForPrecision(runway, &end);
        }
    }
}

}  // namespace sample
