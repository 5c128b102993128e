// ToolCombosFixture.h - the boxes of the toolbars, with an airport and parking specs.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "app/ParkingSpecs.h"
#include "app/Settings.h"
#include "app/ToolCombos.h"
#include "fakes/BuildObjects.h"
#include "fakes/FakeDialogHost.h"
#include "fakes/FakePlatform.h"
#include "fakes/FakeShell.h"
#include "map/MapView.h"
#include "map/Tools.h"
#include "model/EditHistory.h"

namespace combos {

using namespace app;
using platform::Answer;
using Names = std::vector<std::string>;

constexpr uint64_t kMillisecond = 10000;
inline const std::string kLine(87, '-');

class ToolCombosFixture : public testing::Test {
protected:
    void SetUp() override { Reset(); }
    void TearDown() override { Reset(); }

    static void Reset() {
        ResetProgram();
        ResetDialogFakes();
        toolCombos = {};
        parkingSpecs.clear();
    }

    static void OpenAnAirport() {
        model::state.airport = build::Airport("KTST");
        model::state.loaded = true;
        ++model::state.revision;
    }

    static model::SceneryObject* SelectedSpot() {
        model::SceneryObject* spot = build::Spot({}, { "KLM" });
        spot->flags |= model::kSelected;
        return spot;
    }

    // A copy: the field may lie at an odd address.
    static model::SceneryObject* DesignatorOf(const model::SceneryObject* link) {
        return model::PayloadAs<model::TaxiLinkPayload>(link).designator;
    }

    static void UseSpecs(const Names& names) {
        for (const std::string& name : names) {
            ParkingSpec spec;
            spec.name = name;
            spec.codes = { name.substr(0, 3) };
            parkingSpecs.push_back(spec);
        }
        RefreshSpecRows();
    }

    static Names SpecTexts() {
        Names texts;
        for (const SpecRow& row : toolCombos.specs) texts.push_back(row.text);
        return texts;
    }

    static Names DesignatorTexts() {
        RefreshDesignatorRows();
        Names texts;
        for (const auto& row : toolCombos.designators.rows) texts.push_back(row.text);
        return texts;
    }

    static void Later(uint64_t milliseconds) { fake.fileTime += milliseconds * kMillisecond; }

    static int Actions() {
        int count = 0;
        for (const model::SceneryObject* entry = model::state.undoHead; entry; entry = entry->historyNext)
            count += (entry->flags & model::kGroupStart) != 0;
        return count;
    }
};

}  // namespace combos
