// LinkTool.cpp - see LinkTool.h.
#include "map/LinkTool.h"

#include <algorithm>
#include <utility>

#include "map/HoldShortUpdate.h"
#include "map/LinkSplit.h"
#include "map/LinkTemplate.h"
#include "map/MapHost.h"
#include "map/MapView.h"
#include "map/NewObjects.h"
#include "map/Placing.h"
#include "map/ScreenPlace.h"
#include "map/Selection.h"
#include "map/Shapes.h"
#include "map/Tools.h"
#include "map/TurnDrag.h"
#include "model/EditHistory.h"
#include "model/Links.h"
#include "model/ObjectList.h"
#include "model/Positions.h"
#include "model/Records.h"
#include "platform/Platform.h"

namespace map {

using model::KindOf;
using model::PayloadAs;
using model::TaxiLinkPayload;

namespace {

constexpr double kHandleDistance = 8;  // pixels from the edge of the end's symbol

LinkDrag drag;
PressPlace pressed;

// As painted; while the layer has only just been switched on, as it will be.
int32_t RadiusOf(const SceneryObject* object) {
    if (IsDrawn(object)) return ScreenRadius(object);
    const bool isSpot = KindOf(object) == model::kParkingSpot;
    return ScaledPixels(isSpot ? double{ PayloadAs<model::ParkingSpotRecord>(object).radius } : kNodeRadius);
}

SceneryObject* ObjectOfKindAt(uint32_t kind, int32_t margin, Pixel at) {
    for (SceneryObject* o = model::FirstOfKind(model::state.head, kind); o; o = model::NextOfKind(o, kind)) {
        if (HitsCircle(at, CentreOf(o), RadiusOf(o) + margin)) return o;
    }
    return nullptr;
}

bool FindEnd(Pixel at, LinkEnd* end) {
    *end = {};
    end->object = LinkEndObjectAt(at);
    if (end->object) {
        end->position = model::PositionOf(end->object);
        return true;
    }
    if (!PlaceUnder(at, &end->position)) return false;
    end->onLink = SnapToLinks(&end->position, drag.link);
    return true;
}

bool IsSpot(const SceneryObject* object) { return object && KindOf(object) == model::kParkingSpot; }

// The end that is re-attached; null for a new link.
SceneryObject* MovingEnd() {
    if (!drag.link) return nullptr;
    const auto& link = PayloadAs<TaxiLinkPayload>(drag.link);
    return drag.atStart ? link.start : link.end;
}

// The new end would lie within the node where the link begins.
bool IsTooShort(const LinkEnd& to) {
    return (!drag.from.object || drag.link) && !to.object &&
           model::DistanceBetween(drag.from.position, to.position) < kNodeRadius;
}

// A release where the link began makes nothing: on the object itself, beside it after a click on its rim, or within the
// node that would be made there.
bool IsBackAtStart(const LinkEnd& to, Pixel pointer) {
    if (to.object && (to.object == drag.from.object || to.object == MovingEnd())) return true;
    if (drag.from.object && !drag.link) return !to.object && !IsPulled(pressed, pointer);
    return !IsPulled(pressed, pointer) || IsTooShort(to);
}

// Something else may have deleted what the drag holds on to.
bool IsDragValid() { return (!drag.from.object || IsInList(drag.from.object)) && (!drag.link || IsInList(drag.link)); }

uint32_t NewNodes(const LinkEnd& to) { return (drag.from.object ? 0u : 1u) + (to.object ? 0u : 1u); }

// With those that are split at the new ends.
size_t NewLinks(const LinkEnd& to) {
    size_t count = drag.link ? 0 : 1;
    if (!drag.from.object) count += CountLinksUnder(drag.from.position);
    if (!to.object) count += CountLinksUnder(to.position, drag.link);
    return count;
}

// A re-attached link brings its name along, but for one that comes to a spot.
bool LosesName(const LinkEnd& to) { return drag.link && IsSpot(to.object) && !IsSpot(MovingEnd()); }

bool HasName(const LinkEnd& to) {
    if (drag.link && !LosesName(to)) return true;
    const bool isParking = IsSpot(drag.from.object) || IsSpot(to.object);
    return HasNameFor(isParking ? model::kParkingLink : tools.linkKind);
}

bool HasRoomForEnd(const LinkEnd& to) {
    return HasRoomFor(model::kTaxiNode, NewNodes(to)) && HasRoomFor(model::kTaxiLink, NewLinks(to)) && HasName(to);
}

void MakeLink(LinkEnd to) {
    model::BeginAction();
    DeselectAll();
    LinkEnd from = drag.from;
    if (!from.object) from.object = AddNode(from.position, model::kNormalNode);
    if (!to.object) to.object = AddNode(to.position, model::kNormalNode);
    AddLinkBetween(from.object, to.object, tools.linkKind);
}

// A link to a parking spot has no name. Its start is never the spot.
void SetEnds(TaxiLinkPayload* link, SceneryObject* start, SceneryObject* end, SceneryObject* blank) {
    if (IsSpot(start)) std::swap(start, end);
    link->start = start;
    link->end = end;
    if (blank) link->designator = blank;
    FitTypeToEnd(link);
}

void Reattach(LinkEnd to) {
    model::BeginAction();
    DeselectAll();
    SceneryObject *const stays = drag.from.object, *const left = MovingEnd();
    if (!to.object) to.object = AddNode(to.position, model::kNormalNode, drag.link);
    RemoveOtherLinks(stays, to.object, drag.link);
    SceneryObject* blank = LosesName(to) ? model::BlankDesignatorForEdit() : nullptr;
    SceneryObject* edited = model::CopyObject(drag.link);
    edited->flags |= model::kSelected | model::kNewLink;
    auto* link = &PayloadAs<TaxiLinkPayload>(edited);
    drag.atStart ? SetEnds(link, to.object, stays, blank) : SetEnds(link, stays, to.object, blank);
    if (model::LinkTypeOf(*link) == model::kRunwayLink && !TakeRunwayUnder(link))
        ShowRemark("No runway lies under the link");
    model::ModifyObject(edited, drag.link);
    for (SceneryObject* end : { left, stays, to.object }) UpdateHoldShort(end);
}

// From the middle of an end's symbol to the handle.
double HandleDistance(const SceneryObject* end) {
    const int32_t radius = IsDrawn(end) ? ScreenRadius(end) : 0;
    return radius + kHandleDistance + kHandleReach;
}

}  // namespace

SceneryObject* LinkEndObjectAt(Pixel at) {
    if (!layers.network && !drag.active) return nullptr;
    SceneryObject* node = ObjectOfKindAt(model::kTaxiNode, 1, at);
    return node ? node : ObjectOfKindAt(model::kParkingSpot, 0, at);
}

SceneryObject* OnlySelectedLink() {
    SceneryObject* found = nullptr;
    for (SceneryObject* o = model::state.head; o; o = o->next) {
        if (!model::IsSelected(o)) continue;
        if (found || KindOf(o) != model::kTaxiLink) return nullptr;
        found = o;
    }
    return found;
}

const LinkDrag& CurrentLinkDrag() { return drag; }

bool BeginLink(Pixel at) {
    drag = {};
    pressed = PressedAt(at);
    drag.active = FindEnd(at, &drag.from);
    model::state.busy = drag.active;
    return drag.active;
}

bool LinkHandlesOf(const SceneryObject* link, Point* nearStart, Point* nearEnd) {
    const auto& payload = PayloadAs<TaxiLinkPayload>(link);
    if (!layers.network || !IsDrawn(link) || !payload.start || !payload.end) return false;
    const Point from = WorldToScreen(model::PositionOf(payload.start));
    const Point to = WorldToScreen(model::PositionOf(payload.end));
    const double length = Length(to - from);
    const double first = HandleDistance(payload.start), last = HandleDistance(payload.end);
    if (!(length >= first + last + 2 * kHandleReach) || length > kSafeReach) return false;
    const Point along = (to - from) * (1 / length);
    *nearStart = from + along * first;
    *nearEnd = to - along * last;
    return true;
}

namespace {

struct Handle {
    SceneryObject* link = nullptr;
    bool atStart = false;
};

Handle FindHandle(Pixel at) {
    SceneryObject* link = OnlySelectedLink();
    Point nearStart, nearEnd;
    if (!link || !LinkHandlesOf(link, &nearStart, &nearEnd)) return {};
    if (HitsCircle(at, ToPixel(nearStart), kHandleReach)) return { link, true };
    if (HitsCircle(at, ToPixel(nearEnd), kHandleReach)) return { link, false };
    return {};
}

}  // namespace

bool IsReattachHandle(Pixel at) { return FindHandle(at).link != nullptr; }

bool BeginReattach(Pixel at) {
    const Handle handle = FindHandle(at);
    if (!handle.link) return false;
    const auto& payload = PayloadAs<TaxiLinkPayload>(handle.link);
    drag = {};
    drag.active = true;
    drag.link = handle.link;
    drag.atStart = handle.atStart;
    drag.from.object = handle.atStart ? payload.end : payload.start;
    drag.from.position = model::PositionOf(drag.from.object);
    pressed = PressedAt(at);
    model::state.busy = true;
    return true;
}

void FollowLink(Pixel pointer) {
    if (!drag.active || !IsDragValid()) return;
    LinkEnd to;
    drag.hasTo = FindEnd(pointer, &to) && !IsBackAtStart(to, pointer);
    drag.to = to;
    RequestFeedback();
}

void FinishLink(Pixel pointer) {
    const bool valid = drag.active && IsDragValid();
    model::state.busy = false;
    LinkEnd to;
    if (!valid || !FindEnd(pointer, &to)) return CancelLink();
    if (IsBackAtStart(to, pointer)) {
        if (IsPulled(pressed, pointer) && IsTooShort(to)) ShowRemark("A taxi link is at least 20 feet long");
        return CancelLink();
    }
    if (IsSpot(drag.from.object) && IsSpot(to.object))
        ShowRemark("A taxi link cannot join two parking spots");
    else if (HasRoomForEnd(to)) {
        drag.link ? Reattach(to) : MakeLink(to);
        layers.network = true;  // nothing is made unseen
    }
    ForgetLink();
    platform::RequestRepaint();
}

void CancelLink() {
    DropDrawing(drag.active);
    ForgetLink();
}

void ForgetLink() { drag = {}; }

}  // namespace map
