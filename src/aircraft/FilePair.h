// FilePair.h - changes of files that belong together: all are made, or none.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace aircraft {

struct FileChange {
    std::string path;
    std::vector<uint8_t> before, after;  // `before` is empty when there is no such file yet
    bool keep = false;                   // `before` goes to a backup first, unless there is one already
};

// False, with the path of the file that could not be written in *failed, when a step fails; then the files are as
// before, and there is no new backup. A file that could not be put back either keeps its backup.
bool WriteChanges(const std::vector<FileChange>& changes, std::string* failed);

}  // namespace aircraft
