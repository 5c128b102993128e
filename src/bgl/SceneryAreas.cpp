// SceneryAreas.cpp - see SceneryAreas.h.
#include "bgl/SceneryAreas.h"

#include <charconv>

#include "platform/Files.h"
#include "platform/IniText.h"
#include "platform/Text.h"

namespace bgl {

namespace {

constexpr std::string_view kAreaPrefix = "Area.";

std::string_view WithoutLastSeparators(std::string_view path) {
    while (!path.empty() && platform::IsSeparator(path.back())) path.remove_suffix(1);
    return path;
}

bool IsFullPath(std::string_view path) {
    const bool namesServer = path.size() >= 2 && platform::IsSeparator(path[0]) && platform::IsSeparator(path[1]);
    return namesServer || path.find(':') != std::string_view::npos;
}

// Digits at the start of the text; whatever is no layer at all is the lowest.
uint32_t ParseLayer(std::string_view text) {
    uint32_t layer = 0;
    if (!text.empty() && text.front() == '+') text.remove_prefix(1);
    const auto result = std::from_chars(text.data(), text.data() + text.size(), layer);
    return result.ec == std::errc::result_out_of_range ? UINT32_MAX : layer;
}

}  // namespace

std::string FullPath(const std::string& simulatorFolder, std::string_view path) {
    path = WithoutLastSeparators(path);
    if (IsFullPath(path)) return std::string(path);
    while (!path.empty() && platform::IsSeparator(path.front())) path.remove_prefix(1);
    return std::string(WithoutLastSeparators(simulatorFolder)) + "\\" + std::string(path);
}

std::vector<SceneryArea> ParseSceneryAreas(std::string_view text, const std::string& simulatorFolder) {
    std::vector<SceneryArea> areas;
    for (const platform::IniSection& section : platform::ParseIni(text)) {
        if (!platform::EqualNoCase(section.name.substr(0, kAreaPrefix.size()), kAreaPrefix)) continue;
        const std::string_view local = platform::IniValue(section, "Local");
        if (WithoutLastSeparators(local).empty()) continue;
        areas.push_back({ FullPath(simulatorFolder, local), ParseLayer(platform::IniValue(section, "Layer")) });
    }
    return areas;
}

std::vector<SceneryArea> ReadSceneryAreas(const std::string& simulatorFolder) {
    const std::string folder(WithoutLastSeparators(simulatorFolder));
    return ParseSceneryAreas(platform::ReadIniText(platform::SpelledPath(folder, "Scenery.cfg")), folder);
}

std::string AreaFileFolder(const SceneryArea& area) { return platform::SpelledPath(area.folder, "scenery"); }

}  // namespace bgl
