// Simulator.cpp - see Simulator.h.
#include "link/Simulator.h"

#include <algorithm>
#include <cmath>

#include "link/Ipc.h"
#include "link/Offsets.h"

namespace simlink {

SimulatorState simulator;

namespace {

constexpr uint32_t kAnySimulator = 0;
constexpr uint32_t kSlowTickMs = 250;   // what takes longer is felt by the user
constexpr uint32_t kRestAfterSlow = 4;  // times as long as the slow tick took
constexpr int kDoublings = 4;           // from the first wait to beyond the longest

void WaitFrom(uint64_t now, uint64_t wait) { simulator.notBefore = now + std::min<uint64_t>(wait, kLongestWaitMs); }

uint64_t WaitAfterFailure() { return uint64_t{ kFirstWaitMs } << std::min(simulator.failures - 1, kDoublings); }

// Asked only after a failure: an attempt on a window that is known to hang would block for nothing.
bool IsStillHanging() {
    if (simulator.failures == 0) return false;
    bool asSimulator = false;
    const Handle window = FindServerWindow(&asSimulator);
    return window && IsNotResponding(window);
}

bool Connect(const HotKeyCodes& codes, IpcError* error) {
    if (!IpcOpen(kAnySimulator, error)) return *error == IpcError::AlreadyOpen;
    if (RegisterHotKeys(codes)) return true;
    *error = IpcError::SendFailed;
    return false;
}

bool QueueSlots(IpcError* error) {
    for (HotKeySlot& slot : hotKeys.slots) {
        if (!IpcRead(slot.offset, sizeof slot.value, &slot.value, error)) return false;
    }
    return true;
}

bool Poll() {
    IpcError error;
    SimulatorState& s = simulator;
    return IpcRead(kGroundOffset, sizeof s.ground, &s.ground, &error) &&
           IpcRead(kLatitudeOffset, sizeof s.position.latitude, &s.position.latitude, &error) &&
           IpcRead(kLongitudeOffset, sizeof s.position.longitude, &s.position.longitude, &error) &&
           IpcRead(kAltitudeOffset, sizeof s.altitude, &s.altitude, &error) &&
           IpcRead(kHeadingOffset, sizeof s.heading, &s.heading, &error) && QueueSlots(&error) && IpcProcess(&error);
}

// No window to talk to costs nothing: that is tried again at every tick.
bool TryOnce(const HotKeyCodes& codes, bool* quietly) {
    *quietly = false;
    if (IsStillHanging()) return false;
    IpcError error = IpcError::Okay;
    if (!Connect(codes, &error)) {
        *quietly = error == IpcError::NoServer;
        return false;
    }
    return Poll();
}

template <class Value>
bool WriteValue(uint32_t offset, Value value) {
    IpcError error;
    return IpcWrite(offset, sizeof value, &value, &error);
}

bool SendWrites() {
    IpcError error;
    if (IpcProcess(&error)) return true;
    LoseLink();
    return false;
}

}  // namespace

TickResult Tick(const HotKeyCodes& codes) {
    const uint64_t start = Milliseconds();
    if (start < simulator.notBefore) return TickResult::Waiting;
    bool quietly = false;
    if (!TryOnce(codes, &quietly)) {
        if (!quietly) LoseLink();
        simulator.connected = false;
        return TickResult::Failed;
    }
    simulator.connected = true;
    simulator.failures = 0;
    const uint64_t end = Milliseconds();
    if (end - start > kSlowTickMs) WaitFrom(end, kRestAfterSlow * (end - start));
    return TickResult::Polled;
}

void LoseLink() {
    simulator.connected = false;
    ++simulator.failures;
    IpcClose();
    WaitFrom(Milliseconds(), WaitAfterFailure());
}

bool StopSlew() {
    if (!simulator.connected) return false;
    WriteValue<uint16_t>(kSlewModeOffset, 1);
    WriteValue<uint16_t>(kSlewMotionA, 0);
    WriteValue<uint16_t>(kSlewMotionB, 0);
    WriteValue<uint8_t>(kSlewMotionC, 0);
    WriteValue<uint8_t>(kSlewMotionD, 0);
    return SendWrites();
}

bool MoveAircraft(model::LatLon position, double heading) {
    if (!std::isfinite(position.lat) || !std::isfinite(position.lon) || !std::isfinite(heading)) return false;
    if (std::fabs(position.lat) > model::kPi / 2 || !StopSlew()) return false;
    const SimPosition target = FromLatLon(position);
    WriteValue(kLatitudeOffset, target.latitude);
    WriteValue(kLongitudeOffset, target.longitude);
    const uint32_t turned = HeadingFromRadians(heading);
    WriteValue(kHeadingOffset, turned);
    if (!SendWrites()) return false;
    // The next poll's answer may end before the place: the one of the poll before would put the aircraft back there.
    simulator.position = target;
    simulator.heading = turned;
    return true;
}

void ReleaseLink() {
    if (simulator.connected && HasHotKeys() && !IsNotResponding(ipc.window)) UnregisterHotKeys();
    IpcClose();
    simulator = {};
    hotKeys = {};
}

}  // namespace simlink
