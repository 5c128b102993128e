// NavaidRecords.h - navaid records between their files and the model.
#pragma once

#include "bgl/ByteReader.h"
#include "bgl/ByteWriter.h"
#include "model/Records.h"
#include "model/SceneryObject.h"

namespace bgl {

// Makes the object of a navaid record, or null for a record that is no navaid or lacks its fixed body.
// Sub-records that are cut short stay out. The caller owns the object.
model::SceneryObject* MakeNavaid(const RecordHead& head, Bytes body);

// One record, head included. A VOR's DME takes the VOR's position on the way.
void WriteNavaid(model::SceneryObject* navaid, ByteWriter* out);

bool IsNavaid(const model::SceneryObject* object);

// The encoded position, ident word and region word. A marker has them at places of its own.
struct NavaidKey {
    model::EncodedPoint position;
    uint32_t ident, region;
};
NavaidKey KeyOf(const model::SceneryObject* navaid);

}  // namespace bgl
