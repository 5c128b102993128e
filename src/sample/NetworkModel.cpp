// NetworkModel.cpp - the taxi nodes, parking spots, links and names of an airport (AirportModel.h).
#include <algorithm>
#include <cstring>
#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "model/ObjectList.h"
#include "model/Records.h"
#include "model/SpotBits.h"
#include "sample/AirportModel.h"
#include "sample/Network.h"
#include "sample/PlanGeometry.h"

namespace sample {

namespace {

using model::PayloadAs;
using model::SceneryObject;

std::vector<SceneryObject*> AppendNodes(const AirportPlan& plan, const Network& network) {
    std::vector<SceneryObject*> nodes;
    for (const NetNode& node : network.nodes) {
        SceneryObject* object = model::CreateObject(model::kTaxiNode, sizeof(model::TaxiNodeRecord));
        const model::EncodedPoint at = Encoded(plan, node.at);
        PayloadAs<model::TaxiNodeRecord>(object) = { node.type, 0, 0, at.longitude, at.latitude };
        model::AppendObject(object);
        nodes.push_back(object);
    }
    return nodes;
}

std::vector<std::string> SplitCodes(std::string_view codes) {
    std::vector<std::string> list;
    while (!codes.empty()) {
        const size_t comma = codes.find(',');
        list.emplace_back(codes.substr(0, comma));
        codes = comma == std::string_view::npos ? std::string_view{} : codes.substr(comma + 1);
    }
    return list;
}

SceneryObject* MakeSpot(const AirportPlan& plan, const SpotPlan& spot) {
    const std::vector<std::string> codes = SplitCodes(spot.codes);
    const auto count = static_cast<uint32_t>(codes.size());
    SceneryObject* object = model::CreateObject(
        model::kParkingSpot, static_cast<uint32_t>(sizeof(model::ParkingSpotRecord) + model::kParkingCodeSize * count));
    const model::EncodedPoint at = Encoded(plan, spot.at);
    const uint32_t packed = spot.name | uint32_t{ spot.pushback } << model::kParkingPushbackShift |
                            uint32_t{ spot.type } << model::kParkingTypeShift |
                            (uint32_t{ spot.number } << model::kParkingNumberShift & model::kParkingNumberMask) |
                            count << model::kParkingCountShift;
    PayloadAs<model::ParkingSpotRecord>(object) = { packed, static_cast<float>(spot.radius),
                                                    static_cast<float>(Wrapped(spot.heading)), at.longitude,
                                                    at.latitude };
    uint8_t* place = object->payload + sizeof(model::ParkingSpotRecord);
    for (const std::string& code : codes) {
        std::copy_n(code.begin(), std::min(code.size(), model::kParkingCodeSize), place);
        place += model::kParkingCodeSize;
    }
    return object;
}

constexpr uint32_t SolidEdge(model::LinkSide side) { return model::WithEdgeLine(0, side, model::EdgeLine::Solid); }

// The lines and lights that the designers of the simulator's own airports set.
uint32_t PaintBits(Paint paint) {
    constexpr uint32_t kSolidEdges = SolidEdge(model::LinkSide::Left) | SolidEdge(model::LinkSide::Right);
    constexpr uint32_t kLights = model::kLinkCentreLights | model::kLinkLeftLights | model::kLinkRightLights;
    switch (paint) {
    case Paint::None: return 0;
    case Paint::Centre: return model::kLinkCentreLine;
    case Paint::Taxiway: return model::kLinkCentreLine | kSolidEdges;
    default: return model::kLinkCentreLine | kSolidEdges | kLights;
    }
}

uint32_t LinkFlags(model::LinkType type, Paint paint, Surface surface) {
    const uint32_t drawn = type == model::kApronRouteLink ? 0 : model::kLinkDrawFlags;
    return type | drawn | PaintBits(paint) | uint32_t{ surface } << model::kLinkSurfaceShift;
}

struct LinkEnds {
    std::vector<SceneryObject*> nodes, spots, runways;
    std::map<std::string, SceneryObject*, std::less<>> names;  // the blank name included
};

void AppendLink(const AirportPlan& plan, const NetLink& net, const LinkEnds& ends) {
    SceneryObject* object = model::CreateObject(model::kTaxiLink, sizeof(model::TaxiLinkPayload));
    auto& link = PayloadAs<model::TaxiLinkPayload>(object);
    const auto at = [](const std::vector<SceneryObject*>& list, int index) { return list[static_cast<size_t>(index)]; };
    link.start = at(ends.nodes, net.start);
    if (net.type == model::kParkingLink) {
        link.end = at(ends.spots, net.end);
        link.designator = ends.names.find("")->second;
        link.flagsWord = LinkFlags(net.type, Paint::Centre, net.line->surface);
        link.width = static_cast<float>(plan.spots[static_cast<size_t>(net.end)].connector);
    } else if (net.type == model::kRunwayLink) {
        const RunwayPlan& runway = plan.runways[static_cast<size_t>(net.runway)];
        link.end = at(ends.nodes, net.end);
        link.designator = at(ends.runways, net.runway);
        link.flagsWord = LinkFlags(net.type, Paint::None, runway.surface);
        link.width = static_cast<float>(runway.width);
    } else {
        link.end = at(ends.nodes, net.end);
        link.designator = ends.names.find(std::string_view(net.line->name))->second;
        link.flagsWord = LinkFlags(net.type, net.line->paint, net.line->surface);
        link.width = static_cast<float>(net.line->width);
    }
    model::AppendObject(object);
}

// The names in alphabetical order behind the blank one, which stands for "no name".
void AppendDesignators(const Network& network, LinkEnds* ends) {
    if (network.links.empty()) return;
    ends->names.emplace("", nullptr);
    for (const NetLink& link : network.links) {
        if (link.line) ends->names.emplace(link.line->name, nullptr);
    }
    for (auto& [name, object] : ends->names) {
        object = model::CreateObject(model::kTaxiDesignator, sizeof(model::TaxiDesignatorRecord));
        std::memcpy(object->payload, name.data(), std::min(name.size(), sizeof(model::TaxiDesignatorRecord)));
    }
}

}  // namespace

void AppendNetwork(const AirportPlan& plan, const std::vector<SceneryObject*>& runways) {
    LinkEnds ends;
    ends.runways = runways;
    const Network network = BuildNetwork(plan);
    ends.nodes = AppendNodes(plan, network);
    for (const SpotPlan& spot : plan.spots) {
        ends.spots.push_back(MakeSpot(plan, spot));
        model::AppendObject(ends.spots.back());
    }
    AppendDesignators(network, &ends);
    for (const NetLink& link : network.links) AppendLink(plan, link, ends);
    for (const auto& [name, object] : ends.names) model::AppendObject(object);
}

}  // namespace sample
