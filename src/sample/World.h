// World.h - the airports, runways, navaids and frequencies of the tables, as they are given.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "model/Geodesy.h"

namespace sample {

// All texts are UTF-8.
struct AirportRow {
    std::string ident, name, city, state, country;
    double elevation = 0;  // metres
    model::LatLon position;
};

struct RunwayEndRow {
    std::string ident;                      // "16L", "N", "H1"
    std::optional<model::LatLon> position;  // of the end of the pavement
    std::optional<double> heading;          // degrees true
    double displaced = 0;                   // metres from the end to the landing threshold
};

struct RunwayRow {
    std::string airport, surface;
    double length = 0, width = 0;  // metres; 0 not given
    bool lighted = false, closed = false;
    RunwayEndRow low, high;
};

struct NavaidRow {
    std::string ident, name, type, usage, power;
    double frequency = 0, dmeFrequency = 0;  // kHz, 0 not given
    double elevation = 0;                    // metres
    std::optional<double> variation;         // magnetic, degrees, EAST positive
    model::LatLon position;
};

struct FrequencyRow {
    std::string airport, type, name;
    double megahertz = 0;
};

// Sorted by ident; runways and frequencies of one airport keep the order of the table.
struct World {
    std::vector<AirportRow> airports;
    std::vector<RunwayRow> runways;
    std::vector<NavaidRow> navaids;
    std::vector<FrequencyRow> frequencies;
};

// Reads the four tables of the folder. Rows without an ident or without a usable position are left out.
// False, with *error naming the file, when one cannot be read or lacks a column that nothing goes without.
bool LoadWorld(const std::string& folder, World* world, std::string* error);

std::span<const RunwayRow> RunwaysOf(const World& world, const std::string& airport);
std::span<const FrequencyRow> FrequenciesOf(const World& world, const std::string& airport);
const AirportRow* FindAirport(const World& world, const std::string& ident);  // null when there is none

}  // namespace sample
