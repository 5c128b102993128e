#include <gtest/gtest.h>

#include "dialogs/RunwayDialog.h"
#include "fakes/RunwayFixture.h"
#include "model/Names.h"

namespace {

using namespace dialogs;

class RunwayVasiPage : public RunwayFixture {};

TEST_F(RunwayVasiPage, AVasiIsShownByItsDistanceFromTheRunwayEnd) {
    Parts().primaryLeftVasi = { 8, 38, 1195.2F, 9, 3 };
    app::settings.metric = true;
    const VasiFields fields = LoadRunwayFields(runway).ends[0].left;
    EXPECT_EQ(model::SlopeLightsNames()[static_cast<size_t>(fields.system)], std::string("PAPI 4"));
    EXPECT_EQ(fields.distance, "304.8");
    EXPECT_EQ(fields.offset, "38.0");
    EXPECT_EQ(fields.spacing, "9.0");
    EXPECT_EQ(fields.slope, "3.00");
    EXPECT_EQ(LoadRunwayFields(runway).ends[1].right.distance, "0.0");
}

TEST_F(RunwayVasiPage, EachVasiUnitWritesItsOwnPart) {
    app::settings.metric = true;
    const auto fill = [](VasiFields& unit, int system) { unit = { system, "300", "40", "9", "3.25" }; };
    EXPECT_TRUE(Edit([&](RunwayFields& entered) {
        fill(entered.ends[0].left, 1);
        fill(entered.ends[0].right, 2);
        fill(entered.ends[1].left, 3);
        fill(entered.ends[1].right, 14);
    }));
    const model::VasiPart units[] = { Parts().primaryLeftVasi, Parts().primaryRightVasi, Parts().secondaryLeftVasi,
                                      Parts().secondaryRightVasi };
    const int types[] = { 1, 2, 3, 14 };
    for (size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(+units[i].type, types[i]);
        EXPECT_EQ(+units[i].biasZ, 1200);
        EXPECT_EQ(+units[i].biasX, 40);
        EXPECT_EQ(+units[i].spacing, 9);
        EXPECT_EQ(+units[i].pitch, 3.25F);
    }
}

TEST_F(RunwayVasiPage, TheSystemNoneClearsTheUnit) {
    Parts().secondaryRightVasi = { 8, 38, 1195.2F, 9, 3 };
    EXPECT_TRUE(Edit([](RunwayFields& entered) { entered.ends[1].right.system = 0; }));
    const model::VasiPart zero = {}, unit = Parts().secondaryRightVasi;
    EXPECT_EQ(std::memcmp(&unit, &zero, sizeof unit), 0);
}

TEST_F(RunwayVasiPage, TheFieldsOfAUnitWithoutASystemAreNeitherJudgedNorStored) {
    Parts().primaryRightVasi = { 0, 38, 0, 9, 3 };  // carried by the file
    const auto before = Bytes(runway);
    EXPECT_TRUE(Edit([](RunwayFields& entered) { entered.ends[0].right = { 0, "1", "2", "3", "rubbish" }; }));
    EXPECT_EQ(Bytes(runway), before);
    EXPECT_EQ(Actions(), 0);
    Parts().primaryRightVasi = { 8, 38, 1195.2F, 9, 3 };
    EXPECT_TRUE(Edit([](RunwayFields& entered) { entered.ends[0].right = { 0, "x", "x", "x", "x" }; }));
    EXPECT_EQ(+Parts().primaryRightVasi.biasX, 0);
    EXPECT_FALSE(HasVasiUnit({ 0, "1", "2", "3", "4" }));
    EXPECT_TRUE(HasVasiUnit({ 8, "0", "0", "0", "0" }));
    EXPECT_TRUE(HasVasiUnit({ -1, "0", "0", "0", "0" })) << "a system that the box cannot show";
}

TEST_F(RunwayVasiPage, TheDistanceThatIsShownOfAUnitWithoutASystemIsStoredWithOne) {
    app::settings.metric = true;
    Parts().primaryLeftVasi = { 0, 38, 1195.2F, 9, 3 };  // carried by the file
    EXPECT_EQ(LoadRunwayFields(runway).ends[0].left.distance, "0.0");
    EXPECT_TRUE(Edit([](RunwayFields& entered) { entered.ends[0].left.system = 8; }));
    EXPECT_EQ(+Parts().primaryLeftVasi.biasZ, 1500);
}

TEST_F(RunwayVasiPage, ARefusedVasiFieldNamesItsUnit) {
    EXPECT_FALSE(Edit([](RunwayFields& entered) {
        entered.ends[1].right.system = 8;
        entered.ends[1].right.slope = "91";
    }));
    EXPECT_EQ(LastMessage(), "ERROR: The VASI slope must be a number from 0 to 90 degrees");
    EXPECT_EQ(bad.field, Field::VasiSlope);
    EXPECT_EQ(bad.part, 3);
    EXPECT_EQ(PageOf(bad), RunwayPage::Vasi);
}

TEST_F(RunwayVasiPage, AChosenSystemFillsAnEmptyUnitWithAUsualInstallation) {
    app::settings.metric = true;
    RunwayFields entered;
    entered.width = "45.0";
    VasiFields unit = { 0, "0.0", "0.0", "0.0", "0.00" };
    ChooseVasiSystem(&unit, 8, entered, 0);
    EXPECT_EQ(unit.system, 8);
    EXPECT_EQ(unit.distance, "304.8");
    EXPECT_EQ(unit.offset, "37.5");
    EXPECT_EQ(unit.spacing, "9.0");
    EXPECT_EQ(unit.slope, "3.00");
    unit.offset = "50";
    ChooseVasiSystem(&unit, 7, entered, 0);
    EXPECT_EQ(unit.offset, "50");
    app::settings.metric = false;
    entered.width = "150";
    unit = { 0, "0", "0", "0", "0.00" };
    ChooseVasiSystem(&unit, 8, entered, 0);
    EXPECT_EQ(unit.distance, "1000");
    EXPECT_EQ(unit.offset, "124");
}

TEST_F(RunwayVasiPage, AUsualInstallationStandsBehindTheDisplacedThresholdOfItsEnd) {
    RunwayFields entered;
    entered.ends[1].displaced = "400";
    VasiFields unit = { 0, "0", "0", "0", "0.00" };
    ChooseVasiSystem(&unit, 8, entered, 1);
    EXPECT_EQ(unit.distance, "1400");
}

TEST_F(RunwayVasiPage, TheBarsOfAVasiBeginFiveHundredFeetInAndStandSevenHundredApart) {
    for (int system = 1; system <= 6; ++system) {
        VasiFields unit = { 0, "0", "0", "0", "0.00" };
        ChooseVasiSystem(&unit, system, {}, 0);
        EXPECT_EQ(unit.distance, system % 2 == 0 ? "1900" : "1200") << "that of the last bar";
        EXPECT_EQ(unit.spacing, "700");
    }
}

TEST_F(RunwayVasiPage, AVasiKeepsItsDistanceWhenTheLengthChanges) {
    Parts().primaryLeftVasi = { 8, 38, 1195.2F, 9, 3 };
    app::settings.metric = true;
    EXPECT_TRUE(Edit([](RunwayFields& entered) { entered.length = "3200"; }));
    EXPECT_FLOAT_EQ(+Parts().primaryLeftVasi.biasZ, 1295.2F);
    EXPECT_EQ(LoadRunwayFields(runway).ends[0].left.distance, "304.8");
    EXPECT_EQ(+Parts().primaryRightVasi.biasZ, 0);
    EXPECT_TRUE(Edit([](RunwayFields& entered) {
        entered.length = "3000";
        entered.ends[0].left.distance = "400";
    }));
    EXPECT_FLOAT_EQ(+Parts().primaryLeftVasi.biasZ, 1100);
}

}  // namespace
