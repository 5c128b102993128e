// GeneratedLayout.cpp - taxiways and parking for an airport of which only the runways are known.
//
// The longest paved runway gets a parallel taxiway with exits, and beside it an apron with a row of stands.
// Other paved runways get their own parallel taxiway, or exits across to the first one when they lie close
// beside it. Parts that are still apart are then joined by the shortest way.
#include <algorithm>
#include <cmath>
#include <utility>

#include "sample/LayoutParts.h"
#include "sample/Layouts.h"
#include "sample/Network.h"
#include "sample/PlanGeometry.h"
#include "sample/TableWords.h"

namespace sample {

namespace {

constexpr double kShortest = 1000;       // metres: shorter runways get no taxiways
constexpr double kExitSpacing = 600;     // metres between exits, about
constexpr double kEndEntry = 15;         // metres from a runway's end to its entry
constexpr double kNearParallel = 450;    // metres: a parallel runway this close shares the taxiway
constexpr double kApronClearance = 110;  // metres between an apron and any runway
constexpr const char* kLetters[] = { "A", "B", "C", "D", "E", "F", "G", "H", "J", "K", "L", "M" };

// The apron beside a parallel taxiway, in the frame of its runway.
struct ApronSite {
    double along = 0;  // of its middle
    double side = 1;   // 1 right, -1 left of the runway
};

struct Generator {
    AirportPlan* plan;
    std::vector<const RunwayPlan*> runways;  // paved and long enough, the longest first
    size_t letters = 0;                      // names given so far
};

double TaxiwayDistance(const RunwayPlan& runway) { return runway.length >= 1800 ? 150 : 110; }

const char* NextLetter(Generator* generator) {
    const size_t index = std::min(generator->letters++, std::size(kLetters) - 1);
    return kLetters[index];
}

void AddTaxiway(Generator* generator, const char* name, std::vector<Local> points) {
    const bool lighted = generator->runways.front()->edgeLights > 0;
    const double width = generator->runways.front()->length >= 1800 ? 20 : 12;
    generator->plan->lines.push_back(
        { name, model::kTaxiwayLink, width, kAsphalt, lighted ? Paint::Lighted : Paint::Taxiway, std::move(points) });
}

double HalfApron(const RunwayPlan& runway) { return std::min(320.0, runway.length / 7); }

bool ApronIsClear(const AirportPlan& plan, const RunwayPlan& runway, const ApronSite& site) {
    const double half = HalfApron(runway), inner = TaxiwayDistance(runway) + 10;
    for (const double along : { -half, -half / 2, 0.0, half / 2, half }) {
        for (const double right : { inner, inner + 80, inner + 160 }) {
            const Local corner = FromFrame(runway, { site.along + along, site.side * right });
            for (const RunwayPlan& other : plan.runways) {
                if (&other != &runway && DistanceToRunway(other, corner) < kApronClearance) return false;
            }
        }
    }
    return true;
}

// Whether the taxiway would not run along another runway; crossing one is no harm.
bool TaxiwayIsClear(const AirportPlan& plan, const RunwayPlan& runway, double side) {
    constexpr int kSamples = 20, kMostOnRunways = 6;
    int onRunways = 0;
    for (int i = 0; i <= kSamples; ++i) {
        const double along = runway.length * (static_cast<double>(i) / kSamples - 0.5);
        const Local place = FromFrame(runway, { along, side * TaxiwayDistance(runway) });
        onRunways += std::ranges::any_of(plan.runways, [&](const RunwayPlan& other) {
            return &other != &runway && DistanceToRunway(other, place) < 50;
        });
    }
    return onRunways <= kMostOnRunways;
}

// As near the airport's reference point as the other runways leave room for. False when they leave none.
bool FindApronSite(const AirportPlan& plan, const RunwayPlan& runway, ApronSite* site) {
    const RunwayFrame reference = InFrame(runway, {});
    const double reach = runway.length / 2 - HalfApron(runway) - 60;
    const double preferred = reference.right < 0 ? -1 : 1;
    const double middle = std::clamp(reference.along, -reach, reach);
    for (double off = 0; off <= 2 * reach; off += 100) {
        for (const double side : { preferred, -preferred }) {
            for (const double along : { middle + off, middle - off }) {
                *site = { along, side };
                if (std::fabs(along) > reach || !TaxiwayIsClear(plan, runway, side)) continue;
                if (ApronIsClear(plan, runway, *site)) return true;
            }
        }
    }
    *site = { middle, TaxiwayIsClear(plan, runway, preferred) ? preferred : -preferred };
    return false;
}

// The parallel taxiway of a runway with entries at both ends and exits between them.
void AddParallelTaxiway(Generator* generator, const RunwayPlan& runway, double side) {
    const char* name = NextLetter(generator);
    const double distance = side * TaxiwayDistance(runway), end = runway.length / 2 - kEndEntry;
    AddTaxiway(generator, name,
               { FromFrame(runway, { -end, 0 }), FromFrame(runway, { -end, distance }),
                 FromFrame(runway, { end, distance }), FromFrame(runway, { end, 0 }) });
    const int exits = static_cast<int>(2 * end / kExitSpacing);
    for (int i = 1; i < exits; ++i) {
        const double along = -end + 2 * end * i / exits;
        AddTaxiway(generator, name, { FromFrame(runway, { along, distance }), FromFrame(runway, { along, 0 }) });
    }
}

void AddApronWithStands(Generator* generator, const RunwayPlan& runway, const ApronSite& site) {
    AirportPlan* plan = generator->plan;
    const double half = HalfApron(runway), taxiway = TaxiwayDistance(runway);
    const bool airliners = plan->hasTower && runway.length >= 1800;
    const double radius = airliners ? 20 : 11, pitch = airliners ? 44 : 26;
    const double lane = taxiway + (airliners ? 75 : 50), stands = lane + (airliners ? 55 : 30);
    const auto at = [&](double along, double right) {
        return FromFrame(runway, { site.along + along, site.side * right });
    };
    plan->lines.push_back({ "",
                            model::kTaxiwayLink,
                            airliners ? 20.0 : 12.0,
                            kAsphalt,
                            Paint::Centre,
                            { at(-half, taxiway), at(-half, lane), at(half, lane), at(half, taxiway) } });
    const int count = std::max(2, static_cast<int>((2 * half - pitch) / pitch));
    const double span = pitch * (count - 1) / 2;
    SpotRow row;
    row.first = at(-span, stands);
    row.last = at(span, stands);
    row.count = count;
    row.heading = Wrapped(runway.heading + site.side * 90);
    row.radius = radius;
    row.type = airliners ? kGateMedium : kRampGaSmall;
    row.name = airliners ? kGateName : kParking;
    row.connector = airliners ? 15 : 8;
    AddSpotRow(plan, row);
    const double outer = stands + radius + 8, edge = half + 14;
    AddApron(plan, airliners ? kConcrete : kAsphalt,
             { at(-edge, taxiway), at(edge, taxiway), at(edge, outer), at(-edge, outer) });
    plan->tower = at(0, outer + 40);
}

bool SharesTaxiway(const RunwayPlan& main, const RunwayPlan& runway) {
    const double turn = HeadingDifference(main.heading, runway.heading);
    return std::min(turn, 180 - turn) < 5 && std::fabs(InFrame(main, runway.centre).right) < kNearParallel;
}

// Exits straight across to the taxiway of the main runway.
void AddSharedExits(Generator* generator, const RunwayPlan& main, const RunwayPlan& runway, double side) {
    const char* name = NextLetter(generator);
    const double end = runway.length / 2 - kEndEntry;
    for (const double along : { -end, 0.0, end }) {
        const Local start = FromFrame(runway, { along, 0 });
        const double limit = main.length / 2 - kEndEntry;
        const double target = std::clamp(InFrame(main, start).along, -limit, limit);
        AddTaxiway(generator, name, { start, FromFrame(main, { target, side * TaxiwayDistance(main) }) });
    }
}

// Which nodes may be joined: such that stand off the runways or, when a part has none, any.
enum class JointNodes { OffRunways, Any };

bool StandsOffRunways(const AirportPlan& plan, Local place) {
    constexpr double kClearOfPavement = 40;  // metres
    return std::ranges::all_of(
        plan.runways, [&](const RunwayPlan& runway) { return DistanceToRunway(runway, place) >= kClearOfPavement; });
}

// The straight way between the nearest nodes of the first part and of another one.
bool FindJoint(const AirportPlan& plan, const Network& network, const std::vector<int>& parts, JointNodes nodes,
               std::pair<Local, Local>* joint) {
    const auto fits = [&](Local place) { return nodes == JointNodes::Any || StandsOffRunways(plan, place); };
    double best = 1e9;
    for (size_t a = 0; a < parts.size(); ++a) {
        if (parts[a] != 0 || !fits(network.nodes[a].at)) continue;
        for (size_t b = 0; b < parts.size(); ++b) {
            const double distance = Distance(network.nodes[a].at, network.nodes[b].at);
            if (parts[b] == 0 || distance >= best || !fits(network.nodes[b].at)) continue;
            best = distance;
            *joint = { network.nodes[a].at, network.nodes[b].at };
        }
    }
    return best < 1e9;
}

// Joins parts of the network that do not meet: a straight taxiway between their nearest nodes.
void JoinParts(Generator* generator) {
    constexpr int kTries = 12;
    for (int i = 0; i < kTries; ++i) {
        const Network network = BuildNetwork(*generator->plan);
        int count = 0;
        const std::vector<int> parts = ConnectedParts(network, &count);
        if (count < 2) return;
        std::pair<Local, Local> joint;
        const AirportPlan& plan = *generator->plan;
        if (!FindJoint(plan, network, parts, JointNodes::OffRunways, &joint) &&
            !FindJoint(plan, network, parts, JointNodes::Any, &joint)) {
            return;
        }
        AddTaxiway(generator, "", { joint.first, joint.second });
    }
}

}  // namespace

void LayOutGenerated(AirportPlan* plan) {
    Generator generator{ plan, {}, 0 };
    for (const RunwayPlan& runway : plan->runways) {
        if (IsPaved(runway.surface) && runway.length >= kShortest) generator.runways.push_back(&runway);
    }
    if (generator.runways.empty()) return;
    std::ranges::stable_sort(generator.runways, std::greater{},
                             [](const RunwayPlan* runway) { return runway->length; });
    const RunwayPlan& main = *generator.runways.front();
    ApronSite site;
    const bool hasApron = FindApronSite(*plan, main, &site);
    AddParallelTaxiway(&generator, main, site.side);
    if (hasApron) AddApronWithStands(&generator, main, site);
    const Local apron = FromFrame(main, { site.along, site.side * TaxiwayDistance(main) });
    for (size_t i = 1; i < generator.runways.size(); ++i) {
        const RunwayPlan& runway = *generator.runways[i];
        if (SharesTaxiway(main, runway)) {
            AddSharedExits(&generator, main, runway, site.side);
        } else {
            const double side = InFrame(runway, apron).right < 0 ? -1 : 1;
            AddParallelTaxiway(&generator, runway, TaxiwayIsClear(*plan, runway, side) ? side : -side);
        }
    }
    JoinParts(&generator);
    plan->avgas = true;
    plan->jetFuel = plan->hasTower;
}

}  // namespace sample
