// Cells.cpp - see Cells.h.
#include "bgl/Cells.h"

#include <algorithm>
#include <bit>

namespace bgl {

namespace {

constexpr int kLevel = 9;
constexpr int kFullLevel = 30;  // a cell of that level is one unit wide
constexpr uint32_t kGridMask = 0x3FF;
constexpr int kGridBits = 10;

constexpr CodeRect kWholeWorld = { 0, model::kEncodedTurn, 0, kPoleToPole };

int64_t ModuloTurn(int64_t longitude) {
    const int64_t rest = longitude % model::kEncodedTurn;
    return rest < 0 ? rest + model::kEncodedTurn : rest;
}

// A damaged file may hold a latitude beyond the north pole: below 0.
int64_t Signed(uint32_t code) { return static_cast<int32_t>(code); }

}  // namespace

uint32_t CellColumn(uint32_t longitude) { return longitude >> (kFullLevel - kLevel) & kGridMask; }

uint32_t CellRow(uint32_t latitude) { return latitude >> (kFullLevel - kLevel) & kGridMask; }

uint32_t CellOf(model::EncodedPoint point) {
    const uint32_t column = CellColumn(point.longitude), row = CellRow(point.latitude);
    uint32_t cell = uint32_t{ 1 } << (2 * kLevel + 1);
    for (int bit = 0; bit < kGridBits; ++bit) {
        cell |= (column >> bit & 1) << (2 * bit);
        cell |= (row >> bit & 1) << (2 * bit + 1);
    }
    return cell;
}

std::vector<uint32_t> HeaderCellIds(std::vector<uint32_t> cells) {
    for (;;) {
        std::sort(cells.begin(), cells.end());
        cells.erase(std::unique(cells.begin(), cells.end()), cells.end());
        if (cells.size() <= kHeaderCells) return cells;
        for (uint32_t& cell : cells) cell >>= 2;
    }
}

bool Contains(const CodeRect& rect, model::EncodedPoint point) {
    const int64_t latitude = Signed(point.latitude);
    return latitude >= rect.north && latitude <= rect.south &&
           ModuloTurn(int64_t{ point.longitude } - rect.west) <= rect.width;
}

bool Intersects(const CodeRect& a, const CodeRect& b) {
    if (a.north > b.south || b.north > a.south) return false;
    return ModuloTurn(b.west - a.west) <= a.width || ModuloTurn(a.west - b.west) <= b.width;
}

CodeRect RectOfCell(uint32_t cell) {
    const int top = std::bit_width(cell) - 1;
    if (top < 1 || top % 2 == 0) return kWholeWorld;
    const int level = top / 2;
    int64_t column = 0, row = 0;
    for (int bit = 0; bit < level; ++bit) {
        column |= int64_t{ cell >> (2 * bit) & 1 } << bit;
        row |= int64_t{ cell >> (2 * bit + 1) & 1 } << bit;
    }
    const int shift = kFullLevel - level;
    const int64_t side = (int64_t{ 1 } << shift) - 1;
    return { column << shift, side, row << shift, (row << shift) + side };
}

CodeRect RectAround(model::LatLon centre, double metres) {
    const auto corner = [&](double degrees) {
        return model::LatLonToBgl(model::OffsetByPolar(centre, { metres, degrees * model::kRadiansPerDegree }));
    };
    const model::BglPoint northWest = corner(315), southEast = corner(135);
    int64_t west = Signed(northWest.lonCode);
    const int64_t east = Signed(southEast.lonCode);
    if (east < west) west -= model::kEncodedTurn;
    return { west, east - west, Signed(northWest.latCode), Signed(southEast.latCode) };
}

}  // namespace bgl
