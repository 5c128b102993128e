// NewIls.cpp - see NewIls.h. Sites and beam width are those of ICAO Annex 10.
#include "dialogs/NewIls.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <memory>
#include <random>

#include "dialogs/Edits.h"
#include "dialogs/NavaidFields.h"
#include "dialogs/PositionField.h"
#include "dialogs/RunwayFollow.h"
#include "dialogs/RunwayParts.h"
#include "dialogs/RunwayPlaces.h"
#include "model/Ident.h"
#include "model/ObjectList.h"
#include "model/Positions.h"
#include "model/Triangulate.h"
#include "platform/Platform.h"

namespace dialogs {

namespace {

using model::IlsPayload;

constexpr double kBehindRunway = 304.8;                     // metres from the pavement to the localizer
constexpr double kSlopeInward = 300, kSlopeSideways = 120;  // metres from threshold and centre line
constexpr float kSlopeRange = 18520, kSlopePitch = 3;       // metres, degrees
constexpr float kIlsRange = 50017;                          // metres
constexpr double kHalfCourse = 105;                         // metres, at the threshold
constexpr double kNarrowest = 3, kWidest = 6;               // degrees
constexpr uint8_t kNewFlags =
    model::kHasVor | model::kHasBackCourse | model::kHasGlideSlope | model::kHasDme | model::kNavTrue;
constexpr uint32_t kIlsIdentKind = 2;  // low bits of an ILS's ident word
constexpr const char* kNewIdent = "IABC";
constexpr int kMostDraws = 80;
constexpr uint32_t kFirstTenth = 1081, kTenths = 39, kHertzPerTenth = 100000;

bool HasIls(const RunwayEndRef& ref) { return !BelongingsOf(ref.runway, ref.end).ils.empty(); }

bool IsTaken(uint32_t hertz) {
    for (SceneryObject* ils = model::FirstOfKind(model::state.head, model::kIls); ils;
         ils = model::NextOfKind(ils, model::kIls)) {
        if (!model::IsReplacedStock(ils) && model::PayloadAs<IlsPayload>(ils).body.frequency == hertz) return true;
    }
    return false;
}

// The outline of an apron in the runway's plane: its area, and whether its corners lie to the right of the centre line
// (their sum is above 0) or to the left.
struct ApronSide {
    double area = 0, right = 0;
};
ApronSide SideOf(const SceneryObject* apron, const RunwayPlane& plane) {
    std::vector<model::Point> corners;
    ApronSide side;
    for (const model::EncodedPoint& point : model::ApronOutline(apron)) {
        corners.push_back(PlaceIn(plane, model::BglToLatLon({ point.latitude, point.longitude })));
        side.right += corners.back().x;
    }
    for (size_t i = 0, last = corners.size() - 1; i < corners.size(); last = i++) {
        side.area += corners[last].x * corners[i].y - corners[i].x * corners[last].y;
    }
    side.area = std::fabs(side.area) / 2;
    return side;
}

// 1 when the glide slope stands to the right of the approach, -1 to the left: away from the largest apron.
double SlopeSide(const RunwayEndRef& ref) {
    const RunwayPlane plane = PlaneOf(ref.runway);
    ApronSide largest;
    model::ForEachOfKind(model::kApron, [&](SceneryObject* apron) {
        const ApronSide side = SideOf(apron, plane);
        if (side.area > largest.area) largest = side;
    });
    if (largest.area == 0) return 1;
    const double away = largest.right > 0 ? -1 : 1;  // seen along the runway's heading
    return ref.end == kBaseEnd ? away : -away;
}

model::LatLon LocalizerPlace(const RunwayEndRef& ref) {
    const RunwayPlane plane = PlaneOf(ref.runway);
    const int far = ref.end == kBaseEnd ? kReciprocalEnd : kBaseEnd;
    const double range = plane.halfLength + BlastPadLength({ ref.runway, far }) + kBehindRunway;
    return model::OffsetByPolar(plane.centre, { range, EndHeading(ref) * model::kRadiansPerDegree });
}

void FillBody(const RunwayEndRef& ref, const std::function<uint32_t()>& random, model::VorRecord* body) {
    body->type = model::kIlsType;
    body->flags = kNewFlags;
    body->altitude = model::PayloadAs<model::RunwayPayload>(ref.runway).body.altitude;
    body->frequency = DrawIlsFrequency(random);
    body->range = kIlsRange;
    body->magneticVariation = AirportVariation();
    body->ident = model::PackIdent(kNewIdent) << model::kIdentShift | kIlsIdentKind;
    if (!model::state.airport) return;
    const uint32_t airport = model::PayloadAs<model::AirportRecord>(model::state.airport).ident;
    body->region = model::RegionWordWithAirport(0, airport);
}

}  // namespace

std::vector<RunwayEndRef> EndsForNewIls() {
    std::vector<RunwayEndRef> ends = AllRunwayEnds();
    if (ends.empty()) {
        platform::ShowRefusal("You must create a runway before you can create an ILS");
        return ends;
    }
    std::erase_if(ends, HasIls);
    if (ends.empty()) platform::ShowRefusal("Every runway already has an ILS, you cannot create any more");
    return ends;
}

uint32_t DrawIlsFrequency(const std::function<uint32_t()>& random) {
    uint32_t hertz = 0;
    for (int draw = 0; draw <= kMostDraws; ++draw) {
        uint32_t tenths;
        do tenths = random() % kTenths + kFirstTenth;
        while (tenths % 2 == 0);
        hertz = tenths * kHertzPerTenth;
        if (!IsTaken(hertz)) break;
    }
    return hertz;
}

std::function<uint32_t()> SeededRandom() {
    const auto generator = std::make_shared<std::mt19937>(static_cast<uint32_t>(platform::SystemFileTime()));
    return [generator] { return static_cast<uint32_t>((*generator)()); };
}

double LocalizerWidth(const RunwayEndRef& ref, model::LatLon localizer) {
    const model::EncodedPoint threshold = PlaceFromThreshold(ref, 0, 0);
    const double distance =
        model::DistanceBetween(localizer, model::BglToLatLon({ threshold.latitude, threshold.longitude }));
    if (distance <= 0) return kWidest;
    return std::clamp(2 * std::atan(kHalfCourse / distance) * model::kDegreesPerRadian, kNarrowest, kWidest);
}

model::GlideSlopePart UsualGlideSlope(const RunwayEndRef& ref) {
    return UsualGlideSlopeAt(PlaceFromThreshold(ref, kSlopeInward, SlopeSide(ref) * kSlopeSideways),
                             model::PayloadAs<model::RunwayPayload>(ref.runway).body.altitude);
}

model::GlideSlopePart UsualGlideSlopeAt(model::EncodedPoint point, int32_t altitude) {
    model::GlideSlopePart slope = {};
    slope.longitude = point.longitude;
    slope.latitude = point.latitude;
    slope.altitude = altitude;
    slope.range = kSlopeRange;
    slope.pitch = kSlopePitch;
    return slope;
}

model::DmePart UsualDme(const model::GlideSlopePart& slope) {
    model::DmePart dme = {};
    dme.longitude = slope.longitude;
    dme.latitude = slope.latitude;
    dme.altitude = slope.altitude;
    dme.range = kIlsRange;
    return dme;
}

SceneryObject* CreateIls(const RunwayEndRef& ref, const std::function<uint32_t()>& random) {
    Edits edits;
    SceneryObject* ils = AddDraft(&edits, ObjectPtr(model::CreateObject(model::kIls, sizeof(IlsPayload))));
    auto& payload = model::PayloadAs<IlsPayload>(ils);
    FillBody(ref, random, &payload.body);
    const model::LatLon place = LocalizerPlace(ref);
    model::SetPosition(ils, place);
    payload.localizer.runwayNumber = ref.runway->payload[kEndPlaces[ref.end].number];
    payload.localizer.runwayDesignator = ref.runway->payload[kEndPlaces[ref.end].designator];
    payload.localizer.heading = EndHeading(ref);
    payload.localizer.width = static_cast<float>(LocalizerWidth(ref, place));
    payload.glideSlope = UsualGlideSlope(ref);
    payload.dme = UsualDme(payload.glideSlope);
    const std::string name = "ILS/DME " + EndName(ref.runway, ref.end);
    std::memcpy(payload.name, name.data(), std::min(name.size(), model::kNavaidNameSize));
    const uint32_t ident = model::PackIdent(kNewIdent);
    std::memcpy(DraftOf(&edits, ref.runway)->payload + kEndPlaces[ref.end].ils, &ident, sizeof ident);
    Commit(&edits);
    return ils;
}

}  // namespace dialogs
