// ScreenPlace.h - where the last paint drew each object: what the hit tests read.
//
// The nine view words of an object's header hold whole pixels, by kind:
//     word 0-1  centre of airport, tower, start, node, spot, reference marker, NDB, VOR/DME
//     word 2    pick radius of those
//     word 3    of a node or spot: its number among the hubs of the taxi network, during a paint only
//     word 0-3  the two ends of a link or guideline
//     word 0-7  the four corners of a runway, helipad or marker beacon, in order around it
//     word 8    kDrawn when the last paint drew the object
// Aprons, light strips and ILSs have more corners than words. Theirs lie in a table of the map that
// every paint makes afresh; an object that is not marked as drawn is never looked up in it.
#pragma once

#include <span>
#include <vector>

#include "model/Geometry.h"
#include "model/SceneryObject.h"

namespace map {

using model::Pixel;
using model::SceneryObject;

constexpr double kNodeRadius = 6.096;  // metres (20 feet), as nodes are drawn
constexpr int32_t kMarkerReach = 5;    // pixels: pick radius of reference markers
constexpr int32_t kPointReach = 5;     // pixels: of vertices of aprons and ends of light strips

constexpr int kHubWord = 3;
constexpr int kDrawnWord = 8;
constexpr int32_t kDrawn = 1;

// Before a paint: nothing is drawn, the table is empty.
void ForgetScreenPlaces();

bool IsDrawn(const SceneryObject* object);
void PlaceCircle(SceneryObject* object, Pixel centre, int32_t radius);
void PlaceSegment(SceneryObject* object, Pixel from, Pixel to);
void PlaceCorners(SceneryObject* object, std::span<const Pixel> corners);  // four of them

Pixel ScreenPoint(const SceneryObject* object, int index);  // the words 2 x index and 2 x index + 1
int32_t ScreenRadius(const SceneryObject* object);

// Word 0-1 of what was drawn; of anything else where it lies, in sight or not.
Pixel CentreOf(const SceneryObject* object);

// What does not fit into the words. A part with no points was not drawn.
struct ScreenParts {
    std::vector<Pixel> apron;       // outline vertices, in order
    std::vector<Pixel> stripEnds;   // light strips: start and end of each, in order
    std::vector<Pixel> localizer;   // ILS: the antenna's rectangle
    std::vector<Pixel> beam;        // ILS: the four corners of the feather
    std::vector<Pixel> glideSlope;  // ILS: three corners
    std::vector<Pixel> dme;         // ILS: four corners
};
ScreenParts& PlaceParts(SceneryObject* object);           // marks as drawn
const ScreenParts& PartsOf(const SceneryObject* object);  // empty parts when the object has none

}  // namespace map
