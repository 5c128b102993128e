// The editors of NDBs, VORs and marker beacons; those of ILSs have a file of their own.
#include <cstring>

#include "dialogs/MarkerDialog.h"
#include "dialogs/NavaidFields.h"
#include "dialogs/NdbDialog.h"
#include "dialogs/Subject.h"
#include "dialogs/VorDialog.h"
#include "fakes/DialogFixture.h"

namespace {

using namespace dialogs;

class NavFrequency : public DialogFixture {
protected:
    bool Reads(FrequencyKind kind, const char* text, uint32_t expected) {
        uint32_t hertz = 1;
        return ReadNavFrequency(kind, "shown", text, false, &hertz, &bad) && hertz == expected;
    }
    bool Refuses(FrequencyKind kind, const char* text, const char* message) {
        uint32_t hertz = 1;
        return !ReadNavFrequency(kind, "shown", text, false, &hertz, &bad) && hertz == 1 &&
               bad.field == Field::Frequency && LastMessage() == message;
    }
};

TEST_F(NavFrequency, VorsHaveTheEvenTenthsAndLocalizersTheOddOnesBelow112) {
    EXPECT_TRUE(Reads(FrequencyKind::Vor, "108.2", 108200000));
    EXPECT_TRUE(Reads(FrequencyKind::Vor, "111.85", 111850000));
    EXPECT_TRUE(Reads(FrequencyKind::Vor, "113.9", 113900000));
    EXPECT_TRUE(Reads(FrequencyKind::Vor, "117.95", 117950000));
    EXPECT_TRUE(Refuses(FrequencyKind::Vor, "110.3",
                        "ERROR: The tenth of a VOR frequency below 112 MHz must be even, for example 110.2"));
    EXPECT_TRUE(Reads(FrequencyKind::Localizer, "110.3", 110300000));
    EXPECT_TRUE(Reads(FrequencyKind::Localizer, "111.95", 111950000));
    EXPECT_TRUE(Refuses(FrequencyKind::Localizer, "110.2",
                        "ERROR: The tenth of a localizer frequency must be odd, for example 110.3"));
    EXPECT_TRUE(Refuses(FrequencyKind::Localizer, "113.1",
                        "ERROR: The localizer frequency must be a number from 108.1 to 111.95 MHz"));
    EXPECT_TRUE(Reads(FrequencyKind::Dme, "110.3", 110300000));
    EXPECT_TRUE(Reads(FrequencyKind::Dme, "110.2", 110200000));
}

TEST_F(NavFrequency, BandsAndStepsAreChecked) {
    EXPECT_TRUE(Refuses(FrequencyKind::Vor, "118", "ERROR: The frequency must be a number from 108 to 117.95 MHz"));
    EXPECT_TRUE(Refuses(FrequencyKind::Vor, "113.93", "ERROR: The frequency must be a multiple of 0.05 MHz"));
    EXPECT_TRUE(Reads(FrequencyKind::Ndb, "190", 190000));
    EXPECT_TRUE(Reads(FrequencyKind::Ndb, "352.5", 352500));
    EXPECT_TRUE(Refuses(FrequencyKind::Ndb, "352.3", "ERROR: The frequency must be a multiple of 0.5 kHz"));
    EXPECT_TRUE(Refuses(FrequencyKind::Ndb, "2000", "ERROR: The frequency must be a number from 190 to 1750 kHz"));
    EXPECT_TRUE(Refuses(FrequencyKind::Ndb, "0", "ERROR: You must enter a frequency, for example 350.0"));
    EXPECT_TRUE(Refuses(FrequencyKind::Ndb, "low", "ERROR: You must enter a frequency, for example 350.0"));
    EXPECT_TRUE(Refuses(FrequencyKind::Vor, "", "ERROR: You must enter a frequency, for example 113.5"));
    EXPECT_TRUE(Refuses(FrequencyKind::Localizer, " ", "ERROR: You must enter a frequency, for example 110.3"));
}

TEST_F(NavFrequency, AnOldFrequencyOutsideTheRulesStaysUntilItIsChanged) {
    uint32_t hertz = 110333333;
    EXPECT_TRUE(ReadNavFrequency(FrequencyKind::Vor, "110.33", "110.33", false, &hertz, &bad));
    EXPECT_EQ(hertz, 110333333u);
    EXPECT_FALSE(ReadNavFrequency(FrequencyKind::Vor, "110.33", "110.33", true, &hertz, &bad));
}

TEST_F(NavFrequency, DmeChannelsArePairedWithFrequencies) {
    EXPECT_EQ(DmeChannel(108000000), "17X");
    EXPECT_EQ(DmeChannel(108050000), "17Y");
    EXPECT_EQ(DmeChannel(110300000), "40X");
    EXPECT_EQ(DmeChannel(112250000), "59Y");
    EXPECT_EQ(DmeChannel(112300000), "70X");
    EXPECT_EQ(DmeChannel(117950000), "126Y");
    EXPECT_EQ(DmeChannel(118000000), "");
    EXPECT_EQ(DmeChannel(110333333), "");
    EXPECT_EQ(DmeChannelOf("116.80"), "115X");
    EXPECT_EQ(DmeChannelOf("no"), "");
}

class NdbDialog : public DialogFixture {
protected:
    void SetUp() override {
        DialogFixture::SetUp();
        ndb = build::Ndb();
        Ndb() = { 2,
                  350000,
                  Ndb().longitude,
                  Ndb().latitude,
                  100000,
                  92608.795F,
                  340,
                  model::PackIdent("BF") << 5 | 4,
                  0xABCD,
                  "Boeing",
                  {} };
    }
    model::NdbPayload& Ndb() { return As<model::NdbPayload>(ndb); }

