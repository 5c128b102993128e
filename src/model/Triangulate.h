// Triangulate.h - the painted triangles of an apron, made from its outline.
//
// The simulator paints an apron's triangle list, not its outline; whoever changes an outline makes the
// triangles afresh.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "model/Records.h"
#include "model/SceneryObject.h"

namespace model {

// Clipping takes time of the square of the corner count. No drawn apron comes near this.
constexpr size_t kMostClipped = 4096;

// size - 2 triangles over the outline's corners, each clockwise seen from above, whatever way the outline
// was drawn; none for fewer than three corners. An outline that crosses itself has no triangulation: it
// gets a fan around its first corner, so that the file stays well formed; so does one of more than
// kMostClipped corners.
std::vector<ApronTriangle> Triangulate(std::span<const EncodedPoint> outline);

// The corners of an apron's outline, in order.
std::vector<EncodedPoint> ApronOutline(const SceneryObject* apron);

// A copy of the apron with another outline (at most 65535 corners) and the surface that belongs to it.
// No vertex of the copy is selected. The caller owns it.
SceneryObject* CopyWithOutline(const SceneryObject* apron, std::span<const EncodedPoint> outline);

}  // namespace model
