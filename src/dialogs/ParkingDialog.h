// ParkingDialog.h - "Parking Properties" on one spot or on all selected spots together.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "dialogs/Field.h"
#include "dialogs/PositionField.h"
#include "model/Records.h"
#include "model/SceneryObject.h"

namespace dialogs {

using model::SceneryObject;

// Where several spots differ, a text is empty and a choice is -1. What is not touched stays as it is in
// every spot.
struct ParkingFields {
    bool several = false;  // then the position is no field of the dialog: it stays empty and is not read
    CoordinateTexts position;
    std::string heading, number, radius, codes;
    int area = -1;  // position in ParkingAreaChoices(): name code less 1
    int type = -1;  // position in ParkingTypeChoices(): type code less 1
};

std::vector<std::string> ParkingAreaChoices();
std::vector<std::string> ParkingTypeChoices();

// The spot gets the type. A radius that is the default of its old type, as near as a dialog shows it, becomes the new
// one's.
void GiveSpotType(model::ParkingSpotRecord* record, uint32_t typeCode);

// The spots that the dialog edits: the selected ones when `spot` is among them, else it alone.
std::vector<SceneryObject*> EditedSpots(SceneryObject* spot);

ParkingFields LoadParkingFields(SceneryObject* spot);

// The user chooses a type: a radius that still is the old type's default becomes the new one's. Spots of several types
// have no old one; then only those change whose radii differ, each by its own type (StoreParkingFields).
void ChooseParkingType(ParkingFields* fields, int type);

bool StoreParkingFields(const ParkingFields& shown, const ParkingFields& entered, SceneryObject* spot, BadField* bad);

// Where "Next Spot" goes: the next one of the list, from the last to the first.
SceneryObject* NextSpot(SceneryObject* spot);

// Selects that spot and centres the map on it.
void GoToSpot(SceneryObject* spot);

}  // namespace dialogs
