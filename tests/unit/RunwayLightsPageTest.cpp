// The pages of the lights and of the markings.
#include <gtest/gtest.h>

#include "dialogs/Choices.h"
#include "dialogs/RunwayDialog.h"
#include "fakes/RunwayFixture.h"
#include "model/Names.h"

namespace {

using namespace dialogs;

class RunwayLightsPage : public RunwayFixture {};

TEST_F(RunwayLightsPage, LightsMapToTheApproachWordsAndTheLightsByte) {
    Parts().primaryApproachLights = 0xE000;
    Parts().secondaryApproachLights = 0x0100;
    EXPECT_TRUE(Edit([](RunwayFields& entered) {
        entered.ends[0].approachSystem = 7;
        entered.ends[0].strobes = "21";
        entered.ends[0].endLights = entered.ends[0].touchdownLights = true;
        entered.ends[1].reil = true;
        entered.edgeLights = 3;
        entered.centreLights = 1;
        entered.redEndLights = true;
    }));
    EXPECT_EQ(+Parts().primaryApproachLights, 0xE000 | 21 << 8 | 0xA0 | 7);
    EXPECT_EQ(+Parts().secondaryApproachLights, 0x0140);
    EXPECT_EQ(Body().lights, 0x17);
    const RunwayFields fields = LoadRunwayFields(runway);
    EXPECT_EQ(fields.ends[0].approachSystem, 7);
    EXPECT_EQ(fields.ends[0].strobes, "21");
    EXPECT_TRUE(fields.ends[1].reil);
    EXPECT_EQ(fields.edgeLights, 3);
    EXPECT_EQ(fields.centreLights, 1);
}

TEST_F(RunwayLightsPage, StrobesAreReadInTheirBaseAndKeptToFiveBits) {
    const auto strobes = [&](const char* text) {
        EXPECT_TRUE(Edit([&](RunwayFields& entered) { entered.ends[0].strobes = text; })) << text;
        return +Parts().primaryApproachLights >> 8;
    };
    EXPECT_EQ(strobes("0x1F"), 31);
    EXPECT_EQ(strobes("010"), 8);
    EXPECT_EQ(strobes(" 9 "), 9);
    EXPECT_EQ(strobes("33"), 1);
    EXPECT_EQ(strobes("0"), 0);
    for (const char* text : { "", "five", "0x", "08", "-1", "3 strobes" }) {
        EXPECT_FALSE(Edit([&](RunwayFields& entered) { entered.ends[1].strobes = text; })) << text;
        EXPECT_EQ(bad.field, Field::Strobes);
        EXPECT_EQ(bad.part, kReciprocalEnd);
        EXPECT_EQ(PageOf(bad), RunwayPage::Lights);
    }
    EXPECT_EQ(LastMessage(), "ERROR: The approach strobes must be a whole number from 0 to 31");
}

TEST_F(RunwayLightsPage, AnApproachSystemBeyondTheListIsNoChoiceAndStays) {
    Parts().primaryApproachLights = 0x1E;
    EXPECT_EQ(LoadRunwayFields(runway).ends[0].approachSystem, -1);
    EXPECT_TRUE(Edit([](RunwayFields& entered) { entered.ends[0].reil = true; }));
    EXPECT_EQ(+Parts().primaryApproachLights, 0x5E);
}

TEST_F(RunwayLightsPage, EveryMarkingIsItsOwnBit) {
    const std::pair<bool RunwayFields::*, int> whole[] = {
        { &RunwayFields::edgeLines, 0 },     { &RunwayFields::threshold, 1 },    { &RunwayFields::aimingPoint, 2 },
        { &RunwayFields::touchdownZone, 3 }, { &RunwayFields::centreLine, 4 },   { &RunwayFields::numbers, 5 },
        { &RunwayFields::precision, 6 },     { &RunwayFields::edgePavement, 7 }, { &RunwayFields::noMarkings, 8 },
    };
    for (const auto& [box, bit] : whole) {
        Body().markings = 0xE000;
        EXPECT_TRUE(Edit([&](RunwayFields& entered) { entered.*box = true; }));
        EXPECT_EQ(+Body().markings, 0xE000 | 1 << bit);
        EXPECT_TRUE(Edit([&](RunwayFields& entered) { entered.*box = false; }));
        EXPECT_EQ(+Body().markings, 0xE000);
    }
    for (size_t end = 0; end < 2; ++end) {
        Body().markings = 0;
        EXPECT_TRUE(Edit([&](RunwayFields& entered) { entered.ends[end].closedMark = true; }));
        EXPECT_EQ(+Body().markings, 0x200 << end);
        Body().markings = 0;
        EXPECT_TRUE(Edit([&](RunwayFields& entered) { entered.ends[end].stolMark = true; }));
        EXPECT_EQ(+Body().markings, 0x800 << end);
    }
}

std::vector<std::string> Listed(std::span<const char* const> names) { return { names.begin(), names.end() }; }

TEST_F(RunwayLightsPage, ListsOfSystemsAndLevelsStandInTheOrderOfTheirCodes) {
    const std::vector<std::string> vasi = { "none",    "VASI 2",  "VASI 3", "VASI 4", "VASI 6",
                                            "VASI 12", "VASI 16", "PAPI 2", "PAPI 4", "TRCV",
                                            "PVASI",   "T-VASI",  "BALL",   "ADAP",   "PANELS" };
    const std::vector<std::string> approach = { "none",   "ODALS",  "MALSF", "MALSR",   "SSALF",     "SSALR",
                                                "ALSF-1", "ALSF-2", "RAIL",  "CALVERT", "CALVERT-2", "MALS",
                                                "SALS",   "SSALSF", "SSALS", "SSALSR" };
    const std::vector<std::string> levels = { "None", "Low", "Medium", "High" };
    EXPECT_EQ(Listed(model::SlopeLightsNames()), vasi);
    EXPECT_EQ(Listed(model::ApproachLightsNames()), approach);
    EXPECT_EQ(Listed(kLightLevels), levels);
}

}  // namespace
