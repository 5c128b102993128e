// Options.h - what the Options dialog shows and stores.
#pragma once

#include <span>
#include <string>
#include <vector>

namespace app {

// Choices are positions in the lists below; -1 is none.
struct OptionsFields {
    bool metric = false, metricParkingRadius = false;
    int latLongFormat = -1;
    int gridDivisions = -1;
    bool gridDecimal = false;  // the grid's labels: decimal minutes, else seconds

    bool operator==(const OptionsFields&) const = default;
};

std::span<const char* const> LatLongFormatTexts();
std::vector<std::string> GridDivisionTexts();  // "30 Sec (0.50 Min)", from coarse to fine

// From and to the settings in force. A list without a choice leaves its setting as it is.
OptionsFields LoadOptions();
void StoreOptions(const OptionsFields& fields);

}  // namespace app
