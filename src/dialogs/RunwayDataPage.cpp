// RunwayDataPage.cpp - the data page of the runway editor.
#include <cstring>

#include "dialogs/Choices.h"
#include "dialogs/NumberField.h"
#include "dialogs/RunwayParts.h"
#include "dialogs/TextField.h"
#include "model/Ident.h"
#include "model/RunwayBits.h"
#include "platform/Platform.h"

namespace dialogs {

namespace {

using model::RunwayAreaPart;
using model::RunwayPayload;
using model::RunwayRecord;

constexpr double kLongest = 50000;  // metres
// Zero is refused by the checks of the page; less than zero passes.
constexpr Quantity kLength = { "runway length", Unit::Length, -kLongest, kLongest };
constexpr Quantity kWidth = { "runway width", Unit::Length, -kLongest, kLongest };
constexpr Quantity kPatternAltitude = { "pattern altitude", Unit::Length, -1000, 30000 };
constexpr Quantity kOverrun = { "overrun area", Unit::Length, 0, kLongest };
constexpr Quantity kDisplaced = { "displaced threshold", Unit::Length, 0, kLongest };
constexpr Quantity kWholeElevation = { "elevation", Unit::Elevation, -2e6, 30e6, 1, 0, false, true };
constexpr Quantity kTrueHeading = { "true heading", Unit::Degrees, 0, 360, 1 };

// In the order in which they are read.
constexpr NumberRow<RunwayFields> kFirstRows[] = {
    { Field::Elevation, &RunwayFields::elevation, offsetof(RunwayRecord, altitude), &kWholeElevation },
    { Field::Length, &RunwayFields::length, offsetof(RunwayRecord, length), &kLength },
    { Field::Width, &RunwayFields::width, offsetof(RunwayRecord, width), &kWidth },
};
constexpr NumberRow<RunwayFields> kLastRows[] = {
    { Field::PatternAltitude, &RunwayFields::patternAltitude, offsetof(RunwayRecord, patternAltitude),
      &kPatternAltitude },
    { Field::Heading, &RunwayFields::heading, offsetof(RunwayRecord, heading), &kTrueHeading },
};

// Bits of the pattern byte, by end.
constexpr BitRow<RunwayEndFields> kPatternBits[2][3] = {
    { { &RunwayEndFields::noTakeoff, model::kPrimaryNoTakeoff },
      { &RunwayEndFields::noLanding, model::kPrimaryNoLanding },
      { &RunwayEndFields::rightPattern, model::kPrimaryRightPattern } },
    { { &RunwayEndFields::noTakeoff, model::kSecondaryNoTakeoff },
      { &RunwayEndFields::noLanding, model::kSecondaryNoLanding },
      { &RunwayEndFields::rightPattern, model::kSecondaryRightPattern } },
};

constexpr uint8_t kFirstRefusedBase = 41;  // "S": the base end is one of N, E, NW, SW

RunwayAreaPart PartAt(const SceneryObject* object, size_t offset) {
    RunwayAreaPart part;
    std::memcpy(&part, object->payload + offset, sizeof part);
    return part;
}

constexpr uint16_t kSurfaceCode = 0xFF;  // the bits above are carried

// A part that comes into being gets the runway's surface and width; one of no length is absent, and an
// absent part is all zero.
bool StorePart(const Quantity& quantity, const std::string& shown, const std::string& entered, size_t offset,
               SceneryObject* draft) {
    if (entered == shown) return true;
    RunwayAreaPart part = PartAt(draft, offset);
    double length = 0;
    if (!ReadQuantity(quantity, shown, entered, &length)) return false;
    const RunwayRecord& body = model::PayloadAs<RunwayPayload>(draft).body;
    if (part.length == 0) {
        part.surface = body.surface & kSurfaceCode;
        part.width = body.width;
    }
    part.length = static_cast<float>(length);
    if (part.length == 0) part = {};
    std::memcpy(draft->payload + offset, &part, sizeof part);
    return true;
}

// In the order in which they are read.
struct PartRow {
    Field field;
    std::string RunwayEndFields::*text;
    size_t RunwayEndPlaces::*place;
    const Quantity* quantity;
};
constexpr PartRow kParts[] = {
    { Field::Overrun, &RunwayEndFields::overrun, &RunwayEndPlaces::blastPad, &kOverrun },
    { Field::DisplacedThreshold, &RunwayEndFields::displaced, &RunwayEndPlaces::displaced, &kDisplaced },
};

bool StoreParts(const RunwayFields& shown, const RunwayFields& entered, SceneryObject* draft, BadField* bad) {
    for (const PartRow& row : kParts) {
        for (size_t end = 0; end < 2; ++end) {
            if (StorePart(*row.quantity, shown.ends[end].*row.text, entered.ends[end].*row.text,
                          kEndPlaces[end].*row.place, draft))
                continue;
            *bad = { row.field, static_cast<int>(end) };
            return false;
        }
    }
    return true;
}

void StoreSurface(const RunwayFields& shown, const RunwayFields& entered, SceneryObject* draft) {
    if (entered.surface < 0 || entered.surface == shown.surface) return;
    auto& body = model::PayloadAs<RunwayPayload>(draft).body;
    body.surface = static_cast<uint16_t>((body.surface & ~kSurfaceCode) | entered.surface);
}

void StoreChoices(const RunwayFields& shown, const RunwayFields& entered, SceneryObject* draft) {
    auto& body = model::PayloadAs<RunwayPayload>(draft).body;
    uint32_t pattern = body.pattern;
    for (size_t end = 0; end < 2; ++end) {
        const RunwayEndFields &was = shown.ends[end], &is = entered.ends[end];
        if (is.number >= 0 && is.number != was.number)
            draft->payload[kEndPlaces[end].number] = static_cast<uint8_t>(is.number);
        if (is.suffix >= 0 && is.suffix != was.suffix)
            draft->payload[kEndPlaces[end].designator] = static_cast<uint8_t>(is.suffix);
        pattern = StoreBits(kPatternBits[end], was, is, pattern);
    }
    body.pattern = static_cast<uint8_t>(pattern);
}

bool Refuse(const char* message, Field field, BadField* bad) {
    platform::ShowError(message);
    *bad = { field };
    return false;
}

bool CheckData(const SceneryObject* draft, BadField* bad) {
    if (!RequirePosition(draft, "the center of the runway", bad)) return false;
    const RunwayRecord& body = model::PayloadAs<RunwayPayload>(draft).body;
    if (body.length == 0) return Refuse("You must enter the runway length (e.g. 10000 feet)\n", Field::Length, bad);
    if (body.width == 0) return Refuse("You must enter the runway width (e.g. 200 feet)\n", Field::Width, bad);
    if (body.primaryNumber >= kFirstRefusedBase)
        return Refuse("The Base runway designator can't be S,W,SE or NE,\nit must be N,E,NW,SW or 0 to 36",
                      Field::Designator, bad);
    return true;
}

// An emptied length or width is none, which the checks of the page refuse in their own words.
RunwayFields NoneForBlank(RunwayFields entered) {
    for (std::string* text : { &entered.length, &entered.width }) {
        if (IsBlank(*text)) *text = '0';
    }
    return entered;
}

}  // namespace

void LoadDataPage(const SceneryObject* runway, RunwayFields* fields) {
    const RunwayRecord& body = model::PayloadAs<RunwayPayload>(runway).body;
    fields->position = ShowPoint(PointOf(runway));
    LoadNumbers<RunwayFields>(kFirstRows, runway, fields);
    LoadNumbers<RunwayFields>(kLastRows, runway, fields);
    fields->surface = SurfaceIndex(body.surface & kSurfaceCode);
    for (size_t end = 0; end < 2; ++end) {
        RunwayEndFields& to = fields->ends[end];
        to.number = RunwayNumberIndex(runway->payload[kEndPlaces[end].number]);
        to.suffix = SuffixIndex(runway->payload[kEndPlaces[end].designator]);
        LoadBits(kPatternBits[end], body.pattern, &to);
        to.overrun = ShowNumber(kOverrun, PartAt(runway, kEndPlaces[end].blastPad).length);
        to.displaced = ShowNumber(kDisplaced, PartAt(runway, kEndPlaces[end].displaced).length);
        to.ilsIdent = model::UnpackIdent(model::IlsNamedBy(runway, ModelEnd(static_cast<int>(end))));
    }
}

bool StoreDataPage(const RunwayFields& shown, const RunwayFields& entered, SceneryObject* draft, BadField* bad) {
    StoreSurface(shown, entered, draft);  // new parts of the ends take it over
    if (!ReadPosition(shown.position, entered.position, draft, bad) ||
        !StoreNumbers<RunwayFields>(kFirstRows, shown, NoneForBlank(entered), draft, bad) ||
        !StoreParts(shown, entered, draft, bad) || !StoreNumbers<RunwayFields>(kLastRows, shown, entered, draft, bad))
        return false;
    StoreChoices(shown, entered, draft);
    return CheckData(draft, bad);
}

}  // namespace dialogs
