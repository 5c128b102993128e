// RunwayBits.h - the bits of a runway's flag words (RunwayPayload in Records.h).
#pragma once

#include <cstdint>

namespace model {

// RunwayRecord::markings. The three highest bits mean nothing to this simulator: they are carried and never drawn.
enum RunwayMarks : uint16_t {
    kEdgeLines = 0x0001,
    kThresholdStripes = 0x0002,
    kAimingPoints = 0x0004,
    kTouchdownMarks = 0x0008,
    kCentreLine = 0x0010,
    kDesignation = 0x0020,
    // All that a precision runway is marked with has a bit of its own. This one makes its centre line wide, its
    // touchdown marks count the distance and its edge lights yellow toward the end; alone it marks nothing.
    kPrecision = 0x0040,
    kEdgePavement = 0x0080,  // paved shoulders along both sides: no marking, but it is kept with them
    kSingleEnd = 0x0100,     // no markings at the secondary end
    kPrimaryClosed = 0x0200,
    kSecondaryClosed = 0x0400,
    kPrimaryStol = 0x0800,
    kSecondaryStol = 0x1000,
};

// RunwayRecord::lights: the strength of the edge lights and of the centre lights, 0 none to 3 high, and
// whether the centre lights are red toward the end.
constexpr uint8_t kEdgeLightsMask = 0x03, kCentreLightsMask = 0x0C, kRedLights = 0x10;
constexpr int kCentreLightsShift = 2;

enum RunwayPattern : uint8_t {  // RunwayRecord::pattern
    kPrimaryNoTakeoff = 0x01,
    kPrimaryNoLanding = 0x02,
    kPrimaryRightPattern = 0x04,
    kSecondaryNoTakeoff = 0x08,
    kSecondaryNoLanding = 0x10,
    kSecondaryRightPattern = 0x20,
};

// The approach lights of an end: the system's code, what else is there, and the number of strobes.
constexpr uint16_t kApproachSystemMask = 0x1F, kEndLights = 0x20, kReil = 0x40, kTouchdownLights = 0x80;
constexpr uint16_t kStrobesMask = 0x1F;  // once shifted
constexpr int kStrobesShift = 8;

}  // namespace model
