// SettingsFile.cpp - the settings as rows: key, member, range, written back or not.
#include "app/SettingsFile.h"

#include <charconv>
#include <cstdint>
#include <string_view>
#include <vector>

#include "app/Settings.h"
#include "platform/Files.h"
#include "platform/Platform.h"
#include "platform/Profile.h"
#include "platform/Text.h"

namespace app {

namespace {

constexpr const char* kFileName = "\\Tarvo2.ini";
constexpr std::string_view kDraftStart = "Tarvo2.new", kDraftEnd = ".ini";  // the number of the process between them
constexpr uint64_t kLargestFile = 16 * 1024 * 1024;                         // bytes
constexpr const char* kGeneral = "General";
constexpr const char* kPrevious = "Previously Opened Files";
constexpr const char* kMostUsed = "Most Used Parking Specs";
constexpr size_t kNumberLimit = 32;
constexpr size_t kPathLimit = 260;
constexpr size_t kPreviousLimit = 1000;
constexpr size_t kSpecNameLimit = 1000;

struct ByteRow {
    const char* key;
    uint8_t Settings::*member;
};
constexpr ByteRow kByteRows[] = {
    { "NodeKeyCode", &Settings::nodeKeyCode },
    { "ParkingKeyCode", &Settings::parkingKeyCode },
    { "MarkerKeyCode", &Settings::markerKeyCode },
};

struct NumberRow {
    const char* key;
    int Settings::*member;
    int least, most;  // a value outside is as good as none
};
constexpr NumberRow kNumberRows[] = {
    { "LatLongFormat", &Settings::latLongFormat, 1, 5 },
    { "ShowLabels", &Settings::showLabels, 0, 2 },
    { "LatLongGridDivs", &Settings::latLongGridDivs, 0, 9 },
    { "NextUpdateNotice", &Settings::nextUpdateNotice, 0, INT32_MAX },
};

struct SwitchRow {
    const char* key;
    bool Settings::*member;
};
constexpr SwitchRow kSwitchRows[] = {
    { "Metric", &Settings::metric },
    { "MetricParkingRadius", &Settings::metricParkingRadius },
    { "ShowLatLongGrid", &Settings::showLatLongGrid },
    { "LatLongGridDecimal", &Settings::latLongGridDecimal },
    { "WindowMaximized", &Settings::windowMaximized },
};

struct TextRow {
    const char* key;
    std::string Settings::*member;
    bool written;
};
constexpr TextRow kTextRows[] = {
    { "LastSavedFile", &Settings::lastSavedFile, true },
    { "OverrideFSFolder", &Settings::overrideFsFolder, false },
};

int ReadNumber(const std::string& file, const char* key, int fallback, int least, int most) {
    const std::string text = platform::ReadProfile(file, kGeneral, key, "", kNumberLimit);
    int value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    return result.ec == std::errc() && value >= least && value <= most ? value : fallback;
}

// A text that is too long is as good as none: cut, a path would name something else.
std::string ReadText(const std::string& file, const char* section, const std::string& key, size_t limit) {
    std::string text = platform::ReadProfile(file, section, key, "", 2 * limit + 1);  // a character may be a pair
    return platform::CharacterCount(text) > limit ? "" : text;
}

// The lists are read from their last entry down to the first, skipping empty ones, so that the first is
// the newest whatever gaps there are.
std::vector<std::string> ReadList(const std::string& file, const char* section, const std::string& key, int count,
                                  size_t limit) {
    std::vector<std::string> list;
    for (int n = count; n >= 1; --n) {
        std::string text = ReadText(file, section, key + std::to_string(n), limit);
        if (!text.empty()) list.insert(list.begin(), std::move(text));
    }
    return list;
}

bool WriteList(const std::string& file, const char* section, const std::string& key, size_t count,
               const std::vector<std::string>& list) {
    bool ok = true;
    for (size_t i = 0; i < count; ++i) {
        const std::string text = i < list.size() ? list[i] : "";
        ok &= platform::WriteProfile(file, section, key + std::to_string(i + 1), text);
    }
    return ok;
}

bool WriteEveryKey(const std::string& file) {
    bool ok = true;
    const auto write = [&](const char* key, const std::string& value) {
        ok &= platform::WriteProfile(file, kGeneral, key, value);
    };
    for (const ByteRow& row : kByteRows) write(row.key, std::to_string(settings.*row.member));
    for (const NumberRow& row : kNumberRows) write(row.key, std::to_string(settings.*row.member));
    for (const SwitchRow& row : kSwitchRows) write(row.key, settings.*row.member ? "1" : "0");
    for (const TextRow& row : kTextRows) {
        if (row.written) write(row.key, settings.*row.member);
    }
    ok &= WriteList(file, kPrevious, "PrevOpenedFile", kPreviousFiles, settings.previousFiles);
    ok &= WriteList(file, kMostUsed, "SpecName", kMostUsedSpecs, settings.mostUsedSpecs);
    return ok;
}

// Several instances may end at the same time.
std::string DraftOf(const std::string& programFolder) {
    return programFolder + "\\" + std::string(kDraftStart) + std::to_string(platform::ProcessNumber()) +
           std::string(kDraftEnd);
}

bool IsDraft(std::string_view name) {
    if (!name.starts_with(kDraftStart) || !name.ends_with(kDraftEnd)) return false;
    name.remove_prefix(kDraftStart.size());
    const size_t digits = name.size() - kDraftEnd.size();
    return digits > 0 && name.find_first_not_of("0123456789") == digits;
}

// What was left by a process that was killed while it wrote.
void RemoveLeftDrafts(const std::string& programFolder) {
    for (const platform::FileEntry& file : platform::ListFiles(programFolder, std::string(kDraftEnd))) {
        if (IsDraft(file.name) && platform::IsLeftOver(file.writeTime, platform::SystemFileTime()))
            platform::DeleteOneFile(programFolder + "\\" + file.name);
    }
}

// A copy of the file, so that its encoding, its comments and keys of others stay.
bool StartDraft(const std::string& draft, const std::string& file) {
    if (!platform::DeleteOneFile(draft)) return false;
    std::vector<uint8_t> bytes;
    if (!platform::ReadWholeFile(file, kLargestFile, &bytes)) return !platform::FileExists(file);
    return platform::WriteFileWhole(draft, bytes);
}

bool ReplaceByDraft(const std::string& draft, const std::string& file) {
    std::vector<uint8_t> before, after;
    if (!platform::ReadWholeFile(draft, kLargestFile, &after)) return false;
    if (platform::ReadWholeFile(file, kLargestFile, &before) && before == after) return true;
    return platform::WriteFileWhole(file, after);
}

}  // namespace

bool LoadSettings(const std::string& programFolder) {
    const std::string file = programFolder + kFileName;
    const bool readable = !platform::FileExists(file) || platform::OpenForReading(file);
    const Settings defaults;
    for (const ByteRow& row : kByteRows) {
        settings.*row.member = static_cast<uint8_t>(ReadNumber(file, row.key, defaults.*row.member, 0, 255));
    }
    for (const NumberRow& row : kNumberRows) {
        settings.*row.member = ReadNumber(file, row.key, defaults.*row.member, row.least, row.most);
    }
    for (const SwitchRow& row : kSwitchRows) {
        settings.*row.member = ReadNumber(file, row.key, defaults.*row.member, INT32_MIN, INT32_MAX) != 0;
    }
    for (const TextRow& row : kTextRows) {
        settings.*row.member = ReadText(file, kGeneral, row.key, kPathLimit);
    }
    settings.previousFiles = ReadList(file, kPrevious, "PrevOpenedFile", kPreviousFiles, kPreviousLimit);
    settings.mostUsedSpecs = ReadList(file, kMostUsed, "SpecName", kMostUsedSpecs, kSpecNameLimit);
    return readable;
}

// The profile functions change a file key by key. So they work on a draft, and the file is replaced as a whole.
bool SaveSettings(const std::string& programFolder) {
    const std::string file = programFolder + kFileName, draft = DraftOf(programFolder);
    RemoveLeftDrafts(programFolder);
    const bool ok = StartDraft(draft, file) && WriteEveryKey(draft) && ReplaceByDraft(draft, file);
    platform::DeleteOneFile(draft);
    return ok;
}

}  // namespace app
