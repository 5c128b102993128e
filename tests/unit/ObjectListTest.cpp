#include "model/ObjectList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "model/EditHistory.h"

namespace {

using namespace model;
using Objects = std::vector<SceneryObject*>;

class ObjectListTest : public testing::Test {
protected:
    void SetUp() override {
        ResetFakes();
        ClearModel();
    }
    void TearDown() override { ClearModel(); }
};

TEST_F(ObjectListTest, AppendedObjectsKeepTheirOrder) {
    EXPECT_EQ(state.head, nullptr);
    EXPECT_EQ(state.tail, nullptr);
    SceneryObject *a = build::Node(), *b = build::Spot(), *c = build::Node();
    EXPECT_EQ(build::List(), (Objects{ a, b, c }));
    EXPECT_EQ(build::ListFromTail(), build::List());
    EXPECT_EQ(state.head, a);
    EXPECT_EQ(state.tail, c);
}

TEST_F(ObjectListTest, AppendingOverwritesStaleNeighbours) {
    build::Node();
    SceneryObject* object = CreateObject(kTaxiNode, 12);
    object->next = object->prev = object;
    AppendObject(object);
    EXPECT_EQ(object->next, nullptr);
    EXPECT_EQ(object->prev, state.head);
}

TEST_F(ObjectListTest, UnlinkingTheOnlyObjectLeavesHeadAndTailNull) {
    SceneryObject* only = build::Node();
    UnlinkObject(only);
    EXPECT_EQ(state.head, nullptr);
    EXPECT_EQ(state.tail, nullptr);
    FreeObject(only);
}

TEST_F(ObjectListTest, UnlinkingHeadMiddleAndTailMendsTheList) {
    for (const size_t place : { 0u, 1u, 2u }) {
        ClearModel();
        Objects objects = { build::Node(), build::Node(), build::Node() };
        SceneryObject* gone = objects[place];
        UnlinkObject(gone);
        objects.erase(objects.begin() + static_cast<ptrdiff_t>(place));
        EXPECT_EQ(build::List(), objects);
        EXPECT_EQ(build::ListFromTail(), objects);
        FreeObject(gone);
    }
}

TEST_F(ObjectListTest, AnUnlinkedObjectKeepsItsOwnNextAndPrev) {
    SceneryObject *a = build::Node(), *b = build::Node(), *c = build::Node();
    UnlinkObject(b);
    EXPECT_EQ(b->prev, a);
    EXPECT_EQ(b->next, c);
    FreeObject(b);
}

TEST_F(ObjectListTest, HowNewStripsOfLightsAreMadeOutlastsTheAirport) {
    state.edgeLights = { true, 45 };
    build::Airport("KSEA");
    ClearModel();
    EXPECT_TRUE(state.edgeLights.adjust);
    EXPECT_EQ(state.edgeLights.optimumSpacing, 45);
    state.edgeLights = {};
}

TEST_F(ObjectListTest, TheAirportObjectIsTheCurrentAirportWhileItIsInTheList) {
    EXPECT_EQ(state.airport, nullptr);
    build::Node();
    SceneryObject* airport = build::Airport("KSEA");
    EXPECT_EQ(state.airport, airport);
    UnlinkObject(airport);
    EXPECT_EQ(state.airport, nullptr);
    FreeObject(airport);
}

TEST_F(ObjectListTest, ClearModelFreesListAndBothChainsAndResetsTheState) {
    build::Airport("KSEA");
    SceneryObject* node = build::Node();
    BeginAction();
    DeleteObject(node);
    BeginAction();
    AddObject(CreateObject(kTaxiNode, 12));
    Undo();
    ASSERT_NE(state.undoHead, nullptr);
    ASSERT_NE(state.redoHead, nullptr);
    SetAirportName("Somewhere");
    state.country = "X";
    state.regionIdent = 5;
    state.loaded = state.busy = state.groupStart = true;
    ClearModel();  // the address sanitizer tells of anything left behind
    EXPECT_EQ(state.head, nullptr);
    EXPECT_EQ(state.tail, nullptr);
    EXPECT_EQ(state.airport, nullptr);
    EXPECT_EQ(state.undoHead, nullptr);
    EXPECT_EQ(state.redoHead, nullptr);
    EXPECT_EQ(AirportName(), "");
    EXPECT_EQ(state.icao, "");
    EXPECT_EQ(state.country, "");
    EXPECT_EQ(state.regionIdent, 0u);
    EXPECT_FALSE(state.modified);
    EXPECT_FALSE(state.loaded);
    EXPECT_FALSE(state.busy);
    EXPECT_FALSE(state.groupStart);
}

TEST_F(ObjectListTest, TheEditMarkGrowsWithEditsAndOtherAirportsAlone) {
    uint64_t mark = state.editMark;
    const auto hasGrown = [&mark] { return std::exchange(mark, state.editMark) < state.editMark; };
    BeginAction();
    Undo();
    Redo();
    EXPECT_FALSE(hasGrown()) << "nothing was there to take back";
    AddObject(CreateObject(kTaxiNode, 12));
    EXPECT_TRUE(hasGrown());
    ModifyObject(CopyObject(state.head), state.head);
    EXPECT_TRUE(hasGrown());
    Undo();
    EXPECT_TRUE(hasGrown());
    Redo();
    EXPECT_TRUE(hasGrown());
    DeleteObject(state.head);
    EXPECT_TRUE(hasGrown());
    SceneryObject* shown = CreateObject(kTaxiNode, 12);
    AppendObject(shown);
    UnlinkObject(shown);
    FreeObject(shown);
    EXPECT_FALSE(hasGrown()) << "a dialog's own record";
    ClearModel();
    EXPECT_TRUE(hasGrown());
}

TEST_F(ObjectListTest, TheAirportNameIsCutTo48CharactersAndPaddedWithZeros) {
    SetAirportName(std::string(60, 'x'));
    EXPECT_EQ(AirportName(), std::string(48, 'x'));
    EXPECT_EQ(state.airportName[47], 'x');
    SetAirportName("Bremen");
    EXPECT_EQ(AirportName(), "Bremen");
    EXPECT_TRUE(std::all_of(state.airportName + 6, state.airportName + 48, [](char c) { return c == 0; }));
    SetAirportName("");
    EXPECT_EQ(AirportName(), "");
}

TEST_F(ObjectListTest, ScansFilterByKindInListOrder) {
    SceneryObject* first = build::Node();
    build::Spot();
    SceneryObject* second = build::Node();
    second->flags |= kSelected | kWholeSelected | kStock;
    EXPECT_EQ(FirstOfKind(state.head, kTaxiNode), first);
    EXPECT_EQ(FirstOfKind(first, kTaxiNode), first);
    EXPECT_EQ(NextOfKind(first, kTaxiNode), second);
    EXPECT_EQ(NextOfKind(second, kTaxiNode), nullptr);
    EXPECT_EQ(FirstOfKind(state.head, kRunway), nullptr);
    EXPECT_EQ(FirstOfKind(nullptr, kTaxiNode), nullptr);
    EXPECT_EQ(CountKind(kTaxiNode), 2u);
    EXPECT_EQ(CountKind(kParkingSpot), 1u);
    EXPECT_EQ(CountKind(kRunway), 0u);
}

}  // namespace
