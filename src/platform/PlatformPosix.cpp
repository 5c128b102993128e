// PlatformPosix.cpp - the platform of the command line tool: nobody is there to answer, so messages go to
// standard error and every question is answered in the way that changes nothing.
#include <chrono>
#include <cstdio>
#include <string>

#include "platform/FileTimePosix.h"
#include "platform/Platform.h"

namespace platform {

Answer ShowMessage(std::string_view text, Buttons buttons, Icon) {
    const std::string line = "tarvo-tool: " + std::string(text) + "\n";
    std::fputs(line.c_str(), stderr);
    switch (buttons) {
    case Buttons::Ok: return Answer::Ok;
    case Buttons::YesNo: return Answer::No;
    default: return Answer::Cancel;
    }
}

void RequestRepaint() {}

uint64_t SystemFileTime() {
    using FileTimeUnits = std::chrono::duration<uint64_t, std::ratio<1, 10000000>>;
    const auto sinceEpoch = std::chrono::system_clock::now().time_since_epoch();
    return kUnixEpochAsFileTime + std::chrono::duration_cast<FileTimeUnits>(sinceEpoch).count();
}

}  // namespace platform
