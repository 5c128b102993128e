// FilesPosix.cpp - files of the native builds. A "\" in a path separates like "/", so that paths taken
// from scenery libraries work; names are matched as the system matches them.
#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdio>

#include "platform/Files.h"
#include "platform/FileTimePosix.h"
#include "platform/Text.h"

namespace platform {

struct OpenFile {
    int descriptor;
};

namespace {

std::string NativePath(std::string path) {
    std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

uint64_t FileTimeOf(const timespec& time) {
    return kUnixEpochAsFileTime + static_cast<uint64_t>(time.tv_sec) * 10000000 +
           static_cast<uint64_t>(time.tv_nsec) / 100;
}

bool WriteAll(int descriptor, std::span<const uint8_t> bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return false;
        bytes = bytes.subspan(static_cast<size_t>(written));
    }
    return true;
}

void SortNames(std::vector<std::string>* names) {
    std::sort(names->begin(), names->end(),
              [](const std::string& a, const std::string& b) { return UpperCased(a) < UpperCased(b); });
}

// The file that a symbolic link leads to in the end, whether it exists or not; "" when the links go round in circles.
std::string BehindLinks(std::string path) {
    constexpr int kMostLinks = 40;  // as many as the system itself follows
    for (int i = 0; i <= kMostLinks; ++i) {
        char target[PATH_MAX];
        const ssize_t size = ::readlink(path.c_str(), target, sizeof target);
        if (size < 0) return path;
        const std::string next(target, static_cast<size_t>(size));
        path = next.starts_with('/') ? next : path.substr(0, path.rfind('/') + 1) + next;
    }
    return "";
}

void FlushFolderOf(const std::string& path) {
    const size_t slash = path.rfind('/');
    const std::string folder = slash == std::string::npos ? "." : path.substr(0, slash + 1);
    const int descriptor = ::open(folder.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) return;
    ::fsync(descriptor);
    ::close(descriptor);
}

}  // namespace

void FileCloser::operator()(OpenFile* file) const {
    ::close(file->descriptor);
    delete file;
}

FileHandle OpenForReading(const std::string& path) {
    const int descriptor = ::open(NativePath(path).c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) return nullptr;
    struct stat info;
    if (::fstat(descriptor, &info) != 0 || !S_ISREG(info.st_mode)) {
        ::close(descriptor);
        return nullptr;
    }
    return FileHandle(new OpenFile{ descriptor });
}

bool TakeFileSize(OpenFile* file, uint64_t* size) {
    struct stat info;
    if (::fstat(file->descriptor, &info) != 0) return false;
    *size = static_cast<uint64_t>(info.st_size);
    return true;
}

size_t ReadAt(OpenFile* file, uint64_t offset, void* buffer, size_t size) {
    size_t total = 0;
    while (total < size) {
        const ssize_t got = ::pread(file->descriptor, static_cast<uint8_t*>(buffer) + total, size - total,
                                    static_cast<off_t>(offset + total));
        if (got < 0 && errno == EINTR) continue;
        if (got <= 0) break;
        total += static_cast<size_t>(got);
    }
    return total;
}

bool WriteFileWhole(const std::string& path, std::span<const uint8_t> bytes) {
    const std::string target = BehindLinks(NativePath(path));
    struct stat info;
    if (target.empty()) return false;
    const bool exists = ::stat(target.c_str(), &info) == 0;
    if (exists && !S_ISREG(info.st_mode)) return false;  // renaming would replace a device
    const mode_t mode = exists ? info.st_mode & 07777 : 0644;
    // A short name of its own: the target's may fill the file system's limit.
    std::string sibling = target.substr(0, target.rfind('/') + 1) + "tarvo.XXXXXX";
    const int descriptor = ::mkstemp(sibling.data());
    if (descriptor < 0) return false;
    bool ok = ::fchmod(descriptor, mode) == 0 && WriteAll(descriptor, bytes) && ::fsync(descriptor) == 0;
    ok = ::close(descriptor) == 0 && ok;
    ok = ok && ::rename(sibling.c_str(), target.c_str()) == 0;
    if (!ok)
        ::unlink(sibling.c_str());
    else
        FlushFolderOf(target);
    return ok;
}

uint32_t ProcessNumber() { return static_cast<uint32_t>(::getpid()); }

FileHandle HoldFile(const std::string& path) {
    const int descriptor = ::open(NativePath(path).c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    if (descriptor < 0) return nullptr;
    if (::flock(descriptor, LOCK_EX | LOCK_NB) == 0) return FileHandle(new OpenFile{ descriptor });
    ::close(descriptor);
    return nullptr;
}

std::vector<FileEntry> ListFiles(const std::string& folder, const std::string& extension) {
    std::vector<FileEntry> files;
    const std::string path = NativePath(folder);
    DIR* directory = ::opendir(path.c_str());
    if (!directory) return files;
    while (const dirent* entry = ::readdir(directory)) {
        struct stat info;
        if (!EndsWithNoCase(entry->d_name, extension)) continue;
        if (::fstatat(::dirfd(directory), entry->d_name, &info, 0) != 0 || !S_ISREG(info.st_mode)) continue;
        files.push_back({ entry->d_name, FileTimeOf(info.st_mtim), static_cast<uint64_t>(info.st_size) });
    }
    ::closedir(directory);
    std::sort(files.begin(), files.end(),
              [](const FileEntry& a, const FileEntry& b) { return UpperCased(a.name) < UpperCased(b.name); });
    return files;
}

std::vector<std::string> ListFolders(const std::string& folder) {
    std::vector<std::string> names;
    DIR* directory = ::opendir(NativePath(folder).c_str());
    if (!directory) return names;
    while (const dirent* entry = ::readdir(directory)) {
        const std::string name = entry->d_name;
        struct stat info;
        if (name == "." || name == "..") continue;
        if (::fstatat(::dirfd(directory), entry->d_name, &info, 0) == 0 && S_ISDIR(info.st_mode)) names.push_back(name);
    }
    ::closedir(directory);
    SortNames(&names);
    return names;
}

std::string SpelledPath(const std::string& folder, const std::string& name) {
    const std::string path = folder + "\\" + name;
    struct stat info;
    if (::stat(NativePath(path).c_str(), &info) == 0) return path;
    DIR* directory = ::opendir(NativePath(folder).c_str());
    if (!directory) return path;
    std::vector<std::string> found;
    while (const dirent* entry = ::readdir(directory)) {
        if (EqualNoCase(entry->d_name, name)) found.push_back(entry->d_name);
    }
    ::closedir(directory);
    return found.empty() ? path : folder + "\\" + *std::min_element(found.begin(), found.end());
}

bool FileExists(const std::string& path) {
    struct stat info;
    return ::stat(NativePath(path).c_str(), &info) == 0 && S_ISREG(info.st_mode);
}

bool FolderExists(const std::string& path) {
    struct stat info;
    return ::stat(NativePath(path).c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

bool DeleteOneFile(const std::string& path) { return ::unlink(NativePath(path).c_str()) == 0 || errno == ENOENT; }

bool MakeFolders(const std::string& path) {
    const std::string native = NativePath(path);
    for (size_t end = native.find('/', 1); end != std::string::npos; end = native.find('/', end + 1)) {
        if (::mkdir(native.substr(0, end).c_str(), 0755) != 0 && errno != EEXIST) return false;
    }
    return ::mkdir(native.c_str(), 0755) == 0 || FolderExists(native);
}

}  // namespace platform
