// MarkerDialog.h - "Marker Properties" and "New Marker Beacons".
#pragma once

#include <array>
#include <string>
#include <vector>

#include "dialogs/Choices.h"
#include "dialogs/Field.h"
#include "dialogs/PositionField.h"
#include "model/SceneryObject.h"

namespace dialogs {

inline constexpr std::array<const char*, 4> kMarkerTypes = { "Inner", "Middle", "Outer", "Back Course" };

struct MarkerFields {
    std::string ident;
    int type = -1;  // position in kMarkerTypes: the type code
    CoordinateTexts position;
    std::string elevation, heading;
};

double MarkerHeading(const SceneryObject* marker);  // degrees true; the record has 256 of a turn

MarkerFields LoadMarkerFields(const SceneryObject* marker);
bool StoreMarkerFields(const MarkerFields& shown, const MarkerFields& entered, SceneryObject* marker, BadField* bad);

// "New Marker Beacons": which kinds, and how far before the threshold. Index is the type code.
struct NewMarkerFields {
    int runwayEnd = -1;  // position in AllRunwayEnds(), shown as "Rwy 16L"
    std::array<bool, 3> wanted = {};
    std::array<std::string, 3> distance;  // feet or metres
};

// False after a message: there is no runway.
bool LoadNewMarkerFields(NewMarkerFields* fields);
std::vector<std::string> MarkerRunwayChoices();

// Places the wanted markers on the extended centre line of the runway end, as one action.
bool CreateMarkers(const NewMarkerFields& shown, const NewMarkerFields& entered, BadField* bad);

}  // namespace dialogs
