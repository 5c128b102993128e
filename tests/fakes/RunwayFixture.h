// RunwayFixture.h - a runway 16L/34R of an airport with 20 degrees of east variation, for tests of its editor.
#pragma once

#include "dialogs/RunwayDialog.h"
#include "fakes/DialogFixture.h"

class RunwayFixture : public DialogFixture {
protected:
    void SetUp() override {
        DialogFixture::SetUp();
        airport = build::Airport("KSEA");
        As<model::AirportRecord>(airport).magneticVariation = 340;
        runway = build::Runway(16, 1);
        Body().heading = 164;
        Body().surface = 4;
        Body().patternAltitude = 300;
        Body().altitude = 131978;
        Body().length = 3000;
        Body().width = 45.72F;
    }

    model::RunwayRecord& Body() { return As<model::RunwayPayload>(runway).body; }
    model::RunwayPayload& Parts() { return As<model::RunwayPayload>(runway); }

    template <class Change>
    bool Edit(Change change) {
        return OkAfter<dialogs::LoadRunwayFields, dialogs::StoreRunwayFields>(runway, change);
    }
    // The payload bytes that differ from `before`.
    std::vector<size_t> Changed(const std::vector<uint8_t>& before) {
        std::vector<size_t> offsets;
        for (size_t i = 0; i < before.size(); ++i) {
            if (before[i] != runway->payload[i]) offsets.push_back(i);
        }
        return offsets;
    }

    model::SceneryObject *airport = nullptr, *runway = nullptr;
};
