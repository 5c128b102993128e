// ByteWriter.h - bytes of a scenery file as they grow, and records whose size is known only at their end.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <vector>

#include "bgl/ByteReader.h"

namespace bgl {

struct ByteWriter {
    std::vector<uint8_t> bytes;
};

inline void PutBytes(ByteWriter* out, const void* data, size_t size) {
    const auto* first = static_cast<const uint8_t*>(data);
    out->bytes.insert(out->bytes.end(), first, first + size);
}

inline void PutZeros(ByteWriter* out, size_t count) { out->bytes.resize(out->bytes.size() + count); }

template <class T>
void Put(ByteWriter* out, T value) {
    static_assert(std::is_trivially_copyable_v<T>);
    PutBytes(out, &value, sizeof(T));
}

template <class T>
void PutAt(ByteWriter* out, size_t offset, T value) {
    static_assert(std::is_trivially_copyable_v<T>);
    std::memcpy(out->bytes.data() + offset, &value, sizeof(T));
}

// Writes a record's head and returns where the record starts; EndRecord fills in the size.
inline size_t BeginRecord(ByteWriter* out, uint16_t id, uint32_t size = 0) {
    const size_t start = out->bytes.size();
    Put(out, id);
    Put(out, size);
    return start;
}

inline void EndRecord(ByteWriter* out, size_t start) {
    PutAt(out, start + sizeof(uint16_t), static_cast<uint32_t>(out->bytes.size() - start));
}

// A record whose body is `size` bytes of memory.
inline void PutRecord(ByteWriter* out, uint16_t id, const void* body, size_t size) {
    BeginRecord(out, id, static_cast<uint32_t>(size + kRecordHeadSize));
    PutBytes(out, body, size);
}

}  // namespace bgl
