// Ipc.cpp - see Ipc.h.
#include "link/Ipc.h"

#include <cstdio>
#include <cstring>

#include "link/Offsets.h"

namespace simlink {

IpcState ipc;

namespace {

constexpr char kMessageName[] = "FsasmLib:IPC";
constexpr char kInterfaceClass[] = "UIPCMAIN", kSimulatorClass[] = "FS98MAIN";

constexpr uint32_t kReadHeader = 16, kWriteHeader = 12;    // bytes before the data
constexpr uint32_t kReadReserve = 20, kWriteReserve = 16;  // what the limit counts; unequal, as clients have it

constexpr int kSends = 9;
constexpr uint32_t kSendTimeoutMs = 2000, kSendPauseMs = 100;
constexpr int kVersionTries = 5;
constexpr uint32_t kVersionPauseMs = 100;

constexpr uint16_t kClientVersion = 1004;
constexpr uint32_t kOldestInterface = 0x19980005;
constexpr uint32_t kSimulatorMark = 0xFADE;  // upper half of the simulator version

bool Fail(IpcError code, IpcError* error) {
    *error = code;
    return false;
}

void Put32(uint32_t place, uint32_t value) {
    for (int i = 0; i < 4; ++i) ipc.view[place + static_cast<uint32_t>(i)] = static_cast<uint8_t>(value >> (8 * i));
}

uint32_t Get32(uint32_t place) {
    uint32_t value = 0;
    for (int i = 0; i < 4; ++i) value |= uint32_t{ ipc.view[place + static_cast<uint32_t>(i)] } << (8 * i);
    return value;
}

bool Fits(uint32_t size, uint32_t reserve) { return uint64_t{ ipc.queued } + size + reserve <= kQueueLimit; }

void PutHeader(const Request& request, uint32_t offset) {
    Put32(request.place, static_cast<uint32_t>(request.type));
    Put32(request.place + 4, offset);
    Put32(request.place + 8, request.size);
}

IpcError OpenBlock() {
    char name[40];
    ++ipc.opens;
    std::snprintf(name, sizeof name, "%s:%X:%X", kMessageName, static_cast<unsigned>(ProcessNumber()),
                  static_cast<unsigned>(ipc.opens));
    ipc.atom = AddGlobalName(name);
    if (!ipc.atom) return IpcError::NoAtom;
    ipc.mapping = CreateSharedBlock(name, kBlockSize);
    if (!ipc.mapping) return IpcError::NoMapping;
    ipc.view = ViewSharedBlock(ipc.mapping, kBlockSize);
    return ipc.view ? IpcError::Okay : IpcError::NoView;
}

bool QueueVersions(bool withOurs, IpcError* error) {
    return IpcRead(kInterfaceVersionOffset, sizeof ipc.interfaceVersion, &ipc.interfaceVersion, error) &&
           IpcRead(kSimulatorVersionOffset, sizeof ipc.simulatorVersion, &ipc.simulatorVersion, error) &&
           (!withOurs || IpcWrite(kClientVersionOffset, sizeof kClientVersion, &kClientVersion, error));
}

// An interface that has just started may not know its versions yet.
IpcError AskVersions() {
    ipc.interfaceVersion = ipc.simulatorVersion = 0;
    for (int i = 0; i < kVersionTries; ++i) {
        if (i > 0) Pause(kVersionPauseMs);
        IpcError error = IpcError::Okay;
        if (!QueueVersions(i == 0, &error) || !IpcProcess(&error)) return error;
        if (ipc.interfaceVersion != 0 && ipc.simulatorVersion != 0) break;
    }
    return IpcError::Okay;
}

IpcError JudgeVersions(uint32_t wanted) {
    if (ipc.interfaceVersion < kOldestInterface || ipc.simulatorVersion >> 16 != kSimulatorMark)
        return ipc.foundAsSimulator ? IpcError::NotOnServer : IpcError::WrongServer;
    ipc.simulatorVersion &= 0xFFFF;
    return wanted == 0 || wanted == ipc.simulatorVersion ? IpcError::Okay : IpcError::WrongSimulator;
}

IpcError OpenLink(uint32_t wanted) {
    ipc.window = FindServerWindow(&ipc.foundAsSimulator);
    if (!ipc.window) return IpcError::NoServer;
    ipc.message = RegisterMessage(kMessageName);
    if (!ipc.message) return IpcError::NoMessage;
    IpcError error = OpenBlock();
    if (error == IpcError::Okay) error = AskVersions();
    return error == IpcError::Okay ? JudgeVersions(wanted) : error;
}

IpcError SendQueue() {
    Sent sent;
    for (int i = 0; i < kSends; ++i) {
        if (i > 0) Pause(kSendPauseMs);
        sent = SendBlocking(ipc.window, ipc.message, ipc.atom, kSendTimeoutMs);
        if (sent.answered) return sent.answer == 1 ? IpcError::Okay : IpcError::BadData;
    }
    return sent.systemError != 0 ? IpcError::SendFailed : IpcError::TimedOut;
}

bool IsAsQueued(const Request& request) {
    if (Get32(request.place + 8) != request.size) return false;
    return request.type == RequestType::Write || Get32(request.place + 12) == request.token;
}

// A list that ends early leaves the destinations behind its end as they were.
IpcError TakeAnswers() {
    for (const Request& request : ipc.requests) {
        const uint32_t type = Get32(request.place);
        if (type != uint32_t(RequestType::Read) && type != uint32_t(RequestType::Write)) break;
        if (type != uint32_t(request.type) || !IsAsQueued(request)) return IpcError::BadData;
        if (request.destination && request.size > 0)
            std::memcpy(request.destination, ipc.view + request.place + kReadHeader, request.size);
    }
    return IpcError::Okay;
}

}  // namespace

const char* ErrorText(IpcError error) {
    static constexpr const char* kTexts[kIpcErrors] = {
        "Okay",
        "Attempt to Open when already Open",
        "Cannot link to FSUIPC or WideClient",
        "Failed to Register common message with Windows",
        "Failed to create Atom for mapping filename",
        "Failed to create a file mapping object",
        "Failed to open a view to the file map",
        "Incorrect version of FSUIPC, or not FSUIPC",
        "Sim is not version requested",
        "Call cannot execute, link not Open",
        "Call cannot execute: no requests accumulated",
        "IPC timed out all retries",
        "IPC sendmessage failed all retries",
        "IPC request contains bad data",
        "Maybe running on WideClient, but FS not running on Server, or wrong FSUIPC",
        "Read or Write request cannot be added, memory for Process is full",
    };
    return kTexts[static_cast<int>(error)];
}

Handle FindServerWindow(bool* asSimulator) {
    const Handle window = FindTopWindow(kInterfaceClass);
    *asSimulator = !window;
    return window ? window : FindTopWindow(kSimulatorClass);
}

bool IpcOpen(uint32_t simulatorVersion, IpcError* error) {
    if (ipc.view) return Fail(IpcError::AlreadyOpen, error);
    *error = OpenLink(simulatorVersion);
    if (*error != IpcError::Okay) IpcClose();
    return *error == IpcError::Okay;
}

void IpcClose() {
    if (ipc.atom) RemoveGlobalName(ipc.atom);
    if (ipc.view) CloseView(ipc.view);
    if (ipc.mapping) CloseSharedBlock(ipc.mapping);
    ipc.atom = 0;
    ipc.view = nullptr;
    ipc.mapping = 0;
    ipc.window = 0;
    ipc.message = 0;
    ipc.queued = 0;
    ipc.requests.clear();
}

bool IpcRead(uint32_t offset, uint32_t size, void* destination, IpcError* error) {
    if (!ipc.view) return Fail(IpcError::NotOpen, error);
    if (!Fits(size, kReadReserve)) return Fail(IpcError::QueueFull, error);
    // An address of 64 bits has no room in the header; a token tells as well that the answer is to this request.
    const uint32_t token = destination ? static_cast<uint32_t>(ipc.requests.size()) + 1 : 0;
    const Request request = { RequestType::Read, ipc.queued, size, token, destination };
    PutHeader(request, offset);
    Put32(request.place + 12, token);
    std::memset(ipc.view + request.place + kReadHeader, 0, size);
    ipc.requests.push_back(request);
    ipc.queued += kReadHeader + size;
    *error = IpcError::Okay;
    return true;
}

bool IpcWrite(uint32_t offset, uint32_t size, const void* source, IpcError* error) {
    if (!ipc.view) return Fail(IpcError::NotOpen, error);
    if (!Fits(size, kWriteReserve)) return Fail(IpcError::QueueFull, error);
    const Request request = { RequestType::Write, ipc.queued, size, 0, nullptr };
    PutHeader(request, offset);
    if (size > 0) std::memcpy(ipc.view + request.place + kWriteHeader, source, size);
    ipc.requests.push_back(request);
    ipc.queued += kWriteHeader + size;
    *error = IpcError::Okay;
    return true;
}

bool IpcProcess(IpcError* error) {
    if (!ipc.view) return Fail(IpcError::NotOpen, error);
    if (ipc.requests.empty()) return Fail(IpcError::NothingQueued, error);
    Put32(ipc.queued, uint32_t(RequestType::End));
    *error = SendQueue();
    if (*error == IpcError::Okay) *error = TakeAnswers();
    if (*error != IpcError::Okay) return false;
    ipc.queued = 0;
    ipc.requests.clear();
    return true;
}

}  // namespace simlink
