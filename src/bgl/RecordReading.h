// RecordReading.h - what the readers of an airport's records share: where the reading is, and how it takes bodies.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "bgl/ByteReader.h"
#include "model/ObjectList.h"
#include "model/Records.h"

namespace bgl {

// What of aprons and their lights takes several records.
struct ApronReading {
    bool outlinePending = false;
    Bytes outlineHead, outline;                  // of a 0x0037 that waits for its 0x0030
    model::SceneryObject* edgeLights = nullptr;  // one object for all records
    std::vector<model::EdgeLightStrip> strips;   // for edgeLights
};

struct Reading {
    ByteReader in;
    size_t bodyBytesLeft = 0;                // of all bodies together, those read again included
    model::SceneryObject* runway = nullptr;  // whose parts follow
    ApronReading apron;
};

// Where the reading goes on after a record.
enum class Next { End, Inside, Behind };

inline bool TakeBody(Reading* reading, size_t size, Bytes* body) {
    if (size > reading->bodyBytesLeft || !TakeBytes(&reading->in, size, body)) return false;
    reading->bodyBytesLeft -= size;
    return true;
}

template <class T>
bool TakeValue(Reading* reading, T* value) {
    Bytes body;
    if (!TakeBody(reading, sizeof(T), &body)) return false;
    *value = ValueAt<T>(body, 0);
    return true;
}

// Appends an object whose payload starts with the body.
inline model::SceneryObject* AppendWith(uint32_t kind, size_t payloadSize, Bytes body) {
    model::SceneryObject* object = model::CreateObject(kind, static_cast<uint32_t>(payloadSize));
    std::copy(body.begin(), body.end(), object->payload);
    model::AppendObject(object);
    return object;
}

// Of ApronReader.cpp. An outline waits for the surface that follows it; the lights get their strips at the end.
Next ReadApronOutline(Reading* reading);
Next ReadApronSurface(Reading* reading);
Next ReadEdgeLights(Reading* reading);
void FinishEdgeLights(ApronReading* reading);

}  // namespace bgl
