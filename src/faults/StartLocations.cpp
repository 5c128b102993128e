// StartLocations.cpp - check 4: runway ends without a start location of their name.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <set>

#include "faults/Checks.h"
#include "faults/Messages.h"
#include "model/Names.h"
#include "model/Records.h"
#include "model/RunwayBits.h"

namespace faults {

namespace {

// Runway ends that a start location serves; a helipad's is named "Helipad" and serves none.
std::set<std::string> ServedEnds(const Network& network) {
    std::set<std::string> names;
    for (const SceneryObject* start : network.startLocations) {
        const auto& record = model::PayloadAs<model::StartLocationRecord>(start);
        if (model::StartTypeOf(record) == model::kHelipadStart) continue;
        names.insert(model::RunwayEndName(record.number, model::StartSuffix(record)));
    }
    return names;
}

// Where the start belongs. The length and heading of a damaged record may lead to no place on earth: the centre then.
LatLon PlaceOf(const MissingStart& missing) {
    const model::RunwayArea area = model::AreaOf(missing.runway);
    const double length = double{ model::PayloadAs<model::RunwayPayload>(missing.runway).body.length };
    const double heading = missing.atReciprocalEnd ? area.heading : area.heading + model::kPi;
    const LatLon place = model::OffsetByPolar(area.centre, { length / 2 - kStartInset, heading });
    const bool isOnEarth = std::fabs(place.lat) <= model::kPi / 2 && std::isfinite(place.lon);
    return isOnEarth ? place : area.centre;
}

}  // namespace

void PrepareStartLocations(PassData* data) {
    const std::set<std::string> served = ServedEnds(data->network);
    data->missingStarts.clear();
    for (const model::RunwayArea& area : data->network.runways) {
        const model::RunwayRecord& body = model::PayloadAs<model::RunwayPayload>(area.runway).body;
        const auto examine = [&](bool reciprocal, const std::string& name) {
            const bool closed = body.pattern & (reciprocal ? model::kSecondaryNoTakeoff : model::kPrimaryNoTakeoff);
            if (!closed && !served.contains(name)) data->missingStarts.push_back({ area.runway, reciprocal, name });
        };
        examine(false, model::RunwayEndName(body.primaryNumber, body.primaryDesignator));
        examine(true, model::RunwayEndName(body.secondaryNumber, body.secondaryDesignator));
    }
    std::reverse(data->missingStarts.begin(), data->missingStarts.end());  // told last end first
}

bool FindMissingStart(const PassData& data, size_t from, Finding* finding) {
    if (from >= data.missingStarts.size()) return false;
    const MissingStart& missing = data.missingStarts[from];
    char message[1000];
    std::snprintf(message, sizeof message, kBadStartMessage, missing.endName.c_str());
    finding->report = { FaultCheck::StartLocations, message, { missing.runway }, PlaceOf(missing) };
    finding->mark = nullptr;
    finding->resumeAt = from + 1;
    return true;
}

}  // namespace faults
