// HoldShortRule.h - which way the marking of a holding position lies.
//
// The marking crosses the taxiway of the two widest links that meet at the node; of equally wide ones those that lead
// toward the runway come first, then the smaller true bearing. Everything is decided on the ground: neither the order
// of the list nor the rotation of the map makes a difference. Links along a runway do not count.
#pragma once

#include <span>
#include <vector>

#include "map/Shapes.h"
#include "model/RunwayArea.h"
#include "model/SceneryObject.h"

namespace map {

using LinkList = std::vector<const model::SceneryObject*>;  // the taxi links that meet at a node

struct HoldMarking {
    Point dashed;          // unit vector, metres east and north: the side of the dashed bars while the flag is clear
    double halfWidth = 0;  // metres
};

// False when no taxiway of some width runs through the node.
bool FindHoldMarking(const model::SceneryObject* node, const LinkList& links,
                     std::span<const model::RunwayArea> runways, HoldMarking* marking);

// Whether the marking must be turned round for its dashed bars to lie toward the runway on the way that aircraft take.
// False, and nothing is decided, without a runway or a taxiway.
bool DecideReverse(const model::SceneryObject* node, const LinkList& links, std::span<const model::RunwayArea> runways,
                   bool* reversed);

}  // namespace map
