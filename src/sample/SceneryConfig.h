// SceneryConfig.h - Scenery.cfg, the list of the simulator's scenery areas.
#pragma once

#include <string>
#include <vector>

namespace sample {

struct SceneryArea {
    const char* title;
    std::string local;  // folder below the simulator's
    int textureId;      // 0: an add-on area, which has none
    bool required;
};
std::vector<SceneryArea> SceneryAreas();  // in the order of their numbers and layers, from 1

std::string SceneryConfigText();  // ANSI, lines end in CR LF

}  // namespace sample
