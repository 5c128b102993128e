#include "dialogs/ParkingDialog.h"

#include "dialogs/ParkingCodes.h"
#include "fakes/DialogFixture.h"
#include "map/MapView.h"
#include "model/SpotBits.h"

namespace {

using namespace dialogs;

constexpr int kCargoIndex = 4, kGateSmallIndex = 7, kGateHeavyIndex = 9;

class ParkingDialog : public DialogFixture {
protected:
    // A Gate Small, "Gate 7", of the default radius, with all carried bits set.
    SceneryObject* Gate(std::initializer_list<std::string_view> codes = {}) {
        SceneryObject* spot = build::Spot({}, codes);
        Spot(spot).packed = static_cast<uint32_t>(codes.size()) << 24 | 7u << 12 | 8u << 8 | 0xC0 | 10;
        Spot(spot).radius = 31;
        Spot(spot).heading = 90;
        return spot;
    }
    static model::ParkingSpotRecord& Spot(SceneryObject* spot) { return As<model::ParkingSpotRecord>(spot); }
    static float Radius(SceneryObject* spot) { return Spot(spot).radius; }
    static uint32_t Packed(SceneryObject* spot) { return Spot(spot).packed; }

    template <class Change>
    bool Edit(SceneryObject* spot, Change change) {
        return OkAfter<LoadParkingFields, StoreParkingFields>(spot, change);
    }
};

TEST_F(ParkingDialog, TheSpotIsShownWithHeadingAndRadiusInTheirFormats) {
    const ParkingFields fields = LoadParkingFields(Gate({ "JAL", "KLM" }));
    EXPECT_EQ(fields.heading, "90.0");
    EXPECT_EQ(fields.radius, "101.71");
    EXPECT_EQ(fields.number, "7");
    EXPECT_EQ(ParkingAreaChoices()[static_cast<size_t>(fields.area)], "Gate");
    EXPECT_EQ(ParkingTypeChoices()[static_cast<size_t>(fields.type)], "Gate Small");
    EXPECT_EQ(fields.codes, "JAL,KLM");
    EXPECT_EQ(ParkingAreaChoices().size(), 37u);
    EXPECT_EQ(ParkingAreaChoices()[36], "Gate Z");
    app::settings.metricParkingRadius = true;
    EXPECT_EQ(LoadParkingFields(Gate()).radius, "31.00");
}

TEST_F(ParkingDialog, OkWithoutAChangeRecordsNothing) {
    SceneryObject* spot = Gate({ "jal", "A" });
    const auto before = Bytes(spot);
    EXPECT_TRUE(Edit(spot, [](ParkingFields&) {}));
    EXPECT_EQ(Bytes(spot), before);
    EXPECT_EQ(Actions(), 0);
}

TEST_F(ParkingDialog, CodesOutsideTheListsAreNoChoiceAndStay) {
    SceneryObject* spot = Gate();
    Spot(spot).packed = 0x000000FF;  // name code 63, type 0
    ParkingFields fields = LoadParkingFields(spot);
    EXPECT_EQ(fields.area, -1);
    EXPECT_EQ(fields.type, -1);
    Spot(spot).packed = 0x00000F00;  // name code 0, type 15
    fields = LoadParkingFields(spot);
    EXPECT_EQ(fields.area, -1);
    EXPECT_EQ(ParkingTypeChoices()[static_cast<size_t>(fields.type)], "Unknown");
    EXPECT_TRUE(Edit(spot, [](ParkingFields& entered) { entered.number = "3"; }));
    EXPECT_EQ(Packed(spot), 0x00003F00u);
}

TEST_F(ParkingDialog, EachFieldChangesItsOwnBitsOnly) {
    SceneryObject* spot = Gate({ "JAL" });
    EXPECT_TRUE(Edit(spot, [](ParkingFields& entered) { entered.number = "4095"; }));
    EXPECT_EQ(Packed(spot), 1u << 24 | 4095u << 12 | 8u << 8 | 0xC0 | 10);
    EXPECT_TRUE(Edit(spot, [](ParkingFields& entered) { entered.area = 36; }));
    EXPECT_EQ(Packed(spot), 1u << 24 | 4095u << 12 | 8u << 8 | 0xC0 | 37);
    EXPECT_TRUE(Edit(spot, [](ParkingFields& entered) { entered.type = kCargoIndex; }));
    EXPECT_EQ(Packed(spot), 1u << 24 | 4095u << 12 | 5u << 8 | 0xC0 | 37);
    EXPECT_TRUE(Edit(spot, [](ParkingFields& entered) { entered.heading = "271.5"; }));
    EXPECT_EQ(+Spot(spot).heading, 271.5F);
    EXPECT_EQ(Radius(spot), 31);
    EXPECT_EQ(Actions(), 4);
}

TEST_F(ParkingDialog, NumbersBeyondTheFieldAndNonsenseAreRefused) {
    SceneryObject* spot = Gate();
    const auto before = Bytes(spot);
    EXPECT_FALSE(Edit(spot, [](ParkingFields& entered) { entered.number = "4096"; }));
    EXPECT_EQ(LastMessage(), "ERROR: The number must be a whole number from 0 to 4095");
    EXPECT_EQ(bad.field, Field::Number);
    EXPECT_FALSE(Edit(spot, [](ParkingFields& entered) { entered.heading = "400"; }));
    EXPECT_EQ(bad.field, Field::Heading);
    EXPECT_FALSE(Edit(spot, [](ParkingFields& entered) { entered.radius = "0"; }));
    EXPECT_EQ(bad.field, Field::Radius);
    EXPECT_EQ(LastMessage(), "ERROR: The radius must be a number from 0.33 to 3280.83 feet");
    EXPECT_FALSE(Edit(spot, [](ParkingFields& entered) { entered.position.latitude = "N90"; }));
    EXPECT_EQ(bad.field, Field::Latitude);
    EXPECT_EQ(Bytes(spot), before);
    EXPECT_EQ(Actions(), 0);
}

TEST_F(ParkingDialog, TheRadiusIsReadInItsOwnUnit) {
    SceneryObject* spot = Gate();
    EXPECT_TRUE(Edit(spot, [](ParkingFields& entered) { entered.radius = "100"; }));
    EXPECT_EQ(Radius(spot), 30.48F);
    app::settings.metricParkingRadius = true;
    EXPECT_TRUE(Edit(spot, [](ParkingFields& entered) { entered.radius = "27.5"; }));
    EXPECT_EQ(Radius(spot), 27.5F);
}

TEST_F(ParkingDialog, ATypeBringsItsRadiusWhileTheRadiusIsTheOldTypesDefault) {
    ParkingFields fields = LoadParkingFields(Gate());
    ChooseParkingType(&fields, kGateHeavyIndex);
    EXPECT_EQ(fields.radius, "177.17");
    ChooseParkingType(&fields, kCargoIndex);
    EXPECT_EQ(fields.radius, "164.04");
    fields.radius = "160";
    ChooseParkingType(&fields, kGateSmallIndex);
    EXPECT_EQ(fields.radius, "160");
    EXPECT_EQ(fields.type, kGateSmallIndex);
}

TEST_F(ParkingDialog, TheRadiusThatATypeBringsIsExactThoughItIsShownInFeet) {
    const float radii[] = { 20, 10, 14, 18, 50, 44, 26, 31, 38, 54, 20 };
    for (int type = 0; type < 11; ++type) {
        SceneryObject* spot = Gate();
        EXPECT_TRUE(Edit(spot, [&](ParkingFields& entered) { ChooseParkingType(&entered, type); }));
        EXPECT_EQ(Radius(spot), radii[type]);
    }
}

TEST_F(ParkingDialog, TheTypeChosenLastIsThatOfNewSpots) {
    SceneryObject* spot = Gate();
    EXPECT_TRUE(Edit(spot, [](ParkingFields& entered) { entered.number = "8"; }));
    EXPECT_EQ(map::tools.lastParkingType, int{ model::kGateMedium });
    EXPECT_TRUE(Edit(spot, [](ParkingFields& entered) { entered.type = kCargoIndex; }));
    EXPECT_EQ(map::tools.lastParkingType, 5);
}

TEST_F(ParkingDialog, CodesAreUpperCasedTrimmedAndPadded) {
    SceneryObject* spot = Gate({ "JAL" });
    const auto before = Bytes(spot);
    EXPECT_TRUE(Edit(spot, [](ParkingFields& entered) { entered.codes = " klm ,,ual, X,"; }));
    ASSERT_EQ(spot->payloadSize, 32u);
    EXPECT_EQ(std::string(reinterpret_cast<char*>(spot->payload) + 20, 12), std::string("KLM\0UAL\0X\0\0\0", 12));
    EXPECT_EQ(model::ParkingCodeCount(Spot(spot)), 3u);
    model::Undo();
    EXPECT_EQ(Bytes(spot), before);
    EXPECT_TRUE(Edit(spot, [](ParkingFields& entered) { entered.codes = ""; }));
    EXPECT_EQ(spot->payloadSize, 20u);
    EXPECT_EQ(model::ParkingCodeCount(Spot(spot)), 0u);
}

TEST_F(ParkingDialog, ACodeOfFiveCharactersIsRefused) {
    SceneryObject* spot = Gate();
    EXPECT_FALSE(Edit(spot, [](ParkingFields& entered) { entered.codes = "JAL,ABCDE"; }));
    EXPECT_EQ(LastMessage(), "ERROR: The Parking Codes box contains a code longer than the maximum four characters");
    EXPECT_EQ(bad.field, Field::Codes);
    EXPECT_TRUE(Edit(spot, [](ParkingFields& entered) { entered.codes = "JAL,ABCD"; }));
}

TEST_F(ParkingDialog, ASpotHoldsAtMost255Codes) {
    SceneryObject* spot = Gate();
    std::string text;
    for (int i = 0; i < 255; ++i) text += "A" + std::to_string(i) + ",";
    EXPECT_TRUE(Edit(spot, [&](ParkingFields& entered) { entered.codes = text; }));
    EXPECT_EQ(spot->payloadSize, 20u + 4 * 255);
    EXPECT_EQ(model::ParkingCodeCount(Spot(spot)), 255u);
    EXPECT_FALSE(Edit(spot, [&](ParkingFields& entered) { entered.codes = text + "B"; }));
    EXPECT_EQ(LastMessage(), "ERROR: The Parking Codes box contains more than the maximum 255 codes");
}

TEST_F(ParkingDialog, CodesThatSceneryFilesCannotHoldAreRefused) {
    SceneryObject* spot = Gate();
    EXPECT_FALSE(Edit(spot, [](ParkingFields& entered) { entered.codes = "\xE4\xB8\xAD"; }));
    EXPECT_EQ(LastMessage(), "ERROR: The Parking Codes box contains a character that scenery files cannot hold");
    EXPECT_EQ(bad.field, Field::Codes);
    EXPECT_FALSE(Edit(spot, [](ParkingFields& entered) { entered.codes = "JAL,A\tB"; }));
    EXPECT_EQ(LastMessage(), "ERROR: The Parking Codes box contains a character that scenery files cannot hold");
    EXPECT_TRUE(Edit(spot, [](ParkingFields& entered) { entered.codes = "\xC3\x85\xC3\x85\xC3\x85\xC3\x85"; }));
    EXPECT_EQ(spot->payloadSize, 24u);
}

TEST_F(ParkingDialog, ASpecPutsItsCodesInAtTheCursorWithoutDuplicates) {
    const app::ParkingSpec spec = { .name = "Star", .codes = { "DLH", "ual", "SAS" } };
    std::string text = "JAL,UAL";
    size_t cursor = 1;  // inside JAL
    InsertSpecCodes(spec, &text, &cursor);
    EXPECT_EQ(text, "JAL,DLH,SAS,UAL");
    EXPECT_EQ(cursor, 11u);
    InsertSpecCodes(spec, &text, &cursor);
    EXPECT_EQ(text, "JAL,DLH,SAS,UAL");
    text.clear();
    cursor = 0;
    InsertSpecCodes(spec, &text, &cursor);
    EXPECT_EQ(text, "DLH,UAL,SAS");
    text = "JAL, ";
    cursor = 5;
    InsertSpecCodes({ .name = "One", .codes = { "KLM", "KLM" } }, &text, &cursor);
    EXPECT_EQ(text, "JAL,KLM");
    EXPECT_EQ(cursor, 7u);
    cursor = 99;
    InsertSpecCodes({ .name = "Two", .codes = { "A" } }, &text, &cursor);
    EXPECT_EQ(text, "JAL,KLM,A");
}

class SeveralSpots : public ParkingDialog {
protected:
    void SetUp() override {
        ParkingDialog::SetUp();
        first = Gate({ "JAL" });
        second = Gate({ "JAL" });
        third = Gate({ "KLM", "UAL" });
        for (SceneryObject* spot : { first, second }) spot->flags |= model::kSelected;
        Spot(second).packed = 1u << 24 | 9u << 12 | 8u << 8 | 10;
        Spot(second).radius = 40;
    }
    SceneryObject *first = nullptr, *second = nullptr, *third = nullptr;
};

TEST_F(SeveralSpots, WhatDiffersShowsBlankAndWhatAgreesIsShown) {
    const ParkingFields fields = LoadParkingFields(second);
    EXPECT_TRUE(fields.several);
    EXPECT_EQ(fields.position.latitude, "");
    EXPECT_EQ(fields.heading, "90.0");
    EXPECT_EQ(fields.number, "");
    EXPECT_EQ(fields.radius, "");
    EXPECT_EQ(fields.codes, "JAL");
    EXPECT_EQ(fields.area, 9);
    EXPECT_EQ(fields.type, kGateSmallIndex);
}

TEST_F(SeveralSpots, OkWithoutAChangeRecordsNothing) {
    EXPECT_TRUE(Edit(first, [](ParkingFields&) {}));
    EXPECT_EQ(Actions(), 0);
}

TEST_F(SeveralSpots, AChangedFieldGoesToAllInOneActionAndTheOthersStay) {
    const auto before = Bytes(first), beforeThird = Bytes(third);
    EXPECT_TRUE(Edit(first, [](ParkingFields& entered) { entered.codes = "SAS"; }));
    EXPECT_EQ(CodesText(first), "SAS");
    EXPECT_EQ(CodesText(second), "SAS");
    EXPECT_EQ(Bytes(third), beforeThird);
    EXPECT_EQ(model::ParkingNumber(Spot(second)), 9u);
    EXPECT_EQ(Radius(second), 40);
    EXPECT_EQ(Actions(), 1);
    model::Undo();
    EXPECT_EQ(Bytes(first), before);
    EXPECT_EQ(CodesText(second), "JAL");
}

TEST_F(SeveralSpots, ATypeChangesTheRadiusOfThoseThatHaveTheirTypesDefault) {
    EXPECT_TRUE(Edit(first, [](ParkingFields& entered) { ChooseParkingType(&entered, kGateHeavyIndex); }));
    EXPECT_EQ(Radius(first), 54);
    EXPECT_EQ(Radius(second), 40);
    EXPECT_EQ(model::ParkingTypeCode(Spot(second)), 10u);
}

TEST_F(SeveralSpots, ADefaultThatWasTypedInFeetIsOneToo) {
    Spot(first).radius = 30.9996F;
    EXPECT_TRUE(Edit(first, [](ParkingFields& entered) { ChooseParkingType(&entered, kGateHeavyIndex); }));
    EXPECT_EQ(Radius(first), 54);
}

TEST_F(SeveralSpots, ATypeForSpotsOfSeveralTypesLeavesTheRadiusThatTheyShare) {
    Spot(first).packed = (Spot(first).packed & ~0xF00u) | 9u << 8;
    Spot(first).radius = Spot(second).radius = 20;
    EXPECT_EQ(LoadParkingFields(first).radius, "65.62");
    EXPECT_TRUE(Edit(first, [](ParkingFields& entered) { ChooseParkingType(&entered, kGateHeavyIndex); }));
    EXPECT_EQ(Radius(first), 20);
    EXPECT_EQ(Radius(second), 20);
    EXPECT_EQ(model::ParkingTypeCode(Spot(first)), 10u);
}

TEST_F(SeveralSpots, ASpotThatIsNotSelectedIsEditedAlone) {
    EXPECT_FALSE(LoadParkingFields(third).several);
    EXPECT_TRUE(Edit(third, [](ParkingFields& entered) { entered.heading = "10"; }));
    EXPECT_EQ(+Spot(third).heading, 10);
    EXPECT_EQ(+Spot(first).heading, 90);
}

TEST_F(SeveralSpots, TheNextSpotFollowsInListOrderAndTheLastWraps) {
    build::Node();
    EXPECT_EQ(NextSpot(first), second);
    EXPECT_EQ(NextSpot(third), first);
    map::ResizeView(800, 600);
    model::SetPosition(third, build::At({ 70, 80 }));
    GoToSpot(third);
    EXPECT_FALSE(model::IsSelected(first));
    EXPECT_TRUE(model::IsSelected(third));
    EXPECT_EQ(map::view.centre.lat, model::PositionOf(third).lat);
    map::view = {};
}

TEST_F(ParkingDialog, TheOnlySpotIsItsOwnNext) {
    SceneryObject* spot = Gate();
    EXPECT_EQ(NextSpot(spot), spot);
}

}  // namespace
