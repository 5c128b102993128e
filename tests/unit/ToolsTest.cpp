#include "map/Tools.h"

#include <gtest/gtest.h>

#include "fakes/ToolFixture.h"

namespace {

using namespace map;
using namespace model;

class ToolsTest : public ToolFixture {};

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

TEST_F(ToolsTest, APressOnEmptyMapMovesNothing) {
    SceneryObject* node = build::Node({ 200, 0 });
    Paint();
    Press({ 0, 0 });
    DragTo({ 50, 50 });
    Release({ 50, 50 });
    EXPECT_LT(DistanceTo(node, { 200, 0 }), 0.1);
    EXPECT_FALSE(CanUndo());
}

TEST_F(ToolsTest, LosingTheMouseLeavesNothingBehind) {
    SceneryObject* node = build::Node();
    const ByteList before = File();
    Paint();
    Press({ 0, 0 });
    DragTo({ 50, 50 });
    EXPECT_TRUE(state.busy);
    CancelDrag();
    EXPECT_FALSE(state.busy || tools.pressed || fake.dragTimer);
    EXPECT_EQ(File(), before);
    OnMouseMove(PixelOf({ 80, 80 }), {});
    OnButtonUp(PixelOf({ 80, 80 }), {});
    EXPECT_EQ(File(), before);
    EXPECT_FALSE(CanUndo());
    EXPECT_TRUE(IsSelected(node));
}

TEST_F(ToolsTest, EscapeCancelsADrag) {
    build::Node();
    const ByteList before = File();
    Paint();
    EXPECT_FALSE(CanEscape());
    Press({ 0, 0 });
    DragTo({ 50, 50 });
    EXPECT_TRUE(CanEscape());
    Escape();
    EXPECT_FALSE(CanEscape());
    Release({ 50, 50 });
    EXPECT_EQ(File(), before);
    EXPECT_FALSE(CanUndo());
}

TEST_F(ToolsTest, TheDragTimerRunsWhileAButtonIsHeldThatMayDrag) {
    for (const Tool tool : { Tool::Pointer, Tool::Links, Tool::EdgeLights, Tool::Guidelines }) {
        SetTool(tool);
        Press({ 0, 0 });
        EXPECT_TRUE(fake.dragTimer) << int(tool);
        Release({ 0, 0 });
        EXPECT_FALSE(fake.dragTimer) << int(tool);
    }
    for (const Tool tool : { Tool::Nodes, Tool::Parking, Tool::Apron, Tool::ApronPoint, Tool::Markers }) {
        SetTool(tool);
        Press({ 200, 200 });
        EXPECT_FALSE(fake.dragTimer) << int(tool);
        Release({ 200, 200 });
    }
}

TEST_F(ToolsTest, ADragAtTheEdgeScrollsTheMapAndGoesOn) {
    SceneryObject* node = build::Node();
    Paint();
    Press({ 0, 0 });
    OnMouseMove({ kWidth - 3, kHeight / 2 }, {});
    const LatLon before = view.centre;
    const double moved = DistanceTo(node, { 0, 0 });
    OnDragTimer();
    EXPECT_NEAR(DistanceBetween(view.centre, before), kWidth * 0.05, 0.5);
    EXPECT_NEAR(DistanceTo(node, { 0, 0 }), moved + kWidth * 0.05, 1);
    OnMouseMove({ kWidth / 2, kHeight / 2 }, {});
    const LatLon after = view.centre;
    OnDragTimer();  // not at the edge
    EXPECT_EQ(view.centre.lon, after.lon);
}

TEST_F(ToolsTest, NothingScrollsBeforeTheDragHasBegun) {
    Paint();
    OnButtonDown({ 2, 2 }, {});
    const LatLon before = view.centre;
    OnDragTimer();
    EXPECT_EQ(view.centre.lat, before.lat);
    OnButtonUp({ 2, 2 }, {});
    OnDragTimer();
    EXPECT_EQ(view.centre.lat, before.lat);
}

TEST_F(ToolsTest, ALockedMapDoesNotScroll) {
    Paint();
    Press({ 0, 0 });
    OnMouseMove({ 2, 2 }, {});
    view.lockedToSim = true;
    const LatLon before = view.centre;
    OnDragTimer();
    EXPECT_EQ(view.centre.lat, before.lat);
}

TEST_F(ToolsTest, ADoubleClickOpensThePropertiesOfWhatLiesThere) {
    SceneryObject* node = build::Node();
    Paint();
    Click({ 0, 0 });
    OnDoubleClick(PixelOf({ 0, 0 }), {});
    EXPECT_EQ(fake.openedProperties, std::vector<SceneryObject*>{ node });
    EXPECT_FALSE(tools.pressed);
    OnDoubleClick(PixelOf({ 100, 100 }), {});  // nothing there: a press
    EXPECT_TRUE(tools.pressed);
    OnButtonUp(PixelOf({ 100, 100 }), {});
    SetTool(Tool::Markers);
    OnDoubleClick(PixelOf({ 0, 0 }), {});
    EXPECT_EQ(fake.openedProperties.size(), 1u);
}

TEST_F(ToolsTest, ALockedMapOpensNothing) {
    build::Node();
    Paint();
    view.lockedToSim = true;
    OnDoubleClick(PixelOf({ 0, 0 }), {});
    EXPECT_TRUE(fake.openedProperties.empty());
}

TEST_F(ToolsTest, TheStripToolSwitchesTheLightsOn) {
    SetTool(Tool::Links);
    EXPECT_FALSE(layers.lights);
    SetTool(Tool::EdgeLights);
    EXPECT_TRUE(layers.lights);
    EXPECT_GT(fake.repaints, 0);
}

TEST_F(ToolsTest, APressOfTheStripToolShowsLightsHiddenSince) {
    SetTool(Tool::EdgeLights);
    layers.lights = false;
    const int before = fake.repaints;
    Press({ 0, 0 });
    EXPECT_TRUE(layers.lights);
    EXPECT_GT(fake.repaints, before);
}

TEST_F(ToolsTest, ToolsOfTheNetworkShowIt) {
    for (const Tool tool : { Tool::Nodes, Tool::Links, Tool::Parking }) {
        layers.network = false;
        SetTool(tool);
        EXPECT_TRUE(layers.network);
    }
    layers.network = false;
    for (const Tool tool : { Tool::Pointer, Tool::Apron, Tool::Markers }) SetTool(tool);
    EXPECT_FALSE(layers.network);
}

TEST_F(ToolsTest, APressOnAHiddenNetworkShowsItAndCreates) {
    SetTool(Tool::Nodes);
    layers.network = false;
    Paint();
    Click({ 0, 0 });
    EXPECT_TRUE(layers.network);
    EXPECT_EQ(CountKind(kTaxiNode), 1u);
    SetTool(Tool::Parking);
    layers.network = false;
    Paint();
    Click({ 100, 0 });
    EXPECT_TRUE(layers.network);
    EXPECT_EQ(CountKind(kParkingSpot), 1u);
}

TEST_F(ToolsTest, OnTopOfWhatWasHiddenNothingIsCreated) {
    build::Node();
    BigSpot({ 100, 0 });
    SetTool(Tool::Nodes);
    layers.network = false;
    Paint();
    Click({ 5, 0 });
    layers.network = false;
    Paint();
    Click({ 115, 0 });
    EXPECT_EQ(CountKind(kTaxiNode), 1u);
    SetTool(Tool::Links);
    layers.network = false;
    Paint();
    Drag({ 0, 0 }, { 100, 0 });
    EXPECT_EQ(CountKind(kTaxiNode), 1u);
    EXPECT_EQ(CountKind(kTaxiLink), 1u);
}

TEST_F(ToolsTest, ADoubleClickMakesOneObject) {
    for (const Tool tool : { Tool::Nodes, Tool::Parking, Tool::Markers }) {
        SetTool(tool);
        const size_t before = build::List().size();
        Click({ 100, 100.0 * int(tool) - 300 });
        Paint();
        OnDoubleClick(PixelOf({ 100, 100.0 * int(tool) - 300 }), {});
        OnButtonUp(PixelOf({ 100, 100.0 * int(tool) - 300 }), {});
        EXPECT_EQ(build::List().size(), before + 1) << int(tool);
        EXPECT_FALSE(tools.pressed);
    }
}

TEST_F(ToolsTest, ALockedMapIsNotTakenByTheMiddleButton) {
    view.lockedToSim = true;
    const LatLon before = view.centre;
    OnMiddleDown({ 100, 100 });
    EXPECT_FALSE(tools.panning);
    OnMouseMove({ 150, 100 }, {});
    EXPECT_EQ(view.centre.lon, before.lon);
}

TEST_F(ToolsTest, TheMapScrollsAtTheEdgeOfWhatCanBeSeen) {
    build::Node();
    Paint();
    SetVisible({ 0, 60, kWidth, kHeight - 25 });
    Press({ 0, 0 });
    OnMouseMove({ kWidth / 2, 75 }, {});  // below the bars and their edge
    LatLon before = view.centre;
    OnDragTimer();
    EXPECT_EQ(view.centre.lat, before.lat);
    OnMouseMove({ kWidth / 2, 70 }, {});
    OnDragTimer();
    EXPECT_GT(view.centre.lat, before.lat);
    before = view.centre;
    OnMouseMove({ kWidth / 2, kHeight - 30 }, {});
    OnDragTimer();
    EXPECT_LT(view.centre.lat, before.lat);
}

TEST_F(ToolsTest, TheHighlightIsSetAndCleared) {
    SceneryObject* a = build::Designator("A");
    SetHighlight(a);
    EXPECT_EQ(layers.highlightedDesignator, a);
    EXPECT_EQ(fake.repaints, 1);
    SetHighlight(a);
    EXPECT_EQ(fake.repaints, 1);
    SetHighlight(nullptr);
    EXPECT_EQ(layers.highlightedDesignator, nullptr);
}

TEST_F(ToolsTest, LoadingAnAirportReturnsToThePointer) {
    SetTool(Tool::Nodes);
    Click({ 0, 0 });
    OnMiddleDown({ 1, 1 });
    layers.highlightedDesignator = state.tail;
    ClearModel();
    ResetTools();
    EXPECT_EQ(tools.toolMode, Tool::Pointer);
    EXPECT_FALSE(tools.panning || tools.pressed || tools.hasClick);
    EXPECT_EQ(layers.highlightedDesignator, nullptr);
}

}  // namespace
