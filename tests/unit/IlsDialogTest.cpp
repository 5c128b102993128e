#include "dialogs/IlsDialog.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

#include "dialogs/Choices.h"
#include "dialogs/ListRows.h"
#include "dialogs/NewIls.h"
#include "dialogs/Subject.h"
#include "fakes/DialogFixture.h"
#include "model/DeleteRules.h"

namespace {

using namespace dialogs;

class IlsDialog : public DialogFixture {
protected:
    void SetUp() override {
        DialogFixture::SetUp();
        airport = build::Airport("KSEA");
        As<model::AirportRecord>(airport).magneticVariation = 340;
        runway = build::Runway(36, 1);
        Runway().altitude = 130000;
        Runway().length = 3000;
        seed = 0;
    }
    model::RunwayRecord& Runway() { return As<model::RunwayPayload>(runway).body; }
    model::RunwayPayload& Parts() { return As<model::RunwayPayload>(runway); }
    static model::IlsPayload& Ils(SceneryObject* ils) { return As<model::IlsPayload>(ils); }

    SceneryObject* Create(int end) {
        return CreateIls({ runway, end }, [this] { return seed++; });
    }
    static model::Local At(uint32_t longitude, uint32_t latitude) {
        return model::LatLonToLocal(build::kMiddle, model::BglToLatLon({ latitude, longitude }));
    }
    template <class Change>
    bool Edit(SceneryObject* ils, Change change) {
        return OkAfter<LoadIlsFields, StoreIlsFields>(ils, change);
    }
    SceneryObject *airport = nullptr, *runway = nullptr;
    uint32_t seed = 0;
};

class NewIls : public IlsDialog {};

TEST_F(NewIls, EveryFieldIsFilled) {
    SceneryObject* made = Create(kBaseEnd);
    ASSERT_EQ(made->payloadSize, 238u);
    const model::IlsPayload& ils = Ils(made);
    EXPECT_EQ(ils.body.type, 4);
    EXPECT_EQ(ils.body.flags, 0x3D);
    EXPECT_EQ(+ils.body.altitude, 130000);
    EXPECT_EQ(+ils.body.frequency, 108100000u);
    uint32_t range;
    std::memcpy(&range, made->payload + 18, 4);
    EXPECT_EQ(range, 0x47436100u);
    EXPECT_EQ(+ils.body.magneticVariation, 340);
    EXPECT_EQ(+ils.body.ident, 0x02209182u);
    EXPECT_EQ(+ils.body.region, model::PackIdent("KSEA") << 11);
    EXPECT_EQ(ils.localizer.runwayNumber, 36);
    EXPECT_EQ(ils.localizer.runwayDesignator, 1);
    EXPECT_EQ(+ils.localizer.heading, 0);
    EXPECT_STREQ(ils.name, "ILS/DME 36L");
    EXPECT_EQ(+ils.glideSlope.altitude, 130000);
    EXPECT_EQ(+ils.glideSlope.pitch, 3);
    EXPECT_EQ(+ils.glideSlope.range, 18520);
    EXPECT_EQ(+ils.dme.longitude, +ils.glideSlope.longitude);
    EXPECT_EQ(+ils.dme.range, 50017);
    EXPECT_EQ(+Runway().primaryIls, model::PackIdent("IABC"));
    EXPECT_EQ(+Runway().secondaryIls, 0u);
}

TEST_F(NewIls, CreationIsOneActionWithTheRunwaysIdent) {
    const auto before = Bytes(runway);
    Create(kReciprocalEnd);
    EXPECT_EQ(+Runway().secondaryIls, model::PackIdent("IABC"));
    EXPECT_EQ(Actions(), 1);
    model::Undo();
    EXPECT_EQ(Bytes(runway), before);
    EXPECT_EQ(model::CountKind(model::kIls), 0u);
}

TEST_F(NewIls, TheLocalizerStandsBeyondTheFarBlastPad) {
    Parts().secondaryBlastPad.length = 60;
    Parts().primaryBlastPad.length = 999;
    const model::IlsPayload& base = Ils(Create(kBaseEnd));
    EXPECT_NEAR(At(base.body.longitude, base.body.latitude).north, 1500 + 60 + 304.8, 0.5);
    Parts().primaryBlastPad.length = 30;
    const model::IlsPayload& reciprocal = Ils(Create(kReciprocalEnd));
    EXPECT_NEAR(At(reciprocal.body.longitude, reciprocal.body.latitude).north, -(1500 + 30 + 304.8), 0.5);
    EXPECT_EQ(+reciprocal.localizer.heading, 180);
    EXPECT_STREQ(reciprocal.name, "ILS/DME 18R");
}

TEST_F(NewIls, HeadingsWrapBelow360) {
    Runway().heading = 270;
    EXPECT_EQ(+Ils(Create(kReciprocalEnd)).localizer.heading, 90);
    Runway().heading = std::nextafter(180.0F, 0.0F);  // the other way is 360 to a float
    EXPECT_EQ(+Ils(Create(kReciprocalEnd)).localizer.heading, 0);
}

TEST_F(NewIls, ABlastPadOfNonsensicalLengthCountsAsNone) {
    for (const float length : { std::nanf(""), std::numeric_limits<float>::infinity() }) {
        Parts().secondaryBlastPad.length = length;
        const model::IlsPayload& ils = Ils(Create(kBaseEnd));
        EXPECT_NEAR(At(ils.body.longitude, ils.body.latitude).north, 1500 + 304.8, 0.5);
        EXPECT_NEAR(+ils.localizer.width, 3.64, 0.01);
    }
}

TEST_F(NewIls, WithoutAChosenRunwayThereIsNone) {
    const auto ends = EndsForNewIls();
    ASSERT_EQ(ends.size(), 2u);
    EXPECT_EQ(ChosenEnd(ends, 1, &bad), &ends[1]);
    for (const int choice : { -1, 2 }) {
        fake.messages.clear();
        EXPECT_EQ(ChosenEnd(ends, choice, &bad), nullptr);
        EXPECT_EQ(LastMessage(), "ERROR: You must select a runway");
        EXPECT_EQ(bad.field, Field::Runway);
    }
}

TEST_F(NewIls, TheGlideSlopeStands300MetresInAnd120MetresToTheRight) {
    Parts().primaryThreshold.length = 200;
    const model::IlsPayload& ils = Ils(Create(kBaseEnd));
    const model::Local place = At(ils.glideSlope.longitude, ils.glideSlope.latitude);
    EXPECT_NEAR(place.north, -1500 + 200 + 300, 0.5);
    EXPECT_NEAR(place.east, 120, 0.5);
    const model::IlsPayload& other = Ils(Create(kReciprocalEnd));
    EXPECT_NEAR(At(other.glideSlope.longitude, other.glideSlope.latitude).east, -120, 0.5);
}

TEST_F(NewIls, TheGlideSlopeKeepsAwayFromTheLargestApron) {
    build::Apron({ build::Encoded({ -300, 0 }), build::Encoded({ -300, 50 }), build::Encoded({ -350, 50 }) });
    build::Apron({ build::Encoded({ 300, 0 }), build::Encoded({ 300, 500 }), build::Encoded({ 900, 500 }) });
    const model::IlsPayload& base = Ils(Create(kBaseEnd));
    EXPECT_NEAR(At(base.glideSlope.longitude, base.glideSlope.latitude).east, -120, 0.5);
    const model::IlsPayload& other = Ils(Create(kReciprocalEnd));
    EXPECT_NEAR(At(other.glideSlope.longitude, other.glideSlope.latitude).east, -120, 0.5);
}

TEST_F(NewIls, TheCourseIs210MetresWideAtTheThresholdWithin3To6Degrees) {
    const auto width = [&](float length) {
        Runway().length = length;
        return +Ils(Create(kBaseEnd)).localizer.width;
    };
    EXPECT_NEAR(width(3000), 3.64, 0.01);
    EXPECT_NEAR(width(2000), 5.22, 0.01);
    EXPECT_EQ(width(1500), 6);
    EXPECT_EQ(width(6000), 3);
}

TEST_F(NewIls, FrequenciesAreOddTenthsAndNotTakenTwice) {
    uint32_t next = 0;
    const auto counting = [&] { return next++; };
    EXPECT_EQ(DrawIlsFrequency(counting), 108100000u);
    next = 38;
    EXPECT_EQ(DrawIlsFrequency(counting), 111900000u);
    Ils(build::Ils("IAAA")).body.frequency = 108100000;
    Ils(build::Ils("IBBB")).body.frequency = 108300000;
    next = 0;
    EXPECT_EQ(DrawIlsFrequency(counting), 108500000u);
}

TEST_F(NewIls, AFrequencyTakenAfter80MoreDrawsIsKept) {
    Ils(build::Ils("IAAA")).body.frequency = 108100000;
    int draws = 0;
    EXPECT_EQ(DrawIlsFrequency([&] { return ++draws, 0u; }), 108100000u);
    EXPECT_EQ(draws, 81);
}

TEST_F(NewIls, SeededNumbersDiffer) {
    const auto random = SeededRandom();
    EXPECT_NE(random(), random());
}

TEST_F(NewIls, OnlyEndsWithoutAnIlsAreOffered) {
    EXPECT_EQ(EndsForNewIls().size(), 2u);
    Create(kBaseEnd);
    const auto ends = EndsForNewIls();
    ASSERT_EQ(ends.size(), 1u);
    EXPECT_EQ(EndName(ends[0].runway, ends[0].end), "18R");
    EXPECT_TRUE(fake.messages.empty());
    Create(kReciprocalEnd);
    EXPECT_TRUE(EndsForNewIls().empty());
    EXPECT_EQ(LastMessage(), "Every runway already has an ILS, you cannot create any more");
    model::ClearModel();
    EXPECT_TRUE(EndsForNewIls().empty());
    EXPECT_EQ(LastMessage(), "You must create a runway before you can create an ILS");
}

TEST_F(NewIls, AStockIlsThatNamesTheEndCountsWithoutTheRunwaysIdent) {
    SceneryObject* stock = build::Ils("ISNQ");
    stock->flags |= model::kStock;
    Ils(stock).localizer.runwayNumber = 36;
    Ils(stock).localizer.runwayDesignator = 1;
    EXPECT_EQ(EndsForNewIls().size(), 2u);
    Ils(stock).body.region = model::PackIdent("KSEA") << 11;
    EXPECT_EQ(EndsForNewIls().size(), 1u);
}

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
    SceneryObject* stock = build::Ils("ISNQ");
    Ils(stock).body.frequency = 110300000;
    stock->flags |= model::kStock;
    EXPECT_TRUE(Edit(stock, [](IlsFields& entered) { entered.width = "4"; }));
    ASSERT_NE(stock->related, nullptr);
    EXPECT_EQ(+Ils(stock).localizer.width, 0);
    EXPECT_EQ(+Ils(stock->related).localizer.width, 4);
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

TEST_F(IlsDialog, AnIlsForARunwayThatOnlyItsDialogKnowsIsUndoneWithTheRunway) {
    const auto before = build::List();
    SceneryObject* made = MakeProvisional(model::kRunway, sizeof(model::RunwayPayload));
    std::copy_n(runway->payload, runway->payloadSize, made->payload);
    SceneryObject* ils = CreateIls({ made, kBaseEnd }, [this] { return seed++; });
    EXPECT_FALSE(IsProvisional(made));
    EXPECT_EQ(+As<model::RunwayPayload>(made).body.primaryIls, model::PackIdent("IABC"));
    EXPECT_EQ(Actions(), 1);
    const auto after = build::List();
    EXPECT_EQ(after.size(), before.size() + 2);
    for (int round = 0; round < 2; ++round) {
        model::Undo();
        EXPECT_EQ(build::List(), before);
        EXPECT_EQ(build::ListFromTail(), before);
        model::Redo();
        EXPECT_EQ(build::List(), after);
        EXPECT_EQ(build::ListFromTail(), after);
    }
    EXPECT_TRUE(std::find(after.begin(), after.end(), ils) != after.end());
}

}  // namespace
