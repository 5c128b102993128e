// DeletePartsTest.cpp - aprons and edge lights lose the parts that are selected.
#include "model/DeleteRules.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "fakes/DeleteFixture.h"
#include "model/EditHistory.h"
#include "model/Triangulate.h"

namespace {

using namespace deleting;

class DeleteParts : public DeleteFixture {};

TEST_F(DeleteParts, AWholeApronIsDeleted) {
    Whole(WithSelectedVertices(build::Apron(Hexagon()), { 1 }));
    const Objects before = build::List();
    EXPECT_EQ(DeleteSelected(), 1);
    ExpectLeft({ airport }, before);
}

TEST_F(DeleteParts, SelectedVerticesGoAndTheSurfaceFollows) {
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

TEST_F(DeleteParts, ASelectedVertexGoesHoweverFewAreLeft) {
    SceneryObject* apron = WithSelectedVertices(build::Apron(Hexagon()), { 0, 1, 2, 3 });
    EXPECT_EQ(DeleteSelected(), 1);
    EXPECT_TRUE(SamePoints(ApronOutline(apron), { Hexagon().begin() + 4, Hexagon().end() }));
    EXPECT_EQ(uint16_t{ PayloadAs<ApronHead>(apron).triangleCount }, 0);
    EXPECT_TRUE(fake.messages.empty());
    Undo();
    EXPECT_TRUE(SamePoints(ApronOutline(apron), Hexagon()));
}

TEST_F(DeleteParts, AnApronThatLosesItsLastVertexIsGone) {
    WithSelectedVertices(build::Apron(Hexagon()), { 0, 1, 2, 3, 4, 5 });
    const Objects before = build::List();
    EXPECT_EQ(DeleteSelected(), 1);
    EXPECT_TRUE(fake.messages.empty());
    ExpectLeft({ airport }, before);
}

TEST_F(DeleteParts, AnApronWithoutSelectedVerticesIsLeftAlone) {
    Selected(build::Apron(Hexagon()));
    EXPECT_EQ(DeleteSelected(), 0);
    EXPECT_FALSE(state.modified);
}

TEST_F(DeleteParts, VerticesBeyondTheBitmapCannotBeSelected) {
    std::vector<EncodedPoint> outline;
    for (int i = 0; i < 200; ++i)
        outline.push_back(build::Encoded({ 500 * std::sin(kTwoPi * i / 200), 500 * std::cos(kTwoPi * i / 200) }));
    SceneryObject* apron = Selected(build::Apron(outline));
    std::fill_n(PayloadAs<ApronHead>(apron).selection, 20, uint8_t{ 0xFF });
    EXPECT_EQ(DeleteSelected(), 1);
    EXPECT_TRUE(SamePoints(ApronOutline(apron), { outline.begin() + 160, outline.end() }));
}

TEST_F(DeleteParts, StripsWithAnySelectedPartGo) {
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

TEST_F(DeleteParts, LightsGoWhenWhollySelectedOrWhenNoStripIsLeft) {
    Whole(build::EdgeLights({ Strip(10), Strip(20) }));
    Selected(build::EdgeLights({ Strip(10, 1), Strip(20, 0, 0, 1) }));
    const Objects before = build::List();
    EXPECT_EQ(DeleteSelected(), 2);
    ExpectLeft({ airport }, before);
}

TEST_F(DeleteParts, LightsWithoutASelectedPartAreLeftAlone) {
    Selected(build::EdgeLights({ Strip(10) }));
    Selected(build::EdgeLights({}));
    EXPECT_EQ(DeleteSelected(), 0);
}

}  // namespace
