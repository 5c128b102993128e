#include "map/MapView.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "fakes/MapFixture.h"
#include "map/Shapes.h"

namespace {

using namespace map;
using model::kPi;
using model::kTwoPi;

constexpr double kStep = 5 * 0.002777777777777778 * kTwoPi;

class MapViewTest : public MapFixture {};

void ExpectSame(LatLon a, LatLon b) {
    EXPECT_EQ(a.lat, b.lat);
    EXPECT_EQ(a.lon, b.lon);
}

// That the simulator's aircraft was placed once, and how.
void ExpectPlaced(LatLon position, double heading) {
    ASSERT_EQ(fake.placedAircraft.size(), 1u);
    ExpectSame(fake.placedAircraft[0].position, position);
    EXPECT_EQ(fake.placedAircraft[0].heading, heading);
}

void ExpectNear(LatLon a, LatLon b, double metres) { EXPECT_LT(model::DistanceBetween(a, b), metres); }

TEST_F(MapViewTest, TheInitialSpanIsTwoNauticalMilesAcrossTheHeight) {
    ResetView(build::kMiddle);
    ResizeView(800, 600);
    EXPECT_DOUBLE_EQ(view.span, 3704.3518);
    EXPECT_DOUBLE_EQ(view.pixelsPerMetre, 600 / 3704.3518);
}

TEST_F(MapViewTest, TheScreenCentreIsHalvedInWholePixels) {
    ResizeView(801, 599);
    EXPECT_EQ(view.screenCentreX, 400);
    EXPECT_EQ(view.screenCentreY, 299);
}

TEST_F(MapViewTest, NorthIsUpAndEastIsRight) {
    const Point north = WorldToScreen(build::At({ 0, 100 })), east = WorldToScreen(build::At({ 100, 0 }));
    EXPECT_NEAR(north.x, 400, 1e-3);
    EXPECT_NEAR(north.y, 250, 1e-3);
    EXPECT_NEAR(east.x, 450, 1e-3);
    EXPECT_NEAR(east.y, 300, 1e-3);
}

TEST_F(MapViewTest, ARotationOfNinetyDegreesPutsEastUp) {
    view.rotation = kPi / 2;
    const Point east = WorldToScreen(build::At({ 100, 0 }));
    EXPECT_NEAR(east.x, 400, 1e-3);
    EXPECT_NEAR(east.y, 250, 1e-3);
}

TEST_F(MapViewTest, ScreenToWorldUndoesWorldToScreenAtAnyRotation) {
    for (double rotation = 0; rotation < kTwoPi; rotation += 0.7) {
        view.rotation = rotation;
        for (const build::Place place : { build::Place{ 900, 300 }, { -700, 450 }, { -20, -1100 }, { 3, 5 } }) {
            const LatLon position = build::At(place);
            ExpectNear(ScreenToWorld(WorldToScreen(position)), position, 0.05);
        }
    }
}

TEST_F(MapViewTest, PixelsAreTruncatedTowardZero) { EXPECT_EQ(ToPixel({ 1.9, -1.9 }), (Pixel{ 1, -1 })); }

TEST_F(MapViewTest, NoCoordinateIsTooLargeForAPixel) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    EXPECT_GT(ToPixel({ 1e300, 0 }).x, 1 << 26);
    EXPECT_LT(ToPixel({ -kInfinity, 0 }).x, -(1 << 26));
    EXPECT_LT(ToPixel({ std::nan(""), 0 }).x, -(1 << 26));  // culled like anything far away
    view.pixelsPerMetre = kInfinity;
    WorldToPixel(build::At({ 10, 10 }));
    WorldToPixel(build::kMiddle);
}

