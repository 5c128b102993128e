// MarkerDialog.cpp - see MarkerDialog.h.
#include "dialogs/MarkerDialog.h"

#include <cmath>

#include "dialogs/Edits.h"
#include "dialogs/NumberField.h"
#include "dialogs/RunwayPlaces.h"
#include "dialogs/TextField.h"
#include "model/Ident.h"
#include "model/Records.h"
#include "platform/Platform.h"

namespace dialogs {

namespace {

using model::MarkerBeaconPayload;

constexpr double kHeadingUnits = 256;  // of a turn
constexpr Quantity kDistance = { "distance", Unit::Length, 0, 50000 };

// By type code: inner, middle, outer. The distances before the threshold are usual ones, metres.
constexpr double kUsualDistance[] = { 300, 1050, 7200 };
constexpr const char* kIdents[] = { "IM", "MM", "OM" };

constexpr NumberRow<MarkerFields> kRows[] = {
    { Field::Elevation, &MarkerFields::elevation, offsetof(MarkerBeaconPayload, altitude), &kElevation },
};

uint8_t EncodedHeading(double degrees) {
    return static_cast<uint8_t>(std::lround(degrees * kHeadingUnits / 360) & 0xFF);
}

ObjectPtr MakeMarker(const RunwayEndRef& ref, uint8_t type, double distance) {
    ObjectPtr marker(model::CreateObject(model::kMarkerBeacon, sizeof(MarkerBeaconPayload)));
    auto& record = model::PayloadAs<MarkerBeaconPayload>(marker.get());
    record.type = type;
    record.heading = EncodedHeading(EndHeading(ref));
    record.ident = model::PackIdent(kIdents[type]) << model::kIdentShift;
    record.altitude = model::PayloadAs<model::RunwayPayload>(ref.runway).body.altitude;
    const model::EncodedPoint point = PlaceFromThreshold(ref, -distance, 0);
    SetPoint(marker.get(), point);
    return marker;
}

}  // namespace

double MarkerHeading(const SceneryObject* marker) {
    return model::PayloadAs<MarkerBeaconPayload>(marker).heading * 360 / kHeadingUnits;
}

MarkerFields LoadMarkerFields(const SceneryObject* marker) {
    const auto& record = model::PayloadAs<MarkerBeaconPayload>(marker);
    MarkerFields fields;
    fields.ident = ShowIdentWord(marker->payload + offsetof(MarkerBeaconPayload, ident));
    fields.type = record.type < kMarkerTypes.size() ? record.type : -1;
    fields.position = ShowPoint(PointOf(marker));
    LoadNumbers<MarkerFields>(kRows, marker, &fields);
    fields.heading = ShowNumber(kHeading, MarkerHeading(marker));
    return fields;
}

bool StoreMarkerFields(const MarkerFields& shown, const MarkerFields& entered, SceneryObject* marker, BadField* bad) {
    Edits edits;
    SceneryObject* draft = DraftOf(&edits, marker);
    auto& record = model::PayloadAs<MarkerBeaconPayload>(draft);
    if (!ReadIdentWord(shown.ident, entered.ident, 0, draft->payload + offsetof(MarkerBeaconPayload, ident), bad) ||
        !ReadPosition(shown.position, entered.position, draft, bad) ||
        !StoreNumbers<MarkerFields>(kRows, shown, entered, draft, bad))
        return false;
    double heading = 0;
    if (!ReadQuantity(kHeading, shown.heading, entered.heading, &heading)) {
        *bad = { Field::Heading };
        return false;
    }
    if (!RequirePosition(draft, "the marker", bad)) return false;
    if (entered.heading != shown.heading) record.heading = EncodedHeading(heading);
    if (entered.type >= 0 && entered.type != shown.type) record.type = static_cast<uint8_t>(entered.type);
    Commit(&edits);
    return true;
}

std::vector<std::string> MarkerRunwayChoices() {
    std::vector<std::string> names;
    for (const RunwayEndRef& ref : AllRunwayEnds()) names.push_back("Rwy " + EndName(ref.runway, ref.end));
    return names;
}

bool LoadNewMarkerFields(NewMarkerFields* fields) {
    if (AllRunwayEnds().empty())
        return platform::ShowRefusal("You must create a runway before you can create marker beacons");
    fields->runwayEnd = 0;
    fields->wanted = { true, true, true };
    for (size_t type = 0; type < 3; ++type) fields->distance[type] = ShowNumber(kDistance, kUsualDistance[type]);
    return true;
}

bool CreateMarkers(const NewMarkerFields& shown, const NewMarkerFields& entered, BadField* bad) {
    const std::vector<RunwayEndRef> ends = AllRunwayEnds();
    const RunwayEndRef* end = ChosenEnd(ends, entered.runwayEnd, bad);
    if (!end) return false;
    if (!entered.wanted[0] && !entered.wanted[1] && !entered.wanted[2]) {
        *bad = { Field::MarkerKind, 2 };
        return platform::ShowRefusal("You must select at least one of the marker types\n");
    }
    Edits edits;
    for (size_t i = 3; i-- > 0;) {  // from the outer one in
        if (!entered.wanted[i]) continue;
        double distance = kUsualDistance[i];
        if (!ReadQuantity(kDistance, shown.distance[i], entered.distance[i], &distance)) {
            *bad = { Field::Distance, static_cast<int>(i) };
            return false;
        }
        AddDraft(&edits, MakeMarker(*end, static_cast<uint8_t>(i), distance));
    }
    Commit(&edits);
    return true;
}

}  // namespace dialogs
