// ApronTool.h - drawing aprons corner by corner, and new corners in those that exist.
//
// The outline under construction lies in tools.outline until it is closed: it is no object yet, so no file and no
// history holds it.
#pragma once

#include <cstdint>

#include "model/Geometry.h"
#include "model/Names.h"

namespace map {

constexpr uint8_t kNewApronSurface = model::kConcrete;

void AddOutlinePoint(model::Pixel at);
bool CanCloseOutline();  // an area needs three corners
void CloseOutline();     // makes the apron; nothing when it cannot be closed
void DropOutline();
bool HasOutline();
void TakeBackOutlinePoint();  // the last one

// A new corner of the apron whose edge lies at the pixel: where the edge is. Nothing where there is no edge.
void InsertApronPoint(model::Pixel at);

}  // namespace map
