#include "model/DeleteRules.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "model/EditHistory.h"
#include "model/Links.h"
#include "model/Triangulate.h"

namespace {

using namespace model;
using platform::Answer;
using platform::Buttons;
using platform::Icon;
using Objects = std::vector<SceneryObject*>;

constexpr const char* kTowerQuestion = "Are you sure you want to delete the control tower viewpoint?";
constexpr const char* kRunwayQuestion =
    "This runway is equipped with ILS.\n\nIf you delete the runway the ILS will also be deleted.\n\n"
    "Do you want to proceed?";
constexpr const char* kStockNavaids =
    "Flight Simulator does not allow stock navaids to be deleted,\nthey can only be moved or modified.\n\n"
    "This operation has been cancelled.";
constexpr const char* kStockIls =
    "Flight Simulator does not allow stock ILS to be deleted,\nthey can only be moved or modified.\n\n"
    "This operation has been cancelled.";

SceneryObject* Selected(SceneryObject* object) {
    object->flags |= kSelected;
    return object;
}
SceneryObject* Whole(SceneryObject* object) {
    object->flags |= kSelected | kWholeSelected;
    return object;
}
SceneryObject* Stock(SceneryObject* object) {
    object->flags |= kStock;
    return object;
}
void Tie(SceneryObject* stock, SceneryObject* replacement) {
    stock->related = replacement;
    replacement->related = stock;
}

class DeleteRules : public testing::Test {
protected:
    void SetUp() override {
        ResetFakes();
        ClearModel();
        airport = build::Airport("KSEA");
    }
    void TearDown() override { ClearModel(); }

    static void ExpectMessage(size_t place, const std::string& text, Buttons buttons) {
        ASSERT_LT(place, fake.messages.size());
        EXPECT_EQ(fake.messages[place].text, text);
        EXPECT_EQ(fake.messages[place].buttons, buttons);
        EXPECT_EQ(fake.messages[place].icon, Icon::Exclamation);
    }
    // The list as expected, and one Undo brings everything back.
    static void ExpectLeft(const Objects& expected, const Objects& before) {
        EXPECT_EQ(build::List(), expected);
        EXPECT_EQ(build::ListFromTail(), expected);
        Undo();
        EXPECT_EQ(build::List(), before);
        EXPECT_EQ(build::ListFromTail(), before);
        EXPECT_FALSE(CanUndo());
        Redo();
        EXPECT_EQ(build::List(), expected);
    }
    static bool IsListed(const SceneryObject* object) {
        const Objects list = build::List();
        return std::find(list.begin(), list.end(), object) != list.end();
    }
    static SceneryObject* NameOf(SceneryObject* link) { return PayloadAs<TaxiLinkPayload>(link).designator; }

    static IlsPayload& IlsOf(SceneryObject* ils) { return PayloadAs<IlsPayload>(ils); }
    static RunwayRecord& BodyOf(SceneryObject* runway) { return PayloadAs<RunwayPayload>(runway).body; }

    // An ILS that runway `number` (and its designator) of airport `ident` names by localizer alone.
    static SceneryObject* IlsByLocalizer(uint8_t number, uint8_t designator, std::string_view ident) {
        SceneryObject* ils = build::Ils("ISEA");
        IlsOf(ils).localizer.runwayNumber = number;
        IlsOf(ils).localizer.runwayDesignator = designator;
        IlsOf(ils).body.region = PackIdent(ident) << 11 | 0x123;
        return ils;
    }

