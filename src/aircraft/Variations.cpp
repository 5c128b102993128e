// Variations.cpp - see Variations.h.
#include "aircraft/Variations.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <tuple>

#include "aircraft/ModelFile.h"
#include "platform/Files.h"
#include "platform/Text.h"

namespace aircraft {

namespace {

constexpr uint64_t kConfigLimit = 64 << 20;  // bytes; the largest known ones stay below a few megabytes
constexpr std::string_view kSectionStart = "fltsim.";

// The number of a section, written as the simulator counts: without a sign and without zeros before it. -1 for any
// other section.
int NumberOf(std::string_view section) {
    if (!platform::EqualNoCase(section.substr(0, kSectionStart.size()), kSectionStart)) return -1;
    const std::string_view digits = section.substr(kSectionStart.size());
    int number = -1;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    const bool whole = error == std::errc() && end == digits.data() + digits.size();
    return whole && std::to_string(number) == digits ? number : -1;
}

Variation ReadVariation(const ConfigText& config, const platform::IniSection& section) {
    const auto plain = [&](std::string_view key) { return ShownText(config, platform::IniValue(section, key)); };
    Variation row;
    row.title = platform::FirstCharacters(plain(kTitleKey), kListedTitleLimit);
    row.manufacturer = plain("ui_manufacturer");
    row.type = plain("ui_type");
    row.name = plain("ui_variation");
    row.airline = platform::FirstCharacters(ConfigValue(config, section, kAirlineKey), kAirlineLimit);
    row.parkingTypes = platform::FirstCharacters(ConfigValue(config, section, kTypesKey), kTypesLimit);
    row.code = FirstCode(ConfigValue(config, section, kCodesKey));
    return row;
}

std::vector<Variation> ReadFolder(const std::string& folder) {
    const std::string path = FileIn(folder, "Aircraft.cfg");
    std::vector<uint8_t> bytes;
    if (path.empty() || !platform::ReadWholeFile(path, kConfigLimit, &bytes)) return {};
    return VariationsOf(folder, DecodeConfig(bytes));
}

std::string AircraftFolder(const std::string& simulatorFolder) {
    return simulatorFolder.empty() ? "" : FolderIn(simulatorFolder, "Aircraft");
}

int CompareTexts(const std::string& a, const std::string& b) {
    return platform::UpperCased(a).compare(platform::UpperCased(b));
}

const std::string& TextOf(const Variation& row, int column) {
    const std::string* const texts[] = { &row.manufacturer, &row.type,         &row.name,
                                         &row.airline,      &row.parkingTypes, &row.code };
    return *texts[column];
}

int Compare(const Variation& a, const Variation& b, int column) {
    if (column == kRadius) return (a.radius > b.radius) - (a.radius < b.radius);
    return CompareTexts(TextOf(a, column), TextOf(b, column));
}

int CompareRows(const Variation& a, const Variation& b) {
    for (const int column : { kManufacturer, kType, kVariation }) {
        if (const int order = Compare(a, b, column)) return order;
    }
    return std::tie(a.folder, a.number) < std::tie(b.folder, b.number) ? -1 : 1;
}

}  // namespace

std::string SectionName(int number) { return std::string(kSectionStart) + std::to_string(number); }

std::string FirstCode(std::string_view codes) {
    constexpr std::string_view kSeparators = " \t,";
    const size_t start = std::min(codes.find_first_not_of(kSeparators), codes.size());
    const size_t end = std::min(codes.find_first_of(kSeparators, start), codes.size());
    return std::string(platform::FirstCharacters(codes.substr(start, end - start), kCodeLimit));
}

std::string ModelOf(const ConfigText& config, const platform::IniSection& section) {
    return std::string(platform::FirstCharacters(ConfigValue(config, section, kModelKey), kModelLimit));
}

std::vector<Variation> VariationsOf(const std::string& folder, const ConfigText& config) {
    std::vector<Variation> rows;
    std::map<std::string, uint32_t> radii;  // of the models met so far: many variations share one
    for (const platform::IniSection& section : platform::ParseIni(config.text)) {
        const int number = NumberOf(section.name);
        if (number < 0) continue;
        Variation row = ReadVariation(config, section);
        if (row.title.empty()) continue;
        const std::string model = ModelOf(config, section);
        const auto [known, isNew] = radii.try_emplace(platform::UpperCased(model), 0);
        if (isNew) known->second = ReadRadius(FindModelFile(folder, model));
        row.folder = folder;
        row.number = number;
        row.radius = known->second;
        rows.push_back(std::move(row));
    }
    std::sort(rows.begin(), rows.end(), [](const Variation& a, const Variation& b) { return a.number < b.number; });
    return rows;
}

std::vector<Variation> ListVariations(const std::string& simulatorFolder) {
    std::string folder = AircraftFolder(simulatorFolder);
    std::vector<Variation> rows;
    if (folder.empty()) return rows;
    const std::vector<std::string> names = platform::ListFolders(folder);
    folder += '\\';
    const size_t rootLength = folder.size();
    for (const std::string& name : names) {
        folder.replace(rootLength, std::string::npos, name);
        for (Variation& row : ReadFolder(folder)) rows.push_back(std::move(row));
    }
    return rows;
}

void RefreshVariations(const std::string& folder, std::vector<Variation>* rows) {
    const std::vector<Variation> fresh = ReadFolder(folder);
    for (Variation& row : *rows) {
        if (row.folder != folder) continue;
        const auto found = std::find_if(fresh.begin(), fresh.end(),
                                        [&](const Variation& other) { return other.number == row.number; });
        if (found != fresh.end()) row = *found;
    }
}

std::string CellText(const Variation& row, int column) {
    if (column == kRadius) return row.radius ? std::to_string(row.radius) : "";
    return column >= 0 && column < kRadius ? TextOf(row, column) : "";
}

SortOrder OrderAfterClick(SortOrder order, int column) {
    return { column, column == order.column && !order.descending };
}

void SortVariations(std::vector<Variation>* rows, SortOrder order) {
    std::sort(rows->begin(), rows->end(), [=](const Variation& a, const Variation& b) {
        if (&a == &b) return false;
        const int first = Compare(a, b, order.column);
        return first != 0 ? (first < 0) != order.descending : CompareRows(a, b) < 0;
    });
}

int FindVariation(const std::vector<Variation>& rows, int column, std::string_view text, int start) {
    const auto count = static_cast<int>(rows.size());
    for (int i = 0; i < count; ++i) {
        const int at = (std::max(start, 0) % count + i) % count;
        const std::string cell = CellText(rows[static_cast<size_t>(at)], column);
        if (platform::EqualNoCase(std::string_view(cell).substr(0, text.size()), text)) return at;
    }
    return -1;
}

}  // namespace aircraft
