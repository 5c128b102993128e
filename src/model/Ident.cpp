// Ident.cpp - base-38 packing: 1 a blank, 2-11 the digits, 12-37 the letters, 0 ends the text.
#include "model/Ident.h"

#include <algorithm>
#include <cstddef>

namespace model {

namespace {

constexpr uint32_t kBase = 38;
constexpr size_t kMaxCharacters = 5;

uint32_t CodeOf(char c) {
    if (c >= '0' && c <= '9') return static_cast<uint32_t>(c - '0') + 2;
    if (c >= 'A' && c <= 'Z') return static_cast<uint32_t>(c - 'A') + 12;
    if (c >= 'a' && c <= 'z') return static_cast<uint32_t>(c - 'a') + 12;
    return 1;
}

char CharacterOf(uint32_t code) {
    if (code == 1) return ' ';
    if (code < 12) return static_cast<char>('0' + (code - 2));
    return static_cast<char>('A' + (code - 12));
}

}  // namespace

uint32_t PackIdent(std::string_view text) {
    uint32_t packed = 0;
    if (text.size() > kMaxCharacters) text.remove_prefix(text.size() - kMaxCharacters);
    for (char c : text) packed = packed * kBase + CodeOf(c);
    return packed;
}

std::string UnpackIdent(uint32_t packed) {
    std::string text;
    for (size_t i = 0; i < kMaxCharacters; ++i, packed /= kBase) {
        const uint32_t code = packed % kBase;
        if (code == 0) break;
        text.push_back(CharacterOf(code));
    }
    std::reverse(text.begin(), text.end());
    return text;
}

uint32_t RegionWordWithAirport(uint32_t regionWord, uint32_t airportIdentWord) {
    return airportIdentWord >> kIdentShift << kRegionBits | (regionWord & kRegionMask);
}

bool RegionWordNamesAirport(uint32_t regionWord, uint32_t airportIdentWord) {
    return (regionWord & ~kRegionMask) == RegionWordWithAirport(0, airportIdentWord);
}

}  // namespace model
