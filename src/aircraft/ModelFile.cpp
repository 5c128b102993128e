// ModelFile.cpp - see ModelFile.h.
#include "aircraft/ModelFile.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "aircraft/AircraftEdits.h"
#include "aircraft/ConfigText.h"
#include "platform/Files.h"
#include "platform/IniText.h"
#include "platform/Text.h"

namespace aircraft {

namespace {

constexpr size_t kHeadSize = kRadiusOffset + sizeof(uint32_t);

std::string Joined(const std::string& folder, const std::string& name) { return folder + "\\" + name; }

// A zero would cut the path, and another file would be meant.
bool IsName(const std::string& name) { return !name.empty() && name.find('\0') == std::string::npos; }

std::string WithoutBackupEnd(const std::string& path) {
    constexpr size_t kEnd = std::string_view(kBackupEnd).size();
    return path.empty() ? "" : path.substr(0, path.size() - kEnd);
}

bool HasFolders(const std::string& name) { return name.find_first_of("\\/") != std::string::npos; }

}  // namespace

std::string FileIn(const std::string& folder, const std::string& name) {
    if (!IsName(name)) return "";
    const std::string direct = Joined(folder, name);
    if (HasFolders(name)) return platform::FileExists(direct) ? direct : "";
    for (const platform::FileEntry& file : platform::ListFiles(folder, name)) {
        if (platform::EqualNoCase(file.name, name)) return Joined(folder, file.name);
    }
    return "";
}

std::string FolderIn(const std::string& folder, const std::string& name) {
    if (!IsName(name)) return "";
    const std::string direct = Joined(folder, name);
    if (HasFolders(name)) return platform::FolderExists(direct) ? direct : "";
    for (const std::string& found : platform::ListFolders(folder)) {
        if (platform::EqualNoCase(found, name)) return Joined(folder, found);
    }
    return "";
}

std::string FindModelFile(const std::string& aircraftFolder, const std::string& model) {
    const std::string folder = FolderIn(aircraftFolder, model.empty() ? "Model" : "Model." + model);
    const std::string config = folder.empty() ? "" : FileIn(folder, "Model.cfg");
    if (config.empty()) return "";
    const ConfigText text = { platform::ReadIniText(config), "", Encoding::Utf8 };
    const std::vector<platform::IniSection> sections = platform::ParseIni(text.text);
    const platform::IniSection* models = FindSection(sections, "models");
    const std::string name = models ? ConfigValue(text, *models, "normal") : "";
    if (name.empty()) return "";
    const std::string file = FileIn(folder, name + ".mdl");
    return file.empty() ? WithoutBackupEnd(FileIn(folder, name + ".mdl" + kBackupEnd)) : file;
}

uint32_t RadiusOf(std::span<const uint8_t> model) {
    constexpr std::string_view kTag = "RIFF";
    if (model.size() < kHeadSize || !std::equal(kTag.begin(), kTag.end(), model.begin())) return 0;
    uint32_t radius = 0;
    for (size_t i = 4; i-- > 0;) radius = radius << 8 | model[kRadiusOffset + i];
    return radius >= kLeastRadius && radius <= kMostRadius ? radius : 0;
}

uint32_t ReadRadius(const std::string& path) {
    const platform::FileHandle file = path.empty() ? nullptr : platform::OpenForReading(path);
    uint8_t head[kHeadSize];
    if (!file || platform::ReadAt(file.get(), 0, head, kHeadSize) != kHeadSize) return 0;
    return RadiusOf(head);
}

}  // namespace aircraft
