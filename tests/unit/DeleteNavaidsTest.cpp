// DeleteNavaidsTest.cpp - what becomes of navaids: those of a runway that goes, stock ones, and replacements.
#include "model/DeleteRules.h"

#include <gtest/gtest.h>

#include "fakes/DeleteFixture.h"
#include "model/EditHistory.h"
#include "model/IlsEnds.h"

namespace {

using namespace deleting;

class DeleteNavaids : public DeleteFixture {};

TEST_F(DeleteNavaids, ARunwayWithoutIlsGoesUnasked) {
    Selected(build::Runway(16));
    build::Ils("IABC");
    EXPECT_EQ(DeleteSelected(), 1);
    EXPECT_EQ(CountKind(kIls), 1u);
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(DeleteNavaids, ARunwayWithIlsIsAskedAboutAndTakesThemAlong) {
    SceneryObject* runway = Selected(build::Runway(16));
    build::Ils("ISNQ");
    build::Ils("ISEA");
    SceneryObject* foreign = build::Ils("IXYZ");
    BodyOf(runway).primaryIls = PackIdent("ISNQ");
    BodyOf(runway).secondaryIls = PackIdent("ISEA");
    const Objects before = build::List();
    EXPECT_EQ(DeleteSelected(), 3);
    ExpectMessage(0, kRunwayQuestion, Buttons::OkCancel);
    EXPECT_EQ(fake.messages.size(), 1u);  // once for both ends
    ExpectLeft({ airport, foreign }, before);
}

TEST_F(DeleteNavaids, CancelKeepsTheRunwayItsIlsAndItsLinksNames) {
    SceneryObject *a = build::Node(), *b = build::Node();
    SceneryObject* runway = Selected(build::Runway(16));
    build::Ils("ISNQ");
    BodyOf(runway).primaryIls = PackIdent("ISNQ");
    SceneryObject* link = build::Link(a, b, kRunwayLink, runway);
    SceneryObject* last = Selected(build::Spot());
    fake.answers = { Answer::Cancel };
    EXPECT_EQ(DeleteSelected(), 1);  // the walk goes on
    EXPECT_TRUE(IsListed(runway));
    EXPECT_FALSE(IsListed(last));
    EXPECT_EQ(CountKind(kIls), 1u);
    EXPECT_EQ(NameOf(link), runway);
    EXPECT_EQ(fake.messages.size(), 1u);
}

TEST_F(DeleteNavaids, AStockIlsIsNoReasonToAskAndStays) {
    SceneryObject* runway = Selected(build::Runway(16));
    SceneryObject* stock = Stock(build::Ils("ISNQ"));
    BodyOf(runway).primaryIls = PackIdent("ISNQ");
    EXPECT_EQ(DeleteSelected(), 1);
    EXPECT_TRUE(fake.messages.empty());
    EXPECT_TRUE(IsListed(stock));
}

TEST_F(DeleteNavaids, ARunwayThatNamesNoIlsIsMatchedByLocalizerAndAirport) {
    SceneryObject* runway = Selected(build::Runway(16, 2));
    SceneryObject* primary = IlsByLocalizer(16, 2, "KSEA");
    SceneryObject* secondary = IlsByLocalizer(34, 1, "KSEA");
    SceneryObject* otherAirport = IlsByLocalizer(16, 2, "KBFI");
    SceneryObject* otherEnd = IlsByLocalizer(16, 1, "KSEA");
    SceneryObject* stock = Stock(IlsByLocalizer(16, 2, "KSEA"));
    EXPECT_TRUE(IlsServes(primary, runway, RunwayEnd::Primary));
    EXPECT_FALSE(IlsServes(primary, runway, RunwayEnd::Secondary));
    EXPECT_TRUE(IlsServes(secondary, runway, RunwayEnd::Secondary));
    EXPECT_EQ(DeleteSelected(), 3);
    EXPECT_EQ(build::List(), (Objects{ airport, otherAirport, otherEnd, stock }));
}

TEST_F(DeleteNavaids, AnAirportOfFiveCharactersIsMatchedByWhatARegionWordKeepsOfIt) {
    PayloadAs<AirportRecord>(airport).ident = PackIdent("ZZZZZ") << kIdentShift | 1;
    SceneryObject* runway = build::Runway(16, 2);
    EXPECT_TRUE(IlsServes(IlsByLocalizer(16, 2, "ZZZZZ"), runway, RunwayEnd::Primary));
    EXPECT_FALSE(IlsServes(IlsByLocalizer(16, 2, "ZZZZY"), runway, RunwayEnd::Primary));
}

TEST_F(DeleteNavaids, ARunwayThatNamesAnotherIlsIsNotMatchedByLocalizer) {
    SceneryObject* runway = build::Runway(16);
    BodyOf(runway).primaryIls = PackIdent("IOTH");
    SceneryObject* ils = IlsByLocalizer(16, 0, "KSEA");
    EXPECT_FALSE(IlsServes(ils, runway, RunwayEnd::Primary));
    BodyOf(runway).primaryIls = PackIdent("ISEA");
    EXPECT_TRUE(IlsServes(ils, runway, RunwayEnd::Primary));
    EXPECT_TRUE(IlsServes(Stock(ils), runway, RunwayEnd::Primary));  // by ident even a stock one does
}

// Two runways 16R of 2 km, 500 m apart, and the ILS of the first.
class NamesakesWithIls : public DeleteNavaids {
protected:
    void SetUp() override {
        DeleteNavaids::SetUp();
        namesake = build::Runway(16, 2, { 500, 0 });
        runway = build::Runway(16, 2);
        ils = IlsByLocalizer(16, 2, "KSEA");
        SetPosition(ils, build::At({ 0, 1300 }));
    }
    SceneryObject *runway = nullptr, *namesake = nullptr, *ils = nullptr;
};

TEST_F(NamesakesWithIls, TheIlsBelongsToTheNearerUnlessOnlyOneNamesIt) {
    EXPECT_TRUE(IlsServes(ils, runway, RunwayEnd::Primary));
    EXPECT_FALSE(IlsServes(ils, namesake, RunwayEnd::Primary));
    BodyOf(namesake).primaryIls = PackIdent("ISEA");
    EXPECT_TRUE(IlsServes(ils, namesake, RunwayEnd::Primary));
    EXPECT_FALSE(IlsServes(ils, runway, RunwayEnd::Primary));
    BodyOf(runway).primaryIls = PackIdent("ISEA");
    EXPECT_TRUE(IlsServes(ils, runway, RunwayEnd::Primary));
    EXPECT_FALSE(IlsServes(ils, namesake, RunwayEnd::Primary));
}

TEST_F(NamesakesWithIls, ARunwayGoesWithoutTheIlsOfItsNamesake) {
    for (const uint32_t named : { 0u, PackIdent("ISEA") }) {
        BodyOf(runway).primaryIls = BodyOf(namesake).primaryIls = named;
        Selected(namesake);
        EXPECT_EQ(DeleteSelected(), 1);
        EXPECT_TRUE(fake.messages.empty());
        EXPECT_TRUE(IsListed(ils));
        EXPECT_EQ(+BodyOf(runway).primaryIls, named);
        Undo();
    }
}

TEST_F(DeleteNavaids, AnIlsWithoutIdentBelongsToNoRunwayThatNamesNone) {
    SceneryObject* runway = build::Runway(16);
    SceneryObject* ils = build::Ils("");
    EXPECT_FALSE(IlsServes(ils, runway, RunwayEnd::Primary));
    UnlinkObject(airport);
    EXPECT_FALSE(IlsServes(IlsByLocalizer(16, 0, ""), runway, RunwayEnd::Primary));  // nor without an airport
    FreeObject(airport);
}

TEST_F(DeleteNavaids, AnIlsWithItsRunwayBothSelectedGoOnce) {
    SceneryObject* ils = Whole(build::Ils("ISNQ"));
    SceneryObject* runway = Selected(build::Runway(16));
    BodyOf(runway).primaryIls = PackIdent("ISNQ");
    const Objects before = build::List();
    EXPECT_EQ(DeleteSelected(), 3);      // the runway forgets the ILS before it goes itself
    EXPECT_TRUE(fake.messages.empty());  // the ILS went first
    ExpectLeft({ airport }, before);
    EXPECT_FALSE(IsListed(ils));
}

TEST_F(DeleteNavaids, TheIlsRightBehindItsRunwayDoesNotStopTheWalk) {
    SceneryObject* runway = Selected(build::Runway(16));
    Selected(build::Ils("ISNQ"));
    Selected(build::Node());
    BodyOf(runway).primaryIls = PackIdent("ISNQ");
    EXPECT_EQ(DeleteSelected(), 3);
    EXPECT_EQ(build::List(), (Objects{ airport }));
}

TEST_F(DeleteNavaids, NothingIsAskedTwiceWhenARunwayGoes) {
    Selected(build::Tower());
    Selected(Stock(build::Ndb()));
    SceneryObject* equipped = Selected(build::Runway(9));
    BodyOf(equipped).primaryIls = PackIdent("ISNQ");
    build::Ils("ISNQ");
    Selected(build::Runway(16));
    Selected(build::Runway(17));
    fake.answers = { Answer::Cancel, Answer::Ok, Answer::Cancel };
    EXPECT_EQ(DeleteSelected(), 2);
    ASSERT_EQ(fake.messages.size(), 3u);
    ExpectMessage(0, kTowerQuestion, Buttons::OkCancel);
    ExpectMessage(1, kStockNavaids, Buttons::Ok);
    ExpectMessage(2, kRunwayQuestion, Buttons::OkCancel);
}

TEST_F(DeleteNavaids, StockNavaidsAreRefusedAndTheWalkGoesOn) {
    SceneryObject *ndb = Selected(Stock(build::Ndb())), *vor = Selected(Stock(build::Vor()));
    SceneryObject* marker = Selected(Stock(build::Append(kMarkerBeacon, sizeof(MarkerBeaconPayload))));
    SceneryObject* node = Selected(build::Node());
    EXPECT_EQ(DeleteSelected(), 1);
    EXPECT_EQ(build::List(), (Objects{ airport, ndb, vor, marker }));
    ASSERT_EQ(fake.messages.size(), 3u);
    for (size_t i = 0; i < 3; ++i) ExpectMessage(i, kStockNavaids, Buttons::Ok);
    EXPECT_FALSE(IsListed(node));
}

TEST_F(DeleteNavaids, AStockIlsIsRefusedWithItsOwnText) {
    SceneryObject* ils = Whole(Stock(build::Ils("ISNQ")));
    EXPECT_EQ(DeleteSelected(), 0);
    EXPECT_TRUE(IsListed(ils));
    ASSERT_EQ(fake.messages.size(), 1u);
    ExpectMessage(0, kStockIls, Buttons::Ok);
}

TEST_F(DeleteNavaids, AReplacementGivesItsStockObjectBackFirst) {
    SceneryObject *stock = Stock(build::Ndb()), *replacement = Selected(build::Ndb());
    Tie(stock, replacement);
    const Objects before = build::List();
    EXPECT_EQ(DeleteSelected(), 2);
    const SceneryObject* last = state.undoHead;
    ASSERT_NE(last, nullptr);
    EXPECT_EQ(last, replacement) << "the replacement goes last";
    EXPECT_EQ(last->flags & kHistoryMask, uint32_t{ kOpDeleted } << kHistoryShift);
    const SceneryObject* first = last->historyNext;
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->flags & kHistoryMask, uint32_t{ kOpModified } << kHistoryShift);
    EXPECT_NE(first->flags & kGroupStart, 0u);
    EXPECT_EQ(first->related, replacement) << "the stock object as it was";
    EXPECT_EQ(first->historyNext, nullptr);
    EXPECT_EQ(stock->related, nullptr);
    EXPECT_FALSE(IsReplacedStock(stock));
    Undo();
    EXPECT_EQ(stock->related, replacement);
    EXPECT_EQ(replacement->related, stock);
    EXPECT_EQ(build::List(), before);
    Redo();
    EXPECT_EQ(stock->related, nullptr);
    EXPECT_EQ(build::List(), (Objects{ airport, stock }));
}

TEST_F(DeleteNavaids, ARunwaysReplacementIlsGivesItsStockIlsBack) {
    SceneryObject* runway = Selected(build::Runway(16));
    SceneryObject *stock = Stock(build::Ils("ISNQ")), *replacement = build::Ils("ISNQ");
    Tie(stock, replacement);
    BodyOf(runway).primaryIls = PackIdent("ISNQ");
    const Objects before = build::List();
    EXPECT_EQ(DeleteSelected(), 3);
    EXPECT_EQ(stock->related, nullptr);
    ExpectLeft({ airport, stock }, before);
}

TEST_F(DeleteNavaids, ARunwayForgetsADeletedIlsInTheSameAction) {
    build::Airport("KSEA");
    SceneryObject* runway = build::Runway(16);
    PayloadAs<RunwayPayload>(runway).body.primaryIls = PackIdent("ISEA");
    SceneryObject* ils = build::Ils("ISEA");
    ils->flags |= kSelected;
    EXPECT_EQ(DeleteSelected(), 2);
    EXPECT_EQ(+PayloadAs<RunwayPayload>(runway).body.primaryIls, 0u);
    Undo();
    EXPECT_EQ(+PayloadAs<RunwayPayload>(runway).body.primaryIls, PackIdent("ISEA"));
    EXPECT_EQ(build::List().back(), ils);
}

TEST_F(DeleteNavaids, ARunwayNamesTheStockIlsAgainWhenItsReplacementGoes) {
    SceneryObject* runway = build::Runway(16);
    PayloadAs<RunwayPayload>(runway).body.primaryIls = PackIdent("INEW");
    SceneryObject *stock = build::Ils("IOLD"), *replacement = build::Ils("INEW");
    stock->flags |= kStock;
    stock->related = replacement;
    replacement->related = stock;
    replacement->flags |= kSelected;
    DeleteSelected();
    EXPECT_EQ(+PayloadAs<RunwayPayload>(runway).body.primaryIls, PackIdent("IOLD"));
}

// A stock ILS of runway 16 of 2 km and its replacement, which the user has moved to the other end.
class MovedReplacement : public DeleteNavaids {
protected:
    void SetUp() override {
        DeleteNavaids::SetUp();
        runway = build::Runway(16);
        stock = Stock(build::Ils("IOLD", { 0, 1300 }));
        replacement = Whole(build::Ils("INEW", { 0, -1300 }));
        Tie(stock, replacement);
        IlsOf(stock).localizer.runwayNumber = 16;
        IlsOf(replacement).localizer.runwayNumber = 34;
        BodyOf(runway).secondaryIls = PackIdent("INEW");
    }
    SceneryObject *runway = nullptr, *stock = nullptr, *replacement = nullptr;
};

TEST_F(MovedReplacement, TheStockIlsGetsItsOwnEndBackWhenItGoes) {
    for (const int bytes : { 16, 0, 34 }) {  // those of a stock file may name no end or another one
        IlsOf(stock).localizer.runwayNumber = static_cast<uint8_t>(bytes);
        DeleteSelected();
        EXPECT_EQ(+BodyOf(runway).primaryIls, PackIdent("IOLD"));
        EXPECT_EQ(+BodyOf(runway).secondaryIls, 0u);
        Undo();
        EXPECT_EQ(+BodyOf(runway).primaryIls, 0u);
        EXPECT_EQ(+BodyOf(runway).secondaryIls, PackIdent("INEW"));
    }
}

TEST_F(MovedReplacement, TheStockIlsGetsItsOwnEndBackFromAnEndThatNoRunwayHas) {
    IlsOf(replacement).localizer.runwayNumber = 9;
    BodyOf(runway).secondaryIls = 0;
    DeleteSelected();
    EXPECT_EQ(+BodyOf(runway).primaryIls, PackIdent("IOLD"));
    EXPECT_EQ(+BodyOf(runway).secondaryIls, 0u);
}

TEST_F(MovedReplacement, TheEndKeepsItsIlsWhenTheRunwayWasMovedAwayFromIt) {
    IlsOf(replacement).localizer.runwayNumber = 16;
    BodyOf(runway).primaryIls = PackIdent("IOTH");  // at home where the stock ILS stands
    DeleteSelected();
    EXPECT_EQ(+BodyOf(runway).primaryIls, PackIdent("IOTH"));
    EXPECT_EQ(+BodyOf(runway).secondaryIls, PackIdent("IOLD"));
}

TEST_F(MovedReplacement, AnEndThatAnotherIlsHasTakenKeepsThatOne) {
    BodyOf(runway).primaryIls = PackIdent("IOTH");
    DeleteSelected();
    EXPECT_EQ(+BodyOf(runway).primaryIls, PackIdent("IOTH"));
    EXPECT_EQ(+BodyOf(runway).secondaryIls, 0u);
}

TEST_F(MovedReplacement, AnEndThatNamedNoIlsIsGivenNone) {
    BodyOf(runway).secondaryIls = 0;
    IlsOf(replacement).body.region = PackIdent("KSEA") << 11;
    ASSERT_TRUE(IlsServes(replacement, runway, RunwayEnd::Secondary)) << "by its bytes alone";
    EXPECT_EQ(DeleteSelected(), 2) << "the tie and the replacement";
    EXPECT_EQ(+BodyOf(runway).primaryIls, 0u);
    EXPECT_EQ(+BodyOf(runway).secondaryIls, 0u);
}

TEST_F(DeleteNavaids, OfTwoIlsWithOneIdentOnlyTheEndOfTheDeletedOneForgetsIt) {
    SceneryObject *runway = build::Runway(16), *other = build::Runway(9);
    for (SceneryObject* each : { runway, other }) BodyOf(each).primaryIls = PackIdent("ISEA");
    Selected(IlsByLocalizer(16, 0, "KSEA"));
    IlsByLocalizer(9, 0, "KSEA");
    EXPECT_EQ(DeleteSelected(), 2);
    EXPECT_EQ(+BodyOf(runway).primaryIls, 0u);
    EXPECT_EQ(+BodyOf(other).primaryIls, PackIdent("ISEA"));
}

TEST_F(DeleteNavaids, AReplacementWithTheBytesOfTheStockFileBelongsToTheEndThatNamesIt) {
    SceneryObject *served = build::Runway(9), *other = Selected(build::Runway(16));
    SceneryObject *stock = Stock(IlsByLocalizer(16, 0, "KSEA")), *replacement = IlsByLocalizer(16, 0, "KSEA");
    Tie(stock, replacement);
    EXPECT_TRUE(IlsServes(replacement, other, RunwayEnd::Primary)) << "no end names it";
    BodyOf(served).secondaryIls = PackIdent("ISEA");
    EXPECT_FALSE(IlsServes(replacement, other, RunwayEnd::Primary));
    EXPECT_TRUE(IlsServes(replacement, served, RunwayEnd::Secondary));
    EXPECT_EQ(DeleteSelected(), 1);
    EXPECT_TRUE(fake.messages.empty());
}

}  // namespace
