// Ipc.h - the requests to the simulator: queued in a shared block, sent in one message, answered in place.
//
// The namespace is not called link because that is the name of a system function.
//
// The block belongs to the server as much as to us and may come back with anything in it. So where each request lies
// and where its answer goes is kept here; of the block itself only the answers are taken, and each of them only when
// type, size and token in its header are still those that were queued.
#pragma once

#include <cstdint>
#include <vector>

#include "link/Transport.h"

namespace simlink {

constexpr uint32_t kBlockSize = 32768;
constexpr uint32_t kQueueLimit = 32512;  // bytes of requests; leaves room for the zero that ends the list

enum class IpcError : int {
    Okay = 0,
    AlreadyOpen,
    NoServer,
    NoMessage,
    NoAtom,
    NoMapping,
    NoView,
    WrongServer,
    WrongSimulator,
    NotOpen,
    NothingQueued,
    TimedOut,
    SendFailed,
    BadData,
    NotOnServer,
    QueueFull,
};
constexpr int kIpcErrors = 16;

const char* ErrorText(IpcError error);

enum class RequestType : uint32_t { End = 0, Read = 1, Write = 2 };

struct Request {
    RequestType type = RequestType::End;
    uint32_t place = 0;  // of its header, from the start of the block
    uint32_t size = 0;   // of its data
    uint32_t token = 0;  // what the block has in place of the address of `destination`; 0 for a write
    void* destination = nullptr;
};

struct IpcState {
    Handle window = 0;
    bool foundAsSimulator = false;  // under the class of the simulator itself, not of the interface
    uint32_t message = 0;
    uint16_t atom = 0;
    Handle mapping = 0;
    uint8_t* view = nullptr;  // start of the block; null while the link is closed
    uint32_t queued = 0;      // bytes of requests in it
    std::vector<Request> requests;
    uint32_t opens = 0;  // how often an open came as far as naming a block
    uint32_t interfaceVersion = 0;
    uint32_t simulatorVersion = 0;  // low 16 bits, once judged
};

extern IpcState ipc;

// The server's window, 0 when there is none; under the class of the interface, else under that of the simulator itself.
Handle FindServerWindow(bool* asSimulator);

// Version 0 accepts any simulator.
bool IpcOpen(uint32_t simulatorVersion, IpcError* error);
void IpcClose();  // also when partly open or not at all

// These only queue. The destination receives `size` bytes at the next IpcProcess and must live until then; null drops
// the answer.
bool IpcRead(uint32_t offset, uint32_t size, void* destination, IpcError* error);
bool IpcWrite(uint32_t offset, uint32_t size, const void* source, IpcError* error);

// Sends what is queued and takes the answers; blocks up to 9 tries of 2 s.
bool IpcProcess(IpcError* error);

}  // namespace simlink
