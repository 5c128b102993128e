// SceneryObject.cpp - making, copying and freeing scenery objects.
//
// Memory that cannot be had ends the program: an uncaught std::bad_alloc is the allocator's way of it.
#include "model/SceneryObject.h"

#include <algorithm>
#include <cassert>
#include <cstring>

namespace model {

SceneryObject* CreateObject(uint32_t kind, uint32_t payloadSize) {
    assert((kind & ~kKindMask) == 0);
    auto* object = new SceneryObject{};
    object->flags = kind;
    object->payloadSize = payloadSize;
    object->payload = new uint8_t[payloadSize]();
    return object;
}

SceneryObject* CopyObject(const SceneryObject* object) {
    auto* copy = new SceneryObject(*object);
    copy->payload = new uint8_t[object->payloadSize];
    std::copy_n(object->payload, object->payloadSize, copy->payload);
    return copy;
}

SceneryObject* ResizeCopy(const SceneryObject* object, uint32_t n) {
    constexpr uint32_t kFixedPart = 20;
    assert(object->payloadSize >= kFixedPart);
    auto* copy = new SceneryObject(*object);
    copy->payloadSize = 4 * n + kFixedPart;
    copy->payload = new uint8_t[copy->payloadSize]();
    std::copy_n(object->payload, kFixedPart, copy->payload);
    return copy;
}

void FreeObject(SceneryObject* object) {
    if (!object) return;
    delete[] object->payload;
    delete object;
}

void ResizePayload(SceneryObject* object, uint32_t payloadSize) {
    auto* payload = new uint8_t[payloadSize]();
    std::copy_n(object->payload, std::min(payloadSize, object->payloadSize), payload);
    delete[] object->payload;
    object->payload = payload;
    object->payloadSize = payloadSize;
}

}  // namespace model
