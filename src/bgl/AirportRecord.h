// AirportRecord.h - writes the record of the open airport with everything in it, navaids excepted.
#pragma once

#include "bgl/ByteWriter.h"
#include "model/SceneryObject.h"

namespace bgl {

// Updates the Airport record and the links' indices on the way. There is an Airport object, and
// WhatDoesNotFit() found nothing.
void WriteAirportRecord(ByteWriter* out);

// The light strips as a table of vertices, each once, and the edges between them.
struct EdgeTables {
    size_t vertexCount = 0, edgeCount = 0;
    ByteWriter vertices, edges;
};
EdgeTables MakeEdgeTables(const model::SceneryObject* edgeLights);

}  // namespace bgl
