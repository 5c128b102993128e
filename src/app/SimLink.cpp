// SimLink.cpp - see SimLink.h.
#include "app/SimLink.h"

#include <utility>
#include <vector>

#include "app/AppHost.h"
#include "app/Settings.h"
#include "app/SimLinkHost.h"
#include "link/Simulator.h"
#include "map/Aircraft.h"
#include "map/Drops.h"
#include "map/MapView.h"
#include "map/Tools.h"
#include "model/ObjectList.h"

namespace app {

namespace {

constexpr size_t kMostPresses = 64;

// A hot key that the simulator has seen pressed, and where the aircraft was.
struct Press {
    size_t key;
    model::LatLon position;
    double heading;  // radians true
};

struct SimLinkState {
    bool hasLast = false;  // the two below hold the last poll with an airport open
    simlink::SimPosition lastPosition;
    uint32_t lastHeading = 0;
    std::vector<Press> presses;  // still to be carried out, in the airport that is open
    bool forgetsNext = false;    // what the next poll finds was pressed before that airport was open
};
SimLinkState simLink;

model::LatLon AircraftPosition() { return simlink::ToLatLon(simlink::simulator.position); }
double AircraftHeading() { return simlink::HeadingRadians(simlink::simulator.heading); }

bool IsSymbolThere() {
    const model::LatLon position = AircraftPosition();
    return map::simAircraft.position.lat == position.lat && map::simAircraft.position.lon == position.lon;
}

bool HasMoved() {
    const simlink::SimulatorState& now = simlink::simulator;
    if (!simLink.hasLast || now.heading != simLink.lastHeading) return true;
    return now.position.latitude != simLink.lastPosition.latitude ||
           now.position.longitude != simLink.lastPosition.longitude;
}

void ShowMove() {
    if (!HasMoved() && IsSymbolThere() && map::ViewIsWithAircraft()) return;
    map::ShowAircraft(AircraftPosition(), AircraftHeading());
    simLink.hasLast = true;
    simLink.lastPosition = simlink::simulator.position;
    simLink.lastHeading = simlink::simulator.heading;
    ShowReadOuts();
}

// The press counts even when the simulator can no longer be told that it was seen. It is not told of further ones
// then: each try would block as long as the first.
void TakePresses() {
    bool answered = true;
    for (size_t key = 0; key < simlink::kHotKeys; ++key) {
        simlink::HotKeySlot& slot = simlink::hotKeys.slots[key];
        if (!simlink::IsPressed(slot)) continue;
        if (answered) answered = simlink::AcknowledgeHotKey(&slot);
        if (simLink.presses.size() >= kMostPresses) continue;
        simLink.presses.push_back({ key, AircraftPosition(), AircraftHeading() });
    }
    if (!answered) simlink::LoseLink();
    if (std::exchange(simLink.forgetsNext, false)) simLink.presses.clear();
}

void CarryOut(const Press& press) {
    if (press.key == simlink::kNodeKey) map::DropNode(press.position);
    if (press.key == simlink::kParkingKey) map::DropParkingSpot(press.position, press.heading);
    if (press.key == simlink::kMarkerKey) map::DropMarker(press.position);
}

// Under a drag or a dialog the objects are in other hands: what is pressed then is made afterwards, in its place.
void CarryOutPresses() {
    if (!model::state.loaded) ForgetPresses();
    if (simLink.presses.empty() || model::state.busy || map::tools.pressed || !IsMapInFront()) return;
    const std::vector<Press> presses = std::move(simLink.presses);
    simLink.presses.clear();
    for (const Press& press : presses) CarryOut(press);
    ShowCommandStates();
}

void TakePoll() {
    if (!simlink::IsOnEarth(simlink::simulator.position)) return;
    if (!model::state.loaded) {
        map::simAircraft.position = AircraftPosition();
        map::simAircraft.heading = AircraftHeading();
        simLink.hasLast = false;
        return;
    }
    ShowMove();
    TakePresses();
}

void ShowConnection() {
    const bool connected = simlink::simulator.connected;
    if (map::simAircraft.active == connected) return;
    if (connected)
        map::simAircraft.active = true;
    else
        map::HideAircraft();
    simLink.hasLast = false;
    ShowCommandStates();
    ShowReadOuts();
}

}  // namespace

void PollSimulator() {
    const simlink::TickResult result =
        simlink::Tick({ settings.nodeKeyCode, settings.parkingKeyCode, settings.markerKeyCode });
    ShowConnection();
    if (result == simlink::TickResult::Polled) TakePoll();
    ShowConnection();
    CarryOutPresses();
}

void ForgetPresses() {
    simLink.presses.clear();
    simLink.forgetsNext = true;
}

void ReleaseSimulator() {
    simlink::ReleaseLink();
    map::simAircraft = {};
    simLink = {};
}

bool IsSimulatorConnected() { return simlink::simulator.connected; }

std::string SimulatorText() { return IsSimulatorConnected() ? "Simulator: connected" : "Simulator: not connected"; }

void PlaceAircraft(model::LatLon position, double heading) {
    if (!model::state.loaded) return;  // without an airport the map shows no place on earth
    simlink::MoveAircraft(position, heading);
    ShowConnection();
}

void StopAircraft() {
    simlink::StopSlew();
    ShowConnection();
}

}  // namespace app
