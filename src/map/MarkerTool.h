// MarkerTool.h - reference markers and the guidelines between them: aids of the map that no file holds.
#pragma once

#include "model/Geodesy.h"
#include "model/Geometry.h"
#include "model/SceneryObject.h"

namespace map {

void PlaceMarker(model::Pixel at);

// The last marker of the list: the one that was placed last and is still there. Null when there is none.
model::SceneryObject* LastMarker();

// A guideline under construction. Its ends are markers: existing ones under the pointer, else new ones.
struct GuidelineDrag {
    bool active = false;
    model::SceneryObject* fromMarker = nullptr;  // null: a new one
    model::LatLon from, to;
    bool hasTo = false;  // far enough for a guideline
};
const GuidelineDrag& CurrentGuidelineDrag();

bool BeginGuideline(model::Pixel at);  // false where there is no place on earth
void FollowGuideline(model::Pixel pointer);
void FinishGuideline(model::Pixel pointer);
void CancelGuideline();
void ForgetGuideline();

}  // namespace map
