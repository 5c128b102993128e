#include "model/Geometry.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <utility>
#include <vector>

#include "model/Geodesy.h"

namespace {

using namespace model;

TEST(Geometry, SquareIsXTimesX) {
    EXPECT_EQ(Square(-3), 9);
    EXPECT_EQ(Square(0.5), 0.25);
}

TEST(AngleAdd, WrapsIntoAFullTurn) {
    EXPECT_NEAR(AngleAdd(1, 2), 3, 1e-15);
    EXPECT_NEAR(AngleAdd(6, 1), 7 - kTwoPi, 1e-15);
    EXPECT_NEAR(AngleAdd(0.5, -1), kTwoPi - 0.5, 1e-15);
    EXPECT_EQ(AngleAdd(0, kTwoPi), 0);
    EXPECT_EQ(AngleAdd(1, -1), 0);
}

TEST(AngleAdd, NeverReachesAFullTurn) {
    EXPECT_LT(AngleAdd(0, -1e-20), kTwoPi);  // adding a full turn to it rounds to a full turn
    EXPECT_GE(AngleAdd(0, -1e-20), 0);
}

TEST(AngleAdd, WrapsOnlyOnce) { EXPECT_NEAR(AngleAdd(0, 5 * kTwoPi), 4 * kTwoPi, 1e-12); }

TEST(WrappedHeading, LiesBelowAFullTurn) {
    EXPECT_EQ(WrappedHeading(0), 0);
    EXPECT_EQ(WrappedHeading(359.5), 359.5F);
    EXPECT_EQ(WrappedHeading(360), 0);
    EXPECT_EQ(WrappedHeading(725), 5);
    EXPECT_EQ(WrappedHeading(-90), 270);
    EXPECT_EQ(WrappedHeading(-1000), 80);
}

TEST(WrappedHeading, AHairBelowAFullTurnIsZero) {
    EXPECT_EQ(WrappedHeading(360 - 1e-9), 0);
    EXPECT_EQ(WrappedHeading(-1e-9), 0);
    EXPECT_LT(WrappedHeading(360 - 1e-4), 360);
    EXPECT_GT(WrappedHeading(360 - 1e-4), 359);
}

TEST(WrappedHeading, OfNoNumberIsZero) {
    EXPECT_EQ(WrappedHeading(std::nan("")), 0);
    EXPECT_EQ(WrappedHeading(INFINITY), 0);
}

TEST(Orientation, IsOneOnTheGreaterSideAndMinusOneElse) {
    EXPECT_EQ(Orientation(Point{ 0, 0 }, Point{ 1, 0 }, Point{ 0, 1 }), 1);
    EXPECT_EQ(Orientation(Point{ 0, 0 }, Point{ 1, 0 }, Point{ 0, -1 }), -1);
    EXPECT_EQ(Orientation(Pixel{ 0, 0 }, Pixel{ 1, 0 }, Pixel{ 0, 1 }), 1);
    EXPECT_EQ(Orientation(Pixel{ 0, 0 }, Pixel{ 1, 0 }, Pixel{ 0, -1 }), -1);
}

TEST(Orientation, PointsInLineGiveMinusOne) {
    EXPECT_EQ(Orientation(Pixel{ 0, 0 }, Pixel{ 1, 1 }, Pixel{ 2, 2 }), -1);
    EXPECT_EQ(Orientation(Pixel{ 5, 5 }, Pixel{ 5, 5 }, Pixel{ 5, 5 }), -1);
    EXPECT_EQ(Orientation(Point{ 0, 0 }, Point{ 2, 0 }, Point{ 1, 0 }), -1);
}

TEST(Orientation, FarPixelsDoNotOverflow) {
    for (const auto& [low, high] : { std::pair{ -(1 << 30), 1 << 30 }, std::pair{ INT32_MIN, INT32_MAX } }) {
        EXPECT_EQ(Orientation(Pixel{ low, low }, Pixel{ high, low }, Pixel{ high, high }), 1);
        EXPECT_EQ(Orientation(Pixel{ low, low }, Pixel{ high, high }, Pixel{ high, low }), -1);
    }
}

template <class P>
void ExpectInsideOnly(const std::vector<P>& polygon, const std::vector<P>& inside, const std::vector<P>& outside) {
    for (const P& p : inside) EXPECT_TRUE(PointInPolygon(p, polygon)) << p.x << ' ' << p.y;
    for (const P& p : outside) EXPECT_FALSE(PointInPolygon(p, polygon)) << p.x << ' ' << p.y;
}

TEST(PointInPolygon, OnlyWhatLiesWithinTheEdgesIsInside) {
    const std::vector<Pixel> square = { { 0, 0 }, { 10, 0 }, { 10, 10 }, { 0, 10 } };
    ExpectInsideOnly<Pixel>(square, { { 5, 5 }, { 1, 1 }, { 9, 9 } }, { { -1, 5 }, { 11, 5 }, { 5, -1 }, { 5, 11 } });
}

TEST(PointInPolygon, TheDirectionOfDrawingDoesNotMatter) {
    const std::vector<Pixel> square = { { 0, 10 }, { 10, 10 }, { 10, 0 }, { 0, 0 } };
    ExpectInsideOnly<Pixel>(square, { { 5, 5 } }, { { 15, 5 }, { 5, 15 } });
}

TEST(PointInPolygon, TheClosingEdgeCounts) {
    const std::vector<Point> triangle = { { 0, 0 }, { 10, 5 }, { 0, 10 } };
    ExpectInsideOnly<Point>(triangle, { { 1, 5 } }, { { -1, 5 } });
}

TEST(PointInPolygon, ARayThroughACornerCrossesOnceOrNotAtAll) {
    // At the height of the left and right corners of a diamond.
    const std::vector<Pixel> diamond = { { 10, 0 }, { 20, 10 }, { 10, 20 }, { 0, 10 } };
    ExpectInsideOnly<Pixel>(diamond, { { 10, 10 }, { 5, 10 }, { 15, 10 } },
                            { { -5, 10 }, { 25, 10 }, { -5, 0 }, { -5, 20 } });
    // A corner that points toward the ray's start.
    const std::vector<Point> notched = { { 0, 0 }, { 10, 0 }, { 10, 10 }, { 0, 10 }, { 5, 5 } };
    ExpectInsideOnly<Point>(notched, { { 7, 5 }, { 2, 1 } }, { { 1, 5 }, { -2, 5 }, { 1, 1.5 } });
}

TEST(PointInPolygon, AHollowIsOutside) {
    const std::vector<Pixel> shape = { { 0, 0 },   { 30, 0 },  { 30, 30 }, { 20, 30 },
                                       { 20, 10 }, { 10, 10 }, { 10, 30 }, { 0, 30 } };
    ExpectInsideOnly<Pixel>(shape, { { 5, 20 }, { 25, 20 }, { 15, 5 } }, { { 15, 20 }, { 15, 31 } });
}

TEST(PointInPolygon, FewerThanThreeCornersHoldNothing) {
    EXPECT_FALSE(PointInPolygon(Pixel{ 0, 0 }, std::vector<Pixel>{}));
    EXPECT_FALSE(PointInPolygon(Pixel{ 0, 0 }, std::vector<Pixel>{ { 0, 0 } }));
    EXPECT_FALSE(PointInPolygon(Pixel{ 1, 0 }, std::vector<Pixel>{ { 0, 0 }, { 5, 0 } }));
}

TEST(PointInPolygon, CornersAtTheEdgeOfThePixelRangeAreHandled) {
    const std::vector<Pixel> huge = { { INT32_MIN / 2, INT32_MIN / 2 },
                                      { INT32_MAX / 2, INT32_MIN / 2 },
                                      { INT32_MAX / 2, INT32_MAX / 2 },
                                      { INT32_MIN / 2, INT32_MAX / 2 } };
    EXPECT_TRUE(PointInPolygon(Pixel{ 3, 4 }, huge));
    const std::vector<Pixel> border = { { 0, 0 }, { INT32_MAX, 0 }, { INT32_MAX, 10 }, { 0, 10 } };
    EXPECT_TRUE(PointInPolygon(Pixel{ 3, 4 }, border));
}

}  // namespace
