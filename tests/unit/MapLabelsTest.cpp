// MapLabelsTest.cpp - parking labels and the names of runway ends.
#include <gtest/gtest.h>

#include <cmath>

#include "fakes/MapFixture.h"

namespace {

using namespace map;
using namespace model;

class MapLabelsTest : public MapFixture {
protected:
    void SetUp() override {
        MapFixture::SetUp();
        Open();
    }
    static SceneryObject* Spot(build::Place place, uint32_t number, float radius = 10) {
        SceneryObject* spot = build::Spot(place);
        auto& record = PayloadAs<ParkingSpotRecord>(spot);
        record.packed = 12u | number << 12;  // Gate A
        record.radius = radius;
        return spot;
    }
    static std::vector<CanvasCall> Texts() {
        RecordingCanvas log;
        Paint(&log);
        return log.Drawn("text");
    }
    static std::vector<std::string> Words() {
        std::vector<std::string> words;
        for (const CanvasCall& call : Texts()) words.push_back(call.text);
        return words;
    }
    using List = std::vector<std::string>;
};

TEST_F(MapLabelsTest, ALabelStandsBesideItsCircle) {
    app::settings.showLabels = 1;
    Scale(2);
    Spot({ 0, 0 }, 7);
    const auto texts = Texts();
    ASSERT_EQ(texts.size(), 1u);
    EXPECT_GT(texts[0].points[0].x, 400 + 20);  // the radius is 20 pixels
    EXPECT_LT(texts[0].points[0].x, 400 + 20 + 10);
    EXPECT_NEAR(texts[0].points[0].y, 300, 1);
    EXPECT_EQ(texts[0].run.alignX, platform::AlignX::Left);
}

TEST_F(MapLabelsTest, ALabelBesideThePageIsNotDrawn) {
    app::settings.showLabels = 1;
    Spot({ 955, 0 }, 1);  // the spot lies within the clip rectangle, its label beyond
    EXPECT_EQ(Words(), List{});
}

TEST_F(MapLabelsTest, ALabelThatWouldRunIntoAnEarlierOneIsLeftOut) {
    app::settings.showLabels = 1;
    for (uint32_t i = 0; i < 36; ++i) Spot({ (i % 6) * 10.0 - 30, i / 6 * 10.0 - 30 }, i);
    const auto crowded = Texts();
    EXPECT_LT(crowded.size(), 20u);
    EXPECT_GT(crowded.size(), 3u);
    for (size_t i = 0; i < crowded.size(); ++i) {
        for (size_t j = i + 1; j < crowded.size(); ++j) {
            const Pixel a = crowded[i].points[0], b = crowded[j].points[0];
            EXPECT_FALSE(a == b);
        }
    }
    Scale(12);
    EXPECT_GT(Texts().size(), crowded.size());
}

TEST_F(MapLabelsTest, ALabelMovesToAnotherSideRatherThanCoverANeighbour) {
    app::settings.showLabels = 1;
    Scale(2);
    Spot({ 0, 0 }, 1);
    Spot({ 30, 0 }, 2);  // 40 pixels wide each, 20 between them
    const auto texts = Texts();
    ASSERT_EQ(texts.size(), 2u);
    EXPECT_EQ(texts[0].run.alignX, platform::AlignX::Right);
    EXPECT_LT(texts[0].points[0].x, 400 - 20);
    Spot({ -30, 0 }, 3);
    const auto between = Texts();
    ASSERT_EQ(between.size(), 3u);
    EXPECT_EQ(between[0].run.alignX, platform::AlignX::Centre);  // below
    EXPECT_GT(between[0].points[0].y, 300 + 20);
}

TEST_F(MapLabelsTest, ALabelIsDrawnAsLongAsAPartOfItIsSeen) {
    app::settings.showLabels = 1;
    Scale(2);
    auto& record = PayloadAs<ParkingSpotRecord>(Spot({ -180, 0 }, 0));
    record.packed = 9u | 4095u << 12;
    Spot({ -150, 0 }, 2);  // on its right
    const auto texts = Texts();
    ASSERT_EQ(texts.size(), 2u);
    EXPECT_EQ(texts[0].text, "NW Parking 4095");  // it begins beyond the clip rectangle
    EXPECT_EQ(texts[0].run.alignX, platform::AlignX::Right);
    EXPECT_NEAR(texts[0].points[0].x, 400 - 360 - 20 - 3, 1);
}

TEST_F(MapLabelsTest, LabelsKeepApartAsLargeAsTheMonitorDrawsThem) {
    app::settings.showLabels = 1;
    Scale(2);
    Spot({ 0, 0 }, 1, 1);
    Spot({ 0, -10 }, 2, 1);  // 20 pixels below
    EXPECT_EQ(Texts()[1].run.alignX, platform::AlignX::Left);
    RecordingCanvas fine;
    fine.canvas.textScale = 2;
    Paint(&fine);
    ASSERT_EQ(fine.Drawn("text").size(), 2u);
    EXPECT_EQ(fine.Drawn("text")[0].run.alignX, platform::AlignX::Left);
    EXPECT_EQ(fine.Drawn("text")[1].run.alignX, platform::AlignX::Right);
}

TEST_F(MapLabelsTest, CirclesOnOneAnotherAreLabelledOnceTheyAreLarge) {
    app::settings.showLabels = 1;
    for (uint32_t i = 0; i < 9; ++i) Spot({ (i % 3) * 8.0, i / 3 * 8.0 }, i);
    const auto isMiddleNamed = [] {
        const List words = Words();
        return std::find(words.begin(), words.end(), "Gate A 4") != words.end();
    };
    EXPECT_FALSE(isMiddleNamed());
    Scale(20);
    EXPECT_TRUE(isMiddleNamed());
}

TEST_F(MapLabelsTest, LabelsStayAsTheyAreWhileTheMapIsMoved) {
    app::settings.showLabels = 1;
    for (uint32_t i = 0; i < 40; ++i) Spot({ i * 17.0 - 340, i * 3.0 }, i);
    const List before = Words();
    EXPECT_LT(before.size(), 40u);
    view.centre = build::At({ 700, 0 });  // some spots now lie beside the page
    for (const std::string& word : Words()) EXPECT_NE(std::find(before.begin(), before.end(), word), before.end());
    EXPECT_LT(Words().size(), before.size());
}

TEST_F(MapLabelsTest, RunwayEndsAreNamedWhereNoNumberIsPainted) {
    build::Runway(36);
    Scale(0.25);
    EXPECT_EQ(Words(), (List{ "36", "18" }));
}

TEST_F(MapLabelsTest, APaintedNumberIsReplacedWhenItIsTooSmallToRead) {
    SceneryObject* runway = build::Runway(16, 1);
    PayloadAs<RunwayPayload>(runway).body.markings = 0x0020;
    PayloadAs<RunwayPayload>(runway).body.length = 500;
    Scale(0.5);
    EXPECT_EQ(Words(), (List{ "16L", "34R" }));
    Scale(1);
    EXPECT_EQ(Words(), List{});
}

TEST_F(MapLabelsTest, AnEndWithoutRoomForItsNumberKeepsItsName) {
    SceneryObject* runway = build::Runway(36);
    PayloadAs<RunwayPayload>(runway).body.markings = 0x0022;  // stripes and numbers
    PayloadAs<RunwayPayload>(runway).body.length = 1200;
    PayloadAs<RunwayPayload>(runway).primaryThreshold = { 4, 500, 45 };
    Scale(1);
    view.centre = build::At({ 0, -400 });
    EXPECT_EQ(Words(), List{ "36" });
    PayloadAs<RunwayPayload>(runway).primaryThreshold = { 4, 200, 45 };
    EXPECT_EQ(Words(), List{});
}

TEST_F(MapLabelsTest, AnEndWithoutMarkingsKeepsItsName) {
    SceneryObject* runway = build::Runway(36);
    PayloadAs<RunwayPayload>(runway).body.markings = 0x0120;
    PayloadAs<RunwayPayload>(runway).body.length = 500;
    Scale(1);
    EXPECT_EQ(Words(), List{ "18" });
}

TEST_F(MapLabelsTest, NamesStandUprightForThoseWhoApproach) {
    SceneryObject* runway = build::Runway(9);
    PayloadAs<RunwayPayload>(runway).body.heading = 90;
    PayloadAs<RunwayPayload>(runway).body.length = 1000;
    PayloadAs<RunwayPayload>(runway).primaryBlastPad = { 4, 100, 45 };
    const auto texts = Texts();
    ASSERT_EQ(texts.size(), 2u);
    EXPECT_NEAR(texts[0].run.angle, kPi / 2, 1e-6);  // 9 is read looking east
    EXPECT_NEAR(texts[1].run.angle, -kPi / 2, 1e-6);
    EXPECT_NEAR(texts[0].points[0].x, 400 - 250 - 50 - 4, 1);  // before the blast pad
    EXPECT_NEAR(texts[1].points[0].x, 400 + 250 + 4, 1);
}

TEST_F(MapLabelsTest, NamesTurnWithTheMap) {
    build::Runway(36);
    Scale(0.25);
    view.rotation = 0.5;
    const auto texts = Texts();
    ASSERT_EQ(texts.size(), 2u);
    EXPECT_NEAR(texts[0].run.angle, -0.5, 1e-6);
}

TEST_F(MapLabelsTest, AVerySmallRunwayHasNoNames) {
    build::Runway(36);
    Scale(0.02);
    EXPECT_EQ(Words(), List{});
}

}  // namespace
