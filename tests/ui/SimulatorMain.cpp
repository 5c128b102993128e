// SimulatorMain.cpp - simulator.exe WINDOWCLASS: the stand-in described in StandInSimulator.h.
#include <windows.h>

#include <cstdlib>
#include <cstring>

#include "fakes/FakeSimulator.h"
#include "StandInSimulator.h"

namespace {

using ui::Trouble;

constexpr size_t kBlockSize = 32768;
constexpr uint32_t kRead = 1, kWrite = 2;

FakeSimulator simulator = HealthySimulator();
Trouble trouble = Trouble::None;
int measure = 0;
LRESULT count = 0;

struct Flight {
    bool on = false;
    int step = 0;
};
Flight flight;

struct Messages {
    UINT link = RegisterWindowMessageA("FsasmLib:IPC");
    UINT poke = RegisterWindowMessageA(ui::kPokeMessage), peek = RegisterWindowMessageA(ui::kPeekMessage);
    UINT trouble = RegisterWindowMessageA(ui::kTroubleMessage), fly = RegisterWindowMessageA(ui::kFlyMessage);
    UINT count = RegisterWindowMessageA(ui::kCountMessage);
};

uint32_t Word(const uint8_t* at) {
    uint32_t value;
    memcpy(&value, at, sizeof value);
    return value;
}

// A square: a quarter of the steps along each side, heading as it goes.
void FlyOn() {
    constexpr int kSide = ui::kCircuitSteps / 4;
    constexpr int64_t kStepNorth = 20 * ui::kMetreNorth, kStepEast = 13'000'000'000'000;
    const int side = flight.step++ % ui::kCircuitSteps / kSide;
    const int64_t north[] = { 1, 0, -1, 0 }, east[] = { 0, 1, 0, -1 };
    const auto latitude = static_cast<int64_t>(ValueAt(simulator, ui::kLatitude, 8));
    const auto longitude = static_cast<int64_t>(ValueAt(simulator, ui::kLongitude, 8));
    PutAircraft(&simulator, latitude + north[side] * kStepNorth, longitude + east[side] * kStepEast,
                static_cast<uint32_t>(side) << 30);
}

// Spoils one word of every request that came.
void SpoilHeaders(uint8_t* block, size_t word, uint32_t value) {
    for (size_t at = 0; at + 16 <= kBlockSize;) {
        const uint32_t type = Word(block + at), size = Word(block + at + 8);
        if (type != kRead && type != kWrite) return;
        if (word != 12 || type == kRead) memcpy(block + at + word, &value, sizeof value);
        at += (type == kRead ? 16 : 12) + size;
    }
}

void Corrupt(uint8_t* block) {
    switch (trouble) {
    case Trouble::CorruptTypes: SpoilHeaders(block, 0, 0xDEADBEEF); break;
    case Trouble::CorruptSizes: SpoilHeaders(block, 8, 0x7FFFFFF0); break;
    case Trouble::CorruptTokens: SpoilHeaders(block, 12, 0x41414141); break;
    case Trouble::CorruptAll: memset(block, 0xFF, kBlockSize); break;
    default: break;
    }
}

bool IsPoll(const uint8_t* block) { return Word(block) == kRead && Word(block + 4) == 0x20; }

LRESULT AnswerBlock(uint8_t* block) {
    if (flight.on && IsPoll(block)) FlyOn();
    const bool inTheMiddle = trouble == Trouble::DieInTheMiddle || trouble == Trouble::StopInTheMiddle;
    simulator.stopAfter = inTheMiddle ? measure : -1;
    const bool served = Serve(&simulator, block, kBlockSize);
    if (trouble == Trouble::DieInTheMiddle) ExitProcess(5);
    Corrupt(block);
    return served;
}

void WaitBeforeAnswer() {
    if (trouble == Trouble::Late) Sleep(static_cast<DWORD>(measure));
    if (trouble != Trouble::Hang) return;
    const HANDLE resume = OpenEventW(SYNCHRONIZE, FALSE, ui::kResumeEvent);
    WaitForSingleObject(resume, INFINITE);
    CloseHandle(resume);
}

LRESULT AnswerLink(WPARAM atom) {
    ++count;
    if (trouble == Trouble::AnswerZero) return 0;
    WaitBeforeAnswer();
    char name[256];
    if (!GlobalGetAtomNameA(static_cast<ATOM>(atom), name, sizeof name)) return 0;
    const HANDLE mapping = OpenFileMappingA(FILE_MAP_WRITE, FALSE, name);
    if (!mapping) return 0;
    LRESULT answer = 0;
    if (auto* block = static_cast<uint8_t*>(MapViewOfFile(mapping, FILE_MAP_WRITE, 0, 0, 0))) {
        answer = AnswerBlock(block);
        UnmapViewOfFile(block);
    }
    CloseHandle(mapping);
    return answer;
}

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    static const Messages messages;
    const auto offset = static_cast<uint32_t>(wParam & 0xFFFF);
    const size_t size = wParam >> 16 & 0xFF;
    if (message == messages.link) return AnswerLink(wParam);
    if (message == messages.poke) PutValue(&simulator, offset, static_cast<uint64_t>(lParam), size);
    if (message == messages.peek) return static_cast<LRESULT>(ValueAt(simulator, offset, size));
    if (message == messages.fly) flight.on = wParam != 0;
    if (message == messages.count) return count;
    if (message == messages.trouble) {
        trouble = static_cast<Trouble>(wParam);
        measure = static_cast<int>(lParam);
    }
    if (message == WM_DESTROY) PostQuitMessage(0);
    return DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, wchar_t* arguments, int) {
    WNDCLASSW shape{};
    shape.lpfnWndProc = Procedure;
    shape.lpszClassName = arguments;
    shape.hInstance = instance;
    if (!arguments[0] || !RegisterClassW(&shape)) return 2;
    // Never shown: it must not cover the program.
    if (!CreateWindowExW(0, arguments, L"Stand-in simulator", WS_OVERLAPPEDWINDOW, 0, 0, 100, 100, nullptr, nullptr,
                         instance, nullptr))
        return 3;
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
    return 0;
}
