// LinkSplit.h - new links, and links split by a node that lies on them. All of it recorded edits; the
// caller has begun the user action.
#pragma once

#include <cstddef>

#include "model/Geodesy.h"
#include "model/SceneryObject.h"

namespace map {

constexpr double kOnLinkDistance = 6.096;  // metres (20 feet): from the link, and from its ends at least

// Whether the point lies on the link from a to b; if so it is moved onto it.
bool OnLinkTest(model::LatLon a, model::LatLon b, model::LatLon* point);

// Adds a link made by a tool. A link that joins the same two objects, either way round, is removed first.
void AddLink(model::SceneryObject* link);

// The same for a link that stays but for one end: the others that join its two objects.
void RemoveOtherLinks(const model::SceneryObject* start, const model::SceneryObject* end,
                      const model::SceneryObject* kept);

// Two new links, from the node to either end of the old link, take its place.
void SplitLink(model::SceneryObject* link, model::SceneryObject* node);

// Moves the point onto the links that pass under it: onto one of them, or to where the two nearest cross. False when
// none passes.
bool SnapToLinks(model::LatLon* point, const model::SceneryObject* except);

// How many links a node at the place would split, each into two.
size_t CountLinksUnder(model::LatLon point, const model::SceneryObject* except = nullptr);

// Splits every link that passes under the node, which moves onto them, and turns the hold-short markings at their ends.
// The order of the list makes no difference. `except` stays whole.
void JoinNodeIntoLinks(model::SceneryObject* node, const model::SceneryObject* except = nullptr);

}  // namespace map
