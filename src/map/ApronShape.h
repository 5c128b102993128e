// ApronShape.h - the outline and the vertex selection inside an apron's payload.
#pragma once

#include <cstdint>
#include <vector>

#include "model/Geodesy.h"
#include "model/SceneryObject.h"

namespace map {

constexpr uint32_t kSelectableVertices = 160;  // what the selection bits can name
constexpr size_t kFewestCorners = 3;           // of an area; an apron that lost corners may have fewer

std::vector<model::LatLon> ApronOutline(const model::SceneryObject* apron);  // bounded by the payload

bool IsVertexSelected(const model::SceneryObject* apron, uint32_t vertex);
void SelectVertex(model::SceneryObject* apron, uint32_t vertex, bool selected);  // beyond the bits: nothing
void ClearVertexSelection(model::SceneryObject* apron);
bool AnyVertexSelected(const model::SceneryObject* apron);

}  // namespace map
