// IlsEnds.cpp - see IlsEnds.h.
#include "model/IlsEnds.h"

#include <cmath>
#include <limits>

#include "model/Geodesy.h"
#include "model/Ident.h"
#include "model/ObjectList.h"
#include "model/Positions.h"
#include "model/Records.h"

namespace model {

namespace {

constexpr RunwayEnd kEnds[] = { RunwayEnd::Primary, RunwayEnd::Secondary };

uint32_t IdentOf(const SceneryObject* ils) { return PayloadAs<IlsPayload>(ils).body.ident >> kIdentShift; }

// Whether an end names the ident of the ILS; with `localizer` one that the localizer names too.
bool IsNamed(const SceneryObject* ils, bool localizer) {
    const uint32_t ident = IdentOf(ils);
    if (ident == 0) return false;
    for (SceneryObject* runway = FirstOfKind(state.head, kRunway); runway; runway = NextOfKind(runway, kRunway)) {
        for (const RunwayEnd end : kEnds) {
            if (IlsNamedBy(runway, end) == ident && (!localizer || LocalizerNames(ils, runway, end))) return true;
        }
    }
    return false;
}

// Metres from the far end of the pavement, behind which the localizer of an end stands.
double DistanceBehind(LatLon localizer, const SceneryObject* runway, RunwayEnd end) {
    const RunwayRecord& body = PayloadAs<RunwayPayload>(runway).body;
    const double heading = body.heading + (end == RunwayEnd::Primary ? 0 : 180);
    const Polar way = { std::fabs(+body.length) / 2, heading * kRadiansPerDegree };
    return DistanceBetween(localizer, OffsetByPolar(PositionOf(runway), way));
}

}  // namespace

bool LocalizerNames(const SceneryObject* ils, const SceneryObject* runway, RunwayEnd end) {
    const LocalizerPart localizer = PayloadAs<IlsPayload>(ils).localizer;
    const RunwayRecord& body = PayloadAs<RunwayPayload>(runway).body;
    const bool primary = end == RunwayEnd::Primary;
    return localizer.runwayNumber == (primary ? body.primaryNumber : body.secondaryNumber) &&
           localizer.runwayDesignator == (primary ? body.primaryDesignator : body.secondaryDesignator);
}

uint32_t IlsNamedBy(const SceneryObject* runway, RunwayEnd end) {
    const RunwayRecord& body = PayloadAs<RunwayPayload>(runway).body;
    return end == RunwayEnd::Primary ? body.primaryIls : body.secondaryIls;
}

bool HasStockEnd(const SceneryObject* ils) {
    if (IsStock(ils)) return true;
    if (!ils->related) return false;
    const LocalizerPart own = PayloadAs<IlsPayload>(ils).localizer,
                        stock = PayloadAs<IlsPayload>(ils->related).localizer;
    return own.runwayNumber == stock.runwayNumber && own.runwayDesignator == stock.runwayDesignator;
}

bool IlsServes(const SceneryObject* ils, const SceneryObject* runway, RunwayEnd end) {
    const uint32_t named = IlsNamedBy(runway, end);
    if (named != 0) return named == IdentOf(ils) && (LocalizerNames(ils, runway, end) || !IsNamed(ils, true));
    return state.airport && LocalizerNames(ils, runway, end) && !IsNamed(ils, !HasStockEnd(ils)) &&
           RegionWordNamesAirport(PayloadAs<IlsPayload>(ils).body.region,
                                  PayloadAs<AirportRecord>(state.airport).ident);
}

bool IlsBelongsTo(const SceneryObject* ils, const SceneryObject* runway, RunwayEnd end) {
    return IlsServes(ils, runway, end) && (!IsStock(ils) || IlsNamedBy(runway, end) != 0);
}

IlsEnd EndByPlace(const SceneryObject* ils) {
    IlsEnd nearest;
    double least = std::numeric_limits<double>::infinity();
    for (SceneryObject* runway = FirstOfKind(state.head, kRunway); runway; runway = NextOfKind(runway, kRunway)) {
        for (const RunwayEnd end : kEnds) {
            const double distance = DistanceBehind(PositionOf(ils), runway, end);
            if (!(distance < least)) continue;
            least = distance;
            nearest = { runway, end };
        }
    }
    return nearest;
}

}  // namespace model
