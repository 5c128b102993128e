// LinkTemplate.cpp - see LinkTemplate.h.
#include "map/LinkTemplate.h"

#include "model/Names.h"
#include "model/SceneryObject.h"

namespace map {

using model::TaxiLinkPayload;

namespace {

constexpr float kWidth = 22.86F;  // metres: 75 ft, what airliners need

bool IsOnApron(uint32_t type) { return type == model::kApronRouteLink || type == model::kParkingLink; }

TaxiLinkPayload FirstPattern(uint32_t type) {
    TaxiLinkPayload link{};
    link.flagsWord =
        type | model::kLinkDrawFlags | model::kLinkCentreLine | uint32_t{ model::kAsphalt } << model::kLinkSurfaceShift;
    link.width = kWidth;
    return link;
}

struct Patterns {
    TaxiLinkPayload taxiway = FirstPattern(model::kTaxiwayLink);
    TaxiLinkPayload apron = FirstPattern(model::kParkingLink);
};
Patterns patterns;

}  // namespace

void UseLinkTemplate(const TaxiLinkPayload& link) {
    const uint32_t type = model::LinkTypeOf(link);
    const bool isTaxiway = type == model::kTaxiwayLink || type == model::kClosedLink;
    if (!isTaxiway && !IsOnApron(type)) return;
    TaxiLinkPayload& pattern = IsOnApron(type) ? patterns.apron : patterns.taxiway;
    pattern = link;
    pattern.startIndex = pattern.endField = 0;
    pattern.flagsWord &= ~model::kLinkIndexMask;
    pattern.start = pattern.end = pattern.designator = nullptr;  // the pattern outlives the airport
}

void ForgetLinkTemplates() { patterns = {}; }

TaxiLinkPayload LinkFromTemplate(uint32_t type) {
    TaxiLinkPayload link = IsOnApron(type) ? patterns.apron : patterns.taxiway;
    SetLinkType(&link, type);
    if (type == model::kRunwayLink) link.flagsWord &= ~model::kLinkLinesAndLights;
    return link;
}

void SetLinkType(TaxiLinkPayload* link, uint32_t type) {
    const uint32_t old = model::LinkTypeOf(*link);
    if (type == old) return;
    link->flagsWord = (link->flagsWord & ~model::kLinkTypeMask) | type;
    if (type == model::kApronRouteLink) link->flagsWord &= ~model::kLinkDrawFlags;
    if (old == model::kApronRouteLink) link->flagsWord |= model::kLinkDrawFlags;
}

void FitTypeToEnd(TaxiLinkPayload* link) {
    if (model::KindOf(link->end) == model::kParkingSpot)
        SetLinkType(link, model::kParkingLink);
    else if (model::LinkTypeOf(*link) == model::kParkingLink)
        SetLinkType(link, model::kApronRouteLink);
}

}  // namespace map