TEST_F(MapViewTest, ZoomingHasNoLimit) {
    const double span = view.span;
    ZoomIn();
    EXPECT_DOUBLE_EQ(view.span, span * 0.9);
    ZoomOut();
    EXPECT_DOUBLE_EQ(view.span, span * 0.9 * 1.1111111111111112);
    for (int i = 0; i < 20'000; ++i) ZoomIn();
    EXPECT_LT(view.span, 1e-300);
    WorldToPixel(build::At({ 10, 10 }));
}

TEST_F(MapViewTest, ZoomingChangesTheScaleAtOnceAndRepaints) {
    ZoomIn();
    EXPECT_DOUBLE_EQ(view.pixelsPerMetre, 600 / view.span);
    EXPECT_EQ(fake.repaints, 1);
}

TEST_F(MapViewTest, ZeroStepsOnlyRepaint) {
    const double span = view.span;
    ZoomSteps(0);
    EXPECT_EQ(view.span, span);
    EXPECT_EQ(fake.repaints, 1);
}

TEST_F(MapViewTest, TenWheelMessagesOfTwelveZoomOnceOnTheTenth) {
    const double span = view.span;
    for (int i = 0; i < 9; ++i) OnWheel(12, false, false);
    EXPECT_EQ(view.span, span);
    OnWheel(12, false, false);
    EXPECT_DOUBLE_EQ(view.span, span * 0.9);
    EXPECT_EQ(view.wheel, 0);
}

TEST_F(MapViewTest, ADeltaOfMinus240ZoomsOutTwice) {
    const double span = view.span;
    OnWheel(-240, false, false);
    EXPECT_DOUBLE_EQ(view.span, span * 1.1111111111111112 * 1.1111111111111112);
}

TEST_F(MapViewTest, TheWheelKeepsTheRemainderOfANotch) {
    OnWheel(-150, false, false);
    EXPECT_EQ(view.wheel, -30);
    OnWheel(150, false, false);  // -30 and 150 are one notch the other way
    EXPECT_EQ(view.wheel, 0);
}

TEST_F(MapViewTest, CtrlAndTheWheelRotateByFiveDegreesShiftByOne) {
    OnWheel(120, true, false);
    EXPECT_NEAR(view.rotation, kStep, 1e-12);
    OnWheel(240, false, true);
    EXPECT_NEAR(view.rotation, kStep * 1.4, 1e-12);
    OnWheel(-120, false, true);
    EXPECT_NEAR(view.rotation, kStep * 1.2, 1e-12);
}

TEST_F(MapViewTest, RotatingDownFromNorthGivesThreeHundredFiftyFive) {
    Rotate(RotateDirection::Subtract, false);
    EXPECT_NEAR(view.rotation, kTwoPi - kStep, 1e-12);
    Rotate(RotateDirection::Add, true);
    EXPECT_NEAR(view.rotation, kTwoPi - kStep * 0.8, 1e-12);
}

TEST_F(MapViewTest, ARotationStaysBelowAFullTurn) {
    for (int i = 0; i < 73; ++i) Rotate(RotateDirection::Add, false);
    EXPECT_GE(view.rotation, 0);
    EXPECT_LT(view.rotation, kTwoPi);
}

TEST_F(MapViewTest, EveryRotationRefreshesTheReadOut) {
    Rotate(RotateDirection::Add, true);
    RotateSteps(2, true);
    EXPECT_EQ(fake.rotationChanges, 2);
}

TEST_F(MapViewTest, PanningMovesByATwentiethOfTheClientSize) {
    PanStep(PanDirection::Right);
    ExpectNear(view.centre, build::At({ 80, 0 }), 0.01);
    PanStep(PanDirection::Left);
    PanStep(PanDirection::Up);
    ExpectNear(view.centre, build::At({ 0, 60 }), 0.01);
    PanStep(PanDirection::Down);
    ExpectNear(view.centre, build::kMiddle, 0.01);
}

TEST_F(MapViewTest, PanningFollowsTheRotatedScreen) {
    view.rotation = kPi / 2;  // east is up
    PanStep(PanDirection::Up);
    ExpectNear(view.centre, build::At({ 60, 0 }), 0.01);
}

TEST_F(MapViewTest, ADragCarriesTheGroundWithThePointer) {
    PanDragStart({ 100, 100 });
    PanDrag({ 140, 90 });
    ExpectNear(view.centre, build::At({ -80, -20 }), 0.01);
    EXPECT_EQ(view.lastDragPoint, (Pixel{ 140, 90 }));
    EXPECT_EQ(fake.repaints, 1);
}

TEST_F(MapViewTest, ADragThatStaysWhereItIsMovesNothing) {
    PanDragStart({ 100, 100 });
    PanDrag({ 100, 100 });
    EXPECT_EQ(fake.repaints, 0);
    PanDrag({ 130, 120 });
    PanDrag({ 100, 100 });
    ExpectNear(view.centre, build::kMiddle, 0.2);  // the east distance is only so fine near the meridian
}

TEST_F(MapViewTest, HomeTurnsTheMapNorthUpAtTheReferencePoint) {
    view.home = build::At({ 300, 400 });
    PanStep(PanDirection::Right);
    Rotate(RotateDirection::Add, false);
    simAircraft.heading = 1;
    SlewHome();
    EXPECT_EQ(view.rotation, 0);
    ExpectSame(view.centre, view.home);
    ExpectPlaced(view.home, 0);
    ExpectSame(simAircraft.position, view.home);
    EXPECT_EQ(simAircraft.heading, 0);
}

TEST_F(MapViewTest, ALockedMapZoomsButNeitherPansNorTurns) {
    view.lockedToSim = true;
    view.rotation = 1;
    const LatLon centre = view.centre = build::At({ 500, 500 });
    const double span = view.span;
    PanStep(PanDirection::Up);
    PanDragStart({ 1, 1 });
    PanDrag({ 9, 9 });
    Rotate(RotateDirection::Add, false);
    RotateSteps(3, false);
    OnWheel(120, true, false);
    SlewHome();
    EXPECT_EQ(view.rotation, 1);
    EXPECT_EQ(view.centre.lat, centre.lat);
    EXPECT_EQ(view.centre.lon, centre.lon);
    ExpectPlaced(view.home, 0);  // the aircraft moves all the same
    OnWheel(120, false, false);
    EXPECT_DOUBLE_EQ(view.span, span * 0.9);
}

TEST_F(MapViewTest, JumpHereMovesTheAircraftAndNotTheView) {
    view.rotation = 1;
    const LatLon place = ScreenToWorld({ 10, 20 });
    ASSERT_GT(model::DistanceBetween(place, view.centre), 100);
    JumpHere({ 10, 20 });
    ExpectPlaced(place, 1);  // it looks up the map
    ExpectSame(view.centre, build::kMiddle);
    EXPECT_EQ(view.rotation, 1);
}

TEST_F(MapViewTest, LoadingAnAirportResetsTheView) {
    view.rotation = 2;
    view.span = 1;
    view.lockedToSim = true;
    const LatLon home = build::At({ 1000, 0 });
    ResetView(home);
    EXPECT_EQ(view.rotation, 0);
    EXPECT_EQ(view.span, kInitialSpan);
    EXPECT_EQ(view.pixelsPerMetre, view.clientHeight / kInitialSpan);
    ExpectSame(view.centre, home);
    ExpectSame(view.home, home);
    EXPECT_EQ(fake.rotationChanges, 1);
    EXPECT_GE(fake.repaints, 1);
}

TEST_F(MapViewTest, TheBarsLeaveTheTransformAsItIs) {
    const Point before = WorldToScreen(build::At({ 100, 50 }));
    EXPECT_EQ(view.visible.right, view.clientWidth);
    EXPECT_EQ(view.visible.bottom, view.clientHeight);
    SetVisible({ 0, 60, kWidth, kHeight - 20 });
    const Point after = WorldToScreen(build::At({ 100, 50 }));
    EXPECT_EQ(before.x, after.x);
    EXPECT_EQ(before.y, after.y);
    EXPECT_EQ(view.screenCentreY, kHeight / 2);
}

}  // namespace
