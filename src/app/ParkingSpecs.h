// ParkingSpecs.h - the airlines that ParkingSpecs.txt describes: a name, a colour and parking codes.
// Includes no other folder, so that every folder may read them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace app {

struct ParkingSpec {
    std::string name;  // UTF-8
    bool hasColour = false;
    uint8_t red = 0, green = 0, blue = 0;
    uint8_t halfRed = 0, halfGreen = 0, halfBlue = 0;  // half intensity, for drawing by night
    std::vector<std::string> codes;                    // 1 to 4 characters each
};

extern std::vector<ParkingSpec> parkingSpecs;  // in file order

// Reads ParkingSpecs.txt of the program folder anew; whether it was read. A missing file leaves the list
// empty without a message; each bad line is shown and reading goes on.
bool LoadParkingSpecs(const std::string& programFolder);

}  // namespace app
