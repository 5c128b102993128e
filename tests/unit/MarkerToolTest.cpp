#include "map/MarkerTool.h"

#include <gtest/gtest.h>

#include "fakes/ToolFixture.h"
#include "model/DeleteRules.h"

namespace {

using namespace map;
using namespace model;

class MarkerToolTest : public ToolFixture {
protected:
    static const GuidelinePayload& LineOf(const SceneryObject* line) { return PayloadAs<GuidelinePayload>(line); }
    static double OriginTo(build::Place place) {
        LatLon origin;
        EXPECT_TRUE(ReadOutOrigin(&origin));
        return DistanceBetween(origin, build::At(place));
    }
};

TEST_F(MarkerToolTest, APressPlacesAMarker) {
    SetTool(Tool::Markers);
    Click({ 30, 40 });
    ASSERT_EQ(KindOf(state.tail), kReferenceMarker);
    EXPECT_LT(DistanceTo(state.tail, { 30, 40 }), 1.6);
    EXPECT_EQ(LastMarker(), state.tail);
    Undo();
    EXPECT_EQ(LastMarker(), nullptr);
    EXPECT_FALSE(CanUndo());
}

TEST_F(MarkerToolTest, DistancesAreReadFromTheLastMarkerElseFromTheLastClick) {
    LatLon origin;
    EXPECT_FALSE(ReadOutOrigin(&origin));
    Click({ 10, 10 });
    EXPECT_LT(OriginTo({ 10, 10 }), 1.6);
    SetTool(Tool::Markers);
    Click({ 100, 0 });
    Click({ 200, 0 });
    SetTool(Tool::Pointer);
    Click({ -50, 0 });
    EXPECT_LT(OriginTo({ 200, 0 }), 1.6);
    Undo();
    EXPECT_LT(OriginTo({ 100, 0 }), 1.6);
    DeleteGuidelinesAndMarkers();
    EXPECT_LT(OriginTo({ -50, 0 }), 1.6);
}

TEST_F(MarkerToolTest, PressAndPullMakeAGuidelineWithAMarkerAtEachEnd) {
    SetTool(Tool::Guidelines);
    const auto before = build::List();
    Drag({ -100, 0 }, { 100, 0 });
    ASSERT_EQ(KindOf(state.tail), kGuideline);
    ASSERT_EQ(AllOf(kReferenceMarker).size(), 2u);
    EXPECT_EQ(LineOf(state.tail).from, AllOf(kReferenceMarker)[0]);
    EXPECT_EQ(LineOf(state.tail).to, AllOf(kReferenceMarker)[1]);
    EXPECT_LT(DistanceTo(LineOf(state.tail).to, { 100, 0 }), 1.6);
    Undo();
    EXPECT_EQ(build::List(), before);
    EXPECT_FALSE(CanUndo());
}

TEST_F(MarkerToolTest, ExistingMarkersAreTaken) {
    SceneryObject* a = build::Marker({ -100, 0 });
    SceneryObject* b = build::Marker({ 100, 0 });
    SetTool(Tool::Guidelines);
    Drag({ -97, 2 }, { 97, -2 });
    EXPECT_EQ(CountKind(kReferenceMarker), 2u);
    EXPECT_EQ(LineOf(state.tail).from, a);
    EXPECT_EQ(LineOf(state.tail).to, b);
}

TEST_F(MarkerToolTest, TwoMarkersAreJoinedOnce) {
    build::Guideline(build::Marker({ -100, 0 }), build::Marker({ 100, 0 }));
    SetTool(Tool::Guidelines);
    Drag({ 100, 0 }, { -100, 0 });
    EXPECT_EQ(CountKind(kGuideline), 1u);
    EXPECT_FALSE(CanUndo());
}

TEST_F(MarkerToolTest, AClickAndAReturnMakeNoGuideline) {
    build::Marker({ -100, 0 });
    SetTool(Tool::Guidelines);
    Drag({ 0, 0 }, { 1, 1 });
    Drag({ -100, 0 }, { -96, 0 });
    EXPECT_EQ(CountKind(kGuideline), 0u);
    EXPECT_EQ(CountKind(kReferenceMarker), 1u);
    EXPECT_FALSE(CanUndo() || state.busy);
}

TEST_F(MarkerToolTest, AGuidelinePulledWithTheMapMayEndAtThePixelWhereItBegan) {
    SetTool(Tool::Guidelines);
    Paint();
    const Pixel at = PixelOf({ 0, 0 });
    OnButtonDown(at, {});
    OnMouseMove({ at.x + 50, at.y }, {});
    PanStep(PanDirection::Left);
    OnButtonUp(at, {});
    ASSERT_EQ(CountKind(kGuideline), 1u);
    EXPECT_NEAR(DistanceBetween(PositionOf(LineOf(state.tail).from), PositionOf(LineOf(state.tail).to)), kWidth * 0.05,
                2);
}

TEST_F(MarkerToolTest, AClickOnAMapSeenFromVeryNearMakesNoGuideline) {
    SetTool(Tool::Guidelines);
    Scale(1000);  // the ground is exact to a decimetre
    Paint();
    for (int x = -20; x <= 20; ++x) {
        const Pixel at = { kWidth / 2 + x, kHeight / 2 + 7 };
        OnButtonDown(at, {});
        OnButtonUp({ at.x + 2, at.y - 2 }, {});
    }
    EXPECT_EQ(CountKind(kGuideline), 0u);
    EXPECT_FALSE(CanUndo());
}

TEST_F(MarkerToolTest, ACancelledPullLeavesNothing) {
    SetTool(Tool::Guidelines);
    Press({ 0, 0 });
    DragTo({ 100, 0 });
    EXPECT_TRUE(CurrentGuidelineDrag().hasTo);
    CancelDrag();
    Release({ 100, 0 });
    EXPECT_EQ(CountKind(kReferenceMarker), 0u);
    EXPECT_FALSE(CanUndo());
}

TEST_F(MarkerToolTest, AMarkerDeletedUnderThePullIsNotUsed) {
    SceneryObject* a = build::Marker({ -100, 0 });
    SetTool(Tool::Guidelines);
    Paint();
    Press({ -100, 0 });
    BeginAction();
    DeleteObject(a);
    Release({ 100, 0 });
    EXPECT_EQ(CountKind(kGuideline), 0u);
}

}  // namespace
