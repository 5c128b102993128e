// Cells.h - the grid by which scenery files sort what they hold, and rectangles of encoded positions.
//
// A cell id of level L has bit 2L + 1 set; below it the cell's column is interleaved with its row,
// column bit i in bit 2i and row bit i in bit 2i + 1. Our files use level 9: 384 columns and 256 rows.
#pragma once

#include <cstdint>
#include <vector>

#include "model/Geodesy.h"
#include "model/Records.h"

namespace bgl {

constexpr int64_t kPoleToPole = 0x20000000;  // encoded latitude of the south pole

// The simulator's own files hold a block of the world each: 96 columns and 64 rows.
constexpr int kBlockShift = 23;

// Column and row at level 9, ten bits of the code each. A longitude of exactly 180 degrees has a column of its
// own behind the last, and a latitude of exactly -90 such a row; the indices of navaids tell the same numbers.
uint32_t CellColumn(uint32_t longitude);
uint32_t CellRow(uint32_t latitude);
uint32_t CellOf(model::EncodedPoint point);

constexpr size_t kHeaderCells = 8;

// Sorts the ids and drops repeated ones; while more than eight remain, every id gives way to its parent.
std::vector<uint32_t> HeaderCellIds(std::vector<uint32_t> cells);

// A rectangle of encoded positions, edges included. Longitudes count modulo one turn, so that it may
// lie across 180 degrees; latitudes do not.
struct CodeRect {
    int64_t west = 0, width = 0;  // eastward from the western edge; a turn or more covers all
    int64_t north = 0, south = 0;
};

bool Contains(const CodeRect& rect, model::EncodedPoint point);
bool Intersects(const CodeRect& a, const CodeRect& b);

// The area of a cell of any level. An id that is no cell id covers the whole world: whoever asks must
// then look at each position.
CodeRect RectOfCell(uint32_t cell);

// From the corner `metres` off on the bearing 315 degrees to the one on 135 degrees.
CodeRect RectAround(model::LatLon centre, double metres);

}  // namespace bgl
