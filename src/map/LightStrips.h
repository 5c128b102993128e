// LightStrips.h - the strips inside the payload of apron edge lights.
#pragma once

#include <cstdint>

#include "model/Geodesy.h"
#include "model/SceneryObject.h"

namespace map {

struct LightStrip {
    model::LatLon start, end;
    double spacing = 0;  // metres between lamps
    bool segmentSelected = false, startSelected = false, endSelected = false;
};

// A part of the lights as picking names it: strip by strip the segment, its start, its end; from 1.
enum class StripPart { Segment = 0, Start = 1, End = 2 };
constexpr int kStripParts = 3;
constexpr int PartNumber(uint32_t strip, StripPart part) {
    return static_cast<int>(strip) * kStripParts + static_cast<int>(part) + 1;
}

uint32_t StripCount(const model::SceneryObject* lights);  // bounded by the payload
LightStrip StripAt(const model::SceneryObject* lights, uint32_t index);

bool IsStripPartSelected(const model::SceneryObject* lights, int part);
void SelectStripPart(model::SceneryObject* lights, int part, bool selected);
void SelectAllStripPoints(model::SceneryObject* lights);
void ClearStripSelection(model::SceneryObject* lights);
bool AnyStripPartSelected(const model::SceneryObject* lights);

}  // namespace map
