#include "dialogs/IlsDialog.h"

#include "dialogs/ListRows.h"
#include "dialogs/Subject.h"
#include "fakes/IlsFixture.h"
#include "model/DeleteRules.h"

namespace {

using namespace dialogs;

class IlsDialog : public IlsFixture {};

TEST_F(IlsDialog, EverythingIsShown) {
    SceneryObject* ils = Create(kBaseEnd);
    const IlsFields fields = LoadIlsFields(ils);
    EXPECT_EQ(fields.ident, "IABC");
    EXPECT_EQ(fields.name, "ILS/DME 36L");
    EXPECT_EQ(fields.frequency, "108.10");
    EXPECT_EQ(fields.number, 36);
    EXPECT_EQ(fields.suffix, 1);
    EXPECT_TRUE(fields.backCourse && fields.glideSlope && fields.dme);
    EXPECT_EQ(fields.range, "27.0");
    EXPECT_EQ(fields.variation, "20.0");
    EXPECT_EQ(fields.heading, "0.0");
    EXPECT_EQ(fields.width, "3.64");
    EXPECT_EQ(fields.slopePitch, "3.00");
    EXPECT_EQ(fields.slopeRange, "10.0");
    EXPECT_EQ(fields.dmeRange, "27.0");
    EXPECT_EQ(fields.dmePosition.latitude, fields.slopePosition.latitude);
}

TEST_F(IlsDialog, OkWithoutAChangeRecordsNothing) {
    SceneryObject* ils = build::Ils("ISEA");
    Ils(ils).body.frequency = 110333333;
    Ils(ils).body.flags = 0x1A;
    Ils(ils).localizer = { 99, 77, -5, 200 };
    const auto before = Bytes(ils);
    EXPECT_TRUE(Edit(ils, [](IlsFields&) {}));
    EXPECT_EQ(Bytes(ils), before);
    EXPECT_EQ(Actions(), 0);
}

TEST_F(IlsDialog, EachFieldIsWrittenForItself) {
    SceneryObject* ils = Create(kBaseEnd);
    const auto edit = [&](auto change) { EXPECT_TRUE(Edit(ils, change)); };
    edit([](IlsFields& entered) { entered.frequency = "110.3"; });
    EXPECT_EQ(+Ils(ils).body.frequency, 110300000u);
    edit([](IlsFields& entered) { entered.name = "ILS 36L"; });
    EXPECT_STREQ(Ils(ils).name, "ILS 36L");
    edit([](IlsFields& entered) { entered.heading = "1.5"; });
    EXPECT_EQ(+Ils(ils).localizer.heading, 1.5F);
    edit([](IlsFields& entered) { entered.width = "5"; });
    EXPECT_EQ(+Ils(ils).localizer.width, 5);
    edit([](IlsFields& entered) { entered.elevation = "100"; });
    EXPECT_EQ(+Ils(ils).body.altitude, 30480);
    edit([](IlsFields& entered) { entered.slopePitch = "3.5"; });
    EXPECT_EQ(+Ils(ils).glideSlope.pitch, 3.5F);
    edit([](IlsFields& entered) { entered.slopeElevation = "200"; });
    EXPECT_EQ(+Ils(ils).glideSlope.altitude, 60960);
    edit([](IlsFields& entered) { entered.dmeElevation = "300"; });
    EXPECT_EQ(+Ils(ils).dme.altitude, 91440);
    edit([](IlsFields& entered) { entered.dmeRange = "20"; });
    EXPECT_FLOAT_EQ(+Ils(ils).dme.range, 37043.518F);
    edit([](IlsFields& entered) { entered.variation = "0"; });
    EXPECT_EQ(+Ils(ils).body.magneticVariation, 0);
    edit([](IlsFields& entered) { entered.backCourse = false; });
    EXPECT_EQ(Ils(ils).body.flags, 0x39);
    const uint32_t slope = Ils(ils).glideSlope.latitude;
    edit([](IlsFields& entered) { entered.dmePosition.latitude = "N47* 02.0000'"; });
    EXPECT_NE(+Ils(ils).dme.latitude, slope);
    EXPECT_EQ(+Ils(ils).glideSlope.latitude, slope);
}

TEST_F(IlsDialog, ARefusedFieldNamesItsPart) {
    SceneryObject* ils = Create(kBaseEnd);
    const int actions = Actions();
    EXPECT_FALSE(Edit(ils, [](IlsFields& entered) { entered.slopePitch = "0"; }));
    EXPECT_EQ(LastMessage(), "ERROR: The glide slope angle must be a number from 0.1 to 20 degrees");
    EXPECT_EQ(bad.field, Field::Pitch);
    EXPECT_EQ(bad.part, kGlideSlopeFields);
    EXPECT_FALSE(Edit(ils, [](IlsFields& entered) { entered.dmePosition.longitude = "E180"; }));
    EXPECT_EQ(bad.field, Field::Longitude);
    EXPECT_EQ(bad.part, kDmeFields);
    EXPECT_FALSE(Edit(ils, [](IlsFields& entered) { entered.heading = "400"; }));
    EXPECT_EQ(bad.part, kLocalizerFields);
    EXPECT_EQ(Actions(), actions);
}

TEST_F(IlsDialog, PartsAreSwitchedByTheirFlagsAndKeepTheirBytes) {
    SceneryObject* ils = Create(kBaseEnd);
    const auto slope = Bytes(ils);
    EXPECT_TRUE(Edit(ils, [](IlsFields& entered) {
        entered.glideSlope = false;
        entered.slopePitch = "rubbish of a part that is off";
        entered.slopePosition.latitude = "N1";
    }));
    EXPECT_EQ(Ils(ils).body.flags, 0x35);
    EXPECT_TRUE(Edit(ils, [](IlsFields& entered) {
        entered.glideSlope = true;
        entered.dme = false;
        entered.dmeRange = "rubbish";
        entered.dmeElevation = "1";
    }));
    EXPECT_EQ(Ils(ils).body.flags, 0x2D);
    EXPECT_TRUE(Edit(ils, [](IlsFields& entered) { entered.dme = true; }));
    EXPECT_EQ(Bytes(ils), slope);
}

TEST_F(IlsDialog, APartThatNeverHadAPlaceGetsItsUsualOne) {
    SceneryObject* ils = build::Ils("ISNQ");
    Runway().primaryIls = model::PackIdent("ISNQ");
    IlsFields fields = LoadIlsFields(ils);
    EXPECT_EQ(fields.slopePosition.latitude, "");
    EXPECT_TRUE(Edit(ils, [&](IlsFields& entered) {
        SwitchGlideSlope(ils, true, &entered);
        SwitchDme(ils, true, &entered);
        EXPECT_EQ(entered.slopePitch, "3.00");
        EXPECT_NE(entered.slopePosition.latitude, "");
        Ils(ils).body.frequency = 110300000;
        entered.frequency = "110.30";
    }));
    EXPECT_NEAR(At(Ils(ils).glideSlope.longitude, Ils(ils).glideSlope.latitude).north, -1200, 1);
    EXPECT_EQ(Ils(ils).body.flags & 0x18, 0x18);
    EXPECT_EQ(+Ils(ils).dme.range, 50017);
    EXPECT_EQ(+Ils(ils).dme.longitude, +Ils(ils).glideSlope.longitude);
    EXPECT_EQ(+Ils(ils).dme.latitude, +Ils(ils).glideSlope.latitude);
}

TEST_F(IlsDialog, TheUsualGlideSlopeStandsAtTheNearerOfTwoNamesakes) {
    build::Runway(36, 1, { 5000, 0 });
    SceneryObject* ils = build::Ils("ISNQ", { 5000, 1300 });
    Ils(ils).localizer = { 36, 1, 0, 4 };
    Ils(ils).body.region = model::PackIdent("KSEA") << 11;
    Ils(ils).body.frequency = 110300000;
    EXPECT_TRUE(Edit(ils, [&](IlsFields& entered) { SwitchGlideSlope(ils, true, &entered); }));
    EXPECT_NEAR(At(Ils(ils).glideSlope.longitude, Ils(ils).glideSlope.latitude).east, 5120, 1);
}

TEST_F(IlsDialog, ADmeStandsAtTheGlideSlopeThatWasClickedButAtTheUsualElevation) {
    SceneryObject* ils = build::Ils("ISNQ");
    Ils(ils).body.frequency = 110300000;
    Runway().primaryIls = model::PackIdent("ISNQ");
    EXPECT_TRUE(Edit(ils, [&](IlsFields& entered) {
        SwitchGlideSlope(ils, true, &entered);
        entered.slopePosition = MoveToClick(ils, IlsPositionOffset(kGlideSlopeFields), build::At({ 200, -900 }));
        SwitchDme(ils, true, &entered);
        EXPECT_EQ(entered.dmeElevation, entered.slopeElevation);
        EXPECT_EQ(entered.dmePosition.latitude, entered.slopePosition.latitude);
    }));
    EXPECT_EQ(+Ils(ils).dme.altitude, 130000);
    EXPECT_NEAR(At(Ils(ils).dme.longitude, Ils(ils).dme.latitude).north, -900, 1);
}

TEST_F(IlsDialog, ADmeWithoutAGlideSlopeStandsAtTheLocalizer) {
    SceneryObject* ils = build::IlsWithParts("ISNQ", { 0, 1800 }, { 120, -1200 }, {});
    Ils(ils).dme = {};
    Ils(ils).body.flags = model::kHasGlideSlope;
    Runway().primaryIls = model::PackIdent("ISNQ");
    EXPECT_TRUE(Edit(ils, [&](IlsFields& entered) {
        SwitchGlideSlope(ils, false, &entered);
        SwitchDme(ils, true, &entered);
        Ils(ils).body.frequency = 110300000;
        entered.frequency = "110.30";
    }));
    EXPECT_EQ(+Ils(ils).dme.longitude, +Ils(ils).body.longitude);
    EXPECT_EQ(+Ils(ils).dme.latitude, +Ils(ils).body.latitude);
}

TEST_F(IlsDialog, TheRunwayFollowsTheIdentifierInTheSameAction) {
    SceneryObject* ils = Create(kBaseEnd);
    const int actions = Actions();
    EXPECT_TRUE(Edit(ils, [](IlsFields& entered) { entered.ident = "isnq"; }));
    EXPECT_EQ(+Ils(ils).body.ident, model::PackIdent("ISNQ") << 5 | 2);
    EXPECT_EQ(+Runway().primaryIls, model::PackIdent("ISNQ"));
    EXPECT_EQ(Actions(), actions + 1);
    model::Undo();
    EXPECT_EQ(+Runway().primaryIls, model::PackIdent("IABC"));
}

TEST_F(IlsDialog, TheNameGoesToTheRunwayEndThatIsChosen) {
    SceneryObject* ils = Create(kBaseEnd);
    EXPECT_TRUE(Edit(ils, [](IlsFields& entered) {
        entered.number = 18;
        entered.suffix = 2;
    }));
    EXPECT_EQ(+Runway().primaryIls, 0u);
    EXPECT_EQ(+Runway().secondaryIls, model::PackIdent("IABC"));
    EXPECT_EQ(Ils(ils).localizer.runwayNumber, 18);
}

TEST_F(IlsDialog, OfEndsWithOneNameTheNearestIsChosen) {
    SceneryObject* namesake = build::Runway(36, 1, { 5000, 0 });
    As<model::RunwayPayload>(namesake).body.secondaryIls = model::PackIdent("IFAR");
    build::Ils("IFAR", { 5000, -1500 });
    SceneryObject* ils = Create(kBaseEnd);
    EXPECT_TRUE(Edit(ils, [](IlsFields& entered) {
        entered.number = 18;
        entered.suffix = 2;
    })) << "the other 18R has an ILS, but this one stands at the nearer";
    EXPECT_EQ(+Runway().secondaryIls, model::PackIdent("IABC"));
    EXPECT_EQ(+As<model::RunwayPayload>(namesake).body.primaryIls, 0u);
    EXPECT_EQ(+As<model::RunwayPayload>(namesake).body.secondaryIls, model::PackIdent("IFAR"));
}

TEST_F(IlsDialog, ARunwayEndThatAnotherIlsServesIsRefused) {
    SceneryObject *base = Create(kBaseEnd), *other = Create(kReciprocalEnd);
    const auto before = Bytes(other);
    const int actions = Actions();
    const auto take = [](IlsFields& entered) { entered.number = 36, entered.suffix = 1; };
    EXPECT_FALSE(Edit(other, take));
    EXPECT_EQ(LastMessage(), "ERROR: Runway 36L already has an ILS");
    EXPECT_EQ(bad.field, Field::Runway);
    EXPECT_EQ(Bytes(other), before);
    EXPECT_EQ(Actions(), actions);
    EXPECT_TRUE(DeleteEntry(base));
    EXPECT_TRUE(Edit(other, take));
    EXPECT_EQ(+Runway().primaryIls, model::PackIdent("IABC"));
    EXPECT_EQ(+Runway().secondaryIls, 0u);
}

TEST_F(IlsDialog, TwoNewIlsOfOneIdentAreToldApartByTheirRunwayEnds) {
    SceneryObject *base = Create(kBaseEnd), *other = Create(kReciprocalEnd);
    EXPECT_EQ(RowText(base).substr(0, 4), "36L\t");
    EXPECT_EQ(RowText(other).substr(0, 4), "18R\t");
    EXPECT_TRUE(Edit(other, [](IlsFields& entered) { entered.ident = "INEW"; }));
    EXPECT_EQ(+Runway().primaryIls, model::PackIdent("IABC"));
    EXPECT_EQ(+Runway().secondaryIls, model::PackIdent("INEW"));
    model::Undo();
    EXPECT_TRUE(DeleteEntry(other));
    EXPECT_EQ(+Runway().primaryIls, model::PackIdent("IABC"));
    EXPECT_EQ(+Runway().secondaryIls, 0u);
    model::Undo();
    EXPECT_EQ(+Runway().secondaryIls, model::PackIdent("IABC"));
}

TEST_F(IlsDialog, AStockIlsIsReplaced) {
    SceneryObject* stock = Stock("ISNQ", 0, 0);
    EXPECT_TRUE(Edit(stock, [](IlsFields& entered) { entered.width = "4"; }));
    ASSERT_NE(stock->related, nullptr);
    EXPECT_EQ(+Ils(stock).localizer.width, 0);
    EXPECT_EQ(+Ils(stock->related).localizer.width, 4);
}

TEST_F(IlsDialog, AStockIlsShowsTheEndThatNamesItAndKeepsItsBytes) {
    SceneryObject* stock = Stock("ISNQ", 16, 0);
    EXPECT_EQ(LoadIlsFields(stock).number, 16) << "no end names it";
    Runway().secondaryIls = model::PackIdent("ISNQ");
    EXPECT_EQ(LoadIlsFields(stock).number, 18);
    EXPECT_EQ(LoadIlsFields(stock).suffix, 2);
    EXPECT_TRUE(Edit(stock, [](IlsFields& entered) { entered.width = "4"; }));
    ASSERT_NE(stock->related, nullptr);
    EXPECT_EQ(Ils(stock->related).localizer.runwayNumber, 16);
    EXPECT_EQ(Ils(stock->related).localizer.runwayDesignator, 0);
    EXPECT_EQ(LoadIlsFields(stock->related).number, 18);
}

TEST_F(IlsDialog, AnotherEndOfAStockIlsIsStoredWithItsSuffix) {
    SceneryObject *other = build::Runway(9, 2), *stock = Stock("ISNQ", 16, 0);
    Runway().secondaryIls = model::PackIdent("ISNQ");
    EXPECT_TRUE(Edit(stock, [](IlsFields& entered) { entered.number = 9; }));
    ASSERT_NE(stock->related, nullptr);
    EXPECT_EQ(Ils(stock->related).localizer.runwayNumber, 9);
    EXPECT_EQ(Ils(stock->related).localizer.runwayDesignator, 2);
    EXPECT_EQ(+As<model::RunwayPayload>(other).body.primaryIls, model::PackIdent("ISNQ"));
    EXPECT_EQ(+Runway().secondaryIls, 0u);
    EXPECT_EQ(LoadIlsFields(stock->related).number, 9);
}

TEST_F(IlsDialog, TheMagneticCourseIsTheHeadingLessTheEastVariation) {
    EXPECT_EQ(MagneticCourseText("164.0", "20.0"), "144.0");
    EXPECT_EQ(MagneticCourseText("10", "20"), "350.0");
    EXPECT_EQ(MagneticCourseText("350", "-10"), "0.0");
    EXPECT_EQ(MagneticCourseText("x", "20"), "");
}

TEST_F(IlsDialog, ClicksGoToThePartThatHasTheFocus) {
    EXPECT_EQ(IlsPositionOffset(kLocalizerFields), 2u);
    EXPECT_EQ(IlsPositionOffset(kGlideSlopeFields), 46u);
    EXPECT_EQ(IlsPositionOffset(kDmeFields), 68u);
}

TEST_F(IlsDialog, AClickGoesToTheLocalizerWhileThePartInFocusIsOff) {
    IlsFields fields;
    for (const int part : { kLocalizerFields, kGlideSlopeFields, kDmeFields })
        EXPECT_EQ(PartForClick(part, fields), kLocalizerFields);
    fields.glideSlope = true;
    EXPECT_EQ(PartForClick(kGlideSlopeFields, fields), kGlideSlopeFields);
    EXPECT_EQ(PartForClick(kDmeFields, fields), kLocalizerFields);
    fields.dme = true;
    EXPECT_EQ(PartForClick(kDmeFields, fields), kDmeFields);
    EXPECT_EQ(PartForClick(kLocalizerFields, fields), kLocalizerFields);
}

}  // namespace
