// LinkSplit.cpp - see LinkSplit.h.
#include "map/LinkSplit.h"

#include <cmath>
#include <vector>

#include "model/EditHistory.h"
#include "model/Geometry.h"
#include "model/ObjectList.h"
#include "model/Positions.h"

namespace map {

using model::LatLon;
using model::PayloadAs;
using model::SceneryObject;
using model::TaxiLinkPayload;

namespace {

constexpr uint32_t kTypeMask = 0xF;

std::vector<SceneryObject*> AllLinks() {
    std::vector<SceneryObject*> links;
    for (SceneryObject* o = model::FirstOfKind(model::state.head, model::kTaxiLink); o;
         o = model::NextOfKind(o, model::kTaxiLink)) {
        links.push_back(o);
    }
    return links;
}

bool Joins(const SceneryObject* link, const SceneryObject* a, const SceneryObject* b) {
    const auto& payload = PayloadAs<TaxiLinkPayload>(link);
    return (payload.start == a && payload.end == b) || (payload.start == b && payload.end == a);
}

// A link to a parking spot is a parking link; what was one and no longer ends there becomes an apron route.
void AdjustType(TaxiLinkPayload* link) {
    uint32_t type = model::LinkTypeOf(*link);
    if (model::KindOf(link->end) == model::kParkingSpot)
        type = model::kParkingLink;
    else if (type == model::kParkingLink)
        type = model::kApronRouteLink;
    link->flagsWord = (link->flagsWord & ~kTypeMask) | type;
}

void AddHalf(const SceneryObject* link, SceneryObject* node, SceneryObject* end) {
    SceneryObject* half = model::CopyObject(link);
    half->flags = model::kTaxiLink | model::kSelected | model::kNewLink;
    auto& payload = PayloadAs<TaxiLinkPayload>(half);
    payload.start = node;
    payload.end = end;
    AdjustType(&payload);
    AddLink(half);
}

void MoveNode(SceneryObject* node, LatLon position) {
    SceneryObject* moved = model::CopyObject(node);
    model::SetPosition(moved, position);
    model::ModifyObject(moved, node);
}

}  // namespace

bool OnLinkTest(LatLon a, LatLon b, LatLon* point) {
    const model::Polar link = model::RangeAndBearing(a, b), there = model::RangeAndBearing(a, *point);
    if (!(there.range >= kOnLinkDistance && there.range <= link.range - kOnLinkDistance)) return false;
    double angle = std::fabs(link.bearing - there.bearing);
    if (angle > model::kPi) angle = model::kTwoPi - angle;
    if (!(angle < model::kPi / 2)) return false;
    const double beside = std::sin(angle) * there.range;
    if (beside > kOnLinkDistance) return false;
    const double along = std::sqrt(model::Square(there.range) - model::Square(beside));
    *point = model::OffsetByPolar(a, { along, link.bearing });
    return true;
}

void AddLink(SceneryObject* link) {
    const auto& payload = PayloadAs<TaxiLinkPayload>(link);
    for (SceneryObject* other : AllLinks()) {
        if (Joins(other, payload.start, payload.end)) model::DeleteObject(other);
    }
    model::AddObject(link);
}

void SplitLink(SceneryObject* link, SceneryObject* node) {
    const auto& payload = PayloadAs<TaxiLinkPayload>(link);
    AddHalf(link, node, payload.start);
    AddHalf(link, node, payload.end);
    model::DeleteObject(link);
}

void JoinNodeIntoLinks(SceneryObject* node) {
    for (SceneryObject* link : AllLinks()) {
        const auto& payload = PayloadAs<TaxiLinkPayload>(link);
        if (!payload.start || !payload.end || payload.start == node || payload.end == node) continue;
        LatLon point = model::PositionOf(node);
        if (!OnLinkTest(model::PositionOf(payload.start), model::PositionOf(payload.end), &point)) continue;
        MoveNode(node, point);
        SplitLink(link, node);
    }
}

}  // namespace map
