#include "app/Options.h"

#include <gtest/gtest.h>

#include "app/Settings.h"
#include "fakes/FakePlatform.h"
#include "fakes/FakeShell.h"
#include "map/Grid.h"
#include "model/CoordinateText.h"

namespace {

using app::LoadOptions;
using app::OptionsFields;
using app::settings;
using app::StoreOptions;

class OptionsTest : public testing::Test {
protected:
    void SetUp() override { ResetProgram(); }
    void TearDown() override { ResetProgram(); }
};

TEST_F(OptionsTest, TheFormatsAreListedInTheOrderOfTheSetting) {
    const std::vector<std::string> expected = { "N49.12345", "N49* 15.1234'", "N49* 15' 45.1234\"", "N49:15.1234",
                                                "N49:15:45.1234" };
    const auto texts = app::LatLongFormatTexts();
    EXPECT_EQ(std::vector<std::string>(texts.begin(), texts.end()), expected);
}

// The item promises how positions will look: same marks, digits aside.
TEST_F(OptionsTest, EachFormatTextLooksLikeThePositionsItStandsFor) {
    const auto marksOf = [](std::string text) {
        std::erase_if(text, [](char c) { return (c >= '0' && c <= '9') || c == ' '; });
        return text;
    };
    OptionsFields fields = LoadOptions();
    int item = 0;
    for (const std::string text : app::LatLongFormatTexts()) {
        fields.latLongFormat = item++;
        StoreOptions(fields);
        const model::LatLon place = { 49.2627 / model::kDegreesPerRadian, 2.0 / model::kDegreesPerRadian };
        EXPECT_EQ(marksOf(model::FormatLatLon(place).latitude), marksOf(text));
    }
}

TEST_F(OptionsTest, TheGridDivisionsAreListedWithSecondsAndMinutes) {
    const std::vector<std::string> expected = {
        "60 Sec (1.00 Min)", "30 Sec (0.50 Min)", "20 Sec (0.33 Min)", "15 Sec (0.25 Min)", "12 Sec (0.20 Min)",
        "10 Sec (0.17 Min)", " 6 Sec (0.10 Min)", " 5 Sec (0.08 Min)", " 4 Sec (0.07 Min)", " 3 Sec (0.05 Min)",
    };
    EXPECT_EQ(app::GridDivisionTexts(), expected);
}

TEST_F(OptionsTest, AFirstStartShowsTheDefaults) {
    EXPECT_EQ(LoadOptions(), (OptionsFields{ .metric = false,
                                             .metricParkingRadius = false,
                                             .latLongFormat = 1,
                                             .gridDivisions = 1,
                                             .gridDecimal = true }));
}

TEST_F(OptionsTest, EachFieldReachesItsOwnSetting) {
    const OptionsFields shown = LoadOptions();
    OptionsFields fields = shown;
    fields.metric = true;
    StoreOptions(fields);
    EXPECT_TRUE(settings.metric && !settings.metricParkingRadius && settings.latLongGridDecimal);
    fields = shown;
    fields.metricParkingRadius = true;
    StoreOptions(fields);
    EXPECT_TRUE(!settings.metric && settings.metricParkingRadius && settings.latLongGridDecimal);
    fields = shown;
    fields.gridDecimal = false;
    StoreOptions(fields);
    EXPECT_TRUE(!settings.metric && !settings.metricParkingRadius && !settings.latLongGridDecimal);
    fields = shown;
    fields.latLongFormat = 4;
    StoreOptions(fields);
    EXPECT_EQ(settings.latLongFormat, 5);
    EXPECT_EQ(settings.latLongGridDivs, 1);
    fields = shown;
    fields.gridDivisions = 9;
    StoreOptions(fields);
    EXPECT_EQ(settings.latLongFormat, 2);
    EXPECT_EQ(settings.latLongGridDivs, 9);
}

TEST_F(OptionsTest, EveryChoiceComesBackAsItWasStored) {
    for (int format = 0; format < 5; ++format) {
        for (int divisions = 0; divisions < 10; ++divisions) {
            const OptionsFields fields = { .metric = format % 2 == 0,
                                           .metricParkingRadius = divisions % 2 == 0,
                                           .latLongFormat = format,
                                           .gridDivisions = divisions,
                                           .gridDecimal = divisions % 3 == 0 };
            StoreOptions(fields);
            EXPECT_EQ(LoadOptions(), fields);
        }
    }
}

TEST_F(OptionsTest, AListWithoutAChoiceLeavesItsSetting) {
    settings.latLongFormat = 4;
    settings.latLongGridDivs = 7;
    OptionsFields fields = LoadOptions();
    fields.latLongFormat = fields.gridDivisions = -1;
    fields.metric = true;
    StoreOptions(fields);
    EXPECT_EQ(settings.latLongFormat, 4);
    EXPECT_EQ(settings.latLongGridDivs, 7);
    EXPECT_TRUE(settings.metric);
}

TEST_F(OptionsTest, ASettingBeyondItsListShowsNoChoiceAndStays) {
    settings.latLongFormat = 6;
    settings.latLongGridDivs = 10;
    const OptionsFields fields = LoadOptions();
    EXPECT_EQ(fields.latLongFormat, -1);
    EXPECT_EQ(fields.gridDivisions, -1);
    StoreOptions(fields);
    EXPECT_EQ(settings.latLongFormat, 6);
    EXPECT_EQ(settings.latLongGridDivs, 10);
}

TEST_F(OptionsTest, StoringRedrawsTheMap) {
    const OptionsFields fields = LoadOptions();
    EXPECT_EQ(fake.repaints, 0);
    StoreOptions(fields);
    EXPECT_EQ(fake.repaints, 1);
}

TEST_F(OptionsTest, NothingElseIsTouched) {
    settings.showLabels = 2;
    settings.showLatLongGrid = false;
    settings.mostUsedSpecs = { "Air India" };
    StoreOptions(LoadOptions());
    EXPECT_EQ(settings.showLabels, 2);
    EXPECT_FALSE(settings.showLatLongGrid);
    EXPECT_EQ(settings.mostUsedSpecs, std::vector<std::string>{ "Air India" });
}

}  // namespace
