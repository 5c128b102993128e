// Names.cpp - tables of names, in code order.
#include "model/Names.h"

#include <iterator>

#include "model/Records.h"
#include "model/SceneryObject.h"

namespace model {

namespace {

constexpr const char* kSurfaceNames[] = {
    "Concrete", "Grass",   "Water",    "Unknown",  "Asphalt", "Grass2", "Grass3", "Turf",
    "Snow",     "Ice",     "Unknown2", "Unknown3", "Dirt",    "Coral",  "Gravel", "Oil Treated",
    "Steel",    "Bitumus", "Brick",    "Macadam",  "Planks",  "Sand",   "Shale",  "Tarmac",
};
static_assert(std::size(kSurfaceNames) == kSurfaceCount);

constexpr const char* kParkingTypeNames[] = {
    "",           "Unknown",        "Ramp GA Small",   "Ramp GA Medium", "Ramp GA Large",
    "Ramp Cargo", "Ramp Mil Cargo", "Ramp Mil Combat", "Gate Small",     "Gate Medium",
    "Gate Heavy", "Dock GA",
};

constexpr const char* kParkingNames[] = {
    "",          "Parking",    "N Parking", "NE Parking", "E Parking", "SE Parking", "S Parking", "SW Parking",
    "W Parking", "NW Parking", "Gate",      "Dock",       "Gate A",    "Gate B",     "Gate C",    "Gate D",
    "Gate E",    "Gate F",     "Gate G",    "Gate H",     "Gate I",    "Gate J",     "Gate K",    "Gate L",
    "Gate M",    "Gate N",     "Gate O",    "Gate P",     "Gate Q",    "Gate R",     "Gate S",    "Gate T",
    "Gate U",    "Gate V",     "Gate W",    "Gate X",     "Gate Y",    "Gate Z",
};
static_assert(std::size(kParkingNames) == kGateZ + 1);

constexpr const char* kApproachLightsNames[] = {
    "none", "ODALS",   "MALSF",     "MALSR", "SSALF", "SSALR",  "ALSF-1", "ALSF-2",
    "RAIL", "CALVERT", "CALVERT-2", "MALS",  "SALS",  "SSALSF", "SSALS",  "SSALSR",
};
static_assert(std::size(kApproachLightsNames) == kApproachLightsCount && kSsalsr + 1 == kApproachLightsCount);

constexpr const char* kSlopeLightsNames[] = {
    "none",   "VASI 2", "VASI 3", "VASI 4", "VASI 6", "VASI 12", "VASI 16", "PAPI 2",
    "PAPI 4", "TRCV",   "PVASI",  "T-VASI", "BALL",   "ADAP",    "PANELS",
};
static_assert(std::size(kSlopeLightsNames) == kPanels + 1);

constexpr const char* kLetteredNumbers[] = { "N", "E", "NW", "SW", "S", "W", "SE", "NE" };
constexpr const char* kSuffixes[] = { "", "L", "R", "C", "W" };

}  // namespace

const char* SurfaceName(uint32_t code) { return kSurfaceNames[code]; }

const char* ParkingTypeName(uint32_t code) { return kParkingTypeNames[code < std::size(kParkingTypeNames) ? code : 1]; }

const char* ParkingNameText(uint32_t code) { return kParkingNames[code < std::size(kParkingNames) ? code : 0]; }

std::span<const char* const> ApproachLightsNames() { return kApproachLightsNames; }

std::span<const char* const> SlopeLightsNames() { return kSlopeLightsNames; }

std::string RunwayEndName(uint32_t number, uint32_t designator) {
    const bool lettered = number >= kFirstLetteredNumber && number - kFirstLetteredNumber < std::size(kLetteredNumbers);
    std::string name = lettered ? kLetteredNumbers[number - kFirstLetteredNumber] : std::to_string(number);
    if (designator < std::size(kSuffixes)) name += kSuffixes[designator];
    return name;
}

std::string RunwayName(const SceneryObject* runway) {
    const RunwayRecord& body = PayloadAs<RunwayPayload>(runway).body;
    return RunwayEndName(body.primaryNumber, body.primaryDesignator) + '/' +
           RunwayEndName(body.secondaryNumber, body.secondaryDesignator);
}

}  // namespace model
