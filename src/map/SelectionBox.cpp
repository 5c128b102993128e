// SelectionBox.cpp - see SelectionBox.h.
#include "map/SelectionBox.h"

#include <algorithm>
#include <array>
#include <vector>

#include "map/ApronShape.h"
#include "map/LightStrips.h"
#include "map/MapView.h"
#include "map/Placing.h"
#include "map/RunwayShape.h"
#include "map/ScreenPlace.h"
#include "map/Selection.h"
#include "map/Shapes.h"
#include "model/ObjectList.h"
#include "model/Positions.h"
#include "model/Records.h"
#include "platform/Platform.h"

namespace map {

using model::KindOf;
using model::PayloadAs;

namespace {

struct BoxState {
    bool open = false;
    LatLon from;
};

BoxState state;

bool Holds(const BoxCorners& box, Pixel point) {
    return point.x >= box.left && point.x <= box.right && point.y >= box.top && point.y <= box.bottom;
}

Pixel Middle(Pixel a, Pixel b) {
    const auto half = [](int32_t from, int32_t to) { return static_cast<int32_t>((int64_t{ from } + to) / 2); };
    return { half(a.x, b.x), half(a.y, b.y) };
}

Pixel MiddleOf(const std::vector<Pixel>& corners) {
    int64_t x = 0, y = 0;
    for (const Pixel corner : corners) x += corner.x, y += corner.y;
    const auto count = static_cast<int64_t>(corners.size());
    return { static_cast<int32_t>(x / count), static_cast<int32_t>(y / count) };
}

// What the rectangle has scrolled away from is not painted any more: its place is computed. HoldsPoint and those below
// take either.
bool HoldsPoint(const BoxCorners& box, const SceneryObject* object) { return Holds(box, CentreOf(object)); }

bool HoldsTower(const BoxCorners& box, const SceneryObject* tower) {
    return IsTowerPlaced(tower) && HoldsPoint(box, tower);
}

struct Ends {
    const SceneryObject *from = nullptr, *to = nullptr;
};

Ends EndsOf(const SceneryObject* object) {
    if (KindOf(object) == model::kTaxiLink) {
        const auto& link = PayloadAs<model::TaxiLinkPayload>(object);
        return { link.start, link.end };
    }
    const auto& line = PayloadAs<model::GuidelinePayload>(object);
    return { line.from, line.to };
}

bool HoldsEnds(const BoxCorners& box, const SceneryObject* object) {
    if (IsDrawn(object)) return Holds(box, ScreenPoint(object, 0)) && Holds(box, ScreenPoint(object, 1));
    const Ends ends = EndsOf(object);
    return ends.from && ends.to && Holds(box, WorldToPixel(model::PositionOf(ends.from))) &&
           Holds(box, WorldToPixel(model::PositionOf(ends.to)));
}

bool HoldsMiddle(const BoxCorners& box, const SceneryObject* object) {
    if (!IsDrawn(object)) return HoldsPoint(box, object);
    return Holds(box, Middle(ScreenPoint(object, 0), ScreenPoint(object, 2)));
}

// The two ends of its centre line.
bool HoldsRunway(const BoxCorners& box, const SceneryObject* runway) {
    if (!IsDrawn(runway)) {
        const RunwayShape shape = ShapeOfRunway(runway);
        return Holds(box, ToPixel(shape.ends[0].frame.origin)) && Holds(box, ToPixel(shape.ends[1].frame.origin));
    }
    return Holds(box, Middle(ScreenPoint(runway, 0), ScreenPoint(runway, 1))) &&
           Holds(box, Middle(ScreenPoint(runway, 2), ScreenPoint(runway, 3)));
}

using Inside = bool (*)(const BoxCorners& box, const SceneryObject* object);

bool Never(const BoxCorners&, const SceneryObject*) { return false; }

Inside TestFor(const SceneryObject* object) {
    switch (KindOf(object)) {
    case model::kTaxiNode:
    case model::kParkingSpot: return layers.network ? HoldsPoint : Never;
    case model::kTaxiLink: return layers.network ? HoldsEnds : Never;
    case model::kGuideline: return HoldsEnds;
    case model::kReferenceMarker: return HoldsPoint;
    case model::kTowerViewpoint: return HoldsTower;
    case model::kHelipad: return HoldsMiddle;
    case model::kRunway: return HoldsRunway;
    case model::kMarkerBeacon: return layers.navaids ? HoldsMiddle : Never;
    case model::kNdb:
    case model::kVorDme: return layers.navaids ? HoldsPoint : Never;
    default: return Never;
    }
}

void Select(SceneryObject* object) { object->flags |= model::kSelected; }

// The parts that an ILS has, as it is painted and as it lies.
struct IlsPlace {
    int part;
    const std::vector<Pixel>* painted;
    bool present;
    model::BglPoint position;
};

std::array<IlsPlace, 3> PlacesOfIls(const SceneryObject* object) {
    const auto& ils = PayloadAs<model::IlsPayload>(object);
    const ScreenParts& parts = PartsOf(object);
    const uint8_t flags = ils.body.flags;
    return {
        { { model::kLocalizerPart, &parts.localizer, true, { ils.body.latitude, ils.body.longitude } },
          { model::kGlideSlopePart,
            &parts.glideSlope,
            (flags & model::kHasGlideSlope) != 0,
            { ils.glideSlope.latitude, ils.glideSlope.longitude } },
          { model::kDmePart, &parts.dme, (flags & model::kHasDme) != 0, { ils.dme.latitude, ils.dme.longitude } } }
    };
}

void SelectIls(SceneryObject* ils, const BoxCorners& box) {
    if (!layers.navaids) return;
    int found = 0;
    for (const IlsPlace& place : PlacesOfIls(ils)) {
        if (!place.present) continue;
        const Pixel at =
            place.painted->empty() ? WorldToPixel(model::BglToLatLon(place.position)) : MiddleOf(*place.painted);
        if (Holds(box, at)) found |= place.part;
    }
    if (found == 0) return;
    auto& selected = PayloadAs<model::IlsPayload>(ils).selectedParts;
    selected = static_cast<uint8_t>((model::IsSelected(ils) ? selected : 0) | found);
    Select(ils);
}

std::vector<Pixel> VerticesOf(const SceneryObject* apron) {
    if (IsDrawn(apron)) return PartsOf(apron).apron;
    std::vector<Pixel> pixels;
    for (const LatLon vertex : ApronCorners(apron)) pixels.push_back(WorldToPixel(vertex));
    return pixels;
}

void SelectVertices(SceneryObject* apron, const BoxCorners& box) {
    if (model::IsSelected(apron) && (apron->flags & model::kWholeSelected)) return;
    const std::vector<Pixel> outline = VerticesOf(apron);
    bool any = false;
    for (uint32_t i = 0; i < outline.size() && i < kSelectableVertices; ++i) {
        if (!Holds(box, outline[i])) continue;
        SelectVertex(apron, i, true);
        any = true;
    }
    if (any) Select(apron);
}

std::vector<Pixel> StripEndsOf(const SceneryObject* lights) {
    if (IsDrawn(lights)) return PartsOf(lights).stripEnds;
    std::vector<Pixel> pixels;
    for (uint32_t i = 0; i < StripCount(lights); ++i) {
        const LightStrip strip = StripAt(lights, i);
        pixels.push_back(WorldToPixel(strip.start));
        pixels.push_back(WorldToPixel(strip.end));
    }
    return pixels;
}

void SelectStripEnds(SceneryObject* lights, const BoxCorners& box) {
    if (!layers.lights) return;
    const std::vector<Pixel> ends = StripEndsOf(lights);
    const auto strips = std::min(StripCount(lights), static_cast<uint32_t>(ends.size() / 2));
    bool any = false;
    for (uint32_t i = 0; i < strips; ++i) {
        for (const StripPart part : { StripPart::Start, StripPart::End }) {
            if (!Holds(box, ends[2 * i + (part == StripPart::End ? 1 : 0)])) continue;
            SelectStripPart(lights, PartNumber(i, part), true);
            any = true;
        }
    }
    if (any) Select(lights);
}

void SelectObject(SceneryObject* object, const BoxCorners& box) {
    if (model::IsReplacedStock(object)) return;
    switch (KindOf(object)) {
    case model::kIls: return SelectIls(object, box);
    case model::kApron: return SelectVertices(object, box);
    case model::kApronEdgeLights: return SelectStripEnds(object, box);
    default:
        if (TestFor(object)(box, object)) Select(object);
    }
}

void SelectInside(const BoxCorners& box) {
    for (SceneryObject* o = model::state.head; o; o = o->next) SelectObject(o, box);
}

}  // namespace

void BeginBox(Pixel press) {
    state = { true, UnderPixel(press) };
    model::state.busy = true;
}

BoxCorners CornersOfBox(Pixel pointer) {
    const Pixel from = ToPixel(WorldToScreen(state.from) + Point{ 0.5, 0.5 });
    return { std::min(from.x, pointer.x), std::min(from.y, pointer.y), std::max(from.x, pointer.x),
             std::max(from.y, pointer.y) };
}

void FinishBox(Pixel pointer) {
    if (!state.open) return;
    SelectInside(CornersOfBox(pointer));
    CancelBox();
    platform::RequestRepaint();
}

void CancelBox() {
    if (state.open) model::state.busy = false;
    state = {};
}

bool IsBoxOpen() { return state.open; }

}  // namespace map
