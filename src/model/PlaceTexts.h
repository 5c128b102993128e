// PlaceTexts.h - the texts that name the open airport. They are no object; the history carries them with
// the Airport record (ModifyAirport in EditHistory.h).
#pragma once

#include <array>
#include <string>

#include "model/Records.h"

namespace model {

struct PlaceTexts {
    std::array<char, kAirportNameSize> name = {};  // Windows-1252, zero padded, not always terminated
    std::string country, state, city;              // Windows-1252
    std::string icao;
    bool operator==(const PlaceTexts&) const = default;
};

PlaceTexts CurrentPlaceTexts();
void SetPlaceTexts(const PlaceTexts& texts);

}  // namespace model
