#include "dialogs/TowerDialog.h"

#include "dialogs/Subject.h"
#include "fakes/DialogFixture.h"

namespace {

using namespace dialogs;

class TowerDialog : public DialogFixture {
protected:
    bool Store(SceneryObject* tower, const TowerFields& entered) {
        return StoreTowerFields(LoadTowerFields(tower), entered, tower, &bad);
    }
};

TEST_F(TowerDialog, PositionAndElevationAreShownAndStored) {
    SceneryObject* tower = build::Tower();
    As<model::TowerViewpointRecord>(tower).altitude = 50000;
    TowerFields fields = LoadTowerFields(tower);
    EXPECT_EQ(fields.elevation, "164");
    EXPECT_TRUE(Store(tower, fields));
    EXPECT_EQ(Actions(), 0);
    fields.elevation = "200";
    EXPECT_TRUE(Store(tower, fields));
    EXPECT_EQ(+As<model::TowerViewpointRecord>(tower).altitude, 60960);
    fields.elevation = "tall";
    EXPECT_FALSE(Store(tower, fields));
    EXPECT_EQ(bad.field, Field::Elevation);
}

TEST_F(TowerDialog, ASecondTowerIsRefused) {
    As<model::TowerViewpointRecord>(build::Tower()).altitude = 50000;
    EXPECT_EQ(InsertTower(), nullptr);
    EXPECT_EQ(LastMessage(), "This airport already has a control tower viewpoint,\nyou can't add another.");
    EXPECT_EQ(model::CountKind(model::kTowerViewpoint), 1u);
}

TEST_F(TowerDialog, ATowerThatWasNeverPlacedIsEditedInstead) {
    SceneryObject* tower = build::Tower();
    SetPoint(tower, kPlaceholder);
    EXPECT_EQ(InsertTower(), tower);
    EXPECT_TRUE(fake.messages.empty());
    TowerFields fields = LoadTowerFields(tower);
    EXPECT_EQ(fields.position.latitude, "");
    EXPECT_FALSE(Store(tower, fields));
    EXPECT_EQ(LastMessage(),
              "ERROR: You must enter a latitude and longitude for the control tower viewpoint.\n"
              "You may click on the main window to set the latitude and longitude");
    CancelDialog();
    EXPECT_EQ(model::CountKind(model::kTowerViewpoint), 1u);
    fields.position = { "N47", "W122" };
    EXPECT_TRUE(Store(tower, fields));
    model::Undo();
    EXPECT_TRUE(IsPlaceholder(PointOf(tower)));
}

TEST_F(TowerDialog, CompiledFilesWithoutATowerHoldZerosWhichCountAsNone) {
    As<model::AirportRecord>(build::Airport("KSEA")).altitude = 131978;
    SceneryObject* tower = build::Tower();
    As<model::TowerViewpointRecord>(tower) = {};
    const auto before = Bytes(tower);
    EXPECT_EQ(InsertTower(), tower);
    const TowerFields shown = LoadTowerFields(tower);
    EXPECT_EQ(shown.position.latitude, "");
    EXPECT_EQ(shown.position.longitude, "");
    EXPECT_EQ(shown.elevation, "433");
    EXPECT_FALSE(Store(tower, shown));
    EXPECT_EQ(bad.field, Field::Latitude);
    EXPECT_EQ(Bytes(tower), before);
    TowerFields entered = shown;
    entered.position = MoveToClick(tower, build::kMiddle);
    EXPECT_TRUE(StoreTowerFields(shown, entered, tower, &bad));
    EXPECT_EQ(+As<model::TowerViewpointRecord>(tower).altitude, 131978) << "the offered elevation is stored exactly";
    EXPECT_EQ(LoadTowerFields(tower).position.latitude, "N47* 00.0000'");
    EXPECT_EQ(Actions(), 1);
    model::Undo();
    EXPECT_EQ(Bytes(tower), before);
}

// The map does not show it, so that no double click can open it.
TEST_F(TowerDialog, ATowerOfElevationZeroIsEditedInsteadWhereItStands) {
    SceneryObject* tower = build::Tower();
    EXPECT_EQ(InsertTower(), tower);
    EXPECT_TRUE(fake.messages.empty());
    TowerFields fields = LoadTowerFields(tower);
    EXPECT_EQ(fields.position.latitude, "N47* 00.0000'");
    EXPECT_EQ(fields.elevation, "0");
    EXPECT_TRUE(Store(tower, fields));
    EXPECT_EQ(Actions(), 0);
    fields.elevation = "50";
    EXPECT_TRUE(Store(tower, fields));
    EXPECT_EQ(InsertTower(), nullptr);
}

TEST_F(TowerDialog, ANewTowerStandsAtFieldElevationUnplaced) {
    As<model::AirportRecord>(build::Airport("KSEA")).altitude = 131978;
    SceneryObject* tower = InsertTower();
    EXPECT_EQ(LoadTowerFields(tower).elevation, "433");
    EXPECT_EQ(LoadTowerFields(tower).position.longitude, "");
    CancelDialog();
    EXPECT_EQ(model::CountKind(model::kTowerViewpoint), 0u);
}

}  // namespace
