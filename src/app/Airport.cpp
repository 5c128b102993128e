// Airport.cpp - see Airport.h.
#include "app/Airport.h"

#include <cstdint>
#include <cstring>

#include "app/AppHost.h"
#include "app/AppState.h"
#include "app/AutoBackup.h"
#include "app/SimLink.h"
#include "bgl/LibraryScan.h"
#include "bgl/OpenAirport.h"
#include "bgl/SceneryStructure.h"
#include "faults/FaultFinder.h"
#include "map/MapView.h"
#include "map/Tools.h"
#include "model/ObjectList.h"
#include "model/Positions.h"
#include "platform/Files.h"
#include "platform/Platform.h"
#include "platform/Text.h"

namespace app {

namespace {

// Scenery files of the new style start with a number that no other file starts with.
bool IsScenery(platform::OpenFile* file) {
    uint32_t magic = 0;
    return platform::ReadAt(file, 0, &magic, sizeof magic) == sizeof magic && magic == bgl::kFileMagic;
}

// Why the file does not hold what was asked for, in the words for the user.
std::string Explanation(const std::string& path, std::string_view ident) {
    const platform::FileHandle file = platform::OpenForReading(path);
    if (!file) return bgl::FailureText(bgl::ScanResult::CannotOpen, path);
    if (!IsScenery(file.get())) return bgl::FailureText(bgl::ScanResult::NotScenery, path);
    bgl::AirportPlace any;
    if (ident.empty() || !bgl::FindAirportInFile(path, "", &any))
        return bgl::FailureText(bgl::ScanResult::NoAirports, path);
    return "Selected file  " + path + "  does not contain airport " + platform::UpperCased(ident);
}

// The backup in the root of the current drive goes with the airport; the program's own one stays.
void DeleteRootBackup() { platform::DeleteOneFile(AutoBackupPath("")); }

void ShowAirport() {
    SetWindowTitle(TitleText());
    ShowCommandStates();
    platform::RequestRepaint();
}

}  // namespace

bool OpenAirportFile(const std::string& path, std::string_view ident) {
    bgl::AirportPlace place;
    if (!bgl::FindAirportInFile(path, ident, &place)) return platform::ShowRefusal(Explanation(path, ident));
    return OpenAirportAt(place) || platform::ShowRefusal(bgl::FailureText(bgl::ScanResult::CannotOpen, path));
}

bool OpenAirportAt(const bgl::AirportPlace& place) {
    const bool replaces = model::state.loaded;
    bgl::OpenWarnings warnings;
    if (!bgl::OpenAirport(place, state.simulatorFolder, &warnings)) return false;
    if (replaces) DeleteRootBackup();
    state.sourceFile = place.path;
    state.savePath.clear();  // the path of the airport before must not be written over
    model::state.modified = false;
    map::ResetTools();
    faults::ForgetAirport();
    ForgetPresses();
    map::layers.navaids = false;
    map::ResetView(model::PositionOf(model::state.airport));
    ShowAirport();
    OnAirportOpened();
    const std::string warning = bgl::TextOf(warnings);
    if (!warning.empty()) platform::ShowRefusal(warning);
    return true;
}

void CloseAirport() {
    if (!model::state.loaded) return;
    DeleteRootBackup();
    map::ResetTools();
    faults::ForgetAirport();
    ForgetPresses();
    model::ClearModel();
    state.sourceFile.clear();
    state.savePath.clear();
    OnAirportDropped();
    ShowAirport();
}

std::string TitleText() {
    constexpr const char* kBetween = "    ";
    std::string title = "Tarvo";
    title += kBetween + model::state.icao + kBetween + platform::Utf8FromWindows1252(model::AirportName());
    if (!model::state.loaded) return title;
    if (bgl::IsStockFileName(state.sourceFile)) return title + kBetween + "( stock airport )";
    return title + kBetween + "( file " + std::string(FileNameOf(state.sourceFile)) + " )";
}

std::string_view FileNameOf(std::string_view path) {
    const size_t slash = path.find_last_of("\\/:");
    return slash == std::string_view::npos ? path : path.substr(slash + 1);
}

std::string_view FolderOf(std::string_view path) {
    const size_t slash = path.find_last_of("\\/");
    return slash == std::string_view::npos ? std::string_view{} : path.substr(0, slash);
}

}  // namespace app
