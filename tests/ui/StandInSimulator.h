// StandInSimulator.h - the simulator that the program is tested against: simulator.exe, beside the tests' own program.
//
// It has the window, the values and the hot-key table of a real one, flies a circuit when told to, and misbehaves when
// told to. It ends with the object that started it.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

#include "UiDriver.h"

namespace ui {

// Registered messages that the tests give it.
constexpr char kPokeMessage[] = "TarvoTest:Poke";        // wParam offset | size << 16, lParam value
constexpr char kPeekMessage[] = "TarvoTest:Peek";        // wParam as above -> value
constexpr char kTroubleMessage[] = "TarvoTest:Trouble";  // wParam Trouble, lParam its measure
constexpr char kFlyMessage[] = "TarvoTest:Fly";          // wParam 1 from here on, 0 stand still
constexpr char kCountMessage[] = "TarvoTest:Count";      // -> requests of the link so far
constexpr wchar_t kResumeEvent[] = L"TarvoTestResume";   // set: a hanging simulator goes on

enum class Trouble : WPARAM {
    None,
    AnswerZero,
    Hang,            // until the event is set
    Late,            // answers after so many milliseconds
    DieInTheMiddle,  // ends after so many of the requests
    StopInTheMiddle,
    CorruptTypes,
    CorruptSizes,
    CorruptTokens,
    CorruptAll,
};

constexpr int kCircuitSteps = 100;                   // polls once around
constexpr int64_t kMetreNorth = int64_t{ 1 } << 32;  // of latitude, in the simulator's unit
constexpr uint32_t kLatitude = 0x560, kLongitude = 0x568, kHeading = 0x580;

class StandInSimulator {
public:
    explicit StandInSimulator(const std::wstring& windowClass = L"UIPCMAIN") {
        wchar_t path[MAX_PATH] = L"";
        GetModuleFileNameW(nullptr, path, MAX_PATH);
        const std::wstring folder = std::wstring(path).substr(0, std::wstring(path).find_last_of(L'\\'));
        resume = CreateEventW(nullptr, TRUE, FALSE, kResumeEvent);
        if (StartProgram(L"\"" + folder + L"\\simulator.exe\" " + windowClass, folder, &program))
            WaitUntil(
                [&] { return (window = FindWindowExW(nullptr, nullptr, windowClass.c_str(), nullptr)) != nullptr; });
    }
    ~StandInSimulator() {
        EndProgram(&program);
        if (window) WaitUntil([&] { return !IsWindow(window); });
        CloseHandle(resume);
    }
    StandInSimulator(const StandInSimulator&) = delete;
    StandInSimulator& operator=(const StandInSimulator&) = delete;

    bool IsUp() const { return window != nullptr; }
    bool HasEnded() const {
        DWORD code = 0;
        return WaitForExit(program, &code, 0);
    }

    void Poke(uint32_t offset, uint32_t size, int64_t value) const {
        Tell(kPokeMessage, offset | size << 16, static_cast<LPARAM>(value));
    }
    int64_t Peek(uint32_t offset, uint32_t size) const { return Tell(kPeekMessage, offset | size << 16, 0); }
    int64_t Count() const { return Tell(kCountMessage, 0, 0); }
    void Fly(bool on) const { Tell(kFlyMessage, on, 0); }
    void Be(Trouble trouble, int64_t measure = 0) const {
        if (trouble == Trouble::Hang) ResetEvent(resume);  // it may still be waiting to go on
        Tell(kTroubleMessage, static_cast<WPARAM>(trouble), static_cast<LPARAM>(measure));
    }
    void Resume() const { SetEvent(resume); }

    uint32_t Slot(uint32_t slot) const { return static_cast<uint32_t>(Peek(0x3210 + 4 * (slot - 1), 4)); }
    void PressKey(uint32_t slot) const { Poke(0x3210 + 4 * (slot - 1) + 3, 1, 1); }

    // The link has come round so many times more.
    bool WaitForPolls(int64_t more) const {
        const int64_t before = Count();
        return WaitUntil([&] { return Count() >= before + more; });
    }

private:
    int64_t Tell(const char* message, WPARAM wParam, LPARAM lParam) const {
        DWORD_PTR answer = 0;
        SendMessageTimeoutW(window, RegisterWindowMessageA(message), wParam, lParam, SMTO_NORMAL, kPatience, &answer);
        return static_cast<int64_t>(answer);
    }

    Program program;
    HWND window = nullptr;
    HANDLE resume = nullptr;
};

}  // namespace ui
