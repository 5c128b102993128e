#include "dialogs/MarkerDialog.h"

#include <cstring>

#include "dialogs/Subject.h"
#include "fakes/DialogFixture.h"

namespace {

using namespace dialogs;

class MarkerDialog : public DialogFixture {
protected:
    void SetUp() override {
        DialogFixture::SetUp();
        marker = build::Placed<model::MarkerBeaconPayload>(model::kMarkerBeacon, {});
        Marker().heading = 64;
        Marker().type = 2;
        Marker().ident = model::PackIdent("OM") << 5 | 7;
    }
    model::MarkerBeaconPayload& Marker() { return As<model::MarkerBeaconPayload>(marker); }

    template <class Change>
    bool Edit(Change change) {
        return OkAfter<LoadMarkerFields, StoreMarkerFields>(marker, change);
    }
    SceneryObject* marker = nullptr;
};

TEST_F(MarkerDialog, EverythingIsShownAndStored) {
    const MarkerFields fields = LoadMarkerFields(marker);
    EXPECT_EQ(fields.ident, "OM");
    EXPECT_STREQ(kMarkerTypes[static_cast<size_t>(fields.type)], "Outer");
    EXPECT_EQ(fields.heading, "90.0");
    EXPECT_TRUE(Edit([](MarkerFields& entered) { entered.type = 3; }));
    EXPECT_EQ(Marker().type, 3);
    EXPECT_TRUE(Edit([](MarkerFields& entered) { entered.ident = ""; }));
    EXPECT_EQ(+Marker().ident, 7u);
    EXPECT_TRUE(Edit([](MarkerFields& entered) { entered.elevation = "100"; }));
    EXPECT_EQ(+Marker().altitude, 30480);
}

TEST_F(MarkerDialog, OkWithoutAChangeRecordsNothing) {
    Marker().type = 9;
    const auto before = Bytes(marker);
    EXPECT_TRUE(Edit([](MarkerFields&) {}));
    EXPECT_EQ(Bytes(marker), before);
    EXPECT_EQ(Actions(), 0);
}

TEST_F(MarkerDialog, HeadingsAreRoundedTo256OfATurn) {
    EXPECT_TRUE(Edit([](MarkerFields& entered) { entered.heading = "180"; }));
    EXPECT_EQ(Marker().heading, 128);
    EXPECT_TRUE(Edit([](MarkerFields& entered) { entered.heading = "1"; }));
    EXPECT_EQ(Marker().heading, 1);
    EXPECT_TRUE(Edit([](MarkerFields& entered) { entered.heading = "360"; }));
    EXPECT_EQ(Marker().heading, 0);
    EXPECT_FALSE(Edit([](MarkerFields& entered) { entered.heading = "-1"; }));
    EXPECT_EQ(bad.field, Field::Heading);
}

TEST_F(MarkerDialog, AMissingPositionIsRefused) {
    SetPoint(marker, kPlaceholder);
    EXPECT_FALSE(Edit([](MarkerFields&) {}));
    EXPECT_EQ(LastMessage(),
              "ERROR: You must enter a latitude and longitude for the marker.\n"
              "You may click on the main window to set the latitude and longitude");
}

class NewMarkers : public DialogFixture {
protected:
    void SetUp() override {
        DialogFixture::SetUp();
        runway = build::Runway(36);
        As<model::RunwayPayload>(runway).body.altitude = 50000;
        As<model::RunwayPayload>(runway).primaryThreshold.length = 100;
    }
    static double NorthOf(const SceneryObject* object) {
        return model::LatLonToLocal(build::kMiddle, model::PositionOf(object)).north;
    }
    SceneryObject* runway = nullptr;
};

TEST_F(NewMarkers, AllThreeAreOfferedAtTheirUsualDistances) {
    NewMarkerFields fields;
    EXPECT_TRUE(LoadNewMarkerFields(&fields));
    EXPECT_EQ(MarkerRunwayChoices(), (std::vector<std::string>{ "Rwy 36", "Rwy 18" }));
    app::settings.metric = true;
    EXPECT_TRUE(LoadNewMarkerFields(&fields));
    EXPECT_EQ(fields.distance[0], "300.0");
    EXPECT_EQ(fields.distance[1], "1050.0");
    EXPECT_EQ(fields.distance[2], "7200.0");
}

TEST_F(NewMarkers, TheyStandBeforeTheLandingThresholdInOneAction) {
    NewMarkerFields shown;
    LoadNewMarkerFields(&shown);
    EXPECT_TRUE(CreateMarkers(shown, shown, &bad));
    const auto list = build::List();
    ASSERT_EQ(list.size(), 4u);
    EXPECT_NEAR(NorthOf(list[1]), -900 - 7200, 1);
    EXPECT_NEAR(NorthOf(list[2]), -900 - 1050, 1);
    EXPECT_NEAR(NorthOf(list[3]), -900 - 300, 1);
    EXPECT_EQ(LoadMarkerFields(list[1]).ident, "OM");
    EXPECT_EQ(LoadMarkerFields(list[1]).type, 2);
    EXPECT_EQ(LoadMarkerFields(list[3]).ident, "IM");
    EXPECT_EQ(+As<model::MarkerBeaconPayload>(list[1]).altitude, 50000);
    EXPECT_EQ(Actions(), 1);
    model::Undo();
    EXPECT_EQ(build::List().size(), 1u);
}

TEST_F(NewMarkers, TheReciprocalEndIsApproachedFromTheOtherSide) {
    NewMarkerFields shown;
    LoadNewMarkerFields(&shown);
    NewMarkerFields entered = shown;
    entered.runwayEnd = 1;
    entered.wanted = { false, true, false };
    entered.distance[1] = "1000";
    EXPECT_TRUE(CreateMarkers(shown, entered, &bad));
    const auto list = build::List();
    ASSERT_EQ(list.size(), 2u);
    EXPECT_NEAR(NorthOf(list[1]), 1000 + 304.8, 1);
    EXPECT_EQ(MarkerHeading(list[1]), 180);
}

TEST_F(NewMarkers, AtLeastOneKindIsNeeded) {
    NewMarkerFields shown;
    LoadNewMarkerFields(&shown);
    NewMarkerFields entered = shown;
    entered.wanted = {};
    EXPECT_FALSE(CreateMarkers(shown, entered, &bad));
    EXPECT_EQ(LastMessage(), "You must select at least one of the marker types\n");
    entered.wanted[2] = true;
    entered.distance[2] = "far";
    EXPECT_FALSE(CreateMarkers(shown, entered, &bad));
    EXPECT_EQ(bad.field, Field::Distance);
    EXPECT_EQ(bad.part, 2);
    EXPECT_EQ(Actions(), 0);
}

TEST_F(NewMarkers, WithoutARunwayThereAreNone) {
    model::ClearModel();
    NewMarkerFields fields;
    EXPECT_FALSE(LoadNewMarkerFields(&fields));
    EXPECT_EQ(LastMessage(), "You must create a runway before you can create marker beacons");
}

}  // namespace