    SceneryObject* airport = nullptr;
};

TEST_F(DeleteRules, NothingSelectedChangesNothingButRepaints) {
    build::Node();
    const Objects before = build::List();
    EXPECT_EQ(DeleteSelected(), 0);
    EXPECT_EQ(build::List(), before);
    EXPECT_FALSE(CanUndo());
    EXPECT_FALSE(state.modified);
    EXPECT_EQ(fake.repaints, 1);
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(DeleteRules, OnlySelectedObjectsGo) {
    SceneryObject *a = build::Node(), *b = Selected(build::Node()), *c = build::Node(), *d = Selected(build::Node());
    const Objects before = build::List();
    EXPECT_EQ(DeleteSelected(), 2);
    ExpectLeft({ airport, a, c }, before);
    EXPECT_FALSE(IsListed(b));
    EXPECT_FALSE(IsListed(d));
    EXPECT_TRUE(state.modified);
}

TEST_F(DeleteRules, EveryDeleteIsAnActionOfItsOwn) {
    SceneryObject *a = Selected(build::Node()), *b = build::Node(), *marker = build::Marker();
    DeleteSelected();
    Selected(b);
    DeleteSelected();
    DeleteGuidelinesAndMarkers();
    Undo();
    EXPECT_EQ(build::List(), (Objects{ airport, marker }));
    Undo();
    EXPECT_EQ(build::List(), (Objects{ airport, b, marker }));
    Undo();
    EXPECT_EQ(build::List(), (Objects{ airport, a, b, marker }));
}

TEST_F(DeleteRules, NothingIsDeletedDuringADrag) {
    SceneryObject* node = Selected(build::Node());
    state.busy = true;
    EXPECT_EQ(DeleteSelected(), 0);
    state.busy = false;
    EXPECT_TRUE(IsListed(node));
    EXPECT_EQ(state.undoHead, nullptr);
    EXPECT_EQ(DeleteSelected(), 1);
}

TEST_F(DeleteRules, TheAirportObjectIsNeverDeleted) {
    Whole(airport);
    EXPECT_EQ(DeleteSelected(), 0);
    EXPECT_EQ(state.airport, airport);
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(DeleteRules, TheTowerViewpointIsAskedAbout) {
    SceneryObject* tower = Selected(build::Tower());
    fake.answers = { Answer::Cancel };
    EXPECT_EQ(DeleteSelected(), 0);
    ExpectMessage(0, kTowerQuestion, Buttons::OkCancel);
    EXPECT_EQ(fake.messages.size(), 1u);
    EXPECT_TRUE(IsListed(tower));
    fake.answers = { Answer::Ok };
    const Objects before = build::List();
    EXPECT_EQ(DeleteSelected(), 1);
    ExpectLeft({ airport }, before);
}

TEST_F(DeleteRules, ANodeTakesItsLinksWithIt) {
    SceneryObject *a = build::Node(), *b = Selected(build::Node()), *c = build::Node(), *spot = build::Spot();
    SceneryObject* ac = build::Link(a, c);
    build::Link(a, b);
    build::Link(b, c);
    build::Link(b, spot, kParkingLink);
    build::Link(b, b);  // starts and ends at it
    const Objects before = build::List();
    EXPECT_EQ(DeleteSelected(), 5);
    ExpectLeft({ airport, a, c, spot, ac }, before);
}

TEST_F(DeleteRules, ASpotTakesItsLinksWithIt) {
    SceneryObject *node = build::Node(), *spot = Selected(build::Spot());
    build::Link(node, spot, kParkingLink);
    const Objects before = build::List();
    EXPECT_EQ(DeleteSelected(), 2);
    ExpectLeft({ airport, node }, before);
}

TEST_F(DeleteRules, LinksRightBehindTheirNodeDoNotStopTheWalk) {
    SceneryObject *a = Selected(build::Node()), *b = Selected(build::Node());
    Selected(build::Link(a, b));
    build::Link(b, a);
    Selected(build::Spot());
    const Objects before = build::List();
    EXPECT_EQ(DeleteSelected(), 5);
    ExpectLeft({ airport }, before);
}

TEST_F(DeleteRules, ALinkAloneLeavesItsEnds) {
    SceneryObject *a = build::Node(), *b = build::Node();
    Selected(build::Link(a, b));
    const Objects before = build::List();
    EXPECT_EQ(DeleteSelected(), 1);
    ExpectLeft({ airport, a, b }, before);
}

TEST_F(DeleteRules, AMarkerTakesItsGuidelinesWithIt) {
    SceneryObject *a = Selected(build::Marker()), *b = build::Marker(), *c = build::Marker();
    build::Guideline(a, b);
    build::Guideline(c, a);
    SceneryObject* bc = build::Guideline(b, c);
    const Objects before = build::List();
    EXPECT_EQ(DeleteSelected(), 3);
    ExpectLeft({ airport, b, c, bc }, before);
}

TEST_F(DeleteRules, OtherObjectsAreSimplyDeleted) {
    for (const uint32_t kind : { kHelipad, kCommFrequency, kStartLocation }) Selected(build::Append(kind, 64));
    Selected(build::Guideline(build::Marker(), build::Marker()));
    EXPECT_EQ(DeleteSelected(), 4);
    EXPECT_EQ(CountKind(kReferenceMarker), 2u);
    EXPECT_EQ(build::List().size(), 3u);
    EXPECT_TRUE(fake.messages.empty());
}

// ---- runways and their ILS

TEST_F(DeleteRules, ARunwayWithoutIlsGoesUnasked) {
    Selected(build::Runway(16));
    build::Ils("IABC");
    EXPECT_EQ(DeleteSelected(), 1);
    EXPECT_EQ(CountKind(kIls), 1u);
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(DeleteRules, ARunwayWithIlsIsAskedAboutAndTakesThemAlong) {
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

TEST_F(DeleteRules, CancelKeepsTheRunwayItsIlsAndItsLinksNames) {
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

TEST_F(DeleteRules, AStockIlsIsNoReasonToAskAndStays) {
    SceneryObject* runway = Selected(build::Runway(16));
    SceneryObject* stock = Stock(build::Ils("ISNQ"));
    BodyOf(runway).primaryIls = PackIdent("ISNQ");
    EXPECT_EQ(DeleteSelected(), 1);
    EXPECT_TRUE(fake.messages.empty());
    EXPECT_TRUE(IsListed(stock));
}

TEST_F(DeleteRules, ARunwayThatNamesNoIlsIsMatchedByLocalizerAndAirport) {
    SceneryObject* runway = Selected(build::Runway(16, 2));
    SceneryObject* primary = IlsByLocalizer(16, 2, "KSEA");
    SceneryObject* secondary = IlsByLocalizer(34, 1, "KSEA");
    SceneryObject* otherAirport = IlsByLocalizer(16, 2, "KBFI");
    SceneryObject* otherEnd = IlsByLocalizer(16, 1, "KSEA");
    SceneryObject* stock = Stock(IlsByLocalizer(16, 2, "KSEA"));
    EXPECT_TRUE(IlsBelongsTo(primary, runway, RunwayEnd::Primary));
    EXPECT_FALSE(IlsBelongsTo(primary, runway, RunwayEnd::Secondary));
    EXPECT_TRUE(IlsBelongsTo(secondary, runway, RunwayEnd::Secondary));
    EXPECT_FALSE(IlsBelongsTo(stock, runway, RunwayEnd::Primary));
    EXPECT_EQ(DeleteSelected(), 3);
    EXPECT_EQ(build::List(), (Objects{ airport, otherAirport, otherEnd, stock }));
}

TEST_F(DeleteRules, AnAirportOfFiveCharactersIsMatchedByWhatARegionWordKeepsOfIt) {
    PayloadAs<AirportRecord>(airport).ident = PackIdent("ZZZZZ") << kIdentShift | 1;
    SceneryObject* runway = build::Runway(16, 2);
    EXPECT_TRUE(IlsBelongsTo(IlsByLocalizer(16, 2, "ZZZZZ"), runway, RunwayEnd::Primary));
    EXPECT_FALSE(IlsBelongsTo(IlsByLocalizer(16, 2, "ZZZZY"), runway, RunwayEnd::Primary));
}

TEST_F(DeleteRules, ARunwayThatNamesAnotherIlsIsNotMatchedByLocalizer) {
    SceneryObject* runway = build::Runway(16);
    BodyOf(runway).primaryIls = PackIdent("IOTH");
    SceneryObject* ils = IlsByLocalizer(16, 0, "KSEA");
    EXPECT_FALSE(IlsBelongsTo(ils, runway, RunwayEnd::Primary));
    BodyOf(runway).primaryIls = PackIdent("ISEA");
    EXPECT_TRUE(IlsBelongsTo(ils, runway, RunwayEnd::Primary));
    EXPECT_TRUE(IlsBelongsTo(Stock(ils), runway, RunwayEnd::Primary));  // by ident even a stock one does
}

TEST_F(DeleteRules, AnIlsWithoutIdentBelongsToNoRunwayThatNamesNone) {
    SceneryObject* runway = build::Runway(16);
    SceneryObject* ils = build::Ils("");
    EXPECT_FALSE(IlsBelongsTo(ils, runway, RunwayEnd::Primary));
    UnlinkObject(airport);
    EXPECT_FALSE(IlsBelongsTo(IlsByLocalizer(16, 0, ""), runway, RunwayEnd::Primary));  // nor without an airport
    FreeObject(airport);
}

TEST_F(DeleteRules, AnIlsWithItsRunwayBothSelectedGoOnce) {
    SceneryObject* ils = Whole(build::Ils("ISNQ"));
    SceneryObject* runway = Selected(build::Runway(16));
    BodyOf(runway).primaryIls = PackIdent("ISNQ");
    const Objects before = build::List();
    EXPECT_EQ(DeleteSelected(), 3);      // the runway forgets the ILS before it goes itself
    EXPECT_TRUE(fake.messages.empty());  // the ILS went first
    ExpectLeft({ airport }, before);
    EXPECT_FALSE(IsListed(ils));
}

TEST_F(DeleteRules, TheIlsRightBehindItsRunwayDoesNotStopTheWalk) {
    SceneryObject* runway = Selected(build::Runway(16));
    Selected(build::Ils("ISNQ"));
    Selected(build::Node());
    BodyOf(runway).primaryIls = PackIdent("ISNQ");
    EXPECT_EQ(DeleteSelected(), 3);
    EXPECT_EQ(build::List(), (Objects{ airport }));
}

TEST_F(DeleteRules, NothingIsAskedTwiceWhenARunwayGoes) {
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

// ---- names of links

TEST_F(DeleteRules, LinksLoseTheNameOfADeletedRunwayInTheSameAction) {
    SceneryObject *a = build::Node(), *b = build::Node();
    SceneryObject *runway = Selected(build::Runway(16)), *other = build::Runway(9);
    SceneryObject *link = build::Link(a, b, kRunwayLink, runway), *kept = build::Link(b, a, kRunwayLink, other);
    EXPECT_EQ(DeleteSelected(), 2);
    EXPECT_EQ(NameOf(link), nullptr);
    EXPECT_EQ(NameOf(kept), other);
    Undo();
    EXPECT_EQ(NameOf(link), runway);
    EXPECT_TRUE(IsListed(runway));
    EXPECT_FALSE(CanUndo());
    Redo();
    EXPECT_EQ(NameOf(link), nullptr);
}

TEST_F(DeleteRules, LinksLoseTheNameOfADeletedDesignator) {
    SceneryObject *a = build::Node(), *b = build::Node(), *name = Selected(build::Designator("A"));
    SceneryObject* link = build::Link(a, b, kTaxiwayLink, name);
    SceneryObject* blank = build::Designator("");
    EXPECT_EQ(DeleteSelected(), 2);
    EXPECT_EQ(NameOf(link), blank);
    EXPECT_FALSE(IsListed(name));
    Undo();
    EXPECT_EQ(NameOf(link), name);
}

TEST_F(DeleteRules, ABlankDesignatorIsMadeForLinksThatLoseTheirName) {
    SceneryObject *a = build::Node(), *b = build::Node(), *name = Selected(build::Designator("A"));
    SceneryObject* second = Selected(build::Designator("B"));
    SceneryObject *one = build::Link(a, b, kTaxiwayLink, name), *two = build::Link(b, a, kTaxiwayLink, second);
    const Objects before = build::List();
    EXPECT_EQ(DeleteSelected(), 5);  // two designators, two links, one new designator
    SceneryObject* blank = BlankDesignator();
    ASSERT_NE(blank, nullptr);
    EXPECT_EQ(build::List(), (Objects{ airport, a, b, one, two, blank }));
    EXPECT_EQ(NameOf(one), blank);
    EXPECT_EQ(NameOf(two), blank);
    for (int round = 0; round < 2; ++round) {
        Undo();
        EXPECT_EQ(build::List(), before);
        EXPECT_EQ(NameOf(one), name);
        Redo();
        EXPECT_EQ(NameOf(one), blank);
        EXPECT_EQ(build::List(), (Objects{ airport, a, b, one, two, blank }));
    }
}

TEST_F(DeleteRules, ABlankDesignatorThatGoesToTakesNoLinks) {
    SceneryObject *a = build::Node(), *b = build::Node(), *blank = Selected(build::Designator(""));
    SceneryObject* link = build::Link(a, b, kTaxiwayLink, blank);
    EXPECT_EQ(DeleteSelected(), 3);
    EXPECT_FALSE(IsListed(blank));
    EXPECT_EQ(NameOf(link), BlankDesignator());
    EXPECT_NE(NameOf(link), nullptr);
}

TEST_F(DeleteRules, LinksThatAreDeletedTooNeedNoBlankDesignator) {
    SceneryObject *a = build::Node(), *b = build::Node(), *name = Selected(build::Designator("A"));
    Selected(build::Link(a, b, kTaxiwayLink, name));
    EXPECT_EQ(DeleteSelected(), 2);
    EXPECT_EQ(build::List(), (Objects{ airport, a, b }));
}

TEST_F(DeleteRules, ALinkThatIsGoneAlreadyIsNotChanged) {
    SceneryObject *a = Selected(build::Node()), *b = build::Node(), *name = Selected(build::Designator("A"));
    build::Link(a, b, kTaxiwayLink, name);
    const Objects before = build::List();
    EXPECT_EQ(DeleteSelected(), 3);
    ExpectLeft({ airport, b }, before);
}

// ---- stock objects and replacements

TEST_F(DeleteRules, StockNavaidsAreRefusedAndTheWalkGoesOn) {
    SceneryObject *ndb = Selected(Stock(build::Ndb())), *vor = Selected(Stock(build::Vor()));
    SceneryObject* marker = Selected(Stock(build::Append(kMarkerBeacon, sizeof(MarkerBeaconPayload))));
    SceneryObject* node = Selected(build::Node());
    EXPECT_EQ(DeleteSelected(), 1);
    EXPECT_EQ(build::List(), (Objects{ airport, ndb, vor, marker }));
    ASSERT_EQ(fake.messages.size(), 3u);
    for (size_t i = 0; i < 3; ++i) ExpectMessage(i, kStockNavaids, Buttons::Ok);
    EXPECT_FALSE(IsListed(node));
}

TEST_F(DeleteRules, AStockIlsIsRefusedWithItsOwnText) {
    SceneryObject* ils = Whole(Stock(build::Ils("ISNQ")));
    EXPECT_EQ(DeleteSelected(), 0);
    EXPECT_TRUE(IsListed(ils));
    ASSERT_EQ(fake.messages.size(), 1u);
    ExpectMessage(0, kStockIls, Buttons::Ok);
}

TEST_F(DeleteRules, AReplacementGivesItsStockObjectBackFirst) {
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

TEST_F(DeleteRules, ARunwaysReplacementIlsGivesItsStockIlsBack) {
    SceneryObject* runway = Selected(build::Runway(16));
    SceneryObject *stock = Stock(build::Ils("ISNQ")), *replacement = build::Ils("ISNQ");
    Tie(stock, replacement);
    BodyOf(runway).primaryIls = PackIdent("ISNQ");
    const Objects before = build::List();
    EXPECT_EQ(DeleteSelected(), 3);
    EXPECT_EQ(stock->related, nullptr);
    ExpectLeft({ airport, stock }, before);
}

// ---- aprons

const std::vector<EncodedPoint>& Hexagon() {
    static const std::vector<EncodedPoint> corners = { build::Encoded({ 0, 0 }),     build::Encoded({ 50, 80 }),
                                                       build::Encoded({ 150, 80 }),  build::Encoded({ 200, 0 }),
                                                       build::Encoded({ 150, -80 }), build::Encoded({ 50, -80 }) };
    return corners;
}

SceneryObject* WithSelectedVertices(SceneryObject* apron, std::initializer_list<size_t> vertices) {
    for (size_t v : vertices) PayloadAs<ApronHead>(apron).selection[v / 8] |= static_cast<uint8_t>(1 << (v % 8));
    return Selected(apron);
}

bool SamePoints(const std::vector<EncodedPoint>& a, const std::vector<EncodedPoint>& b) {
    return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(EncodedPoint)) == 0;
}

TEST_F(DeleteRules, ARunwayForgetsADeletedIlsInTheSameAction) {
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

TEST_F(DeleteRules, ARunwayNamesTheStockIlsAgainWhenItsReplacementGoes) {
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

TEST_F(DeleteRules, AWholeApronIsDeleted) {
    Whole(WithSelectedVertices(build::Apron(Hexagon()), { 1 }));
    const Objects before = build::List();
    EXPECT_EQ(DeleteSelected(), 1);
    ExpectLeft({ airport }, before);
}

TEST_F(DeleteRules, SelectedVerticesGoAndTheSurfaceFollows) {
    SceneryObject* apron = WithSelectedVertices(build::Apron(Hexagon()), { 1, 4 });
    EXPECT_EQ(DeleteSelected(), 1);
    const std::vector<EncodedPoint> left = { Hexagon()[0], Hexagon()[2], Hexagon()[3], Hexagon()[5] };
    EXPECT_TRUE(SamePoints(ApronOutline(apron), left));
    const auto& head = PayloadAs<ApronHead>(apron);
    EXPECT_EQ(uint16_t{ head.vertexCount }, 4);
    EXPECT_EQ(uint16_t{ head.triangleCount }, 2);
    EXPECT_EQ(apron->payloadSize, 29u + 64 + 12);
    EXPECT_TRUE(std::all_of(head.selection, head.selection + 20, [](uint8_t bits) { return bits == 0; }));
    EXPECT_FALSE(IsSelected(apron));
    Undo();
    EXPECT_TRUE(SamePoints(ApronOutline(apron), Hexagon()));
    EXPECT_TRUE(IsSelected(apron));
}

TEST_F(DeleteRules, ASelectedVertexGoesHoweverFewAreLeft) {
    SceneryObject* apron = WithSelectedVertices(build::Apron(Hexagon()), { 0, 1, 2, 3 });
    EXPECT_EQ(DeleteSelected(), 1);
    EXPECT_TRUE(SamePoints(ApronOutline(apron), { Hexagon().begin() + 4, Hexagon().end() }));
    EXPECT_EQ(uint16_t{ PayloadAs<ApronHead>(apron).triangleCount }, 0);
    EXPECT_TRUE(fake.messages.empty());
    Undo();
    EXPECT_TRUE(SamePoints(ApronOutline(apron), Hexagon()));
}

TEST_F(DeleteRules, AnApronThatLosesItsLastVertexIsGone) {
    WithSelectedVertices(build::Apron(Hexagon()), { 0, 1, 2, 3, 4, 5 });
    const Objects before = build::List();
    EXPECT_EQ(DeleteSelected(), 1);
    EXPECT_TRUE(fake.messages.empty());
    ExpectLeft({ airport }, before);
}

TEST_F(DeleteRules, AnApronWithoutSelectedVerticesIsLeftAlone) {
    Selected(build::Apron(Hexagon()));
    EXPECT_EQ(DeleteSelected(), 0);
    EXPECT_FALSE(state.modified);
}

TEST_F(DeleteRules, VerticesBeyondTheBitmapCannotBeSelected) {
    std::vector<EncodedPoint> outline;
    for (int i = 0; i < 200; ++i)
        outline.push_back(build::Encoded({ 500 * std::sin(kTwoPi * i / 200), 500 * std::cos(kTwoPi * i / 200) }));
    SceneryObject* apron = Selected(build::Apron(outline));
    std::fill_n(PayloadAs<ApronHead>(apron).selection, 20, uint8_t{ 0xFF });
    EXPECT_EQ(DeleteSelected(), 1);
    EXPECT_TRUE(SamePoints(ApronOutline(apron), { outline.begin() + 160, outline.end() }));
}

// ---- apron edge lights

EdgeLightStrip Strip(float spacing, uint8_t segment = 0, uint8_t start = 0, uint8_t end = 0) {
    return { spacing, 1, 2, 3, 4, segment, start, end };
}

TEST_F(DeleteRules, StripsWithAnySelectedPartGo) {
    SceneryObject* lights =
        Selected(build::EdgeLights({ Strip(10, 1), Strip(20), Strip(30, 0, 1), Strip(40, 0, 0, 1), Strip(50) }));
    EXPECT_EQ(DeleteSelected(), 1);
    ASSERT_EQ(uint32_t{ PayloadAs<EdgeLightsHead>(lights).stripCount }, 2u);
    ASSERT_EQ(lights->payloadSize, 22u + 2 * 23);
    EdgeLightStrip strips[2];
    std::memcpy(strips, lights->payload + 22, sizeof strips);
    EXPECT_EQ(float{ strips[0].spacing }, 20);
    EXPECT_EQ(float{ strips[1].spacing }, 50);
    EXPECT_FALSE(IsSelected(lights));
    Undo();
    EXPECT_EQ(uint32_t{ PayloadAs<EdgeLightsHead>(lights).stripCount }, 5u);
    EXPECT_TRUE(IsSelected(lights));
}

TEST_F(DeleteRules, LightsGoWhenWhollySelectedOrWhenNoStripIsLeft) {
    Whole(build::EdgeLights({ Strip(10), Strip(20) }));
    Selected(build::EdgeLights({ Strip(10, 1), Strip(20, 0, 0, 1) }));
    const Objects before = build::List();
    EXPECT_EQ(DeleteSelected(), 2);
    ExpectLeft({ airport }, before);
}

TEST_F(DeleteRules, LightsWithoutASelectedPartAreLeftAlone) {
    Selected(build::EdgeLights({ Strip(10) }));
    Selected(build::EdgeLights({}));
    EXPECT_EQ(DeleteSelected(), 0);
}

// ---- everything at once

TEST_F(DeleteRules, AWholeSelectedAirportIsEmptiedByOneActionAndComesBack) {
    build::Tower();
    SceneryObject* runway = build::Runway(16);
    Objects nodes;
    for (int i = 0; i < 20; ++i) nodes.push_back(build::Node({ 30.0 * i, 0 }));
    SceneryObject* name = build::Designator("A");
    for (size_t i = 1; i < nodes.size(); ++i) build::Link(nodes[i - 1], nodes[i], kTaxiwayLink, name);
    SceneryObject* named = build::Link(nodes[0], nodes[19], kRunwayLink, runway);
    build::Link(nodes[3], build::Spot(), kParkingLink);
    build::Apron(Hexagon());
    build::EdgeLights({ Strip(10) });
    build::Guideline(build::Marker(), build::Marker());
    build::Ils("ISNQ");
    BodyOf(runway).primaryIls = PackIdent("ISNQ");
    SceneryObject* stock = Stock(build::Ndb());
    const Objects before = build::List();
    for (SceneryObject* object : before) Whole(object);
    DeleteSelected();
    ExpectLeft({ airport, stock }, before);
    Undo();
    EXPECT_EQ(NameOf(named), runway);
    EXPECT_EQ(fake.messages.size(), 3u);  // tower, runway, stock navaid
}

// ---- Ctrl+Del

TEST_F(DeleteRules, GuidelinesAndMarkersAllGoInOneAction) {
    SceneryObject *a = build::Marker(), *node = build::Node(), *b = Selected(build::Marker());
    build::Guideline(a, b);
    build::Marker();
    Selected(node);
    const Objects before = build::List();
    EXPECT_EQ(DeleteGuidelinesAndMarkers(), 4);
    EXPECT_EQ(fake.repaints, 1);
    ExpectLeft({ airport, node }, before);
}

TEST_F(DeleteRules, WithoutGuidelinesAndMarkersNothingHappens) {
    build::Node();
    EXPECT_EQ(DeleteGuidelinesAndMarkers(), 0);
    EXPECT_FALSE(CanUndo());
    EXPECT_FALSE(state.modified);
}

}  // namespace
