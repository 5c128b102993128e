#include "dialogs/RunwayFollow.h"

#include <cstring>

#include "dialogs/Subject.h"
#include "fakes/RunwayFixture.h"

namespace {

using namespace dialogs;
using platform::Answer;

class RunwayWithIls : public RunwayFixture {
protected:
    void SetUp() override {
        RunwayFixture::SetUp();
        Body().heading = 0;
        Body().primaryNumber = 4, Body().secondaryNumber = 22;
        Body().primaryIls = model::PackIdent("IABC");
        ils = build::Ils("IABC", { 0, 1800 });
        Ils().localizer = { 4, 1, 0, 4 };
        Ils().body.flags = model::kHasGlideSlope | model::kHasDme;
        const model::EncodedPoint beside = build::Encoded({ 120, -1200 });
        Ils().glideSlope.longitude = beside.longitude, Ils().glideSlope.latitude = beside.latitude;
        Ils().dme.longitude = beside.longitude, Ils().dme.latitude = beside.latitude;
        std::strcpy(Ils().name, "ILS/DME 4L");
        start = build::Placed<model::StartLocationRecord>(model::kStartLocation, { 0, -1450 });
        Start() = { 4, 0x11, Start().longitude, Start().latitude, 0, 0 };
        other = build::Placed<model::StartLocationRecord>(model::kStartLocation, { 0, 1450 });
        As<model::StartLocationRecord>(other).number = 5;
        As<model::StartLocationRecord>(other).designatorAndType = 0x11;
    }
    model::IlsPayload& Ils() { return As<model::IlsPayload>(ils); }
    model::StartLocationRecord& Start() { return As<model::StartLocationRecord>(start); }
    static void ExpectAt(model::EncodedPoint point, double east, double north) {
        const model::Local at =
            model::LatLonToLocal(build::kMiddle, model::BglToLatLon({ point.latitude, point.longitude }));
        EXPECT_NEAR(at.east, east, 0.5);
        EXPECT_NEAR(at.north, north, 0.5);
    }
    model::EncodedPoint GlideSlope() { return { Ils().glideSlope.longitude, Ils().glideSlope.latitude }; }

