// TowerDialog.h - "Tower Viewpoint Properties".
#pragma once

#include <string>

#include "dialogs/Field.h"
#include "dialogs/PositionField.h"
#include "model/SceneryObject.h"

namespace dialogs {

using model::SceneryObject;

struct TowerFields {
    CoordinateTexts position;
    std::string elevation;
};

// A tower that stands nowhere is offered the elevation of the airport.
TowerFields LoadTowerFields(const SceneryObject* tower);
bool StoreTowerFields(const TowerFields& shown, const TowerFields& entered, SceneryObject* tower, BadField* bad);

// "Insert Tower Viewpoint": a provisional one, or the one that the map does not show. Null after a refusal:
// the airport has one already.
SceneryObject* InsertTower();

}  // namespace dialogs
