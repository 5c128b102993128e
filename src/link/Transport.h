// Transport.h - what the link asks of the system: windows, a global name, a shared block of memory, a blocking send.
//
// TransportWin.cpp serves the program, tests/fakes/FakeTransport.cpp the tests. Handles are opaque; 0 stands for none.
#pragma once

#include <cstdint>

namespace simlink {

using Handle = uintptr_t;

// A top-level window of the class, whoever owns it.
Handle FindTopWindow(const char* windowClass);

// Whether the system has found that the window's program takes no messages any more.
bool IsNotResponding(Handle window);

uint32_t RegisterMessage(const char* name);

// A name that other programs can read by its number.
uint16_t AddGlobalName(const char* name);
void RemoveGlobalName(uint16_t number);

// A named block of memory that other programs can open; 0 also when the name is taken.
Handle CreateSharedBlock(const char* name, uint32_t size);
void CloseSharedBlock(Handle block);
uint8_t* ViewSharedBlock(Handle block, uint32_t size);
void CloseView(uint8_t* view);

struct Sent {
    bool answered = false;
    uint64_t answer = 0;       // of an answered message
    uint32_t systemError = 0;  // of one that was not; 0 when the system gives no reason
};
Sent SendBlocking(Handle window, uint32_t message, uint16_t number, uint32_t timeoutMs);

void Pause(uint32_t milliseconds);
uint32_t ProcessNumber();
uint64_t Milliseconds();  // a clock that never goes back

}  // namespace simlink
