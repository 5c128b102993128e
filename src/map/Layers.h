// Layers.h - which layer of the map shows what.
#pragma once

#include <cstdint>

#include "map/MapView.h"

namespace map {

// By the kind of object; null for what is always shown.
bool MapLayers::*LayerOf(uint32_t kind);

}  // namespace map
