// AutoBackup.cpp - see AutoBackup.h.
#include "app/AutoBackup.h"

#include <vector>

#include "app/Airport.h"
#include "app/AppHost.h"
#include "app/AppState.h"
#include "app/Notices.h"
#include "bgl/AirportWriter.h"
#include "bgl/SceneryStructure.h"
#include "model/ObjectList.h"
#include "platform/Files.h"
#include "platform/Platform.h"
#include "platform/Text.h"

namespace app {

namespace {

constexpr const char* kStem = "AutoBackupTemp";

std::string PathOf(const std::string& programFolder, int instance, const char* extension) {
    return programFolder + "\\" + kStem + (instance > 1 ? std::to_string(instance) : "") + extension;
}

std::string LockPath(const std::string& programFolder, int instance) {
    return PathOf(programFolder, instance, ".lock");
}

uint64_t WriteTimeOf(const std::string& path) {
    const std::string_view name = FileNameOf(path);
    for (const platform::FileEntry& file : platform::ListFiles(std::string(FolderOf(path)), std::string(name))) {
        if (platform::EqualNoCase(file.name, name)) return file.writeTime;
    }
    return 0;
}

enum class Slot { Free, Left, Foreign };

// What lies where an instance would write its backup. A damaged one is as good as none. One that cannot be read just
// now may be sound, and a file of several airports is none of ours: both stay as they are.
Slot SlotAt(const std::string& path) {
    if (!platform::FileExists(path)) return Slot::Free;
    if (!platform::OpenForReading(path)) return Slot::Foreign;
    const size_t airports = bgl::AirportsInFile(path).size();
    return airports == 0 ? Slot::Free : airports == 1 ? Slot::Left : Slot::Foreign;
}

// Takes the first slot of that kind that no other instance has; false when there is none.
bool ClaimSlot(Slot wanted) {
    for (int instance = 1; instance <= kMostBackups; ++instance) {
        const std::string path = AutoBackupPath(state.programFolder, instance);
        if (SlotAt(path) != wanted) continue;
        platform::FileHandle lock = platform::HoldFile(LockPath(state.programFolder, instance));
        if (!lock || SlotAt(path) != wanted) continue;  // who had the lock may have left something
        state.autoBackup = path;
        state.autoBackupLock = std::move(lock);
        return true;
    }
    return false;
}

std::string WhyThereIsNone() {
    for (int instance = 1; instance <= kMostBackups; ++instance) {
        const bool isTaken = SlotAt(AutoBackupPath(state.programFolder, instance)) != Slot::Free ||
                             platform::FileExists(LockPath(state.programFolder, instance));
        if (!isTaken) return "the program folder cannot be written to";
    }
    return "all " + std::to_string(kMostBackups) + " backups in the program folder are in use";
}

// Empty when the backup is written, else why not.
std::string WriteBackup() {
    if (state.autoBackup.empty()) return WhyThereIsNone();
    std::vector<uint8_t> bytes;
    std::string refusal;
    if (!bgl::BuildAirportFile(platform::SystemFileTime(), &bytes, &refusal))
        return refusal.empty() ? "there is no airport" : refusal;
    if (!platform::WriteFileWhole(state.autoBackup, bytes)) return "cannot write " + state.autoBackup;
    return {};
}

// One line of a message of several, without its "ERROR: ".
std::string OnOneLine(std::string text) {
    constexpr std::string_view kPrefix = "ERROR: ";
    if (text.starts_with(kPrefix)) text.erase(0, kPrefix.size());
    for (char& c : text) {
        if (c == '\n') c = ' ';
    }
    return text;
}

}  // namespace

std::string AutoBackupPath(const std::string& programFolder, int instance) {
    return PathOf(programFolder, instance, ".bgl");
}

bool IsAutoBackupName(std::string_view path) {
    for (int instance = 1; instance <= kMostBackups; ++instance) {
        if (platform::EqualNoCase(FileNameOf(path), FileNameOf(AutoBackupPath("", instance)))) return true;
    }
    return false;
}

bool FindAutoBackup(const std::string& path, bgl::AirportPlace* place, uint64_t* writeTime) {
    if (SlotAt(path) != Slot::Left || !bgl::FindAirportInFile(path, "", place)) return false;
    *writeTime = WriteTimeOf(path);
    return true;
}

bool IsAirportAtRest() { return !model::state.busy && !model::state.provisional && model::state.moved.empty(); }

bool ClaimAutoBackup() {
    if (ClaimSlot(Slot::Left) || ClaimSlot(Slot::Free)) return true;
    SetNotice(Notice::Backup, "No autobackup: " + WhyThereIsNone());
    return false;
}

bool RecoverAirport() {
    bgl::AirportPlace place;
    uint64_t time = 0;
    if (state.autoBackup.empty() || !FindAutoBackup(state.autoBackup, &place, &time)) return false;
    if (!OpenAirportAt(place)) {
        state.autoBackup.clear();  // what could not be opened stays as it is
        state.autoBackupLock.reset();
        if (!ClaimSlot(Slot::Free)) SetNotice(Notice::Backup, "No autobackup: " + WhyThereIsNone());
        return false;
    }
    SetNotice(Notice::Recovered, "Recovered " + model::state.icao + " from the autobackup of " + LocalTimeText(time));
    return true;
}

void WriteAutoBackup() {
    state.backupIsDue = true;
    WriteDueAutoBackup();
}

void WriteDueAutoBackup() {
    if (!state.backupIsDue || !IsAirportAtRest()) return;
    state.backupIsDue = false;
    if (!model::state.loaded || !model::state.modified) return;
    ShowWaitCursor(true);
    const std::string failure = WriteBackup();
    ShowWaitCursor(false);
    SetNotice(Notice::Backup, failure.empty() ? "" : "Autobackup failed: " + OnOneLine(failure));
}

void OnAirportSaved() {
    if (state.autoBackup.empty()) return;
    platform::DeleteOneFile(state.autoBackup);
    state.recovered = false;
    SetNotice(Notice::Backup, "");
    SetNotice(Notice::Recovered, "");
}

void OnAirportDropped() {
    if (state.recovered) OnAirportSaved();
}

void OnAirportOpened() {
    if (!platform::EqualNoCase(state.sourceFile, state.autoBackup)) return OnAirportDropped();
    model::state.modified = true;
    state.recovered = true;
}

void RemoveAutoBackup() {
    if (!state.autoBackup.empty()) platform::DeleteOneFile(state.autoBackup);
    state.autoBackup.clear();
    state.autoBackupLock.reset();
    state.recovered = false;
}

}  // namespace app
