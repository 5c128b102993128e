// ApronShape.cpp - see ApronShape.h.
#include "map/ApronShape.h"

#include <algorithm>
#include <cstring>

#include "model/Records.h"

namespace map {

using model::ApronHead;
using model::PayloadAs;
using model::SceneryObject;

std::vector<model::LatLon> ApronCorners(const SceneryObject* apron) {
    if (apron->payloadSize < sizeof(ApronHead)) return {};
    const size_t room = (apron->payloadSize - sizeof(ApronHead)) / sizeof(model::EncodedPoint);
    const size_t count = std::min<size_t>(PayloadAs<ApronHead>(apron).outlineCount, room);
    std::vector<model::LatLon> outline(count);
    for (size_t i = 0; i < count; ++i) {
        model::EncodedPoint point;
        std::memcpy(&point, apron->payload + sizeof(ApronHead) + i * sizeof point, sizeof point);
        outline[i] = model::BglToLatLon({ point.latitude, point.longitude });
    }
    return outline;
}

bool IsVertexSelected(const SceneryObject* apron, uint32_t vertex) {
    return vertex < kSelectableVertices && (PayloadAs<ApronHead>(apron).selection[vertex / 8] >> (vertex % 8) & 1) != 0;
}

void SelectVertex(SceneryObject* apron, uint32_t vertex, bool selected) {
    if (vertex >= kSelectableVertices) return;
    uint8_t& bits = PayloadAs<ApronHead>(apron).selection[vertex / 8];
    const auto bit = static_cast<uint8_t>(1u << (vertex % 8));
    bits = static_cast<uint8_t>(selected ? bits | bit : bits & ~bit);
}

void ClearVertexSelection(SceneryObject* apron) {
    std::fill_n(PayloadAs<ApronHead>(apron).selection, sizeof(ApronHead::selection), uint8_t{ 0 });
}

bool AnyVertexSelected(const SceneryObject* apron) {
    const auto& selection = PayloadAs<ApronHead>(apron).selection;
    return std::any_of(std::begin(selection), std::end(selection), [](uint8_t bits) { return bits != 0; });
}

}  // namespace map
