// MoveDrag.cpp - see MoveDrag.h.
#include "map/MoveDrag.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <unordered_set>
#include <vector>

#include "map/MapView.h"
#include "model/EditHistory.h"
#include "model/ObjectList.h"
#include "model/Positions.h"
#include "platform/Platform.h"

namespace map {

using model::SceneryObject;

namespace {

struct MovedObject {
    SceneryObject* object;
    model::BglPoint home;    // encoded, so that an object put back is bit for bit what it was
    model::LatLon position;  // where the move has brought it
};

struct MoveState {
    bool armed = false, moving = false;
    bool wasMoved = false;  // the pointer is over another place of the ground than at the press
    Pixel press;
    LatLon from;  // the place under the press
    std::vector<MovedObject> objects;
};

MoveState move;

bool IsMovable(const SceneryObject* object) {
    const uint32_t kind = model::KindOf(object);
    return kind == model::kTaxiNode || kind == model::kParkingSpot;
}

void StoreCode(SceneryObject* object, model::BglPoint code) {
    const model::EncodedPoint point = { code.lonCode, code.latCode };
    if (model::KindOf(object) == model::kTaxiNode) {
        auto& node = model::PayloadAs<model::TaxiNodeRecord>(object);
        node.longitude = point.longitude;
        node.latitude = point.latitude;
    } else {
        auto& spot = model::PayloadAs<model::ParkingSpotRecord>(object);
        spot.longitude = point.longitude;
        spot.latitude = point.latitude;
    }
}

// A selection moves as a whole or not at all.
bool IsSelectionMovable() {
    for (const SceneryObject* o = model::state.head; o; o = o->next) {
        if (model::IsSelected(o) && !IsMovable(o)) return false;
    }
    return true;
}

void Begin() {
    move.armed = false;
    if (!IsSelectionMovable()) return;
    for (SceneryObject* o = model::state.head; o; o = o->next) {
        if (!model::IsSelected(o) || !IsMovable(o)) continue;
        move.objects.push_back({ o, model::EncodedPositionOf(o), model::PositionOf(o) });
    }
    move.moving = !move.objects.empty();
    model::state.busy = move.moving;
}

// Something else may have taken objects out of the list meanwhile: those are left alone.
void DropAbsentObjects() {
    std::unordered_set<const SceneryObject*> live;
    for (SceneryObject* o = model::state.head; o; o = o->next) live.insert(o);
    std::erase_if(move.objects, [&](const MovedObject& moved) { return !live.contains(moved.object); });
}

void PutBack() {
    DropAbsentObjects();
    for (const MovedObject& moved : move.objects) StoreCode(moved.object, moved.home);
    model::state.busy = false;
}

LatLon UnderPixel(Pixel at) { return ScreenToWorld({ double(at.x), double(at.y) }); }

}  // namespace

void ArmMove(Pixel press) {
    move = {};
    move.armed = true;
    move.press = press;
    move.from = UnderPixel(press);
}

bool FollowMove(Pixel pointer) {
    const bool left =
        std::abs(pointer.x - move.press.x) >= kDragThreshold || std::abs(pointer.y - move.press.y) >= kDragThreshold;
    if (move.armed && left) Begin();
    if (!move.moving) return false;
    const model::Local offset = model::LatLonToLocal(move.from, UnderPixel(pointer));
    if (!std::isfinite(offset.east) || !std::isfinite(offset.north)) return true;
    const auto to = [&](const MovedObject& moved) {
        return model::LocalToLatLon(model::BglToLatLon(moved.home), offset);
    };
    const auto isPastAPole = [&](const MovedObject& moved) { return std::fabs(to(moved).lat) >= model::kPi / 2; };
    if (std::any_of(move.objects.begin(), move.objects.end(), isPastAPole)) return true;  // stays where it was
    move.wasMoved = offset.east != 0 || offset.north != 0;
    for (MovedObject& moved : move.objects) {
        moved.position = to(moved);
        model::SetPosition(moved.object, moved.position);
    }
    platform::RequestRepaint();
    return true;
}

void FinishMove() {
    move.armed = false;
    if (!move.moving) return;
    PutBack();
    if (!move.wasMoved) move.objects.clear();  // back where it began: nothing to record
    model::BeginAction();
    for (const MovedObject& moved : move.objects) {
        SceneryObject* edited = model::CopyObject(moved.object);
        model::SetPosition(edited, moved.position);
        model::ModifyObject(edited, moved.object);
    }
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
