// AirportIndex.cpp - see AirportIndex.h.
#include "bgl/AirportIndex.h"

#include <algorithm>
#include <array>

#include "platform/Files.h"
#include "platform/Text.h"

namespace bgl {

AirportLibrary library;

namespace {

constexpr uint32_t kNone = UINT32_MAX;
constexpr size_t kTextSize = 1 << 16;  // bytes of one of the library's texts, unless a name needs more

constexpr uint8_t UpperCase(uint8_t byte) {
    const bool letter = (byte >= 'a' && byte <= 'z') || (byte >= 0xE0 && byte <= 0xFE && byte != 0xF7);
    if (letter) return static_cast<uint8_t>(byte - 0x20);
    if (byte == 0x9A || byte == 0x9C || byte == 0x9E) return static_cast<uint8_t>(byte - 0x10);
    return byte == 0xFF ? 0x9F : byte;
}

constexpr auto kUpperCase = [] {
    std::array<uint8_t, 256> table{};
    for (size_t i = 0; i < table.size(); ++i) table[i] = UpperCase(static_cast<uint8_t>(i));
    return table;
}();

// Of UTF-8 text, the Latin-1 letters too; they are those of two bytes that begin with 0xC3.
void FoldCase(std::string* text) {
    *text = platform::UpperCased(*text);
    for (size_t i = 1; i < text->size(); ++i) {
        const auto byte = static_cast<uint8_t>((*text)[i]);
        const bool lower = (*text)[i - 1] == '\xC3' && byte >= 0xA0 && byte <= 0xBE && byte != 0xB7;
        if (lower) (*text)[i] = static_cast<char>(byte - 0x20);
    }
}

// Drops the last component; never the drive or what stands before the first component.
void StepUp(size_t root, std::string* key) {
    const size_t separator = key->rfind('\\');
    const size_t end = separator == std::string::npos || separator < root ? root : separator;
    if (!std::string_view(*key).substr(end).ends_with(':')) key->resize(end);
}

std::string_view KeptText(std::string_view text) {
    text = text.substr(0, text.find('\0'));
    const bool fits =
        !library.texts.empty() && library.texts.back().capacity() - library.texts.back().size() >= text.size();
    if (!fits) library.texts.emplace_back().reserve(std::max(kTextSize, text.size()));
    std::string& store = library.texts.back();
    const size_t start = store.size();
    const auto breaksLine = [](char c) { return c == '|' || c == '\n' || c == '\r'; };
    for (const char c : text) store.push_back(breaksLine(c) ? ' ' : c);
    return std::string_view(store).substr(start);
}

// In a sorted index, as the cache keeps it, the wanted place is the last child or comes behind it.
uint32_t ChildOf(uint32_t parent, std::string_view name) {
    const auto comesBefore = [](uint32_t place, std::string_view wanted) {
        return CompareNames(library.places[place].name, wanted) < 0;
    };
    std::vector<uint32_t>& children = library.places[parent].children;
    auto found = children.end();
    if (!children.empty()) {
        const int order = CompareNames(library.places[children.back()].name, name);
        if (order == 0) return children.back();
        if (order > 0) found = std::lower_bound(children.begin(), children.end(), name, comesBefore);
    }
    if (found != children.end() && CompareNames(library.places[*found].name, name) == 0) return *found;
    const auto place = static_cast<uint32_t>(library.places.size());
    children.insert(found, place);
    library.places.emplace_back().name = name;
    return place;
}

void AddToTree(uint32_t airport) {
    AirportIndexEntry& entry = library.airports[airport];
    entry.nextOfPlace = kNone;
    uint32_t place = 0;
    for (const std::string_view level : { entry.country, entry.state, entry.city }) {
        const std::string_view name = platform::Trimmed(level, " ");
        if (!name.empty()) place = ChildOf(place, name);
    }
    if (place == 0) place = ChildOf(0, kNoPlaceName);
    Place& item = library.places[place];
    (item.firstAirport == kNone ? item.firstAirport : library.airports[item.lastAirport].nextOfPlace) = airport;
    item.lastAirport = airport;
}

void AppendAirports(const Place& place, std::vector<uint32_t>* airports) {
    for (uint32_t i = place.firstAirport; i != kNone; i = library.airports[i].nextOfPlace) airports->push_back(i);
}

void AppendAllAirports(const Place& place, std::vector<uint32_t>* airports) {
    AppendAirports(place, airports);
    for (const uint32_t child : place.children) AppendAllAirports(library.places[child], airports);
}

}  // namespace

void ReleaseLibrary() {
    AirportLibrary fresh;
    fresh.savedFiles = std::move(library.savedFiles);
    library = std::move(fresh);
}

void NoteSavedFile(const std::string& path) { library.savedFiles.insert(PathKey(path)); }

std::string PathKey(std::string_view path) {
    std::string key;
    key.reserve(path.size());
    while (key.size() < 2 && key.size() < path.size() && platform::IsSeparator(path[key.size()])) key += '\\';
    const size_t root = key.size();
    for (size_t at = root; at < path.size();) {
        const size_t end = std::min(path.find_first_of("\\/", at), path.size());
        const std::string_view name = path.substr(at, end - at);
        at = end + 1;
        if (name.empty() || name == ".") continue;
        if (name == "..") {
            StepUp(root, &key);
            continue;
        }
        if (key.size() > root) key += '\\';
        key += name;
    }
    FoldCase(&key);
    return key;
}

uint32_t FileNumberOf(const std::string& path) {
    const auto number = static_cast<uint32_t>(library.files.size());
    const auto [found, isNew] = library.fileOfPath.try_emplace(PathKey(path), number);
    if (isNew) {
        library.files.push_back({});
        library.files.back().path = path;
    }
    return found->second;
}

uint32_t ScanTime(uint64_t fileTime) {
    constexpr uint64_t kTwoSeconds = 20000000;
    return static_cast<uint32_t>(fileTime / kTwoSeconds & 0x3FFFFF);
}

int CompareNames(std::string_view a, std::string_view b) {
    if (a == b) return 0;
    const size_t shared = std::min(a.size(), b.size());
    for (size_t i = 0; i < shared; ++i) {
        const int order = kUpperCase[static_cast<uint8_t>(a[i])] - kUpperCase[static_cast<uint8_t>(b[i])];
        if (order != 0) return order;
    }
    return a.size() < b.size() ? -1 : a.size() > b.size();
}

void AddAirport(std::string_view country, std::string_view state, std::string_view city, std::string_view name,
                std::string_view ident, uint32_t file) {
    library.airports.push_back({ KeptText(country), KeptText(state), KeptText(city), KeptText(name),
                                 KeptText(ident.substr(0, kIdentLength)), file, kNone });
}

void BuildPlacesStep(int step) {
    if (step == 0) {
        library.places.assign(1, {});
        library.places.reserve(library.airports.size() / 2);
    }
    const size_t count = library.airports.size();
    const auto share = [&](int steps) { return count * static_cast<size_t>(steps) / kTreeSteps; };
    for (size_t i = share(step); i < share(step + 1); ++i) AddToTree(static_cast<uint32_t>(i));
}

std::vector<uint32_t> AirportsOf(const Place& place) {
    std::vector<uint32_t> airports;
    AppendAirports(place, &airports);
    return airports;
}

std::vector<uint32_t> AirportsInTreeOrder() {
    std::vector<uint32_t> airports;
    airports.reserve(library.airports.size());
    if (!library.places.empty()) AppendAllAirports(library.places[0], &airports);
    return airports;
}

}  // namespace bgl
