// Variations.h - the list of all aircraft variations of the simulator: what they are, sorting and finding.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "aircraft/ConfigText.h"

namespace aircraft {

constexpr size_t kTitleLimit = 100, kListedTitleLimit = 80, kAirlineLimit = 81, kTypesLimit = 81, kModelLimit = 100;
constexpr size_t kCodeLimit = 4;  // characters; of several codes the first one

constexpr char kTitleKey[] = "title", kAirlineKey[] = "atc_airline", kTypesKey[] = "atc_parking_types",
               kCodesKey[] = "atc_parking_codes", kModelKey[] = "model";

struct Variation {
    std::string folder;  // its path
    int number = 0;      // of its section
    std::string title, manufacturer, type, name, airline, parkingTypes, code;
    uint32_t radius = 0;  // metres; 0 when the model has none that can be edited
};

std::string SectionName(int number);  // "fltsim.3"

std::string FirstCode(std::string_view codes);  // of codes that commas or blanks part
std::string ModelOf(const ConfigText& config, const platform::IniSection& section);

// All variations that have a title, of all folders of the simulator's Aircraft folder, in the order of folders and
// sections. `simulatorFolder` may be empty.
std::vector<Variation> ListVariations(const std::string& simulatorFolder);

// Those of one aircraft's folder, from the bytes of its configuration.
std::vector<Variation> VariationsOf(const std::string& folder, const ConfigText& config);

// Reads the rows of that folder anew; the others and the order stay.
void RefreshVariations(const std::string& folder, std::vector<Variation>* rows);

enum Column { kManufacturer, kType, kVariation, kAirline, kParkingTypes, kCode, kRadius, kColumns };
std::string CellText(const Variation& row, int column);

struct SortOrder {
    int column = kManufacturer;
    bool descending = false;
};

// A click on a column's head sorts by it; where the list is sorted by it already, the other way round.
SortOrder OrderAfterClick(SortOrder order, int column);

// Without regard to case, the radius by its number. Equal rows go by manufacturer, type and variation.
void SortVariations(std::vector<Variation>* rows, SortOrder order);

// The first row from `start` on, going on from the top, whose cell begins with the text without regard to case;
// -1 when none does.
int FindVariation(const std::vector<Variation>& rows, int column, std::string_view text, int start);

}  // namespace aircraft
