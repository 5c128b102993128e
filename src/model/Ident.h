// Ident.h - identifiers of up to five characters packed in base 38, as scenery files store them.
//
// Most ident fields hold the packed value shifted left by five bits; the low bits tell the kind of
// object. Runway ILS idents and region codes are stored unshifted. An "ident word" is the shifted one.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace model {

constexpr int kIdentShift = 5;
constexpr uint32_t kIdentLowBits = 0x1F;

// Region words: a region's packed code below the packed identifier of an airport.
constexpr int kRegionBits = 11;
constexpr uint32_t kRegionMask = (1u << kRegionBits) - 1;

// At most the last five characters count; letters without regard to case, digits, and every other
// character as a blank.
uint32_t PackIdent(std::string_view text);

// Upper-case text of at most five characters; empty for 0.
std::string UnpackIdent(uint32_t packed);

// Navaids name their airport in their region word; 0 names none.
// An identifier of five characters may need more bits: the low ones are kept, and only they are compared.
uint32_t RegionWordWithAirport(uint32_t regionWord, uint32_t airportIdentWord);  // the region stays
bool RegionWordNamesAirport(uint32_t regionWord, uint32_t airportIdentWord);     // also when both name none

}  // namespace model
