// Painter.h - one paint in progress, and the layers it consists of. PaintMap.cpp holds their order.
#pragma once

#include "map/Palette.h"
#include "map/ScreenPlace.h"
#include "map/Shapes.h"
#include "map/TaxiwaySurface.h"

namespace map {

struct Painter {
    Canvas* canvas = nullptr;
    Box clip;      // nothing outside it is drawn
    double scale;  // pixels per metre
    TaxiNetwork network;
    bool apronOnTop = false;  // noted by PaintAprons: there is one for PaintApronsOnTop
};

void Fill(const Painter& painter, Colour fill, Colour outline);  // pen one pixel wide
void FillOnly(const Painter& painter, Colour fill);              // no pen
void Stroke(const Painter& painter, int width, Colour colour);   // no brush

Colour FillInk(const SceneryObject* object, Ink normal);     // the selected colour for a selected object
Colour OutlineInk(const SceneryObject* object, Ink normal);  // likewise for outlines

// Layers.
void PaintToolPreview(Painter* painter);  // of the two tools that show on the ground what they will make
void PaintAprons(Painter* painter);
void PaintApronsOnTop(Painter* painter);  // the selected ones and what is left of others
void PaintGrid(Painter* painter);
void PaintRunwayShoulders(Painter* painter);
void PaintRunwaySurfaces(Painter* painter);
void PaintRunwayMarkings(Painter* painter);
void PaintHelipads(Painter* painter);
void PaintTaxiwayMarkings(Painter* painter);
void PaintParkingSpots(Painter* painter);
void PaintTaxiNodes(Painter* painter);
void PaintTaxiLinks(Painter* painter);
void PaintTaxiwayLights(Painter* painter);
void PaintRunwayLights(Painter* painter);
void PaintReferencePoint(Painter* painter);
void PaintTower(Painter* painter);
void PaintStartLocations(Painter* painter);
void PaintNavaids(Painter* painter);
void PaintParkingLabels(Painter* painter);
void PaintApronEdgeLights(Painter* painter);
void PaintReferenceMarkers(Painter* painter);
void PaintGuidelines(Painter* painter);
void PaintFaultMarker(Painter* painter);

void PaintStripLamps(const Painter& painter, Point from, Point to, double spacing);  // metres between them

}  // namespace map
