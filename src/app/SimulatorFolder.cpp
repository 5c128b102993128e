// SimulatorFolder.cpp - see SimulatorFolder.h.
#include "app/SimulatorFolder.h"

#include "app/AppHost.h"
#include "app/Settings.h"
#include "platform/Files.h"

namespace app {

namespace {

std::string WithoutLastSlash(std::string folder) {
    if (!folder.empty() && (folder.back() == '\\' || folder.back() == '/')) folder.pop_back();
    return folder;
}

}  // namespace

std::string FindSimulatorFolder() {
    if (!settings.overrideFsFolder.empty()) return settings.overrideFsFolder;
    for (const std::string& registered : RegisteredSimulatorFolders()) {
        std::string folder = WithoutLastSlash(registered);
        if (!folder.empty() && platform::FileExists(folder + "\\FS9.exe")) return folder;
    }
    return {};
}

}  // namespace app
