// RecordIds.h - the ids of the records and sections of scenery files that we read or write.
#pragma once

#include <cstdint>

namespace bgl {

enum RecordId : uint16_t {
    kAirportRecord = 0x0003,
    kRunwayRecord = 0x0004,
    kPrimaryThreshold = 0x0005,  // the six runway areas have consecutive ids
    kSecondaryThreshold = 0x0006,
    kPrimaryBlastPad = 0x0007,
    kSecondaryBlastPad = 0x0008,
    kPrimaryOverrun = 0x0009,
    kSecondaryOverrun = 0x000A,
    kPrimaryLeftVasi = 0x000B,  // and so have the four VASIs
    kPrimaryRightVasi = 0x000C,
    kSecondaryLeftVasi = 0x000D,
    kSecondaryRightVasi = 0x000E,
    kPrimaryApproachLights = 0x000F,
    kSecondaryApproachLights = 0x0010,
    kStartRecord = 0x0011,
    kCommRecord = 0x0012,
    kVorRecord = 0x0013,  // an ILS, VOR or DME
    kLocalizerRecord = 0x0014,
    kGlideSlopeRecord = 0x0015,
    kDmeRecord = 0x0016,
    kNdbRecord = 0x0017,
    kMarkerRecord = 0x0018,
    kNameRecord = 0x0019,  // of an airport or a navaid
    kTaxiNodeRecord = 0x001A,
    kParkingRecord = 0x001B,
    kTaxiLinkRecord = 0x001C,
    kTaxiNameRecord = 0x001D,
    kHelipadRecord = 0x0026,
    kNameListRecord = 0x0027,
    kApronSurfaceRecord = 0x0030,
    kEdgeLightsRecord = 0x0031,
    kDeleteAirportRecord = 0x0033,
    kApronOutlineRecord = 0x0037,
};

enum SectionType : uint32_t {
    kAirportSection = 0x03,
    kVorSection = 0x13,
    kNdbSection = 0x17,
    kMarkerSection = 0x18,
    kNameListSection = 0x27,
    kVorIndexSection = 0x28,
    kNdbIndexSection = 0x29,
};

// The second word of a section's table entry: how its subsections are found.
enum SectionClass : uint32_t {
    kByCell = 1,    // subsection ids are cell ids
    kNameList = 3,  // one subsection of the id below
    kIdentIndex = 4,
};
constexpr uint32_t kIndexSubsectionId = 2;  // compiled files hold 2 there; it is no cell

}  // namespace bgl
