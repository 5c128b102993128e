// Simulator.h - the link's tasks: come up, poll, move the aircraft, go down. All failures are silent.
//
// Everything blocks the caller: up to nine tries of 2 s for one request. So that a simulator which hangs, or answers
// late, does not take the editor with it, a failed request ends the tick, and the ticks after it wait.
#pragma once

#include <cstdint>

#include "link/HotKeys.h"
#include "link/Units.h"

namespace simlink {

struct SimulatorState {
    bool connected = false;  // the last poll was answered
    SimPosition position;    // as polled or as moved to since, not judged
    int64_t altitude = 0;
    uint32_t heading = 0;
    uint32_t ground = 0;     // polled with the rest, not used
    int failures = 0;        // attempts that failed since the last answered poll
    uint64_t notBefore = 0;  // on the clock of Milliseconds(): when the next tick may act
};

extern SimulatorState simulator;

constexpr uint32_t kFirstWaitMs = 500, kLongestWaitMs = 5000;

enum class TickResult {
    Waiting,  // nothing was tried
    Failed,   // the link is closed
    Polled,   // the values are those of now
};

// One tick of the 100 ms timer.
TickResult Tick(const HotKeyCodes& codes);

// Moves the aircraft; heading in radians true. False when it is not connected, when there is no such place, or when the
// simulator did not answer, and then the link is closed.
bool MoveAircraft(model::LatLon position, double heading);

// Slew mode, with all motion stopped. False as above.
bool StopSlew();

// Gives the hot keys back and closes the link.
void ReleaseLink();

// After a request of the caller's own has failed: closed until a later tick opens it again.
void LoseLink();

}  // namespace simlink
