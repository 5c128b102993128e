#include "dialogs/StartDialog.h"

#include "dialogs/Subject.h"
#include "fakes/DialogFixture.h"

namespace {

using namespace dialogs;

class StartDialog : public DialogFixture {
protected:
    void SetUp() override {
        DialogFixture::SetUp();
        start = build::Placed<model::StartLocationRecord>(model::kStartLocation, {});
        Start().number = 16;
        Start().designatorAndType = 0x11;
        Start().heading = 164.25F;
        Start().altitude = 131978;
    }
    model::StartLocationRecord& Start() { return As<model::StartLocationRecord>(start); }

    template <class Change>
    bool Edit(Change change) {
        return OkAfter<LoadStartFields, StoreStartFields>(start, change);
    }
    SceneryObject* start = nullptr;
};

TEST_F(StartDialog, NamesAreThoseOfRunwayEndsAndHelipads) {
    EXPECT_EQ(StartName(start), "Rwy 16L");
    Start().number = 4, Start().designatorAndType = 0x10;
    EXPECT_EQ(StartName(start), "Rwy 4");
    Start().number = 39, Start().designatorAndType = 0x24;
    EXPECT_EQ(StartName(start), "Rwy NWW");
    Start().number = 2, Start().designatorAndType = 0x30;
    EXPECT_EQ(StartName(start), "Helipad 2");
}

TEST_F(StartDialog, EverythingIsShown) {
    const StartFields fields = LoadStartFields(start);
    EXPECT_EQ(fields.elevation, "433");
    EXPECT_EQ(fields.heading, "164.2");
    EXPECT_EQ(fields.number, 16);
    EXPECT_EQ(fields.suffix, 1);
    EXPECT_EQ(fields.type, 0);
    Start().designatorAndType = 0x2F;
    EXPECT_EQ(LoadStartFields(start).type, -1);
    EXPECT_EQ(LoadStartFields(start).suffix, -1);
}

TEST_F(StartDialog, OkWithoutAChangeRecordsNothing) {
    Start().designatorAndType = 0xEF;
    Start().number = 200;
    const auto before = Bytes(start);
    EXPECT_TRUE(Edit([](StartFields&) {}));
    EXPECT_EQ(Bytes(start), before);
    EXPECT_EQ(Actions(), 0);
}

TEST_F(StartDialog, EachFieldIsWrittenForItself) {
    EXPECT_TRUE(Edit([](StartFields& entered) { entered.heading = "90"; }));
    EXPECT_EQ(+Start().heading, 90);
    EXPECT_TRUE(Edit([](StartFields& entered) { entered.elevation = "100"; }));
    EXPECT_EQ(+Start().altitude, 30480);
    EXPECT_TRUE(Edit([](StartFields& entered) { entered.number = 37; }));
    EXPECT_EQ(Start().number, 37);
    EXPECT_TRUE(Edit([](StartFields& entered) { entered.suffix = 4; }));
    EXPECT_EQ(Start().designatorAndType, 0x14);
    EXPECT_TRUE(Edit([](StartFields& entered) { entered.type = 1; }));
    EXPECT_EQ(Start().designatorAndType, 0x34);
    EXPECT_TRUE(Edit([](StartFields& entered) { entered.position.latitude = "N47* 01.0000'"; }));
    EXPECT_EQ(Actions(), 6);
}

TEST_F(StartDialog, AStartOnWaterStaysOne) {
    Start().designatorAndType = 0x21;
    EXPECT_TRUE(Edit([](StartFields& entered) { entered.suffix = 2; }));
    EXPECT_EQ(Start().designatorAndType, 0x22);
}

TEST_F(StartDialog, AMissingPositionAndAWrongHeadingAreRefused) {
    EXPECT_FALSE(Edit([](StartFields& entered) { entered.heading = "361"; }));
    EXPECT_EQ(bad.field, Field::Heading);
    SetPoint(start, kPlaceholder);
    EXPECT_FALSE(Edit([](StartFields&) {}));
    EXPECT_EQ(LastMessage(),
              "ERROR: You must enter a latitude and longitude for the start location.\n"
              "You may click on the main window to set the latitude and longitude");
    EXPECT_EQ(bad.field, Field::Latitude);
}

TEST_F(StartDialog, ANewStartIsForTheFirstRunwayEndThatLacksOne) {
    build::Airport("KSEA");
    SceneryObject* runway = build::Runway(16, 1);
    As<model::RunwayPayload>(runway).body.heading = 350;
    SceneryObject* made = InsertStart();
    EXPECT_EQ(StartName(made), "Rwy 34R");
    EXPECT_EQ(+As<model::StartLocationRecord>(made).heading, 170);
    CancelDialog();
    model::UnlinkObject(start);
    model::FreeObject(start);
    EXPECT_EQ(StartName(InsertStart()), "Rwy 16L");
    CancelDialog();
    EXPECT_EQ(model::CountKind(model::kStartLocation), 0u);
    start = nullptr;
}

TEST_F(StartDialog, ANewStartMustBePlaced) {
    SceneryObject* made = InsertStart();
    const StartFields shown = LoadStartFields(made);
    StartFields entered = shown;
    EXPECT_FALSE(StoreStartFields(shown, entered, made, &bad));
    entered.position = MoveToClick(made, build::kMiddle);
    EXPECT_TRUE(StoreStartFields(shown, entered, made, &bad));
    EXPECT_EQ(Actions(), 1);
}

}  // namespace
