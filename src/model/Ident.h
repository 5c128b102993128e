// Ident.h - identifiers of up to five characters packed in base 38, as scenery files store them.
//
// Most ident fields hold the packed value shifted left by five bits; the low bits tell the kind of
// object. Runway ILS idents and region codes are stored unshifted.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace model {

constexpr int kIdentShift = 5;
constexpr uint32_t kIdentLowBits = 0x1F;

// At most the last five characters count; letters without regard to case, digits, and every other
// character as a blank.
uint32_t PackIdent(std::string_view text);

// Upper-case text of at most five characters; empty for 0.
std::string UnpackIdent(uint32_t packed);

}  // namespace model
