// ApronFaultTest.cpp - check 6: aprons whose edges cross.
#include <cmath>
#include <utility>

#include "fakes/FaultAirport.h"
#include "faults/Messages.h"

namespace {

using build::Encoded;
using build::Place;
using faults::FaultCheck;
using model::Point;
using model::SceneryObject;

struct ApronFault : FaultTest {};

std::vector<faults::FaultReport> Reports() { return AllFaults(Only(FaultCheck::ApronPolygons)); }

SceneryObject* ApronOf(std::initializer_list<Place> corners) {
    std::vector<model::EncodedPoint> outline;
    for (Place corner : corners) outline.push_back(Encoded(corner));
    return build::Apron(outline);
}

}  // namespace

TEST_F(ApronFault, ASimpleOutlineIsNoFault) {
    ApronOf({ { 0, 0 }, { 100, 0 }, { 100, 100 }, { 0, 100 } });
    ApronOf({ { 0, 0 }, { 100, 0 }, { 100, 100 }, { 50, 20 }, { 0, 100 } });
    EXPECT_TRUE(Reports().empty());
}

TEST_F(ApronFault, CrossedEdgesAreReportedWithTheCrossing) {
    SceneryObject* apron = ApronOf({ { 0, 0 }, { 100, 100 }, { 100, 0 }, { 0, 100 } });
    const auto reports = Reports();
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(reports[0].message, faults::kCrossedEdgesMessage);
    EXPECT_TRUE(reports[0].message.ends_with("not appearing in Flight Simulator"));
    EXPECT_EQ(reports[0].objects, std::vector{ apron });
    ExpectAt(reports[0], { 50, 50 });
}

TEST_F(ApronFault, ATriangleIsNeverChecked) {
    ApronOf({ { 0, 0 }, { 50, 0 }, { 100, 0 } });
    ApronOf({ { 0, 0 }, { 50, 0 } });
    ApronOf({});  // has no first corner to start from
    EXPECT_TRUE(Reports().empty());
}

TEST_F(ApronFault, TheClosingEdgeCounts) {
    ApronOf({ { 0, 0 }, { 100, 0 }, { 100, 100 }, { 50, -50 } });  // the edge back to the start passes below
    EXPECT_EQ(Reports().size(), 1u);
}

TEST_F(ApronFault, EdgesThatTouchCross) {
    // The fourth corner lies on the first one.
    ApronOf({ { 0, 0 }, { 100, 0 }, { 50, 80 }, { 0, 0 }, { -50, 80 }, { -100, 0 } });
    const auto reports = Reports();
    ASSERT_EQ(reports.size(), 1u);
    ExpectAt(reports[0], { 0, 0 });
}

TEST_F(ApronFault, FirstAndClosingEdgeMeetInTheirCorner) {
    ApronOf({ { 0, 0 }, { 100, 0 }, { 100, 50 }, { 0, 50 } });
    EXPECT_TRUE(Reports().empty());
}

TEST_F(ApronFault, OfSeveralCrossingsTheOneWithTheFirstEdgesIsShown) {
    ApronOf({ { 0, 0 }, { 100, 0 }, { 90, 20 }, { 90, -20 }, { 10, -20 }, { 10, 20 } });
    const auto reports = Reports();  // edge 0 crosses edges 2 (at 90) and 4 (at 10)
    ASSERT_EQ(reports.size(), 1u);
    ExpectAt(reports[0], { 90, 0 });
}

TEST_F(ApronFault, ApronsAreReportedInListOrder) {
    SceneryObject* first = ApronOf({ { 0, 0 }, { 100, 100 }, { 100, 0 }, { 0, 100 } });
    ApronOf({ { 0, 0 }, { 100, 0 }, { 100, 100 }, { 0, 100 } });
    SceneryObject* third = ApronOf({ { 0, 0 }, { 100, 100 }, { 100, 0 }, { 0, 100 } });
    const auto reports = Reports();
    ASSERT_EQ(reports.size(), 2u);
    EXPECT_EQ(reports[0].objects, std::vector{ first });
    EXPECT_EQ(reports[1].objects, std::vector{ third });
}

TEST_F(ApronFault, AnOutlineOfTheMostCornersIsSearchedAtOnce) {
    std::vector<Point> corners;
    for (int i = 0; i < 65535; ++i) {
        const double turn = model::kTwoPi * i / 65535;
        corners.push_back({ 1000 * std::sin(turn), 700 * std::cos(turn) });
    }
    Point crossing;
    EXPECT_FALSE(faults::FindCrossing(corners, &crossing));
    std::swap(corners[40000], corners[40001]);
    EXPECT_TRUE(faults::FindCrossing(corners, &crossing));
    EXPECT_NEAR(crossing.x, corners[40000].x, 1);
    EXPECT_NEAR(crossing.y, corners[40000].y, 1);
}

TEST_F(ApronFault, ASawOfLongTeethIsSearchedAtOnceHoweverItIsTurned) {
    for (const double turn : { 0.0, 20.0, 45.0, 90.0, 135.0, 160.0 }) {
        const double sine = std::sin(turn * model::kRadiansPerDegree),
                     cosine = std::cos(turn * model::kRadiansPerDegree);
        const auto turned = [&](double x, double y) { return Point{ x * cosine - y * sine, x * sine + y * cosine }; };
        std::vector<Point> corners;
        for (int i = 0; i < 60000; ++i) corners.push_back(turned(i * 0.1, i % 2 == 0 ? 0.0 : 5000.0));
        corners.push_back(turned(6000, -1));
        corners.push_back(turned(0, -1));
        Point crossing;
        EXPECT_FALSE(faults::FindCrossing(corners, &crossing)) << turn;
        std::swap(corners[40001], corners[40003]);
        EXPECT_TRUE(faults::FindCrossing(corners, &crossing)) << turn;
    }
}

TEST_F(ApronFault, CornersOnOnePlaceTouch) {
    ApronOf({ { 0, 0 }, { 0, 0 }, { 0, 0 }, { 0, 0 } });
    EXPECT_EQ(Reports().size(), 1u);
}
