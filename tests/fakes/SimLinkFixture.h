// SimLinkFixture.h - a map beside a simulator that answers in process.
#pragma once

#include <filesystem>

#include "app/Airport.h"
#include "app/AppState.h"
#include "app/Commands.h"
#include "app/SimLink.h"
#include "bgl/AirportWriter.h"
#include "fakes/FakeShell.h"
#include "fakes/FakeSimLinkHost.h"
#include "fakes/FakeTransport.h"
#include "fakes/MapFixture.h"
#include "fakes/TemporaryFolder.h"
#include "link/Ipc.h"
#include "link/Simulator.h"
#include "model/EditHistory.h"
#include "Resource.h"

namespace simlinked {

using app::PollSimulator;
using model::kPi;
using model::PayloadAs;
using model::SceneryObject;

constexpr uint32_t kEast = 0x40000000;

class SimLinkFixture : public MapFixture {
protected:
    void SetUp() override {
        ResetProgram();
        MapFixture::SetUp();
        ResetTransport();
        app::ReleaseSimulator();
        fakeSimLinkHost = {};
        OpenAirport("C:\\one.bgl");
        Fly({ 100, 50 }, 0);
    }
    void TearDown() override {
        app::ReleaseSimulator();
        MapFixture::TearDown();
    }

    static void OpenAirport(const char* file) {
        model::state.airport = build::Airport("KTST");
        model::state.loaded = true;
        app::state.sourceFile = file;
    }
    static void Fly(build::Place place, uint32_t heading) {
        const simlink::SimPosition at = simlink::FromLatLon(build::At(place));
        PutAircraft(&fakeTransport.simulator, at.latitude, at.longitude, heading);
    }
    static void Tick() {
        fakeTransport.now += app::kSimLinkPeriod;
        PollSimulator();
    }
    static void TickUntilNextAttempt() {
        const int sends = fakeTransport.sends;
        for (int i = 0; i < 100 && fakeTransport.sends == sends; ++i) Tick();
    }
    static double MetresFrom(model::LatLon position, build::Place place) {
        return model::DistanceBetween(position, build::At(place));
    }
    // The simulator answers, but the list of requests comes back without its types.
    static void SpoilTypes() {
        fakeTransport.answer = [](uint8_t* block) {
            const simlink::Sent sent = ServeBlock(block);
            std::memset(block, 0xEF, 4);
            return sent;
        };
    }
    static void Break() {
        fakeTransport.answer = [](uint8_t*) { return simlink::Sent{ true, 0, 0 }; };
    }
    static void Mend() { fakeTransport.answer = nullptr; }
    static void Press(uint32_t slot) { PressSlot(&fakeTransport.simulator, slot); }
    static void ForgetCounts() {
        ResetFakes();
        fakeSimLinkHost.readOuts = 0;
        fakeShell.stateRefreshes = 0;
    }
};

}  // namespace simlinked
