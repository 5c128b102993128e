// RunwayDialog.h - the runway editor: one set of fields over four pages.
//
// End 0 is the base (primary) end, end 1 the reciprocal (secondary) end. "Overrun Area" is the blast pad
// part of the record: the part that is written to the file and that localizers are measured from.
#pragma once

#include <array>
#include <string>

#include "dialogs/Field.h"
#include "dialogs/PositionField.h"
#include "model/SceneryObject.h"

namespace dialogs {

using model::SceneryObject;

inline constexpr std::array<const char*, 4> kLightLevels = { "None", "Low", "Medium", "High" };

struct VasiFields {
    int system = -1;  // position in model::SlopeLightsNames()
    std::string distance, offset, spacing, slope;
};

struct RunwayEndFields {
    int number = -1, suffix = -1;  // positions in RunwayNumberChoices() and kSuffixChoices
    bool noTakeoff = false, noLanding = false, rightPattern = false;
    std::string overrun, displaced;
    std::string ilsIdent;     // read only
    int approachSystem = -1;  // position in model::ApproachLightsNames()
    std::string strobes;
    bool endLights = false, reil = false, touchdownLights = false;
    bool closedMark = false, stolMark = false;
    VasiFields left, right;
};

struct RunwayFields {
    CoordinateTexts position;
    std::string elevation, length, width, patternAltitude, heading;
    int surface = -1;
    std::array<RunwayEndFields, 2> ends;
    int edgeLights = -1, centreLights = -1;  // positions in kLightLevels
    bool redEndLights = false;
    bool centreLine = false, edgeLines = false, edgePavement = false, precision = false;
    bool aimingPoint = false, touchdownZone = false, numbers = false, threshold = false;
    bool noMarkings = false;  // at the reciprocal end
};

enum class RunwayPage { Data, Lights, Vasi, Markings };

// A VASI field's `part`: end x 2, plus 1 for the right unit. Other fields of an end: the end.
RunwayPage PageOf(const BadField& bad);

RunwayFields LoadRunwayFields(const SceneryObject* runway);

// Beyond the fields: a changed designator is renamed wherever it is used, and what belongs to the runway
// moves with it when the user agrees. All of it is one action.
bool StoreRunwayFields(const RunwayFields& shown, const RunwayFields& entered, SceneryObject* runway, BadField* bad);

// The read-only texts beside the true heading.
std::string VariationText();                                  // "- Magnetic Variation", east positive
std::string MagneticHeadingText(const std::string& heading);  // empty when the heading cannot be read

// "16L": the name of an end as its designator boxes stand. A code that is no choice of theirs keeps its name.
std::string NameOfEnd(const RunwayEndFields& fields, const SceneryObject* runway, int end);

// Whether there is a unit: with the system "none" its other fields are neither judged nor stored.
bool HasVasiUnit(const VasiFields& fields);

// The user chooses a system where there was none: the other fields of the unit, if all are zero, become
// those of a usual installation at that end of the runway as it is entered.
void ChooseVasiSystem(VasiFields* fields, int system, const RunwayFields& runway, size_t end);

// "Insert Runway": a provisional asphalt runway with the marks and lights of a visual one.
SceneryObject* InsertRunway();

}  // namespace dialogs
