#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "fakes/MapFixture.h"

namespace {

using namespace map;
using namespace model;

class RunwayMarkingsTest : public MapFixture {
protected:
    void SetUp() override {
        MapFixture::SetUp();
        Open();
        runway = build::Runway(36);
        Body().surface = 4;
    }
    RunwayRecord& Body() const { return PayloadAs<RunwayPayload>(runway).body; }

    // The marks inside the runway's outline.
    std::vector<CanvasCall> MarksOf(uint16_t flags) const {
        Body().markings = flags;
        RecordingCanvas page;
        Paint(&page);
        std::vector<CanvasCall> marks;
        for (const CanvasCall& call : page.Drawn()) {
            if (call.clipDepth > 0) marks.push_back(call);
        }
        return marks;
    }
    size_t Count(uint16_t flags) const { return MarksOf(flags).size(); }

    // The whole map, call by call.
    std::vector<std::string> MapWith(uint16_t flags) const {
        Body().markings = flags;
        RecordingCanvas page;
        Paint(&page);
        std::vector<std::string> lines;
        for (const CanvasCall& call : page.calls) {
            std::string line = call.name + ' ' + std::to_string(call.pen) + ' ' + std::to_string(call.brush);
            for (const Pixel& point : call.points)
                line += ' ' + std::to_string(point.x) + ',' + std::to_string(point.y);
            lines.push_back(line);
        }
        return lines;
    }

    // How far a bar's side reaches across the page, in metres.
    static double Across(const CanvasCall& bar) {
        return std::abs(bar.points[1].x - bar.points[0].x) / view.pixelsPerMetre;
    }

