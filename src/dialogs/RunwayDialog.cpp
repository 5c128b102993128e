// RunwayDialog.cpp - the runway editor as a whole: its pages in order, then what follows the runway.
#include "dialogs/RunwayDialog.h"

#include <cmath>

#include "dialogs/Edits.h"
#include "dialogs/NavaidFields.h"
#include "dialogs/NumberField.h"
#include "dialogs/RunwayFollow.h"
#include "dialogs/RunwayParts.h"
#include "dialogs/Subject.h"
#include "model/Names.h"
#include "model/ObjectList.h"
#include "model/RunwayBits.h"

namespace dialogs {

namespace {

using model::RunwayPayload;
using model::RunwayRecord;

constexpr uint8_t kNorth = 36, kSouth = 18;
constexpr float kUsualWidth = 46, kUsualPatternAltitude = 304.8F;  // metres; 1000 ft above the field
constexpr uint16_t kVisualMarkings = model::kCentreLine | model::kDesignation;
constexpr uint8_t kVisualLights = 2;  // edge lights of medium strength

}  // namespace

RunwayPage PageOf(const BadField& bad) {
    switch (bad.field) {
    case Field::Strobes: return RunwayPage::Lights;
    case Field::VasiDistance:
    case Field::VasiOffset:
    case Field::VasiSpacing:
    case Field::VasiSlope: return RunwayPage::Vasi;
    default: return RunwayPage::Data;
    }
}

RunwayFields LoadRunwayFields(const SceneryObject* runway) {
    RunwayFields fields;
    LoadDataPage(runway, &fields);
    LoadLightsPage(runway, &fields);
    LoadVasiPage(runway, &fields);
    LoadMarkingsPage(runway, &fields);
    return fields;
}

bool StoreRunwayFields(const RunwayFields& shown, const RunwayFields& entered, SceneryObject* runway, BadField* bad) {
    *bad = {};
    Edits edits;
    SceneryObject* draft = DraftOf(&edits, runway);
    const float oldLength = model::PayloadAs<RunwayPayload>(draft).body.length;
    if (!StoreDataPage(shown, entered, draft, bad) || !StoreLightsPage(shown, entered, draft, bad)) return false;
    KeepVasiDistances(oldLength, draft);
    if (!StoreVasiPage(shown, entered, draft, bad)) return false;
    StoreMarkingsPage(shown, entered, draft);
    if (!IsProvisional(runway)) {
        if (!MoveWithRunway(runway, draft, &edits)) return false;
        RenameWithRunway(runway, draft, &edits);
    }
    Commit(&edits);
    return true;
}

std::string VariationText() { return ShowNumber(kVariation, AirportVariation()); }

std::string MagneticHeadingText(const std::string& heading) {
    double trueHeading = 0;
    if (!ReadNumber(heading, &trueHeading) || trueHeading < 0 || trueHeading > 360) return "";
    // The variation is west positive, and a file may hold it with a sign.
    const double turned = std::fmod(trueHeading + AirportVariation(), 360);
    return HeadingText(turned < 0 ? turned + 360 : turned);
}

std::string NameOfEnd(const RunwayEndFields& fields, const SceneryObject* runway, int end) {
    const RunwayEndPlaces& places = kEndPlaces[end];
    const uint32_t number = fields.number < 0 ? runway->payload[places.number] : static_cast<uint32_t>(fields.number);
    const uint32_t suffix =
        fields.suffix < 0 ? runway->payload[places.designator] : static_cast<uint32_t>(fields.suffix);
    return model::RunwayEndName(number, suffix);
}

SceneryObject* InsertRunway() {
    SceneryObject* runway = MakeProvisional(model::kRunway, sizeof(RunwayPayload));
    RunwayRecord& body = model::PayloadAs<RunwayPayload>(runway).body;
    SetPoint(runway, kPlaceholder);
    body.altitude = AirportAltitude();
    body.surface = model::kAsphalt;
    body.primaryNumber = kNorth;
    body.secondaryNumber = kSouth;
    body.width = kUsualWidth;
    body.patternAltitude = kUsualPatternAltitude;
    body.markings = kVisualMarkings;
    body.lights = kVisualLights;
    return runway;
}

}  // namespace dialogs
