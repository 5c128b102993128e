#include "map/ApronTool.h"

#include <gtest/gtest.h>

#include "fakes/ToolFixture.h"
#include "map/ApronShape.h"
#include "map/Selection.h"
#include "model/DeleteRules.h"
#include "model/Triangulate.h"

namespace {

using namespace map;
using namespace model;

class ApronToolTest : public ToolFixture {
protected:
    void SetUp() override {
        ToolFixture::SetUp();
        SetTool(Tool::Apron);
    }
    static void ClickAll(std::initializer_list<build::Place> places) {
        for (const build::Place place : places) Click(place);
    }
    static void InsertAt(build::Place place) {
        SetTool(Tool::ApronPoint);
        Paint();
        Click(place);
    }
    static const ApronHead& HeadOf(const SceneryObject* apron) { return PayloadAs<ApronHead>(apron); }
};

TEST_F(ApronToolTest, EscapeClosesTheOutlineIntoAnApron) {
    const ByteList before = File();
    ClickAll({ { 0, 0 }, { 100, 0 }, { 100, 100 }, { 0, 100 } });
    EXPECT_EQ(tools.outline.size(), 4u);
    EXPECT_FALSE(CanUndo());
    EXPECT_EQ(File(), before);  // it is no object yet
    ASSERT_TRUE(CanEscape());
    Escape();
    EXPECT_TRUE(tools.outline.empty());
    SceneryObject* apron = state.tail;
    ASSERT_EQ(KindOf(apron), kApron);
    EXPECT_EQ(Copied(HeadOf(apron).outlineCount), 4);
    EXPECT_EQ(Copied(HeadOf(apron).vertexCount), 4);
    EXPECT_EQ(Copied(HeadOf(apron).triangleCount), 2);
    EXPECT_EQ(Copied(HeadOf(apron).drawFlags), 3);
    EXPECT_EQ(apron->flags, kApron | kSelected | kWholeSelected);
    EXPECT_LT(DistanceBetween(map::ApronCorners(apron)[2], build::At({ 100, 100 })), 1.6);
    ExpectOneAction(before);
}

TEST_F(ApronToolTest, EscapeClosesTheOutlineWhileTheButtonIsStillDown) {
    ClickAll({ { 0, 0 }, { 100, 0 } });
    Press({ 100, 100 });
    Escape();
    EXPECT_TRUE(tools.outline.empty());
    EXPECT_EQ(CountKind(kApron), 1u);
    Release({ 100, 100 });
    EXPECT_TRUE(tools.outline.empty());
    EXPECT_EQ(CountKind(kApron), 1u);
}

TEST_F(ApronToolTest, ADoubleClickClosesToo) {
    ClickAll({ { 0, 0 }, { 100, 0 }, { 100, 100 } });
    OnDoubleClick(PixelOf({ 100, 100 }), {});
    EXPECT_EQ(CountKind(kApron), 1u);
    EXPECT_EQ(Copied(HeadOf(state.tail).outlineCount), 3);
    EXPECT_FALSE(tools.pressed);
}

TEST_F(ApronToolTest, ClosingNeedsThreePoints) {
    ClickAll({ { 0, 0 }, { 100, 0 } });
    EXPECT_FALSE(CanCloseOutline());
    CloseOutline();
    OnDoubleClick(PixelOf({ 100, 0 }), {});
    EXPECT_EQ(tools.outline.size(), 2u);
    EXPECT_EQ(CountKind(kApron), 0u);
    Escape();  // there is nothing to close: it is dropped
    EXPECT_TRUE(tools.outline.empty());
    EXPECT_EQ(CountKind(kApron), 0u);
    EXPECT_FALSE(CanUndo() || CanEscape());
}

TEST_F(ApronToolTest, ThePointsAreTakenBackOneByOne) {
    ClickAll({ { 0, 0 }, { 100, 0 }, { 100, 100 } });
    TakeBackOutlinePoint();
    EXPECT_EQ(tools.outline.size(), 2u);
    TakeBackOutlinePoint();
    TakeBackOutlinePoint();
    EXPECT_FALSE(HasOutline());
    TakeBackOutlinePoint();
    EXPECT_FALSE(HasOutline());
}

TEST_F(ApronToolTest, AnotherToolDropsTheOutlineAndTheSameOneKeepsIt) {
    ClickAll({ { 0, 0 }, { 100, 0 }, { 100, 100 } });
    SetTool(Tool::Apron);
    EXPECT_EQ(tools.outline.size(), 3u);
    SetTool(Tool::ApronPoint);
    EXPECT_TRUE(tools.outline.empty());
    EXPECT_EQ(CountKind(kApron), 0u);
}

TEST_F(ApronToolTest, LoadingAnAirportDropsTheOutline) {
    ClickAll({ { 0, 0 } });
    ResetTools();
    EXPECT_FALSE(HasOutline());
}

TEST_F(ApronToolTest, TheSamePlaceTwiceIsOneCorner) {
    ClickAll({ { 0, 0 }, { 0, 0 }, { 100, 0 }, { 100, 0 } });
    EXPECT_EQ(tools.outline.size(), 2u);
}

TEST_F(ApronToolTest, AConcaveOutlineIsPaintedCorrectlyEitherWayRound) {
    const std::initializer_list<build::Place> outline = { { 0, 0 }, { 100, 0 }, { 100, 100 }, { 50, 20 }, { 0, 100 } };
    ClickAll(outline);
    Escape();
    EXPECT_EQ(Copied(HeadOf(state.tail).triangleCount), 3);
    std::vector<build::Place> back(outline);
    for (size_t i = back.size(); i-- > 0;) Click(back[i]);
    Escape();
    EXPECT_EQ(Copied(HeadOf(state.tail).triangleCount), 3);
}

TEST_F(ApronToolTest, APressOnAnEdgeInsertsAVertexThere) {
    SceneryObject* apron = SquareApron();
    const ByteList before = File();
    InsertAt({ 30, -102 });
    ASSERT_EQ(Copied(HeadOf(apron).outlineCount), 5);
    EXPECT_LT(DistanceBetween(map::ApronCorners(apron)[1], build::At({ 30, -100 })), 1.6);
    EXPECT_EQ(Copied(HeadOf(apron).triangleCount), 3);
    EXPECT_TRUE(IsVertexSelected(apron, 1));
    EXPECT_FALSE(IsVertexSelected(apron, 0));
    ExpectOneAction(before);
}

TEST_F(ApronToolTest, AnApronThatLostItsCornersIsFoundAndMended) {
    SceneryObject* apron = SquareApron();
    SetTool(Tool::Pointer);
    Paint();
    Click({ -100, -100 });
    Click({ 100, 100 }, { .shift = true });
    EXPECT_EQ(DeleteSelected(), 1);
    ASSERT_EQ(Copied(HeadOf(apron).outlineCount), 2);
    EXPECT_EQ(Copied(HeadOf(apron).triangleCount), 0);
    InsertAt({ 20, -20 });  // on what was the diagonal
    ASSERT_EQ(Copied(HeadOf(apron).outlineCount), 3);
    SetTool(Tool::Pointer);
    Drag({ 20, -20 }, { 80, 80 });
    ASSERT_EQ(Copied(HeadOf(apron).triangleCount), 1);
    RecordingCanvas page;
    Paint(&page);
    EXPECT_EQ(page.FilledWith(ApronColour(0)).size(), 1u);
}

TEST_F(ApronToolTest, WhatIsLeftOfAnApronCanBeDeletedByClickAndKey) {
    build::Apron({ build::Encoded({ 50, 50 }) });
    SetTool(Tool::Pointer);
    Paint();
    Click({ 50, 50 });
    EXPECT_EQ(DeleteSelected(), 1);
    EXPECT_EQ(CountKind(kApron), 0u);
}

TEST_F(ApronToolTest, TheClosingEdgeIsAnEdgeToo) {
    SceneryObject* apron = SquareApron();
    InsertAt({ -100, 10 });
    ASSERT_EQ(Copied(HeadOf(apron).outlineCount), 5);
    EXPECT_LT(DistanceBetween(map::ApronCorners(apron)[4], build::At({ -100, 10 })), 1.6);
}

TEST_F(ApronToolTest, APressBesideTheEdgesInsertsNothing) {
    SquareApron();
    const ByteList before = File();
    InsertAt({ 0, 0 });
    InsertAt({ 30, -110 });
    EXPECT_EQ(File(), before);
    EXPECT_FALSE(CanUndo());
}

TEST_F(ApronToolTest, TooManyApronsAreRefused) {
    for (int i = 0; i < 255; ++i) SquareApron(1);
    ClickAll({ { 0, 0 }, { 100, 0 }, { 100, 100 } });
    OnDoubleClick(PixelOf({ 100, 100 }), {});
    EXPECT_TRUE(HasOutline());  // there may be room after a deletion
    fake.remark.clear();
    Escape();
    EXPECT_EQ(CountKind(kApron), 255u);
    EXPECT_EQ(fake.remark, "A scenery file can hold no more than 255 aprons");
    EXPECT_EQ(tools.outline.size(), 3u);
}

TEST_F(ApronToolTest, TheFirstCornerDeselectsSoThatDelTakesNothingAway) {
    SceneryObject* node = build::Node({ 200, 200 });
    node->flags |= kSelected;
    Click({ 0, 0 });
    EXPECT_FALSE(IsSelected(node));
    EXPECT_EQ(DeleteSelected(), 0);
    node->flags |= kSelected;  // on purpose
    Click({ 100, 0 });
    EXPECT_TRUE(IsSelected(node));
}

TEST_F(ApronToolTest, AnOutlineHasAtMost4096Corners) {
    tools.outline.assign(4095, build::At({ 0, 0 }));
    Click({ 100, 0 });
    EXPECT_EQ(tools.outline.size(), 4096u);
    EXPECT_EQ(fake.remark, "");
    Click({ 100, 100 });
    EXPECT_EQ(tools.outline.size(), 4096u);
    EXPECT_EQ(fake.remark, "An apron can have no more than 4096 corners");
}

TEST_F(ApronToolTest, AnApronOf4096CornersOrMoreGetsNoOther) {
    std::vector<EncodedPoint> corners(4096, build::Encoded({ -100, -100 }));
    corners[4095] = build::Encoded({ 100, -100 });
    SceneryObject* apron = build::Apron(corners);
    const ByteList before = File();
    InsertAt({ 0, -100 });
    EXPECT_EQ(fake.remark, "An apron can have no more than 4096 corners");
    EXPECT_EQ(Copied(HeadOf(apron).outlineCount), 4096);
    EXPECT_EQ(File(), before);
    EXPECT_FALSE(CanUndo());
}

TEST_F(ApronToolTest, WhereTwoApronsMeetTheSelectedOneGetsTheCorner) {
    SceneryObject* first = SquareApron();
    SceneryObject* second = SquareApron();
    second->flags |= kSelected;
    InsertAt({ 0, -100 });
    EXPECT_EQ(Copied(HeadOf(first).outlineCount), 4);
    EXPECT_EQ(Copied(HeadOf(second).outlineCount), 5);
}

TEST_F(ApronToolTest, DeletingCornersTakesOnlyThemAndAsksNothing) {
    SceneryObject* apron = SquareApron();
    apron->flags |= kSelected;
    SelectVertex(apron, 0, true);
    SelectVertex(apron, 2, true);
    EXPECT_EQ(DeleteSelected(), 1);
    EXPECT_EQ(Copied(HeadOf(apron).outlineCount), 2);
    EXPECT_TRUE(fake.messages.empty());
}

}  // namespace
