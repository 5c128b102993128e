// IndexCache.cpp - see IndexCache.h.
#include "bgl/IndexCache.h"

#include <algorithm>
#include <bit>
#include <cassert>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <vector>

#include "bgl/AirportIndex.h"
#include "bgl/SceneryAreas.h"
#include "platform/Files.h"

namespace bgl {

namespace {

constexpr std::string_view kKindLetters = "USAN";
constexpr char kCheckLetter = '*';
constexpr uint64_t kLargestCache = 256u << 20;  // bytes

// Not for adversaries: finds cuts, swaps and changed bytes. Eight bytes at a time, for the caches of a large
// library are megabytes that are read at each opening of the dialog.
uint64_t Mixed(uint64_t sum, uint64_t word) { return std::rotl((sum ^ word) * 0x9E3779B97F4A7C15u, 29); }

uint64_t CheckSum(uint64_t sum, std::string_view bytes) {
    sum = Mixed(sum, bytes.size());
    uint64_t word = 0;
    for (; bytes.size() >= sizeof word; bytes.remove_prefix(sizeof word)) {
        std::memcpy(&word, bytes.data(), sizeof word);
        sum = Mixed(sum, word);
    }
    word = 0;
    if (!bytes.empty()) std::memcpy(&word, bytes.data(), bytes.size());
    return Mixed(sum, word);
}

std::string CheckLine(uint64_t listSum, uint64_t indexSum) {
    char line[64];
    std::snprintf(line, sizeof line, "%c|%016llX|%016llX\n", kCheckLetter, static_cast<unsigned long long>(listSum),
                  static_cast<unsigned long long>(indexSum));
    return line;
}

// The next line with its line feed, which a cut one lacks.
std::string_view TakeLine(std::string_view* text) {
    const size_t end = text->find('\n');
    const std::string_view line = text->substr(0, end == std::string_view::npos ? end : end + 1);
    text->remove_prefix(line.size());
    return line;
}

std::string_view TakeField(std::string_view* line) {
    const size_t end = std::min(line->find('|'), line->size());
    const std::string_view field = line->substr(0, end);
    line->remove_prefix(std::min(end + 1, line->size()));
    return field;
}

bool ParseNumber(std::string_view text, int base, uint32_t* number) {
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, *number, base);
    return result.ec == std::errc() && result.ptr == end;
}

bool IsFileLine(std::string_view line) {
    return line.size() >= 2 && line.ends_with('\n') && line[1] == '|' &&
           kKindLetters.find(line[0]) != std::string_view::npos;
}

// Whoever writes the files as texts of the system ends lines with a carriage return too.
std::string_view WithoutLineEnd(std::string_view line) {
    line.remove_suffix(1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
}

std::string FileLine(const SceneryFile& file, FileKind kind) {
    char head[32];
    std::snprintf(head, sizeof head, "%c|%u|%X|", kKindLetters[static_cast<size_t>(kind)], file.layer, file.writeTime);
    return head + file.path + '\n';
}

void AppendAirportLine(const AirportIndexEntry& entry, uint32_t number, std::string* line) {
    for (const std::string_view name : { entry.country, entry.state, entry.city, entry.name, entry.ident }) {
        *line += name;
        *line += '|';
    }
    *line += std::to_string(number) + '\n';
}

// The kinds as they are to be written: a file with an airport whose line is too long counts as not examined.
std::vector<FileKind> KindsToWrite() {
    std::vector<FileKind> kinds;
    for (const SceneryFile& file : library.files) kinds.push_back(file.kind);
    constexpr size_t kLongestNumber = 10;
    for (const AirportIndexEntry& entry : library.airports) {
        const size_t names = entry.country.size() + entry.state.size() + entry.city.size() + entry.name.size();
        const bool tooLong = names + entry.ident.size() + 6 + kLongestNumber > kLongestAirportLine;
        if (tooLong) kinds[entry.file] = FileKind::NotExamined;
    }
    return kinds;
}

void ParseFileLine(std::string_view line, const std::string& simulatorFolder) {
    line = WithoutLineEnd(line);
    const bool fits = line.size() < kLongestFileLine;
    const size_t kind = kKindLetters.find(TakeField(&line).front());
    uint32_t layer = 0, time = 0;
    const bool good = fits && ParseNumber(TakeField(&line), 10, &layer) && ParseNumber(TakeField(&line), 16, &time);
    // Whatever the line holds, it takes a number: the airports' lines count on it.
    const bool fromRoot = line.starts_with('/');  // a path behind "\" is below the simulator's folder
    const std::string path = !good ? "" : fromRoot ? std::string(line) : FullPath(simulatorFolder, line);
    library.fileOfPath.try_emplace(PathKey(path), static_cast<uint32_t>(library.files.size()));
    library.files.push_back({ path, time, layer, static_cast<FileKind>(kind), false });
}

bool ParseAirportLine(std::string_view line, AirportIndexEntry* entry) {
    if (!line.ends_with('\n')) return false;
    line = WithoutLineEnd(line);
    if (line.size() >= kLongestAirportLine) return false;
    for (std::string_view* field : { &entry->country, &entry->state, &entry->city, &entry->name, &entry->ident }) {
        *field = TakeField(&line);
    }
    entry->ident = entry->ident.substr(0, kIdentLength);
    return ParseNumber(line, 10, &entry->file);
}

std::string ReadText(const std::string& path) {
    const platform::FileHandle file = platform::OpenForReading(path);
    const uint64_t size = file ? platform::FileSize(file.get()) : 0;
    std::string text(size <= kLargestCache ? static_cast<size_t>(size) : 0, '\0');
    if (file) text.resize(platform::ReadAt(file.get(), 0, text.data(), text.size()));
    return text;
}

bool WriteText(const std::string& path, const std::string& text) {
    return platform::WriteFileWhole(path, { reinterpret_cast<const uint8_t*>(text.data()), text.size() });
}

}  // namespace

CacheTexts ComposeCaches() {
    constexpr uint32_t kNotWritten = UINT32_MAX;
    const std::vector<FileKind> kinds = KindsToWrite();
    std::vector<uint32_t> numbers(library.files.size(), kNotWritten);
    CacheTexts texts;
    uint32_t next = 0;
    uint64_t listSum = 0;
    std::string lines;
    for (size_t i = 0; i < library.files.size(); ++i) {
        const std::string line = FileLine(library.files[i], kinds[i]);
        const bool fits = line.size() <= kLongestFileLine && line.find('\n') + 1 == line.size();
        if (!library.files[i].present || !fits) continue;
        numbers[i] = next++;
        listSum = CheckSum(listSum, line);
        lines += line;
    }
    assert(library.airports.empty() || !library.places.empty());
    for (const uint32_t airport : AirportsInTreeOrder()) {
        const AirportIndexEntry& entry = library.airports[airport];
        if (numbers[entry.file] == kNotWritten || kinds[entry.file] == FileKind::NotExamined) continue;
        AppendAirportLine(entry, numbers[entry.file], &texts.airportIndex);
    }
    texts.fileList = CheckLine(listSum, CheckSum(0, texts.airportIndex)) + lines;
    return texts;
}

CacheState ParseFileList(const CacheTexts& texts, const std::string& simulatorFolder) {
    std::string_view rest = texts.fileList;
    const std::string_view check = TakeLine(&rest);
    const bool unchecked = IsFileLine(check);
    if (unchecked) rest = texts.fileList;
    std::vector<std::string_view> lines;
    uint64_t listSum = 0;
    while (!rest.empty()) {
        const std::string_view line = TakeLine(&rest);
        if (!IsFileLine(line)) continue;
        listSum = CheckSum(listSum, line);
        lines.push_back(line);
    }
    const bool isWhole = unchecked ? texts.airportIndex.empty() || texts.airportIndex.ends_with('\n')
                                   : check == CheckLine(listSum, CheckSum(0, texts.airportIndex));
    if (!isWhole) return CacheState::Missing;
    library.files.reserve(lines.size());
    for (const std::string_view line : lines) ParseFileLine(line, simulatorFolder);
    return unchecked ? CacheState::Unchecked : CacheState::Checked;
}

void ParseAirportIndex(std::string airportIndex) {
    library.texts.push_back(std::move(airportIndex));
    std::string_view rest = library.texts.back();
    constexpr size_t kTypicalLine = 64;  // bytes
    library.airports.reserve(rest.size() / kTypicalLine);
    AirportIndexEntry entry;
    while (!rest.empty()) {
        if (!ParseAirportLine(TakeLine(&rest), &entry) || entry.file >= library.files.size()) continue;
        const SceneryFile& file = library.files[entry.file];
        if (file.present && file.kind != FileKind::NotExamined) library.airports.push_back(entry);
    }
}

void DoubtFilesWithoutAirports() {
    std::vector<bool> hasAirports(library.files.size());
    for (const AirportIndexEntry& entry : library.airports) hasAirports[entry.file] = true;
    for (size_t i = 0; i < library.files.size(); ++i) {
        SceneryFile& file = library.files[i];
        if (file.kind != FileKind::NoAirports && !hasAirports[i]) file.kind = FileKind::NotExamined;
    }
}

CacheTexts ReadCaches(const std::string& folder) {
    return { ReadText(folder + "\\FileList"), ReadText(folder + "\\AirportIndex") };
}

bool WriteCaches(const std::string& folder, const CacheTexts& texts) {
    const bool indexWritten = WriteText(folder + "\\AirportIndex", texts.airportIndex);
    return WriteText(folder + "\\FileList", texts.fileList) && indexWritten;
}

}  // namespace bgl
