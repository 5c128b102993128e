// TaxiwayLines.cpp - see TaxiwayLines.h.
#include "map/TaxiwayLines.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace map {

namespace {

constexpr double kTurnReach = 2;          // of the half width, where a turn leaves the centre line
constexpr double kLeastReach = 6;         // metres
constexpr double kSharpestTurn = 0.2;     // cosine between two arms above which no line joins them
constexpr uint32_t kMostTurningArms = 8;  // a hub with more is no junction of taxiways

// How far along the arm the runway that it meets at its hub reaches; 0 when it meets none.
double RunwayReach(const TaxiNetwork& network, const TaxiArm& arm) {
    const TaxiHub& hub = network.hubs[arm.hub];
    double reach = 0;
    for (uint32_t i = hub.firstArm; i < hub.firstArm + hub.edgeArms; ++i) {
        const TaxiArm& other = network.arms[i];
        if (!IsAlongRunway(network.segments[other.link])) continue;
        const double sine = std::abs(arm.along.x * other.along.y - arm.along.y * other.along.x);
        if (sine * arm.length <= other.half) return arm.length;
        reach = std::max(reach, other.half / sine);
    }
    return reach;
}

struct CentreLayer {
    const TaxiNetwork* network;
    uint32_t bit;
    double scale;
    std::vector<double> cuts;  // by arm: where its straight line begins, pixels from the hub
    CentreLines lines;
};

bool HasLine(const CentreLayer& layer, const TaxiArm& arm) {
    const TaxiSegment& segment = layer.network->segments[arm.link];
    return (segment.flags & layer.bit) && !IsAlongRunway(segment);
}

double TurnStart(const CentreLayer& layer, const TaxiArm& arm) {
    return std::min(std::max(kTurnReach * arm.half, kLeastReach * layer.scale), arm.length / 2);
}

// The turns at one hub; sets the cuts of its arms.
void LayTurns(CentreLayer* layer, uint32_t hubNumber) {
    const TaxiNetwork& network = *layer->network;
    const TaxiHub& hub = network.hubs[hubNumber];
    std::vector<uint32_t> lined;
    for (uint32_t i = hub.firstArm; i < hub.firstArm + hub.armCount; ++i) {
        if (!HasLine(*layer, network.arms[i])) continue;
        layer->cuts[i] = RunwayReach(network, network.arms[i]);
        if (layer->cuts[i] == 0) lined.push_back(i);
    }
    if (lined.size() < 2 || lined.size() > kMostTurningArms) return;
    for (size_t i = 0; i < lined.size(); ++i) {
        for (size_t j = i + 1; j < lined.size(); ++j) {
            const TaxiArm &a = network.arms[lined[i]], &b = network.arms[lined[j]];
            if (a.along.x * b.along.x + a.along.y * b.along.y > kSharpestTurn) continue;
            const double cutA = layer->cuts[lined[i]] = TurnStart(*layer, a);
            const double cutB = layer->cuts[lined[j]] = TurnStart(*layer, b);
            layer->lines.turns.push_back({ hubNumber, { hub.at + a.along * cutA, hub.at, hub.at + b.along * cutB } });
        }
    }
}

}  // namespace

CentreLines LayCentreLines(const TaxiNetwork& network, uint32_t bit, double scale) {
    CentreLayer layer = { &network, bit, scale, std::vector<double>(network.arms.size()), {} };
    for (uint32_t i = 0; i < network.hubs.size(); ++i) {
        if (network.hubs[i].inView) LayTurns(&layer, i);
    }
    for (const TaxiSegment& segment : network.segments) {
        const TaxiArm &start = network.arms[segment.startArm], &end = network.arms[segment.endArm];
        const double startCut = layer.cuts[segment.startArm], endCut = layer.cuts[segment.endArm];
        if (!segment.inView || !HasLine(layer, start) || startCut + endCut >= start.length) continue;
        layer.lines.straights.push_back({ network.hubs[segment.startHub].at + start.along * startCut,
                                          network.hubs[segment.endHub].at + end.along * endCut });
    }
    return std::move(layer.lines);
}

bool FindStraightEdge(const TaxiNetwork& network, const TaxiSegment& segment, double inset, bool right, Point* from,
                      Point* to) {
    const TaxiArm &start = network.arms[segment.startArm], &end = network.arms[segment.endArm];
    if (!segment.inView || start.half <= inset) return false;
    double startCut = right ? start.rightCut : start.leftCut, endCut = right ? end.leftCut : end.rightCut;
    if (startCut == 0) startCut = RunwayReach(network, start);
    if (endCut == 0) endCut = RunwayReach(network, end);
    if (startCut + endCut >= start.length) return false;
    const Point side = TurnedRight(start.along) * ((start.half - inset) * (right ? 1 : -1));
    *from = network.hubs[segment.startHub].at + side + start.along * startCut;
    *to = network.hubs[segment.endHub].at + side + end.along * endCut;
    return true;
}

std::vector<EdgeCurve> CurvesOf(const Corner& corner) {
    if (corner.kind == Corner::Kind::None) return {};
    if (corner.kind == Corner::Kind::Curve) return { { corner.from, corner.control[0], corner.to } };
    return { { corner.from, corner.control[0], corner.middle }, { corner.middle, corner.control[1], corner.to } };
}

}  // namespace map
