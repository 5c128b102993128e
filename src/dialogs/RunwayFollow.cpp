// RunwayFollow.cpp - see RunwayFollow.h.
//
// The bytes in a localizer that name its runway end are not to be relied on in stock files: whoever is tied
// to the end by the runway's ILS ident keeps those bytes unless they name the end that is renamed.
#include "dialogs/RunwayFollow.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "dialogs/PositionField.h"
#include "dialogs/RunwayParts.h"
#include "dialogs/RunwayPlaces.h"
#include "dialogs/Subject.h"
#include "dialogs/TextField.h"
#include "model/Geodesy.h"
#include "model/Geometry.h"
#include "model/Ident.h"
#include "model/IlsEnds.h"
#include "model/Names.h"
#include "model/ObjectList.h"
#include "model/Positions.h"
#include "platform/Platform.h"
#include "platform/Text.h"

namespace dialogs {

namespace {

using model::IlsPayload;
using model::RunwayPayload;
using model::RunwayRecord;
using model::StartLocationRecord;

struct EndDesignator {
    uint8_t number = 0, designator = 0;
    bool operator==(const EndDesignator&) const = default;
};

EndDesignator DesignatorOf(const SceneryObject* runway, int end) {
    return { runway->payload[kEndPlaces[end].number], runway->payload[kEndPlaces[end].designator] };
}

bool StartsAt(const SceneryObject* start, EndDesignator end) {
    const auto& record = model::PayloadAs<StartLocationRecord>(start);
    return StartTypeOf(record) != model::kHelipadStart && record.number == end.number &&
           StartSuffix(record) == end.designator;
}

// Names of ends may occur twice, also on one runway: the start location is that of the nearest.
bool IsNearestStart(const SceneryObject* start, const SceneryObject* runway, int end) {
    if (!StartsAt(start, DesignatorOf(runway, end))) return false;
    const model::IlsEnd nearest = model::NearestEnd(start, [start](const model::IlsEnd& at) {
        return StartsAt(start, DesignatorOf(at.runway, static_cast<int>(at.end)));
    });
    return nearest.runway == runway && nearest.end == ModelEnd(end);
}

void MovePoint(const RunwayPlane& from, const RunwayPlane& to, SceneryObject* draft, size_t offset) {
    model::EncodedPoint point;
    std::memcpy(&point, draft->payload + offset, sizeof point);
    if (point.latitude == 0 && point.longitude == 0) return;  // a part that is flagged, but was never in the file
    model::Point place = PlaceIn(from, model::BglToLatLon({ point.latitude, point.longitude }));
    const double growth = to.halfLength - from.halfLength;
    place.y += place.y < 0 ? -growth : growth;
    const model::BglPoint code = model::LatLonToBgl(PositionIn(to, place));
    point = { code.lonCode, code.latCode };
    std::memcpy(draft->payload + offset, &point, sizeof point);
}

float Turned(float heading, const RunwayPlane& from, const RunwayPlane& to) {
    constexpr double kTurns = 720;  // rounds away what the way through radians has left beside a whole turn
    return model::WrappedHeading(heading + (to.heading - from.heading) * model::kDegreesPerRadian + kTurns);
}

void MoveIls(const RunwayPlane& from, const RunwayPlane& to, SceneryObject* draft) {
    auto& ils = model::PayloadAs<IlsPayload>(draft);
    MovePoint(from, to, draft, offsetof(model::VorRecord, longitude));
    if (ils.body.flags & model::kHasGlideSlope)
        MovePoint(from, to, draft, offsetof(IlsPayload, glideSlope) + offsetof(model::GlideSlopePart, longitude));
    if (ils.body.flags & model::kHasDme)
        MovePoint(from, to, draft, offsetof(IlsPayload, dme) + offsetof(model::DmePart, longitude));
    ils.localizer.heading = Turned(ils.localizer.heading, from, to);
}

void MoveStart(const RunwayPlane& from, const RunwayPlane& to, SceneryObject* draft) {
    auto& start = model::PayloadAs<StartLocationRecord>(draft);
    MovePoint(from, to, draft, offsetof(StartLocationRecord, longitude));
    start.heading = Turned(start.heading, from, to);
}

// What is no number is the same as what is none.
bool SameNumber(float a, float b) { return a == b || (std::isnan(a) && std::isnan(b)); }

bool SamePlane(const SceneryObject* a, const SceneryObject* b) {
    const RunwayRecord &x = model::PayloadAs<RunwayPayload>(a).body, &y = model::PayloadAs<RunwayPayload>(b).body;
    return x.longitude == y.longitude && x.latitude == y.latitude && SameNumber(x.heading, y.heading) &&
           SameNumber(x.length, y.length);
}

std::string QuestionFor(const std::vector<SceneryObject*>& ils, const std::vector<SceneryObject*>& starts) {
    const char* what = starts.empty() ? "ILS" : ils.empty() ? "start locations" : "ILS and start locations";
    return std::string("You have changed the position, length or heading of the runway.\n\nDo you want to move its ") +
           what + " with it?";
}

void AppendNew(const std::vector<SceneryObject*>& from, std::vector<SceneryObject*>* to) {
    for (SceneryObject* object : from) {
        if (std::find(to->begin(), to->end(), object) == to->end()) to->push_back(object);
    }
}

void RenameIls(SceneryObject* draft, EndDesignator from, EndDesignator to) {
    auto& ils = model::PayloadAs<IlsPayload>(draft);
    if (ils.localizer.runwayNumber == from.number && ils.localizer.runwayDesignator == from.designator) {
        ils.localizer.runwayNumber = to.number;
        ils.localizer.runwayDesignator = to.designator;
    }
    const std::string name(ils.name, std::find(ils.name, ils.name + sizeof ils.name, '\0'));
    const std::string renamed = RenamedIls(name, model::RunwayEndName(from.number, from.designator),
                                           model::RunwayEndName(to.number, to.designator));
    if (renamed == name || renamed.size() > model::kNavaidNameSize) return;
    std::fill(std::begin(ils.name), std::end(ils.name), '\0');
    std::copy(renamed.begin(), renamed.end(), ils.name);
}

}  // namespace

EndBelongings BelongingsOf(const SceneryObject* runway, int end) {
    EndBelongings found;
    for (SceneryObject* object = model::state.head; object; object = object->next) {
        if (KindOf(object) == model::kIls && !model::IsReplacedStock(object) &&
            model::IlsServes(object, runway, ModelEnd(end)))
            found.ils.push_back(object);
        if (KindOf(object) == model::kStartLocation && IsNearestStart(object, runway, end))
            found.starts.push_back(object);
    }
    return found;
}

std::string RenamedIls(const std::string& name, const std::string& oldEnd, const std::string& newEnd) {
    const auto isNumbered = [](const std::string& end) { return !end.empty() && end[0] <= '9'; };
    const auto isSingleDigit = [](const std::string& end) { return end.size() == 1 || end[1] > '9'; };
    const auto padded = [&](const std::string& end) { return isNumbered(end) && isSingleDigit(end) ? "0" + end : end; };
    const size_t word = name.find_last_of(' ') + 1;  // 0 when there is no blank
    const std::string kept = name.substr(0, word), last = name.substr(word);
    if (platform::EqualNoCase(last, oldEnd)) return kept + newEnd;
    if (platform::EqualNoCase(last, padded(oldEnd))) return kept + padded(newEnd);
    return name;
}

void RenameWithRunway(const SceneryObject* runway, const SceneryObject* draft, Edits* edits) {
    // Both ends are looked up before either is renamed: the two may exchange their names.
    const EndBelongings before[2] = { BelongingsOf(runway, kBaseEnd), BelongingsOf(runway, kReciprocalEnd) };
    for (int end = 0; end < 2; ++end) {
        const EndDesignator from = DesignatorOf(runway, end), to = DesignatorOf(draft, end);
        if (from == to) continue;
        for (SceneryObject* start : before[end].starts) {
            auto& record = model::PayloadAs<StartLocationRecord>(DraftOf(edits, start));
            record.number = to.number;
            record.designatorAndType = model::StartNibbles(StartTypeOf(record), to.designator);
        }
        for (SceneryObject* ils : before[end].ils) RenameIls(DraftOf(edits, ils), from, to);
    }
}

bool MoveWithRunway(const SceneryObject* runway, const SceneryObject* draft, Edits* edits) {
    // A preview on the map would pass for the runway's old place.
    const ObjectPtr before(model::CopyObject(runway));
    UndoPreviewIn(before.get(), runway);
    if (SamePlane(before.get(), draft)) return true;
    std::vector<SceneryObject*> ils, starts;
    for (int end = 0; end < 2; ++end) {
        const EndBelongings found = BelongingsOf(runway, end);
        AppendNew(found.ils, &ils);
        AppendNew(found.starts, &starts);
    }
    if (ils.empty() && starts.empty()) return true;
    const auto answer =
        platform::ShowMessage(QuestionFor(ils, starts), platform::Buttons::YesNoCancel, platform::Icon::Question);
    if (answer == platform::Answer::Cancel) return false;
    if (answer == platform::Answer::No) return true;
    const RunwayPlane from = PlaneOf(before.get()), to = PlaneOf(draft);
    for (SceneryObject* each : ils) MoveIls(from, to, DraftOf(edits, each));
    for (SceneryObject* each : starts) MoveStart(from, to, DraftOf(edits, each));
    return true;
}

}  // namespace dialogs
