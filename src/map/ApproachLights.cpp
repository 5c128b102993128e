// ApproachLights.cpp - see ApproachLights.h.
//
// The American systems follow FAA JO 6850.2 and the figures of AIM 2-1-1 (given there in feet), for a length of
// 2,400 feet; the short ones are the inner part of them. CALVERT is the distance coded centre line of ICAO Annex 14
// with its five cross bars, whose ends lie on two lines that meet 300 m behind the threshold; CALVERT-2 has the inner
// 300 m of a category II system. The simulator's two further names of the simplified short system stand for the same
// lamps as the names that the FAA uses.
#include "map/ApproachLights.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "map/MapView.h"
#include "model/Names.h"

namespace map {

namespace {

constexpr double kLampRadius = 0.4;  // metres

constexpr double kStep = Feet(100), kWideStep = Feet(200), kDecisionBar = Feet(1000);
constexpr double kFullLength = Feet(2400), kMediumLength = Feet(1400), kShortLength = Feet(1500);
constexpr double kBarretteGap = Feet(40.5 / 12), kMediumGap = Feet(2.5), kWingGap = Feet(5);
constexpr double kSideRow = Feet(36);  // in line with the touchdown zone lights
constexpr double kThresholdReach = Feet(45);
constexpr double kBesideThreshold = Feet(40);  // from the runway's edge

constexpr ApproachRow BarAt(double station, double inner, double gap, int lamps, Ink ink = Ink::LightWhite) {
    return { station, station, kStep, inner, gap, lamps, ink };
}

constexpr std::array kMediumRows = {
    ApproachRow{ kWideStep, kMediumLength, kWideStep, 0, kMediumGap, 5, Ink::LightWhite },
    BarAt(kDecisionBar, Feet(23), kMediumGap, 5),
};

constexpr std::array kSimplifiedRows = {
    ApproachRow{ kWideStep, kMediumLength, kWideStep, 0, kBarretteGap, 5, Ink::LightWhite },
    BarAt(kDecisionBar, Feet(15), kWingGap, 5),
};

// The centre line begins at 300 feet (FAA JO 6850.2: 28 bars to 3,000 feet): nearer to the threshold there are only the
// red terminating bar and the red wing bars.
constexpr ApproachRow AlsfOneRow(double last) {
    return { Feet(300), last, kStep, 0, kBarretteGap, 5, Ink::LightWhite };
}
constexpr ApproachRow kWingBar = BarAt(Feet(100), Feet(75), kWingGap, 5, Ink::LightRed);
constexpr ApproachRow kTerminatingBar = BarAt(Feet(200), 0, kWingGap, 11, Ink::LightRed);
constexpr ApproachRow kFullDecisionBar = BarAt(kDecisionBar, Feet(15), kWingGap, 8);

constexpr std::array kAlsfOneRows = { AlsfOneRow(kFullLength), kWingBar, kTerminatingBar, kFullDecisionBar };
constexpr std::array kShortRows = { AlsfOneRow(kShortLength), kWingBar, kTerminatingBar, kFullDecisionBar };

constexpr std::array kAlsfTwoRows = {
    ApproachRow{ kStep, kFullLength, kStep, 0, kBarretteGap, 5, Ink::LightWhite },
    ApproachRow{ kStep, Feet(900), kStep, kSideRow, kWingGap, 3, Ink::LightRed },
    BarAt(Feet(500), Feet(14), kWingGap, 4),
    kFullDecisionBar,
};

constexpr double kPairGap = 1.5, kCrossGap = 2.7;  // metres

constexpr ApproachRow Cross(double station) {
    const double width = 30 * (station + 300) / 600;
    const int gaps = static_cast<int>(2 * width / kCrossGap + 1) / 2;  // rounded
    const int lamps = gaps + 1;
    return { station, station, 30, 0, width / (lamps - 1), lamps, Ink::LightWhite };
}
constexpr ApproachRow Coded(double first, double last, int lamps) {
    return { first, last, 30, 0, kPairGap, lamps, Ink::LightWhite };
}

constexpr std::array kCalvertRows = {
    Coded(30, 300, 1), Coded(330, 600, 2), Coded(630, 900, 3), Cross(150),
    Cross(300),        Cross(450),         Cross(600),         Cross(750),
};

constexpr std::array kCalvertTwoRows = {
    Coded(30, 300, 4),
    Coded(330, 600, 2),
    Coded(630, 900, 3),
    ApproachRow{ 30, 270, 30, 9, kPairGap, 3, Ink::LightRed },
    ApproachRow{ 150, 150, 30, 4, 2.5, 2, Ink::LightWhite },  // from the centre line to the side rows
    Cross(300),
    Cross(450),
    Cross(600),
    Cross(750),
};

constexpr int kAlignmentFlashes = 5, kOuterFlashes = 3, kAlsfFlashes = 15, kLeadInFlashes = 5;

constexpr ApproachSystem Aligned(std::span<const ApproachRow> rows) {
    return { .rows = rows, .flashes = kAlignmentFlashes, .flashFrom = kFullLength, .flashStep = kWideStep };
}
constexpr ApproachSystem Flashing(std::span<const ApproachRow> rows, int flashes = kOuterFlashes) {
    return { .rows = rows, .flashes = flashes, .flashFrom = kMediumLength, .flashStep = kWideStep };
}
constexpr ApproachSystem Alsf(std::span<const ApproachRow> rows) {
    return {
        .rows = rows, .flashes = kAlsfFlashes, .flashFrom = kFullLength, .flashStep = kStep, .thresholdBar = true
    };
}
constexpr ApproachSystem Steady(std::span<const ApproachRow> rows, double length, double step) {
    return { .rows = rows, .flashFrom = length, .flashStep = step };
}

constexpr ApproachSystem kLeadInLights = {
    .rows = {}, .flashes = kLeadInFlashes, .flashFrom = kShortLength, .flashStep = Feet(300), .flashesBeside = true
};
constexpr ApproachSystem kShortLights = {
    .rows = kShortRows, .flashFrom = kShortLength, .flashStep = kStep, .thresholdBar = true
};

constexpr std::array<ApproachSystem, model::kApproachLightsCount> kSystems = { {
    Steady({}, kFullLength, kStep),                     // none
    kLeadInLights,                                      // ODALS
    Flashing(kMediumRows),                              // MALSF
    Aligned(kMediumRows),                               // MALSR
    Flashing(kSimplifiedRows),                          // SSALF
    Aligned(kSimplifiedRows),                           // SSALR
    Alsf(kAlsfOneRows),                                 // ALSF-1
    Alsf(kAlsfTwoRows),                                 // ALSF-2
    Aligned({}),                                        // RAIL
    Steady(kCalvertRows, 900, 30),                      // CALVERT
    Steady(kCalvertTwoRows, 900, 30),                   // CALVERT-2
    Steady(kMediumRows, kMediumLength, kWideStep),      // MALS
    kShortLights,                                       // SALS
    Flashing(kSimplifiedRows),                          // SSALSF
    Steady(kSimplifiedRows, kMediumLength, kWideStep),  // SSALS
    Aligned(kSimplifiedRows),                           // SSALSR
} };

void PaintRow(const Lamps& lamps, const GroundFrame& frame, const ApproachRow& row) {
    const double half = row.gap * (row.lamps - 1) / 2, step = ThinnedSpacing(row.step);
    for (double station = row.first; station < row.last + row.step / 2; station += step) {
        if (row.inner > 0)
            PaintLampWings(lamps, frame, row.inner, row.gap, -station, row.lamps, row.ink);
        else
            PaintLampBar(lamps, frame, -half, half, -station, row.lamps, row.ink);
    }
}

void PaintFlashes(const Lamps& lamps, const GroundFrame& frame, const ApproachSystem& system, int count) {
    for (int i = 0; i < count; ++i) {
        const double station = system.flashFrom - i * system.flashStep;
        if (station > 0) PaintFlash(lamps, At(frame, 0, -station));
    }
}

void PaintPair(const Lamps& lamps, const GroundFrame& frame, double beside) {
    PaintFlash(lamps, At(frame, -beside, 0));
    PaintFlash(lamps, At(frame, beside, 0));
}

}  // namespace

const ApproachSystem& ApproachSystemOf(uint32_t code) { return kSystems[code < kSystems.size() ? code : 0]; }

void PaintApproachLights(Canvas* canvas, const RunwayShape& runway, const RunwayEnd& end) {
    const ApproachSystem& system = ApproachSystemOf(end.approachLights & model::kApproachSystemMask);
    const int strobes = end.approachLights >> model::kStrobesShift & model::kStrobesMask;
    const Lamps lamps = LampsOf(canvas, kLampRadius);
    const double half = runway.width / 2, wide = half + kThresholdReach + Feet(60);
    if (!Meets(BoundsOf(Rectangle(end.frame, -wide, wide, end.displaced - Feet(3200), end.displaced)), lamps.clip))
        return;
    GroundFrame threshold = end.frame;
    threshold.origin = At(end.frame, 0, end.displaced);
    for (const ApproachRow& row : system.rows) PaintRow(lamps, threshold, row);
    PaintFlashes(lamps, threshold, system, strobes > 0 ? strobes : system.flashes);
    if (system.flashesBeside) PaintPair(lamps, threshold, half + kBesideThreshold);
    if (end.approachLights & model::kReil) PaintPair(lamps, threshold, half + kBesideThreshold);
    if (!system.thresholdBar) return;
    const double reach = half + kThresholdReach;
    PaintLampBar(lamps, threshold, -reach, reach, -Feet(8), static_cast<int>(std::lround(2 * reach / kWingGap)) + 1,
                 Ink::LightGreen);
}

}  // namespace map
