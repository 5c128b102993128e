// Names.h - codes, and the names shown for them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace model {

struct SceneryObject;

enum Surface : uint8_t {
    kConcrete = 0,
    kGrass = 1,
    kWater = 2,
    kAsphalt = 4,
    kTurf = 7,
    kSnow = 8,
    kIce = 9,
    kDirt = 12,
    kCoral = 13,
    kGravel = 14,
    kOilTreated = 15,
    kSteel = 16,
    kBitumen = 17,
    kBrick = 18,
    kMacadam = 19,
    kPlanks = 20,
    kSand = 21,
    kShale = 22,
    kTarmac = 23,
};
constexpr uint32_t kSurfaceCount = 24;
const char* SurfaceName(uint32_t code);  // code below 24

enum ParkingType : uint8_t {
    kRampGa = 1,  // shown as "Unknown"
    kRampGaSmall = 2,
    kRampGaMedium = 3,
    kRampGaLarge = 4,
    kRampCargo = 5,
    kRampMilCargo = 6,
    kRampMilCombat = 7,
    kGateSmall = 8,
    kGateMedium = 9,
    kGateHeavy = 10,
    kDockGa = 11,
};
const char* ParkingTypeName(uint32_t code);  // 12 or more is shown as code 1

enum ParkingName : uint8_t {
    kParking = 1,
    kNorthParking = 2,  // and so on clockwise
    kSouthParking = 6,
    kWestParking = 8,
    kNorthwestParking = 9,
    kGateName = 10,
    kDockName = 11,
    kGateA = 12,  // and so on to Gate Z
    kGateZ = 37,
};
const char* ParkingNameText(uint32_t code);  // "Gate A" and so on; 38 or more is shown as code 0, which is blank

enum ApproachLights : uint16_t {
    kNoApproachLights,
    kOdals,
    kMalsf,
    kMalsr,
    kSsalf,
    kSsalr,
    kAlsf1,
    kAlsf2,
    kRail,
    kCalvert,
    kCalvert2,
    kMals,
    kSals,
    kSsalsf,
    kSsals,
    kSsalsr,
};
constexpr size_t kApproachLightsCount = 16;
std::span<const char* const> ApproachLightsNames();  // in code order

enum SlopeLights : uint16_t {  // beside a runway
    kNoSlopeLights,
    kVasi2,
    kVasi3,
    kVasi4,
    kVasi6,
    kVasi12,
    kVasi16,
    kPapi2,
    kPapi4,
    kTricolour,
    kPulsating,
    kTVasi,
    kBall,
    kAlignedPanels,
    kPanels,
};
std::span<const char* const> SlopeLightsNames();  // in code order

// An end of a runway: "16L", "N", "4". Numbers 37 to 44 are the lettered ones; others print as numbers.
constexpr uint32_t kFirstLetteredNumber = 37;
std::string RunwayEndName(uint32_t number, uint32_t designator);
std::string RunwayName(const SceneryObject* runway);  // both its ends: "16L/34R"

}  // namespace model
