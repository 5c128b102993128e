// HubLayout.cpp - the hub: three parallel runways, a terminal with four concourses and two satellites.
#include "sample/LayoutParts.h"
#include "sample/Layouts.h"

namespace sample {

namespace {

struct HubRunwayEnd {
    uint8_t designator;  // of runway 16
    int end;             // 0 the northern threshold (16), 1 the southern one (34)
    const char* ils;
    uint32_t frequency;  // Hz
    model::ApproachLights approach;
    uint8_t strobes;
    model::SlopeLights vasi;
    bool vasiRight;
    double blastPad;  // metres
};
constexpr uint8_t kLeft = 1, kRight = 2, kCentre = 3;
constexpr HubRunwayEnd kEnds[] = {
    { kLeft, 0, "ISNQ", 111700000, kAlsf2, 15, kPapi4, false, 120 },
    { kLeft, 1, "ISEA", 110300000, kMalsr, 5, kPapi4, false, 120 },
    { kCentre, 0, "ISZI", 110700000, kAlsf2, 15, kPapi4, true, 60 },
    { kCentre, 1, "IBEJ", 109900000, kSsalr, 8, kPapi4, true, 60 },
    { kRight, 0, "", 0, kMals, 0, kPapi4, false, 60 },
    { kRight, 1, "", 0, kMals, 0, kVasi4, false, 60 },
};

void EquipHubRunways(AirportPlan* plan) {
    constexpr uint16_t kPrecisionMarkings = 0x7F;
    for (RunwayPlan& runway : plan->runways) {
        runway.surface = kConcrete;
        runway.markings = kPrecisionMarkings;
        runway.edgeLights = 3;
        runway.centreLights = 2;
        runway.redEndLights = true;
        runway.holdDistance = 75;
    }
    for (const HubRunwayEnd& row : kEnds) {
        RunwayPlan* runway = FindRunway(plan, 16, row.designator);
        if (!runway) continue;
        RunwayEndPlan& end = runway->ends[row.end];
        end.ils = { row.ils, row.frequency };
        end.approach = row.approach;
        end.strobes = row.strobes;
        end.vasi = row.vasi;
        end.vasiRight = row.vasiRight;
        end.blastPad = row.blastPad;
        end.endLights = true;
        end.touchdownLights = row.approach == kAlsf2;
        end.reil = false;
        end.rightPattern = row.designator == kRight && row.end == 0;
        runway->ilsHoldDistance = row.ils[0] != '\0' ? 100 : runway->ilsHoldDistance;
    }
}

}  // namespace

void LayOutHub(AirportPlan* plan) {
    EquipHubRunways(plan);
    LayOutHubTaxiways(plan);
    LayOutHubAprons(plan);
    plan->hasTower = true;
    plan->tower = { 985, -560 };
    plan->towerHeight = 82;
    plan->avgas = plan->jetFuel = true;
}

}  // namespace sample
