// PaintNavaidsTest.cpp - the symbols of navaids, and where the hit tests find them.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "fakes/MapFixture.h"
#include "map/ScreenPlace.h"
#include "map/Shapes.h"

namespace {

using namespace map;
using namespace model;

class PaintNavaidsTest : public MapFixture {
protected:
    void SetUp() override {
        MapFixture::SetUp();
        Open();
        layers.navaids = true;
    }
    // An ILS of a runway to the north: antenna at the middle, glide slope and DME to the south.
    static IlsPayload& Ils(uint8_t flags, float width = 4) {
        SceneryObject* object = build::Ils("IABC");
        auto& ils = PayloadAs<IlsPayload>(object);
        ils.body.flags = flags;
        ils.localizer.heading = 0;
        ils.localizer.width = width;
        const EncodedPoint glide = build::Encoded({ -120, -200 }), dme = build::Encoded({ 120, -200 });
        ils.glideSlope.longitude = glide.longitude, ils.glideSlope.latitude = glide.latitude;
        ils.dme.longitude = dme.longitude, ils.dme.latitude = dme.latitude;
        return ils;
    }
    static const ScreenParts& Parts() { return PartsOf(FirstOfKind(state.head, kIls)); }
    static std::vector<CanvasCall> Calls(const char* name, Colour colour) {
        RecordingCanvas log;
        Paint(&log);
        std::vector<CanvasCall> calls;
        for (const CanvasCall& call : log.Drawn(name)) {
            if (call.pen == colour || call.brush == colour) calls.push_back(call);
        }
        return calls;
    }
};

TEST_F(PaintNavaidsTest, ALocalizerIsAFeatherOfItsTrueWidth) {
    Ils(0, 4);
    Scale(0.05);
    Paint();
    const std::vector<Pixel>& beam = Parts().beam;
    ASSERT_EQ(beam.size(), 4u);
    // Three miles back from the antenna, against the course.
    const double far = 5556 * 0.05, half = far * std::tan(2 * kRadiansPerDegree);
    EXPECT_NEAR(beam[3].y, 300 + far, 1.5);
    EXPECT_NEAR(beam[3].x, 400 - half, 1.5);
    EXPECT_NEAR(beam[2].x, 400 + half, 1.5);
}

TEST_F(PaintNavaidsTest, TheFeatherLiesAgainstTheCourse) {
    Ils(0).localizer.heading = 90;
    Scale(0.05);
    Paint();
    EXPECT_NEAR(Parts().beam[3].x, 400 - 5556 * 0.05, 1.5);
    EXPECT_LT(Parts().beam[3].y, 300);  // its left side, flying east, is the north
}

TEST_F(PaintNavaidsTest, ABeamHidesNothingUnlessItIsSelected) {
    Ils(0);
    Scale(0.05);
    EXPECT_TRUE(Calls("polygon", InkOf(Ink::NavaidFill)).empty());
    EXPECT_GT(Calls("line", InkOf(Ink::Navaid)).size(), 20u);
    auto* ils = FirstOfKind(state.head, kIls);
    ils->flags |= kSelected;
    PayloadAs<IlsPayload>(ils).selectedParts = 1;
    EXPECT_GE(Calls("polygon", InkOf(Ink::SelectedFill)).size(), 1u);
}

TEST_F(PaintNavaidsTest, OfAnIlsOnlyThePartsItHasAreDrawn) {
    auto& ils = Ils(0);
    Paint();
    EXPECT_EQ(Parts().localizer.size(), 4u);
    EXPECT_TRUE(Parts().glideSlope.empty());
    EXPECT_TRUE(Parts().dme.empty());
    ils.body.flags = kHasGlideSlope | kHasDme;
    Paint();
    EXPECT_EQ(Parts().glideSlope.size(), 3u);
    EXPECT_EQ(Parts().dme.size(), 4u);
}

TEST_F(PaintNavaidsTest, PartsAreSelectedOneByOne) {
    Ils(kHasGlideSlope | kHasDme).selectedParts = 2;
    FirstOfKind(state.head, kIls)->flags |= kSelected;
    const auto selected = Calls("polygon", InkOf(Ink::SelectedFill));
    ASSERT_EQ(selected.size(), 1u);
    EXPECT_EQ(selected[0].points.size(), 3u);  // the glide slope
}

TEST_F(PaintNavaidsTest, AVorIsAHexagonWithADmeInASquare) {
    auto& vor = PayloadAs<VorDmePayload>(build::Vor()).body;
    const auto corners = [] {
        std::vector<size_t> counts;
        for (const CanvasCall& call : Calls("polygon", InkOf(Ink::Navaid))) counts.push_back(call.points.size());
        std::sort(counts.begin(), counts.end());
        return counts;
    };
    vor.flags = 0x01;
    EXPECT_EQ(corners(), std::vector<size_t>{ 6 });
    vor.flags = 0x01 | kHasDme;
    EXPECT_EQ(corners(), (std::vector<size_t>{ 4, 6 }));
    vor.flags = kHasDme;
    EXPECT_EQ(corners(), std::vector<size_t>{ 4 });
}

TEST_F(PaintNavaidsTest, AnNdbIsRingsOfDots) {
    build::Ndb();
    EXPECT_EQ(Calls("ellipse", InkOf(Ink::Navaid)).size(), 1u + 10 + 16 + 22);
}

TEST_F(PaintNavaidsTest, AMarkerIsALensAcrossItsCourseWithItsLetter) {
    SceneryObject* marker = build::Placed<MarkerBeaconPayload>(kMarkerBeacon, {});
    const struct {
        uint8_t type;
        const char* letter;
    } kRows[] = { { 0, "I" }, { 1, "M" }, { 2, "O" }, { 3, "B" } };
    for (const auto& row : kRows) {
        PayloadAs<MarkerBeaconPayload>(marker).type = row.type;
        RecordingCanvas log;
        Paint(&log);
        ASSERT_EQ(log.Drawn("path").size(), 1u);
        const std::vector<Pixel> points = log.Drawn("path")[0].path.points;
        ASSERT_EQ(points.size(), 7u);
        EXPECT_NEAR(points[0].y, points[3].y, 1);  // from west to east on a course to the north
        EXPECT_NEAR(points[3].x - points[0].x, 2 * 70 * 0.5, 2);
        ASSERT_EQ(log.Drawn("text").size(), 1u);
        EXPECT_EQ(log.Drawn("text")[0].text, row.letter);
    }
}

TEST_F(PaintNavaidsTest, SymbolsWithoutACourseTurnWithTheMap) {
    Scale(1);
    Ils(kHasDme).localizer.heading = 30;
    PayloadAs<VorDmePayload>(build::Vor({ 50, 20 })).body.flags = 0x01 | kHasDme;
    build::Ndb({ -60, 40 });
    const auto middles = [] {
        std::vector<Point> points;
        for (const char* name : { "polygon", "ellipse" }) {
            for (const CanvasCall& call : Calls(name, InkOf(Ink::Navaid))) {
                const bool isCircle = call.name == "ellipse";
                for (const Pixel& at : call.points) points.push_back({ double(at.x), double(at.y) });
                if (!isCircle) continue;
                const Point last = points.back();
                points.pop_back();
                points.back() = (points.back() + last) * 0.5;
            }
        }
        return points;
    };
    const std::vector<Point> upright = middles();
    view.rotation = 0.4;
    const std::vector<Point> turned = middles();
    ASSERT_EQ(upright.size(), turned.size());
    ASSERT_GT(upright.size(), 60u);
    for (size_t i = 0; i < upright.size(); ++i) {
        const Point from = upright[i] - Point{ 400, 300 };
        EXPECT_NEAR(turned[i].x, 400 + from.x * std::cos(0.4) + from.y * std::sin(0.4), 2.5) << i;
        EXPECT_NEAR(turned[i].y, 300 + from.y * std::cos(0.4) - from.x * std::sin(0.4), 2.5) << i;
    }
}

TEST_F(PaintNavaidsTest, ATurnedSquareDoesNotReachIntoItsIdent) {
    Scale(2);
    SceneryObject* vor = build::Vor();
    PayloadAs<VorDmePayload>(vor).body.flags = 0x01 | kHasDme;
    PayloadAs<VorDmePayload>(vor).body.ident = PackIdent("SEA") << kIdentShift | 2;
    view.rotation = kPi / 4;
    RecordingCanvas log;
    Paint(&log);
    ASSERT_EQ(log.Drawn("text").size(), 1u);
    for (const CanvasCall& call : Calls("polygon", InkOf(Ink::Navaid))) {
        for (const Pixel& corner : call.points) EXPECT_LT(corner.x, log.Drawn("text")[0].points[0].x);
    }
}

TEST_F(PaintNavaidsTest, AnIdentStandsBesideItsSymbol) {
    SceneryObject* vor = build::Vor();
    PayloadAs<VorDmePayload>(vor).body.ident = PackIdent("SEA") << kIdentShift | 2;
    RecordingCanvas log;
    Paint(&log);
    ASSERT_EQ(log.Drawn("text").size(), 1u);
    EXPECT_EQ(log.Drawn("text")[0].text, "SEA");
    EXPECT_GT(log.Drawn("text")[0].points[0].x, ScreenPoint(vor, 0).x + ScreenRadius(vor));
}

TEST_F(PaintNavaidsTest, SymbolsGrowWithTheMapFromALeastSize) {
    SceneryObject* vor = build::Vor();
    Paint();
    const int32_t near = ScreenRadius(vor);
    Scale(1);
    Paint();
    EXPECT_EQ(ScreenRadius(vor), 45);
    EXPECT_LT(near, 45);
    Scale(0.001);
    Paint();
    EXPECT_EQ(ScreenRadius(vor), 9);
}

}  // namespace
