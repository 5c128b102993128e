// FilesWin.cpp - files of the Windows builds: paths of any characters and of any length.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <string_view>

#include "platform/Files.h"
#include "platform/Text.h"
#include "platform/WideTextWin.h"

namespace platform {

struct OpenFile {
    HANDLE handle;
};

namespace {

constexpr size_t kLongPath = 240;  // from here on "\\?\" is needed: folders must leave room for an 8.3 name
constexpr DWORD kChunk = 1u << 30;
constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// The path as the system takes it. Behind the prefix for long paths "/", "." and ".." mean nothing any more, so
// such a path is made full first.
std::wstring NativePath(const std::string& path) {
    std::wstring wide = WideFromUtf8(path);
    std::replace(wide.begin(), wide.end(), L'/', L'\\');
    if (wide.size() < kLongPath || wide.starts_with(L"\\\\?\\")) return wide;
    const DWORD size = GetFullPathNameW(wide.c_str(), 0, nullptr, nullptr);
    std::wstring full(size, L'\0');
    full.resize(GetFullPathNameW(wide.c_str(), size, full.data(), nullptr));
    if (full.empty()) return wide;
    return full.starts_with(L"\\\\") ? L"\\\\?\\UNC\\" + full.substr(2) : L"\\\\?\\" + full;
}

// An embedded zero would cut the path, and another file would be meant.
bool IsUsable(const std::string& path) { return !path.empty() && path.find('\0') == std::string::npos; }

DWORD AttributesOf(const std::string& path) {
    return IsUsable(path) ? GetFileAttributesW(NativePath(path).c_str()) : INVALID_FILE_ATTRIBUTES;
}

bool WriteAll(HANDLE file, std::span<const uint8_t> bytes) {
    while (!bytes.empty()) {
        const auto chunk = static_cast<DWORD>(std::min<size_t>(bytes.size(), kChunk));
        DWORD written = 0;
        if (!WriteFile(file, bytes.data(), chunk, &written, nullptr) || written == 0) return false;
        bytes = bytes.subspan(written);
    }
    return true;
}

// The file that a symbolic link leads to; the path itself when it is no link, "" when that file is out of reach.
std::wstring BehindLinks(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || !(attributes & FILE_ATTRIBUTE_REPARSE_POINT)) return path;
    const HANDLE file = CreateFileW(path.c_str(), 0, kShareAll, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return L"";
    const DWORD size = GetFinalPathNameByHandleW(file, nullptr, 0, VOLUME_NAME_DOS);
    std::wstring target(size, L'\0');
    target.resize(GetFinalPathNameByHandleW(file, target.data(), size, VOLUME_NAME_DOS));
    CloseHandle(file);
    return target.size() > size ? L"" : target;
}

// A file that its owner has protected stays, also where the system would let us replace it. So does one that cannot be
// looked at just now.
bool MayReplace(const std::wstring& target) {
    constexpr DWORD kKept = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY;
    const DWORD attributes = GetFileAttributesW(target.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) return GetLastError() == ERROR_FILE_NOT_FOUND;
    return !(attributes & kKept);
}

uint64_t Joined(DWORD high, DWORD low) { return static_cast<uint64_t>(high) << 32 | low; }

// "~tv", eight hexadecimal digits and ".tmp", as CreateSibling makes them. The system's patterns match more.
bool IsSiblingName(std::wstring_view name) {
    constexpr std::wstring_view kStart = L"~tv", kEnd = L".tmp", kDigits = L"0123456789ABCDEF";
    if (name.size() != kStart.size() + 8 + kEnd.size() || !name.starts_with(kStart) || !name.ends_with(kEnd))
        return false;
    return name.substr(kStart.size(), 8).find_first_not_of(kDigits) == std::wstring_view::npos;
}

// What a process that was killed while it wrote has left in the folder. A file that is being written is not shared and
// stays, however old it is.
void RemoveLeftSiblings(const std::wstring& folder) {
    FILETIME now;
    GetSystemTimeAsFileTime(&now);
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW((folder + L"~tv????????.tmp").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return;
    do {
        if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) || !IsSiblingName(found.cFileName)) continue;
        const uint64_t written = Joined(found.ftLastWriteTime.dwHighDateTime, found.ftLastWriteTime.dwLowDateTime);
        if (IsLeftOver(written, Joined(now.dwHighDateTime, now.dwLowDateTime)))
            DeleteFileW((folder + found.cFileName).c_str());
    } while (FindNextFileW(search, &found));
    FindClose(search);
}

// A new file in the folder of the target. Its short name fits even where that of the target fills the limit.
HANDLE CreateSibling(const std::wstring& target, std::wstring* sibling) {
    const size_t slash = target.find_last_of(L"\\:");
    const std::wstring folder = slash == std::wstring::npos ? L"" : target.substr(0, slash + 1);
    RemoveLeftSiblings(folder);
    const DWORD start = GetCurrentProcessId() * 1000 + GetTickCount() % 1000;
    for (DWORD attempt = 0; attempt < 100; ++attempt) {
        wchar_t name[32];
        swprintf(name, 32, L"~tv%08lX.tmp", start + attempt);
        *sibling = folder + name;
        const HANDLE file =
            CreateFileW(sibling->c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
        if (file != INVALID_HANDLE_VALUE || GetLastError() != ERROR_FILE_EXISTS) return file;
    }
    return INVALID_HANDLE_VALUE;
}

}  // namespace

void FileCloser::operator()(OpenFile* file) const {
    CloseHandle(file->handle);
    delete file;
}

FileHandle OpenForReading(const std::string& path) {
    if (!IsUsable(path)) return nullptr;
    const HANDLE handle = CreateFileW(NativePath(path).c_str(), GENERIC_READ, kShareAll, nullptr, OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) return nullptr;
    if (GetFileType(handle) != FILE_TYPE_DISK) {  // "CON" and its like
        CloseHandle(handle);
        return nullptr;
    }
    return FileHandle(new OpenFile{ handle });
}

bool TakeFileSize(OpenFile* file, uint64_t* size) {
    LARGE_INTEGER told;
    if (!GetFileSizeEx(file->handle, &told)) return false;
    *size = static_cast<uint64_t>(told.QuadPart);
    return true;
}

size_t ReadAt(OpenFile* file, uint64_t offset, void* buffer, size_t size) {
    size_t total = 0;
    while (total < size) {
        const uint64_t at = offset + total;
        OVERLAPPED place{};
        place.Offset = static_cast<DWORD>(at);
        place.OffsetHigh = static_cast<DWORD>(at >> 32);
        const auto chunk = static_cast<DWORD>(std::min<size_t>(size - total, kChunk));
        DWORD got = 0;
        if (!ReadFile(file->handle, static_cast<uint8_t*>(buffer) + total, chunk, &got, &place) || got == 0) break;
        total += got;
    }
    return total;
}

bool WriteFileWhole(const std::string& path, std::span<const uint8_t> bytes) {
    if (!IsUsable(path)) return false;
    const std::wstring target = BehindLinks(NativePath(path));
    if (target.empty() || !MayReplace(target)) return false;
    std::wstring sibling;
    const HANDLE file = CreateSibling(target, &sibling);
    if (file == INVALID_HANDLE_VALUE) return false;
    bool ok = WriteAll(file, bytes) && FlushFileBuffers(file);
    ok = CloseHandle(file) && ok;
    ok = ok && MoveFileExW(sibling.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
    if (!ok) DeleteFileW(sibling.c_str());
    return ok;
}

uint32_t ProcessNumber() { return GetCurrentProcessId(); }

FileHandle HoldFile(const std::string& path) {
    if (!IsUsable(path)) return nullptr;
    const HANDLE handle = CreateFileW(NativePath(path).c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                                      FILE_ATTRIBUTE_NORMAL | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    return handle == INVALID_HANDLE_VALUE ? nullptr : FileHandle(new OpenFile{ handle });
}

std::vector<FileEntry> ListFiles(const std::string& folder, const std::string& extension) {
    std::vector<FileEntry> files;
    if (!IsUsable(folder)) return files;
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW(NativePath(folder + "\\*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return files;
    do {
        if (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) continue;
        const std::string name = Utf8FromWide(found.cFileName);
        // Not by the pattern: the system also matches it against short names, and "x.bglx" has one in ".bgl".
        if (!EndsWithNoCase(name, extension)) continue;
        files.push_back({ name, Joined(found.ftLastWriteTime.dwHighDateTime, found.ftLastWriteTime.dwLowDateTime),
                          Joined(found.nFileSizeHigh, found.nFileSizeLow) });
    } while (FindNextFileW(search, &found));
    FindClose(search);
    std::sort(files.begin(), files.end(),
              [](const FileEntry& a, const FileEntry& b) { return UpperCased(a.name) < UpperCased(b.name); });
    return files;
}

std::vector<std::string> ListFolders(const std::string& folder) {
    std::vector<std::string> names;
    if (!IsUsable(folder)) return names;
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW(NativePath(folder + "\\*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return names;
    do {
        const std::wstring_view name = found.cFileName;
        const bool isFolder = found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY;
        if (isFolder && name != L"." && name != L"..") names.push_back(Utf8FromWide(name));
    } while (FindNextFileW(search, &found));
    FindClose(search);
    std::sort(names.begin(), names.end(),
              [](const std::string& a, const std::string& b) { return UpperCased(a) < UpperCased(b); });
    return names;
}

std::string SpelledPath(const std::string& folder, const std::string& name) { return folder + "\\" + name; }

bool FileExists(const std::string& path) {
    const DWORD attributes = AttributesOf(path);
    return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

bool FolderExists(const std::string& path) {
    const DWORD attributes = AttributesOf(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

bool DeleteOneFile(const std::string& path) {
    if (!IsUsable(path)) return false;
    if (DeleteFileW(NativePath(path).c_str())) return true;
    const DWORD error = GetLastError();
    return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
}

bool MakeFolders(const std::string& path) {
    if (!IsUsable(path)) return false;
    for (size_t end = path.find_first_of("\\/", 1); end != std::string::npos;
         end = path.find_first_of("\\/", end + 1)) {
        CreateDirectoryW(NativePath(path.substr(0, end)).c_str(), nullptr);  // fails on a drive or share: no matter
    }
    return CreateDirectoryW(NativePath(path).c_str(), nullptr) || FolderExists(path);
}

}  // namespace platform