    template <class Change>
    bool Edit(Change change) {
        const NdbFields shown = LoadNdbFields(ndb);
        NdbFields entered = shown;
        change(entered);
        return StoreNdbFields(shown, entered, ndb, &bad);
    }
    SceneryObject* ndb = nullptr;
};

TEST_F(NdbDialog, EverythingIsShown) {
    NdbFields fields = LoadNdbFields(ndb);
    EXPECT_EQ(fields.ident, "BF");
    EXPECT_EQ(fields.name, "Boeing");
    EXPECT_EQ(fields.frequency, "350.0");
    EXPECT_STREQ(kNdbTypes[static_cast<size_t>(fields.type)], "H");
    EXPECT_EQ(fields.range, "50.0");
    EXPECT_EQ(fields.variation, "20.0");
    EXPECT_EQ(fields.elevation, "328");
    app::settings.metric = true;
    EXPECT_EQ(LoadNdbFields(ndb).range, "92.6");
}

TEST_F(NdbDialog, OkWithoutAChangeRecordsNothing) {
    Ndb().type = 9;
    Ndb().frequency = 350123;
    Ndb().ident = 4;
    const auto before = Bytes(ndb);
    EXPECT_TRUE(Edit([](NdbFields&) {}));
    EXPECT_EQ(Bytes(ndb), before);
    EXPECT_EQ(Actions(), 0);
}

TEST_F(NdbDialog, EachFieldIsWrittenForItself) {
    EXPECT_TRUE(Edit([](NdbFields& entered) { entered.ident = "sea"; }));
    EXPECT_EQ(+Ndb().ident, model::PackIdent("SEA") << 5 | 4);
    EXPECT_TRUE(Edit([](NdbFields& entered) { entered.name = "Seattle"; }));
    EXPECT_STREQ(Ndb().name, "Seattle");
    EXPECT_TRUE(Edit([](NdbFields& entered) { entered.frequency = "224.5"; }));
    EXPECT_EQ(+Ndb().frequency, 224500u);
    EXPECT_TRUE(Edit([](NdbFields& entered) { entered.type = 0; }));
    EXPECT_EQ(+Ndb().type, 0);
    EXPECT_TRUE(Edit([](NdbFields& entered) { entered.range = "10"; }));
    EXPECT_FLOAT_EQ(+Ndb().range, 18521.759F);
    EXPECT_TRUE(Edit([](NdbFields& entered) { entered.variation = "-3"; }));
    EXPECT_EQ(+Ndb().magneticVariation, 3);
    EXPECT_TRUE(Edit([](NdbFields& entered) { entered.elevation = "0"; }));
    EXPECT_EQ(+Ndb().altitude, 0);
    EXPECT_EQ(+Ndb().region, 0xABCDu);
    EXPECT_EQ(Actions(), 7);
}

TEST_F(NdbDialog, NonsenseIsRefused) {
    EXPECT_FALSE(Edit([](NdbFields& entered) { entered.range = "0"; }));
    EXPECT_EQ(LastMessage(), "ERROR: The range must be a number from 0.1 to 539.9 nm");
    EXPECT_EQ(bad.field, Field::Range);
    EXPECT_FALSE(Edit([](NdbFields& entered) { entered.ident = ""; }));
    EXPECT_EQ(bad.field, Field::Ident);
    SetPoint(ndb, kPlaceholder);
    EXPECT_FALSE(Edit([](NdbFields&) {}));
    EXPECT_EQ(LastMessage(),
              "ERROR: You must enter a latitude and longitude for the NDB.\n"
              "You may click on the main window to set the latitude and longitude");
    EXPECT_EQ(Actions(), 0);
}

TEST_F(NdbDialog, AStockNdbIsReplacedAndCancelLeavesIt) {
    ndb->flags |= model::kStock;
    MoveToClick(ndb, build::At({ 500, 0 }));
    CancelDialog();
    EXPECT_EQ(ndb->related, nullptr);
    EXPECT_TRUE(Edit([](NdbFields& entered) { entered.frequency = "224.5"; }));
    ASSERT_NE(ndb->related, nullptr);
    EXPECT_EQ(+Ndb().frequency, 350000u);
    EXPECT_EQ(+As<model::NdbPayload>(ndb->related).frequency, 224500u);
}

TEST_F(NdbDialog, ANewNdbNeedsIdentifierFrequencyAndPlace) {
    As<model::AirportRecord>(build::Airport("KSEA")).magneticVariation = 340;
    SceneryObject* made = InsertNdb();
    const NdbFields shown = LoadNdbFields(made);
    EXPECT_EQ(shown.variation, "20.0");
    EXPECT_EQ(shown.range, "50.0");
    NdbFields entered = shown;
    EXPECT_FALSE(StoreNdbFields(shown, entered, made, &bad));
    EXPECT_EQ(bad.field, Field::Ident);
    entered.ident = "XX";
    EXPECT_FALSE(StoreNdbFields(shown, entered, made, &bad));
    EXPECT_EQ(bad.field, Field::Frequency);
    entered.frequency = "300";
    EXPECT_FALSE(StoreNdbFields(shown, entered, made, &bad));
    EXPECT_EQ(bad.field, Field::Latitude);
    entered.position = MoveToClick(made, build::kMiddle);
    EXPECT_TRUE(StoreNdbFields(shown, entered, made, &bad));
    EXPECT_EQ(+As<model::NdbPayload>(made).ident, model::PackIdent("XX") << 5 | 3);
    EXPECT_EQ(Actions(), 1);
}

class VorDialog : public DialogFixture {
protected:
    void SetUp() override {
        DialogFixture::SetUp();
        vor = build::Vor();
        Vor().body.type = 3;
        Vor().body.flags = 0x21;
        Vor().body.frequency = 116800000;
        Vor().body.range = 240782.87F;
        Vor().body.altitude = 100000;
        Vor().body.ident = model::PackIdent("SEA") << 5 | 2;
        std::strcpy(Vor().name, "Seattle");
    }
    model::VorDmePayload& Vor() { return As<model::VorDmePayload>(vor); }

