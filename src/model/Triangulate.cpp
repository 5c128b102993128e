// Triangulate.cpp - ear clipping in whole encoded units: exact, so the result is the same everywhere.
#include "model/Triangulate.h"

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <cstring>
#include <iterator>
#include <utility>

#include "model/Geodesy.h"

namespace model {

namespace {

constexpr int64_t kReach = int64_t{ 1 } << 29;  // keeps every product below 2^62

struct Corner {
    int64_t x, y;  // encoded units east and north of the first corner
    bool operator==(const Corner&) const = default;
};

std::vector<Corner> CornersOf(std::span<const EncodedPoint> outline) {
    std::vector<Corner> corners;
    for (const EncodedPoint& point : outline) {
        int64_t x = int64_t{ point.longitude } - outline[0].longitude;
        if (x > kEncodedTurn / 2) x -= kEncodedTurn;  // the apron lies across the 180th meridian
        if (x < -kEncodedTurn / 2) x += kEncodedTurn;
        const int64_t y = int64_t{ outline[0].latitude } - point.latitude;
        corners.push_back({ std::clamp(x, -kReach, kReach), std::clamp(y, -kReach, kReach) });
    }
    return corners;
}

// Twice the area of the triangle; positive when it runs counter-clockwise.
int64_t Turn(Corner a, Corner b, Corner c) { return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x); }

int SignOf(int64_t value) { return value > 0 ? 1 : value < 0 ? -1 : 0; }

bool OnSegment(Corner p, Corner a, Corner b) {
    return Turn(a, b, p) == 0 && std::min(a.x, b.x) <= p.x && p.x <= std::max(a.x, b.x) && std::min(a.y, b.y) <= p.y &&
           p.y <= std::max(a.y, b.y);
}

bool SegmentsTouch(Corner a, Corner b, Corner c, Corner d) {
    const int abc = SignOf(Turn(a, b, c)), abd = SignOf(Turn(a, b, d));
    const int cda = SignOf(Turn(c, d, a)), cdb = SignOf(Turn(c, d, b));
    if (abc * abd < 0 && cda * cdb < 0) return true;
    return OnSegment(c, a, b) || OnSegment(d, a, b) || OnSegment(a, c, d) || OnSegment(b, c, d);
}

// Whether two edges that are no neighbours meet, or two neighbours fold back onto each other.
bool CrossesItself(const std::vector<Corner>& corners) {
    const size_t n = corners.size();
    const auto at = [&](size_t i) { return corners[i % n]; };
    for (size_t i = 0; i < n; ++i) {
        if (OnSegment(at(i + 2), at(i), at(i + 1)) || OnSegment(at(i), at(i + 1), at(i + 2))) return true;
        for (size_t j = i + 2; j < n; ++j) {
            if (i == 0 && j == n - 1) continue;  // neighbours around the end
            if (SegmentsTouch(at(i), at(i + 1), at(j), at(j + 1))) return true;
        }
    }
    return false;
}

bool RunsCounterClockwise(const std::vector<Corner>& corners) {
    // The lowest corner, of those the leftmost, is convex: its turn is the polygon's.
    const size_t n = corners.size();
    size_t lowest = 0;
    for (size_t i = 1; i < n; ++i) {
        const Corner &c = corners[i], &least = corners[lowest];
        if (c.y < least.y || (c.y == least.y && c.x < least.x)) lowest = i;
    }
    return Turn(corners[(lowest + n - 1) % n], corners[lowest], corners[(lowest + 1) % n]) > 0;
}

ApronTriangle Clockwise(const std::vector<Corner>& corners, size_t a, size_t b, size_t c) {
    if (Turn(corners[a], corners[b], corners[c]) > 0) std::swap(b, c);
    return { { static_cast<uint16_t>(a), static_cast<uint16_t>(b), static_cast<uint16_t>(c) } };
}

// Whether the corner at `place` of the ring (which runs counter-clockwise) can be cut off.
bool IsEar(const std::vector<Corner>& corners, const std::vector<size_t>& ring, size_t place) {
    const size_t n = ring.size();
    const size_t before = ring[(place + n - 1) % n], after = ring[(place + 1) % n];
    const Corner a = corners[before], b = corners[ring[place]], c = corners[after];
    if (Turn(a, b, c) <= 0) return false;
    return std::none_of(ring.begin(), ring.end(), [&](size_t other) {
        if (other == before || other == ring[place] || other == after) return false;
        const Corner p = corners[other];
        return Turn(a, b, p) >= 0 && Turn(b, c, p) >= 0 && Turn(c, a, p) >= 0;
    });
}

// None when no ear is left too early. A polygon that does not cross itself always has one, but nothing that comes from
// a file shall rest on a proof.
std::vector<ApronTriangle> ClipEars(const std::vector<Corner>& corners) {
    std::vector<size_t> ring(corners.size());
    for (size_t i = 0; i < ring.size(); ++i) ring[i] = i;
    if (!RunsCounterClockwise(corners)) std::reverse(ring.begin(), ring.end());
    std::vector<ApronTriangle> triangles;
    size_t place = 0, tried = 0;
    while (ring.size() > 3 && tried < ring.size()) {
        place %= ring.size();
        if (!IsEar(corners, ring, place)) {
            ++place, ++tried;
            continue;
        }
        const size_t n = ring.size();
        triangles.push_back(Clockwise(corners, ring[(place + n - 1) % n], ring[place], ring[(place + 1) % n]));
        ring.erase(ring.begin() + static_cast<ptrdiff_t>(place));
        tried = 0;
    }
    if (ring.size() != 3) return {};
    triangles.push_back(Clockwise(corners, ring[0], ring[1], ring[2]));
    return triangles;
}

std::vector<ApronTriangle> Fan(const std::vector<Corner>& corners) {
    std::vector<ApronTriangle> triangles;
    for (size_t i = 2; i < corners.size(); ++i) triangles.push_back(Clockwise(corners, 0, i - 1, i));
    return triangles;
}

}  // namespace

