// AircraftEdits.h - what the aircraft editor shows of one variation, and what its buttons write.
//
// Before the first change a file is copied to its own name + "_BACKUP"; such a copy is never replaced. Files are
// written whole, and when one of a pair cannot be written, the other is put back. Texts are UTF-8.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "aircraft/Variations.h"

namespace aircraft {

constexpr char kBackupEnd[] = "_BACKUP";

struct AircraftFields {
    std::string airline, types, code, radius;
};

struct Aircraft {
    std::string title;
    AircraftFields shown;
    uint32_t radius = 0;  // metres; 0: the field is disabled
    bool hasBackup = false;
    std::string configPath, modelPath;  // "" when there is none
    int number = 0;                     // of its section
};

// What the files say of the variation now. All empty when its section is gone.
Aircraft LoadAircraft(const Variation& row);

enum class AircraftField { None, Airline, Types, Code, Radius };

// Writes what differs from what was shown; with airline or code the types too, always in the simulator's words. False
// after a message; *bad is the field that was refused, None when a file could not be read or written.
bool ApplyFields(const Aircraft& aircraft, const AircraftFields& entered, AircraftField* bad);

// Puts airline, types and codes of the variation, and its model, back to what the backups have; what only one of the
// backups has comes back alone. False after a message.
bool RestoreAircraft(const Aircraft& aircraft);

// What the code selector offers: the codes of all parking specs.
struct CodeChoice {
    std::string code, text;  // "ACA", "ACA - Air Canada"
};
std::vector<CodeChoice> CodeChoices();
int CodeChoiceOf(const std::vector<CodeChoice>& choices, const std::string& code);  // -1: none has it

}  // namespace aircraft
