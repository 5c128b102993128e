// MoveDrag.cpp - see MoveDrag.h.
#include "map/MoveDrag.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <unordered_set>
#include <vector>

#include "map/ApronShape.h"
#include "map/HoldShortUpdate.h"
#include "map/MapView.h"
#include "map/MovedPoints.h"
#include "map/Placing.h"
#include "model/EdgeLights.h"
#include "model/EditHistory.h"
#include "model/ObjectList.h"
#include "model/Records.h"
#include "model/Replacement.h"
#include "model/Triangulate.h"
#include "platform/Platform.h"

namespace map {

using model::KindOf;
using model::PayloadAs;
using model::SceneryObject;

namespace {

constexpr double kNoMove = 0.001;  // metres

struct MovedObject {
    SceneryObject* object;
    std::vector<uint32_t> points;  // that move
    bool whole;                    // or only a part of it
    std::vector<uint8_t> home;     // the payload, so that what is put back is bit for bit what it was
};

struct MoveState {
    bool moving = false;
    LatLon from;          // the place under the press
    model::Local offset;  // from there to the pointer, the last that all objects could follow
    std::vector<MovedObject> objects;
};

MoveState move;

using Carried = std::unordered_set<const SceneryObject*>;

// What links and guidelines take with them.
Carried CarriedObjects() {
    Carried carried;
    for (const SceneryObject* o = model::state.head; o; o = o->next) {
        if (!model::IsSelected(o)) continue;
        if (KindOf(o) == model::kTaxiLink) {
            const auto& link = PayloadAs<model::TaxiLinkPayload>(o);
            carried.insert({ link.start, link.end });
        } else if (KindOf(o) == model::kGuideline) {
            const auto& line = PayloadAs<model::GuidelinePayload>(o);
            carried.insert({ line.from, line.to });
        }
    }
    return carried;
}

bool MayMove(const SceneryObject* object) {
    return !model::IsStock(object) || (layers.navaids && !model::IsReplacedStock(object));
}

void Collect() {
    const Carried carried = CarriedObjects();
    for (SceneryObject* o = model::state.head; o; o = o->next) {
        const bool taken = carried.contains(o);
        if ((!taken && !model::IsSelected(o)) || !MayMove(o)) continue;
        const bool whole = taken || (o->flags & model::kWholeSelected) != 0;
        std::vector<uint32_t> points = MovingPoints(o, whole);
        if (points.empty() && KindOf(o) != model::kReferenceMarker) continue;
        move.objects.push_back({ o, std::move(points), whole, { o->payload, o->payload + o->payloadSize } });
    }
}

// Something else may have taken objects out of the list meanwhile, or changed them: those are left alone.
void DropForeignObjects() {
    std::unordered_set<const SceneryObject*> live;
    for (const SceneryObject* o = model::state.head; o; o = o->next) live.insert(o);
    std::erase_if(move.objects, [&](const MovedObject& moved) {
        return !live.contains(moved.object) || moved.object->payloadSize != moved.home.size();
    });
}

void PutHome(const MovedObject& moved) {
    if (moved.points.empty()) std::memcpy(moved.object->payload, moved.home.data(), moved.home.size());
    for (const uint32_t point : moved.points) {
        std::memcpy(moved.object->payload + point, moved.home.data() + point, sizeof(model::EncodedPoint));
    }
}

void PutBack() {
    DropForeignObjects();
    for (const MovedObject& moved : move.objects) PutHome(moved);
    model::state.busy = false;
}

bool ShiftAll(model::Local offset) {
    for (const MovedObject& moved : move.objects) {
        PutHome(moved);
        if (!ShiftPoints(moved.object, moved.points, offset)) return false;
    }
    return true;
}

// The painted surface follows the outline; the selected corners stay selected.
SceneryObject* WithSurface(SceneryObject* shifted) {
    SceneryObject* apron = model::CopyWithOutline(shifted, model::ApronOutline(shifted));
    std::memcpy(PayloadAs<model::ApronHead>(apron).selection, PayloadAs<model::ApronHead>(shifted).selection,
                sizeof(model::ApronHead::selection));
    model::FreeObject(shifted);
    return apron;
}

bool StartMoved(const model::EdgeLightStrip& a, const model::EdgeLightStrip& b) {
    return a.startLongitude != b.startLongitude || a.startLatitude != b.startLatitude;
}

bool EndMoved(const model::EdgeLightStrip& a, const model::EdgeLightStrip& b) {
    return a.endLongitude != b.endLongitude || a.endLatitude != b.endLatitude;
}

// Strips whose length changed end at a lamp again, if that is wanted.
void AdjustStrips(SceneryObject* lights, const SceneryObject* before) {
    if (!model::state.edgeLights.adjust) return;
    std::vector<model::EdgeLightStrip> strips = model::StripsOf(lights);
    const std::vector<model::EdgeLightStrip> old = model::StripsOf(before);
    for (size_t i = 0; i < strips.size() && i < old.size(); ++i) {
        if (StartMoved(strips[i], old[i]) == EndMoved(strips[i], old[i])) continue;
        strips[i].spacing = static_cast<float>(
            model::AdjustedSpacing(model::StripLength(strips[i]), model::state.edgeLights.optimumSpacing));
    }
    model::SetStrips(lights, strips);
}

// A map that was moved under the drag, and back, leaves a rounding that is no move.
model::Local OffsetTo(LatLon place) {
    const double north = (place.lat - move.from.lat) * model::kNorthSouthRadius;
    const double east = (place.lon - move.from.lon) * std::cos(place.lat) * model::kEastWestRadius;
    return std::hypot(east, north) < kNoMove ? model::Local{} : model::LatLonToLocal(move.from, place);
}

void Record(const MovedObject& moved) {
    SceneryObject* edited = model::CopyObject(moved.object);
    if (!ShiftPoints(edited, moved.points, move.offset) ||
        std::memcmp(edited->payload, moved.object->payload, edited->payloadSize) == 0)
        return model::FreeObject(edited);
    if (KindOf(edited) == model::kApron && !moved.whole) edited = WithSurface(edited);
    if (KindOf(edited) == model::kApronEdgeLights) AdjustStrips(edited, moved.object);
    if (model::IsStock(edited))
        model::ReplaceStock(edited, moved.object);
    else
        model::ModifyObject(edited, moved.object);
}

}  // namespace

void BeginMove(Pixel press) {
    move = {};
    move.from = UnderPixel(press);
    Collect();
    move.moving = model::state.busy = !move.objects.empty();
}

void FollowMove(Pixel pointer) {
    if (!move.moving) return;
    const model::Local offset = OffsetTo(UnderPixel(pointer));
    if (!std::isfinite(offset.east) || !std::isfinite(offset.north)) return;
    DropForeignObjects();
    if (ShiftAll(offset))
        move.offset = offset;
    else
        ShiftAll(move.offset);  // one would go past a pole: all stay where they were
    platform::RequestRepaint();
}

void FinishMove() {
    if (!move.moving) return ForgetMove();
    PutBack();
    if (move.offset.east == 0 && move.offset.north == 0) move.objects.clear();  // back where it began
    const HoldShortSides before = NoteHoldShorts();
    model::BeginAction();
    for (const MovedObject& moved : move.objects) Record(moved);
    if (!move.objects.empty()) FollowHoldShorts(before);
    ForgetMove();
    platform::RequestRepaint();
}

void CancelMove() {
    if (move.moving) {
        PutBack();
        platform::RequestRepaint();
    }
    ForgetMove();
}

void ForgetMove() { move = {}; }

}  // namespace map
