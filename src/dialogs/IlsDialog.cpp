// IlsDialog.cpp - see IlsDialog.h.
#include "dialogs/IlsDialog.h"

#include <cmath>
#include <cstring>

#include "dialogs/Choices.h"
#include "dialogs/Edits.h"
#include "dialogs/IlsRunway.h"
#include "dialogs/NavaidFields.h"
#include "dialogs/NewIls.h"
#include "dialogs/Subject.h"
#include "dialogs/TextField.h"
#include "model/Ident.h"
#include "model/ObjectList.h"
#include "model/Records.h"

namespace dialogs {

namespace {

using model::DmePart;
using model::GlideSlopePart;
using model::IlsPayload;
using model::LocalizerPart;
using model::VorRecord;

constexpr size_t kLocalizerAt = offsetof(IlsPayload, localizer), kSlopeAt = offsetof(IlsPayload, glideSlope),
                 kDmeAt = offsetof(IlsPayload, dme);

constexpr Quantity kBeamWidth = { "beam width", Unit::Degrees, 0.1, 45, 2 };
constexpr Quantity kPitch = { "glide slope angle", Unit::Degrees, 0.1, 20, 2 };
constexpr Quantity kSlopeRange = { "glide slope range", Unit::Range, 100, 1e6 };

constexpr NumberRow<IlsFields> kLocalizerRows[] = {
    { Field::Elevation, &IlsFields::elevation, offsetof(VorRecord, altitude), &kElevation },
    { Field::Range, &IlsFields::range, offsetof(VorRecord, range), &kNavaidRange },
    { Field::Variation, &IlsFields::variation, offsetof(VorRecord, magneticVariation), &kVariation },
    { Field::Heading, &IlsFields::heading, kLocalizerAt + offsetof(LocalizerPart, heading), &kHeading },
    { Field::BeamWidth, &IlsFields::width, kLocalizerAt + offsetof(LocalizerPart, width), &kBeamWidth },
};
constexpr NumberRow<IlsFields> kSlopeRows[] = {
    { Field::Elevation, &IlsFields::slopeElevation, kSlopeAt + offsetof(GlideSlopePart, altitude), &kElevation,
      kGlideSlopeFields },
    { Field::Range, &IlsFields::slopeRange, kSlopeAt + offsetof(GlideSlopePart, range), &kSlopeRange,
      kGlideSlopeFields },
    { Field::Pitch, &IlsFields::slopePitch, kSlopeAt + offsetof(GlideSlopePart, pitch), &kPitch, kGlideSlopeFields },
};
constexpr NumberRow<IlsFields> kDmeRows[] = {
    { Field::Elevation, &IlsFields::dmeElevation, kDmeAt + offsetof(DmePart, altitude), &kElevation, kDmeFields },
    { Field::Range, &IlsFields::dmeRange, kDmeAt + offsetof(DmePart, range), &kDmeRange, kDmeFields },
};

model::EncodedPoint PointAt(const SceneryObject* ils, int part) {
    model::EncodedPoint point;
    std::memcpy(&point, ils->payload + IlsPositionOffset(part), sizeof point);
    return point;
}

// A part that never had a place has no bytes but zeros there.
bool IsUnplaced(const SceneryObject* ils, int part) {
    const model::EncodedPoint point = PointAt(ils, part);
    return point.longitude == 0 && point.latitude == 0;
}

CoordinateTexts ShowPart(const SceneryObject* ils, int part) {
    return IsUnplaced(ils, part) ? CoordinateTexts{} : ShowPoint(PointAt(ils, part));
}

bool ReadPart(const CoordinateTexts& shown, const CoordinateTexts& entered, int part, SceneryObject* draft,
              BadField* bad) {
    model::EncodedPoint point = PointAt(draft, part);
    if (!ReadPoint(shown, entered, &point, bad, part)) return false;
    std::memcpy(draft->payload + IlsPositionOffset(part), &point, sizeof point);
    return true;
}

// Places a part that is switched on for the first time: at its usual site, or with the localizer when no
// runway is known.
void PlaceSlope(const SceneryObject* live, SceneryObject* ils) {
    auto& payload = model::PayloadAs<IlsPayload>(ils);
    if (!IsUnplaced(ils, kGlideSlopeFields)) return;
    const uint16_t carried = payload.glideSlope.carried;
    const RunwayEndRef ref = EndServedBy(live);
    if (ref.runway) {
        payload.glideSlope = UsualGlideSlope(ref);
    } else {
        payload.glideSlope =
            UsualGlideSlopeAt({ payload.body.longitude, payload.body.latitude }, payload.body.altitude);
    }
    payload.glideSlope.carried = carried;
}

void PlaceDme(SceneryObject* ils) {
    auto& payload = model::PayloadAs<IlsPayload>(ils);
    if (!IsUnplaced(ils, kDmeFields)) return;
    const uint16_t carried = payload.dme.carried;
    GlideSlopePart site = payload.glideSlope;
    if ((payload.body.flags & model::kHasGlideSlope) == 0) {
        site.longitude = payload.body.longitude;
        site.latitude = payload.body.latitude;
        site.altitude = payload.body.altitude;
    }
    payload.dme = UsualDme(site);
    payload.dme.carried = carried;
}

// The part of `copy` where the map shows that of `live`.
void StandAsShown(const SceneryObject* live, int part, SceneryObject* copy) {
    if (IsUnplaced(live, part)) return;
    const model::EncodedPoint point = PointAt(live, part);
    std::memcpy(copy->payload + IlsPositionOffset(part), &point, sizeof point);
}

void LoadSlope(const SceneryObject* ils, IlsFields* fields) {
    fields->slopePosition = ShowPart(ils, kGlideSlopeFields);
    LoadNumbers<IlsFields>(kSlopeRows, ils, fields);
}

void LoadDme(const SceneryObject* ils, IlsFields* fields) {
    fields->dmePosition = ShowPart(ils, kDmeFields);
    LoadNumbers<IlsFields>(kDmeRows, ils, fields);
}

void SetFlag(uint8_t flag, bool was, bool is, uint8_t* flags) {
    if (was != is) *flags = static_cast<uint8_t>(is ? *flags | flag : *flags & ~flag);
}

constexpr std::string IlsFields::*kSlopeTexts[] = { &IlsFields::slopeElevation, &IlsFields::slopeRange,
                                                    &IlsFields::slopePitch };
constexpr std::string IlsFields::*kDmeTexts[] = { &IlsFields::dmeElevation, &IlsFields::dmeRange };

// The fields of a part that has just got its usual place: what the user did not touch is as in `usual`.
template <size_t N>
void TakeUsual(const IlsFields& usual, CoordinateTexts IlsFields::*position, std::string IlsFields::*const (&texts)[N],
               IlsFields* shown, IlsFields* entered) {
    if ((entered->*position).latitude == (shown->*position).latitude &&
        (entered->*position).longitude == (shown->*position).longitude)
        entered->*position = usual.*position;
    shown->*position = usual.*position;
    for (const auto text : texts) {
        if (entered->*text == shown->*text) entered->*text = usual.*text;
        shown->*text = usual.*text;
    }
}

// The glide slope and DME. The texts of a part that is off are not read.
bool StoreSlopeAndDme(IlsFields shown, IlsFields entered, const SceneryObject* live, SceneryObject* draft,
                      BadField* bad) {
    auto& payload = model::PayloadAs<IlsPayload>(draft);
    SetFlag(model::kHasGlideSlope, shown.glideSlope, entered.glideSlope, &payload.body.flags);
    SetFlag(model::kHasDme, shown.dme, entered.dme, &payload.body.flags);
    if (entered.glideSlope) {
        if (!shown.glideSlope) {
            PlaceSlope(live, draft);
            IlsFields usual;
            LoadSlope(draft, &usual);
            TakeUsual(usual, &IlsFields::slopePosition, kSlopeTexts, &shown, &entered);
        }
        if (!ReadPart(shown.slopePosition, entered.slopePosition, kGlideSlopeFields, draft, bad) ||
            !StoreNumbers<IlsFields>(kSlopeRows, shown, entered, draft, bad))
            return false;
    }
    if (!entered.dme) return true;
    if (!shown.dme) {
        PlaceDme(draft);
        IlsFields usual;
        LoadDme(draft, &usual);
        TakeUsual(usual, &IlsFields::dmePosition, kDmeTexts, &shown, &entered);
    }
    return ReadPart(shown.dmePosition, entered.dmePosition, kDmeFields, draft, bad) &&
           StoreNumbers<IlsFields>(kDmeRows, shown, entered, draft, bad);
}

}  // namespace

int PartForClick(int part, const IlsFields& fields) {
    const bool isOff = (part == kGlideSlopeFields && !fields.glideSlope) || (part == kDmeFields && !fields.dme);
    return isOff ? kLocalizerFields : part;
}

size_t IlsPositionOffset(int part) {
    if (part == kGlideSlopeFields) return kSlopeAt + offsetof(GlideSlopePart, longitude);
    return part == kDmeFields ? kDmeAt + offsetof(DmePart, longitude) : offsetof(VorRecord, longitude);
}

IlsFields LoadIlsFields(const SceneryObject* ils) {
    const auto& payload = model::PayloadAs<IlsPayload>(ils);
    IlsFields fields;
    fields.ident = ShowIdentWord(ils->payload + offsetof(VorRecord, ident));
    fields.name = ShowText(payload.name, sizeof payload.name);
    fields.frequency = ShowNavFrequency(payload.body.frequency, FrequencyKind::Localizer);
    LoadIlsEnd(ils, &fields);
    fields.backCourse = (payload.body.flags & model::kHasBackCourse) != 0;
    fields.glideSlope = (payload.body.flags & model::kHasGlideSlope) != 0;
    fields.dme = (payload.body.flags & model::kHasDme) != 0;
    fields.position = ShowPoint(PointOf(ils));
    LoadNumbers<IlsFields>(kLocalizerRows, ils, &fields);
    LoadSlope(ils, &fields);
    LoadDme(ils, &fields);
    return fields;
}

bool StoreIlsFields(const IlsFields& shown, const IlsFields& entered, SceneryObject* ils, BadField* bad) {
    Edits edits;
    SceneryObject* draft = DraftOf(&edits, ils);
    auto& payload = model::PayloadAs<IlsPayload>(draft);
    uint32_t frequency = payload.body.frequency;
    if (!ReadIdentWord(shown.ident, entered.ident, 1, draft->payload + offsetof(VorRecord, ident), bad) ||
        !ReadName(shown.name, entered.name, payload.name, sizeof payload.name, bad) ||
        !ReadNavFrequency(FrequencyKind::Localizer, shown.frequency, entered.frequency, false, &frequency, bad) ||
        !ReadPosition(shown.position, entered.position, draft, bad) ||
        !StoreNumbers<IlsFields>(kLocalizerRows, shown, entered, draft, bad) ||
        !StoreSlopeAndDme(shown, entered, ils, draft, bad))
        return false;
    payload.body.frequency = frequency;
    SetFlag(model::kHasBackCourse, shown.backCourse, entered.backCourse, &payload.body.flags);
    if (!StoreIlsEnd(shown, entered, ils, &edits, bad)) return false;
    Commit(&edits);
    return true;
}

void SwitchGlideSlope(const SceneryObject* ils, bool on, IlsFields* fields) {
    fields->glideSlope = on;
    if (!on || !IsUnplaced(ils, kGlideSlopeFields) || !fields->slopePosition.latitude.empty()) return;
    const ObjectPtr usual(model::CopyObject(ils));
    PlaceSlope(ils, usual.get());
    LoadSlope(usual.get(), fields);
}

void SwitchDme(const SceneryObject* ils, bool on, IlsFields* fields) {
    fields->dme = on;
    if (!on || !IsUnplaced(ils, kDmeFields) || !fields->dmePosition.latitude.empty()) return;
    const ObjectPtr usual(model::CopyObject(ils));
    UndoPreviewIn(usual.get(), ils);
    SetFlag(model::kHasGlideSlope, !fields->glideSlope, fields->glideSlope,
            &model::PayloadAs<IlsPayload>(usual.get()).body.flags);
    if (fields->glideSlope) PlaceSlope(ils, usual.get());  // it may just have been switched on too
    for (const int part : { kLocalizerFields, kGlideSlopeFields }) StandAsShown(ils, part, usual.get());
    PlaceDme(usual.get());
    LoadDme(usual.get(), fields);
}

std::string MagneticCourseText(const std::string& heading, const std::string& variation) {
    double course = 0, east = 0;
    if (!ReadNumber(heading, &course) || !ReadNumber(variation, &east)) return "";
    if (course < 0 || course > 360 || std::fabs(east) > 360) return "";
    return HeadingText(std::fmod(course - east + 360, 360));
}

}  // namespace dialogs
