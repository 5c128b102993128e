// RunwayOutlines.cpp - see RunwayOutlines.h.
#include "map/RunwayOutlines.h"

#include <algorithm>

#include "map/Painter.h"
#include "map/RunwayShape.h"
#include "model/ObjectList.h"

namespace map {

namespace {

using Span = std::pair<double, double>;  // of a line, as shares of its length

// Which share of the line lies inside the rectangle; an empty one when none does.
Span InsideOf(const std::array<Point, 4>& area, Point from, Point to) {
    const Point middle = (area[0] + area[2]) * 0.5, step = to - from;
    Span inside = { 0, 1 };
    for (size_t i = 0; i < 4; ++i) {
        const Point corner = area[i], side = area[(i + 1) % 4] - corner;
        const auto beyond = [&](Point direction) { return side.x * direction.y - side.y * direction.x; };
        const double sign = beyond(middle - corner) < 0 ? -1 : 1;
        const double start = sign * beyond(from - corner), slope = sign * beyond(step);
        if (slope == 0 && start < 0) return {};
        if (slope > 0) inside.first = std::max(inside.first, -start / slope);
        if (slope < 0) inside.second = std::min(inside.second, -start / slope);
    }
    return inside.first < inside.second ? inside : Span{};
}

}  // namespace

RunwayOutlines CollectRunwayOutlines() {
    RunwayOutlines areas;
    model::ForEachOfKind(model::kRunway, [&](SceneryObject* runway) {
        if (IsDrawn(runway)) areas.push_back(ShapeOfRunway(runway).corners);
    });
    return areas;
}

bool MeetsRunway(const RunwayOutlines& runways, std::span<const Point> figure) {
    const Box box = BoundsOf(figure);
    return std::any_of(runways.begin(), runways.end(),
                       [&](const std::array<Point, 4>& area) { return Meets(BoundsOf(area), box); });
}

bool IsOnRunway(const RunwayOutlines& runways, Point point) {
    return std::any_of(runways.begin(), runways.end(), [&](const std::array<Point, 4>& area) {
        const Point offset = point - area[0], across = area[1] - area[0], along = area[3] - area[0];
        const auto within = [&](Point side) {
            const double share = offset.x * side.x + offset.y * side.y;
            return share >= 0 && share <= side.x * side.x + side.y * side.y;
        };
        return within(across) && within(along);
    });
}

std::vector<std::pair<Point, Point>> OutsideRunways(const RunwayOutlines& runways, Point from, Point to) {
    const std::array ends = { from, to };
    const Box box = BoundsOf(ends);
    std::vector<Span> hidden;
    for (const auto& area : runways) {
        if (!Meets(BoundsOf(area), box)) continue;
        const Span inside = InsideOf(area, from, to);
        if (inside.first < inside.second) hidden.push_back(inside);
    }
    std::sort(hidden.begin(), hidden.end());
    hidden.push_back({ 1, 1 });
    std::vector<std::pair<Point, Point>> pieces;
    double shown = 0;
    for (const Span& next : hidden) {
        if (next.first > shown) pieces.push_back({ from + (to - from) * shown, from + (to - from) * next.first });
        shown = std::max(shown, next.second);
    }
    return pieces;
}

}  // namespace map
