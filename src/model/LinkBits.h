// LinkBits.h - the fields of a taxi link's flags word (TaxiLinkPayload in Records.h).
#pragma once

#include <cstdint>

namespace model {

enum LinkType : uint32_t { kTaxiwayLink = 1, kRunwayLink = 2, kParkingLink = 3, kApronRouteLink = 4, kClosedLink = 5 };
constexpr uint32_t kLinkTypeMask = 0xF;
constexpr uint32_t kLinkDrawFlags = 0x60;  // draw surface, draw detail: compiled apron routes lack them

// Of a runway link the number of the runway, else the index of the designator.
constexpr int kLinkIndexShift = 8;
constexpr uint32_t kLinkIndexMask = 0xFFu << kLinkIndexShift;

// Painted lines and lights.
constexpr uint32_t kLinkCentreLine = 1u << 16, kLinkCentreLights = 1u << 17;
constexpr uint32_t kLinkLeftLights = 1u << 20, kLinkRightLights = 1u << 23;
constexpr uint32_t kLinkLinesAndLights = 0xFFu << 16;  // those, and the edge lines of both sides

enum class LinkSide { Left, Right };  // from its start to its end

enum class EdgeLine : uint32_t {
    None = 0,
    Solid = 1,
    Dashed = 2,
    SolidAndDashed = 3,  // drawn solid, and no choice in the dialog, which keeps it
};
constexpr uint32_t kEdgeLineMask = 3;  // once shifted
constexpr int EdgeLineShift(LinkSide side) { return side == LinkSide::Left ? 18 : 21; }

constexpr EdgeLine EdgeLineOf(uint32_t flagsWord, LinkSide side) {
    return static_cast<EdgeLine>(flagsWord >> EdgeLineShift(side) & kEdgeLineMask);
}
constexpr uint32_t WithEdgeLine(uint32_t flagsWord, LinkSide side, EdgeLine line) {
    const int shift = EdgeLineShift(side);
    return (flagsWord & ~(kEdgeLineMask << shift)) | static_cast<uint32_t>(line) << shift;
}

constexpr int kLinkSurfaceShift = 24;
constexpr uint32_t kLinkSurfaceMask = 0xFFu << kLinkSurfaceShift;

}  // namespace model
