// LibraryScan.cpp - see LibraryScan.h.
#include "bgl/LibraryScan.h"

#include <algorithm>
#include <chrono>
#include <optional>
#include <set>
#include <string_view>
#include <utility>
#include <vector>

#include "bgl/AirportIndex.h"
#include "bgl/IndexCache.h"
#include "bgl/LibraryHost.h"
#include "bgl/NameList.h"
#include "bgl/RecordIds.h"
#include "bgl/SceneryAreas.h"
#include "bgl/SceneryStructure.h"
#include "model/Ident.h"
#include "platform/Files.h"
#include "platform/Platform.h"
#include "platform/Text.h"

namespace bgl {

namespace {

constexpr const char* kCollecting = "Collecting Airports...";

// A sound file stays far below these; a damaged one must not make us read it whole.
constexpr uint64_t kMostSections = 1024, kMostTableBytes = 1 << 16, kMostListBytes = 64 << 20;

// And in a damaged list thousands of airports may share one endless name.
constexpr uint64_t kMostNameBytes = 64 << 20;

constexpr uint32_t kLargestClass = 0xFFFF;       // later the upper half of the word tells the size of the cell ids
constexpr uint32_t kLaterSummarySection = 0x2C;  // only files for later simulators have it
constexpr uint32_t kFirstLaterClass = 5, kLastLaterClass = 7;  // and sections of these classes

constexpr int kScanned = 5, kExamined = 85, kFileRead = 30, kDone = 100;  // percent of the progress bar

bool IsForLaterSimulator(const SceneryStructure& file) {
    return std::any_of(file.sections.begin(), file.sections.end(), [](const SectionEntry& section) {
        return section.type == kLaterSummarySection || section.sectionClass > kLargestClass ||
               (section.sectionClass >= kFirstLaterClass && section.sectionClass <= kLastLaterClass);
    });
}

using Idents = std::set<std::string>;

std::string ComparedIdent(std::string_view ident) { return platform::UpperCased(ident.substr(0, kIdentLength)); }

// An add-on may hold both airports for this simulator and airports of a later one, and names them all in one list:
// those for this one.
Idents HeldIdents(SceneryStructure structure) {
    Idents held;
    for (const AirportPlace& place : FindAllAirports(&structure)) held.insert(ComparedIdent(place.ident));
    return held;
}

// What goes on while the names of one file are read.
struct NameScan {
    SceneryStructure structure;
    uint32_t file = 0;  // its number in the library
    uint64_t nameBytesLeft = kMostNameBytes;
    bool listsSome = false;
    std::optional<Idents> held;  // names of other airports stay out; none for a file that is asked no further
};

bool MayBeOpened(const NameScan& scan, const std::string& ident) {
    if (ident.empty()) return false;  // nobody could open it by its identifier
    return !scan.held || scan.held->contains(ComparedIdent(ident));
}

// Opens the structure with what it may read kept within the limits above.
bool ReadLimitedStructure(const ByteSource& source, SceneryStructure* file) {
    ByteSource head = source;
    head.size = std::min(source.size, kFileHeaderSize + kMostSections * kSectionEntrySize);
    if (!ReadStructure(head, file)) return false;
    file->source = source;
    file->tableBytesLeft = std::min(source.size, kMostTableBytes);
    file->recordBytesLeft = std::min(source.size, kMostListBytes);
    return true;
}

// Takes the names' sizes from what is left for them and ends where that is too little.
void AddAirports(Bytes subsection, NameScan* scan) {
    NameListView list;
    if (!OpenNameList(subsection, &list)) return;
    for (uint32_t i = 0; i < list.airportCount; ++i) {
        const NamedAirport airport = NameListEntry(list, i);
        const size_t size = airport.country.size() + airport.state.size() + airport.city.size() + airport.name.size();
        if (size > scan->nameBytesLeft) break;
        scan->nameBytesLeft -= size;
        const std::string ident = model::UnpackIdent(airport.ident >> model::kIdentShift);
        if (!MayBeOpened(*scan, ident)) continue;
        scan->listsSome = true;
        AddAirport(airport.country, airport.state, airport.city, airport.name, ident, scan->file);
    }
}

bool AddNameLists(const SectionEntry& section, NameScan* scan) {
    SceneryStructure* structure = &scan->structure;
    const std::vector<SubsectionEntry> subsections = ReadSubsections(structure, section);
    for (const SubsectionEntry& subsection : subsections) {
        if (!CoverRecords(structure, subsection)) break;
        AddAirports(ReadStretch(structure->source, subsection.offset, subsection.size), scan);
    }
    return !subsections.empty();
}

FileKind KindAfter(ScanResult result, const std::string& path) {
    if (result != ScanResult::AirportsFound) return FileKind::NoAirports;
    return IsStockFileName(path) ? FileKind::Stock : FileKind::AddOn;
}

void CountResult(ScanResult result) {
    CollectionReport& report = library.report;
    uint32_t* const counters[] = { &report.cannotOpen, &report.notScenery, &report.noAirports, &report.withAirports };
    ++*counters[static_cast<size_t>(result)];
}

void ScanFile(const std::string& path, uint32_t time, uint32_t layer) {
    SceneryFile& file = library.files[FileNumberOf(path)];
    // Several areas may lead to one folder: then the highest layer counts.
    if (file.present) layer = std::max(file.layer, layer);
    if (!file.present) ++library.report.present;
    file.present = true;
    if (file.writeTime != time) file.kind = FileKind::NotExamined;
    file.layer = layer;
    file.writeTime = time;
}

// An area out of reach may hold its listing up for long: the bar moves, and the windows are painted, before each.
void ScanAreas(const std::vector<SceneryArea>& areas) {
    for (size_t i = 0; i < areas.size(); ++i) {
        SetProgress(static_cast<int>(kScanned * i / areas.size()));
        const std::string folder = AreaFileFolder(areas[i]);
        for (const platform::FileEntry& entry : platform::ListFiles(folder, ".bgl")) {
            ScanFile(folder + "\\" + entry.name, ScanTime(entry.writeTime), areas[i].layer);
        }
    }
}

void ForgetSavedFiles() {
    for (const std::string& saved : library.savedFiles) {
        const auto found = library.fileOfPath.find(saved);
        if (found != library.fileOfPath.end()) library.files[found->second].kind = FileKind::NotExamined;
    }
    library.savedFiles.clear();
}

struct KnownFile {
    uint32_t layer, writeTime;
};
std::vector<KnownFile> KnownFiles() {
    std::vector<KnownFile> known;
    known.reserve(library.files.size());
    for (const SceneryFile& file : library.files) known.push_back({ file.layer, file.writeTime });
    return known;
}

bool DiffersFrom(const std::vector<KnownFile>& known) {
    if (library.files.size() != known.size() || library.report.present != known.size()) return true;
    const auto isSame = [](const SceneryFile& file, const KnownFile& before) {
        return file.layer == before.layer && file.writeTime == before.writeTime;
    };
    return !std::equal(library.files.begin(), library.files.end(), known.begin(), isSame);
}

// Whether the disk differs from what the caches told.
bool ScanLibrary(const std::string& simulatorFolder) {
    if (simulatorFolder.empty()) return false;
    const std::vector<KnownFile> known = KnownFiles();
    const std::vector<SceneryArea> areas = ReadSceneryAreas(simulatorFolder);
    library.report.areas = static_cast<uint32_t>(areas.size());
    ScanAreas(areas);
    ForgetSavedFiles();
    return DiffersFrom(known);
}

// The box repaints at each call, and there may be thousands of files.
void MoveProgress(int percent, int* shown) {
    if (percent != *shown) SetProgress(percent);
    *shown = percent;
}

void ExamineFiles() {
    std::vector<uint32_t> files;
    for (uint32_t i = 0; i < library.files.size(); ++i) {
        if (library.files[i].present && library.files[i].kind == FileKind::NotExamined) files.push_back(i);
    }
    int shown = kScanned;
    for (size_t i = 0; i < files.size(); ++i) {
        const ScanResult result = ScanBglHeader(files[i]);
        CountResult(result);
        SceneryFile& file = library.files[files[i]];
        file.kind = KindAfter(result, file.path);
        const size_t share = static_cast<size_t>(kExamined - kScanned) * (i + 1) / files.size();
        MoveProgress(kScanned + static_cast<int>(share), &shown);
    }
}

void BuildPlaces(int from, int to) {
    for (int step = 0; step < kTreeSteps; ++step) {
        BuildPlacesStep(step);
        SetProgress(from + (to - from) * (step + 1) / kTreeSteps);
    }
}

double SecondsSince(std::chrono::steady_clock::time_point start) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

bool IsInSceneryFolder(const std::string& path) {
    return platform::UpperCased(path).find("SCENERY") != std::string::npos;
}

}  // namespace

std::string FailureText(ScanResult result, const std::string& path) {
    switch (result) {
    case ScanResult::CannotOpen: return "Unable to open file \"" + path + "\"";
    case ScanResult::NotScenery: return "Selected file  " + path + "  is not in recognised AFD format";
    default: return "Selected file  " + path + "  does not contain any airports";
    }
}

ScanResult ScanBglHeader(uint32_t file) {
    ++library.report.opened;
    const platform::FileHandle handle = platform::OpenForReading(library.files[file].path);
    if (!handle) return ScanResult::CannotOpen;
    NameScan scan;
    scan.file = file;
    if (!ReadLimitedStructure(SourceOfFile(handle.get()), &scan.structure)) return ScanResult::NotScenery;
    if (IsForLaterSimulator(scan.structure)) scan.held = HeldIdents(scan.structure);
    if (scan.held && scan.held->empty()) return ScanResult::NoAirports;
    bool found = false;
    for (const SectionEntry& section : scan.structure.sections) {
        if (section.sectionClass == kNameList) found |= AddNameLists(section, &scan);
    }
    if (scan.held) found = scan.listsSome;
    return found ? ScanResult::AirportsFound : ScanResult::NoAirports;
}

void CollectAllAirports(const std::string& simulatorFolder, const std::string& cacheFolder) {
    const auto start = std::chrono::steady_clock::now();
    ShowProgress(kCollecting);
    ReleaseLibrary();
    CacheTexts caches = cacheFolder.empty() ? CacheTexts{} : ReadCaches(cacheFolder);
    const CacheState cached = ParseFileList(caches, simulatorFolder);
    const bool changed = ScanLibrary(simulatorFolder);
    library.report.listSeconds = SecondsSince(start);
    SetProgress(kScanned);
    if (cached != CacheState::Missing) ParseAirportIndex(std::move(caches.airportIndex));
    if (cached == CacheState::Unchecked) DoubtFilesWithoutAirports();
    const auto examineStart = std::chrono::steady_clock::now();
    ExamineFiles();
    library.report.examineSeconds = SecondsSince(examineStart);
    BuildPlaces(kExamined, kDone);
    // Writing safely takes longer than all the rest when nothing is new. And a library out of reach, say on a drive
    // that is not there, says nothing against what is known of it.
    const bool isNew = cached != CacheState::Checked || changed || library.report.opened > 0;
    if (isNew && library.report.areas > 0 && !cacheFolder.empty())
        library.report.cachesKept = WriteCaches(cacheFolder, ComposeCaches());
    library.report.allSeconds = SecondsSince(start);
    FinishProgress();
}

bool CollectAirportsFromFile(const std::string& path) {
    ShowProgress(kCollecting);
    ReleaseLibrary();
    const uint32_t number = FileNumberOf(path);
    SceneryFile& file = library.files[number];
    file.present = true;
    library.report.present = 1;
    file.kind = IsInSceneryFolder(path) && IsStockFileName(path) ? FileKind::Stock : FileKind::AddOn;
    const ScanResult result = ScanBglHeader(number);
    CountResult(result);
    if (result == ScanResult::AirportsFound) {
        SetProgress(kFileRead);
        BuildPlaces(kFileRead, kDone);
    }
    CloseProgress();
    if (result == ScanResult::AirportsFound) return true;
    ReleaseLibrary();
    return platform::ShowRefusal(FailureText(result, path));
}

}  // namespace bgl
