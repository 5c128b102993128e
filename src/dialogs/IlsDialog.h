// IlsDialog.h - "ILS Properties": localizer, glide slope and DME.
#pragma once

#include <string>

#include "dialogs/Field.h"
#include "dialogs/PositionField.h"
#include "model/SceneryObject.h"

namespace dialogs {

using model::SceneryObject;

// `part` of a refused field.
inline constexpr int kLocalizerFields = 0, kGlideSlopeFields = 1, kDmeFields = 2;

struct IlsFields {
    std::string ident, name, frequency;  // megahertz
    int number = -1, suffix = -1;        // of the runway end: RunwayNumberChoices() and kSuffixChoices
    bool backCourse = false;
    CoordinateTexts position;  // of the localizer antenna
    std::string elevation, range, variation, heading, width;
    bool glideSlope = false;
    CoordinateTexts slopePosition;
    std::string slopeElevation, slopeRange, slopePitch;
    bool dme = false;
    CoordinateTexts dmePosition;
    std::string dmeElevation, dmeRange;
};

IlsFields LoadIlsFields(const SceneryObject* ils);

// Runways that name the ILS follow its identifier, and the name goes to another runway end with the
// number; an end that has an ILS is refused. A part that is switched on and never had a place gets its usual one.
bool StoreIlsFields(const IlsFields& shown, const IlsFields& entered, SceneryObject* ils, BadField* bad);

// The user switches a part on or off: the texts of one that never had a place become its usual ones.
void SwitchGlideSlope(const SceneryObject* ils, bool on, IlsFields* fields);
void SwitchDme(const SceneryObject* ils, bool on, IlsFields* fields);

// The magnetic course for the true heading that is typed; empty when it cannot be read. The variation is
// the ILS's own, as shown.
std::string MagneticCourseText(const std::string& heading, const std::string& variation);

// The part that a click on the map places: that whose fields the user was in last, the localizer when it is off.
int PartForClick(int part, const IlsFields& fields);
size_t IlsPositionOffset(int part);  // where in the payload its place is

}  // namespace dialogs
