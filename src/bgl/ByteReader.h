// ByteReader.h - a place in a block of bytes that moves on as values are taken; never past the end.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <type_traits>

namespace bgl {

static_assert(std::endian::native == std::endian::little, "scenery files are little-endian");

using Bytes = std::span<const uint8_t>;

struct ByteReader {
    Bytes bytes;
    size_t at = 0;  // at most bytes.size()
};

inline size_t BytesLeft(const ByteReader& reader) { return reader.bytes.size() - reader.at; }

// False, with nothing taken, when fewer bytes are left.
inline bool TakeBytes(ByteReader* reader, size_t size, Bytes* taken) {
    if (BytesLeft(*reader) < size) return false;
    *taken = reader->bytes.subspan(reader->at, size);
    reader->at += size;
    return true;
}

template <class T>
bool Take(ByteReader* reader, T* value) {
    static_assert(std::is_trivially_copyable_v<T>);
    if (BytesLeft(*reader) < sizeof(T)) return false;
    std::memcpy(value, reader->bytes.data() + reader->at, sizeof(T));
    reader->at += sizeof(T);
    return true;
}

// A value at an offset that the caller has checked.
template <class T>
T ValueAt(Bytes bytes, size_t offset) {
    static_assert(std::is_trivially_copyable_v<T>);
    T value;
    std::memcpy(&value, bytes.data() + offset, sizeof(T));
    return value;
}

constexpr uint32_t kRecordHeadSize = 6;

struct RecordHead {
    uint16_t id = 0;
    uint32_t size = 0;  // of the whole record, this head included
};

// False at the end of the bytes, and at a size that cannot hold the head itself: nothing follows then.
inline bool TakeRecordHead(ByteReader* reader, RecordHead* head) {
    return Take(reader, &head->id) && Take(reader, &head->size) && head->size >= kRecordHeadSize;
}

// Some writers count padding to a multiple of four in the size of a record, and leave it out behind the last.
constexpr size_t kPadding = 3;

// Bytes behind the last record in which none begins are padding.
inline bool HoldsRecord(const ByteReader& reader) { return BytesLeft(reader) >= kRecordHeadSize; }

// Calls visit(head, body) for the records that the bytes hold one after the other. The body of a record
// that is longer than the bytes is cut short, and is the last. False when something was missed: such a
// record's end, or what lies behind a head that makes no sense.
template <class Visit>
bool WalkRecords(Bytes records, Visit visit) {
    ByteReader reader{ records };
    while (HoldsRecord(reader)) {
        RecordHead head;
        if (!TakeRecordHead(&reader, &head)) return false;
        const size_t bodySize = head.size - kRecordHeadSize;
        const size_t held = bodySize < BytesLeft(reader) ? bodySize : BytesLeft(reader);
        Bytes body;
        TakeBytes(&reader, held, &body);
        visit(head, body);
        if (bodySize - held > kPadding) return false;
    }
    return true;
}

}  // namespace bgl
