// Network.cpp - see Network.h.
#include "sample/Network.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <set>
#include <utility>

#include "sample/PlanGeometry.h"

namespace sample {

namespace {

constexpr double kTouch = 1.5;        // metres: a line that ends this near another one ends on it
constexpr double kSpotSpacing = 10;   // metres: spots whose ways out meet a line closer together share a node
constexpr double kSpotReach = 130;    // metres from a spot to the line behind it
constexpr double kRunwayTail = 60;    // metres: shorter dead ends of runway links are left out
constexpr double kHoldOverhang = 30;  // metres beyond a runway's end that still need a hold-short node
constexpr double kIlsStretch = 400;   // metres from the threshold within which ILS hold-short nodes stand

enum class Mark { None, Hold, IlsHold, Spot };

// A place where a straight piece is cut: `at` runs from 0 to 1.
struct Cut {
    double at = 0;
    Mark mark = Mark::None;
    int spot = -1;
};

struct Piece {
    Local from, to;
    const TaxiLine* line = nullptr;  // null: a runway
    int runway = -1;
    std::vector<Cut> cuts;
};

Local PointOn(const Piece& piece, double at) { return piece.from + (piece.to - piece.from) * at; }

std::vector<Piece> PiecesOf(const AirportPlan& plan) {
    std::vector<Piece> pieces;
    for (size_t i = 0; i < plan.runways.size(); ++i) {
        const RunwayPlan& runway = plan.runways[i];
        pieces.push_back({ PrimaryEnd(runway), SecondaryEnd(runway), nullptr, static_cast<int>(i), {} });
    }
    for (const TaxiLine& line : plan.lines) {
        for (size_t i = 1; i < line.points.size(); ++i) {
            pieces.push_back({ line.points[i - 1], line.points[i], &line, -1, {} });
        }
    }
    for (Piece& piece : pieces) piece.cuts = { { 0, Mark::None, -1 }, { 1, Mark::None, -1 } };
    return pieces;
}

bool Apart(const Piece& a, const Piece& b) {
    const auto apart = [](double a1, double a2, double b1, double b2) {
        return std::max(a1, a2) + kTouch < std::min(b1, b2) || std::max(b1, b2) + kTouch < std::min(a1, a2);
    };
    return apart(a.from.east, a.to.east, b.from.east, b.to.east) ||
           apart(a.from.north, a.to.north, b.from.north, b.to.north);
}

void CutWhereTouched(Piece* piece, Local end) {
    if (DistanceToSegment(end, piece->from, piece->to) > kTouch) return;
    piece->cuts.push_back({ NearestOnSegment(end, piece->from, piece->to), Mark::None, -1 });
}

void CutAtCrossings(std::vector<Piece>* pieces) {
    for (size_t i = 0; i < pieces->size(); ++i) {
        for (size_t k = i + 1; k < pieces->size(); ++k) {
            Piece &a = (*pieces)[i], &b = (*pieces)[k];
            if (Apart(a, b)) continue;
            if (const auto crossing = SegmentCrossing(a.from, a.to, b.from, b.to)) {
                a.cuts.push_back({ crossing->onFirst, Mark::None, -1 });
                b.cuts.push_back({ crossing->onSecond, Mark::None, -1 });
            }
            CutWhereTouched(&a, b.from);
            CutWhereTouched(&a, b.to);
            CutWhereTouched(&b, a.from);
            CutWhereTouched(&b, a.to);
        }
    }
}

bool OnOtherRunway(const AirportPlan& plan, size_t self, Local place) {
    for (size_t i = 0; i < plan.runways.size(); ++i) {
        if (i == self) continue;
        const RunwayFrame frame = InFrame(plan.runways[i], place);
        const RunwayPlan& other = plan.runways[i];
        if (std::fabs(frame.right) < other.holdDistance - 1 && std::fabs(frame.along) < other.length / 2) return true;
    }
    return false;
}

// Whether a hold-short node stands there along the runway: anywhere, or for an ILS near the threshold it serves.
bool HoldsAt(const RunwayPlan& runway, double along, Mark mark) {
    const double half = runway.length / 2;
    if (std::fabs(along) > half + kHoldOverhang) return false;
    if (mark == Mark::Hold) return true;
    return (!runway.ends[0].ils.ident.empty() && along < -half + kIlsStretch) ||
           (!runway.ends[1].ils.ident.empty() && along > half - kIlsStretch);
}

void CutAtHoldLine(const AirportPlan& plan, size_t index, double right, Mark mark, Piece* piece) {
    const RunwayPlan& runway = plan.runways[index];
    const RunwayFrame from = InFrame(runway, piece->from), to = InFrame(runway, piece->to);
    if ((from.right - right) * (to.right - right) >= 0) return;
    const double at = (right - from.right) / (to.right - from.right);
    if (!HoldsAt(runway, from.along + at * (to.along - from.along), mark)) return;
    if (!OnOtherRunway(plan, index, PointOn(*piece, at))) piece->cuts.push_back({ at, mark, -1 });
}

void CutAtHoldLines(const AirportPlan& plan, std::vector<Piece>* pieces) {
    for (Piece& piece : *pieces) {
        if (!piece.line) continue;
        for (size_t i = 0; i < plan.runways.size(); ++i) {
            for (const double side : { -1.0, 1.0 }) {
                const RunwayPlan& runway = plan.runways[i];
                CutAtHoldLine(plan, i, side * runway.holdDistance, Mark::Hold, &piece);
                if (runway.ilsHoldDistance > 0) {
                    CutAtHoldLine(plan, i, side * runway.ilsHoldDistance, Mark::IlsHold, &piece);
                }
            }
        }
    }
}

struct WayOut {
    Piece* piece = nullptr;
    double at = 0, distance = kSpotReach;
};

// Straight back from the spot; where nothing lies there, to the nearest line.
WayOut FindWayOut(const SpotPlan& spot, std::vector<Piece>* pieces) {
    const Local behind = spot.at - Ahead(spot.heading) * kSpotReach;
    WayOut straight, nearest;
    for (Piece& piece : *pieces) {
        if (!piece.line) continue;
        const double at = NearestOnSegment(spot.at, piece.from, piece.to);
        const double distance = Distance(spot.at, PointOn(piece, at));
        if (distance < nearest.distance) nearest = { &piece, at, distance };
        const auto crossing = SegmentCrossing(spot.at, behind, piece.from, piece.to);
        if (crossing && crossing->onFirst * kSpotReach < straight.distance) {
            straight = { &piece, crossing->onSecond, crossing->onFirst * kSpotReach };
        }
    }
    return straight.piece ? straight : nearest;
}

void CutAtSpots(const AirportPlan& plan, std::vector<Piece>* pieces) {
    for (size_t i = 0; i < plan.spots.size(); ++i) {
        const WayOut way = FindWayOut(plan.spots[i], pieces);
        if (!way.piece) continue;
        const double length = Distance(way.piece->from, way.piece->to);
        double at = way.at, best = kSpotSpacing;
        for (const Cut& cut : way.piece->cuts) {
            const double off = std::fabs(cut.at - way.at) * length;
            if (cut.mark == Mark::Hold || cut.mark == Mark::IlsHold || off >= best) continue;
            best = off;
            at = cut.at;
        }
        way.piece->cuts.push_back({ at, Mark::Spot, static_cast<int>(i) });
    }
}

struct Builder {
    Network network;
    std::set<std::pair<int, int>> linked;
};

int NodeAt(Network* network, Local place) {
    int nearest = -1;
    double best = kNodeSpacing;
    for (size_t i = 0; i < network->nodes.size(); ++i) {
        const Local at = network->nodes[i].at;
        if (std::fabs(at.east - place.east) >= best || std::fabs(at.north - place.north) >= best) continue;
        const double distance = Distance(at, place);
        if (distance >= best) continue;
        best = distance;
        nearest = static_cast<int>(i);
    }
    if (nearest >= 0) return nearest;
    network->nodes.push_back({ place, model::kNormalNode });
    return static_cast<int>(network->nodes.size()) - 1;
}

void AddPiece(Builder* builder, Piece* piece) {
    std::ranges::stable_sort(piece->cuts, {}, &Cut::at);
    int before = -1;
    for (const Cut& cut : piece->cuts) {
        const int node = NodeAt(&builder->network, PointOn(*piece, cut.at));
        NetNode& made = builder->network.nodes[static_cast<size_t>(node)];
        if (cut.mark == Mark::Hold) made.type = model::kHoldShortNode;
        if (cut.mark == Mark::IlsHold && made.type == model::kNormalNode) made.type = model::kIlsHoldShortNode;
        if (before >= 0 && before != node && builder->linked.insert(std::minmax(before, node)).second) {
            const auto type = piece->line ? piece->line->type : model::kRunwayLink;
            builder->network.links.push_back({ type, before, node, piece->runway, piece->line });
        }
        if (cut.mark == Mark::Spot) {
            builder->network.links.push_back({ model::kParkingLink, node, cut.spot, -1, piece->line });
        }
        before = node;
    }
}

// Cuts a runway's line down to the stretch between its first and its last junction.
void TrimRunway(Piece* piece) {
    double first = 1, last = 0;
    const double length = Distance(piece->from, piece->to);
    for (const Cut& cut : piece->cuts) {
        if (cut.at <= 0 || cut.at >= 1) continue;
        first = std::min(first, cut.at);
        last = std::max(last, cut.at);
    }
    std::erase_if(piece->cuts, [&](const Cut& cut) {
        return (cut.at <= 0 && first * length < kRunwayTail) || (cut.at >= 1 && (1 - last) * length < kRunwayTail);
    });
}

bool IsJoined(const Piece& piece) { return piece.line || piece.cuts.size() > 2; }

}  // namespace

Network BuildNetwork(const AirportPlan& plan) {
    if (plan.lines.empty()) return {};
    std::vector<Piece> pieces = PiecesOf(plan);
    CutAtCrossings(&pieces);
    CutAtHoldLines(plan, &pieces);
    CutAtSpots(plan, &pieces);
    Builder builder;
    for (Piece& piece : pieces) {
        if (!IsJoined(piece)) continue;  // a runway that no taxiway reaches
        if (!piece.line) TrimRunway(&piece);
        AddPiece(&builder, &piece);
    }
    return std::move(builder.network);
}

std::vector<int> ConnectedParts(const Network& network, int* count) {
    std::vector<int> parent(network.nodes.size());
    std::iota(parent.begin(), parent.end(), 0);
    const auto root = [&](int node) {
        while (parent[static_cast<size_t>(node)] != node) node = parent[static_cast<size_t>(node)];
        return node;
    };
    for (const NetLink& link : network.links) {
        if (link.type == model::kParkingLink) continue;
        const int a = root(link.start), b = root(link.end);
        parent[static_cast<size_t>(std::max(a, b))] = std::min(a, b);
    }
    std::vector<int> parts(network.nodes.size());
    *count = 0;
    for (size_t i = 0; i < parts.size(); ++i) {
        const int top = root(static_cast<int>(i));
        parts[i] = top == static_cast<int>(i) ? (*count)++ : parts[static_cast<size_t>(top)];
    }
    return parts;
}

}  // namespace sample
