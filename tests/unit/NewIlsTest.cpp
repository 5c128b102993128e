#include "dialogs/NewIls.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

#include "dialogs/Subject.h"
#include "fakes/IlsFixture.h"

namespace {

using namespace dialogs;

class NewIls : public IlsFixture {
protected:
    static std::string OfferedEnds() {
        std::string names;
        for (const RunwayEndRef& ref : EndsForNewIls()) names += EndName(ref.runway, ref.end) + " ";
        return names;
    }
};

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

TEST_F(NewIls, TheFrequencyOfAReplacedStockIlsIsFree) {
    SceneryObject *stock = Stock("ISNQ", 0, 0), *replacement = build::Ils("ISNQ");
    Ils(stock).body.frequency = 108100000;
    Ils(replacement).body.frequency = 108300000;
    uint32_t next = 0;
    const auto counting = [&] { return next++; };
    EXPECT_EQ(DrawIlsFrequency(counting), 108500000u);
    stock->related = replacement;
    replacement->related = stock;
    next = 0;
    EXPECT_EQ(DrawIlsFrequency(counting), 108100000u);
    next = 1;
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
    SceneryObject* stock = Stock("ISNQ", 36, 1);
    EXPECT_EQ(EndsForNewIls().size(), 1u);
    Ils(stock).body.region = model::PackIdent("KBFI") << 11;
    EXPECT_EQ(EndsForNewIls().size(), 2u);
}

TEST_F(NewIls, AStockIlsThatSomeEndNamesTakesNoOtherEndByItsBytes) {
    build::Runway(16);
    SceneryObject* stock = Stock("ISNQ", 16, 0);
    EXPECT_EQ(OfferedEnds(), "36L 18R 34 ") << "no end names it yet";
    Runway().secondaryIls = model::PackIdent("ISNQ");
    EXPECT_EQ(OfferedEnds(), "36L 16 34 ");
    EXPECT_TRUE(Edit(stock, [](IlsFields& entered) { entered.name = "Replacement"; }));
    EXPECT_EQ(OfferedEnds(), "36L 16 34 ");
}

TEST_F(NewIls, AnIlsForARunwayThatOnlyItsDialogKnowsIsUndoneWithTheRunway) {
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
