// NewObjects.cpp - see NewObjects.h.
#include "map/NewObjects.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "map/HoldShortUpdate.h"
#include "map/LinkSplit.h"
#include "map/LinkTemplate.h"
#include "map/MapHost.h"
#include "map/MapView.h"
#include "map/Tools.h"
#include "model/EditHistory.h"
#include "model/Geometry.h"
#include "model/Limits.h"
#include "model/Links.h"
#include "model/Names.h"
#include "model/ObjectList.h"
#include "model/Positions.h"
#include "model/Records.h"
#include "model/RunwayArea.h"
#include "model/SpotBits.h"

namespace map {

using model::KindOf;
using model::PayloadAs;
using model::SceneryObject;
using model::TaxiLinkPayload;

namespace {

struct KindLimit {
    uint32_t kind;
    size_t most;
    const char* remark;
};
constexpr KindLimit kLimits[] = {
    { model::kTaxiNode, model::kMostNodes, "A scenery file can hold no more than 4096 taxi nodes" },
    { model::kParkingSpot, model::kMostSpots, "A scenery file can hold no more than 4096 parking spots" },
    { model::kTaxiLink, model::kMostLinks, "A scenery file can hold no more than 65535 taxi links" },
    { model::kApron, model::kMostCounted, "A scenery file can hold no more than 255 aprons" },
    { model::kTaxiDesignator, model::kMostDesignators, "A scenery file can hold no more than 256 taxiway names" },
};

constexpr double kRadius[] = { 20, 20, 10, 14, 18, 50, 44, 26, 31, 38, 54, 20 };  // metres, by type code
constexpr uint32_t kPushBothWays = 3u << model::kParkingPushbackShift;
constexpr uint32_t kMostNumber = 4095;

SceneryObject* Make(uint32_t kind, size_t payloadSize, uint32_t marks) {
    SceneryObject* object = model::CreateObject(kind, static_cast<uint32_t>(payloadSize));
    object->flags |= model::kSelected | marks;
    return object;
}

// The count of spots plus one, unless a spot of that name has the number: then the next free one.
uint32_t NumberFor(uint32_t name) {
    std::set<uint32_t> taken;
    uint32_t count = 0;
    model::ForEachOfKind(model::kParkingSpot, [&](SceneryObject* o) {
        const auto& spot = PayloadAs<model::ParkingSpotRecord>(o);
        if (model::ParkingNameCode(spot) == name) taken.insert(model::ParkingNumber(spot));
        ++count;
    });
    const uint32_t first = count + 1;
    for (uint32_t number = first; number <= kMostNumber; ++number) {
        if (!taken.contains(number)) return number;
    }
    for (uint32_t number = 1; number < first && number <= kMostNumber; ++number) {
        if (!taken.contains(number)) return number;
    }
    return kMostNumber;
}

uint32_t PackedWord(uint32_t type, uint32_t codes) {
    const bool gate = type >= model::kGateSmall && type <= model::kGateHeavy;
    const uint32_t name = gate ? model::kGateName : model::kParking;
    return name | (gate ? kPushBothWays : 0) | type << model::kParkingTypeShift |
           NumberFor(name) << model::kParkingNumberShift | codes << model::kParkingCountShift;
}

void PutCodes(SceneryObject* spot, size_t count) {
    uint8_t* out = spot->payload + sizeof(model::ParkingSpotRecord);
    for (size_t i = 0; i < count; ++i, out += model::kParkingCodeSize) {
        const std::string& code = tools.parkingCodes[i];  // zero padded, not terminated
        std::copy_n(code.begin(), std::min(code.size(), model::kParkingCodeSize), out);
    }
}

// The name for new links, if it still is one of the airport's.
SceneryObject* CurrentDesignator(uint32_t kind) {
    for (SceneryObject* o = model::FirstOfKind(model::state.head, kind); o; o = model::NextOfKind(o, kind)) {
        if (o == layers.highlightedDesignator) return o;
    }
    return nullptr;
}

void NameAfter(TaxiLinkPayload* link, SceneryObject* runway) {
    link->designator = runway;
    link->width = PayloadAs<model::RunwayPayload>(runway).body.width;
}

void NameRunwayLink(TaxiLinkPayload* link) {
    if (TakeRunwayUnder(link)) return;
    ShowRemark("No runway lies under the new link");
    if (SceneryObject* runway = CurrentDesignator(model::kRunway)) NameAfter(link, runway);
}

void NameLink(TaxiLinkPayload* link, uint32_t type) {
    if (type == model::kRunwayLink) return NameRunwayLink(link);
    link->designator = type == model::kParkingLink ? nullptr : CurrentDesignator(model::kTaxiDesignator);
    if (!link->designator) link->designator = model::BlankDesignatorForEdit();
}

}  // namespace

bool HasRoomFor(uint32_t kind, size_t count) {
    const auto limit =
        std::find_if(std::begin(kLimits), std::end(kLimits), [kind](const KindLimit& row) { return row.kind == kind; });
    if (limit == std::end(kLimits) || model::CountKind(kind) + count <= limit->most) return true;
    ShowRemark(limit->remark);
    return false;
}

bool HasRoomForNode(model::LatLon position) {
    return HasRoomFor(model::kTaxiNode) && HasRoomFor(model::kTaxiLink, CountLinksUnder(position));
}

bool HasNameFor(uint32_t type) {
    if (type == model::kRunwayLink || model::BlankDesignator()) return true;
    const bool hasName = type != model::kParkingLink && CurrentDesignator(model::kTaxiDesignator);
    return hasName || HasRoomFor(model::kTaxiDesignator);
}

bool TakeRunwayUnder(TaxiLinkPayload* link) {
    const std::vector<model::RunwayArea> areas = model::RunwayAreas();
    const model::RunwayArea* area =
        model::RunwayUnder(areas, model::PositionOf(link->start), model::PositionOf(link->end));
    if (area) NameAfter(link, area->runway);
    return area != nullptr;
}

SceneryObject* AddNode(model::LatLon position, uint8_t type, const SceneryObject* except) {
    SceneryObject* node = Make(model::kTaxiNode, sizeof(model::TaxiNodeRecord), model::kNewNode);
    PayloadAs<model::TaxiNodeRecord>(node).type = type;
    model::SetPosition(node, position);
    model::AddObject(node);
    JoinNodeIntoLinks(node, except);
    UpdateHoldShort(node);
    return node;
}

SceneryObject* AddSpot(model::LatLon position, double heading) {
    const auto type = static_cast<uint32_t>(tools.lastParkingType) & 0xF;
    const size_t codes = std::min(tools.parkingCodes.size(), model::kMostParkingCodes);
    SceneryObject* spot =
        Make(model::kParkingSpot, sizeof(model::ParkingSpotRecord) + model::kParkingCodeSize * codes, model::kNewNode);
    auto& record = PayloadAs<model::ParkingSpotRecord>(spot);
    record.packed = PackedWord(type, static_cast<uint32_t>(codes));
    record.radius = static_cast<float>(DefaultSpotRadius(type));
    record.heading = HeadingInDegrees(heading);
    PutCodes(spot, codes);
    model::SetPosition(spot, position);
    model::AddObject(spot);
    return spot;
}

float HeadingInDegrees(double radians) { return model::WrappedHeading(radians * model::kDegreesPerRadian); }

double DefaultSpotRadius(uint32_t typeCode) {
    return kRadius[typeCode < std::size(kRadius) ? typeCode : uint32_t{ model::kRampGa }];
}

SceneryObject* AddLinkBetween(SceneryObject* start, SceneryObject* end, uint32_t type) {
    if (KindOf(start) == model::kParkingSpot) std::swap(start, end);
    if (KindOf(end) == model::kParkingSpot) type = model::kParkingLink;
    SceneryObject* object = Make(model::kTaxiLink, sizeof(TaxiLinkPayload), model::kNewLink);
    auto& link = PayloadAs<TaxiLinkPayload>(object);
    link = LinkFromTemplate(type);
    link.start = start;
    link.end = end;
    NameLink(&link, type);
    AddLink(object);
    UpdateHoldShort(start);
    UpdateHoldShort(end);
    return object;
}

SceneryObject* AddMarker(model::LatLon position) {
    SceneryObject* marker = Make(model::kReferenceMarker, sizeof(model::ReferenceMarkerPayload), model::kNewNode);
    model::SetPosition(marker, position);
    model::AddObject(marker);
    return marker;
}

SceneryObject* AddGuideline(SceneryObject* from, SceneryObject* to) {
    for (SceneryObject* o = model::FirstOfKind(model::state.head, model::kGuideline); o;
         o = model::NextOfKind(o, model::kGuideline)) {
        const auto& line = PayloadAs<model::GuidelinePayload>(o);
        if ((line.from == from && line.to == to) || (line.from == to && line.to == from)) return nullptr;
    }
    SceneryObject* guideline = Make(model::kGuideline, sizeof(model::GuidelinePayload), model::kNewLink);
    PayloadAs<model::GuidelinePayload>(guideline) = { from, to };
    model::AddObject(guideline);
    return guideline;
}

}  // namespace map
