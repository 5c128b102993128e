// Records.h - the payloads, as packed records whose layout the compiler checks.
//
// Longitude and latitude are the 32-bit encodings of Geodesy.h, altitudes millimetres, lengths metres,
// headings degrees true, frequencies hertz, idents base 38 (Ident.h). Copy a packed field out before
// use; never take its address. Fields said to be "carried" are kept as read and never interpreted.
#pragma once

#include <cstddef>
#include <cstdint>

#include "model/LinkBits.h"

namespace model {

struct SceneryObject;

#pragma pack(push, 1)

struct EncodedPoint {
    uint32_t longitude, latitude;
};

struct AirportRecord {  // body of record 0x0003
    uint8_t runwayCount, commCount, startCount, approachCount, apronCount, helipadCount;
    uint32_t longitude, latitude;
    int32_t altitude;
    uint32_t towerLongitude, towerLatitude;
    int32_t towerAltitude;
    float magneticVariation;  // degrees 0 to 360, west positive
    uint32_t ident;           // packed << 5; the low five bits are carried
    uint32_t regionIdent;
    uint32_t fuel;  // but for its two bits carried
};

struct TowerViewpointRecord {
    uint32_t longitude, latitude;
    int32_t altitude;
};

struct RunwayRecord {  // body of record 0x0004
    uint16_t surface;
    uint8_t primaryNumber, primaryDesignator, secondaryNumber, secondaryDesignator;
    uint32_t primaryIls, secondaryIls;  // packed idents, not shifted; 0 none
    uint32_t longitude, latitude;       // of the runway's centre
    int32_t altitude;
    float length, width, heading, patternAltitude;
    uint16_t markings;
    uint8_t lights, pattern;
};

struct RunwayAreaPart {  // bodies of 0x0005 to 0x000A; absent when the length is 0
    uint16_t surface;
    float length, width;
};

struct VasiPart {  // bodies of 0x000B to 0x000E; absent when all zero
    uint16_t type;
    float biasX, biasZ, spacing, pitch;
};

struct RunwayPayload {
    RunwayRecord body;
    RunwayAreaPart primaryThreshold, secondaryThreshold;
    RunwayAreaPart primaryBlastPad, secondaryBlastPad;
    RunwayAreaPart primaryOverrun, secondaryOverrun;  // kept in memory, never written
    uint16_t primaryApproachLights, secondaryApproachLights;
    VasiPart primaryLeftVasi, primaryRightVasi, secondaryLeftVasi, secondaryRightVasi;
    uint8_t unused;
};

struct HelipadRecord {  // body of record 0x0026
    uint8_t surface, type;
    uint32_t carried;
    uint32_t longitude, latitude;
    int32_t altitude;
    float length, width, heading;
};

struct CommFrequencyRecord {  // body of record 0x0012
    uint16_t type;
    uint32_t frequency;
    char name[49];  // Windows-1252, zero terminated
};

struct StartLocationRecord {  // body of record 0x0011
    uint8_t number;
    uint8_t designatorAndType;  // low nibble: runway suffix; high nibble: 1 runway, 2 water, 3 helipad
    uint32_t longitude, latitude;
    int32_t altitude;
    float heading;
};

struct TaxiNodeRecord {  // one entry of record 0x001A
    uint8_t type;        // 1 normal, 2 hold-short, 4 ILS hold-short
    uint8_t reversed;    // marker direction
    uint16_t carried;
    uint32_t longitude, latitude;
};

struct TaxiLinkPayload {  // one entry of record 0x001C, then three pointers kept in memory only
    uint16_t startIndex;
    uint16_t endField;   // bits 0-11 index, bits 12-15 runway designator
    uint32_t flagsWord;  // LinkBits.h
    float width;
    uint32_t carried[2];
    SceneryObject* start;       // a TaxiNode
    SceneryObject* end;         // a TaxiNode, or a ParkingSpot for a link of type 3
    SceneryObject* designator;  // the Runway of a link of type 2, else a TaxiDesignator or null
};
constexpr uint32_t kTaxiLinkFileSize = 20;

struct TaxiDesignatorRecord {  // one entry of record 0x001D
    char name[8];              // zero padded
};

struct ParkingSpotRecord {  // fixed part of an entry of record 0x001B; four bytes an airline code follow
    uint32_t packed;        // SpotBits.h
    float radius, heading;
    uint32_t longitude, latitude;
};

struct ApronHead {           // then the outline, the surface vertices and the triangles
    uint8_t selection[20];   // one bit a vertex, for the first 160; memory only
    uint8_t outlineSurface;  // head of the outline record 0x0037
    uint16_t outlineCount;
    uint8_t surface;    // head of the surface record 0x0030
    uint8_t drawFlags;  // surface, detail
    uint16_t vertexCount, triangleCount;
};
struct ApronTriangle {
    uint16_t vertex[3];
};

struct EdgeLightsHead {  // head of record 0x0031, then the number of strips that follow
    uint16_t carried;
    uint16_t vertexCount, edgeCount;  // as read; computed afresh on writing
    uint32_t colour;
    float brightness, maximumAltitude;
    uint32_t stripCount;
};
struct EdgeLightStrip {
    float spacing;  // metres between lights
    uint32_t startLongitude, startLatitude, endLongitude, endLatitude;
    uint8_t segmentSelected, startSelected, endSelected;  // memory only
};

struct ReferenceMarkerPayload {
    double latitude, longitude;  // radians, west positive
};

struct GuidelinePayload {
    SceneryObject* from;
    SceneryObject* to;
};

struct DmePart {  // body of sub-record 0x0016
    uint16_t carried;
    uint32_t longitude, latitude;
    int32_t altitude;
    float range;
};

struct VorRecord {  // body of record 0x0013: an ILS, VOR or DME
    uint8_t type;   // 4 ILS
    uint8_t flags;
    uint32_t longitude, latitude;
    int32_t altitude;
    uint32_t frequency;
    float range, magneticVariation;
    uint32_t ident;   // packed << 5 | 2
    uint32_t region;  // bits 0-10 region; bits 11-31 the airport's packed ident
};
constexpr uint8_t kIlsType = 4;
constexpr uint8_t kHasVor = 0x01;  // or a localizer; a VOR/DME without it is a lone DME
constexpr uint8_t kHasBackCourse = 0x04;
constexpr uint8_t kHasGlideSlope = 0x08;
constexpr uint8_t kHasDme = 0x10;
constexpr uint8_t kNavTrue = 0x20;  // known by this name only: usually set, else carried

struct LocalizerPart {  // body of sub-record 0x0014
    uint8_t runwayNumber, runwayDesignator;
    float heading, width;  // degrees
};

struct GlideSlopePart {  // body of sub-record 0x0015
    uint16_t carried;
    uint32_t longitude, latitude;
    int32_t altitude;
    float range, pitch;
};

struct IlsPayload {
    VorRecord body;
    LocalizerPart localizer;
    GlideSlopePart glideSlope;
    DmePart dme;
    char name[49];          // zero terminated, at most 48 characters
    uint8_t selectedParts;  // memory only
    uint8_t unused[104];
};

struct VorDmePayload {
    VorRecord body;
    DmePart dme;
    char name[49];
    uint8_t unused[16];
};

struct MarkerBeaconPayload {  // body of record 0x0018
    uint8_t heading;          // 360/256 degree units
    uint8_t type;             // 0 inner, 1 middle, 2 outer, 3 back course
    uint32_t longitude, latitude;
    int32_t altitude;
    uint32_t ident;
    uint32_t region;
    uint8_t unused[16];
};
constexpr uint32_t kMarkerBeaconFileSize = 22;

struct NdbPayload {
    uint16_t type;
    uint32_t frequency;
    uint32_t longitude, latitude;
    int32_t altitude;
    float range, magneticVariation;
    uint32_t ident, region;
    char name[49];
    uint8_t unused[16];
};

#pragma pack(pop)

constexpr uint32_t kNavaidBodySize = 34;
constexpr size_t kNavaidNameSize = 48;  // characters, without the terminating zero
constexpr size_t kCommNameSize = 48;
constexpr size_t kAirportNameSize = 48;

static_assert(sizeof(EncodedPoint) == 8);
static_assert(sizeof(AirportRecord) == 46 && offsetof(AirportRecord, longitude) == 6);
static_assert(offsetof(AirportRecord, towerLongitude) == 18 && offsetof(AirportRecord, magneticVariation) == 30);
static_assert(offsetof(AirportRecord, ident) == 34 && offsetof(AirportRecord, fuel) == 42);
static_assert(sizeof(TowerViewpointRecord) == 12);
static_assert(sizeof(RunwayRecord) == 46 && offsetof(RunwayRecord, length) == 26);
static_assert(offsetof(RunwayRecord, primaryIls) == 6 && offsetof(RunwayRecord, longitude) == 14);
static_assert(offsetof(RunwayRecord, markings) == 42 && offsetof(RunwayRecord, pattern) == 45);
static_assert(sizeof(RunwayAreaPart) == 10 && offsetof(RunwayAreaPart, length) == 2);
static_assert(sizeof(VasiPart) == 18);
static_assert(sizeof(RunwayPayload) == 183 && offsetof(RunwayPayload, primaryThreshold) == 46);
static_assert(offsetof(RunwayPayload, primaryBlastPad) == 66 && offsetof(RunwayPayload, primaryOverrun) == 86);
static_assert(offsetof(RunwayPayload, primaryApproachLights) == 106 && offsetof(RunwayPayload, primaryLeftVasi) == 110);
static_assert(offsetof(RunwayPayload, secondaryRightVasi) == 164 && offsetof(RunwayPayload, unused) == 182);
static_assert(sizeof(HelipadRecord) == 30 && offsetof(HelipadRecord, longitude) == 6);
static_assert(offsetof(HelipadRecord, length) == 18 && offsetof(HelipadRecord, heading) == 26);
static_assert(sizeof(CommFrequencyRecord) == 55 && offsetof(CommFrequencyRecord, name) == 6);
static_assert(sizeof(StartLocationRecord) == 18 && offsetof(StartLocationRecord, heading) == 14);
static_assert(sizeof(TaxiNodeRecord) == 12 && offsetof(TaxiNodeRecord, longitude) == 4);
static_assert(offsetof(TaxiLinkPayload, start) == kTaxiLinkFileSize && offsetof(TaxiLinkPayload, width) == 8);
static_assert(sizeof(TaxiLinkPayload) == kTaxiLinkFileSize + 3 * sizeof(void*));
static_assert(sizeof(TaxiDesignatorRecord) == 8);
static_assert(sizeof(ParkingSpotRecord) == 20 && offsetof(ParkingSpotRecord, longitude) == 12);
static_assert(sizeof(ApronHead) == 29 && offsetof(ApronHead, outlineSurface) == 20);
static_assert(offsetof(ApronHead, surface) == 23 && offsetof(ApronHead, triangleCount) == 27);
static_assert(sizeof(ApronTriangle) == 6);
static_assert(sizeof(EdgeLightsHead) == 22 && offsetof(EdgeLightsHead, stripCount) == 18);
static_assert(sizeof(EdgeLightStrip) == 23 && offsetof(EdgeLightStrip, segmentSelected) == 20);
static_assert(sizeof(ReferenceMarkerPayload) == 16);
static_assert(sizeof(GuidelinePayload) == 2 * sizeof(void*));
static_assert(sizeof(DmePart) == 18 && sizeof(LocalizerPart) == 10 && sizeof(GlideSlopePart) == 22);
static_assert(sizeof(VorRecord) == kNavaidBodySize && offsetof(VorRecord, ident) == 26);
static_assert(sizeof(IlsPayload) == 238 && offsetof(IlsPayload, localizer) == 34);
static_assert(offsetof(IlsPayload, glideSlope) == 44 && offsetof(IlsPayload, dme) == 66);
static_assert(offsetof(IlsPayload, name) == 84);
static_assert(sizeof(VorDmePayload) == 117 && offsetof(VorDmePayload, name) == 52);
static_assert(sizeof(MarkerBeaconPayload) == 38 && offsetof(MarkerBeaconPayload, unused) == kMarkerBeaconFileSize);
static_assert(sizeof(NdbPayload) == 99 && offsetof(NdbPayload, longitude) == 6);
static_assert(offsetof(NdbPayload, ident) == 26 && offsetof(NdbPayload, name) == kNavaidBodySize);

// Fields of the packed words.
enum NodeType : uint8_t { kNormalNode = 1, kHoldShortNode = 2, kIlsHoldShortNode = 4 };
enum StartType : uint8_t { kRunwayStart = 1, kWaterStart = 2, kHelipadStart = 3 };
constexpr uint8_t kPadTypeMask = 0x0F, kPadTransparent = 0x10, kPadClosed = 0x20;
constexpr uint32_t kJetFuel = 1u << 31, kAvgas = 1u << 30;
constexpr uint8_t kDrawApronSurface = 1, kDrawApronDetail = 2, kDrawApron = kDrawApronSurface | kDrawApronDetail;
constexpr int kLocalizerPart = 1, kGlideSlopePart = 2, kDmePart = 4;  // of an ILS's selected parts
constexpr uint8_t kAllIlsParts = kLocalizerPart | kGlideSlopePart | kDmePart;
constexpr size_t kParkingCodeSize = 4;                  // bytes of an airline code, zero padded
constexpr uint32_t kPlaceholderLongitude = 0x18000000;  // 0 degrees north, 0 degrees east: where a new
constexpr uint32_t kPlaceholderLatitude = 0x10000000;   // airport and its tower stand until placed

inline uint32_t LinkTypeOf(const TaxiLinkPayload& link) { return link.flagsWord & kLinkTypeMask; }
inline uint32_t LinkIndexByte(const TaxiLinkPayload& link) {
    return (link.flagsWord & kLinkIndexMask) >> kLinkIndexShift;
}
inline uint32_t LinkSurface(const TaxiLinkPayload& link) { return link.flagsWord >> kLinkSurfaceShift; }

inline uint32_t StartTypeOf(const StartLocationRecord& start) { return start.designatorAndType >> 4; }
inline uint32_t StartSuffix(const StartLocationRecord& start) { return start.designatorAndType & 0xF; }
inline uint8_t StartNibbles(uint32_t type, uint32_t suffix) { return static_cast<uint8_t>(type << 4 | (suffix & 0xF)); }

}  // namespace model
