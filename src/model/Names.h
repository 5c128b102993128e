// Names.h - the names shown for codes.
#pragma once

#include <cstdint>
#include <string>

namespace model {

struct SceneryObject;

constexpr uint32_t kSurfaceCount = 24;
const char* SurfaceName(uint32_t code);  // code below 24

const char* ParkingTypeName(uint32_t code);  // 12 or more is shown as code 1
const char* ParkingNameText(uint32_t code);  // "Gate A" and so on; 38 or more is shown as code 0, which is blank

// An end of a runway: "16L", "N", "4". Numbers 37 to 44 are the lettered ones; others print as numbers.
constexpr uint32_t kFirstLetteredNumber = 37;
std::string RunwayEndName(uint32_t number, uint32_t designator);
std::string RunwayName(const SceneryObject* runway);  // both its ends: "16L/34R"

}  // namespace model
