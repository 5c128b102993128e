#include "bgl/Cells.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace bgl;
using model::EncodedPoint;

EncodedPoint Encoded(double north, double east) {
    const model::BglPoint code =
        model::LatLonToBgl({ north * model::kRadiansPerDegree, -east * model::kRadiansPerDegree });
    return { code.lonCode, code.latCode };
}

TEST(Cells, PlacesWhoseCellIsKnownLieInIt) {
    EXPECT_EQ(CellOf({ 0x07B12FA6, 0x07908B15 }), 0x00080FF1u);
    EXPECT_EQ(CellOf({ 0x17F04052, 0x06D933A8 }), 0x00084F7Du);
    EXPECT_EQ(CellOf({ 0x2C282EB9, 0x1608ECDC }), 0x00099E01u);
    EXPECT_EQ(CellOf({ 0x0F95E125, 0x0CCAEF1E }), 0x00083D78u);
    EXPECT_EQ(CellOf(Encoded(47.449, -122.309)), 0x00080FF1u);
}

// The indices of navaids hold the same bits of the code, so that the two agree.
TEST(Cells, TheFarEdgesHaveAColumnAndARowOfTheirOwn) {
    EXPECT_EQ(CellColumn(0x2FFFFFFF), 383u);
    EXPECT_EQ(CellColumn(0x30000000), 384u);
    EXPECT_EQ(CellRow(0x1FFFFFFF), 255u);
    EXPECT_EQ(CellRow(0x20000000), 256u);
    EXPECT_EQ(CellOf({ 0x30000000, 0x20000000 }), 0x80000u | 1u << 16 | 1u << 14 | 1u << 17);
    EXPECT_TRUE(Intersects(RectOfCell(CellOf({ 0x30000000, 5 })), { 0, 10, 0, 10 })) << "one meridian";
    EXPECT_EQ(CellOf({ 0, 0 }), 0x80000u);
}

TEST(Cells, RectangleOfACellHoldsThePointsOfItsId) {
    for (const EncodedPoint point : { EncodedPoint{ 0x07B12FA6, 0x07908B15 }, { 0, 0 }, { 0x2FFFFFFF, 0x1FFFFFFF } }) {
        const CodeRect rect = RectOfCell(CellOf(point));
        EXPECT_TRUE(Contains(rect, point));
        EXPECT_EQ(rect.width, (1 << 21) - 1);
        EXPECT_FALSE(Contains(rect, { point.longitude + (1u << 21), point.latitude }));
        EXPECT_FALSE(Contains(rect, { point.longitude, point.latitude + (1u << 21) }));
    }
}

TEST(Cells, ParentCoversItsChildren) {
    const uint32_t cell = CellOf({ 0x07B12FA6, 0x07908B15 });
    const CodeRect child = RectOfCell(cell), parent = RectOfCell(cell >> 2);
    EXPECT_LE(parent.west, child.west);
    EXPECT_LE(parent.north, child.north);
    EXPECT_EQ(parent.width, (1 << 22) - 1);
    EXPECT_TRUE(Intersects(child, parent));
}

TEST(Cells, IdThatIsNoCellCoversTheWorld) {
    for (uint32_t id : { 0u, 1u, 4u, 0x40000u, 0x80000000u >> 1 }) {
        EXPECT_TRUE(Contains(RectOfCell(id), { 0x2FFFFFFF, 0x1FFFFFFF })) << id;
        EXPECT_TRUE(Contains(RectOfCell(id), { 0, 0 })) << id;
    }
}

TEST(Cells, HeaderKeepsEightDistinctIdsInAscendingOrder) {
    EXPECT_EQ(HeaderCellIds({ 0x80009, 0x80001, 0x80009, 0x80004 }),
              (std::vector<uint32_t>{ 0x80001, 0x80004, 0x80009 }));
    EXPECT_TRUE(HeaderCellIds({}).empty());
}

TEST(Cells, HeaderOfMoreThanEightIdsHoldsParents) {
    std::vector<uint32_t> nine, thirtyThree;
    for (uint32_t i = 0; i < 9; ++i) nine.push_back(0x80000 + i);
    EXPECT_EQ(HeaderCellIds(nine), (std::vector<uint32_t>{ 0x20000, 0x20001, 0x20002 }));
    for (uint32_t i = 0; i < 33; ++i) thirtyThree.push_back(0x80000 + i);  // nine parents, three grandparents
    EXPECT_EQ(HeaderCellIds(thirtyThree), (std::vector<uint32_t>{ 0x8000, 0x8001, 0x8002 }));
}

TEST(Cells, RectangleAroundAPlaceReachesToItsDiagonalCorners) {
    const model::LatLon centre = { 0, 0 };
    const CodeRect rect = RectAround(centre, 10000);
    const double side = 10000 / std::sqrt(2.0);
    const model::BglPoint northWest = model::LatLonToBgl(model::LocalToLatLon(centre, { -side, side }));
    const model::BglPoint southEast = model::LatLonToBgl(model::LocalToLatLon(centre, { side, -side }));
    EXPECT_NEAR(static_cast<double>(rect.west), northWest.lonCode, 1);
    EXPECT_NEAR(static_cast<double>(rect.north), northWest.latCode, 1);
    EXPECT_NEAR(static_cast<double>(rect.west + rect.width), southEast.lonCode, 1);
    EXPECT_NEAR(static_cast<double>(rect.south), southEast.latCode, 1);
}

TEST(Cells, RectangleAcross180DegreesHoldsBothSides) {
    for (double east : { 179.99, -179.99, 180.0, -180.0 }) {
        const CodeRect rect = RectAround({ -18 * model::kRadiansPerDegree, -east * model::kRadiansPerDegree }, 20000);
        EXPECT_TRUE(Contains(rect, Encoded(-18, 179.95))) << east;
        EXPECT_TRUE(Contains(rect, Encoded(-18, -179.95))) << east;
        EXPECT_FALSE(Contains(rect, Encoded(-18, 179.5))) << east;
        EXPECT_FALSE(Contains(rect, Encoded(-18, -179.5))) << east;
        EXPECT_FALSE(Contains(rect, Encoded(-18, 0))) << east;
        EXPECT_TRUE(Intersects(rect, RectOfCell(CellOf(Encoded(-18, 179.95))))) << east;
        EXPECT_TRUE(Intersects(RectOfCell(CellOf(Encoded(-18, -179.95))), rect)) << east;
        EXPECT_FALSE(Intersects(rect, RectOfCell(CellOf(Encoded(-18, 178))))) << east;
        EXPECT_FALSE(Intersects(rect, RectOfCell(CellOf(Encoded(-16, 179.95))))) << east;
    }
}

TEST(Cells, RectangleAtAPoleHoldsWhatLiesBesideIt) {
    const CodeRect rect = RectAround({ -89.99 * model::kRadiansPerDegree, 0 }, 20000);
    EXPECT_TRUE(Contains(rect, Encoded(-89.99, 0)));
    EXPECT_TRUE(Contains(rect, { 0x18000000, 0x20000000 }));
    EXPECT_FALSE(Contains(rect, Encoded(-88, 0)));
    EXPECT_FALSE(Contains(rect, Encoded(89.99, 0)));
}

}  // namespace
