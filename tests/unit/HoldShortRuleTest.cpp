#include "map/HoldShortRule.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "fakes/ToolFixture.h"

namespace {

using namespace map;
using namespace model;

// The runway lies north-south through the middle; the node to its east.
class HoldShortRuleTest : public ToolFixture {
protected:
    void SetUp() override {
        ToolFixture::SetUp();
        build::Runway(36);
        node = build::Node({ 80, 0 }, kHoldShortNode);
    }
    SceneryObject* To(build::Place place, float width = 20) const {
        SceneryObject* link = build::Link(node, build::Node(place));
        PayloadAs<TaxiLinkPayload>(link).width = width;
        return link;
    }
    HoldMarking Marking(const LinkList& links) const {
        HoldMarking marking;
        EXPECT_TRUE(FindHoldMarking(node, links, RunwayAreas(), &marking));
        return marking;
    }
    SceneryObject* node = nullptr;
};

TEST_F(HoldShortRuleTest, TheOrderOfTheLinksMakesNoDifference) {
    LinkList links = { To({ 80, 100 }), To({ 80, -100 }), To({ 180, 10 }), To({ 20, 90 }), To({ 150, 150 }, 0) };
    std::sort(links.begin(), links.end());
    const HoldMarking expected = Marking(links);
    bool expectedReverse = false, reverse = false;
    ASSERT_TRUE(DecideReverse(node, links, RunwayAreas(), &expectedReverse));
    do {
        const HoldMarking marking = Marking(links);
        ASSERT_EQ(marking.dashed.x, expected.dashed.x);
        ASSERT_EQ(marking.dashed.y, expected.dashed.y);
        ASSERT_EQ(marking.halfWidth, expected.halfWidth);
        ASSERT_TRUE(DecideReverse(node, links, RunwayAreas(), &reverse));
        ASSERT_EQ(reverse, expectedReverse);
    } while (std::next_permutation(links.begin(), links.end()));
}

TEST_F(HoldShortRuleTest, TheOrderOfEquallyNearRunwaysMakesNoDifference) {
    build::Runway(36, 0, { 160, 0 });  // as far to the east
    const LinkList links = { To({ 80, 100 }), To({ 180, 10 }) };
    std::vector<RunwayArea> areas = RunwayAreas();
    HoldMarking one, other;
    ASSERT_TRUE(FindHoldMarking(node, links, areas, &one));
    std::reverse(areas.begin(), areas.end());
    ASSERT_TRUE(FindHoldMarking(node, links, areas, &other));
    EXPECT_EQ(one.dashed.x, other.dashed.x);
}

TEST_F(HoldShortRuleTest, OfEquallyWideLinksThoseTowardTheRunwayCount) {
    const HoldMarking marking = Marking({ To({ 80, 100 }), To({ 80, -100 }), To({ 0, 0 }) });
    EXPECT_LT(marking.dashed.x, -0.5);  // to the west, halfway between that to the runway and one of the others
}

TEST_F(HoldShortRuleTest, TheWidestTwoCount) {
    const HoldMarking marking = Marking({ To({ 0, 0 }, 10), To({ 80, 100 }, 30), To({ 80, -100 }, 40) });
    EXPECT_NEAR(marking.dashed.x, 0, 5e-3);
    EXPECT_EQ(marking.halfWidth, 20);
}

TEST_F(HoldShortRuleTest, LinksWithoutWidthDoNotCount) {
    HoldMarking marking;
    bool reversed = false;
    const LinkList none = { To({ 0, 0 }, 0), To({ 180, 0 }, std::numeric_limits<float>::quiet_NaN()) };
    EXPECT_FALSE(FindHoldMarking(node, none, RunwayAreas(), &marking));
    EXPECT_FALSE(DecideReverse(node, none, RunwayAreas(), &reversed));
    marking = Marking({ To({ 80, 100 }, 20), To({ 0, 0 }, 0) });
    EXPECT_GT(std::abs(marking.dashed.y), 0.99);
}

TEST_F(HoldShortRuleTest, TheMarkingTurnsWithTheMap) {
    To({ 80, 100 });
    To({ 80, -100 });
    To({ 180, 10 });
    const auto bars = [&] {
        RecordingCanvas log;
        Paint(&log);
        std::vector<Point> middles;
        for (const CanvasCall& call : log.FilledWith(InkOf(Ink::TaxiwayLine))) {
            const LatLon at = ScreenToWorld(
                { (call.points[0].x + call.points[2].x) / 2.0, (call.points[0].y + call.points[2].y) / 2.0 });
            const Local offset = LatLonToLocal(PositionOf(node), at);
            middles.push_back({ offset.east, offset.north });
        }
        return middles;
    };
    Scale(4);
    view.centre = PositionOf(node);
    const std::vector<Point> north = bars();
    ASSERT_GT(north.size(), 4u);
    for (int turn = 1; turn < 8; ++turn) {
        view.rotation = turn * kPi / 4;
        const std::vector<Point> turned = bars();
        ASSERT_EQ(turned.size(), north.size());
        for (size_t i = 0; i < north.size(); ++i) EXPECT_LT(Length(turned[i] - north[i]), 0.6) << turn;
    }
}

}  // namespace
