// FakeTransport.cpp - see FakeTransport.h.
#include "FakeTransport.h"

#include <algorithm>

#include "link/HotKeys.h"
#include "link/Ipc.h"
#include "link/Simulator.h"

FakeTransport fakeTransport;

namespace {

constexpr size_t kGuard = 64;
constexpr uint32_t kSystemTimeout = 1460;

}  // namespace

void ResetTransport() {
    simlink::IpcClose();
    fakeTransport = {};
    fakeTransport.windows["UIPCMAIN"] = kFakeWindow;
    simlink::ipc = {};
    simlink::hotKeys = {};
    simlink::simulator = {};
}

bool IsGuardWhole() {
    const std::vector<uint8_t>& block = fakeTransport.block;
    return block.size() >= kGuard &&
           std::all_of(block.end() - kGuard, block.end(), [](uint8_t byte) { return byte == kGuardByte; });
}

simlink::Sent TimesOut() {
    fakeTransport.now += fakeTransport.lastTimeout;
    return { false, 0, kSystemTimeout };
}

simlink::Sent ServeBlock(uint8_t* block) {
    return { true, Serve(&fakeTransport.simulator, block, simlink::kBlockSize) ? 1u : 0u, 0 };
}

namespace simlink {

Handle FindTopWindow(const char* windowClass) {
    ++fakeTransport.windowSearches;
    const auto found = fakeTransport.windows.find(windowClass);
    return found == fakeTransport.windows.end() ? 0 : found->second;
}

bool IsNotResponding(Handle) { return fakeTransport.notResponding; }

uint32_t RegisterMessage(const char* name) {
    fakeTransport.messages.emplace_back(name);
    return fakeTransport.noMessage ? 0 : kFakeMessage;
}

uint16_t AddGlobalName(const char* name) {
    if (fakeTransport.noName) return 0;
    fakeTransport.names.emplace_back(name);
    ++fakeTransport.openNames;
    return kFakeName;
}

void RemoveGlobalName(uint16_t) { --fakeTransport.openNames; }

Handle CreateSharedBlock(const char*, uint32_t) {
    if (fakeTransport.noBlock) return 0;
    ++fakeTransport.openBlocks;
    return 5;
}

void CloseSharedBlock(Handle) { --fakeTransport.openBlocks; }

uint8_t* ViewSharedBlock(Handle, uint32_t size) {
    if (fakeTransport.noView) return nullptr;
    ++fakeTransport.openViews;
    fakeTransport.block.assign(size + kGuard, kGuardByte);
    return fakeTransport.block.data();
}

void CloseView(uint8_t*) { --fakeTransport.openViews; }

Sent SendBlocking(Handle window, uint32_t message, uint16_t number, uint32_t timeoutMs) {
    ++fakeTransport.sends;
    fakeTransport.lastWindow = window;
    fakeTransport.lastMessage = message;
    fakeTransport.lastNumber = number;
    fakeTransport.lastTimeout = timeoutMs;
    return fakeTransport.answer ? fakeTransport.answer(fakeTransport.block.data())
                                : ServeBlock(fakeTransport.block.data());
}

void Pause(uint32_t milliseconds) {
    fakeTransport.pauses.push_back(milliseconds);
    fakeTransport.now += milliseconds;
}

uint32_t ProcessNumber() { return 0xABC; }

uint64_t Milliseconds() { return fakeTransport.now; }

}  // namespace simlink
