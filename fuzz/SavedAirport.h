// SavedAirport.h - what must hold for whatever was read: it can be written, or is refused with a message,
// and reading what was written and writing that gives the same bytes.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "bgl/AirportWriter.h"
#include "bgl/OpenAirport.h"
#include "model/ObjectList.h"

constexpr uint64_t kFixedTime = 0x01C4000000000000;

inline void Require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

inline void RequireThatTheOpenAirportSurvives() {
    std::vector<uint8_t> first, second;
    std::string refusal;
    if (!bgl::BuildAirportFile(kFixedTime, &first, &refusal)) {
        Require(refusal.empty() == (model::state.airport == nullptr), "a refusal says why");
        return;
    }
    Require(bgl::OpenAirportBytes(first, ""), "what was written can be opened");
    Require(bgl::BuildAirportFile(kFixedTime, &second, &refusal), "what was read can be written");
    Require(first == second, "writing twice gives the same bytes");
}
