// SceneryObject.cpp - making, copying and freeing scenery objects.
//
// Memory that cannot be had ends the program: an uncaught std::bad_alloc is the allocator's way of it.
#include "model/SceneryObject.h"

#include <algorithm>
#include <cassert>
#include <new>

#include "model/Blocks.h"

namespace model {

namespace {

SceneryObject* NewHeader(const SceneryObject& words) { return new (TakeBlock(sizeof words)) SceneryObject(words); }

// The first bytes are those of `from`, the others zero.
uint8_t* NewPayload(uint32_t size, const uint8_t* from, uint32_t fromSize) {
    auto* payload = static_cast<uint8_t*>(TakeBlock(size));
    const uint32_t kept = std::min(size, fromSize);
    std::fill(std::copy_n(from, kept, payload), payload + size, uint8_t{});
    return payload;
}

}  // namespace

SceneryObject* CreateObject(uint32_t kind, uint32_t payloadSize) {
    assert((kind & ~kKindMask) == 0);
    SceneryObject* object = NewHeader({});
    object->flags = kind;
    object->payloadSize = payloadSize;
    object->payload = NewPayload(payloadSize, nullptr, 0);
    return object;
}

SceneryObject* CopyObject(const SceneryObject* object) {
    SceneryObject* copy = NewHeader(*object);
    copy->payload = NewPayload(object->payloadSize, object->payload, object->payloadSize);
    return copy;
}

SceneryObject* ResizeCopy(const SceneryObject* object, uint32_t n) {
    constexpr uint32_t kFixedPart = 20;
    assert(object->payloadSize >= kFixedPart);
    SceneryObject* copy = NewHeader(*object);
    copy->payloadSize = 4 * n + kFixedPart;
    copy->payload = NewPayload(copy->payloadSize, object->payload, kFixedPart);
    return copy;
}

void FreeObject(SceneryObject* object) {
    if (!object) return;
    GiveBlock(object->payload, object->payloadSize);
    GiveBlock(object, sizeof *object);
}

void ResizePayload(SceneryObject* object, uint32_t payloadSize) {
    uint8_t* payload = NewPayload(payloadSize, object->payload, object->payloadSize);
    GiveBlock(object->payload, object->payloadSize);
    object->payload = payload;
    object->payloadSize = payloadSize;
}

}  // namespace model
