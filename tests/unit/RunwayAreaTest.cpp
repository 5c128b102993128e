// RunwayAreaTest.cpp - the ground a runway covers, and the runway under a link.
#include "model/RunwayArea.h"

#include <gtest/gtest.h>

#include <cmath>

#include "fakes/BuildObjects.h"

namespace {

using build::At;
using model::SceneryObject;

struct RunwayArea : testing::Test {
    void SetUp() override { model::ClearModel(); }
    void TearDown() override { model::ClearModel(); }
};

SceneryObject* Headed(float heading, build::Place place = {}) {  // 2000 m by 45 m
    SceneryObject* runway = build::Runway(9, 0, place);
    model::PayloadAs<model::RunwayPayload>(runway).body.heading = heading;
    return runway;
}

const SceneryObject* Under(build::Place start, build::Place end) {
    const std::vector<model::RunwayArea> areas = model::RunwayAreas();
    const model::RunwayArea* area = model::RunwayUnder(areas, At(start), At(end));
    return area ? area->runway : nullptr;
}

}  // namespace

TEST_F(RunwayArea, PlacesAreTakenAlongTheHeadingAndToItsRight) {
    const model::RunwayArea area = model::AreaOf(Headed(90));
    const model::Point place = model::PlaceOnRunway(area, At({ 300, -20 }));
    EXPECT_NEAR(place.y, 300, 0.1);
    EXPECT_NEAR(place.x, 20, 0.1);
}

TEST_F(RunwayArea, TheBlastPadsLengthenIt) {
    SceneryObject* runway = Headed(90);
    auto& payload = model::PayloadAs<model::RunwayPayload>(runway);
    payload.primaryBlastPad.length = 100;
    payload.secondaryBlastPad.length = 50;
    const model::RunwayArea area = model::AreaOf(runway);
    EXPECT_TRUE(Contains(area, At({ -1099, 0 })));
    EXPECT_FALSE(Contains(area, At({ -1101, 0 })));
    EXPECT_TRUE(Contains(area, At({ 1049, 0 })));
    EXPECT_FALSE(Contains(area, At({ 1051, 0 })));
    EXPECT_TRUE(Contains(area, At({ 0, 22.4 })));
    EXPECT_FALSE(Contains(area, At({ 0, -22.7 })));
}

TEST_F(RunwayArea, TheBoundaryBelongsToIt) {
    model::RunwayArea area = model::AreaOf(Headed(0));
    const model::Point place = model::PlaceOnRunway(area, At({ 10, 500 }));
    area.high = place.y;
    area.halfWidth = place.x;
    EXPECT_TRUE(Contains(area, At({ 10, 500 })));
    area.high = std::nextafter(place.y, 0.0);
    EXPECT_FALSE(Contains(area, At({ 10, 500 })));
}

TEST_F(RunwayArea, TheMidpointLiesHalfWay) {
    EXPECT_LT(model::DistanceBetween(model::MidpointOf(At({ 0, 0 }), At({ 400, 300 })), At({ 200, 150 })), 0.2);
}

TEST_F(RunwayArea, NoRunwayLiesUnderALinkBesideIt) {
    Headed(90);
    EXPECT_EQ(Under({ -100, 40 }, { 100, 40 }), nullptr);
}

TEST_F(RunwayArea, OfTwoTheOneAlongTheLinkLiesUnderIt) {
    SceneryObject* north = Headed(0);
    SceneryObject* east = Headed(90);
    EXPECT_EQ(Under({ -5, 0 }, { 5, 0 }), east);
    EXPECT_EQ(Under({ 0, 5 }, { 0, -5 }), north);
}

TEST_F(RunwayArea, OfTwoAlongTheLinkTheEarlierLiesUnderIt) {
    SceneryObject* first = Headed(90);
    Headed(270);
    EXPECT_EQ(Under({ -500, 0 }, { 500, 0 }), first);
    EXPECT_EQ(Under({ 500, 0 }, { -500, 0 }), first);
}

TEST_F(RunwayArea, ANearerHeadingElsewhereDoesNotCount) {
    Headed(90, { 0, 3000 });
    SceneryObject* here = Headed(60);
    EXPECT_EQ(Under({ -10, 0 }, { 10, 0 }), here);
}
