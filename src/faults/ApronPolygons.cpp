// ApronPolygons.cpp - check 6: aprons whose edges cross.
//
// Strips across the apron, each with the edges that reach into it, keep the search for a crossing short: edges
// that cross share a strip. They lie along most of the edges, so that long parallel ones fall into strips of their own.
#include <algorithm>
#include <cmath>

#include "faults/Checks.h"
#include "faults/Messages.h"
#include "faults/Plane.h"
#include "model/Triangulate.h"

namespace faults {

namespace {

constexpr size_t kFewestCorners = 4;  // fewer cannot cross themselves

struct Range {
    double low, high;
    bool Meets(const Range& other) const { return low <= other.high && other.low <= high; }
};

struct Edge {
    Point from, to;
    Range x, y;
};

std::vector<Edge> EdgesOf(const std::vector<Point>& corners) {
    std::vector<Edge> edges;
    edges.reserve(corners.size());
    for (size_t i = 0; i < corners.size(); ++i) {
        const Point a = corners[i], b = corners[i + 1 < corners.size() ? i + 1 : 0];
        edges.push_back(
            { a, b, { std::min(a.x, b.x), std::max(a.x, b.x) }, { std::min(a.y, b.y), std::max(a.y, b.y) } });
    }
    return edges;
}

// Square to the direction in which the edges run for the most part: the axis of their squares.
Point AcrossMostOf(const std::vector<Edge>& edges) {
    double cosine = 0, sine = 0;  // of twice the angle, either way along an edge being the same
    for (const Edge& edge : edges) {
        const double dx = edge.to.x - edge.from.x, dy = edge.to.y - edge.from.y;
        cosine += dx * dx - dy * dy;
        sine += 2 * dx * dy;
    }
    const double angle = std::atan2(sine, cosine) / 2;
    return { -std::sin(angle), std::cos(angle) };
}

struct Strips {
    Point across;  // unit vector from one strip to the next
    double low = 0, width = 1;
    std::vector<std::vector<uint32_t>> edges;  // in order
};

// How far the edge reaches across the strips, a hair more for what rounding takes away.
Range Reach(const Edge& edge, Point across) {
    constexpr double kHair = 1e-6;  // metres
    const double from = edge.from.x * across.x + edge.from.y * across.y;
    const double to = edge.to.x * across.x + edge.to.y * across.y;
    return { std::min(from, to) - kHair, std::max(from, to) + kHair };
}

size_t StripAt(const Strips& strips, double value) {
    const double strip = (value - strips.low) / strips.width;
    return strip > 0 ? std::min(static_cast<size_t>(strip), strips.edges.size() - 1) : 0;
}

// As wide as an edge is on average, so that an edge reaches into two strips on average.
Strips MakeStrips(const std::vector<Edge>& edges, Point across) {
    Strips strips;
    strips.across = across;
    strips.low = Reach(edges[0], across).low;
    double high = strips.low, sum = 0;
    for (const Edge& edge : edges) {
        const Range reach = Reach(edge, across);
        strips.low = std::min(strips.low, reach.low);
        high = std::max(high, reach.high);
        sum += reach.high - reach.low;
    }
    const double count = static_cast<double>(edges.size());
    const double extent = high - strips.low;
    strips.width = std::max(sum / count, extent / count);
    strips.edges.resize(static_cast<size_t>(std::min(extent / strips.width, count)) + 1);
    for (uint32_t i = 0; i < edges.size(); ++i) {
        const Range reach = Reach(edges[i], across);
        for (size_t s = StripAt(strips, reach.low); s <= StripAt(strips, reach.high); ++s) strips.edges[s].push_back(i);
    }
    return strips;
}

// Of several ways to lay them the one with the most strips.
Strips BestStrips(const std::vector<Edge>& edges) {
    Strips best = MakeStrips(edges, { 1, 0 });
    for (const Point across : { Point{ 0, 1 }, AcrossMostOf(edges) }) {
        Strips strips = MakeStrips(edges, across);
        if (strips.edges.size() > best.edges.size()) best = std::move(strips);
    }
    return best;
}

// The first later edge that crosses edge i.
size_t FirstCrossed(const std::vector<Edge>& edges, const Strips& strips, size_t i, Point* crossing) {
    const Edge& edge = edges[i];
    const Range reach = Reach(edge, strips.across);
    const size_t end = i == 0 ? edges.size() - 1 : edges.size();  // the first and the closing edge share a corner
    size_t first = end;
    for (size_t s = StripAt(strips, reach.low); s <= StripAt(strips, reach.high); ++s) {
        const std::vector<uint32_t>& list = strips.edges[s];
        for (auto j = std::lower_bound(list.begin(), list.end(), i + 2); j != list.end() && *j < first; ++j) {
            const Edge& other = edges[*j];
            Point at;
            if (!edge.x.Meets(other.x) || !edge.y.Meets(other.y)) continue;
            if (!SegmentsCross(edge.from, edge.to, other.from, other.to, &at)) continue;
            first = *j;
            *crossing = at;
        }
    }
    return first == end ? edges.size() : first;
}

}  // namespace

bool FindCrossing(const std::vector<Point>& corners, Point* crossing) {
    if (corners.size() < kFewestCorners) return false;
    const std::vector<Edge> edges = EdgesOf(corners);
    const Strips strips = BestStrips(edges);
    for (size_t i = 0; i < edges.size(); ++i) {
        if (FirstCrossed(edges, strips, i, crossing) < edges.size()) return true;
    }
    return false;
}

bool FindCrossedApron(const PassData& data, size_t from, Finding* finding) {
    for (size_t i = from; i < data.network.aprons.size(); ++i) {
        SceneryObject* const apron = data.network.aprons[i];
        const std::vector<model::EncodedPoint> outline = model::ApronOutline(apron);
        if (outline.size() < kFewestCorners) continue;
        const LatLon origin = model::BglToLatLon({ outline[0].latitude, outline[0].longitude });
        std::vector<Point> corners;
        for (const model::EncodedPoint& point : outline) {
            const model::Local offset =
                model::LatLonToLocal(origin, model::BglToLatLon({ point.latitude, point.longitude }));
            corners.push_back({ offset.east, offset.north });
        }
        Point crossing;
        if (!FindCrossing(corners, &crossing)) continue;
        finding->report = { FaultCheck::ApronPolygons,
                            kCrossedEdgesMessage,
                            { apron },
                            model::LocalToLatLon(origin, { crossing.x, crossing.y }) };
        finding->mark = nullptr;
        finding->resumeAt = i + 1;
        return true;
    }
    return false;
}

}  // namespace faults
