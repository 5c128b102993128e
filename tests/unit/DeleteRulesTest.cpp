#include "model/DeleteRules.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "fakes/DeleteFixture.h"
#include "model/EditHistory.h"
#include "model/Links.h"

namespace {

using namespace deleting;

class DeleteRules : public DeleteFixture {};

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
