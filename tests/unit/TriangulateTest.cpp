#include "model/Triangulate.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <set>

#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"

namespace {

using namespace model;
using Outline = std::vector<EncodedPoint>;
using Triangles = std::vector<ApronTriangle>;

// Corners in units east and south of a point in the middle of the encoded plane.
Outline Drawn(std::initializer_list<std::pair<int, int>> corners) {
    Outline outline;
    for (const auto& [east, south] : corners)
        outline.push_back({ 0x10000000u + static_cast<uint32_t>(east), 0x0B000000u + static_cast<uint32_t>(south) });
    return outline;
}

// Twice the area as seen from above; positive when clockwise.
int64_t ClockwiseArea(const Outline& outline, const std::vector<uint16_t>& corners) {
    int64_t area = 0;
    const auto x = [&](size_t i) { return int64_t{ outline[corners[i]].longitude } - outline[0].longitude; };
    const auto south = [&](size_t i) { return int64_t{ outline[corners[i]].latitude } - outline[0].latitude; };
    for (size_t i = 0, last = corners.size() - 1; i < corners.size(); last = i++)
        area += x(last) * south(i) - x(i) * south(last);
    return area;
}

std::vector<uint16_t> CornersOf(const ApronTriangle& t) { return { t.vertex[0], t.vertex[1], t.vertex[2] }; }

// A triangulation: corners - 2 clockwise triangles that together have the outline's area and whose inner
// edges are shared by two of them.
void ExpectTriangulates(const Outline& outline) {
    const Triangles triangles = Triangulate(outline);
    ASSERT_EQ(triangles.size(), outline.size() - 2);
    int64_t sum = 0;
    std::multiset<std::pair<uint16_t, uint16_t>> edges;
    for (const ApronTriangle& triangle : triangles) {
        const auto corners = CornersOf(triangle);
        for (uint16_t corner : corners) ASSERT_LT(corner, outline.size());
        const int64_t area = ClockwiseArea(outline, corners);
        EXPECT_GT(area, 0) << corners[0] << ' ' << corners[1] << ' ' << corners[2];
        sum += area;
        for (size_t i = 0; i < 3; ++i) edges.insert({ corners[i], corners[(i + 1) % 3] });
    }
    std::vector<uint16_t> all(outline.size());
    for (size_t i = 0; i < all.size(); ++i) all[i] = static_cast<uint16_t>(i);
    EXPECT_EQ(sum, std::abs(ClockwiseArea(outline, all)));
    const bool clockwise = ClockwiseArea(outline, all) > 0;
    for (const auto& edge : edges) {
        EXPECT_EQ(edges.count(edge), 1u);
        const auto n = static_cast<uint16_t>(outline.size());
        const bool ofOutline = clockwise ? edge.second == (edge.first + 1) % n : edge.first == (edge.second + 1) % n;
        EXPECT_EQ(edges.count({ edge.second, edge.first }), ofOutline ? 0u : 1u);
    }
}

void ExpectTriangulatesBothWays(Outline outline) {
    ExpectTriangulates(outline);
    std::reverse(outline.begin(), outline.end());
    ExpectTriangulates(outline);
}

TEST(Triangulate, FewerThanThreeCornersGiveNothing) {
    EXPECT_TRUE(Triangulate({}).empty());
    EXPECT_TRUE(Triangulate(Drawn({ { 0, 0 } })).empty());
    EXPECT_TRUE(Triangulate(Drawn({ { 0, 0 }, { 5, 5 } })).empty());
}

TEST(Triangulate, ATriangleIsItself) {
    const Triangles triangles =
        Triangulate(Drawn({ { 0, 0 }, { 10, 0 }, { 10, 10 } }));  // west, east, south: clockwise
    ASSERT_EQ(triangles.size(), 1u);
    auto corners = CornersOf(triangles[0]);
    std::rotate(corners.begin(), std::min_element(corners.begin(), corners.end()), corners.end());
    EXPECT_EQ(corners, (std::vector<uint16_t>{ 0, 1, 2 }));
}

TEST(Triangulate, ConvexAndHollowOutlinesDrawnEitherWay) {
    ExpectTriangulatesBothWays(Drawn({ { 0, 0 }, { 10, 0 }, { 10, 10 }, { 0, 10 } }));
    ExpectTriangulatesBothWays(Drawn({ { 0, 0 }, { 10, 0 }, { 10, 10 }, { 5, 3 }, { 0, 10 } }));
    ExpectTriangulatesBothWays(
        Drawn({ { 0, 0 }, { 30, 0 }, { 30, 30 }, { 20, 30 }, { 20, 10 }, { 10, 10 }, { 10, 30 }, { 0, 30 } }));
}

TEST(Triangulate, CornersInLineWithTheirNeighboursDoNoHarm) {
    ExpectTriangulatesBothWays(Drawn({ { 0, 0 }, { 5, 0 }, { 10, 0 }, { 10, 10 }, { 0, 10 } }));
    ExpectTriangulatesBothWays(Drawn({ { 0, 0 }, { 2, 0 }, { 4, 0 }, { 6, 0 }, { 3, 6 } }));
    ExpectTriangulatesBothWays(
        Drawn({ { 5, 0 }, { 10, 0 }, { 10, 5 }, { 10, 10 }, { 5, 10 }, { 0, 10 }, { 0, 5 }, { 0, 0 } }));
}

TEST(Triangulate, ASpiralIsCoveredWhicheverWayItIsDrawn) {
    ExpectTriangulatesBothWays(Drawn({ { 0, 0 },
                                       { 100, 0 },
                                       { 100, 100 },
                                       { 20, 100 },
                                       { 20, 40 },
                                       { 60, 40 },
                                       { 60, 60 },
                                       { 40, 60 },
                                       { 40, 80 },
                                       { 80, 80 },
                                       { 80, 20 },
                                       { 0, 20 } }));
}

TEST(Triangulate, RandomStarsOfManyCorners) {
    std::mt19937 random(5);
    for (int round = 0; round < 60; ++round) {
        Outline outline;
        const int corners = 3 + static_cast<int>(random() % 120);
        for (int i = 0; i < corners; ++i) {
            const double angle = kTwoPi * i / corners;
            const double radius = 1000 + static_cast<double>(random() % 50000);
            outline.push_back({ static_cast<uint32_t>(0x10000000 + std::lround(radius * std::sin(angle))),
                                static_cast<uint32_t>(0x0B000000 - std::lround(radius * std::cos(angle))) });
        }
        if (corners < 7) continue;  // below that a star may fold over its middle
        ExpectTriangulatesBothWays(outline);
        if (testing::Test::HasFailure()) return;
    }
}

TEST(Triangulate, AnApronAcrossThe180thMeridian) {
    // 50 units west and 50 units east of it, and the same where no meridian is in the way.
    Outline outline = { { 0x30000000 - 50, 1000 }, { 50, 1000 }, { 50, 1100 }, { 0x30000000 - 50, 1100 } };
    Outline moved = { { 1000, 1000 }, { 1100, 1000 }, { 1100, 1100 }, { 1000, 1100 } };
    for (size_t first = 0; first < outline.size(); ++first) {
        const Triangles triangles = Triangulate(outline);
        ASSERT_EQ(triangles.size(), 2u);
        for (const ApronTriangle& triangle : triangles) EXPECT_GT(ClockwiseArea(moved, CornersOf(triangle)), 0);
        std::rotate(outline.begin(), outline.begin() + 1, outline.end());
        std::rotate(moved.begin(), moved.begin() + 1, moved.end());
    }
}

void ExpectFan(const Outline& outline) {
    const Triangles triangles = Triangulate(outline);
    ASSERT_EQ(triangles.size(), outline.size() - 2);
    for (size_t i = 0; i < triangles.size(); ++i) {
        auto corners = CornersOf(triangles[i]);
        EXPECT_GE(ClockwiseArea(outline, corners), 0);
        EXPECT_EQ(corners[0], 0);
        std::sort(corners.begin(), corners.end());
        EXPECT_EQ(corners, (std::vector<uint16_t>{ 0, static_cast<uint16_t>(i + 1), static_cast<uint16_t>(i + 2) }));
    }
}

TEST(Triangulate, AnOutlineThatCrossesItselfGetsAFanOfClockwiseTriangles) {
    ExpectFan(Drawn({ { 0, 0 }, { 10, 10 }, { 10, 0 }, { 0, 10 } }));                        // a bow tie
    ExpectFan(Drawn({ { 0, 0 }, { 10, 0 }, { 10, 10 }, { -5, 5 }, { 0, 10 }, { 3, 20 } }));  // one edge cuts another
    ExpectFan(Drawn({ { 0, 0 }, { 10, 0 }, { 10, 10 }, { 10, 0 }, { 0, 10 } }));             // out and back
}

TEST(Triangulate, CornersThatCoincideOrAllLieInLineGetAFan) {
    ExpectFan(Drawn({ { 0, 0 }, { 0, 0 }, { 0, 0 }, { 0, 0 } }));
    ExpectFan(Drawn({ { 0, 0 }, { 10, 0 }, { 10, 0 }, { 10, 10 }, { 0, 10 } }));
    ExpectFan(Drawn({ { 0, 0 }, { 5, 5 }, { 10, 10 }, { 20, 20 } }));
}

TEST(Triangulate, AnyEncodedValuesGiveTheRightNumberOfTriangles) {
    std::mt19937 random(8);
    for (int round = 0; round < 500; ++round) {
        Outline outline(3 + random() % 12);
        for (EncodedPoint& point : outline)
            point = { static_cast<uint32_t>(random()), static_cast<uint32_t>(random()) };
        EXPECT_EQ(Triangulate(outline).size(), outline.size() - 2);
    }
}

TEST(Triangulate, OutlinesOnAFewPointsWithAllTheirFoldsAndTouchesAreSurvived) {
    std::mt19937 random(5);
    for (int i = 0; i < 50000; ++i) {
        Outline outline(3 + random() % 7);
        for (EncodedPoint& point : outline) {
            point.longitude = 0x10000000u + static_cast<uint32_t>(random() % 4);
            point.latitude = 0x0B000000u + static_cast<uint32_t>(random() % 4);
        }
        const Triangles triangles = Triangulate(outline);
        ASSERT_EQ(triangles.size(), outline.size() - 2) << i;
        for (const ApronTriangle& triangle : triangles) {
            for (const uint16_t corner : { triangle.vertex[0], triangle.vertex[1], triangle.vertex[2] })
                ASSERT_LT(corner, outline.size()) << i;
        }
    }
}

TEST(Triangulate, TheLargestOutlineIsDoneInAMoment) {
    Outline outline(65535);
    for (size_t i = 0; i < outline.size(); ++i)
        outline[i] = { 0x10000000u + static_cast<uint32_t>(i), static_cast<uint32_t>(i % 2) };
    EXPECT_EQ(Triangulate(outline).size(), 65533u);
}

class ApronCopies : public testing::Test {
protected:
    void SetUp() override {
        ResetFakes();
        ClearModel();
    }
    void TearDown() override { ClearModel(); }
};

TEST_F(ApronCopies, TheCopyHasTheNewOutlineAsItsSurfaceAndTriangles) {
    SceneryObject* apron = build::Apron(Drawn({ { 0, 0 }, { 10, 0 }, { 10, 10 }, { 5, 12 }, { 0, 10 } }));
    auto& head = PayloadAs<ApronHead>(apron);
    head.outlineSurface = 4;
    head.surface = 7;
    head.drawFlags = 2;
    head.selection[0] = 0xFF;
    const Outline square = Drawn({ { 0, 0 }, { 10, 0 }, { 10, 10 }, { 0, 10 } });
    SceneryObject* copy = CopyWithOutline(apron, square);
    const auto& copied = PayloadAs<ApronHead>(copy);
    EXPECT_EQ(copy->payloadSize, 29u + 8 * 4 + 8 * 4 + 6 * 2);
    EXPECT_EQ(uint16_t{ copied.outlineCount }, 4);
    EXPECT_EQ(uint16_t{ copied.vertexCount }, 4);
    EXPECT_EQ(uint16_t{ copied.triangleCount }, 2);
    EXPECT_EQ(copied.outlineSurface, 4);
    EXPECT_EQ(copied.surface, 7);
    EXPECT_EQ(copied.drawFlags, 2);
    EXPECT_EQ(copied.selection[0], 0);
    EXPECT_EQ(std::memcmp(copy->payload + 29, square.data(), 32), 0);
    EXPECT_EQ(std::memcmp(copy->payload + 61, square.data(), 32), 0);
    const Triangles triangles = Triangulate(square);
    EXPECT_EQ(std::memcmp(copy->payload + 93, triangles.data(), 12), 0);
    EXPECT_EQ(ApronOutline(apron).size(), 5u);
    EXPECT_EQ(ApronOutline(copy).size(), 4u);
    FreeObject(copy);
}

TEST_F(ApronCopies, AnOutlineMayBeEmpty) {
    SceneryObject* apron = build::Apron({});
    EXPECT_TRUE(ApronOutline(apron).empty());
    SceneryObject* copy = CopyWithOutline(apron, {});
    EXPECT_EQ(copy->payloadSize, 29u);
    FreeObject(copy);
}

}  // namespace
