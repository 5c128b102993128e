// ApronShape.h - the outline and the vertex selection inside an apron's payload.
#pragma once

#include <cstdint>
#include <vector>

#include "model/Geodesy.h"
#include "model/SceneryObject.h"

namespace map {

constexpr uint32_t kSelectableVertices = 160;  // what the selection bits can name
constexpr size_t kFewestCorners = 3;           // of an area; an apron that lost corners may have fewer

// Of the outline: as many as the payload has room for, whatever its head counts. Every repaint and every click runs
// over all aprons, and shall not rest on the checks of whoever made them; edits may (model::ApronOutline).
std::vector<model::LatLon> ApronCorners(const model::SceneryObject* apron);

bool IsVertexSelected(const model::SceneryObject* apron, uint32_t vertex);
void SelectVertex(model::SceneryObject* apron, uint32_t vertex, bool selected);  // beyond the bits: nothing
void ClearVertexSelection(model::SceneryObject* apron);
bool AnyVertexSelected(const model::SceneryObject* apron);

}  // namespace map
