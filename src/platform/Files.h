// Files.h - file access. Paths are UTF-8 and may hold any character; "\" and "/" both separate.
//
// FilesWin.cpp serves Windows builds (long paths included), FilesPosix.cpp the native ones; Files.cpp holds what both do
// alike.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace platform {

constexpr bool IsSeparator(char c) { return c == '\\' || c == '/'; }

struct OpenFile;  // a file opened for reading; defined by the system's own source file

struct FileCloser {
    void operator()(OpenFile* file) const;
};
using FileHandle = std::unique_ptr<OpenFile, FileCloser>;

// Opens for reading, letting others read, write and rename meanwhile. Empty when that fails.
FileHandle OpenForReading(const std::string& path);

// The size of the file in bytes at this moment. False when it cannot be told: that must not look like an empty file.
bool TakeFileSize(OpenFile* file, uint64_t* size);

// The same; 0 when it cannot be told.
uint64_t FileSize(OpenFile* file);

// Reads up to `size` bytes at `offset` and returns how many were read: fewer at the end of the file
// or after an error, never more.
size_t ReadAt(OpenFile* file, uint64_t offset, void* buffer, size_t size);

// Reads the whole file, refusing one of more than `limit` bytes. False leaves *bytes empty.
bool ReadWholeFile(const std::string& path, uint64_t limit, std::vector<uint8_t>* bytes);

// Writes the bytes to a sibling of the target, flushes them to the disk and renames the sibling over
// the target. A symbolic link stays and the file that it leads to is the target. False, with the old file
// untouched and no sibling left behind, when any step fails.
bool WriteFileWhole(const std::string& path, std::span<const uint8_t> bytes);

// Whether a file that stands only while something is written was left by a process that was killed meanwhile: nothing
// has written to it for more than a minute. Both times are FILETIMEs.
bool IsLeftOver(uint64_t writeTime, uint64_t now);

// Tells this process from all others that run now, for the name of a file that must be its own.
uint32_t ProcessNumber();

// Makes the file, if there is none, and holds it: nobody else gets it from here until the handle is closed or this
// process has ended, however it ends. Empty when somebody has it, or it cannot be made. On Windows it goes with the
// handle.
FileHandle HoldFile(const std::string& path);

struct FileEntry {
    std::string name;        // last path component, UTF-8
    uint64_t writeTime = 0;  // last write, as a FILETIME
    uint64_t size = 0;       // bytes
};

// Lists the files (not folders) of a folder whose name ends in `extension` (for example ".bgl"),
// compared without regard to case, sorted by name without regard to case. A folder that does not
// exist or may not be read yields an empty list.
std::vector<FileEntry> ListFiles(const std::string& folder, const std::string& extension);

// Lists the names of the folders of a folder in the same way.
std::vector<std::string> ListFolders(const std::string& folder);

// The path of the folder's entry of that name as the disk spells it, where the system tells upper from lower case.
// Where it does not, and where there is no such entry, the name as it stands; the disk is then not asked, or in vain.
std::string SpelledPath(const std::string& folder, const std::string& name);

bool FileExists(const std::string& path);  // a file, not a folder
bool FolderExists(const std::string& path);
bool DeleteOneFile(const std::string& path);  // true when the file is gone afterwards
bool MakeFolders(const std::string& path);    // makes the folder and those above it

}  // namespace platform
