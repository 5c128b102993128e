// RunwayPlans.cpp - see RunwayPlans.h.
#include "sample/RunwayPlans.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "sample/PlanGeometry.h"
#include "sample/TableWords.h"

namespace sample {

namespace {

constexpr double kFarthestRunway = 8000;  // metres from the airport; a position beyond is a mistyped one
constexpr double kUnknownLength = 600;    // metres
constexpr double kParallelSpacing = 200;  // metres between parallel runways that the tables do not place

double WidthOr(double width, double length, Surface surface) {
    if (width >= 5) return width;
    if (!IsPaved(surface)) return 25;
    return length < 1000 ? 18 : length < 1500 ? 23 : length < 2400 ? 30 : 45;
}

std::optional<Local> PlaceOf(const RunwayEndRow& end, model::LatLon reference) {
    if (!end.position) return std::nullopt;
    const Local place = model::LatLonToLocal(reference, *end.position);
    return Length(place) <= kFarthestRunway ? std::optional(place) : std::nullopt;
}

double HeadingFor(const RunwayRow& row, const RunwayPlan& plan, double variation) {
    constexpr uint8_t kLastNumber = 36;  // lettered ends name true directions
    if (row.low.heading) return Wrapped(*row.low.heading);
    if (row.high.heading) return Wrapped(*row.high.heading + 180);
    const uint8_t number = plan.ends[0].number;
    return Wrapped(HeadingOfNumber(number) + (number <= kLastNumber ? variation : 0));
}

// The two ends' numbers; of an end that cannot be read, the opposite of the other.
bool NumberEnds(const RunwayRow& row, RunwayPlan* plan) {
    EndNumber low = EndFromWord(row.low.ident), high = EndFromWord(row.high.ident);
    if (low.number == 0) low = OppositeEnd(high);
    if (high.number == 0) high = OppositeEnd(low);
    if (low.number == 0) return false;
    plan->ends[0].number = low.number;
    plan->ends[0].designator = low.designator;
    plan->ends[1].number = high.number;
    plan->ends[1].designator = high.designator;
    return true;
}

// The southern and eastern letters (S, W, SE, NE) never name the primary end.
void TurnLetteredRunway(RunwayPlan* plan) {
    constexpr uint8_t kFirstSecondary = 41;
    if (plan->ends[0].number < kFirstSecondary) return;
    std::swap(plan->ends[0], plan->ends[1]);
    plan->heading = Wrapped(plan->heading + 180);
}

void PlaceRunway(const RunwayRow& row, model::LatLon reference, RunwayPlan* plan, bool* placed) {
    const auto low = PlaceOf(row.low, reference), high = PlaceOf(row.high, reference);
    *placed = low || high;
    if (low && high && Distance(*low, *high) > 100) {
        plan->centre = (*low + *high) * 0.5;
        plan->heading = HeadingOf(*high - *low);
        if (row.length < 100) plan->length = Distance(*low, *high);
    } else if (low) {
        plan->centre = *low + Ahead(plan->heading) * (plan->length / 2);
    } else if (high) {
        plan->centre = *high - Ahead(plan->heading) * (plan->length / 2);
    }
}

// Runways that the tables do not place cross at the airport's position; parallel ones lie beside each other.
void SpreadParallels(std::vector<RunwayPlan>* runways, const std::vector<bool>& placed) {
    constexpr uint8_t kLeft = 1;
    for (size_t i = 0; i < runways->size(); ++i) {
        RunwayPlan& runway = (*runways)[i];
        if (placed[i]) continue;
        int before = 0;
        for (size_t k = 0; k < i; ++k) {
            const double turn = HeadingDifference((*runways)[k].heading, runway.heading);
            before += !placed[k] && std::min(turn, 180 - turn) < 12;
        }
        const double side = runway.ends[0].designator == kLeft ? -1 : 1;
        runway.centre = runway.centre + RightOf(runway.heading) * (side * kParallelSpacing * before);
    }
}

void AddHelipad(const RunwayRow& row, AirportPlan* plan) {
    HelipadPlan pad;
    pad.at =
        PlaceOf(row.low, plan->reference).value_or(Local{ 40.0 * static_cast<double>(plan->helipads.size() + 1), -40 });
    pad.length = row.length >= 6 ? std::min(row.length, 60.0) : pad.length;
    pad.width = row.width >= 6 ? std::min(row.width, 60.0) : pad.width;
    pad.surface = SurfaceFromWord(row.surface, 2000);
    plan->helipads.push_back(pad);
}

void AddComms(std::span<const FrequencyRow> rows, AirportPlan* plan) {
    constexpr double kLowest = 108, kHighest = 137;  // MHz: the aeronautical band; military ones lie above
    for (const FrequencyRow& row : rows) {
        const uint16_t type = CommTypeFromWord(row.type);
        if (type == 0 || row.megahertz < kLowest || row.megahertz >= kHighest) continue;
        const auto kilohertz = static_cast<uint32_t>(std::lround(row.megahertz * 1000));
        plan->comms.push_back({ type, kilohertz * 1000, row.name.empty() ? row.type : row.name });
    }
}

}  // namespace

bool PlanRunway(const RunwayRow& row, model::LatLon reference, double variation, RunwayPlan* plan, bool* placed) {
    *plan = {};
    if (row.closed || IsHelipadWord(row.low.ident) || !NumberEnds(row, plan)) return false;
    plan->length = row.length >= 100 ? row.length : kUnknownLength;
    plan->surface = SurfaceFromWord(row.surface, plan->length);
    plan->heading = HeadingFor(row, *plan, variation);
    PlaceRunway(row, reference, plan, placed);
    plan->width = WidthOr(row.width, plan->length, plan->surface);
    plan->ends[0].displaced = std::min(row.low.displaced, plan->length / 3);
    plan->ends[1].displaced = std::min(row.high.displaced, plan->length / 3);
    TurnLetteredRunway(plan);
    return true;
}

AirportPlan PlanAirport(const World& world, const AirportRow& airport, double variation) {
    AirportPlan plan;
    plan.ident = airport.ident;
    plan.name = airport.name;
    plan.city = airport.city;
    plan.state = airport.state;
    plan.country = airport.country;
    plan.reference = airport.position;
    plan.elevation = airport.elevation;
    plan.variation = variation;
    AddComms(FrequenciesOf(world, airport.ident), &plan);
    constexpr uint16_t kTower = 6;
    plan.hasTower = std::ranges::any_of(plan.comms, [](const CommPlan& comm) { return comm.type == kTower; });
    std::vector<bool> placed;
    for (const RunwayRow& row : RunwaysOf(world, airport.ident)) {
        RunwayPlan runway;
        bool hasPlace = false;
        if (PlanRunway(row, plan.reference, variation, &runway, &hasPlace)) {
            EquipRunway(&runway, row.lighted);
            plan.runways.push_back(runway);
            placed.push_back(hasPlace);
        } else if (!row.closed && IsHelipadWord(row.low.ident)) {
            AddHelipad(row, &plan);
        }
    }
    SpreadParallels(&plan.runways, placed);
    AssignIls(&plan);
    return plan;
}

}  // namespace sample
