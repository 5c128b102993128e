#include "map/EdgeLightsTool.h"

#include <gtest/gtest.h>

#include <cstring>

#include "fakes/ToolFixture.h"
#include "map/LightStrips.h"
#include "model/EdgeLights.h"

namespace {

using namespace map;
using namespace model;

class EdgeLightsToolTest : public ToolFixture {
protected:
    void SetUp() override {
        ToolFixture::SetUp();
        SetTool(Tool::EdgeLights);
    }
    static SceneryObject* Lights() { return FirstOfKind(state.head, kApronEdgeLights); }
};

TEST_F(EdgeLightsToolTest, PressAndPullMakeAStrip) {
    const ByteList before = File();
    Drag({ -100, 0 }, { 100, 0 });
    ASSERT_NE(Lights(), nullptr);
    EXPECT_EQ(Lights()->payloadSize, 45u);
    const auto& head = PayloadAs<EdgeLightsHead>(Lights());
    EXPECT_EQ(Copied(head.stripCount), 1u);
    EXPECT_EQ(Copied(head.brightness), 1);
    const LightStrip strip = StripAt(Lights(), 0);
    EXPECT_LT(DistanceBetween(strip.start, build::At({ -100, 0 })), 1.6);
    EXPECT_LT(DistanceBetween(strip.end, build::At({ 100, 0 })), 1.6);
    EXPECT_NEAR(strip.spacing, 60.96, 1e-4);
    EXPECT_TRUE(IsSelected(Lights()));
    ExpectOneAction(before);
}

TEST_F(EdgeLightsToolTest, ASecondStripJoinsTheSameObject) {
    Drag({ -100, 0 }, { 100, 0 });
    const ByteList before = File();
    Drag({ -100, 100 }, { 100, 100 });
    EXPECT_EQ(CountKind(kApronEdgeLights), 1u);
    ASSERT_EQ(StripCount(Lights()), 2u);
    EXPECT_FALSE(StripAt(Lights(), 0).segmentSelected);
    EXPECT_TRUE(StripAt(Lights(), 1).segmentSelected);
    Undo();
    EXPECT_EQ(File(), before);
}

TEST_F(EdgeLightsToolTest, TooManyStripsAreRefused) {
    Drag({ -100, 0 }, { 100, 0 });
    const EdgeLightStrip strip = StripsOf(Lights())[0];
    ResizePayload(Lights(), static_cast<uint32_t>(sizeof(EdgeLightsHead) + 32767 * sizeof strip));
    PayloadAs<EdgeLightsHead>(Lights()).stripCount = 32767;
    for (size_t i = 0; i < 32767; ++i)
        std::memcpy(Lights()->payload + sizeof(EdgeLightsHead) + i * sizeof strip, &strip, sizeof strip);
    Drag({ -100, 100 }, { 100, 100 });
    EXPECT_EQ(StripCount(Lights()), 32767u);
    EXPECT_EQ(fake.remark, "A scenery file can hold no more strips of apron edge lights");
}

TEST_F(EdgeLightsToolTest, AnEndOnAnEndIsExactlyThere) {
    Drag({ -100, 0 }, { 100, 0 });
    Drag({ 103, 2 }, { 100, 100 });
    const std::vector<EdgeLightStrip> strips = StripsOf(Lights());
    ASSERT_EQ(strips.size(), 2u);
    EXPECT_EQ(Copied(strips[1].startLongitude), Copied(strips[0].endLongitude));
    EXPECT_EQ(Copied(strips[1].startLatitude), Copied(strips[0].endLatitude));
}

TEST_F(EdgeLightsToolTest, TheSpacingEndsAtALampWhenThatIsWanted) {
    state.edgeLights = { true, 60 };
    Drag({ -100, 0 }, { 100, 0 });
    EXPECT_NEAR(StripAt(Lights(), 0).spacing, 200.0 / 3, 1);
}

TEST_F(EdgeLightsToolTest, AClickMakesNoStrip) {
    const ByteList before = File();
    Drag({ 0, 0 }, { 1, 1 });
    EXPECT_EQ(File(), before);
    EXPECT_FALSE(CanUndo() || state.busy);
}

TEST_F(EdgeLightsToolTest, AStripPulledWithTheMapMayEndAtThePixelWhereItBegan) {
    Paint();
    const Pixel at = PixelOf({ 0, 0 });
    OnButtonDown(at, {});
    OnMouseMove({ at.x + 50, at.y }, {});
    PanStep(PanDirection::Up);
    OnButtonUp(at, {});
    ASSERT_NE(Lights(), nullptr);
    EXPECT_NEAR(DistanceBetween(StripAt(Lights(), 0).start, StripAt(Lights(), 0).end), kHeight * 0.05, 2);
}

TEST_F(EdgeLightsToolTest, BackAtTheSameEndThereIsNoStrip) {
    Drag({ -100, 0 }, { 100, 0 });
    Drag({ 97, 0 }, { 103, 0 });  // both at the end of the first
    EXPECT_EQ(StripCount(Lights()), 1u);
}

TEST_F(EdgeLightsToolTest, ADoubleClickWithShiftOnASelectedStripKeepsItSelected) {
    Drag({ -100, 0 }, { 100, 0 });
    Drag({ -100, 100 }, { 100, 100 });
    SetTool(Tool::Pointer);
    Paint();
    const KeyState shift = { true, false };
    Click({ 20, 0 });
    Click({ 20, 100 }, shift);
    Click({ 20, 100 }, shift);
    ASSERT_FALSE(StripAt(Lights(), 1).segmentSelected) << "a click with Shift takes it out";
    OnDoubleClick(PixelOf({ 20, 100 }), shift);
    EXPECT_EQ(fake.openedProperties, std::vector<SceneryObject*>{ Lights() });
    EXPECT_TRUE(StripAt(Lights(), 0).segmentSelected);
    EXPECT_TRUE(StripAt(Lights(), 1).segmentSelected);
}

TEST_F(EdgeLightsToolTest, ACancelledPullLeavesNothing) {
    const ByteList before = File();
    Press({ -100, 0 });
    DragTo({ 100, 0 });
    EXPECT_TRUE(CurrentStripDrag().hasTo);
    Escape();
    EXPECT_FALSE(CurrentStripDrag().active);
    Release({ 100, 0 });
    EXPECT_EQ(File(), before);
    EXPECT_FALSE(CanUndo());
}

}  // namespace
