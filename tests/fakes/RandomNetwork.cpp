// RandomNetwork.cpp - see RandomNetwork.h.
#include "RandomNetwork.h"

#include <vector>

#include "fakes/BuildObjects.h"
#include "model/EditHistory.h"

namespace {

using model::PayloadAs;
using model::SceneryObject;
using Random = std::mt19937;

uint32_t Below(Random* random, size_t count) { return static_cast<uint32_t>((*random)() % count); }
bool OneIn(Random* random, uint32_t count) { return Below(random, count) == 0; }

// Whole metres: distances and touching corners repeat.
model::LatLon Somewhere(Random* random, const RandomNetworkOptions& options, double share = 1) {
    const auto reach = static_cast<int>(options.extent * share);
    const auto offset = [&] { return static_cast<double>(Below(random, static_cast<size_t>(2 * reach + 1))) - reach; };
    const double east = offset(), north = offset();
    return model::LocalToLatLon(options.middle, { east, north });
}

std::vector<SceneryObject*> PlacesOf() {
    std::vector<SceneryObject*> places;
    for (SceneryObject* object : build::List()) {
        if (KindOf(object) == model::kTaxiNode || KindOf(object) == model::kParkingSpot) places.push_back(object);
    }
    return places;
}

void AppendPlace(Random* random, const RandomNetworkOptions& options) {
    constexpr uint8_t kTypes[] = { model::kNormalNode, model::kHoldShortNode, model::kIlsHoldShortNode };
    const std::vector<SceneryObject*> others = PlacesOf();
    SceneryObject* place = OneIn(random, 5) ? build::Spot() : build::Node({}, kTypes[Below(random, 3)]);
    if (!others.empty() && OneIn(random, 6)) {  // near another one, or on it
        const model::LatLon at = model::PositionOf(others[Below(random, others.size())]);
        const double east = Below(random, 8), north = Below(random, 8);
        model::SetPosition(place, model::LocalToLatLon(at, { OneIn(random, 3) ? 0 : east, north }));
    } else {
        model::SetPosition(place, Somewhere(random, options));
    }
}

SceneryObject* NewLink(Random* random) {
    const std::vector<SceneryObject*> places = PlacesOf();
    SceneryObject* link = model::CreateObject(model::kTaxiLink, sizeof(model::TaxiLinkPayload));
    auto& payload = PayloadAs<model::TaxiLinkPayload>(link);
    do {
        payload.start = places[Below(random, places.size())];
        payload.end = places[Below(random, places.size())];
    } while (payload.start == payload.end);
    constexpr uint32_t kTypes[] = { model::kTaxiwayLink, model::kRunwayLink, model::kTaxiwayLink, model::kClosedLink };
    payload.flagsWord = kTypes[Below(random, 4)];
    if (KindOf(payload.end) == model::kParkingSpot) payload.flagsWord = model::kParkingLink;
    SceneryObject* runway = model::FirstOfKind(model::state.head, model::kRunway);
    if (runway && OneIn(random, 2)) {
        SceneryObject* second = model::NextOfKind(runway, model::kRunway);
        payload.designator = second && OneIn(random, 2) ? second : runway;
    }
    return link;
}

void AppendRunway(Random* random, const RandomNetworkOptions& options) {
    SceneryObject* runway = build::Runway(static_cast<uint8_t>(1 + Below(random, 4)), 0);
    auto& payload = PayloadAs<model::RunwayPayload>(runway);
    payload.body.length = static_cast<float>(50 + Below(random, static_cast<size_t>(options.extent * 2)));
    payload.body.width = static_cast<float>(OneIn(random, 3) ? 100 + Below(random, 200) : 20 + Below(random, 40));
    payload.body.heading = static_cast<float>(10 * Below(random, 36));
    payload.body.pattern = static_cast<uint8_t>((*random)());
    if (OneIn(random, 2)) payload.primaryBlastPad.length = static_cast<float>(Below(random, 100));
    if (OneIn(random, 2)) payload.secondaryBlastPad.length = static_cast<float>(Below(random, 100));
    model::SetPosition(runway, Somewhere(random, options));
}

void AppendStart(Random* random) {
    constexpr uint8_t kTypes[] = { 0x10, 0x10, 0x20, 0x30 };
    auto& record =
        PayloadAs<model::StartLocationRecord>(build::Placed<model::StartLocationRecord>(model::kStartLocation, {}));
    record.number = static_cast<uint8_t>(1 + Below(random, 4) + 18 * Below(random, 2));
    record.designatorAndType = kTypes[Below(random, 4)];
}

void AppendApron(Random* random, const RandomNetworkOptions& options) {
    std::vector<model::EncodedPoint> outline(2 + Below(random, 6));
    for (model::EncodedPoint& corner : outline) {
        const model::BglPoint code = model::LatLonToBgl(Somewhere(random, options, 0.1));
        corner = { code.lonCode, code.latCode };
        if (OneIn(random, 5)) corner = outline[0];
    }
    build::Apron(outline);
}

// A node or spot with its links, as deleting does it.
void DeletePlace(SceneryObject* place) {
    model::BeginAction();
    for (SceneryObject* object : build::List()) {
        if (KindOf(object) != model::kTaxiLink) continue;
        const auto& link = PayloadAs<model::TaxiLinkPayload>(object);
        if (link.start == place || link.end == place) model::DeleteObject(object);
    }
    model::DeleteObject(place);
}

void MovePlace(SceneryObject* place, model::LatLon to) {
    model::BeginAction();
    SceneryObject* edited = model::CopyObject(place);
    model::SetPosition(edited, to);
    model::ModifyObject(edited, place);
}

}  // namespace

void MakeRandomNetwork(uint32_t seed, const RandomNetworkOptions& options) {
    model::ClearModel();
    Random random(seed);
    for (int i = 0; i < options.runways; ++i) AppendRunway(&random, options);
    for (int i = 0; i < options.starts; ++i) AppendStart(&random);
    for (int i = 0; i < options.places; ++i) AppendPlace(&random, options);
    for (int i = 0; i < options.links; ++i) model::AppendObject(NewLink(&random));
    for (int i = 0; i < options.aprons; ++i) AppendApron(&random, options);
}

bool EditAtRandom(Random* random, const RandomNetworkOptions& options) {
    const std::vector<SceneryObject*> places = PlacesOf();
    switch (Below(random, 5)) {
    case 0:
        if (places.size() < 4) return false;
        DeletePlace(places[Below(random, places.size())]);
        return true;
    case 1: MovePlace(places[Below(random, places.size())], Somewhere(random, options)); return true;
    case 2:
        model::BeginAction();
        model::AddObject(NewLink(random));
        return true;
    case 3: {
        const bool possible = model::CanUndo();
        model::Undo();
        return possible;
    }
    default: {
        const bool possible = model::CanRedo();
        model::Redo();
        return possible;
    }
    }
}
