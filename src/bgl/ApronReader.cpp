// ApronReader.cpp - aprons, which take an outline and a surface, and the edge lights of all aprons (RecordReading.h).
#include <algorithm>
#include <cstring>

#include "bgl/RecordReading.h"

namespace bgl {

namespace {

using model::SceneryObject;

#pragma pack(push, 1)
struct EdgeEntry {
    float spacing;
    uint16_t start, end;
};
#pragma pack(pop)

// Resolves the edges' vertex numbers to positions. An edge that names a vertex that the record lacks is dropped.
void AddStrips(Bytes vertices, Bytes edges, std::vector<model::EdgeLightStrip>* strips) {
    const size_t vertexCount = vertices.size() / sizeof(model::EncodedPoint);
    for (size_t at = 0; at < edges.size(); at += sizeof(EdgeEntry)) {
        const auto edge = ValueAt<EdgeEntry>(edges, at);
        if (edge.start >= vertexCount || edge.end >= vertexCount) continue;
        const auto start = ValueAt<model::EncodedPoint>(vertices, edge.start * sizeof(model::EncodedPoint));
        const auto end = ValueAt<model::EncodedPoint>(vertices, edge.end * sizeof(model::EncodedPoint));
        strips->push_back({ edge.spacing, start.longitude, start.latitude, end.longitude, end.latitude, 0, 0, 0 });
    }
}

}  // namespace

Next ReadApronOutline(Reading* reading) {
    reading->apron.outlinePending = false;  // a newer outline replaces one that found no surface
    Bytes head, vertices;
    if (!TakeBody(reading, 3, &head)) return Next::End;
    if (!TakeBody(reading, sizeof(model::EncodedPoint) * ValueAt<uint16_t>(head, 1), &vertices)) return Next::End;
    reading->apron.outlineHead = head;
    reading->apron.outline = vertices;
    reading->apron.outlinePending = true;
    return Next::Behind;
}

Next ReadApronSurface(Reading* reading) {
    if (!reading->apron.outlinePending) return Next::Behind;
    constexpr size_t kHeadSize = 6;
    Bytes head, rest;
    if (!TakeBody(reading, kHeadSize, &head)) return Next::End;
    const size_t restSize = sizeof(model::EncodedPoint) * ValueAt<uint16_t>(head, 2) +
                            sizeof(model::ApronTriangle) * ValueAt<uint16_t>(head, 4);
    if (!TakeBody(reading, restSize, &rest)) return Next::End;
    SceneryObject* apron =
        AppendWith(model::kApron, sizeof(model::ApronHead) + reading->apron.outline.size() + restSize, {});
    uint8_t* to = apron->payload + offsetof(model::ApronHead, outlineSurface);
    for (Bytes part : { reading->apron.outlineHead, head, reading->apron.outline, rest })
        to = std::copy(part.begin(), part.end(), to);
    reading->apron.outlinePending = false;
    return Next::Behind;
}

Next ReadEdgeLights(Reading* reading) {
    constexpr size_t kHeadSize = offsetof(model::EdgeLightsHead, stripCount);
    Bytes head, vertices, edges;
    if (!TakeBody(reading, kHeadSize, &head)) return Next::End;
    const size_t vertexCount = ValueAt<uint16_t>(head, offsetof(model::EdgeLightsHead, vertexCount));
    const size_t edgeCount = ValueAt<uint16_t>(head, offsetof(model::EdgeLightsHead, edgeCount));
    if (!TakeBody(reading, vertexCount * sizeof(model::EncodedPoint), &vertices)) return Next::End;
    if (!TakeBody(reading, edgeCount * sizeof(EdgeEntry), &edges)) return Next::End;
    if (!reading->apron.edgeLights)
        reading->apron.edgeLights = AppendWith(model::kApronEdgeLights, sizeof(model::EdgeLightsHead), {});
    std::copy(head.begin(), head.end(), reading->apron.edgeLights->payload);
    AddStrips(vertices, edges, &reading->apron.strips);
    return Next::Behind;
}

// All edge light records together make one object; its strips are known only now.
void FinishEdgeLights(ApronReading* reading) {
    if (!reading->edgeLights) return;
    const size_t size = reading->strips.size() * sizeof(model::EdgeLightStrip);
    model::ResizePayload(reading->edgeLights, static_cast<uint32_t>(sizeof(model::EdgeLightsHead) + size));
    auto& head = model::PayloadAs<model::EdgeLightsHead>(reading->edgeLights);
    head.stripCount = static_cast<uint32_t>(reading->strips.size());
    if (size > 0) std::memcpy(reading->edgeLights->payload + sizeof head, reading->strips.data(), size);
}

}  // namespace bgl
