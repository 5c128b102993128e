// Any bytes as what a simulator makes of the shared block: the link writes nowhere but into its own destinations, and
// the airport survives.
#include <algorithm>
#include <cstddef>
#include <cstring>

#include "app/AppState.h"
#include "app/SimLink.h"
#include "fakes/BuildObjects.h"
#include "fakes/FakeShell.h"
#include "fakes/FakeSimLinkHost.h"
#include "fakes/FakeTransport.h"
#include "link/Ipc.h"
#include "link/Simulator.h"
#include "map/MapView.h"
#include "SavedAirport.h"

namespace {

constexpr int kTicks = 12;

struct Input {
    const uint8_t* data;
    size_t size;

    uint8_t Byte() { return size > 0 ? --size, *data++ : uint8_t{ 0 }; }
    uint16_t Word() {
        const uint8_t low = Byte();
        return static_cast<uint16_t>(low | Byte() << 8);
    }
};

// One step of the server: fails, answers, or answers and then writes some of the input over the block.
simlink::Sent Step(Input* input, uint8_t* block) {
    const uint8_t what = input->Byte();
    if (what % 16 == 0) return { false, 0, what };
    fakeTransport.now += what % 16 == 1 ? 3000u : 0u;
    const simlink::Sent sent = ServeBlock(block);
    for (int patch = 0; patch < what >> 6; ++patch) {
        const size_t place = input->Word() % simlink::kBlockSize;
        const size_t length = std::min({ size_t{ input->Byte() }, input->size, simlink::kBlockSize - place });
        std::memcpy(block + place, input->data, length);
        input->data += length;
        input->size -= length;
    }
    return what % 16 == 2 ? simlink::Sent{ true, input->Byte(), 0 } : sent;
}

// Values of the simulator itself: positions, hot keys, versions.
void ChangeSimulator(Input* input) {
    const uint8_t count = input->Byte() % 8;
    for (int i = 0; i < count; ++i) {
        constexpr uint32_t kPlaces[] = { 0x560,  0x564,  0x568,  0x56C,  0x580,  0x3304,
                                         0x3308, 0x320C, 0x3210, 0x3214, 0x3218, 0 };
        const uint32_t place = kPlaces[input->Byte() % std::size(kPlaces)];
        const uint32_t low = input->Word();
        PutValue(&fakeTransport.simulator, place, low | uint32_t{ input->Word() } << 16, 4);
    }
}

void Begin() {
    app::ReleaseSimulator();
    ResetProgram();
    ResetTransport();
    fakeSimLinkHost = {};
    model::state.airport = build::Airport("KTST");
    model::state.loaded = true;
    map::ResizeView(800, 600);
    map::ResetView(build::kMiddle);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    Begin();
    Input input = { data, size };
    fakeTransport.answer = [&input](uint8_t* block) { return Step(&input, block); };
    for (int i = 0; i < kTicks && input.size > 0; ++i) {
        fakeTransport.now += 5000;
        ChangeSimulator(&input);
        const uint8_t mood = input.Byte();
        map::view.lockedToSim = (mood & 1) != 0;
        model::state.busy = (mood & 2) != 0;
        app::PollSimulator();
        if (mood & 4) app::PlaceAircraft(build::kMiddle, mood);
        Require(fakeTransport.block.empty() || IsGuardWhole(), "nothing is written behind the block");
        Require((simlink::ipc.view != nullptr) == (fakeTransport.openViews == 1), "an open link has one view");
    }
    model::state.busy = false;
    RequireThatTheOpenAirportSurvives();
    app::ReleaseSimulator();
    Require(fakeTransport.openViews + fakeTransport.openBlocks + fakeTransport.openNames == 0, "all is given back");
    return 0;
}
