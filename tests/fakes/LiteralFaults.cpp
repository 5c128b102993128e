// LiteralFaults.cpp - see LiteralFaults.h.
#include "LiteralFaults.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "model/Geometry.h"
#include "model/Names.h"
#include "model/ObjectList.h"
#include "model/Positions.h"
#include "model/Records.h"

namespace literal {

using model::DistanceBetween;
using model::KindOf;
using model::LatLon;
using model::PayloadAs;
using model::Point;
using model::PositionOf;
using model::SceneryObject;

namespace {

const char* const kHoldShortText =
    "HOLD-SHORT NODE too far from runway.\r\n"
    "If this is a taxiway entrance that AI might use to enter a runway for takeoff then the "
    "hold-short node must be within 225 feet (68.6m) of the edge of the runway.  AI aircraft will "
    "permanently stop if the final hold-short node before entering the runway is too far away.  "
    "This is only critical for hold-short nodes where AI aircraft actually enter the runway for "
    "takeoff, usually the taxiway junction nearest the end of the runway.  Also, this only "
    "applies to the active runway, the longest runway at the airport that is open for takeoffs.  "
    "FS2002 will essentially ignore all other hold-short nodes, including taxiways that cross "
    "inactive runways, and in those cases the node distance from the runway is not critical.\r\n"
    "The circles show a 225 foot radius.";

const char* const kNodesUnconnectedText =
    "NODES POSSIBLY UNCONNECTED.\r\n"
    "These nodes are very close but are not directly connected.  Should they be connected?  If "
    "this is an unintended break in the taxiway then the AI will not use this path.";

const char* const kLinkUnconnectedText =
    "NODE AND LINK POSSIBLY UNCONNECTED.\r\n"
    "This node and link are very close but they are not connected.  Should they be connected?  If "
    "this is an unintended break in the taxiway then the AI will not use this path.  ";

const char* const kIsolatedSegmentText =
    "ISOLATED SEGMENT.\r\n"
    "This group of taxiway links is not connected to the rest of the airport.  AI will not be "
    "able to enter or leave this segment.  ";

const char* const kSegmentWithParkingText =
    "AI may freeze after landing because they can't reach parking in this segment and they may "
    "disappear on departure because they can't reach the runway.  It can also lock out all other "
    "parking spots at an airport for arrivals.";

const char* const kIsolatedParkingText =
    "ISOLATED PARKING.\r\n"
    "This parking spot is not connected to the rest of the airport.  It can result in AI not "
    "being able to get to parking after landing, or disappearing on departure.  It can also lock "
    "out all other parking spots at the airport.";

const char* const kIsolatedNodeText =
    "ISOLATED NODE.\r\n"
    "This node is not connected to the rest of the airport.  This has no effect on the AI so "
    "removing it is optional.";

const char* const kOverlapText =
    "OVERLAPPING NODES.\r\n"
    "There are two overlapping nodes here.  This may have no effect on AI operation but it is an "
    "inefficient use of nodes.  Changing this is optional.";

const char* const kBadStartText =
    "BAD START LOCATION.\r\n"
    "Any runway that can be used as the active runway must have a Start Location.  This runway "
    "end is either missing a Start Location, or the Start Location has the wrong name.  The Start "
    "Location for this runway end must be named \"Rwy %s\".";

const char* const kMisplacedLinkText =
    "MISPLACED RUNWAY LINK.\r\n"
    "This taxi link is a 'runway' type taxi link, but it is not on a runway.  Runway type taxi "
    "links are shown in black and are usually only used along the centerline of a runway.  The AI "
    "avoid runway links except where there is no other normal taxi route to get where they want "
    "to go, this keeps them off runways except to takeoff and land.  Having a runway link outside "
    "of a runway may affect AI movements.  Also, ATC will mis-identify this segment as a runway "
    "when giving verbal taxiing instructions.  You should change this to a normal taxiway link.";

const char* const kLinkDesignatorText =
    "LINK DESIGNATOR DOESN'T MATCH THE RUNWAY.\r\n"
    "This runway taxi link is designated as %s, but the runway itself is designated as %s.  ATC "
    "uses taxiway link designators to give verbal taxiing instructions, so having the wrong "
    "designator can result in incorrect or confusing ATC directions. You can change the "
    "designator by selecting one from the drop-down designator list on the Tool Bar.";

const char* const kCrossedEdgesText =
    "CROSSED APRON EDGES.\r\n"
    "The edges of this apron surface cross over each other at one or more points.  This can "
    "result in parts of the apron surface not appearing in Flight Simulator";

constexpr uint32_t kPair = model::kFaultMarkA, kSegment = model::kFaultMarkB;
constexpr double kFeet = 3.280839895;

SceneryObject* Head() { return model::state.head; }

const model::TaxiLinkPayload& LinkOf(const SceneryObject* link) { return PayloadAs<model::TaxiLinkPayload>(link); }
SceneryObject* StartOf(const SceneryObject* link) { return LinkOf(link).start; }
SceneryObject* EndOf(const SceneryObject* link) { return LinkOf(link).end; }
uint32_t TypeOf(const SceneryObject* link) { return model::LinkTypeOf(LinkOf(link)); }
bool EndsAt(const SceneryObject* link, const SceneryObject* node) {
    return StartOf(link) == node || EndOf(link) == node;
}

void ClearMark(uint32_t mark) {
    for (SceneryObject* o = Head(); o; o = o->next) o->flags &= ~mark;
}

bool ClosedOnly(const SceneryObject* node) {
    bool any = false;
    for (SceneryObject* o = Head(); o; o = o->next) {
        if (KindOf(o) != model::kTaxiLink || !EndsAt(o, node)) continue;
        if (TypeOf(o) != model::kClosedLink) return false;
        any = true;
    }
    return any;
}

Point Offset(LatLon origin, LatLon position) {
    const model::Local local = model::LatLonToLocal(origin, position);
    return { local.east, local.north };
}

double PointToSegment(Point p, Point a, Point b) {
    const double dx = b.x - a.x, dy = b.y - a.y, square = dx * dx + dy * dy;
    double t = square > 0 ? ((p.x - a.x) * dx + (p.y - a.y) * dy) / square : 0;
    if (t < 0) t = 0;
    if (t > 1) t = 1;
    return std::sqrt((a.x + t * dx - p.x) * (a.x + t * dx - p.x) + (a.y + t * dy - p.y) * (a.y + t * dy - p.y));
}

// The runway's corners in the plane around the examined position, one after the other around it.
std::array<Point, 4> Corners(const SceneryObject* runway, LatLon around) {
    const auto& payload = PayloadAs<model::RunwayPayload>(runway);
    const double heading = double{ payload.body.heading } * 0.017453292519943295;
    const double ahead = double{ payload.body.length } / 2 + double{ payload.secondaryBlastPad.length };
    const double behind = double{ payload.body.length } / 2 + double{ payload.primaryBlastPad.length };
    const double side = double{ payload.body.width } / 2;
    const Point centre = Offset(around, PositionOf(runway));
    const auto corner = [&](double along, double right) -> Point {
        return { centre.x + along * std::sin(heading) + right * std::cos(heading),
                 centre.y + along * std::cos(heading) - right * std::sin(heading) };
    };
    return { corner(ahead, -side), corner(ahead, side), corner(-behind, side), corner(-behind, -side) };
}

// Clockwise corners: inside is right of every side, the side itself included.
bool Inside(const SceneryObject* runway, LatLon position) {
    const std::array<Point, 4> c = Corners(runway, position);
    for (size_t i = 0; i < 4; ++i) {
        const Point a = c[i], b = c[(i + 1) % 4];
        if ((b.x - a.x) * (0 - a.y) - (b.y - a.y) * (0 - a.x) > 0) return false;
    }
    return true;
}

bool Report0(SceneryObject* node, Report* report) {
    report->message = kHoldShortText;
    report->objects = { node };
    report->point = PositionOf(node);
    return true;
}

bool HoldShort(Finder* finder, bool resume, Report* report) {
    for (SceneryObject* node = resume ? finder->cursor[0]->next : Head(); node; node = node->next) {
        if (KindOf(node) != model::kTaxiNode) continue;
        if (PayloadAs<model::TaxiNodeRecord>(node).type != model::kHoldShortNode) continue;
        bool acceptable = false;
        for (SceneryObject* runway = Head(); runway && !acceptable; runway = runway->next) {
            if (KindOf(runway) != model::kRunway) continue;
            const std::array<Point, 4> c = Corners(runway, PositionOf(node));
            double distance = PointToSegment({}, c[3], c[0]);
            for (size_t i = 0; i < 3; ++i) distance = std::min(distance, PointToSegment({}, c[i], c[i + 1]));
            if (distance <= 225 / kFeet) {
                acceptable = true;
            } else {
                const double width = double{ PayloadAs<model::RunwayPayload>(runway).body.width };
                acceptable = width * kFeet >= 450.0 && Inside(runway, PositionOf(node));
            }
        }
        if (acceptable) continue;
        finder->cursor[0] = node;
        return Report0(node, report);
    }
    return false;
}

bool FindNodeBeside(SceneryObject* n, const SceneryObject* partner, Report* report) {
    for (SceneryObject* m = Head(); m; m = m->next) {
        if (KindOf(m) != model::kTaxiNode || m == n || m == partner || ClosedOnly(m)) continue;
        if (DistanceBetween(PositionOf(n), PositionOf(m)) > 70 / kFeet) continue;
        m->flags |= kPair;
        *report = { 1, kNodesUnconnectedText, { n, m }, PositionOf(n) };
        return true;
    }
    return false;
}

bool FindLinkBeside(SceneryObject* n, const SceneryObject* partner, Report* report) {
    for (SceneryObject* link = Head(); link; link = link->next) {
        if (KindOf(link) != model::kTaxiLink || !StartOf(link) || !EndOf(link)) continue;
        if (EndsAt(link, n) || (partner && EndsAt(link, partner))) continue;
        const LatLon at = PositionOf(n);
        const Point start = Offset(at, PositionOf(StartOf(link))), end = Offset(at, PositionOf(EndOf(link)));
        if (PointToSegment({}, start, end) > 50 / kFeet) continue;
        *report = { 1, kLinkUnconnectedText, { n, link }, at };
        return true;
    }
    return false;
}

bool OpenLinks(Finder* finder, bool resume, Report* report) {
    if (!resume) ClearMark(kPair);
    for (SceneryObject* n = resume ? finder->cursor[1]->next : Head(); n; n = n->next) {
        if (KindOf(n) != model::kTaxiNode || (n->flags & kPair)) continue;
        int count = 0;
        SceneryObject* partner = nullptr;
        for (SceneryObject* link = Head(); link; link = link->next) {
            if (KindOf(link) != model::kTaxiLink || !EndsAt(link, n)) continue;
            ++count;
            partner = StartOf(link) == n ? EndOf(link) : StartOf(link);
        }
        if (count > 1 || ClosedOnly(n)) continue;
        if (!FindNodeBeside(n, partner, report) && !FindLinkBeside(n, partner, report)) continue;
        finder->cursor[1] = n;
        return true;
    }
    return false;
}

void MoveTouching(std::list<Cell>* pool, std::list<Cell>* group) {
    for (bool moved = true; moved;) {
        moved = false;
        for (auto cell = pool->begin(); cell != pool->end();) {
            if (!(cell->start->flags & kSegment) && !(cell->end->flags & kSegment)) {
                ++cell;
                continue;
            }
            cell->start->flags |= kSegment;
            cell->end->flags |= kSegment;
            group->push_front(*cell);
            cell = pool->erase(cell);
            moved = true;
        }
    }
}

void GroupLinks(Finder* finder) {
    finder->groups.clear();
    ClearMark(kSegment);
    std::list<Cell> pool;
    for (SceneryObject* link = Head(); link; link = link->next) {
        if (KindOf(link) != model::kTaxiLink || TypeOf(link) == model::kClosedLink) continue;
        pool.push_front({ link, StartOf(link), EndOf(link) });
    }
    while (!pool.empty() && finder->groups.size() < 16) {
        pool.front().start->flags |= kSegment;
        pool.front().end->flags |= kSegment;
        finder->groups.emplace_back();
        MoveTouching(&pool, &finder->groups.back());
    }
    finder->largestGroup = 0;
    for (size_t i = 1; i < finder->groups.size(); ++i) {
        if (finder->groups[i].size() > finder->groups[finder->largestGroup].size()) finder->largestGroup = i;
    }
    finder->nextGroup = finder->largestGroup == 0 ? 1 : 0;
}

bool IsolatedGroup(Finder* finder, Report* report) {
    if (finder->groups.size() < 2 || finder->nextGroup >= finder->groups.size()) return false;
    const std::list<Cell>& group = finder->groups[finder->nextGroup];
    report->message = kIsolatedSegmentText;
    bool parking = false;
    for (const Cell& cell : group) {
        report->objects.insert({ cell.link, cell.start, cell.end });
        parking |= KindOf(cell.start) == model::kParkingSpot || KindOf(cell.end) == model::kParkingSpot;
    }
    if (parking) report->message += kSegmentWithParkingText;
    report->point = PositionOf(group.front().start);
    if (++finder->nextGroup == finder->largestGroup) ++finder->nextGroup;
    return true;
}

bool Isolated(Finder* finder, bool resume, Report* report) {
    if (!resume) GroupLinks(finder);
    if (IsolatedGroup(finder, report)) return true;
    const auto alone = [&](SceneryObject* object, const char* text) {
        object->flags |= kSegment;
        *report = { 2, text, { object }, PositionOf(object) };
        return true;
    };
    for (SceneryObject* spot = Head(); spot; spot = spot->next) {
        if (KindOf(spot) == model::kParkingSpot && !(spot->flags & kSegment)) return alone(spot, kIsolatedParkingText);
    }
    for (SceneryObject* node = Head(); node; node = node->next) {
        if (KindOf(node) == model::kTaxiNode && !(node->flags & kSegment) && !ClosedOnly(node))
            return alone(node, kIsolatedNodeText);
    }
    return false;
}

bool Overlapping(Finder* finder, bool resume, Report* report) {
    if (!resume) ClearMark(kPair);
    for (SceneryObject* a = resume ? finder->cursor[3]->next : Head(); a; a = a->next) {
        if (KindOf(a) != model::kTaxiNode || (a->flags & kPair)) continue;
        for (SceneryObject* b = Head(); b; b = b->next) {
            if (KindOf(b) != model::kTaxiNode || b == a) continue;
            if (DistanceBetween(PositionOf(a), PositionOf(b)) > 15 / kFeet || ClosedOnly(a) || ClosedOnly(b)) continue;
            b->flags |= kPair;
            *report = { 3, kOverlapText, { a, b }, PositionOf(a) };
            finder->cursor[3] = a;
            return true;
        }
    }
    return false;
}

std::string StartName(const SceneryObject* start) {
    const auto& record = PayloadAs<model::StartLocationRecord>(start);
    if (record.designatorAndType >> 4 == 3) return "Helipad " + std::to_string(record.number);
    return "Rwy " + model::RunwayEndName(record.number, record.designatorAndType & 0xF);
}

std::string EndName(const SceneryObject* runway, int end) {
    const model::RunwayRecord& body = PayloadAs<model::RunwayPayload>(runway).body;
    return end == 0 ? model::RunwayEndName(body.primaryNumber, body.primaryDesignator)
                    : model::RunwayEndName(body.secondaryNumber, body.secondaryDesignator);
}

void ListMissingStarts(Finder* finder) {
    finder->missingStarts.clear();
    for (SceneryObject* runway = Head(); runway; runway = runway->next) {
        if (KindOf(runway) != model::kRunway) continue;
        for (int end = 0; end < 2; ++end) {
            if (PayloadAs<model::RunwayPayload>(runway).body.pattern & (end == 0 ? 1 : 8)) continue;
            const std::string name = EndName(runway, end);
            bool found = false;
            for (SceneryObject* start = Head(); start; start = start->next) {
                found |= KindOf(start) == model::kStartLocation && StartName(start).substr(4) == name;
            }
            if (!found) finder->missingStarts.push_front({ runway, end, name });
        }
    }
}

bool Starts(Finder* finder, bool resume, Report* report) {
    if (!resume) ListMissingStarts(finder);
    if (finder->missingStarts.empty()) return false;
    const MissingStart cell = finder->missingStarts.front();
    finder->missingStarts.pop_front();
    char message[1000];
    std::snprintf(message, sizeof message, kBadStartText, cell.name.c_str());
    const model::RunwayRecord body = PayloadAs<model::RunwayPayload>(cell.runway).body;
    double heading = double{ body.heading } * 0.017453292519943295;
    if (cell.end == 0) heading += model::kPi;
    const double range = double{ body.length } / 2 - 200 / kFeet;
    *report = { 4, message, { cell.runway }, model::OffsetByPolar(PositionOf(cell.runway), { range, heading }) };
    return true;
}

double AngleBetween(const SceneryObject* runway, double direction) {
    const double heading = double{ PayloadAs<model::RunwayPayload>(runway).body.heading } * 0.017453292519943295;
    double angle = std::fmod(std::fabs(heading - direction), model::kPi);
    if (angle > model::kPi / 2) angle = model::kPi - angle;
    return angle;
}

SceneryObject* RunwayUnder(LatLon start, LatLon end, LatLon middle) {
    SceneryObject* best = nullptr;
    double least = 1000;
    for (SceneryObject* runway = Head(); runway; runway = runway->next) {
        if (KindOf(runway) != model::kRunway) continue;
        if (!Inside(runway, start) && !Inside(runway, end) && !Inside(runway, middle)) continue;
        const double angle = AngleBetween(runway, model::RangeAndBearing(start, end).bearing);
        if (angle >= least - 1e-9) continue;  // a reciprocal heading is an equal one, whatever its last bits
        best = runway;
        least = angle;
    }
    return best;
}

bool RunwayLinks(Finder* finder, bool resume, Report* report) {
    for (SceneryObject* link = resume ? finder->cursor[5]->next : Head(); link; link = link->next) {
        if (KindOf(link) != model::kTaxiLink || TypeOf(link) != model::kRunwayLink) continue;
        const LatLon start = PositionOf(StartOf(link)), end = PositionOf(EndOf(link));
        model::Polar way = model::RangeAndBearing(start, end);
        way.range /= 2;
        const LatLon middle = model::OffsetByPolar(start, way);
        const SceneryObject* runway = RunwayUnder(start, end, middle);
        const SceneryObject* named = LinkOf(link).designator;
        if (runway && named && EndName(runway, 0) == EndName(named, 0) && EndName(runway, 1) == EndName(named, 1))
            continue;
        char message[1000];
        std::snprintf(message, sizeof message, "%s", kMisplacedLinkText);
        if (runway) {
            const std::string name = named ? EndName(named, 0) + "/" + EndName(named, 1) : "(blank)";
            const std::string real = EndName(runway, 0) + "/" + EndName(runway, 1);
            std::snprintf(message, sizeof message, kLinkDesignatorText, name.c_str(), real.c_str());
        }
        *report = { 5, message, { link }, middle };
        finder->cursor[5] = link;
        return true;
    }
    return false;
}

// Whether the segments share a point, and one that they share.
bool Intersect(Point a, Point b, Point c, Point d, Point* at) {
    const auto cross = [](Point o, Point p, Point q) { return (p.x - o.x) * (q.y - o.y) - (p.y - o.y) * (q.x - o.x); };
    const auto sign = [](double x) { return (x > 0) - (x < 0); };
    const auto within = [](Point p, Point q, Point r) {
        return std::min(q.x, r.x) <= p.x && p.x <= std::max(q.x, r.x) && std::min(q.y, r.y) <= p.y &&
               p.y <= std::max(q.y, r.y);
    };
    const int c0 = sign(cross(a, b, c)), d0 = sign(cross(a, b, d));
    const int a0 = sign(cross(c, d, a)), b0 = sign(cross(c, d, b));
    if (c0 * d0 < 0 && a0 * b0 < 0) {
        const double t = cross(c, d, a) / (cross(c, d, a) - cross(c, d, b));
        *at = { a.x + t * (b.x - a.x), a.y + t * (b.y - a.y) };
        return true;
    }
    if (c0 == 0 && within(c, a, b)) return *at = c, true;
    if (d0 == 0 && within(d, a, b)) return *at = d, true;
    if (a0 == 0 && within(a, c, d)) return *at = a, true;
    if (b0 == 0 && within(b, c, d)) return *at = b, true;
    return false;
}

bool Aprons(Finder* finder, bool resume, Report* report) {
    for (SceneryObject* apron = resume ? finder->cursor[6]->next : Head(); apron; apron = apron->next) {
        if (KindOf(apron) != model::kApron) continue;
        const size_t count = PayloadAs<model::ApronHead>(apron).outlineCount;
        const auto* points = reinterpret_cast<const model::EncodedPoint*>(apron->payload + sizeof(model::ApronHead));
        if (count < 4) continue;
        const auto position = [&](size_t i) { return model::BglToLatLon({ points[i].latitude, points[i].longitude }); };
        const auto vertex = [&](size_t i) { return Offset(position(0), position(i % count)); };
        for (size_t i = 0; i < count; ++i) {
            for (size_t j = i + 2; j < count; ++j) {
                Point at;
                if (i == 0 && j == count - 1) continue;
                if (!Intersect(vertex(i), vertex(i + 1), vertex(j), vertex(j + 1), &at)) continue;
                *report = { 6, kCrossedEdgesText, { apron }, model::LocalToLatLon(position(0), { at.x, at.y }) };
                finder->cursor[6] = apron;
                return true;
            }
        }
    }
    return false;
}

using Check = bool (*)(Finder* finder, bool resume, Report* report);
constexpr Check kChecks[] = { HoldShort, OpenLinks, Isolated, Overlapping, Starts, RunwayLinks, Aprons };

}  // namespace

Report Press(Finder* finder, int edit) {
    if (edit != finder->lastEdit) {
        finder->anyFaultFound = finder->resumeCheck = false;
        finder->lastEdit = edit;
    }
    for (; finder->checkIndex < 7; ++finder->checkIndex, finder->resumeCheck = false) {
        const auto index = static_cast<size_t>(finder->checkIndex);
        Report report;
        if (!finder->switches[index] || !kChecks[index](finder, finder->resumeCheck, &report)) continue;
        report.check = finder->checkIndex;
        finder->resumeCheck = finder->anyFaultFound = true;
        return report;
    }
    Report none;
    none.message = finder->anyFaultFound ? "No more faults found." : "No faults found.";
    finder->checkIndex = 0;
    finder->resumeCheck = finder->anyFaultFound = false;
    return none;
}

}  // namespace literal
