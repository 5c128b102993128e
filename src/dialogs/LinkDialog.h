// LinkDialog.h - "Link Properties": the fields, how they depend on each other, and which selected links
// they change.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "dialogs/Edits.h"
#include "dialogs/Field.h"
#include "model/SceneryObject.h"

namespace dialogs {

inline constexpr std::array<const char*, 3> kEdgeLineNames = { "No Line", "Solid Line", "Dashed Line" };

struct LinkFields {
    int designator = -1;                // position in DesignatorChoices()
    int type = -1;                      // position in LinkTypeChoices()
    int surface = -1;                   // position in SurfaceChoices()
    std::string width;                  // whole feet or metres
    int leftEdge = -1, rightEdge = -1;  // position in kEdgeLineNames; -1 for another style
    bool leftLights = false, rightLights = false;
    bool centreLine = false, centreLights = false;
};

// The types that this link can get, in the order of the combo box: one only for a parking connector.
std::vector<uint32_t> LinkTypeChoices(const SceneryObject* link);
const char* LinkTypeName(uint32_t type);

LinkFields LoadLinkFields(const SceneryObject* link);

// Writes what changed to every selected link and makes this link the pattern for new ones. Refused where the blank
// designator would be one too many.
bool StoreLinkFields(const LinkFields& shown, const LinkFields& entered, SceneryObject* link, BadField* bad);

// The blank designator; a new one among the edits when the airport has none.
SceneryObject* BlankDesignatorIn(Edits* edits);

// Whether the airport can get one more designator. False after the message of a refusal.
bool HasRoomForDesignator();

// Gives a link the designator, as OK does: a link after a runway is a Runway link of the runway's width, a
// Runway link after a taxiway becomes a Taxiway. Parking connectors stay as they are.
void DesignateLink(SceneryObject* draft, SceneryObject* designator);

}  // namespace dialogs
