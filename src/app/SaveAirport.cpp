// SaveAirport.cpp - see SaveAirport.h.
#include "app/SaveAirport.h"

#include <string>

#include "app/Airport.h"
#include "app/AppHost.h"
#include "app/AppState.h"
#include "app/AutoBackup.h"
#include "app/Notices.h"
#include "app/Settings.h"
#include "bgl/AirportIndex.h"
#include "bgl/AirportWriter.h"
#include "bgl/SceneryStructure.h"
#include "bgl/StockFiles.h"
#include "map/ApronTool.h"
#include "model/ObjectList.h"
#include "platform/Platform.h"

namespace app {

namespace {

std::string FirstSaveFolder() {
    if (!state.savePath.empty()) return std::string(FolderOf(state.savePath)) + "\\";  // "D:" alone is no folder
    if (!state.simulatorFolder.empty()) return state.simulatorFolder + "\\AddOn Scenery\\Scenery\\";
    return std::string(FolderOf(state.sourceFile));
}

// The airport is from then on that of the written file.
bool WriteToSavePath() {
    SetNotice(Notice::Remark, "");  // it may tell of an earlier save
    if (bgl::WriteAirportFile(state.savePath) != 1) return false;
    model::state.modified = false;
    OnAirportSaved();
    state.sourceFile = state.savePath;
    settings.lastSavedFile = state.savePath;
    bgl::NoteSavedFile(state.savePath);  // the index finds the airport there from now on
    SetWindowTitle(TitleText());
    RemarkOnAirport("Saved " + std::string(FileNameOf(state.savePath)));
    ShowCommandStates();
    return true;
}

}  // namespace

bool SaveAirport() {
    if (!model::state.loaded) return false;
    if (bgl::IsOwnFileName(state.sourceFile)) state.savePath = state.sourceFile;
    return state.savePath.empty() ? SaveAirportAs() : WriteToSavePath();
}

bool SaveAirportAs() {
    if (!model::state.loaded) return false;
    const SaveQuestion question = { FirstSaveFolder(), "TV2_" + model::state.icao + ".bgl" };
    std::string path;
    if (!AskSavePath(question, &path)) return false;
    // A stock file holds hundreds of airports, or all navaids of a region; and what is read from a file of such a name
    // is taken for stock.
    if (bgl::IsStockFileName(path) || bgl::IsStockSceneryPath(path, state.simulatorFolder)) {
        return platform::ShowError(
            "The name of a stock scenery file cannot be used.\nPlease save the airport under another name.");
    }
    if (IsAutoBackupName(path)) {  // here, beside another copy of the program, or in the root of a drive
        return platform::ShowError(
            "Tarvo deletes files of the autobackup's name.\nPlease save the airport under another name.");
    }
    state.savePath = path;  // also when the write fails: the next Save of a stock airport tries it again
    return WriteToSavePath();
}

bool SavePrompt() {
    if (model::state.loaded) map::CloseOutline();  // an apron that is drawn but not closed is a change too
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
