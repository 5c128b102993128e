// ParkingTypes.cpp - see ParkingTypes.h.
#include "aircraft/ParkingTypes.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "platform/Text.h"

namespace aircraft {

namespace {

struct Word {
    const char* accepted;
    const char* written;
};
constexpr Word kWords[] = {
    { "GATE", "GATE" },
    { "G", "GATE" },
    { "RAMP", "RAMP" },
    { "R", "RAMP" },
    { "CARGO", "CARGO" },
    { "C", "CARGO" },
    { "DOCK", "DOCK" },
    { "D", "DOCK" },
    { "MIL_CARGO", "MIL_CARGO" },
    { "MIL-CARGO", "MIL_CARGO" },
    { "MR", "MIL_CARGO" },
    { "MIL_COMBAT", "MIL_COMBAT" },
    { "MIL-COMBAT", "MIL_COMBAT" },
    { "MB", "MIL_COMBAT" },
};

constexpr std::string_view kSeparators = " \t,";

}  // namespace

bool NormaliseTypes(std::string_view text, std::string* types, std::string* unknown) {
    std::string joined;
    for (size_t at = text.find_first_not_of(kSeparators); at != std::string_view::npos;) {
        const size_t end = std::min(text.find_first_of(kSeparators, at), text.size());
        const std::string_view entered = text.substr(at, end - at);
        const auto* word = std::find_if(std::begin(kWords), std::end(kWords),
                                        [&](const Word& row) { return platform::EqualNoCase(row.accepted, entered); });
        if (word == std::end(kWords)) {
            *unknown = entered;
            return false;
        }
        joined += (joined.empty() ? "" : ",") + std::string(word->written);
        at = text.find_first_not_of(kSeparators, end);
    }
    *types = std::move(joined);
    return true;
}

}  // namespace aircraft
