// RunwayModel.cpp - a runway of a plan as the objects that serve it: runway, start locations, ILS, markers.
#include <algorithm>
#include <cmath>

#include "model/Ident.h"
#include "model/Names.h"
#include "model/Records.h"
#include "model/RunwayBits.h"
#include "sample/AirportModel.h"
#include "sample/PlanGeometry.h"

namespace sample {

namespace {

using model::PayloadAs;
using model::SceneryObject;

constexpr double kPatternAltitude = 304.8;  // metres above the field: 1000 feet
constexpr uint32_t kNavaidLowBits = 2;      // kind of object in the low bits of an ILS ident

// Siting of an ILS, metres.
constexpr double kLocalizerBehind = 300;   // behind the far end of the runway
constexpr double kGlideSlopeInward = 305;  // from the threshold
constexpr double kGlideSlopeAside = 122;   // right of the approach
constexpr float kGlideSlopeRange = 18520, kIlsRange = 50017;
constexpr float kGlideSlopePitch = 3;

double EndHeading(const RunwayPlan& runway, int end) { return Wrapped(runway.heading + (end == 0 ? 0 : 180)); }

// A point on the approach to an end: `inward` metres from the threshold along the landing direction.
Local OnApproach(const RunwayPlan& runway, int end, double inward, double right) {
    const double heading = EndHeading(runway, end);
    const double along = runway.ends[end].displaced + inward - runway.length / 2;
    return runway.centre + Ahead(heading) * along + RightOf(heading) * right;
}

model::RunwayAreaPart AreaPart(const RunwayPlan& runway, double length) {
    if (length <= 0) return {};
    return { runway.surface, static_cast<float>(length), static_cast<float>(runway.width) };
}

uint16_t ApproachWord(const RunwayEndPlan& end) {
    uint32_t word = end.approach;
    if (end.endLights) word |= model::kEndLights;
    if (end.reil) word |= model::kReil;
    if (end.touchdownLights) word |= model::kTouchdownLights;
    return static_cast<uint16_t>(word | static_cast<uint32_t>(end.strobes) << model::kStrobesShift);
}

// A PAPI or VASI 305 m from the threshold; the record measures back from the runway's centre.
model::VasiPart Vasi(const RunwayPlan& runway, const RunwayEndPlan& end, bool right) {
    if (end.vasi == kNoSlopeLights || end.vasiRight != right) return {};
    const bool papi = end.vasi == kPapi2 || end.vasi == kPapi4;
    const double fromThreshold = std::min(305.0, runway.length / 4);
    return { end.vasi, static_cast<float>(runway.width / 2 + 15),
             static_cast<float>(runway.length / 2 - end.displaced - fromThreshold), papi ? 9.0f : 152.0f, 3.0f };
}

uint32_t UnshiftedIls(const RunwayEndPlan& end) { return end.ils.ident.empty() ? 0 : model::PackIdent(end.ils.ident); }

model::RunwayRecord RunwayBody(const AirportPlan& plan, const RunwayPlan& runway) {
    const RunwayEndPlan &primary = runway.ends[0], &secondary = runway.ends[1];
    const model::EncodedPoint at = Encoded(plan, runway.centre);
    model::RunwayRecord body{};
    body.surface = runway.surface;
    body.primaryNumber = primary.number;
    body.primaryDesignator = primary.designator;
    body.secondaryNumber = secondary.number;
    body.secondaryDesignator = secondary.designator;
    body.primaryIls = UnshiftedIls(primary);
    body.secondaryIls = UnshiftedIls(secondary);
    body.longitude = at.longitude;
    body.latitude = at.latitude;
    body.altitude = Millimetres(plan.elevation);
    body.length = static_cast<float>(runway.length);
    body.width = static_cast<float>(runway.width);
    body.heading = static_cast<float>(runway.heading);
    body.patternAltitude = static_cast<float>(kPatternAltitude);
    body.markings = runway.markings;
    body.lights = static_cast<uint8_t>(runway.edgeLights | runway.centreLights << model::kCentreLightsShift |
                                       (runway.redEndLights ? model::kRedLights : 0));
    body.pattern = static_cast<uint8_t>((primary.rightPattern ? model::kPrimaryRightPattern : 0) |
                                        (secondary.rightPattern ? model::kSecondaryRightPattern : 0));
    return body;
}

// Full width of 700 ft at the threshold, which American localizers have, between 3 and 6 degrees. An ILS that the user
// makes (dialogs/NewIls.cpp) gets the 210 m of ICAO Annex 10, but the ranges of this one.
float LocalizerWidth(double distance) {
    constexpr double kHalfWidth = 106.68;
    const double width = 2 * std::atan(kHalfWidth / distance) * model::kDegreesPerRadian;
    return static_cast<float>(std::clamp(width, 3.0, 6.0));
}

}  // namespace

SceneryObject* MakeRunway(const AirportPlan& plan, const RunwayPlan& runway) {
    SceneryObject* object = model::CreateObject(model::kRunway, sizeof(model::RunwayPayload));
    auto& payload = PayloadAs<model::RunwayPayload>(object);
    const RunwayEndPlan &primary = runway.ends[0], &secondary = runway.ends[1];
    payload.body = RunwayBody(plan, runway);
    payload.primaryThreshold = AreaPart(runway, primary.displaced);
    payload.secondaryThreshold = AreaPart(runway, secondary.displaced);
    payload.primaryBlastPad = AreaPart(runway, primary.blastPad);
    payload.secondaryBlastPad = AreaPart(runway, secondary.blastPad);
    payload.primaryApproachLights = ApproachWord(primary);
    payload.secondaryApproachLights = ApproachWord(secondary);
    payload.primaryLeftVasi = Vasi(runway, primary, false);
    payload.primaryRightVasi = Vasi(runway, primary, true);
    payload.secondaryLeftVasi = Vasi(runway, secondary, false);
    payload.secondaryRightVasi = Vasi(runway, secondary, true);
    return object;
}

SceneryObject* MakeStart(const AirportPlan& plan, const RunwayPlan& runway, int end) {
    constexpr double kInward = 30;  // metres from the end of the pavement
    const double heading = EndHeading(runway, end);
    const Local place = runway.centre + Ahead(heading) * (kInward - runway.length / 2);
    const model::EncodedPoint at = Encoded(plan, place);
    const RunwayEndPlan& served = runway.ends[end];
    const uint32_t type = runway.surface == kWater ? model::kWaterStart : model::kRunwayStart;
    SceneryObject* object = model::CreateObject(model::kStartLocation, sizeof(model::StartLocationRecord));
    PayloadAs<model::StartLocationRecord>(object) = { served.number,
                                                      model::StartNibbles(type, served.designator),
                                                      at.longitude,
                                                      at.latitude,
                                                      Millimetres(plan.elevation),
                                                      static_cast<float>(heading) };
    return object;
}

SceneryObject* MakeIls(const AirportPlan& plan, const RunwayPlan& runway, int end) {
    const RunwayEndPlan &served = runway.ends[end], &far = runway.ends[1 - end];
    const double antenna = runway.length - served.displaced + far.blastPad + kLocalizerBehind;
    const model::EncodedPoint localizer = Encoded(plan, OnApproach(runway, end, antenna, 0));
    const model::EncodedPoint slope = Encoded(plan, OnApproach(runway, end, kGlideSlopeInward, kGlideSlopeAside));
    const int32_t altitude = Millimetres(plan.elevation);
    SceneryObject* object = model::CreateObject(model::kIls, sizeof(model::IlsPayload));
    auto& ils = PayloadAs<model::IlsPayload>(object);
    ils.body = { model::kIlsType,
                 model::kHasVor | model::kHasGlideSlope | model::kHasDme,
                 localizer.longitude,
                 localizer.latitude,
                 altitude,
                 served.ils.frequency,
                 kIlsRange,
                 WestVariation(plan.variation),
                 model::PackIdent(served.ils.ident) << model::kIdentShift | kNavaidLowBits,
                 model::RegionWordWithAirport(0, model::PackIdent(plan.ident) << model::kIdentShift) };
    ils.localizer = { served.number, served.designator, static_cast<float>(EndHeading(runway, end)),
                      LocalizerWidth(antenna) };
    ils.glideSlope = { 0, slope.longitude, slope.latitude, altitude, kGlideSlopeRange, kGlideSlopePitch };
    ils.dme = { 0, slope.longitude, slope.latitude, altitude, kIlsRange };
    StoreText("ILS RW" + model::RunwayEndName(served.number, served.designator), ils.name, sizeof ils.name);
    return object;
}

std::vector<SceneryObject*> MakeMarkers(const AirportPlan& plan, const RunwayPlan& runway, int end) {
    struct MarkerSite {
        uint8_t type;     // 0 inner, 1 middle, 2 outer
        double distance;  // nautical miles before the threshold
        const char* ident;
    };
    constexpr MarkerSite kSites[] = { { 2, 4.5, "OM" }, { 1, 0.55, "MM" }, { 0, 0.16, "IM" } };
    std::vector<SceneryObject*> markers;
    for (const MarkerSite& site : kSites) {
        if (site.type == 0 && runway.ends[end].approach != kAlsf2) continue;
        const Local place = OnApproach(runway, end, -site.distance * model::kMetresPerNauticalMile, 0);
        const model::EncodedPoint at = Encoded(plan, place);
        SceneryObject* object = model::CreateObject(model::kMarkerBeacon, sizeof(model::MarkerBeaconPayload));
        auto& marker = PayloadAs<model::MarkerBeaconPayload>(object);
        marker.heading = static_cast<uint8_t>(std::lround(EndHeading(runway, end) * 256 / 360) & 0xFF);
        marker.type = site.type;
        marker.longitude = at.longitude;
        marker.latitude = at.latitude;
        marker.altitude = Millimetres(plan.elevation);
        marker.ident = model::PackIdent(site.ident) << model::kIdentShift;
        markers.push_back(object);
    }
    return markers;
}

}  // namespace sample
