// Rounds.h - how often a test that looks for rare or slow faults repeats itself.
#pragma once

#include <cstdlib>
#include <string_view>

// The full count with TARVO_SOAK=1 in the environment, else what fits into a usual run.
inline int Rounds(int usual, int full) {
    const char* soak = std::getenv("TARVO_SOAK");
    return soak && std::string_view(soak) == "1" ? full : usual;
}
