// ApronPolygons.cpp - check 6: aprons whose edges cross.
//
// Strips across the apron, each with the edges that reach into it, keep the search for a crossing short: edges
// that cross share a strip.
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
    Range Across(bool byX) const { return byX ? x : y; }
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

struct Strips {
    bool byX = true;  // strips side by side in x
    double low = 0, width = 1;
    std::vector<std::vector<uint32_t>> edges;  // in order
};

size_t StripAt(const Strips& strips, double value) {
    const double strip = (value - strips.low) / strips.width;
    return strip > 0 ? std::min(static_cast<size_t>(strip), strips.edges.size() - 1) : 0;
}

// As wide as an edge is on average, so that an edge reaches into two strips on average.
Strips MakeStrips(const std::vector<Edge>& edges, bool byX) {
    Strips strips;
    strips.byX = byX;
    strips.low = edges[0].Across(byX).low;
    double high = strips.low, sum = 0;
    for (const Edge& edge : edges) {
        const Range range = edge.Across(byX);
        strips.low = std::min(strips.low, range.low);
        high = std::max(high, range.high);
        sum += range.high - range.low;
    }
    const double count = static_cast<double>(edges.size());
    const double extent = high - strips.low, average = std::max(sum / count, extent / count);
    strips.width = average > 0 ? average : 1;
    strips.edges.resize(static_cast<size_t>(std::min(extent / strips.width, count)) + 1);
    for (uint32_t i = 0; i < edges.size(); ++i) {
        const Range range = edges[i].Across(byX);
        for (size_t s = StripAt(strips, range.low); s <= StripAt(strips, range.high); ++s) strips.edges[s].push_back(i);
    }
    return strips;
}

// The first later edge that crosses edge i.
size_t FirstCrossed(const std::vector<Edge>& edges, const Strips& strips, size_t i, Point* crossing) {
    const Edge& edge = edges[i];
    const Range range = edge.Across(strips.byX);
    const size_t end = i == 0 ? edges.size() - 1 : edges.size();  // the first and the closing edge share a corner
    size_t first = end;
    for (size_t s = StripAt(strips, range.low); s <= StripAt(strips, range.high); ++s) {
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
    Strips strips = MakeStrips(edges, true);
    Strips others = MakeStrips(edges, false);
    if (others.edges.size() > strips.edges.size()) strips = std::move(others);
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
