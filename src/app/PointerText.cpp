// PointerText.cpp - see PointerText.h.
#include "app/PointerText.h"

#include <iterator>

#include "app/AppState.h"
#include "app/Notices.h"
#include "dialogs/Choices.h"
#include "dialogs/HelipadDialog.h"
#include "dialogs/LinkDialog.h"
#include "map/MapView.h"
#include "map/Selection.h"
#include "map/Tools.h"
#include "model/Ident.h"
#include "model/Names.h"
#include "model/ObjectList.h"
#include "model/Records.h"
#include "model/SpotBits.h"
#include "platform/Text.h"

namespace app {

using model::KindOf;
using model::PayloadAs;
using model::SceneryObject;

namespace {

const char* NodeKind(const SceneryObject* node) {
    switch (PayloadAs<model::TaxiNodeRecord>(node).type) {
    case model::kHoldShortNode: return "Hold-short node ";
    case model::kIlsHoldShortNode: return "ILS hold-short node ";
    default: return "Node ";
    }
}

// Nodes are numbered by their order, from 0, as links in a file do.
int NumberOfNode(const SceneryObject* node) {
    int number = 0;
    for (const SceneryObject* o = model::state.head; o && o != node; o = o->next)
        number += KindOf(o) == model::kTaxiNode;
    return number;
}

std::string NodeText(const SceneryObject* node) { return NodeKind(node) + std::to_string(NumberOfNode(node)); }

std::string RunwayText(const SceneryObject* runway) { return "Runway " + model::RunwayName(runway); }

std::string LinkText(const SceneryObject* link) {
    const auto& payload = PayloadAs<model::TaxiLinkPayload>(link);
    const SceneryObject* name = payload.designator;
    std::string text = "Link, ";
    text += dialogs::LinkTypeName(model::LinkTypeOf(payload));
    if (name && KindOf(name) == model::kRunway) return text + ", " + RunwayText(name);
    const std::string designator = name ? dialogs::DesignatorName(name) : "";
    return designator.empty() ? text : text + ", Taxi " + designator;
}

std::string SpotText(const SceneryObject* spot) {
    const auto& record = PayloadAs<model::ParkingSpotRecord>(spot);
    std::string text = model::ParkingNameText(model::ParkingNameCode(record));
    text += " " + std::to_string(model::ParkingNumber(record)) + ", ";
    return text + model::ParkingTypeName(model::ParkingTypeCode(record));
}

std::string ApronText(const SceneryObject* apron) {
    const uint32_t surface = PayloadAs<model::ApronHead>(apron).surface;
    return surface < model::kSurfaceCount ? std::string("Apron, ") + model::SurfaceName(surface) : "Apron";
}

std::string StartText(const SceneryObject* start) {
    const auto& record = PayloadAs<model::StartLocationRecord>(start);
    return "Start location " + model::RunwayEndName(record.number, model::StartSuffix(record));
}

std::string IdentText(const char* kind, uint32_t ident) {
    return std::string(kind) + model::UnpackIdent(ident >> model::kIdentShift);
}

std::string BeaconText(const SceneryObject* beacon) {
    static constexpr const char* kTypes[] = { "Inner marker", "Middle marker", "Outer marker", "Back course marker" };
    const uint8_t type = PayloadAs<model::MarkerBeaconPayload>(beacon).type;
    return type < std::size(kTypes) ? kTypes[type] : "Marker beacon";
}

std::string HelipadText(const SceneryObject* pad) {
    const size_t type = PayloadAs<model::HelipadRecord>(pad).type & model::kPadTypeMask;
    const bool isMarked = type > 0 && type < dialogs::kHelipadTypes.size();
    return isMarked ? std::string("Helipad, ") + dialogs::kHelipadTypes[type] : "Helipad";
}

std::string VorText(const SceneryObject* object) {
    const auto& vor = PayloadAs<model::VorDmePayload>(object).body;
    const bool isDmeOnly = (vor.flags & model::kHasDme) != 0 && (vor.flags & model::kHasVor) == 0;
    return IdentText(isDmeOnly ? "DME " : "VOR ", vor.ident);
}

}  // namespace

std::string NameOfObject(const SceneryObject* object) {
    switch (KindOf(object)) {
    case model::kAirport: return "Airport reference point";
    case model::kTowerViewpoint: return "Control tower viewpoint";
    case model::kRunway: return RunwayText(object);
    case model::kHelipad: return HelipadText(object);
    case model::kStartLocation: return StartText(object);
    case model::kTaxiNode: return NodeText(object);
    case model::kTaxiLink: return LinkText(object);
    case model::kParkingSpot: return SpotText(object);
    case model::kApron: return ApronText(object);
    case model::kApronEdgeLights: return "Apron edge lights";
    case model::kReferenceMarker: return "Reference marker";
    case model::kGuideline: return "Guideline";
    case model::kIls: return IdentText("ILS ", PayloadAs<model::IlsPayload>(object).body.ident);
    case model::kMarkerBeacon: return BeaconText(object);
    case model::kNdb: return IdentText("NDB ", PayloadAs<model::NdbPayload>(object).ident);
    case model::kVorDme: return VorText(object);
    default: return "";
    }
}

std::string PointerText(platform::Pixel at) {
    if (!model::state.loaded) return "";
    const map::Pick pick = map::PickObject(at);
    return pick.object ? NameOfObject(pick.object) : "";
}

void ShowPointerText() {
    if (map::tools.pressed || map::tools.panning) return;
    const std::string text = PointerText(map::tools.cursor);
    if (text != state.notices[static_cast<int>(Notice::Pointer)]) SetNotice(Notice::Pointer, text);
}

}  // namespace app
