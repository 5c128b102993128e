// TaxiwaySurface.cpp - finds the hubs and arms of the taxi network and paints its pavement.
#include "map/TaxiwaySurface.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "map/MapView.h"
#include "map/Palette.h"
#include "map/ScreenPlace.h"
#include "model/ObjectList.h"
#include "model/Positions.h"

namespace map {

namespace {

constexpr double kCullShare = 0.25;  // of a figure's own size, added before it is culled

bool HasEdges(const TaxiNetwork& network, const TaxiArm& arm) {
    const TaxiSegment& segment = network.segments[arm.link];
    return arm.half > 0 && (IsPaved(segment) || IsAlongRunway(segment));
}

void CollectHubs(TaxiNetwork* network) {
    for (SceneryObject* o = model::state.head; o; o = o->next) {
        const uint32_t kind = model::KindOf(o);
        if (kind != model::kTaxiNode && kind != model::kParkingSpot) continue;
        o->view[kHubWord] = static_cast<int32_t>(network->hubs.size());
        network->hubs.push_back({ .object = o, .at = WorldToScreen(model::PositionOf(o)) });
    }
}

// The hub of a link's end; false for an end that is not in the list.
bool FindHub(const TaxiNetwork& network, const SceneryObject* end, uint32_t* hub) {
    if (!end) return false;
    *hub = static_cast<uint32_t>(end->view[kHubWord]);
    return *hub < network.hubs.size() && network.hubs[*hub].object == end;
}

void AddSegment(TaxiNetwork* network, SceneryObject* object) {
    const auto& link = model::PayloadAs<model::TaxiLinkPayload>(object);
    TaxiSegment segment = {
        .object = object, .type = model::LinkTypeOf(link), .flags = link.flagsWord, .surface = model::LinkSurface(link)
    };
    if (!FindHub(*network, link.start, &segment.startHub) || !FindHub(*network, link.end, &segment.endHub)) return;
    const Point from = network->hubs[segment.startHub].at, to = network->hubs[segment.endHub].at;
    const double length = Length(to - from);
    if (!(length > 0) || !std::isfinite(length)) return;
    ++network->hubs[segment.startHub].armCount;
    ++network->hubs[segment.endHub].armCount;
    network->segments.push_back(segment);
}

TaxiArm MakeArm(const TaxiNetwork& network, uint32_t link, bool atStart) {
    const TaxiSegment& segment = network.segments[link];
    TaxiArm arm;
    arm.link = link;
    arm.hub = atStart ? segment.startHub : segment.endHub;
    arm.atStart = atStart;
    const Point step = network.hubs[atStart ? segment.endHub : segment.startHub].at - network.hubs[arm.hub].at;
    arm.length = Length(step);
    arm.along = step * (1 / arm.length);
    arm.angle = std::atan2(arm.along.y, arm.along.x);
    const float width = model::PayloadAs<model::TaxiLinkPayload>(segment.object).width;
    arm.half = width > 0 ? double{ width } * view.pixelsPerMetre / 2 : 0;
    return arm;
}

// The arms of a hub, those with edges first and clockwise.
void SortArms(TaxiNetwork* network, TaxiHub* hub) {
    const auto first = network->arms.begin() + hub->firstArm;
    std::sort(first, first + hub->armCount, [&](const TaxiArm& a, const TaxiArm& b) {
        const bool edgesA = HasEdges(*network, a), edgesB = HasEdges(*network, b);
        if (edgesA != edgesB) return edgesA;
        return a.angle != b.angle ? a.angle < b.angle : a.link < b.link;
    });
    for (uint32_t i = hub->firstArm; i < hub->firstArm + hub->armCount; ++i) {
        const TaxiArm& arm = network->arms[i];
        hub->edgeArms += HasEdges(*network, arm);
        TaxiSegment& segment = network->segments[arm.link];
        (arm.atStart ? segment.startArm : segment.endArm) = i;
    }
}

// Brings the arms of each hub together.
void GroupArms(TaxiNetwork* network) {
    std::vector<uint32_t> next(network->hubs.size());  // where the next arm of a hub goes
    uint32_t count = 0;
    for (size_t i = 0; i < network->hubs.size(); ++i) {
        next[i] = network->hubs[i].firstArm = count;
        count += network->hubs[i].armCount;
    }
    network->arms.resize(count);
    for (uint32_t link = 0; link < network->segments.size(); ++link) {
        for (const bool atStart : { true, false }) {
            const TaxiArm arm = MakeArm(*network, link, atStart);
            network->arms[next[arm.hub]++] = arm;
        }
    }
    for (TaxiHub& hub : network->hubs) SortArms(network, &hub);
}

// Corners are computed only where they can be seen. The margin holds all that is painted along a link.
void MarkInView(TaxiNetwork* network) {
    const Box page = ClipBox();
    for (TaxiSegment& segment : network->segments) {
        const std::array ends = { network->hubs[segment.startHub].at, network->hubs[segment.endHub].at };
        const double wide = 2 * network->arms[segment.startArm].half;
        const Box box = Grown(BoundsOf(ends), wide, wide);
        segment.inView =
            Meets(Grown(box, (box.right - box.left) * kCullShare, (box.bottom - box.top) * kCullShare), page);
        if (segment.inView) network->hubs[segment.startHub].inView = network->hubs[segment.endHub].inView = true;
    }
}

// The pavement at a hub: around it from arm to arm. False when nothing is paved there.
bool JunctionOutline(const TaxiNetwork& network, const TaxiHub& hub, Outline* outline, uint32_t* surface) {
    double widest = 0;
    for (uint32_t i = hub.firstArm; i < hub.firstArm + hub.edgeArms; ++i) {
        const TaxiArm& arm = network.arms[i];
        if (!IsPaved(network.segments[arm.link]) || arm.half <= widest) continue;
        widest = arm.half;
        *surface = network.segments[arm.link].surface;
    }
    if (widest == 0) return false;
    bool begun = false;
    const auto go = [&](Point to) {
        begun ? LineTo(outline, to) : MoveTo(outline, to);
        begun = true;
    };
    for (uint32_t i = hub.firstArm; i < hub.firstArm + hub.edgeArms; ++i) {
        const Corner& corner = network.arms[i].right;
        go(corner.kind == Corner::Kind::None ? hub.at : corner.from);
        if (corner.kind == Corner::Kind::Cap) {
            QuadTo(outline, corner.control[0], corner.middle);
            QuadTo(outline, corner.control[1], corner.to);
        } else if (corner.kind == Corner::Kind::Curve) {
            QuadTo(outline, corner.control[0], corner.to);
        }
    }
    Close(outline);
    return true;
}

bool IsOnPage(std::span<const Point> points) {
    const Box box = BoundsOf(points);
    return Meets(Grown(box, (box.right - box.left) * kCullShare, (box.bottom - box.top) * kCullShare), ClipBox());
}

void SelectSurface(Canvas* canvas, uint32_t surface) {
    const Colour colour = TaxiwayColour(surface);
    platform::SetPen(canvas, 1, colour);
    platform::SetBrush(canvas, colour);
}

// One end of a link's pavement: its corner on the left, the hub, its corner on the right, looking outward.
// Between two paved corners the junction reaches straight across, and the link begins behind it.
void AddEnd(std::vector<Point>* figure, const TaxiNetwork& network, const TaxiArm& arm, double left, double right) {
    const Point hub = network.hubs[arm.hub].at, side = TurnedRight(arm.along) * arm.half;
    figure->push_back(hub - side + arm.along * left);
    if (left == 0 || right == 0) figure->push_back(hub);
    figure->push_back(hub + side + arm.along * right);
}

void PaintSegment(Canvas* canvas, const TaxiNetwork& network, const TaxiSegment& segment) {
    const TaxiArm &start = network.arms[segment.startArm], &end = network.arms[segment.endArm];
    if (!segment.inView || !IsPaved(segment) || !(start.half > 0)) return;
    // A chamfer at most: beyond it the link may be the only pavement there is.
    const auto leftOf = [](const TaxiArm& arm) { return arm.joinedLeft ? std::min(arm.leftCut, arm.half) : 0; };
    const auto rightOf = [](const TaxiArm& arm) {
        return arm.right.kind == Corner::Kind::None ? 0 : std::min(arm.rightCut, arm.half);
    };
    double startLeft = leftOf(start), startRight = rightOf(start), endLeft = leftOf(end), endRight = rightOf(end);
    if (startLeft + endRight > start.length) startLeft = endRight = 0;
    if (startRight + endLeft > start.length) startRight = endLeft = 0;
    std::vector<Point> figure;
    AddEnd(&figure, network, start, startLeft, startRight);
    AddEnd(&figure, network, end, endLeft, endRight);
    if (!IsOnPage(figure)) return;
    SelectSurface(canvas, segment.surface);
    FillPolygon(canvas, figure);
}

}  // namespace

bool IsPaved(const TaxiSegment& segment) {
    return segment.type != model::kRunwayLink && segment.type != model::kApronRouteLink;
}

bool IsAlongRunway(const TaxiSegment& segment) { return segment.type == model::kRunwayLink; }

TaxiNetwork BuildTaxiNetwork() {
    TaxiNetwork network;
    CollectHubs(&network);
    for (SceneryObject* o = model::state.head; o; o = o->next) {
        if (model::KindOf(o) == model::kTaxiLink) AddSegment(&network, o);
    }
    GroupArms(&network);
    MarkInView(&network);
    return network;
}

void PaintTaxiwaySurfaces(Canvas* canvas, const TaxiNetwork& network) {
    Outline outline;
    for (const TaxiHub& hub : network.hubs) {
        if (!hub.inView) continue;
        Clear(&outline);
        uint32_t surface = 0;
        if (!JunctionOutline(network, hub, &outline, &surface) || !IsOnPage(outline.points)) continue;
        SelectSurface(canvas, surface);
        FillOutline(canvas, outline);
    }
    for (const TaxiSegment& segment : network.segments) PaintSegment(canvas, network, segment);
}

}  // namespace map
