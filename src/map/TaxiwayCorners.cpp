// TaxiwayCorners.cpp - how the edges of neighbouring arms join at a hub.
//
// Seen from the hub, the right edge of an arm and the left edge of the next one clockwise enclose the gap
// between them. In front of the hub their lines cross in an inner corner, which gets a fillet; behind it
// they cross in an outer corner, which gets a bend; arms of different widths that run straight on cross
// nowhere sensible and get a taper; a gap of well over three quarters of a turn gets a round cap.
#include <algorithm>
#include <cmath>

#include "map/TaxiwaySurface.h"
#include "model/Geodesy.h"

namespace map {

namespace {

constexpr double kFilletRadius = 1.2;    // of the two half widths together
constexpr double kTaperLength = 4;       // of the difference in half width
constexpr double kRoomShared = 0.5;      // of a link, for the corners at one of its ends
constexpr double kRoomAlone = 0.75;      // the same where no junction needs room at the other end
constexpr double kRoomThrough = 1;       // and where the taxiway runs straight on there
constexpr double kFarthestCrossing = 2;  // of the two half widths together, behind the hub
constexpr double kRoundCap = 1.55 * model::kPi;
constexpr double kStraight = 0.02;  // sine of the gap below which the edges count as parallel

struct Edge {
    Point hub, along;
    Point side;         // from the hub's centre to the edge, at a right angle to `along`
    double half = 0;    // length of `side`
    double length = 0;  // of the arm
    double room = 0;    // how much of the length the corners at this hub may take
};

Point At(const Edge& edge, double distance) { return edge.hub + edge.side + edge.along * distance; }

// Where the lines p + s x u and q + t x v cross; they are not parallel.
Point Crossing(Point p, Point u, Point q, Point v) {
    const double s = ((q.x - p.x) * v.y - (q.y - p.y) * v.x) / (u.x * v.y - u.y * v.x);
    return p + u * s;
}

Corner CurveBetween(const Edge& a, double cutA, const Edge& b, double cutB, Point control) {
    Corner corner;
    corner.kind = Corner::Kind::Curve;
    corner.from = At(a, cutA);
    corner.to = At(b, cutB);
    corner.control[0] = control;
    corner.fromCut = cutA;
    corner.toCut = cutB;
    return corner;
}

Corner Fillet(const Edge& a, const Edge& b, double cutA, double cutB, double gap) {
    const double room = std::min(a.room - cutA, b.room - cutB);
    const double wanted = kFilletRadius * (a.half + b.half) / std::tan(gap / 2);
    const double reach = std::clamp(wanted, 0.0, std::max(room, 0.0));
    return CurveBetween(a, cutA + reach, b, cutB + reach, At(a, cutA));
}

// The narrow edge begins to spread before the hub and meets the wide one's end there.
Corner Taper(const Edge& a, const Edge& b) {
    const double difference = std::abs(a.half - b.half);
    const bool narrowFirst = a.half < b.half;
    const Edge& narrow = narrowFirst ? a : b;
    const double reach = std::min(kTaperLength * difference, narrow.room);
    const Point control = At(narrow, reach / 2);
    return narrowFirst ? CurveBetween(a, reach, b, 0, control) : CurveBetween(a, 0, b, reach, control);
}

// Behind the hub the curve begins at the hub; before it, as far out again as the crossing.
double Softened(double cut, const Edge& edge) {
    return cut <= 0 ? 0 : std::min(cut + edge.half, std::max(cut, edge.room));
}

Corner Cap(const Edge& a, const Edge& b, double gap) {
    // Straight back from the arms: halfway round the gap, clockwise from a.
    const double angle = std::atan2(a.along.y, a.along.x) + gap / 2;
    const Point back = { std::cos(angle), std::sin(angle) };
    Corner corner;
    corner.kind = Corner::Kind::Cap;
    corner.from = At(a, 0);
    corner.to = At(b, 0);
    corner.middle = a.hub + back * std::max(a.half, b.half);
    corner.control[0] = Crossing(corner.from, a.along, corner.middle, TurnedRight(back));
    corner.control[1] = Crossing(corner.to, b.along, corner.middle, TurnedRight(back));
    return corner;
}

// Nothing to pave, but the edge of the taxiway ends where it meets the runway's.
Corner RunInto(double cutA, double cutB) {
    Corner corner;
    corner.fromCut = std::max(cutA, 0.0);
    corner.toCut = std::max(cutB, 0.0);
    return corner;
}

Corner Join(const Edge& a, const Edge& b, double gap, bool fillsOnly) {
    const double sine = std::sin(gap), cosine = std::cos(gap);
    if (gap > kRoundCap) return fillsOnly ? Corner{} : Cap(a, b, gap);
    if (gap < kStraight) return {};  // one on top of the other
    if (std::abs(sine) < kStraight) return fillsOnly ? Corner{} : Taper(a, b);
    const double cutA = (b.half + a.half * cosine) / sine, cutB = (a.half + b.half * cosine) / sine;
    if (cutA >= 0 && cutB >= 0) {
        // Beyond a link's end the arms overlap all the way: nothing is left to fill.
        return cutA > a.length || cutB > b.length ? Corner{} : Fillet(a, b, cutA, cutB, gap);
    }
    if (fillsOnly) return RunInto(cutA, cutB);
    if (cutA <= 0 && cutB <= 0) return CurveBetween(a, 0, b, 0, At(a, cutA));
    // In front of the hub the wider arm's edge runs on past it and meets the narrow one's; behind it the two
    // would meet inside the wider arm.
    const double farthest = kFarthestCrossing * (a.half + b.half);
    const bool meet = gap < model::kPi && -std::min(cutA, cutB) <= farthest && cutA <= a.length && cutB <= b.length;
    if (!meet) return Taper(a, b);
    return CurveBetween(a, Softened(cutA, a), b, Softened(cutB, b), At(a, cutA));
}

// Moves a corner into the pavement, or out of it; the ends keep their distances from the hub.
void Inset(Corner* corner, const Edge& a, const Edge& b, double inset) {
    if (corner->kind == Corner::Kind::None) return;
    const auto inward = [&](const Edge& edge) {
        return edge.half > 0 ? edge.side * (-std::min(inset, edge.half) / edge.half) : Point{};
    };
    const Point byA = inward(a), byB = inward(b);
    corner->from = corner->from + byA;
    corner->to = corner->to + byB;
    if (corner->kind == Corner::Kind::Cap) {
        const Point back = corner->middle - a.hub;
        corner->middle = corner->middle - back * (inset / std::max(Length(back), inset));
        corner->control[0] = Crossing(corner->from, a.along, corner->middle, TurnedRight(back));
        corner->control[1] = Crossing(corner->to, b.along, corner->middle, TurnedRight(back));
        return;
    }
    // The lines through both ends move along, and with them the point where they cross.
    const double sine = a.along.x * b.along.y - a.along.y * b.along.x;
    Point& control = corner->control[0];
    control = control + byA;
    if (std::abs(sine) > kStraight) control = Crossing(control, a.along, corner->control[0] - byA + byB, b.along);
}

// Only two arms, straight on and of one width, as at a hold-short node: no corner is made there.
bool RunsStraightOn(const TaxiNetwork& network, const TaxiHub& hub) {
    if (hub.edgeArms != 2) return false;
    const TaxiArm &a = network.arms[hub.firstArm], &b = network.arms[hub.firstArm + 1];
    const double sine = a.along.x * b.along.y - a.along.y * b.along.x;
    const double cosine = a.along.x * b.along.x + a.along.y * b.along.y;
    return cosine < 0 && std::abs(sine) < kStraight && std::abs(a.half - b.half) < kStraight * a.half;
}

double RoomShare(const TaxiNetwork& network, const TaxiHub& far) {
    if (RunsStraightOn(network, far)) return kRoomThrough;
    return far.edgeArms <= 2 ? kRoomAlone : kRoomShared;
}

}  // namespace

void LayCorners(TaxiNetwork* network, double inset) {
    const auto edgeOf = [&](const TaxiArm& arm, double sign) {
        const TaxiSegment& segment = network->segments[arm.link];
        const TaxiHub& far = network->hubs[arm.atStart ? segment.endHub : segment.startHub];
        return Edge{ .hub = network->hubs[arm.hub].at,
                     .along = arm.along,
                     .side = TurnedRight(arm.along) * (arm.half * sign),
                     .half = arm.half,
                     .length = arm.length,
                     .room = arm.length * RoomShare(*network, far) };
    };
    for (const TaxiHub& hub : network->hubs) {
        for (uint32_t i = 0; hub.inView && i < hub.edgeArms; ++i) {
            TaxiArm& arm = network->arms[hub.firstArm + i];
            TaxiArm& next = network->arms[hub.firstArm + (i + 1) % hub.edgeArms];
            const bool wraps = i + 1 == hub.edgeArms;
            const double gap = next.angle - arm.angle + (wraps ? model::kTwoPi : 0);
            const int runways =
                IsAlongRunway(network->segments[arm.link]) + IsAlongRunway(network->segments[next.link]);
            const Edge a = edgeOf(arm, 1), b = edgeOf(next, -1);
            // A runway's own pavement is no taxiway's business; only the fillets beside it are.
            arm.right = runways == 2 ? Corner{} : Join(a, b, gap, runways == 1);
            if (inset != 0) Inset(&arm.right, a, b, inset);
            arm.rightCut = arm.right.fromCut;
            next.leftCut = arm.right.toCut;
            next.joinedLeft = arm.right.kind != Corner::Kind::None;
        }
    }
}

}  // namespace map
