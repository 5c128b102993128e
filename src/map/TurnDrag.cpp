// TurnDrag.cpp - see TurnDrag.h.
#include "map/TurnDrag.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "map/MapHost.h"
#include "map/NewObjects.h"
#include "map/ScreenPlace.h"
#include "map/Selection.h"
#include "map/Shapes.h"
#include "map/Tools.h"
#include "model/EditHistory.h"
#include "model/ObjectList.h"
#include "model/Positions.h"
#include "model/Records.h"
#include "platform/Platform.h"

namespace map {

using model::KindOf;
using model::PayloadAs;

namespace {

constexpr double kHandleDistance = 12;  // pixels from the symbol's edge

struct TurnState {
    SceneryObject* object = nullptr;
    float home = 0;     // degrees
    float heading = 0;  // where the drag has brought it
};

TurnState turn;
const SceneryObject* shownOfMany = nullptr;  // compared only

float HeadingOf(const SceneryObject* object) {
    switch (KindOf(object)) {
    case model::kParkingSpot: return PayloadAs<model::ParkingSpotRecord>(object).heading;
    case model::kStartLocation: return PayloadAs<model::StartLocationRecord>(object).heading;
    default: return PayloadAs<model::HelipadRecord>(object).heading;
    }
}

void SetHeading(SceneryObject* object, float heading) {
    switch (KindOf(object)) {
    case model::kParkingSpot: PayloadAs<model::ParkingSpotRecord>(object).heading = heading; break;
    case model::kStartLocation: PayloadAs<model::StartLocationRecord>(object).heading = heading; break;
    default: PayloadAs<model::HelipadRecord>(object).heading = heading; break;
    }
}

bool CanTurn(const SceneryObject* object) {
    switch (KindOf(object)) {
    case model::kParkingSpot: return layers.network;
    case model::kStartLocation: return layers.starts;
    case model::kHelipad: return true;
    default: return false;
    }
}

// From the object's middle to its edge, in pixels.
double SymbolReach(const SceneryObject* object) {
    if (KindOf(object) != model::kHelipad) return ScreenRadius(object);
    const double half = double{ PayloadAs<model::HelipadRecord>(object).length } / 2 * view.pixelsPerMetre;
    return half > 0 && half < kSafeReach ? half : 0;
}

// False when the object has gone meanwhile.
bool PutBack() {
    model::state.busy = false;
    if (!IsInList(turn.object)) return false;
    SetHeading(turn.object, turn.home);
    return true;
}

// By its bytes: a heading that is no number equals nothing, not even itself.
void Record() {
    SceneryObject* edited = model::CopyObject(turn.object);
    SetHeading(edited, turn.heading);
    if (std::memcmp(edited->payload, turn.object->payload, edited->payloadSize) == 0) return model::FreeObject(edited);
    model::BeginAction();
    model::ModifyObject(edited, turn.object);
    platform::RequestRepaint();
}

std::vector<SceneryObject*> AllTurnable() {
    std::vector<SceneryObject*> found;
    for (SceneryObject* o = model::state.head; o; o = o->next) {
        if (model::IsSelected(o) && CanTurn(o) && IsDrawn(o)) found.push_back(o);
    }
    return found;
}

double PointerDistance(const SceneryObject* object) {
    const Pixel at = tools.cursor;
    return Length(TurnHandleOf(object) - Point{ double(at.x), double(at.y) });
}

// The one that has a handle when there are too many for all of them; else null.
SceneryObject* HandleOfMany(const std::vector<SceneryObject*>& all) {
    if (all.size() <= kMostHandles) return nullptr;
    if (std::find(all.begin(), all.end(), turn.object) != all.end()) return turn.object;
    return *std::min_element(all.begin(), all.end(), [](const SceneryObject* a, const SceneryObject* b) {
        return PointerDistance(a) < PointerDistance(b);
    });
}

}  // namespace

std::vector<SceneryObject*> TurnableObjects() {
    std::vector<SceneryObject*> all = AllTurnable();
    if (SceneryObject* one = HandleOfMany(all)) return { one };
    return all;
}

Point TurnHandleOf(const SceneryObject* object) {
    const double heading = double{ HeadingOf(object) } * model::kRadiansPerDegree;
    const double reach = SymbolReach(object) + kHandleDistance;
    return WorldToScreen(model::PositionOf(object)) + HeadingOnScreen(heading) * reach;
}

SceneryObject* TurnHandleAt(Pixel at) {
    for (SceneryObject* object : TurnableObjects()) {
        if (HitsCircle(at, ToPixel(TurnHandleOf(object)), kHandleReach)) return object;
    }
    return nullptr;
}

bool BeginTurn(SceneryObject* object) {
    if (!IsInList(object) || !CanTurn(object)) return false;
    turn = { object, HeadingOf(object), HeadingOf(object) };
    model::state.busy = true;
    return true;
}

void FollowTurn(Pixel pointer) {
    if (!turn.object || !IsInList(turn.object)) return;
    const Point from = WorldToScreen(model::PositionOf(turn.object));
    const double right = double(pointer.x) - from.x, up = from.y - double(pointer.y);
    if (!std::isfinite(right) || !std::isfinite(up) || (right == 0 && up == 0)) return;
    turn.heading = HeadingInDegrees(std::atan2(right, up) + view.rotation);
    SetHeading(turn.object, turn.heading);
    platform::RequestRepaint();
}

void FinishTurn() {
    if (turn.object && PutBack()) Record();
    ForgetTurn();
}

void CancelTurn() {
    if (turn.object && PutBack()) platform::RequestRepaint();
    ForgetTurn();
}

void ForgetTurn() { turn = {}; }

void MoveHandle() {
    SceneryObject* now = HandleOfMany(AllTurnable());
    if (now != shownOfMany) RequestFeedback();
    shownOfMany = now;
}

}  // namespace map
