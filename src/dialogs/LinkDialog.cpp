// LinkDialog.cpp - see LinkDialog.h.
//
// OK turns the difference between shown and entered into a change first; the couplings then complete that
// change, and only at its end is it written to the links. The edge line that is solid and dashed has no
// button: a link keeps it until the user presses one.
#include "dialogs/LinkDialog.h"

#include <algorithm>
#include <optional>

#include "dialogs/Choices.h"
#include "dialogs/NumberField.h"
#include "map/LinkTemplate.h"
#include "model/Limits.h"
#include "model/ObjectList.h"
#include "model/Positions.h"
#include "model/Records.h"
#include "model/RunwayArea.h"
#include "platform/Platform.h"

namespace dialogs {

namespace {

using model::LinkSide;
using model::TaxiLinkPayload;

constexpr Quantity kLinkWidth = { "width", Unit::TaxiLength, 0.1, 1000, 0, 0 };
constexpr uint32_t kLinkTypes[] = { model::kRunwayLink, model::kTaxiwayLink, model::kApronRouteLink,
                                    model::kClosedLink };

bool HasBit(const TaxiLinkPayload& link, uint32_t bit) { return (link.flagsWord & bit) != 0; }

void SetBit(TaxiLinkPayload* link, uint32_t bit, bool on) {
    link->flagsWord = on ? link->flagsWord | bit : link->flagsWord & ~bit;
}

void SetSurface(TaxiLinkPayload* link, uint32_t code) {
    link->flagsWord = (link->flagsWord & ~model::kLinkSurfaceMask) | code << model::kLinkSurfaceShift;
}

int EdgeIndex(const TaxiLinkPayload& link, LinkSide side) {
    const auto line = static_cast<size_t>(model::EdgeLineOf(link.flagsWord, side));
    return line < kEdgeLineNames.size() ? static_cast<int>(line) : -1;
}

void SetEdge(TaxiLinkPayload* link, LinkSide side, int index) {
    if (index >= 0) link->flagsWord = model::WithEdgeLine(link->flagsWord, side, static_cast<model::EdgeLine>(index));
}

bool EndsAtSpot(const TaxiLinkPayload& link) {
    return (link.end && KindOf(link.end) == model::kParkingSpot) ||
           (link.start && KindOf(link.start) == model::kParkingSpot);
}

bool IsParkingConnector(const TaxiLinkPayload& link) {
    return model::LinkTypeOf(link) == model::kParkingLink || EndsAtSpot(link);
}

bool IsRunway(const SceneryObject* object) { return object && KindOf(object) == model::kRunway; }

float WidthOf(const SceneryObject* runway) { return model::PayloadAs<model::RunwayPayload>(runway).body.width; }

// Null when the link lies on no runway.
SceneryObject* RunwayUnderLink(const TaxiLinkPayload& link) {
    if (!link.start || !link.end) return nullptr;
    const std::vector<model::RunwayArea> areas = model::RunwayAreas();
    const model::RunwayArea* area =
        model::RunwayUnder(areas, model::PositionOf(link.start), model::PositionOf(link.end));
    return area ? area->runway : nullptr;
}

// What OK changes. Null designator: none at all.
struct LinkChange {
    std::optional<uint32_t> type;
    std::optional<SceneryObject*> designator;
    std::optional<uint32_t> surface;
    std::optional<float> width;
    bool edges = false, lights = false, centreLine = false, centreLights = false;
};

// The couplings for links that do not end at a spot.
void Couple(const TaxiLinkPayload& link, LinkChange* change, Edits* edits) {
    if (!change->type && change->designator) {
        const bool runway = IsRunway(*change->designator);
        if (!runway && model::LinkTypeOf(link) == model::kRunwayLink) change->type = model::kTaxiwayLink;
        if (runway && model::LinkTypeOf(link) != model::kRunwayLink) {
            change->type = model::kRunwayLink;
            change->width = WidthOf(*change->designator);
        }
    } else if (change->type) {
        SceneryObject* designator = change->designator ? *change->designator : link.designator;
        if (*change->type != model::kRunwayLink) {
            if (IsRunway(designator)) change->designator = BlankDesignatorIn(edits);
        } else if (!IsRunway(designator)) {
            SceneryObject* runway = RunwayUnderLink(link);
            change->designator = runway;
            if (runway) change->width = WidthOf(runway);
        }
    }
}

// Also on a selected link of another type than the dialog's own, type and name must fit together afterwards.
void ApplyTypeAndName(const LinkChange& change, SceneryObject* draft, Edits* edits) {
    auto& link = model::PayloadAs<TaxiLinkPayload>(draft);
    if (IsParkingConnector(link)) {
        map::SetLinkType(&link, model::kParkingLink);
        if (change.designator) link.designator = BlankDesignatorIn(edits);
        return;
    }
    if (!change.type && change.designator && *change.designator) return DesignateLink(draft, *change.designator);
    if (change.type) map::SetLinkType(&link, *change.type);
    if (change.designator) link.designator = *change.designator;
    const bool lostRunway = change.type && *change.type != model::kRunwayLink && IsRunway(link.designator);
    if (lostRunway) link.designator = BlankDesignatorIn(edits);
}

void Apply(const LinkChange& change, const LinkFields& entered, SceneryObject* draft, Edits* edits) {
    ApplyTypeAndName(change, draft, edits);
    auto& link = model::PayloadAs<TaxiLinkPayload>(draft);
    if (change.surface) SetSurface(&link, *change.surface);
    if (change.width) link.width = *change.width;
    if (change.edges) {
        SetEdge(&link, LinkSide::Left, entered.leftEdge);
        SetEdge(&link, LinkSide::Right, entered.rightEdge);
    }
    if (change.lights) {
        SetBit(&link, model::kLinkLeftLights, entered.leftLights);
        SetBit(&link, model::kLinkRightLights, entered.rightLights);
    }
    if (change.centreLine) SetBit(&link, model::kLinkCentreLine, entered.centreLine);
    if (change.centreLights) SetBit(&link, model::kLinkCentreLights, entered.centreLights);
}

// The blank designator of a choice that the new type overruled.
void DropUnusedDesignators(Edits* edits) {
    std::erase_if(edits->added, [&](const ObjectPtr& added) {
        return std::none_of(edits->drafts.begin(), edits->drafts.end(), [&](const Draft& draft) {
            return model::PayloadAs<TaxiLinkPayload>(draft.copy.get()).designator == added.get();
        });
    });
}

// What differs between the two; nothing when the width cannot be read.
bool ReadChange(const LinkFields& shown, const LinkFields& entered, const SceneryObject* link, Edits* edits,
                LinkChange* change, BadField* bad) {
    if (entered.designator >= 0 && entered.designator != shown.designator) {
        change->designator = entered.designator == 0
                                 ? BlankDesignatorIn(edits)
                                 : DesignatorChoices()[static_cast<size_t>(entered.designator)].object;
    }
    if (entered.type >= 0 && entered.type != shown.type)
        change->type = LinkTypeChoices(link)[static_cast<size_t>(entered.type)];
    if (entered.surface >= 0 && entered.surface != shown.surface)
        change->surface = static_cast<uint32_t>(entered.surface);
    if (entered.width != shown.width) {
        double width = 0;
        if (!ReadQuantity(kLinkWidth, shown.width, entered.width, &width)) {
            *bad = { Field::Width };
            return false;
        }
        change->width = static_cast<float>(width);
    }
    change->edges = entered.leftEdge != shown.leftEdge || entered.rightEdge != shown.rightEdge;
    change->lights = entered.leftLights != shown.leftLights || entered.rightLights != shown.rightLights;
    change->centreLine = entered.centreLine != shown.centreLine;
    change->centreLights = entered.centreLights != shown.centreLights;
    return true;
}

bool IsEmpty(const LinkChange& change) {
    return !change.type && !change.designator && !change.surface && !change.width && !change.edges && !change.lights &&
           !change.centreLine && !change.centreLights;
}

}  // namespace

std::vector<uint32_t> LinkTypeChoices(const SceneryObject* link) {
    if (IsParkingConnector(model::PayloadAs<TaxiLinkPayload>(link))) return { model::kParkingLink };
    return { std::begin(kLinkTypes), std::end(kLinkTypes) };
}

const char* LinkTypeName(uint32_t type) {
    switch (type) {
    case model::kTaxiwayLink: return "Taxiway";
    case model::kRunwayLink: return "Runway";
    case model::kParkingLink: return "Parking connector";
    case model::kApronRouteLink: return "Apron route";
    case model::kClosedLink: return "Closed";
    default: return "";
    }
}

LinkFields LoadLinkFields(const SceneryObject* object) {
    const auto& link = model::PayloadAs<TaxiLinkPayload>(object);
    LinkFields fields;
    const std::vector<DesignatorChoice> designators = DesignatorChoices();
    fields.designator = 0;  // none, and any blank one
    for (size_t i = 1; i < designators.size(); ++i) {
        if (designators[i].object == link.designator) fields.designator = static_cast<int>(i);
    }
    const std::vector<uint32_t> types = LinkTypeChoices(object);
    for (size_t i = 0; i < types.size(); ++i) {
        if (types[i] == model::LinkTypeOf(link)) fields.type = static_cast<int>(i);
    }
    fields.surface = SurfaceIndex(model::LinkSurface(link));
    fields.width = ShowNumber(kLinkWidth, link.width);
    fields.leftEdge = EdgeIndex(link, LinkSide::Left);
    fields.rightEdge = EdgeIndex(link, LinkSide::Right);
    fields.leftLights = HasBit(link, model::kLinkLeftLights);
    fields.rightLights = HasBit(link, model::kLinkRightLights);
    fields.centreLine = HasBit(link, model::kLinkCentreLine);
    fields.centreLights = HasBit(link, model::kLinkCentreLights);
    return fields;
}

bool StoreLinkFields(const LinkFields& shown, const LinkFields& entered, SceneryObject* link, BadField* bad) {
    Edits edits;
    LinkChange change;
    if (!ReadChange(shown, entered, link, &edits, &change, bad)) return false;
    if (IsEmpty(change)) return true;
    const auto& payload = model::PayloadAs<TaxiLinkPayload>(link);
    LinkChange forOthers = change;
    if (IsParkingConnector(payload)) {
        // Its designator is the blank one whatever was chosen, and that is no choice for other links.
        change.designator = BlankDesignatorIn(&edits);
        forOthers.designator.reset();
    } else {
        Couple(payload, &change, &edits);
        forOthers = change;
    }
    Apply(change, entered, DraftOf(&edits, link), &edits);
    model::ForEachOfKind(model::kTaxiLink, [&](SceneryObject* other) {
        if (other != link && model::IsSelected(other)) Apply(forOthers, entered, DraftOf(&edits, other), &edits);
    });
    DropUnusedDesignators(&edits);
    if (!edits.added.empty() && !HasRoomForDesignator()) {
        *bad = { Field::Designator };
        return false;
    }
    if (Commit(&edits)) map::UseLinkTemplate(model::PayloadAs<TaxiLinkPayload>(link));
    return true;
}

SceneryObject* BlankDesignatorIn(Edits* edits) {
    if (SceneryObject* blank = BlankDesignator()) return blank;
    for (const ObjectPtr& object : edits->added) {
        if (KindOf(object.get()) == model::kTaxiDesignator && DesignatorName(object.get()).empty()) return object.get();
    }
    return AddDraft(edits, ObjectPtr(model::CreateObject(model::kTaxiDesignator, sizeof(model::TaxiDesignatorRecord))));
}

bool HasRoomForDesignator() {
    if (model::CountKind(model::kTaxiDesignator) < model::kMostDesignators) return true;
    platform::ShowError("An airport can have at most 256 taxiway designators");
    return false;
}

void DesignateLink(SceneryObject* draft, SceneryObject* designator) {
    auto& link = model::PayloadAs<TaxiLinkPayload>(draft);
    if (IsParkingConnector(link)) return;
    if (IsRunway(designator)) {
        if (model::LinkTypeOf(link) != model::kRunwayLink) {
            map::SetLinkType(&link, model::kRunwayLink);
            link.width = WidthOf(designator);
        }
    } else if (model::LinkTypeOf(link) == model::kRunwayLink) {
        map::SetLinkType(&link, model::kTaxiwayLink);
    }
    link.designator = designator;
}

}  // namespace dialogs
