// HoldShortRule.cpp - see HoldShortRule.h.
#include "map/HoldShortRule.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "model/Geodesy.h"
#include "model/Positions.h"
#include "model/Records.h"

namespace map {

using model::PayloadAs;
using model::SceneryObject;

namespace {

constexpr double kHalf = 0.5;

// Metres east and north of the node.
Point FromNode(const SceneryObject* node, model::LatLon place) {
    const model::Local offset = model::LatLonToLocal(model::PositionOf(node), place);
    return { offset.east, offset.north };
}

double Dot(Point a, Point b) { return a.x * b.x + a.y * b.y; }
double BearingOf(Point a) { return std::atan2(a.x, a.y); }

struct CentreLine {
    Point from, to;
};

// The centre line's nearest point to the place.
Point NearestOn(const CentreLine& line, Point place) {
    const Point along = line.to - line.from;
    const double square = Dot(along, along);
    const double share = square > 0 ? std::clamp(Dot(place - line.from, along) / square, 0.0, 1.0) : 0;
    return line.from + along * share;
}

double DistanceTo(const CentreLine& line, Point place) { return Length(NearestOn(line, place) - place); }

CentreLine LineOf(const SceneryObject* node, const model::RunwayArea& area) {
    const Point centre = FromNode(node, area.centre);
    const double half = double{ PayloadAs<model::RunwayPayload>(area.runway).body.length } * kHalf;
    const Point ahead = Point{ area.sine, area.cosine } * half;
    return { centre - ahead, centre + ahead };
}

// By distance from the node, which is the origin; of equally near ones by where they lie.
bool IsNearer(const CentreLine& a, const CentreLine& b) {
    const auto key = [](const CentreLine& line) {
        const Point nearest = NearestOn(line, {});
        return std::array{ Length(nearest), BearingOf(nearest), line.from.x, line.from.y, line.to.x, line.to.y };
    };
    return key(a) < key(b);
}

// The centre line that passes nearest to the node. False without runways.
bool FindNearestRunway(const SceneryObject* node, std::span<const model::RunwayArea> runways, CentreLine* nearest) {
    bool found = false;
    for (const model::RunwayArea& area : runways) {
        const CentreLine line = LineOf(node, area);
        if (!std::isfinite(DistanceTo(line, {}))) continue;  // a damaged record
        if (!found || IsNearer(line, *nearest)) *nearest = line;
        found = true;
    }
    return found;
}

struct Arm {
    Point far, along;  // the other end, and the direction of one metre toward it
    double width = 0;
};

// The taxiways that meet at the node, in the order of the rule.
std::vector<Arm> ArmsOf(const SceneryObject* node, const LinkList& links, Point towardRunway) {
    std::vector<Arm> arms;
    for (const SceneryObject* object : links) {
        const auto& link = PayloadAs<model::TaxiLinkPayload>(object);
        const SceneryObject* other = link.start == node ? link.end : link.start;
        if (!other || model::LinkTypeOf(link) == model::kRunwayLink) continue;
        const Point far = FromNode(node, model::PositionOf(other));
        const double length = Length(far), width = double{ link.width };
        if (length > 0) arms.push_back({ far, far * (1 / length), width > 0 ? width : 0 });
    }
    const auto key = [&](const Arm& arm) {
        return std::array{ -arm.width, -Dot(arm.along, towardRunway), BearingOf(arm.along), Length(arm.far) };
    };
    std::sort(arms.begin(), arms.end(), [&](const Arm& a, const Arm& b) { return key(a) < key(b); });
    return arms;
}

// Across the first arm, or halfway between the first two where the taxiway bends; as seen from the runway.
Point DashedSide(const std::vector<Arm>& arms, Point towardRunway) {
    Point ahead = arms[0].along;
    const bool runsThrough = arms.size() > 1 && arms[1].width > 0;
    if (runsThrough && Length(ahead - arms[1].along) > kHalf) ahead = ahead - arms[1].along;
    ahead = ahead * (1 / Length(ahead));
    return Dot(ahead, towardRunway) < 0 ? ahead * -1 : ahead;
}

bool Cross(const CentreLine& runway, Point far) {
    const Point node = {};
    return model::Orientation(runway.from, runway.to, node) != model::Orientation(runway.from, runway.to, far) &&
           model::Orientation(node, far, runway.from) != model::Orientation(node, far, runway.to);
}

// How near the arm comes to the runway.
double ReachOf(const Arm& arm, const CentreLine& runway) {
    if (Cross(runway, arm.far)) return 0;
    const CentreLine taxiway = { {}, arm.far };
    return std::min({ DistanceTo(runway, arm.far), DistanceTo(taxiway, runway.from), DistanceTo(taxiway, runway.to) });
}

// Where the runway lies on the ground's way: along the arm that comes nearest to it, or, when all lead away from it,
// opposite the one that ends farthest away.
Point RunwaySide(const std::vector<Arm>& arms, const CentreLine& runway) {
    const auto nearest = std::min_element(
        arms.begin(), arms.end(), [&](const Arm& a, const Arm& b) { return ReachOf(a, runway) < ReachOf(b, runway); });
    if (ReachOf(*nearest, runway) < DistanceTo(runway, {})) return nearest->along;
    const auto farthest = std::max_element(arms.begin(), arms.end(), [&](const Arm& a, const Arm& b) {
        return DistanceTo(runway, a.far) < DistanceTo(runway, b.far);
    });
    return farthest->along * -1;
}

bool HasWidth(const std::vector<Arm>& arms) { return !arms.empty() && arms[0].width > 0; }

}  // namespace

bool FindHoldMarking(const SceneryObject* node, const LinkList& links, std::span<const model::RunwayArea> runways,
                     HoldMarking* marking) {
    CentreLine runway;
    const Point toward = FindNearestRunway(node, runways, &runway) ? NearestOn(runway, {}) : Point{};
    const std::vector<Arm> arms = ArmsOf(node, links, toward);
    if (!HasWidth(arms)) return false;
    *marking = { DashedSide(arms, toward), arms[0].width * kHalf };
    return true;
}

bool DecideReverse(const SceneryObject* node, const LinkList& links, std::span<const model::RunwayArea> runways,
                   bool* reversed) {
    CentreLine runway;
    if (!FindNearestRunway(node, runways, &runway)) return false;
    const Point toward = NearestOn(runway, {});
    const std::vector<Arm> arms = ArmsOf(node, links, toward);
    if (!HasWidth(arms)) return false;
    *reversed = Dot(DashedSide(arms, toward), RunwaySide(arms, runway)) < 0;
    return true;
}

}  // namespace map