    SceneryObject *ils = nullptr, *start = nullptr, *other = nullptr;
};

TEST_F(RunwayWithIls, ADesignatorIsRenamedWhereverItIsUsedInOneAction) {
    SceneryObject* link = build::Link(build::Node(), build::Node(), model::kRunwayLink, runway);
    const auto beforeOther = Bytes(other);
    EXPECT_TRUE(Edit([](RunwayFields& entered) {
        entered.ends[0].number = 5;
        entered.ends[0].suffix = 2;
    }));
    EXPECT_EQ(Start().number, 5);
    EXPECT_EQ(Start().designatorAndType, 0x12);
    EXPECT_EQ(Ils().localizer.runwayNumber, 5);
    EXPECT_EQ(Ils().localizer.runwayDesignator, 2);
    EXPECT_STREQ(Ils().name, "ILS/DME 5R");
    EXPECT_EQ(+As<model::TaxiLinkPayload>(link).designator, runway);
    EXPECT_EQ(Bytes(other), beforeOther);
    EXPECT_EQ(Actions(), 1);
    EXPECT_TRUE(fake.messages.empty());
    model::Undo();
    EXPECT_STREQ(Ils().name, "ILS/DME 4L");
    EXPECT_EQ(Start().number, 4);
    EXPECT_EQ(Body().primaryNumber, 4);
}

TEST_F(RunwayWithIls, BothEndsMayExchangeTheirDesignators) {
    As<model::StartLocationRecord>(other).number = 22;
    As<model::StartLocationRecord>(other).designatorAndType = 0x12;
    EXPECT_TRUE(Edit([](RunwayFields& entered) {
        std::swap(entered.ends[0].number, entered.ends[1].number);
        std::swap(entered.ends[0].suffix, entered.ends[1].suffix);
    }));
    EXPECT_EQ(Start().number, 22);
    EXPECT_EQ(As<model::StartLocationRecord>(other).number, 4);
    EXPECT_EQ(As<model::StartLocationRecord>(other).designatorAndType, 0x11);
}

TEST_F(RunwayWithIls, AStockIlsThatIsRenamedGetsAReplacement) {
    ils->flags |= model::kStock;
    EXPECT_TRUE(Edit([](RunwayFields& entered) { entered.ends[0].number = 5; }));
    ASSERT_NE(ils->related, nullptr);
    EXPECT_STREQ(As<model::IlsPayload>(ils->related).name, "ILS/DME 5L");
    model::Undo();
    EXPECT_EQ(ils->related, nullptr);
}

TEST_F(RunwayWithIls, OnlyTheLastWordOfAnIlsNameIsRenamed) {
    EXPECT_EQ(RenamedIls("ILS 4L", "4L", "5L"), "ILS 5L");
    EXPECT_EQ(RenamedIls("ILS 04L", "4L", "5L"), "ILS 05L");
    EXPECT_EQ(RenamedIls("ILS 09", "9", "10"), "ILS 10");
    EXPECT_EQ(RenamedIls("ILS 9", "9", "N"), "ILS N");
    EXPECT_EQ(RenamedIls("9", "9", "10"), "10");
    EXPECT_EQ(RenamedIls("ILS 9 DME", "9", "10"), "ILS 9 DME");
    EXPECT_EQ(RenamedIls("ILS 19", "9", "10"), "ILS 19");
    EXPECT_EQ(RenamedIls("", "9", "10"), "");
}

TEST_F(RunwayWithIls, AMovedRunwayAsksAndYesMovesWhatBelongsToIt) {
    fake.answers = { Answer::Yes };
    model::EncodedPoint centre = build::Encoded({ 1000, 500 });
    EXPECT_TRUE(Edit([&](RunwayFields& entered) { entered.position = ShowPoint(centre); }));
    EXPECT_EQ(LastMessage(),
              "You have changed the position, length or heading of the runway.\n\n"
              "Do you want to move its ILS and start locations with it?");
    ExpectAt(PointOf(ils), 1000, 2300);
    ExpectAt(GlideSlope(), 1120, -700);
    ExpectAt(PointOf(start), 1000, -950);
    ExpectAt(PointOf(other), 0, 1450);
    EXPECT_EQ(Actions(), 1);
    model::Undo();
    ExpectAt(PointOf(ils), 0, 1800);
}

TEST_F(RunwayWithIls, NoLeavesThemAndCancelKeepsTheDialogOpen) {
    fake.answers = { Answer::Cancel, Answer::No };
    const auto turn = [](RunwayFields& entered) { entered.heading = "90"; };
    const auto before = Bytes(ils);
    EXPECT_FALSE(Edit(turn));
    EXPECT_EQ(bad.field, Field::None);
    EXPECT_EQ(+Body().heading, 0);
    EXPECT_TRUE(Edit(turn));
    EXPECT_EQ(+Body().heading, 90);
    EXPECT_EQ(Bytes(ils), before);
}

TEST_F(RunwayWithIls, ATurnTurnsThemAboutTheCentre) {
    fake.answers = { Answer::Yes };
    EXPECT_TRUE(Edit([](RunwayFields& entered) { entered.heading = "90"; }));
    ExpectAt(PointOf(ils), 1800, 0);
    ExpectAt(GlideSlope(), -1200, -120);
    ExpectAt(PointOf(start), -1450, 0);
    EXPECT_EQ(+Ils().localizer.heading, 90);
    EXPECT_EQ(+Start().heading, 90);
}

TEST_F(RunwayWithIls, ALongerRunwayKeepsTheirDistancesFromItsEnds) {
    app::settings.metric = true;
    fake.answers = { Answer::Yes };
    EXPECT_TRUE(Edit([](RunwayFields& entered) { entered.length = "3400"; }));
    ExpectAt(PointOf(ils), 0, 2000);
    ExpectAt(GlideSlope(), 120, -1400);
    ExpectAt(PointOf(start), 0, -1650);
}

TEST_F(RunwayWithIls, AClickOnTheMapIsNoMoveUntilOk) {
    fake.answers = { Answer::Yes };
    const RunwayFields shown = LoadRunwayFields(runway);
    RunwayFields entered = shown;
    entered.position = MoveToClick(runway, build::At({ 0, 1000 }));
    EXPECT_TRUE(StoreRunwayFields(shown, entered, runway, &bad));
    ExpectAt(PointOf(runway), 0, 1000);
    ExpectAt(PointOf(ils), 0, 2800);
    model::Undo();
    ExpectAt(PointOf(runway), 0, 0);
    ExpectAt(PointOf(ils), 0, 1800);
}

TEST_F(RunwayWithIls, WhatBelongsToANamesakeStaysAsItIs) {
    Ils().body.region = model::RegionWordWithAirport(0, As<model::AirportRecord>(airport).ident);
    SceneryObject* namesake = build::Runway(4, 1, { 3000, 0 });
    SceneryObject* own = build::Placed<model::StartLocationRecord>(model::kStartLocation, { 3000, -950 });
    As<model::StartLocationRecord>(own).number = 4;
    As<model::StartLocationRecord>(own).designatorAndType = 0x11;
    const auto beforeIls = Bytes(ils), beforeStart = Bytes(start);
    fake.answers = { Answer::Yes };
    const RunwayFields shown = LoadRunwayFields(namesake);
    RunwayFields entered = shown;
    entered.ends[0].number = 5;
    entered.position = ShowPoint(build::Encoded({ 3000, 500 }));
    EXPECT_TRUE(StoreRunwayFields(shown, entered, namesake, &bad));
    EXPECT_EQ(LastMessage(),
              "You have changed the position, length or heading of the runway.\n\n"
              "Do you want to move its start locations with it?");
    EXPECT_EQ(Bytes(ils), beforeIls);
    EXPECT_EQ(Bytes(start), beforeStart);
    EXPECT_EQ(As<model::StartLocationRecord>(own).number, 5);
    ExpectAt(PointOf(own), 3000, -450);
}

TEST_F(RunwayWithIls, AnIlsThatNoEndNamesBelongsToTheNearerNamesake) {
    Body().primaryIls = 0;
    Ils().body.region = model::RegionWordWithAirport(0, As<model::AirportRecord>(airport).ident);
    SceneryObject* namesake = build::Runway(4, 1, { 3000, 0 });
    EXPECT_EQ(BelongingsOf(runway, 0).ils.size(), 1u);
    EXPECT_TRUE(BelongingsOf(namesake, 0).ils.empty());
}

TEST_F(RunwayWithIls, ARunwayShownThirtyMetresAsideIsNotItsOwnNamesake) {
    As<model::StartLocationRecord>(other).number = 22;
    As<model::StartLocationRecord>(other).designatorAndType = 0x12;
    fake.answers = { Answer::Yes };
    const RunwayFields shown = LoadRunwayFields(runway);
    RunwayFields entered = shown;
    entered.ends[0].number = 5;
    entered.position = MoveToClick(runway, build::At({ 0, 30 }));
    EXPECT_TRUE(StoreRunwayFields(shown, entered, runway, &bad));
    EXPECT_EQ(Start().number, 5);
    ExpectAt(PointOf(start), 0, -1420);
    ExpectAt(PointOf(other), 0, 1480);
}

TEST_F(RunwayWithIls, IlsOfOneIdentAtNamesakesFollowTheirOwnRunways) {
    SceneryObject *namesake = build::Runway(4, 1, { 3000, 0 }), *own = build::Ils("IABC", { 3000, 1800 });
    As<model::RunwayPayload>(namesake).body.primaryIls = model::PackIdent("IABC");
    As<model::IlsPayload>(own).localizer = { 4, 1, 0, 4 };
    EXPECT_EQ(BelongingsOf(runway, 0).ils, std::vector{ ils });
    EXPECT_EQ(BelongingsOf(namesake, 0).ils, std::vector{ own });
    const auto beforeIls = Bytes(ils);
    fake.answers = { Answer::Yes };
    const RunwayFields shown = LoadRunwayFields(namesake);
    RunwayFields entered = shown;
    entered.ends[0].suffix = 2;
    entered.position = ShowPoint(build::Encoded({ 3000, 500 }));
    EXPECT_TRUE(StoreRunwayFields(shown, entered, namesake, &bad));
    EXPECT_EQ(Bytes(ils), beforeIls);
    EXPECT_EQ(As<model::IlsPayload>(own).localizer.runwayDesignator, 2);
    ExpectAt(PointOf(own), 3000, 2300);
}

TEST_F(RunwayWithIls, EndsOfOneNameKeepTheirStartsApart) {
    Body().secondaryNumber = Body().primaryNumber, Body().secondaryDesignator = Body().primaryDesignator;
    SceneryObject* far = build::Placed<model::StartLocationRecord>(model::kStartLocation, { 0, 1450 });
    As<model::StartLocationRecord>(far).number = 4;
    As<model::StartLocationRecord>(far).designatorAndType = 0x11;
    EXPECT_TRUE(Edit([](RunwayFields& entered) { entered.ends[1].number = 22; }));
    EXPECT_EQ(Start().number, 4);
    EXPECT_EQ(As<model::StartLocationRecord>(far).number, 22);
}

TEST_F(RunwayWithIls, APartThatWasNeverPlacedIsNotMoved) {
    Ils().dme.longitude = Ils().dme.latitude = 0;
    fake.answers = { Answer::Yes };
    EXPECT_TRUE(Edit([](RunwayFields& entered) { entered.heading = "90"; }));
    EXPECT_EQ(+Ils().dme.longitude, 0u);
    EXPECT_EQ(+Ils().dme.latitude, 0u);
    ExpectAt(GlideSlope(), -1200, -120);
}

TEST_F(RunwayWithIls, ARunwayWithNothingOfItsOwnAsksNothing) {
    SceneryObject* alone = build::Runway(7);
    const RunwayFields shown = LoadRunwayFields(alone);
    RunwayFields entered = shown;
    entered.heading = "70";
    EXPECT_TRUE(StoreRunwayFields(shown, entered, alone, &bad));
    EXPECT_TRUE(fake.messages.empty());
}

}  // namespace
