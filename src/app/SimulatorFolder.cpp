// SimulatorFolder.cpp - see SimulatorFolder.h.
#include "app/SimulatorFolder.h"

#include <string>
#include <vector>

#include "app/AppHost.h"
#include "app/AppState.h"
#include "app/Settings.h"
#include "platform/Files.h"
#include "platform/Platform.h"

namespace app {

namespace {

std::string WithoutLastSlash(std::string folder) {
    if (!folder.empty() && platform::IsSeparator(folder.back())) folder.pop_back();
    return folder;
}

std::string RepairQuestion(const std::string& registered, const std::string& chosen) {
    return "The Flight Simulator pointer in the Windows Registry points to the\n"
           "following folder and FS was not found there:\n\n" +
           registered +
           "\n\nThis can happen if you moved FS or the Registry was altered.\n"
           "Some add-on tools use this pointer to locate FS.\n\n"
           "Do you want to repair the Registry entry for Flight Simulator\n"
           "so it points to the folder you just selected? :\n\n" +
           chosen;
}

std::string InsertQuestion(const std::string& chosen) {
    return "The Flight Simulator pointer was not found in the Windows Registry.\n\n"
           "This can happen if you reinstalled Windows without reinstalling FS.\n"
           "Some add-on tools use this pointer to locate FS.\n\n"
           "Do you want to insert a Registry entry for Flight Simulator that\n"
           "points to the folder you just selected?\n\n" +
           chosen;
}

void OfferRegistryEntry(const std::vector<std::string>& registered, const std::string& chosen) {
    const std::string question =
        registered.empty() ? InsertQuestion(chosen) : RepairQuestion(WithoutLastSlash(registered[0]), chosen);
    if (platform::ShowMessage(question, platform::Buttons::YesNo, platform::Icon::Exclamation) != platform::Answer::Yes)
        return;
    if (WriteRegisteredSimulatorFolder(chosen)) return;
    platform::ShowRefusal(
        "Windows did not let Tarvo write the Registry entry for Flight Simulator.\n\n"
        "The folder is used until Tarvo ends. To have it found the next time,\n"
        "write this line below [General] in Tarvo2.ini:\n\n"
        "OverrideFSFolder=" +
        chosen);
}

}  // namespace

int FindSimulatorFolder() {
    state.simulatorFolder = WithoutLastSlash(settings.overrideFsFolder);
    if (!settings.overrideFsFolder.empty()) return 1;
    std::vector<std::string> registered = RegisteredSimulatorFolders();
    std::erase_if(registered, [](const std::string& entry) { return WithoutLastSlash(entry).empty(); });
    for (const std::string& entry : registered) {
        const std::string folder = WithoutLastSlash(entry);
        if (!platform::FileExists(folder + "\\FS9.exe")) continue;
        state.simulatorFolder = folder;
        return 1;
    }
    std::string chosen;
    if (!AskSimulatorFolder(&chosen)) return 0;
    chosen = WithoutLastSlash(chosen);
    OfferRegistryEntry(registered, chosen);
    state.simulatorFolder = chosen;
    return 1;
}

}  // namespace app
