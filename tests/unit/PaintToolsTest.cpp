#include <gtest/gtest.h>

#include "fakes/ToolFixture.h"
#include "map/ApronTool.h"
#include "map/ToolCursor.h"
#include "map/TurnDrag.h"

namespace {

using namespace map;
using namespace model;

class PaintToolsTest : public ToolFixture {
protected:
    static std::vector<CanvasCall> Strokes(Ink ink) {
        RecordingCanvas log;
        PaintToolFeedback(&log.canvas);
        return log.StrokedWith(InkOf(ink));
    }
    static size_t Calls() {
        RecordingCanvas log;
        PaintToolFeedback(&log.canvas);
        return log.Drawn().size();
    }
    static Ink RubberInk(uint32_t kind, build::Place from, build::Place to) {
        tools.linkKind = kind;
        SetTool(Tool::Links);
        Paint();
        Press(from);
        DragTo(to);
        RecordingCanvas log;
        PaintToolFeedback(&log.canvas);
        const std::vector<CanvasCall> lines = log.Drawn("line");
        CancelDrag();
        EXPECT_EQ(lines.size(), 1u);
        for (const Ink ink : { Ink::TaxiLink, Ink::RunwayLink, Ink::ParkingLink }) {
            if (!lines.empty() && lines[0].pen == InkOf(ink)) return ink;
        }
        return Ink::kCount;
    }
};

TEST_F(PaintToolsTest, NothingIsShownAtRest) {
    build::Node();
    Paint();
    EXPECT_EQ(Calls(), 0u);
}

TEST_F(PaintToolsTest, TheRubberBandHasTheColourOfTheLinkThatIsMade) {
    build::Node({ -100, 0 });
    BigSpot({ 100, 0 });
    EXPECT_EQ(RubberInk(1, { -100, 0 }, { 0, 100 }), Ink::TaxiLink);
    EXPECT_EQ(RubberInk(5, { -100, 0 }, { 0, 100 }), Ink::TaxiLink);
    EXPECT_EQ(RubberInk(2, { -100, 0 }, { 0, 100 }), Ink::RunwayLink);
    EXPECT_EQ(RubberInk(4, { -100, 0 }, { 0, 100 }), Ink::ParkingLink);
    EXPECT_EQ(RubberInk(1, { -100, 0 }, { 100, 0 }), Ink::ParkingLink);
    EXPECT_EQ(RubberInk(1, { 100, 0 }, { 0, 100 }), Ink::ParkingLink);
}

TEST_F(PaintToolsTest, TheCandidateEndLightsUp) {
    build::Node({ -100, 0 });
    build::Node({ 100, 0 });
    SetTool(Tool::Links);
    Paint();
    Press({ -100, 0 });
    DragTo({ 0, 50 });
    EXPECT_EQ(Strokes(Ink::SelectedFill).size(), 1u);  // the start
    DragTo({ 100, 0 });
    const std::vector<CanvasCall> rings = Strokes(Ink::SelectedFill);
    ASSERT_EQ(rings.size(), 2u);
    EXPECT_EQ(rings[1].name, "ellipse");
}

TEST_F(PaintToolsTest, TheOutlineShowsItsClosingEdge) {
    SetTool(Tool::Apron);
    Click({ 0, 0 });
    Click({ 100, 0 });
    OnMouseMove(PixelOf({ 100, 100 }), {});
    RecordingCanvas log;
    PaintToolFeedback(&log.canvas);
    const std::vector<CanvasCall> lines = log.Drawn("line");
    ASSERT_GE(lines.size(), 2u);
    EXPECT_EQ(lines.back().points[0], PixelOf({ 100, 100 }));
    EXPECT_NEAR(lines.back().points[1].x, PixelOf({ 0, 0 }).x, 1);
    EXPECT_NEAR(lines.back().points[1].y, PixelOf({ 0, 0 }).y, 1);
}

TEST_F(PaintToolsTest, TheAreaOfAnApronInItsMakingLiesUnderTheMap) {
    SquareApron();
    SetTool(Tool::Apron);
    Click({ -50, -50 });
    Click({ 50, -50 });
    RecordingCanvas two;
    Paint(&two);
    EXPECT_EQ(two.FilledWith(ApronColour(0)).size(), 1u);  // two corners make no area
    const int repaints = fake.repaints;
    Click({ 50, 250 });
    EXPECT_GT(fake.repaints, repaints);
    RecordingCanvas log;
    Paint(&log);
    const std::vector<CanvasCall> areas = log.FilledWith(ApronColour(0));
    ASSERT_EQ(areas.size(), 2u);
    EXPECT_EQ(areas[0].points.size(), 3u);  // the apron that exists covers it
    EXPECT_EQ(areas[1].points.size(), 4u);
    EXPECT_EQ(log.Drawn()[1].points, areas[0].points);  // right after the background
    TakeBackOutlinePoint();
    RecordingCanvas back;
    Paint(&back);
    EXPECT_EQ(back.FilledWith(ApronColour(0)).size(), 1u);
}

TEST_F(PaintToolsTest, TheLampsOfAPulledStripLieUnderTheMap) {
    model::state.edgeLights.optimumSpacing = 50;
    model::state.edgeLights.adjust = false;
    SquareApron(300);
    SetTool(Tool::EdgeLights);
    Press({ -100, 0 });
    DragTo({ 110, 0 });
    RecordingCanvas log;
    Paint(&log);
    const std::vector<CanvasCall> lamps = log.FilledWith(InkOf(Ink::LightBlue));
    ASSERT_EQ(lamps.size(), 5u);  // over 210 m
    EXPECT_LT(log.FirstWith(InkOf(Ink::LightBlue)), log.FirstWith(ApronColour(0)));
    CancelDrag();
    RecordingCanvas cancelled;
    Paint(&cancelled);
    EXPECT_TRUE(cancelled.FilledWith(InkOf(Ink::LightBlue)).empty());
}

TEST_F(PaintToolsTest, EveryPullShowsItsBand) {
    SetTool(Tool::EdgeLights);
    Press({ -100, 0 });
    DragTo({ 100, 0 });
    EXPECT_FALSE(Strokes(Ink::EdgeLightStrip).empty());
    SetTool(Tool::Guidelines);
    EXPECT_EQ(Calls(), 0u);
    Press({ -100, 0 });
    DragTo({ 100, 0 });
    EXPECT_EQ(Strokes(Ink::Guideline).size(), 1u);
    SetTool(Tool::Pointer);
    Paint();
    Press({ -100, 100 });
    DragTo({ 100, -100 });
    EXPECT_EQ(Strokes(Ink::SelectedOutline).size(), 1u);
    Escape();
    EXPECT_EQ(Calls(), 0u);
}

TEST_F(PaintToolsTest, SelectedSpotsAndASingleLinkShowHandles) {
    SceneryObject* spot = BigSpot({ 200, 200 });
    spot->flags |= kSelected;
    Paint();
    EXPECT_EQ(Calls(), 2u);  // line and knob
    spot->flags &= ~kSelected;
    SceneryObject* link = build::Link(build::Node({ -100, 0 }), build::Node({ 100, 0 }));
    link->flags |= kSelected;
    Paint();
    EXPECT_EQ(Calls(), 2u);  // two knobs
    SetTool(Tool::Links);
    EXPECT_EQ(Calls(), 0u);  // handles belong to the pointer
}

TEST_F(PaintToolsTest, TheFeedbackIsPartOfThePaint) {
    BigSpot({ 0, 0 })->flags |= kSelected;
    Paint();
    RecordingCanvas log;
    PaintFeedback(&log.canvas);
    EXPECT_EQ(log.Drawn().size(), 2u);
}

TEST_F(PaintToolsTest, EveryToolHasItsCursor) {
    const std::pair<Tool, CursorShape> rows[] = {
        { Tool::Nodes, CursorShape::Node },
        { Tool::Links, CursorShape::Link },
        { Tool::Parking, CursorShape::Parking },
        { Tool::Apron, CursorShape::Apron },
        { Tool::ApronPoint, CursorShape::ApronPoint },
        { Tool::EdgeLights, CursorShape::EdgeLights },
        { Tool::Markers, CursorShape::Marker },
        { Tool::Guidelines, CursorShape::Guideline },
        { Tool::Pointer, CursorShape::Arrow },
    };
    for (const auto& [tool, shape] : rows) {
        SetTool(tool);
        EXPECT_EQ(CursorAt({ 10, 10 }), shape);
    }
}

TEST_F(PaintToolsTest, ThePointersCursorTellsWhatADragWouldDo) {
    SceneryObject* spot = BigSpot({ 0, 0 });
    Paint();
    const Pixel middle = PixelOf({ 0, 0 });
    EXPECT_EQ(CursorAt(middle), CursorShape::Arrow);
    Click({ 0, 0 });
    EXPECT_EQ(CursorAt(middle), CursorShape::Move);
    const Point handle = TurnHandleOf(spot);
    EXPECT_EQ(CursorAt({ int(handle.x), int(handle.y) }), CursorShape::Turn);
    Press({ -200, 0 });
    DragTo({ -100, 100 });
    EXPECT_EQ(CursorAt(PixelOf({ -100, 100 })), CursorShape::Box);
    Release({ -100, 100 });
    OnMiddleDown(middle);
    EXPECT_EQ(CursorAt(middle), CursorShape::Hand);
    OnMiddleUp();
    view.lockedToSim = true;
    EXPECT_EQ(CursorAt(middle), CursorShape::Arrow);
}

}  // namespace
