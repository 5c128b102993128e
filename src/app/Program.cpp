// Program.cpp - see Program.h.
#include "app/Program.h"

#include <utility>

#include "app/AppHost.h"
#include "app/AppState.h"
#include "app/AutoBackup.h"
#include "app/ParkingSpecs.h"
#include "app/RecentAirports.h"
#include "app/SaveAirport.h"
#include "app/Settings.h"
#include "app/SettingsFile.h"
#include "app/SimLink.h"
#include "app/SimLinkHost.h"
#include "app/SimulatorFolder.h"
#include "app/ToolHint.h"
#include "app/UpdateReminder.h"
#include "dialogs/Subject.h"
#include "map/MapView.h"
#include "map/Tools.h"
#include "model/ObjectList.h"
#include "platform/Platform.h"

namespace app {

namespace {

// What cannot be written in a protected program folder is of no account as long as the user has changed nothing.
bool HasUserChangedSettings() {
    Settings left = state.loadedSettings;
    left.windowMaximized = settings.windowMaximized;
    left.nextUpdateNotice = settings.nextUpdateNotice;
    return settings != left;
}

bool KeepSettings() {
    settings.windowMaximized = IsMainWindowMaximized().value_or(settings.windowMaximized);
    return (state.settingsRead && SaveSettings(state.programFolder)) || !HasUserChangedSettings();
}

void SaySettingsAreLost() {
    platform::ShowRefusal(
        "The settings and the list of recent airports could not be kept:\n"
        "Tarvo may not write Tarvo2.ini in its folder\n\n" +
        state.programFolder);
}

void SayWhatWasRecovered(const std::string& file) {
    platform::ShowMessage("Tarvo has recovered the unsaved airport " + model::state.icao +
                              " from its autobackup.\n\nBefore this file is opened, save the recovered airport or "
                              "give it up:\n\n" +
                              file,
                          platform::Buttons::Ok, platform::Icon::Information);
}

// What a drag shows is no edit, nor is what an open dialog shows. Its record is only set aside: the dialog has it still.
void WriteBackupAtOnce() {
    map::CancelDrag();
    dialogs::EndPreview();
    model::SceneryObject* provisional = std::exchange(model::state.provisional, nullptr);
    if (provisional) model::UnlinkObject(provisional);
    WriteAutoBackup();
    if (provisional) model::AppendObject(provisional);
    model::state.provisional = provisional;
}

}  // namespace

void LoadProgramFiles() {
    LoadParkingSpecs(state.programFolder);
    state.settingsRead = LoadSettings(state.programFolder);
    state.loadedSettings = settings;
    FindSimulatorFolder();
    map::view = {};
    map::layers = {};
    map::tools = {};
}

void BeginSession(const std::string& file, const std::string& ident) {
    RemindOfUpdates();
    const bool recovered = ClaimAutoBackup() && RecoverAirport();
    ShowToolHint();
    if (file.empty()) return;
    if (recovered) SayWhatWasRecovered(file);
    OpenBroughtFile(file, ident);
}

bool OpenBroughtFile(const std::string& file, const std::string& ident) {
    const bool opened = IsAirportAtRest() && SavePrompt() && OpenAndRemember(file, ident);
    ShowToolHint();
    return opened;
}

bool MayEnd() {
    if (!IsMapInFront()) return false;
    map::CancelDrag();
    return IsAirportAtRest() && SavePrompt();
}

bool AgreeToEnd() {
    state.agreedEnd.reset();
    WriteAutoBackup();
    if (!MayEnd()) return false;
    state.agreedEnd = model::state.revision;
    return true;
}

void EndAsAgreed() {
    const bool losesEdits = model::state.loaded && model::state.modified && state.agreedEnd != model::state.revision;
    losesEdits ? EndSessionAtOnce() : EndSession(true);
}

void EndSession(bool quietly) {
    if (!KeepSettings() && !quietly) SaySettingsAreLost();
    ReleaseSimulator();
    RemoveAutoBackup();
}

void EndSessionAtOnce() {
    KeepSettings();
    WriteBackupAtOnce();
    ReleaseSimulator();  // last: a simulator that hangs may keep it
}

}  // namespace app
