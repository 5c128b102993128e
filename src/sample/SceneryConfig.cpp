// SceneryConfig.cpp - see SceneryConfig.h.
#include "sample/SceneryConfig.h"

#include <cstdio>

#include "sample/Regions.h"

namespace sample {

namespace {

constexpr const char* kRegionTitles[] = {
    "Africa",
    "Asia",
    "Australia",
    "Eastern Europe",
    "Western Europe",
    "Central America",
    "North America East",
    "North America West",
    "Oceania",
    "South America",
};
static_assert(std::size(kRegionTitles) == kRegions.size());

std::string AreaText(int number, const SceneryArea& area) {
    char text[512];
    std::snprintf(text, sizeof text, "[Area.%03d]\r\nTitle=%s\r\n", number, area.title);
    std::string section = text;
    if (area.textureId > 0) {
        std::snprintf(text, sizeof text, "Texture_ID=%d\r\n", area.textureId);
        section += text;
    }
    std::snprintf(text, sizeof text, "Local=%s\r\nRemote=\r\nActive=TRUE\r\nRequired=%s\r\nLayer=%d\r\n\r\n",
                  area.local.c_str(), area.required ? "TRUE" : "FALSE", number);
    return section + text;
}

}  // namespace

std::vector<SceneryArea> SceneryAreas() {
    std::vector<SceneryArea> areas = { { "Default Terrain", "Scenery\\World", 1, true },
                                       { "Default Scenery", "Scenery\\BASE", 1, true } };
    for (size_t i = 0; i < kRegions.size(); ++i) {
        areas.push_back({ kRegionTitles[i], std::string("Scenery\\") + kRegions[i], 1, false });
    }
    areas.push_back({ "Cities", "Scenery\\Cities", 1, false });
    areas.push_back({ "Propeller Objects", "Scenery\\Props", 1, false });
    areas.push_back({ "AddOn Scenery", "AddOn Scenery", 0, false });
    return areas;
}

std::string SceneryConfigText() {
    std::string text =
        "[General]\r\nTitle=FS9 World Scenery\r\nDescription=FS9 Scenery Data\r\nClean_on_Exit=TRUE\r\n\r\n";
    int number = 0;
    for (const SceneryArea& area : SceneryAreas()) text += AreaText(++number, area);
    return text;
}

}  // namespace sample
