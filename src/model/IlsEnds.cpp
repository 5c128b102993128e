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

bool NamesThisAirport(const SceneryObject* ils) {
    return state.airport && RegionWordNamesAirport(PayloadAs<IlsPayload>(ils).body.region,
                                                   PayloadAs<AirportRecord>(state.airport).ident);
}

// How firmly the ILS is tied to the end; 0 not at all.
int TieOf(const SceneryObject* ils, const SceneryObject* runway, RunwayEnd end) {
    const uint32_t named = IlsNamedBy(runway, end);
    const bool byIdent = named != 0 && named == IdentOfIls(ils), byName = LocalizerNames(ils, runway, end);
    if (!byIdent && (named != 0 || !byName || !NamesThisAirport(ils))) return 0;
    return (byName ? 1 : 0) + (!byIdent ? 0 : HasStockEnd(ils) ? 2 : 1);
}

LatLon StoredPositionOf(const SceneryObject* object) {
    for (const MovedPoint& point : state.moved) {
        if (point.object == object && point.offset == PositionOffset(KindOf(object)))
            return BglToLatLon({ point.stored.latitude, point.stored.longitude });
    }
    return PositionOf(object);
}

// Metres from the end of the pavement where what serves the end stands. Wild numbers of a file are far away.
double DistanceFrom(const IlsEnd& at, const SceneryObject* object) {
    const RunwayRecord& body = PayloadAs<RunwayPayload>(at.runway).body;
    const bool ahead = (at.end == RunwayEnd::Primary) == (KindOf(object) == kIls);
    const double heading = body.heading + (ahead ? 0 : 180);
    const Polar way = { std::fabs(+body.length) / 2, heading * kRadiansPerDegree };
    const LatLon place = OffsetByPolar(StoredPositionOf(at.runway), way);
    const double distance = DistanceBetween(StoredPositionOf(object), place);
    return std::isnan(distance) ? std::numeric_limits<double>::infinity() : distance;
}

}  // namespace

bool LocalizerNames(const SceneryObject* ils, const SceneryObject* runway, RunwayEnd end) {
    const LocalizerPart localizer = PayloadAs<IlsPayload>(ils).localizer;
    const RunwayRecord& body = PayloadAs<RunwayPayload>(runway).body;
    const bool primary = end == RunwayEnd::Primary;
    return localizer.runwayNumber == (primary ? body.primaryNumber : body.secondaryNumber) &&
           localizer.runwayDesignator == (primary ? body.primaryDesignator : body.secondaryDesignator);
}

uint32_t IdentOfIls(const SceneryObject* ils) { return PayloadAs<IlsPayload>(ils).body.ident >> kIdentShift; }

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

IlsEnd ServedEnd(const SceneryObject* ils) {
    return NearestEnd(ils, [ils](const IlsEnd& at) { return TieOf(ils, at.runway, at.end); });
}

bool IlsServes(const SceneryObject* ils, const SceneryObject* runway, RunwayEnd end) {
    if (TieOf(ils, runway, end) == 0) return false;  // spares most of them the search
    const IlsEnd served = ServedEnd(ils);
    return served.runway == runway && served.end == end;
}

IlsEnd NearestEnd(const SceneryObject* object, const EndRank& rank) {
    IlsEnd best;
    int highest = 0;
    double least = 0;
    ForEachOfKind(kRunway, [&](SceneryObject* runway) {
        for (const RunwayEnd end : kEnds) {
            const int rankHere = rank({ runway, end });
            if (rankHere == 0 || rankHere < highest) continue;
            const double distance = DistanceFrom({ runway, end }, object);
            if (rankHere == highest && distance >= least) continue;
            best = { runway, end };
            highest = rankHere;
            least = distance;
        }
    });
    return best;
}

IlsEnd EndByPlace(const SceneryObject* ils) {
    return NearestEnd(ils, [](const IlsEnd&) { return 1; });
}

}  // namespace model
