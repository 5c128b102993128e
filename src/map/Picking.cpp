// Picking.cpp - which object lies under a pixel: the kinds in their order, and the tests.
//
// Every step walks the list from its head, so that among objects of one kind the earliest wins. An object
// that the last paint did not draw cannot be hit, and neither can one whose layer is hidden since.
#include <algorithm>
#include <cmath>
#include <span>

#include "map/ApronShape.h"
#include "map/LightStrips.h"
#include "map/MapView.h"
#include "map/ScreenPlace.h"
#include "map/Selection.h"
#include "model/ObjectList.h"
#include "model/Records.h"

namespace map {

using model::KindOf;

namespace {

constexpr int kSegmentReach = 3;  // pixels, across the segment's major axis

// Nonzero when the object is hit: the part, or kWhole.
constexpr int kMiss = 0, kWhole = -1;
using HitTest = int (*)(const SceneryObject* object, Pixel at);

int Hit(bool hit) { return hit ? kWhole : kMiss; }

bool InCorners(Pixel at, const SceneryObject* object) {
    Pixel corners[4];
    for (int i = 0; i < 4; ++i) corners[i] = ScreenPoint(object, i);
    return model::PointInPolygon(at, std::span<const Pixel>(corners));
}

bool InPolygon(Pixel at, const std::vector<Pixel>& polygon) {
    return model::PointInPolygon(at, std::span<const Pixel>(polygon));
}

bool InCircle(const SceneryObject* object, Pixel at, int32_t margin) {
    return HitsCircle(at, ScreenPoint(object, 0), ScreenRadius(object) + margin);
}

int HitCircle(const SceneryObject* object, Pixel at) { return Hit(InCircle(object, at, 0)); }
int HitWideCircle(const SceneryObject* object, Pixel at) { return Hit(InCircle(object, at, 1)); }
int HitMarker(const SceneryObject* object, Pixel at) {
    return Hit(HitsCircle(at, ScreenPoint(object, 0), kMarkerReach));
}
int HitCorners(const SceneryObject* object, Pixel at) { return Hit(InCorners(at, object)); }
int HitSegment(const SceneryObject* object, Pixel at) {
    return Hit(HitsSegment(at, ScreenPoint(object, 0), ScreenPoint(object, 1)));
}

int HitIls(const SceneryObject* object, Pixel at) {
    const ScreenParts& parts = PartsOf(object);
    if (InPolygon(at, parts.localizer) || InPolygon(at, parts.beam)) return model::kLocalizerPart;
    if (InPolygon(at, parts.glideSlope)) return model::kGlideSlopePart;
    return InPolygon(at, parts.dme) ? model::kDmePart : kMiss;
}

int HitNavaid(const SceneryObject* object, Pixel at) {
    if (model::IsReplacedStock(object)) return kMiss;
    switch (KindOf(object)) {
    case model::kIls: return HitIls(object, at);
    case model::kMarkerBeacon: return HitCorners(object, at);
    case model::kNdb:
    case model::kVorDme: return HitCircle(object, at);
    default: return kMiss;
    }
}

int HitApron(const SceneryObject* object, Pixel at) {
    const std::vector<Pixel>& outline = PartsOf(object).apron;
    for (size_t i = 0; i < outline.size() && i < kSelectableVertices; ++i) {
        if (HitsCircle(at, outline[i], kPointReach)) return static_cast<int>(i) + 1;
    }
    if (outline.size() >= kFewestCorners) return Hit(InPolygon(at, outline));
    return Hit(outline.size() == 2 && HitsSegment(at, outline[0], outline[1]));
}

// Points before segments: the ends of a segment would hide behind it.
int HitStrips(const SceneryObject* object, Pixel at) {
    const std::vector<Pixel>& ends = PartsOf(object).stripEnds;
    // The strips may have become fewer since the paint.
    const uint32_t strips = std::min(static_cast<uint32_t>(ends.size() / 2), StripCount(object));
    for (uint32_t i = 0; i < strips; ++i) {
        if (HitsCircle(at, ends[2 * i], kPointReach)) return PartNumber(i, StripPart::Start);
        if (HitsCircle(at, ends[2 * i + 1], kPointReach)) return PartNumber(i, StripPart::End);
    }
    for (uint32_t i = 0; i < strips; ++i) {
        if (HitsSegment(at, ends[2 * i], ends[2 * i + 1])) return PartNumber(i, StripPart::Segment);
    }
    return kMiss;
}

bool Always() { return true; }
bool NetworkShown() { return layers.network; }
bool LightsShown() { return layers.lights; }
bool NavaidsShown() { return layers.navaids; }
bool StartsShown() { return layers.starts; }

constexpr uint32_t kAnyNavaid = 0;  // every kind; the test itself chooses

struct PickStep {
    uint32_t kind;
    bool (*shown)();
    HitTest test;
};

constexpr PickStep kPickSteps[] = {
    { model::kApronEdgeLights, LightsShown, HitStrips },
    { kAnyNavaid, NavaidsShown, HitNavaid },
    { model::kTaxiNode, NetworkShown, HitWideCircle },
    { model::kTaxiLink, NetworkShown, HitSegment },
    { model::kParkingSpot, NetworkShown, HitCircle },
    { model::kStartLocation, StartsShown, HitWideCircle },
    { model::kAirport, Always, HitCircle },
    { model::kTowerViewpoint, Always, HitCircle },
    { model::kRunway, Always, HitCorners },
    { model::kHelipad, Always, HitCorners },
    { model::kApron, Always, HitApron },
    { model::kReferenceMarker, Always, HitMarker },
    { model::kGuideline, NetworkShown, HitSegment },  // with the network's layer: that is meant
};

// Along the major axis: from the start on, the end itself outside.
bool InSpan(int64_t offset, int64_t length) {
    return length >= 0 ? offset >= 0 && offset < length : offset > length && offset <= 0;
}

bool HitsAlong(int64_t offset, int64_t length, int64_t across, int64_t rise) {
    if (!InSpan(offset, length)) return false;
    const double middle =
        length == 0 ? 0 : static_cast<double>(offset) / static_cast<double>(length) * static_cast<double>(rise);
    const auto distance = static_cast<double>(across) - middle;
    return distance <= kSegmentReach && distance > -kSegmentReach;
}

}  // namespace

Pick PickObject(Pixel at) {
    for (const PickStep& step : kPickSteps) {
        if (!step.shown()) continue;
        for (SceneryObject* o = model::state.head; o; o = o->next) {
            if ((step.kind != kAnyNavaid && KindOf(o) != step.kind) || !IsDrawn(o)) continue;
            const int hit = step.test(o, at);
            if (hit != kMiss) return { o, hit == kWhole ? 0 : hit };
        }
    }
    return {};
}

bool HitsSegment(Pixel at, Pixel from, Pixel to) {
    const int64_t dx = int64_t{ to.x } - from.x, dy = int64_t{ to.y } - from.y;
    const int64_t px = int64_t{ at.x } - from.x, py = int64_t{ at.y } - from.y;
    return std::abs(dy) <= std::abs(dx) ? HitsAlong(px, dx, py, dy) : HitsAlong(py, dy, px, dx);
}

bool HitsCircle(Pixel at, Pixel centre, int32_t radius) {
    const double dx = double(at.x) - centre.x, dy = double(at.y) - centre.y;
    return radius >= std::sqrt(dx * dx + dy * dy);
}

}  // namespace map
