// LinkSplit.cpp - see LinkSplit.h.
#include "map/LinkSplit.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <unordered_set>
#include <vector>

#include "map/HoldShortUpdate.h"
#include "map/LinkTemplate.h"
#include "model/EditHistory.h"
#include "model/Geometry.h"
#include "model/Links.h"
#include "model/ObjectList.h"
#include "model/Positions.h"

namespace map {

using model::LatLon;
using model::PayloadAs;
using model::SceneryObject;
using model::TaxiLinkPayload;

namespace {

std::vector<SceneryObject*> AllLinks() {
    std::vector<SceneryObject*> links;
    model::ForEachOfKind(model::kTaxiLink, [&](SceneryObject* o) { links.push_back(o); });
    return links;
}

bool Joins(const SceneryObject* link, const SceneryObject* a, const SceneryObject* b) {
    const auto& payload = PayloadAs<TaxiLinkPayload>(link);
    return (payload.start == a && payload.end == b) || (payload.start == b && payload.end == a);
}

// A half that no runway link is bears no runway's name: a file would read it as that of a taxiway.
void FitNameToType(TaxiLinkPayload* link) {
    const bool isRunwayLink = model::LinkTypeOf(*link) == model::kRunwayLink;
    if (!isRunwayLink && link->designator && model::KindOf(link->designator) == model::kRunway)
        link->designator = model::BlankDesignatorForEdit();
}

void AddHalf(const SceneryObject* link, SceneryObject* node, SceneryObject* end) {
    SceneryObject* half = model::CopyObject(link);
    half->flags = model::kTaxiLink | model::kSelected | model::kNewLink;
    auto& payload = PayloadAs<TaxiLinkPayload>(half);
    payload.start = node;
    payload.end = end;
    FitTypeToEnd(&payload);
    FitNameToType(&payload);
    AddLink(half);
}

void MoveNode(SceneryObject* node, LatLon position) {
    SceneryObject* moved = model::CopyObject(node);
    model::SetPosition(moved, position);
    if (std::memcmp(moved->payload, node->payload, node->payloadSize) == 0) return model::FreeObject(moved);
    model::ModifyObject(moved, node);
}

// A link that passes under a point.
struct Passing {
    SceneryObject* link;
    LatLon from, to;
    LatLon onto;    // the point's place on the link
    double beside;  // metres from the point to it
};

// By distance, and where two are equally far by what they are: never by their order in the list.
bool ComesFirst(const Passing& a, const Passing& b) {
    if (a.beside != b.beside) return a.beside < b.beside;
    const auto key = [](const Passing& p) { return std::array{ p.from.lat, p.from.lon, p.to.lat, p.to.lon }; };
    if (key(a) != key(b)) return key(a) < key(b);
    const auto &first = PayloadAs<TaxiLinkPayload>(a.link), &second = PayloadAs<TaxiLinkPayload>(b.link);
    const uint32_t firstFlags = first.flagsWord, secondFlags = second.flagsWord;
    if (firstFlags != secondFlags) return firstFlags < secondFlags;
    const float firstWidth = first.width, secondWidth = second.width;
    return firstWidth < secondWidth;
}

// Those that pass under the point, the nearest first.
std::vector<Passing> LinksUnder(LatLon point, const SceneryObject* node, const SceneryObject* except) {
    std::vector<Passing> passing;
    for (SceneryObject* link : AllLinks()) {
        const auto& payload = PayloadAs<TaxiLinkPayload>(link);
        if (link == except || !payload.start || !payload.end || payload.start == node || payload.end == node) continue;
        Passing found = { link, model::PositionOf(payload.start), model::PositionOf(payload.end), point, 0 };
        if (!OnLinkTest(found.from, found.to, &found.onto)) continue;
        found.beside = model::DistanceBetween(point, found.onto);
        passing.push_back(found);
    }
    std::sort(passing.begin(), passing.end(), ComesFirst);
    return passing;
}

// Where two links cross, if that is near enough to the point for both; else the point's place on the first.
LatLon MeetingPlace(const Passing& first, const Passing& second, LatLon point) {
    const auto local = [&](LatLon place) { return model::LatLonToLocal(first.from, place); };
    const model::Local a = local(first.to), c = local(second.from), d = local(second.to);
    const model::Local along = { d.east - c.east, d.north - c.north };
    const double turn = a.east * along.north - a.north * along.east;
    const double share = turn == 0 ? -1 : (c.east * along.north - c.north * along.east) / turn;
    if (!(share > 0 && share < 1)) return first.onto;
    LatLon crossing = model::LocalToLatLon(first.from, { a.east * share, a.north * share });
    const bool isNear = model::DistanceBetween(point, crossing) <= 2 * kOnLinkDistance;
    LatLon onFirst = crossing, onSecond = crossing;
    return isNear && OnLinkTest(first.from, first.to, &onFirst) && OnLinkTest(second.from, second.to, &onSecond)
               ? crossing
               : first.onto;
}

LatLon PlaceOn(const std::vector<Passing>& passing, LatLon point) {
    return passing.size() == 1 ? passing[0].onto : MeetingPlace(passing[0], passing[1], point);
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
    RemoveOtherLinks(payload.start, payload.end, nullptr);
    model::AddObject(link);
}

void RemoveOtherLinks(const SceneryObject* start, const SceneryObject* end, const SceneryObject* kept) {
    for (SceneryObject* other : AllLinks()) {
        if (other != kept && Joins(other, start, end)) model::DeleteObject(other);
    }
}

void SplitLink(SceneryObject* link, SceneryObject* node) {
    const auto& payload = PayloadAs<TaxiLinkPayload>(link);
    AddHalf(link, node, payload.start);
    AddHalf(link, node, payload.end);
    model::DeleteObject(link);
}

bool SnapToLinks(LatLon* point, const SceneryObject* except) {
    const std::vector<Passing> passing = LinksUnder(*point, nullptr, except);
    if (passing.empty()) return false;
    *point = PlaceOn(passing, *point);
    return true;
}

size_t CountLinksUnder(LatLon point, const SceneryObject* except) { return LinksUnder(point, nullptr, except).size(); }

void JoinNodeIntoLinks(SceneryObject* node, const SceneryObject* except) {
    const LatLon place = model::PositionOf(node);
    std::vector<Passing> passing = LinksUnder(place, node, except);
    if (passing.empty()) return;
    MoveNode(node, PlaceOn(passing, place));
    // Where two links share an end, their halves would join the same two objects: that of the nearest link stays.
    std::reverse(passing.begin(), passing.end());
    std::vector<SceneryObject*> ends;
    std::unordered_set<SceneryObject*> seen;
    for (const Passing& under : passing) {
        const auto& payload = PayloadAs<TaxiLinkPayload>(under.link);
        for (SceneryObject* end : { payload.start, payload.end }) {
            if (seen.insert(end).second) ends.push_back(end);
        }
        SplitLink(under.link, node);
    }
    for (SceneryObject* end : ends) UpdateHoldShort(end);
}

}  // namespace map