    SceneryObject* runway = nullptr;
};

TEST_F(RunwayMarkingsTest, MarkingsStayInsideTheRunway) {
    Scale(0.25);
    Body().markings = 0x7F;
    PayloadAs<RunwayPayload>(runway).primaryThreshold = { 4, 200, 45 };
    RecordingCanvas log;
    Paint(&log);
    ASSERT_EQ(log.Drawn("clip").size(), 1u);
    EXPECT_EQ(log.Drawn("clip")[0].points.size(), 4u);
    EXPECT_EQ(log.Drawn("unclip").size(), 1u);
    EXPECT_GT(Count(0x7F), 60u);
}

TEST_F(RunwayMarkingsTest, WhereRunwaysCrossTheMarkingsOfBothAreSeen) {
    Scale(0.25);
    Body().markings = 0x7F;
    SceneryObject* crossing = build::Runway(9);
    auto& body = PayloadAs<RunwayPayload>(crossing).body;
    body.heading = 90;
    body.surface = 4;
    body.markings = 0x7F;
    RecordingCanvas log;
    Paint(&log);
    size_t surfaces = 0, clips = 0;
    for (const CanvasCall& call : log.calls) {
        if (call.name == "clip") ++clips;
        if (call.name != "polygon" || call.clipDepth > 0 || call.brush != RunwayColour(4)) continue;
        EXPECT_EQ(clips, 0u) << "a surface over the markings of the other runway";
        ++surfaces;
    }
    EXPECT_EQ(surfaces, 2u);
    EXPECT_EQ(clips, 2u);
}

TEST_F(RunwayMarkingsTest, EachFlagAddsItsMarks) {
    Scale(0.3);
    Body().length = 2400;
    const struct {
        uint16_t flags;
        size_t marks;
    } kRows[] = {
        { 0x0000, 0 },         { 0x0001, 2 },  // edge lines
        { 0x0002, 2 * 12 },                    // twelve threshold stripes for 150 feet
        { 0x0004, 2 * 2 },                     // aiming points
        { 0x0008, 2 * 2 * 4 },                 // touchdown zone: the fifth place lies too near the middle
        { 0x0048, 2 * 2 * 8 },                 // coded: 3, 2 and 2, 1 bars
        { 0x0010, 39 },                        // 120 feet and 80 feet of gap in 2400 m
        { 0x0020, 2 },                         // designations
        { 0x0122, 1 + 12 },                    // nothing at the secondary end
        { 0x0200, 2 },                         // a cross of two bars
        { 0x0400, 2 },                         // at the other end
        { 0x0800, 1 },                         // STOL
        { 0x1000, 1 },                         // at the other end
        { 0x0040, 0 },                         // precision alone marks nothing
        { 0x0080, 0 },                         // edge pavement lies beside the runway
        { 0xE000, 0 },                         // of another simulator
    };
    for (const auto& row : kRows) EXPECT_EQ(Count(row.flags), row.marks) << row.flags;
}

TEST_F(RunwayMarkingsTest, EveryFlagIsSeenOnAMarkedRunway) {
    constexpr uint16_t kAllMarks = 0x00FF, kForeign = 0xE000;
    Scale(0.3);
    Body().length = 2400;
    for (uint32_t bit = 0; bit < 13; ++bit) {
        const auto without = static_cast<uint16_t>(kAllMarks & ~(1u << bit));
        EXPECT_NE(MapWith(without), MapWith(static_cast<uint16_t>(without | 1u << bit))) << bit;
    }
    EXPECT_EQ(MapWith(kAllMarks | kForeign), MapWith(kAllMarks));
}

TEST_F(RunwayMarkingsTest, TheMarksOfAnEndLieAtThatEnd) {
    Scale(0.3);
    Body().length = 1800;
    const struct {
        uint16_t flags;
        int side;  // of the middle: the primary end of runway 36 lies to the south
    } kRows[] = { { 0x0200, 1 }, { 0x0400, -1 }, { 0x0800, 1 }, { 0x1000, -1 }, { 0x0102, 1 }, { 0x0120, 1 } };
    for (const auto& row : kRows) {
        const std::vector<CanvasCall> marks = MarksOf(row.flags);
        EXPECT_FALSE(marks.empty()) << row.flags;
        for (const CanvasCall& mark : marks) {
            for (const Pixel& point : mark.points) EXPECT_GT((point.y - kHeight / 2) * row.side, 0) << row.flags;
        }
    }
}

TEST_F(RunwayMarkingsTest, TheCentreLineIsAsWideAsTheRunwaysUse) {
    Scale(10);
    const std::pair<uint16_t, double> rows[] = { { 0x0010, 1 }, { 0x0012, 1.5 }, { 0x0050, 3 }, { 0x0052, 3 } };
    for (const auto& [flags, feet] : rows) {
        const std::vector<CanvasCall> dashes = MarksOf(flags);
        ASSERT_FALSE(dashes.empty()) << flags;
        for (const CanvasCall& dash : dashes) EXPECT_NEAR(Across(dash), feet * kMetresPerFoot, 0.1) << flags;
    }
}

TEST_F(RunwayMarkingsTest, TouchdownMarksCountTheDistanceOnPrecisionRunwaysOnly) {
    constexpr double kOfFullWidth = 45 / (150 * kMetresPerFoot);
    Body().length = 2400;
    Scale(8);
    view.centre = build::At({ 0, -1200 + (500 + 75 / 2.0) * kMetresPerFoot });  // the first place of the primary end
    const std::vector<CanvasCall> plain = MarksOf(0x0008), coded = MarksOf(0x0048);
    ASSERT_EQ(plain.size(), 2u);
    for (const CanvasCall& bar : plain) EXPECT_NEAR(Across(bar), 3 * kOfFullWidth, 0.15);
    ASSERT_EQ(coded.size(), 6u);
    for (const CanvasCall& bar : coded) EXPECT_NEAR(Across(bar), 6 * kMetresPerFoot * kOfFullWidth, 0.15);
}

TEST_F(RunwayMarkingsTest, TheAimingPointOfAShortRunwayFollowsItsLandingDistance) {
    const struct {
        float length, displaced;
        double start;  // from the landing threshold
    } kRows[] = { { 600, 0, 150 }, { 799, 100, 150 }, { 1000, 180, 250 }, { 700, 0, 1020 * kMetresPerFoot } };
    for (const auto& row : kRows) {
        Body().length = row.length;
        PayloadAs<RunwayPayload>(runway).primaryThreshold = { 4, row.displaced, 45 };
        Scale(2);
        view.centre = build::At({ 0, -row.length / 2 + row.displaced + row.start + 15 });
        int southern = 0;
        for (const CanvasCall& bar : MarksOf(0x0104)) {  // only the primary end is marked
            const double bottom = std::ranges::max(bar.points, {}, &Pixel::y).y;
            if (bar.points.size() != 4 || std::abs(Across(bar) - 45) < 1) continue;  // the threshold's bar
            southern += std::abs(bottom - PixelOf({ 0, -row.length / 2 + row.displaced + row.start }).y) < 2;
        }
        EXPECT_EQ(southern, 2) << row.length;
    }
    Scale(1);
    view.centre = build::kMiddle;
    Body().length = 340;
    PayloadAs<RunwayPayload>(runway).primaryThreshold = {};
    EXPECT_EQ(Count(0x0004), 0u) << "no room at all";
}

TEST_F(RunwayMarkingsTest, EdgePavementLiesBesideTheRunwayAndUnderIt) {
    Scale(2);
    Body().length = 200;
    RecordingCanvas bare;
    Paint(&bare);
    EXPECT_TRUE(bare.FilledWith(TaxiwayColour(4)).empty());
    Body().markings = 0x0080;
    RecordingCanvas paved;
    Paint(&paved);
    const auto shoulders = paved.FilledWith(TaxiwayColour(4));
    ASSERT_EQ(shoulders.size(), 1u);
    const std::vector<Pixel>& points = shoulders[0].points;
    const auto [left, right] = std::ranges::minmax(points, {}, &Pixel::x);
    const auto [top, bottom] = std::ranges::minmax(points, {}, &Pixel::y);
    EXPECT_NEAR(right.x - left.x, 2 * (45 + 2 * 7.5), 1);
    EXPECT_NEAR(bottom.y - top.y, 2 * 200, 1);
    EXPECT_LT(paved.FirstWith(TaxiwayColour(4)), paved.FirstWith(RunwayColour(4)));
}

TEST_F(RunwayMarkingsTest, ThresholdStripesCountTheWidth) {
    Scale(0.3);
    const struct {
        float feet;
        size_t stripes;
    } kRows[] = { { 60, 4 }, { 75, 6 }, { 100, 8 }, { 150, 12 }, { 200, 16 } };
    for (const auto& row : kRows) {
        Body().width = row.feet * 0.3048f;
        EXPECT_EQ(Count(0x0002), 2 * row.stripes) << row.feet;
    }
}

TEST_F(RunwayMarkingsTest, TheArrowHeadsBeforeADisplacedThresholdNeverOverlap) {
    const std::pair<double, size_t> rows[] = { { 25, 1 }, { 60, 2 }, { 75, 3 }, { 100, 4 }, { 200, 4 } };
    Scale(8);
    view.centre = build::At({ 0, -985 });
    for (const auto& [feet, heads] : rows) {
        const auto width = static_cast<float>(feet * kMetresPerFoot);
        Body().width = width;
        PayloadAs<RunwayPayload>(runway).primaryThreshold = { 4, 25, width };  // room for the row alone
        std::vector<std::pair<int, int>> spans;
        for (const CanvasCall& mark : MarksOf(0)) {
            if (mark.points.size() == 3) spans.push_back({ mark.points[2].x, mark.points[1].x });
        }
        ASSERT_EQ(spans.size(), heads) << feet;
        for (size_t i = 1; i < spans.size(); ++i) EXPECT_GT(spans[i].first, spans[i - 1].second) << feet;
    }
}

TEST_F(RunwayMarkingsTest, AClosedEndsCrossLiesOnItsDesignation) {
    Body().markings = 0x0002 | 0x0020 | 0x0200;
    Scale(4);
    view.centre = build::At({ 0, -930 });
    RecordingCanvas log;
    Paint(&log);
    const std::vector<CanvasCall> cross = log.FilledWith(InkOf(Ink::RunwayYellow));
    ASSERT_EQ(cross.size(), 2u);
    for (const CanvasCall& bar : cross) {
        const double y = (bar.points[0].y + bar.points[2].y) / 2.0;
        EXPECT_NEAR(y, PixelOf({ 0, -1000 + (20 + 150 + 40 + 30) * kMetresPerFoot }).y, 2);
    }
}

}  // namespace
