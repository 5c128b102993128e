// AirportDialog.h - "Airport Properties", and the airport that "New Airport" starts with.
#pragma once

#include <string>

#include "dialogs/Field.h"
#include "dialogs/PositionField.h"
#include "model/SceneryObject.h"

namespace dialogs {

using model::SceneryObject;

constexpr size_t kAirportIdLimit = 4;

struct AirportFields {
    CoordinateTexts position;
    std::string elevation, variation;  // the variation is shown east positive
    bool avgas = false, jetFuel = false;
    std::string id, country, state, city, name;
};

AirportFields LoadAirportFields(const SceneryObject* airport);

// Record, identifier and texts are one action. An identifier that changes changes it in the airport's own
// navaids too.
bool StoreAirportFields(const AirportFields& shown, const AirportFields& entered, SceneryObject* airport,
                        BadField* bad);

// "New Airport": an Airport and a TowerViewpoint at the placeholder in the clear model, not loaded yet.
// The dialog then runs on the airport that is returned.
SceneryObject* MakeNewAirport();

// Its OK: stores, marks the airport loaded and modified and looks at it. There is nothing to undo.
bool StoreNewAirport(const AirportFields& shown, const AirportFields& entered, BadField* bad);

// Its Cancel: no airport is left.
void CancelNewAirport();

}  // namespace dialogs
