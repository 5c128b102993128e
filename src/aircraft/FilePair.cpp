// FilePair.cpp - see FilePair.h.
#include "aircraft/FilePair.h"

#include <cstddef>

#include "aircraft/AircraftEdits.h"
#include "platform/Files.h"

namespace aircraft {

namespace {

struct Done {
    bool newBackup = false, written = false;
};

bool Write(const FileChange& change, Done* done, std::string* failed) {
    const std::string backup = change.path + kBackupEnd;
    *failed = backup;
    if (change.keep && !platform::FileExists(backup)) {
        if (!platform::WriteFileWhole(backup, change.before)) return false;
        done->newBackup = true;
    }
    *failed = change.path;
    done->written = platform::WriteFileWhole(change.path, change.after);
    return done->written;
}

bool PutBack(const FileChange& change) {
    if (change.before.empty()) return platform::DeleteOneFile(change.path);
    return platform::WriteFileWhole(change.path, change.before);
}

void TakeBack(const FileChange& change, const Done& done) {
    if (done.written && !PutBack(change)) return;
    if (done.newBackup) platform::DeleteOneFile(change.path + kBackupEnd);
}

}  // namespace

bool WriteChanges(const std::vector<FileChange>& changes, std::string* failed) {
    std::vector<Done> done(changes.size());
    for (size_t i = 0; i < changes.size(); ++i) {
        if (Write(changes[i], &done[i], failed)) continue;
        for (size_t back = i + 1; back-- > 0;) TakeBack(changes[back], done[back]);
        return false;
    }
    return true;
}

}  // namespace aircraft