std::vector<ApronTriangle> Triangulate(std::span<const EncodedPoint> outline) {
    if (outline.size() < 3) return {};
    const std::vector<Corner> corners = CornersOf(outline);
    if (corners.size() > kMostClipped || CrossesItself(corners)) return Fan(corners);
    std::vector<ApronTriangle> triangles = ClipEars(corners);
    return triangles.empty() ? Fan(corners) : triangles;
}

std::vector<EncodedPoint> ApronOutline(const SceneryObject* apron) {
    const uint16_t count = PayloadAs<ApronHead>(apron).outlineCount;
    assert(apron->payloadSize >= sizeof(ApronHead) + count * sizeof(EncodedPoint));
    std::vector<EncodedPoint> outline(count);
    if (count > 0) std::memcpy(outline.data(), apron->payload + sizeof(ApronHead), count * sizeof(EncodedPoint));
    return outline;
}

SceneryObject* CopyWithOutline(const SceneryObject* apron, std::span<const EncodedPoint> outline) {
    assert(outline.size() <= UINT16_MAX);
    const std::vector<ApronTriangle> triangles = Triangulate(outline);
    const size_t pointBytes = outline.size_bytes();
    const size_t triangleBytes = triangles.size() * sizeof(ApronTriangle);
    SceneryObject* copy = CopyObject(apron);
    ResizePayload(copy, static_cast<uint32_t>(sizeof(ApronHead) + 2 * pointBytes + triangleBytes));
    auto& head = PayloadAs<ApronHead>(copy);
    std::fill(std::begin(head.selection), std::end(head.selection), uint8_t{ 0 });
    head.outlineCount = head.vertexCount = static_cast<uint16_t>(outline.size());
    head.triangleCount = static_cast<uint16_t>(triangles.size());
    uint8_t* out = copy->payload + sizeof(ApronHead);
    if (!outline.empty()) {
        std::memcpy(out, outline.data(), pointBytes);
        std::memcpy(out + pointBytes, outline.data(), pointBytes);
    }
    if (!triangles.empty()) std::memcpy(out + 2 * pointBytes, triangles.data(), triangleBytes);
    return copy;
}

}  // namespace model