    template <class Change>
    bool Edit(Change change) {
        const VorFields shown = LoadVorFields(vor);
        VorFields entered = shown;
        change(entered);
        return StoreVorFields(shown, entered, vor, &bad);
    }
    SceneryObject* vor = nullptr;
};

TEST_F(VorDialog, EverythingIsShown) {
    const VorFields fields = LoadVorFields(vor);
    EXPECT_EQ(fields.ident, "SEA");
    EXPECT_EQ(fields.frequency, "116.80");
    EXPECT_STREQ(kVorClasses[static_cast<size_t>(fields.vorClass)], "High");
    EXPECT_STREQ(kVorParts[static_cast<size_t>(fields.parts)], "VOR");
    EXPECT_EQ(fields.range, "130.0");
    Vor().body.flags = 0x31;
    EXPECT_EQ(VorPartsOf(vor), 1);
    Vor().body.flags = 0x10;
    EXPECT_EQ(VorPartsOf(vor), 2);
    Vor().body.flags = 0;
    EXPECT_EQ(VorPartsOf(vor), 0);
}

TEST_F(VorDialog, OkWithoutAChangeRecordsNothing) {
    Vor().body.type = 4;
    Vor().body.frequency = 110300000;
    Vor().dme.range = -1;
    const auto before = Bytes(vor);
    EXPECT_TRUE(Edit([](VorFields&) {}));
    EXPECT_EQ(Bytes(vor), before);
    EXPECT_EQ(Actions(), 0);
}

TEST_F(VorDialog, ChoosingADmeProposesTheRangeOfTheVor) {
    VorFields fields = LoadVorFields(vor);
    ASSERT_EQ(fields.dmeRange, "0.0");
    ChooseVorParts(1, &fields);
    EXPECT_EQ(fields.parts, 1);
    EXPECT_EQ(fields.dmeRange, "130.0");
    fields.dmeRange = "25";
    ChooseVorParts(0, &fields);
    ChooseVorParts(2, &fields);
    EXPECT_EQ(fields.dmeRange, "25") << "what the user typed stays";
    EXPECT_TRUE(HasVorPart(0) && HasVorPart(1) && !HasVorPart(2));
    EXPECT_TRUE(!HasDmePart(0) && HasDmePart(1) && HasDmePart(2));
}

TEST_F(VorDialog, ADmeThatIsAddedStandsWithTheVorAndReachesAsFar) {
    EXPECT_TRUE(Edit([](VorFields& entered) { entered.parts = 1; }));
    EXPECT_EQ(Vor().body.flags, 0x31);
    EXPECT_EQ(+Vor().dme.longitude, +Vor().body.longitude);
    EXPECT_EQ(+Vor().dme.altitude, 100000);
    EXPECT_EQ(+Vor().dme.range, +Vor().body.range);
    EXPECT_TRUE(Edit([](VorFields& entered) { entered.dmeRange = "25"; }));
    EXPECT_FLOAT_EQ(+Vor().dme.range, 46304.4F);
    EXPECT_TRUE(Edit([](VorFields& entered) { entered.parts = 0; }));
    EXPECT_EQ(Vor().body.flags, 0x21);
}

TEST_F(VorDialog, ADmeAloneMayHaveALocalizersFrequency) {
    EXPECT_TRUE(Edit([](VorFields& entered) {
        entered.parts = 2;
        entered.frequency = "110.30";
    }));
    EXPECT_EQ(Vor().body.flags, 0x30);
    EXPECT_FALSE(Edit([](VorFields& entered) { entered.parts = 1; }));
    EXPECT_EQ(bad.field, Field::Frequency);
    EXPECT_EQ(Vor().body.flags, 0x30);
}

TEST_F(VorDialog, ClassesAreStoredByTheirCodes) {
    const int codes[] = { 1, 2, 3, 5 };
    for (int i = 0; i < 4; ++i) {
        EXPECT_TRUE(Edit([&](VorFields& entered) { entered.vorClass = i; }));
        EXPECT_EQ(Vor().body.type, codes[i]);
    }
}

TEST_F(VorDialog, AMissingPositionIsRefused) {
    SetPoint(vor, kPlaceholder);
    EXPECT_FALSE(Edit([](VorFields&) {}));
    EXPECT_EQ(LastMessage(),
              "ERROR: You must enter a latitude and longitude for the VOR.\n"
              "You may click on the main window to set the latitude and longitude");
}

TEST_F(VorDialog, ANewVorHasADmeAndNeedsIdentifierFrequencyAndPlace) {
    SceneryObject* made = InsertVor();
    const VorFields shown = LoadVorFields(made);
    EXPECT_EQ(shown.parts, 1);
    EXPECT_EQ(shown.frequency, "  0.00");
    VorFields entered = shown;
    entered.ident = "ABC";
    EXPECT_FALSE(StoreVorFields(shown, entered, made, &bad));
    EXPECT_EQ(bad.field, Field::Frequency);
    entered.frequency = "114.3";
    entered.position = MoveToClick(made, build::kMiddle);
    EXPECT_TRUE(StoreVorFields(shown, entered, made, &bad));
    EXPECT_EQ(+As<model::VorDmePayload>(made).body.ident, model::PackIdent("ABC") << 5 | 2);
    model::Undo();
    EXPECT_EQ(model::CountKind(model::kVorDme), 1u);
}

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
        const MarkerFields shown = LoadMarkerFields(marker);
        MarkerFields entered = shown;
        change(entered);
        return StoreMarkerFields(shown, entered, marker, &bad);
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
