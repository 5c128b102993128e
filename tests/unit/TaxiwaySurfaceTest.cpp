#include "map/TaxiwaySurface.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "fakes/MapFixture.h"
#include "fakes/RandomAirport.h"

namespace {

using namespace map;
using namespace model;

// Pixels of the drawn pavement, found as a target with winding fill finds them.
class TaxiwaySurfaceTest : public MapFixture {
protected:
    void SetUp() override {
        MapFixture::SetUp();
        layers.network = false;
        Scale(4);
    }

    static SceneryObject* Taxiway(SceneryObject* a, SceneryObject* b, double width, uint32_t type = kTaxiwayLink) {
        SceneryObject* link = build::Link(a, b, type);
        PayloadAs<TaxiLinkPayload>(link).width = static_cast<float>(width);
        PayloadAs<TaxiLinkPayload>(link).flagsWord |= 4u << 24;
        return link;
    }
    // A place `metres` from the middle of the airport, `degrees` clockwise from north.
    static build::Place Around(double degrees, double metres) {
        const double angle = degrees * kRadiansPerDegree;
        return { std::sin(angle) * metres, std::cos(angle) * metres };
    }
    void PaintPavement() {
        RecordingCanvas log;
        Paint(&log);
        figures.clear();
        for (const CanvasCall& call : log.FilledWith(TaxiwayColour(4))) {
            figures.push_back(call.name == "path" ? Flattened(call.path) : call.points);
        }
    }
    static std::vector<Pixel> Flattened(const platform::Path& path) {
        std::vector<Pixel> points;
        size_t at = 0;
        for (const platform::Path::Step step : path.steps) {
            if (step == platform::Path::Step::Close) continue;
            if (step != platform::Path::Step::Curve) {
                points.push_back(path.points[at++]);
                continue;
            }
            const Pixel p[] = { points.back(), path.points[at], path.points[at + 1], path.points[at + 2] };
            for (int i = 1; i <= 16; ++i) {
                const double t = i / 16.0, u = 1 - t;
                const auto mix = [&](auto part) {
                    return static_cast<int>(std::lround(u * u * u * part(p[0]) + 3 * u * u * t * part(p[1]) +
                                                        3 * u * t * t * part(p[2]) + t * t * t * part(p[3])));
                };
                points.push_back(
                    { mix([](Pixel q) { return double(q.x); }), mix([](Pixel q) { return double(q.y); }) });
            }
            at += 3;
        }
        return points;
    }
    static int Winding(Pixel at, const std::vector<Pixel>& figure) {
        int winding = 0;
        for (size_t i = 0; i < figure.size(); ++i) {
            const Pixel a = figure[i], b = figure[(i + 1) % figure.size()];
            const double side = double(b.x - a.x) * (at.y - a.y) - double(at.x - a.x) * (b.y - a.y);
            if (a.y <= at.y && b.y > at.y && side > 0) ++winding;
            if (a.y > at.y && b.y <= at.y && side < 0) --winding;
        }
        return winding;
    }
    bool IsPavedAt(Pixel at) const {
        for (const auto& figure : figures) {
            // The outline is drawn too: a pixel beside a border counts.
            for (const Pixel near : { at, Pixel{ at.x + 1, at.y }, Pixel{ at.x - 1, at.y }, Pixel{ at.x, at.y + 1 },
                                      Pixel{ at.x, at.y - 1 } }) {
                if (Winding(near, figure) != 0) return true;
            }
        }
        return false;
    }
    bool IsPavedAt(build::Place place) const { return IsPavedAt(PixelOf(place)); }

