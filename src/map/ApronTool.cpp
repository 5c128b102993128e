// ApronTool.cpp - see ApronTool.h.
#include "map/ApronTool.h"

#include <algorithm>
#include <vector>

#include "map/ApronShape.h"
#include "map/MapHost.h"
#include "map/MapView.h"
#include "map/NewObjects.h"
#include "map/Placing.h"
#include "map/ScreenPlace.h"
#include "map/Selection.h"
#include "map/Shapes.h"
#include "map/Tools.h"
#include "model/EditHistory.h"
#include "model/ObjectList.h"
#include "model/Records.h"
#include "model/Triangulate.h"
#include "platform/Platform.h"

namespace map {

using model::EncodedPoint;

namespace {

bool HasRoomForCorner(size_t corners) {
    if (corners < model::kMostClipped) return true;  // files may have more
    ShowRemark("An apron can have no more than 4096 corners");
    return false;
}

bool Same(EncodedPoint a, EncodedPoint b) { return a.longitude == b.longitude && a.latitude == b.latitude; }

std::vector<EncodedPoint> EncodedOutline() {
    std::vector<EncodedPoint> outline;
    for (const LatLon& corner : tools.outline) outline.push_back(Encode(corner));
    return outline;
}

// An edge of an apron as it was painted; `corner` is its first one.
struct Edge {
    SceneryObject* apron = nullptr;
    size_t corner = 0;
    Pixel from, to;
};

bool FindEdgeOf(bool selected, Pixel at, Edge* edge) {
    for (SceneryObject* o = model::FirstOfKind(model::state.head, model::kApron); o;
         o = model::NextOfKind(o, model::kApron)) {
        if (!IsDrawn(o) || model::IsSelected(o) != selected) continue;
        const std::vector<Pixel>& outline = PartsOf(o).apron;
        for (size_t i = 0; i < outline.size(); ++i) {
            const Pixel from = outline[i], to = outline[(i + 1) % outline.size()];
            if (!HitsSegment(at, from, to)) continue;
            *edge = { o, i, from, to };
            return true;
        }
    }
    return false;
}

// Where edges lie over each other, that of a selected apron.
bool FindEdge(Pixel at, Edge* edge) { return FindEdgeOf(true, at, edge) || FindEdgeOf(false, at, edge); }

// The nearest point of the edge.
bool PlaceOnEdge(const Edge& edge, Pixel at, LatLon* place) {
    const Point from = { double(edge.from.x), double(edge.from.y) }, to = { double(edge.to.x), double(edge.to.y) };
    const Point along = to - from, offset = Point{ double(at.x), double(at.y) } - from;
    const double square = along.x * along.x + along.y * along.y;
    const double share = square > 0 ? std::clamp((along.x * offset.x + along.y * offset.y) / square, 0.0, 1.0) : 0;
    *place = ScreenToWorld(from + along * share);
    return IsPlaceable(place);
}

}  // namespace

void AddOutlinePoint(Pixel at) {
    LatLon place;
    if (!PlaceUnder(at, &place)) return;
    if (!tools.outline.empty() && Same(Encode(place), Encode(tools.outline.back()))) return;
    if (!HasRoomForCorner(tools.outline.size())) return;
    if (tools.outline.empty()) DeselectAll();  // Del must not take what nobody thinks of any more
    tools.outline.push_back(place);
    platform::RequestRepaint();  // the area is part of the map
}

bool CanCloseOutline() { return tools.outline.size() >= kFewestCorners; }

void CloseOutline() {
    if (!CanCloseOutline() || !HasRoomFor(model::kApron)) return;
    SceneryObject* bare = model::CreateObject(model::kApron, sizeof(model::ApronHead));
    bare->flags |= model::kSelected | model::kWholeSelected;
    auto& head = model::PayloadAs<model::ApronHead>(bare);
    head.outlineSurface = head.surface = kNewApronSurface;
    head.drawFlags = model::kDrawApron;
    SceneryObject* apron = model::CopyWithOutline(bare, EncodedOutline());
    model::FreeObject(bare);
    DeselectAll();
    model::BeginAction();
    model::AddObject(apron);
    tools.outline.clear();
    platform::RequestRepaint();
}

void DropOutline() {
    if (tools.outline.empty()) return;
    tools.outline.clear();
    platform::RequestRepaint();
}

bool HasOutline() { return !tools.outline.empty(); }

void TakeBackOutlinePoint() {
    if (tools.outline.empty()) return;
    tools.outline.pop_back();
    platform::RequestRepaint();
}

void InsertApronPoint(Pixel at) {
    Edge edge;
    LatLon place;
    if (!FindEdge(at, &edge) || !PlaceOnEdge(edge, at, &place)) return;
    std::vector<EncodedPoint> outline = model::ApronOutline(edge.apron);
    const EncodedPoint corner = Encode(place);
    if (edge.corner >= outline.size()) return;
    if (Same(corner, outline[edge.corner]) || Same(corner, outline[(edge.corner + 1) % outline.size()])) return;
    if (!HasRoomForCorner(outline.size())) return;
    outline.insert(outline.begin() + static_cast<std::ptrdiff_t>(edge.corner) + 1, corner);
    DeselectAll();
    SceneryObject* edited = model::CopyWithOutline(edge.apron, outline);
    edited->flags |= model::kSelected;
    SelectVertex(edited, static_cast<uint32_t>(edge.corner) + 1, true);
    if (!AnyVertexSelected(edited)) edited->flags &= ~model::kSelected;  // beyond the corners that can be selected
    model::BeginAction();
    model::ModifyObject(edited, edge.apron);
    platform::RequestRepaint();
}

}  // namespace map
