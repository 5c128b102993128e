// NavaidFields.h - what the editors of navaids share: frequencies with their bands and steps, and the
// variation that new navaids start with.
#pragma once

#include <cstdint>
#include <string>

#include "dialogs/Field.h"
#include "dialogs/NumberField.h"

namespace dialogs {

// Localizers have the frequencies from 108.1 to 111.95 MHz whose tenth is odd; VORs the others from 108 to
// 117.95 MHz. A lone DME is paired with either. All in steps of 50 kHz; NDBs in steps of 0.5 kHz.
enum class FrequencyKind { Localizer, Vor, Dme, Ndb };

std::string ShowNavFrequency(uint32_t hertz, FrequencyKind kind);

// An unchanged text leaves *hertz alone, except that a record without any frequency is refused. `judgeOld`
// checks an unchanged frequency too: the kind has changed.
bool ReadNavFrequency(FrequencyKind kind, const std::string& shown, const std::string& entered, bool judgeOld,
                      uint32_t* hertz, BadField* bad);

// The DME channel that is paired with a VOR or localizer frequency, "17X"; empty when there is none.
std::string DmeChannel(uint32_t hertz);
std::string DmeChannelOf(const std::string& megahertz);  // of what is typed

constexpr Quantity kDmeRange = { "DME range", Unit::Range, 100, 1e6 };  // of an ILS and of a VOR

float AirportVariation();  // degrees, west positive

}  // namespace dialogs
