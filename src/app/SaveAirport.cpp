// SaveAirport.cpp - see SaveAirport.h.
#include "app/SaveAirport.h"

#include <string>

#include "app/Airport.h"
#include "app/AppHost.h"
#include "app/AppState.h"
#include "bgl/AirportWriter.h"
#include "bgl/SceneryFile.h"
#include "model/ObjectList.h"
#include "platform/Files.h"
#include "platform/Platform.h"

namespace app {

namespace {

std::string FirstSaveFolder() {
    if (!state.savePath.empty()) return std::string(FolderOf(state.savePath));
    if (!state.simulatorFolder.empty()) return state.simulatorFolder + "\\AddOn Scenery\\Scenery\\";
    return std::string(FolderOf(state.sourceFile));
}

// The airport is from now on that of the written file; a failed write changes nothing.
bool WriteTo(const std::string& path) {
    if (bgl::WriteAirportFile(path) != 1) return false;
    model::state.modified = false;
    state.savePath = path;
    state.sourceFile = path;
    SetWindowTitle(TitleText());
    ShowCommandStates();
    return true;
}

// A stock file holds hundreds of airports; it would be replaced by this one.
bool IsStockFile(const std::string& path) { return bgl::IsStockFileName(path) && platform::FileExists(path); }

}  // namespace

bool SaveAirport() {
    if (!model::state.loaded) return false;
    if (bgl::IsOwnFileName(state.sourceFile)) state.savePath = state.sourceFile;
    return state.savePath.empty() ? SaveAirportAs() : WriteTo(state.savePath);
}

bool SaveAirportAs() {
    if (!model::state.loaded) return false;
    const SaveQuestion question = { FirstSaveFolder(), "TV2_" + model::state.icao + ".bgl" };
    std::string path;
    if (!AskSavePath(question, &path)) return false;
    if (IsStockFile(path)) {
        platform::ShowMessage(
            "ERROR: A stock scenery file cannot be overwritten.\nPlease save the airport under another name.",
            platform::Buttons::Ok, platform::Icon::Exclamation);
        return false;
    }
    return WriteTo(path);
}

bool SavePrompt() {
    if (!model::state.loaded || !model::state.modified) return true;
    const platform::Answer answer = platform::ShowMessage("Do you want to save changes to the current facility ?",
                                                          platform::Buttons::YesNoCancel, platform::Icon::Exclamation);
    switch (answer) {
    case platform::Answer::Yes: return SaveAirport();
    case platform::Answer::No: return true;
    default: return false;
    }
}

}  // namespace app
