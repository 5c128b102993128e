// LinkTool.h - drawing taxi links from one end to the other, and re-attaching an end of a link.
//
// An end is the node or parking spot under the pointer; where there is none, a new node, which splits the links that
// pass under it.
#pragma once

#include "model/Geodesy.h"
#include "model/Geometry.h"
#include "model/SceneryObject.h"

namespace map {

struct LinkEnd {
    model::SceneryObject* object = nullptr;  // a TaxiNode or ParkingSpot; null: nothing there yet
    model::LatLon position;                  // of the object; else the place, moved onto links that pass under it
    bool onLink = false;                     // a link there would be split
};

// The node or spot at the pixel; null when there is none, or the layer is hidden. A layer hidden since the drag began
// counts as shown: a release must not make a second node on top of one.
model::SceneryObject* LinkEndObjectAt(model::Pixel at);

// Null unless a link is the one selected object.
model::SceneryObject* OnlySelectedLink();

// The link under construction.
struct LinkDrag {
    bool active = false;
    model::SceneryObject* link = nullptr;  // whose end is re-attached; null: a new one
    bool atStart = false;                  // of its ends it is the start
    LinkEnd from;                          // the end that stays
    bool hasTo = false;                    // `to` is an end that a release would take
    LinkEnd to;
};
const LinkDrag& CurrentLinkDrag();

bool BeginLink(model::Pixel at);  // false where there is no place on earth
// The two handles of a link that is the only selected object: near its start and its end, on the screen. False when it
// is too short on the screen, or not drawn.
bool LinkHandlesOf(const model::SceneryObject* link, model::Point* nearStart, model::Point* nearEnd);
bool IsReattachHandle(model::Pixel at);
bool BeginReattach(model::Pixel at);  // false where there is no handle

void FollowLink(model::Pixel pointer);
void FinishLink(model::Pixel pointer);
void CancelLink();
void ForgetLink();

}  // namespace map
