// TaxiwaySurface.h - the paved taxi network of one paint: where links meet and how their edges join.
//
// A hub is a node or parking spot, an arm one end of a link seen from its hub. The paved area of a link
// reaches from hub centre to hub centre, on each side from corner to corner; the junction at a hub covers
// what lies between the arms as seen from the centre, so that no gap is left at any angle.
#pragma once

#include <cstdint>
#include <vector>

#include "map/Shapes.h"
#include "model/Records.h"

namespace map {

using model::SceneryObject;

// How the right edge of one arm runs into the left edge of the next one clockwise.
struct Corner {
    enum class Kind : uint8_t {
        None,   // nothing to pave: through the hub's centre
        Curve,  // one quadratic curve: a fillet, a bend, a change of width
        Cap,    // two curves around the back of the hub: dead ends and hairpins
    };
    Kind kind = Kind::None;
    Point from, to;            // ends of the curves
    Point control[2], middle;  // a cap's curves meet in the middle
    double fromCut = 0;        // distance of `from` from the hub along its arm, pixels
    double toCut = 0;          // of `to` along the next arm
};

struct TaxiArm {
    uint32_t link = 0, hub = 0;
    bool atStart = false;              // the link starts at this hub
    Point along;                       // unit vector away from the hub
    double angle = 0;                  // of `along`, clockwise on the screen
    double length = 0;                 // of the link, pixels
    double half = 0;                   // half width, pixels
    Corner right;                      // to the next arm clockwise that has edges
    double leftCut = 0, rightCut = 0;  // where the straight part of each edge begins
    bool joinedLeft = false;           // the corner on the left is paved, as right.kind says of the right one
};

struct TaxiHub {
    SceneryObject* object = nullptr;
    Point at;
    uint32_t firstArm = 0, armCount = 0;
    uint32_t edgeArms = 0;  // the first so many arms have paved edges (runways included), in angle order
    bool inView = false;    // a link that may reach the page meets here
};

struct TaxiSegment {
    SceneryObject* object = nullptr;
    uint32_t type = 0, flags = 0, surface = 0;
    uint32_t startHub = 0, endHub = 0;
    uint32_t startArm = 0, endArm = 0;
    bool inView = false;  // may reach the page
};

struct TaxiNetwork {
    std::vector<TaxiHub> hubs;
    std::vector<TaxiSegment> segments;  // links of some length and known ends
    std::vector<TaxiArm> arms;          // grouped by hub
};

// A runway's links shape the fillets of the taxiways that meet them but pave nothing: the runway is
// painted over them. Routes across an apron have no pavement of their own.
bool IsPaved(const TaxiSegment& segment);
bool IsAlongRunway(const TaxiSegment& segment);

TaxiNetwork BuildTaxiNetwork();

// Computes the corners for edges that lie `inset` pixels inside the pavement, or outside when it is negative.
// Hubs that are not in view keep what they have.
void LayCorners(TaxiNetwork* network, double inset);

void PaintTaxiwaySurfaces(Canvas* canvas, const TaxiNetwork& network);

}  // namespace map
