// SceneryAreas.h - the areas that Scenery.cfg lists.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace bgl {

struct SceneryArea {
    std::string folder;  // UTF-8, full, without a separator at its end; the files lie in its "scenery" folder
    uint32_t layer = 0;
};

// The areas of Scenery.cfg in the simulator's folder, in file order. Every area counts, active or not. One
// without a local folder is left out. No file gives no areas.
std::vector<SceneryArea> ReadSceneryAreas(const std::string& simulatorFolder);

// The same for the text of the file.
std::vector<SceneryArea> ParseSceneryAreas(std::string_view text, const std::string& simulatorFolder);

// The path below the simulator's folder, unless it is a full one: one that holds ":" or names a server.
std::string FullPath(const std::string& simulatorFolder, std::string_view path);

// Where the area's files lie, as the disk spells it.
std::string AreaFileFolder(const SceneryArea& area);

}  // namespace bgl
