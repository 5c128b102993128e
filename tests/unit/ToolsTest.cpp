#include "map/Tools.h"

#include <gtest/gtest.h>

#include "fakes/MapFixture.h"
#include "map/MoveDrag.h"
#include "model/EditHistory.h"

namespace {

using namespace map;
using namespace model;

class ToolsTest : public MapFixture {
protected:
    void SetUp() override {
        MapFixture::SetUp();
        Scale(1);
        Open();
        SetPosition(state.airport, build::At({ -390, 290 }));
    }
    static void Press(build::Place place, KeyState keys = {}) { OnButtonDown(PixelOf(place), keys); }
    static void Click(build::Place place, KeyState keys = {}) {
        Press(place, keys);
        OnButtonUp(PixelOf(place), keys);
    }
    static void DragTo(build::Place place) { OnMouseMove(PixelOf(place), {}); }
    static void Release(build::Place place) { OnButtonUp(PixelOf(place), {}); }
    static double DistanceTo(const SceneryObject* object, build::Place place) {
        return DistanceBetween(PositionOf(object), build::At(place));
    }
};

TEST_F(ToolsTest, TheNodeToolCreatesANodeOfItsKindWhereItIsPressed) {
    SetTool(Tool::Nodes);
    tools.nodeKind = kHoldShortNode;
    Click({ 100, 50 });
    SceneryObject* node = state.tail;
    ASSERT_EQ(KindOf(node), kTaxiNode);
    EXPECT_EQ(PayloadAs<TaxiNodeRecord>(node).type, kHoldShortNode);
    EXPECT_EQ(node->flags, kTaxiNode | 0x1020u);
    EXPECT_EQ(node->payloadSize, sizeof(TaxiNodeRecord));
    EXPECT_LT(DistanceTo(node, { 100, 50 }), 1.6);  // a pixel is a metre
    EXPECT_TRUE(state.modified);
    EXPECT_GT(fake.repaints, 0);
}

TEST_F(ToolsTest, OneClickIsUndoneByOneUndo) {
    build::Link(build::Node({ 0, -100 }), build::Node({ 0, 100 }));
    Paint();
    const auto before = build::List();
    SetTool(Tool::Nodes);
    Click({ 1, 0 });
    EXPECT_EQ(build::List().size(), before.size() + 2);  // a node, and two links for one
    Undo();
    EXPECT_EQ(build::List(), before);
    EXPECT_FALSE(CanUndo());
}

TEST_F(ToolsTest, APressOnANodeOrSpotCreatesNothing) {
    build::Node();
    PayloadAs<ParkingSpotRecord>(build::Spot({ 100, 0 })).radius = 20;
    Paint();
    const auto before = build::List();
    SetTool(Tool::Nodes);
    Click({ 0, 0 });
    Click({ 110, 0 });
    EXPECT_EQ(build::List(), before);
    EXPECT_FALSE(CanUndo());
}

TEST_F(ToolsTest, ANodeIsCreatedOnARunway) {
    build::Runway(36);
    Paint();
    SetTool(Tool::Nodes);
    Click({ 0, 0 });
    EXPECT_EQ(CountKind(kTaxiNode), 1u);
}

TEST_F(ToolsTest, TheNodeMadeIsTheOneSelected) {
    SetTool(Tool::Nodes);
    Click({ 0, 0 });
    SceneryObject* first = state.tail;
    Paint();
    Click({ 100, 0 });
    EXPECT_FALSE(IsSelected(first));
    EXPECT_TRUE(IsSelected(state.tail));
}

TEST_F(ToolsTest, PressesDoNothingWhileTheMapIsLocked) {
    SceneryObject* node = build::Node();
    Paint();
    view.lockedToSim = true;
    Click({ 0, 0 });
    SetTool(Tool::Nodes);
    Click({ 100, 0 });
    EXPECT_FALSE(IsSelected(node));
    EXPECT_EQ(CountKind(kTaxiNode), 1u);
    EXPECT_FALSE(tools.pressed);
    EXPECT_FALSE(tools.hasClick);
}

TEST_F(ToolsTest, PressesDoNothingWithoutAnAirport) {
    ClearModel();
    SetTool(Tool::Nodes);
    Click({ 0, 0 });
    EXPECT_EQ(state.head, nullptr);
}

TEST_F(ToolsTest, ANodeIsNotCreatedWhereThereIsNoPlaceOnEarth) {
    SetTool(Tool::Nodes);
    for (const double span : { 1e9, 1e300 }) {
        view.span = span;
        ResizeView(kWidth, kHeight);
        OnButtonDown({ 10, 10 }, {});
        OnButtonUp({ 10, 10 }, {});
    }
    EXPECT_EQ(CountKind(kTaxiNode), 0u);
}

TEST_F(ToolsTest, APressBeyondTheDateLineIsBroughtBack) {
    view.centre = { 0, kPi - 1e-6 };  // a few metres from 180 degrees west
    SetTool(Tool::Nodes);
    OnButtonDown({ 100, 300 }, {});  // 300 m to the west
    ASSERT_EQ(CountKind(kTaxiNode), 1u);
    const LatLon position = PositionOf(state.tail);
    EXPECT_LT(position.lon, 0);
    EXPECT_NEAR(DistanceBetween(view.centre, position), 300, 1);
}

TEST_F(ToolsTest, ThePointerSelectsAndExtends) {
    SceneryObject* a = build::Node({ -50, 0 });
    SceneryObject* b = build::Node({ 50, 0 });
    Paint();
    Click({ -50, 0 });
    EXPECT_TRUE(IsSelected(a) && !IsSelected(b));
    Click({ 50, 0 }, { .shift = true });
    EXPECT_TRUE(IsSelected(a) && IsSelected(b));
    Click({ 50, 0 }, { .ctrl = true });
    EXPECT_TRUE(IsSelected(a) && !IsSelected(b));
}

TEST_F(ToolsTest, AClickIsTheOriginOfTheReadOut) {
    Click({ 120, -40 });
    EXPECT_TRUE(tools.hasClick);
    EXPECT_LT(DistanceBetween(tools.lastClick, build::At({ 120, -40 })), 1.6);
    EXPECT_EQ(tools.cursor, PixelOf({ 120, -40 }));
}

TEST_F(ToolsTest, TheMiddleButtonPansUntilItIsReleased) {
    OnMiddleDown({ 100, 100 });
    EXPECT_TRUE(tools.panning);
    OnMouseMove({ 150, 100 }, {});
    EXPECT_LT(DistanceBetween(view.centre, build::At({ -50, 0 })), 0.1);
    OnMiddleUp();
    OnMouseMove({ 250, 100 }, {});
    EXPECT_LT(DistanceBetween(view.centre, build::At({ -50, 0 })), 0.1);
    EXPECT_EQ(tools.cursor, (Pixel{ 250, 100 }));
}

TEST_F(ToolsTest, ADragMovesTheSelectedNodesAndSpotsAsOneAction) {
    SceneryObject* a = build::Node({ -50, 0 });
    SceneryObject* spot = build::Spot({ 50, 0 });
    PayloadAs<ParkingSpotRecord>(spot).radius = 20;
    Paint();
    Click({ 50, 0 });
    Press({ -50, 0 }, { .shift = true });
    DragTo({ -30, 40 });
    Release({ -30, 40 });
    EXPECT_LT(DistanceTo(a, { -30, 40 }), 0.5);
    EXPECT_LT(DistanceTo(spot, { 70, 40 }), 0.5);
    Undo();
    EXPECT_LT(DistanceTo(a, { -50, 0 }), 0.1);
    EXPECT_LT(DistanceTo(spot, { 50, 0 }), 0.1);
    EXPECT_FALSE(CanUndo());
    Redo();
    EXPECT_LT(DistanceTo(a, { -30, 40 }), 0.5);
    EXPECT_LT(DistanceTo(spot, { 70, 40 }), 0.5);
}

TEST_F(ToolsTest, ADragOfLessThanThreePixelsIsAClick) {
    SceneryObject* node = build::Node();
    Paint();
    const BglPoint before = EncodedPositionOf(node);
    const Pixel at = PixelOf({ 0, 0 });
    OnButtonDown(at, {});
    OnMouseMove({ at.x + 2, at.y - 2 }, {});
    OnButtonUp({ at.x + 2, at.y - 2 }, {});
    EXPECT_EQ(EncodedPositionOf(node).latCode, before.latCode);
    EXPECT_EQ(EncodedPositionOf(node).lonCode, before.lonCode);
    EXPECT_FALSE(CanUndo());
    OnButtonDown(at, {});
    OnMouseMove({ at.x + 3, at.y }, {});
    OnButtonUp({ at.x + 3, at.y }, {});
    EXPECT_TRUE(CanUndo());
}

TEST_F(ToolsTest, NothingIsUndoneUnderADrag) {
    SetTool(Tool::Nodes);
    Click({ 0, 0 });
    SetTool(Tool::Pointer);
    Paint();
    SceneryObject* node = state.tail;
    Press({ 0, 0 });
    EXPECT_FALSE(state.busy);
    DragTo({ 50, 0 });
    EXPECT_TRUE(state.busy);
    EXPECT_FALSE(CanUndo());
    Undo();
    EXPECT_LT(DistanceTo(node, { 50, 0 }), 1.6);  // it follows the pointer
    Release({ 50, 0 });
    EXPECT_FALSE(state.busy);
    EXPECT_TRUE(CanUndo());
}

TEST_F(ToolsTest, ADragBackToItsStartChangesNothing) {
    SceneryObject* node = build::Node();
    Paint();
    const BglPoint before = EncodedPositionOf(node);
    Press({ 0, 0 });
    DragTo({ 50, 0 });
    DragTo({ 0, 0 });
    Release({ 0, 0 });
    EXPECT_EQ(EncodedPositionOf(node).latCode, before.latCode);
    EXPECT_EQ(EncodedPositionOf(node).lonCode, before.lonCode);
    EXPECT_FALSE(CanUndo());
    EXPECT_FALSE(state.modified);
}

TEST_F(ToolsTest, ChoosingAnotherToolCancelsTheDrag) {
    SceneryObject* node = build::Node();
    Paint();
    const BglPoint before = EncodedPositionOf(node);
    Press({ 0, 0 });
    DragTo({ 50, 0 });
    SetTool(Tool::Nodes);
    EXPECT_FALSE(state.busy);
    EXPECT_EQ(EncodedPositionOf(node).lonCode, before.lonCode);
    Release({ 50, 0 });
    EXPECT_FALSE(CanUndo());
}

TEST_F(ToolsTest, ObjectsDeletedUnderADragAreLeftAlone) {
    SceneryObject* a = build::Node({ -50, 0 });
    SceneryObject* b = build::Node({ 50, 0 });
    Paint();
    Click({ 50, 0 });
    Press({ -50, 0 }, { .shift = true });
    DragTo({ -20, 0 });
    BeginAction();
    DeleteObject(b);
    Release({ -20, 0 });
    EXPECT_LT(DistanceTo(a, { -20, 0 }), 0.5);
    EXPECT_EQ(CountKind(kTaxiNode), 1u);
    EXPECT_EQ(build::List(), build::ListFromTail());
}

TEST_F(ToolsTest, APressOnEmptyMapOrOnARunwayMovesNothing) {
    build::Runway(36);
    SceneryObject* node = build::Node({ 200, 0 });
    Paint();
    Press({ 0, 0 });
    DragTo({ 50, 50 });
    Release({ 50, 50 });
    EXPECT_LT(DistanceTo(node, { 200, 0 }), 0.1);
    EXPECT_FALSE(CanUndo());
}

TEST_F(ToolsTest, LoadingAnAirportReturnsToThePointer) {
    SetTool(Tool::Nodes);
    Click({ 0, 0 });
    OnMiddleDown({ 1, 1 });
    layers.highlightedDesignator = state.tail;
    ClearModel();
    ResetTools();
    EXPECT_EQ(tools.tool, Tool::Pointer);
    EXPECT_FALSE(tools.panning || tools.pressed || tools.hasClick);
    EXPECT_EQ(layers.highlightedDesignator, nullptr);
}

TEST_F(ToolsTest, TheHighlightCyclesThroughTheNamesAndOff) {
    build::Designator("");
    SceneryObject* a = build::Designator("A");
    SceneryObject* b = build::Designator("B");
    CycleHighlight(false);
    EXPECT_EQ(layers.highlightedDesignator, a);
    CycleHighlight(false);
    EXPECT_EQ(layers.highlightedDesignator, b);
    CycleHighlight(false);
    EXPECT_EQ(layers.highlightedDesignator, nullptr);
    CycleHighlight(true);
    EXPECT_EQ(layers.highlightedDesignator, b);
    CycleHighlight(true);
    CycleHighlight(true);
    EXPECT_EQ(layers.highlightedDesignator, nullptr);
    EXPECT_EQ(fake.repaints, 6);
}

}  // namespace