    std::vector<std::vector<Pixel>> figures;
};

TEST_F(TaxiwaySurfaceTest, ALinkIsPavedToItsWidth) {
    Open();
    Taxiway(build::Node({ -60, 0 }), build::Node({ 60, 0 }), 20);
    PaintPavement();
    EXPECT_TRUE(IsPavedAt(build::Place{ 0, 9.5 }));
    EXPECT_TRUE(IsPavedAt(build::Place{ 0, -9.5 }));
    EXPECT_FALSE(IsPavedAt(build::Place{ 0, 10.8 }));
}

TEST_F(TaxiwaySurfaceTest, ADeadEndIsRounded) {
    Open();
    Taxiway(build::Node({ 0, 0 }), build::Node({ 60, 0 }), 20);
    PaintPavement();
    EXPECT_TRUE(IsPavedAt(build::Place{ -9, 0 }));
    EXPECT_FALSE(IsPavedAt(build::Place{ -11, 0 }));
    EXPECT_FALSE(IsPavedAt(build::Place{ -9.5, 9.5 }));
}

TEST_F(TaxiwaySurfaceTest, AnInnerCornerIsFilletedAnOuterOneRounded) {
    Open();
    SceneryObject* bend = build::Node();
    Taxiway(build::Node({ 0, 100 }), bend, 20);
    Taxiway(bend, build::Node({ 100, 0 }), 20);
    PaintPavement();
    EXPECT_TRUE(IsPavedAt(build::Place{ 12, 12 }));  // beyond the bare crossing of the edges
    EXPECT_FALSE(IsPavedAt(build::Place{ 30, 30 }));
    EXPECT_TRUE(IsPavedAt(build::Place{ -6, -6 }));
    EXPECT_FALSE(IsPavedAt(build::Place{ -9.7, -9.7 }));
}

TEST_F(TaxiwaySurfaceTest, CornersAreCubicsWithThirdsTruncated) {
    RecordingCanvas log;
    Outline outline;
    MoveTo(&outline, { 0, 0 });
    QuadTo(&outline, { 10, -7 }, { 20, 5 });
    FillOutline(&log.canvas, outline);
    ASSERT_EQ(log.Drawn("path").size(), 1u);
    const auto points = log.Drawn("path")[0].points;
    EXPECT_EQ(points[1], (Pixel{ 6, -4 }));   // 20 / 3 and -14 / 3
    EXPECT_EQ(points[2], (Pixel{ 13, -3 }));  // 10 + 10 / 3 and -7 + 12 / 3
    EXPECT_EQ(points[3], (Pixel{ 20, 5 }));
}

// The edges of a taxiway turned off at 45 degrees cross 24 m out; the hold-short node stands at 30.
TEST_F(TaxiwaySurfaceTest, AFilletMayReachAsFarAsANodeWhereTheTaxiwayRunsStraightOn) {
    const auto paveExit = [&](double beyondDegrees) {
        ClearModel();
        Open();
        SceneryObject *exit = build::Node(), *hold = build::Node({ -30, 0 });
        const double angle = beyondDegrees * kRadiansPerDegree;
        Taxiway(hold, build::Node({ -30 - 60 * std::cos(angle), -60 * std::sin(angle) }), 20);
        Taxiway(hold, exit, 20);
        Taxiway(exit, build::Node({ 80, 0 }), 20);
        Taxiway(exit, build::Node(Around(-45, 80)), 20);
        PaintPavement();
        return IsPavedAt(build::Place{ -25.5, 10.6 });  // in the corner
    };
    EXPECT_TRUE(paveExit(0));
    EXPECT_FALSE(paveExit(45));  // the corner there needs some of the room
}

TEST_F(TaxiwaySurfaceTest, RunwayLinksAndApronRoutesPaveNothing) {
    Open();
    Taxiway(build::Node({ -60, 0 }), build::Node({ 60, 0 }), 20, kRunwayLink);
    Taxiway(build::Node({ -60, 40 }), build::Node({ 60, 40 }), 20, kApronRouteLink);
    PaintPavement();
    EXPECT_TRUE(figures.empty());
}

TEST_F(TaxiwaySurfaceTest, ATaxiwayGetsAFilletWhereItMeetsARunway) {
    Open();
    SceneryObject* meeting = build::Node();
    Taxiway(build::Node({ 0, -80 }), meeting, 40, kRunwayLink);
    Taxiway(meeting, build::Node({ 0, 80 }), 40, kRunwayLink);
    Taxiway(meeting, build::Node({ 90, 0 }), 20);
    PaintPavement();
    EXPECT_TRUE(IsPavedAt(build::Place{ 22, 12 }));
    EXPECT_TRUE(IsPavedAt(build::Place{ 22, -12 }));
    EXPECT_FALSE(IsPavedAt(build::Place{ -22, 0 }));  // nothing on the other side
}

// Whatever meets at a node: every link is covered from node to node, and around the node there is no gap.
TEST_F(TaxiwaySurfaceTest, JunctionsOfAnyShapeHaveNoGaps) {
    Random random = { 7 };
    for (int round = 0; round < 400; ++round) {
        ClearModel();
        Open();
        SceneryObject* hub = build::Node();
        struct Arm {
            double degrees, length, width;
        };
        std::vector<Arm> arms;
        const uint32_t count = 1 + Below(&random, 5);
        for (uint32_t i = 0; i < count; ++i) {
            arms.push_back({ double(Below(&random, 360)), 25.0 + Below(&random, 45), 6.0 + Below(&random, 24) });
            SceneryObject* far = build::Node(Around(arms.back().degrees, arms.back().length));
            OneIn(&random, 2) ? Taxiway(hub, far, arms.back().width) : Taxiway(far, hub, arms.back().width);
        }
        PaintPavement();
        double narrowest = 1e9;
        for (const Arm& arm : arms) narrowest = std::min(narrowest, arm.width);
        for (const Arm& arm : arms) {
            for (double along = 0; along <= arm.length; along += 1.5) {
                for (const double share : { -0.45, -0.2, 0.0, 0.2, 0.45 }) {
                    // The corners at the hub itself may be cut off, but not what lies around it.
                    const double beside = std::abs(share) * arm.width;
                    if (beside > along && beside > narrowest * 0.2) continue;
                    build::Place at = Around(arm.degrees, along);
                    const build::Place side = Around(arm.degrees + 90, arm.width * share);
                    ASSERT_TRUE(IsPavedAt(build::Place{ at.east + side.east, at.north + side.north }))
                        << "round " << round << ": " << arm.degrees << " degrees, " << along << " m, " << share;
                }
            }
        }
        for (double degrees = 0; degrees < 360; degrees += 5) {
            ASSERT_TRUE(IsPavedAt(Around(degrees, narrowest * 0.2))) << "round " << round << " at " << degrees;
        }
    }
}

// Links that branch from up to three nodes, and what pavement they excuse.
struct Branches {
    struct Stop {
        build::Place at;
        double widest = 0;  // half width of a link there, metres
    };
    struct Line {
        size_t from, to;
        double half;
    };
    std::vector<Stop> stops = { {} };
    std::vector<Line> lines;
};

void AddBranch(Branches* branches, Random* random, build::Place step) {
    const size_t from = Below(random, static_cast<uint32_t>(std::min<size_t>(branches->stops.size(), 3)));
    const size_t to = branches->stops.size();
    const build::Place start = branches->stops[from].at;
    const double half = (4.0 + Below(random, OneIn(random, 2) ? 6 : 26)) / 2;
    branches->stops.push_back({ { start.east + step.east, start.north + step.north } });
    branches->lines.push_back({ from, to, half });
    for (const size_t end : { from, to }) branches->stops[end].widest = std::max(branches->stops[end].widest, half);
}

// A fillet, of 1.2 times both half widths, comes within half of its radius of the edges; the bend behind a node lies at
// most a tenth farther out than the widest link.
constexpr double kFilletReach = 1.2 / 2, kBend = 1.1;
constexpr double kOutline = 0.5;  // metres: rounding to pixels and the pen

bool IsNear(const Branches::Stop& stop, build::Place place) {
    return std::hypot(place.east - stop.at.east, place.north - stop.at.north) <= stop.widest * kBend + kOutline;
}

bool IsBeside(const Branches& branches, const Branches::Line& line, build::Place place) {
    const Branches::Stop &a = branches.stops[line.from], &b = branches.stops[line.to];
    const double east = b.at.east - a.at.east, north = b.at.north - a.at.north, length = std::hypot(east, north);
    const double dx = place.east - a.at.east, dy = place.north - a.at.north;
    const double along = (dx * east + dy * north) / length, off = std::abs(dx * north - dy * east) / length;
    const double both = line.half + std::max(a.widest, b.widest);
    return along >= 0 && along <= length && off <= line.half + kFilletReach * both + kOutline;
}

bool MayBePaved(const Branches& branches, build::Place place) {
    return std::ranges::any_of(branches.stops, [&](const auto& stop) { return IsNear(stop, place); }) ||
           std::ranges::any_of(branches.lines, [&](const auto& line) { return IsBeside(branches, line, place); });
}

TEST_F(TaxiwaySurfaceTest, JunctionsOfAnyShapePaveNothingFarFromTheirLinks) {
    Random random = { 11 };
    for (int round = 0; round < 500; ++round) {
        ClearModel();
        Open();
        Branches branches;
        for (uint32_t count = 1 + Below(&random, 6); count > 0; --count) {
            const double degrees = Below(&random, 360), length = 10.0 + Below(&random, 60);
            AddBranch(&branches, &random, Around(degrees, length));
        }
        std::vector<SceneryObject*> nodes;
        for (const Branches::Stop& stop : branches.stops) nodes.push_back(build::Node(stop.at));
        for (const Branches::Line& line : branches.lines) {
            const bool back = OneIn(&random, 2);
            Taxiway(nodes[back ? line.to : line.from], nodes[back ? line.from : line.to], 2 * line.half);
        }
        PaintPavement();
        ASSERT_FALSE(figures.empty());
        for (const auto& figure : figures) {
            const auto [left, right] = std::ranges::minmax(figure, {}, &Pixel::x);
            const auto [top, bottom] = std::ranges::minmax(figure, {}, &Pixel::y);
            for (int x = left.x; x <= right.x; x += 3) {
                for (int y = top.y; y <= bottom.y; y += 3) {
                    const build::Place place = { (x - kWidth / 2) / 4.0, (kHeight / 2 - y) / 4.0 };
                    ASSERT_TRUE(MayBePaved(branches, place) || Winding({ x, y }, figure) == 0)
                        << "round " << round << " at " << place.east << " m east, " << place.north << " m north";
                }
            }
        }
    }
}

TEST_F(TaxiwaySurfaceTest, LinksWithoutLengthOrWidthDoNoHarm) {
    Open();
    SceneryObject* a = build::Node();
    Taxiway(a, build::Node(), 20);
    Taxiway(a, a, 20);
    Taxiway(a, build::Node({ 50, 0 }), 0);
    Taxiway(a, build::Node({ 0, 50 }), std::nan(""));
    Taxiway(a, build::Node({ 0, -50 }), -20);
    Taxiway(a, build::Node({ -50, 0 }), 1e30);
    Taxiway(a, nullptr, 20);
    PaintPavement();
}

TEST_F(TaxiwaySurfaceTest, PavementIsCulledWithAMarginOfAQuarter) {
    Open();
    SceneryObject* a = build::Node({ 0, 100 });
    Taxiway(a, build::Node({ 0, 200 }), 20);  // its lower end lies 40 m above the clip rectangle, 90 m from the middle
    PaintPavement();
    EXPECT_FALSE(figures.empty());
    SetPosition(a, build::At({ 0, 150 }));
    PaintPavement();
    EXPECT_TRUE(figures.empty());
}

}  // namespace
