// TransportWin.cpp - the link's way to the simulator's window.
#include <windows.h>

#include "link/Transport.h"

namespace simlink {

namespace {

HWND WindowOf(Handle handle) { return reinterpret_cast<HWND>(handle); }

}  // namespace

Handle FindTopWindow(const char* windowClass) { return reinterpret_cast<Handle>(FindWindowA(windowClass, nullptr)); }

bool IsNotResponding(Handle window) { return IsHungAppWindow(WindowOf(window)) != FALSE; }

uint32_t RegisterMessage(const char* name) { return RegisterWindowMessageA(name); }

uint16_t AddGlobalName(const char* name) { return GlobalAddAtomA(name); }

void RemoveGlobalName(uint16_t number) { GlobalDeleteAtom(number); }

Handle CreateSharedBlock(const char* name, uint32_t size) {
    SetLastError(ERROR_SUCCESS);
    const HANDLE block = CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, size, name);
    if (block && GetLastError() == ERROR_ALREADY_EXISTS) {
        CloseHandle(block);
        return 0;
    }
    return reinterpret_cast<Handle>(block);
}

void CloseSharedBlock(Handle block) { CloseHandle(reinterpret_cast<HANDLE>(block)); }

uint8_t* ViewSharedBlock(Handle block, uint32_t size) {
    return static_cast<uint8_t*>(MapViewOfFile(reinterpret_cast<HANDLE>(block), FILE_MAP_WRITE, 0, 0, size));
}

void CloseView(uint8_t* view) { UnmapViewOfFile(view); }

// The error is cleared first: some failures set none.
Sent SendBlocking(Handle window, uint32_t message, uint16_t number, uint32_t timeoutMs) {
    Sent sent;
    DWORD_PTR answer = 0;
    SetLastError(ERROR_SUCCESS);
    if (SendMessageTimeoutA(WindowOf(window), message, number, 0, SMTO_BLOCK, timeoutMs, &answer)) {
        sent.answered = true;
        sent.answer = answer;
    } else {
        sent.systemError = GetLastError();
    }
    return sent;
}

void Pause(uint32_t milliseconds) { Sleep(milliseconds); }

uint32_t ProcessNumber() { return GetCurrentProcessId(); }

uint64_t Milliseconds() { return GetTickCount64(); }

}  // namespace simlink
