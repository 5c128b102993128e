// Files.cpp - what every system does alike.
#include "platform/Files.h"

namespace platform {

bool IsLeftOver(uint64_t writeTime, uint64_t now) {
    constexpr uint64_t kMinute = 60 * 10000000ull;  // in units of FILETIME
    return now > writeTime && now - writeTime > kMinute;
}

uint64_t FileSize(OpenFile* file) {
    uint64_t size = 0;
    TakeFileSize(file, &size);
    return size;
}

bool ReadWholeFile(const std::string& path, uint64_t limit, std::vector<uint8_t>* bytes) {
    bytes->clear();
    const FileHandle file = OpenForReading(path);
    uint64_t size = 0;
    if (!file || !TakeFileSize(file.get(), &size) || size > limit) return false;
    bytes->resize(static_cast<size_t>(size));
    if (ReadAt(file.get(), 0, bytes->data(), bytes->size()) == bytes->size()) return true;
    bytes->clear();
    return false;
}

}  // namespace platform
