// SceneryBytes.cpp - see SceneryBytes.h.
#include "SceneryBytes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstring>
#include <map>

#include "bgl/AirportWriter.h"
#include "model/Ident.h"
#include "model/ObjectList.h"
#include "model/Records.h"

namespace {

using namespace model;

template <class T>
T At(std::span<const uint8_t> bytes, size_t offset) {
    T value{};
    if (offset + sizeof(T) > bytes.size())
        ADD_FAILURE() << "a field at " << offset << " lies outside";
    else
        std::memcpy(&value, bytes.data() + offset, sizeof value);
    return value;
}

ByteList Slice(std::span<const uint8_t> bytes, size_t offset, size_t size) {
    if (offset > bytes.size() || size > bytes.size() - offset) {
        ADD_FAILURE() << size << " bytes at " << offset << " lie outside";
        return {};
    }
    return ByteList(bytes.begin() + static_cast<ptrdiff_t>(offset),
                    bytes.begin() + static_cast<ptrdiff_t>(offset + size));
}

// The part of a payload that a file holds, pointers as numbers.
std::string DescribePayload(const SceneryObject* object, std::map<const SceneryObject*, size_t>& numbers) {
    ByteList bytes(object->payload, object->payload + object->payloadSize);
    std::string text;
    switch (KindOf(object)) {
    case kAirport: std::fill_n(bytes.begin(), offsetof(AirportRecord, longitude), uint8_t{}); break;  // counts
    case kTaxiLink: {
        auto link = PayloadAs<TaxiLinkPayload>(object);
        for (const SceneryObject* end : { link.start, link.end, link.designator })
            text += end ? std::to_string(numbers[end]) + " " : "- ";
        const bool isRunway = LinkTypeOf(link) == kRunwayLink;  // its designator's bits come from the runway
        link.endField &= isRunway ? 0 : 0xF000;
        link.startIndex = 0;
        link.flagsWord &= 0xFFFF00FF;
        bytes.resize(kTaxiLinkFileSize);
        std::memcpy(bytes.data(), &link, kTaxiLinkFileSize);
        break;
    }
    case kApron: std::fill_n(bytes.begin(), offsetof(ApronHead, outlineSurface), uint8_t{}); break;
    case kApronEdgeLights:
        std::fill_n(bytes.begin() + offsetof(EdgeLightsHead, vertexCount), 4, uint8_t{});
        for (size_t at = sizeof(EdgeLightsHead); at < bytes.size(); at += sizeof(EdgeLightStrip))
            std::fill_n(bytes.begin() + static_cast<ptrdiff_t>(at + offsetof(EdgeLightStrip, segmentSelected)), 3,
                        uint8_t{});
        break;
    case kMarkerBeacon: bytes.resize(kMarkerBeaconFileSize); break;
    default: break;
    }
    return text + HexOf(bytes);
}

}  // namespace

ByteList Hex(std::string_view digits) {
    ByteList bytes;
    int high = -1;
    for (char c : digits) {
        if (!std::isxdigit(static_cast<unsigned char>(c))) continue;
        const int value = c <= '9' ? c - '0' : (c | 0x20) - 'a' + 10;
        if (high >= 0) bytes.push_back(static_cast<uint8_t>(high << 4 | value));
        high = high >= 0 ? -1 : value;
    }
    EXPECT_LT(high, 0) << "half a byte";
    return bytes;
}

std::string HexOf(std::span<const uint8_t> data) {
    std::string text;
    for (uint8_t byte : data) {
        char digits[4];
        std::snprintf(digits, sizeof digits, "%02X ", byte);
        text += digits;
    }
    return text;
}

ByteList Join(const std::vector<ByteList>& parts) {
    ByteList all;
    for (const ByteList& part : parts) all.insert(all.end(), part.begin(), part.end());
    return all;
}

ByteList Zeros(size_t count) { return ByteList(count); }

ByteList U16(uint32_t value) { return { static_cast<uint8_t>(value), static_cast<uint8_t>(value >> 8) }; }

ByteList U32(uint32_t value) { return Join({ U16(value & 0xFFFF), U16(value >> 16) }); }

ByteList F32(float value) {
    uint32_t bits;
    std::memcpy(&bits, &value, sizeof bits);
    return U32(bits);
}

ByteList Text(std::string_view text) { return ByteList(text.begin(), text.end()); }

ByteList Record(uint16_t id, const ByteList& body) {
    return RecordOfSize(id, static_cast<uint32_t>(body.size() + 6), body);
}

ByteList RecordOfSize(uint16_t id, uint32_t size, const ByteList& body) { return Join({ U16(id), U32(size), body }); }

ByteList AirportRecordWith(const std::vector<ByteList>& records, std::string_view ident) {
    AirportRecord airport{};
    airport.longitude = 0x07B12FA6;
    airport.latitude = 0x07908B15;
    airport.ident = PackIdent(ident) << kIdentShift | 1;
    ByteList body(sizeof airport);
    std::memcpy(body.data(), &airport, sizeof airport);
    return Record(0x0003, Join({ body, Join(records) }));
}

std::vector<FoundSection> SectionsOf(const ByteList& file) {
    std::vector<FoundSection> sections;
    const auto count = At<uint32_t>(file, 20);
    size_t tableExpected = 56 + 20 * size_t{ count };
    for (uint32_t i = 0; i < count; ++i) {
        const size_t entry = 56 + 20 * i;
        FoundSection section{ At<uint32_t>(file, entry), At<uint32_t>(file, entry + 4), {} };
        const auto subsections = At<uint32_t>(file, entry + 8), table = At<uint32_t>(file, entry + 12);
        EXPECT_EQ(table, tableExpected);
        EXPECT_EQ(At<uint32_t>(file, entry + 16), 16 * subsections);
        tableExpected += 16 * subsections;
        for (uint32_t j = 0; j < subsections; ++j) {
            const size_t at = table + 16 * j;
            section.subsections.push_back({ At<uint32_t>(file, at), At<uint32_t>(file, at + 4),
                                            Slice(file, At<uint32_t>(file, at + 8), At<uint32_t>(file, at + 12)) });
        }
        sections.push_back(std::move(section));
    }
    return sections;
}

const FoundSection* SectionOf(const std::vector<FoundSection>& sections, uint32_t type) {
    for (const FoundSection& section : sections) {
        if (section.type == type) return &section;
    }
    return nullptr;
}

std::vector<FoundRecord> RecordsIn(std::span<const uint8_t> bytes) {
    std::vector<FoundRecord> records;
    for (size_t at = 0; at < bytes.size();) {
        const auto size = At<uint32_t>(bytes, at + 2);
        if (size < 6 || size > bytes.size() - at) {
            ADD_FAILURE() << "a record of size " << size << " at " << at << " of " << bytes.size();
            break;
        }
        records.push_back({ At<uint16_t>(bytes, at), Slice(bytes, at + 6, size - 6) });
        at += size;
    }
    return records;
}

std::vector<FoundRecord> AirportPartsOf(const ByteList& file) {
    const std::vector<FoundSection> sections = SectionsOf(file);
    const FoundSection* section = SectionOf(sections, 0x03);
    if (!section || section->subsections.size() != 1) {
        ADD_FAILURE() << "no airport section of one subsection";
        return {};
    }
    const ByteList& bytes = section->subsections[0].bytes;
    EXPECT_EQ(At<uint16_t>(bytes, 0), 0x0003);
    EXPECT_EQ(At<uint32_t>(bytes, 2), bytes.size());
    return RecordsIn(std::span(bytes).subspan(52));
}

std::vector<ByteList> PartsWithId(const std::vector<FoundRecord>& parts, uint16_t id) {
    std::vector<ByteList> bodies;
    for (const FoundRecord& part : parts) {
        if (part.id == id) bodies.push_back(part.body);
    }
    return bodies;
}

ByteList BuildFile() {
    ByteList bytes;
    std::string refusal;
    EXPECT_TRUE(bgl::BuildAirportFile(kTestTime, &bytes, &refusal)) << refusal;
    return bytes;
}

std::string DescribeModel() {
    std::map<const SceneryObject*, size_t> numbers;  // within the object's kind
    size_t counts[kKindMask + 1] = {};
    for (const SceneryObject* o = state.head; o; o = o->next) numbers[o] = counts[KindOf(o)]++;
    std::string text = state.icao + "|" + AirportName() + "|" + state.country + "|" + state.state + "|" + state.city;
    for (uint32_t kind = 0; kind <= kKindMask; ++kind) {
        for (const SceneryObject* o = state.head; o; o = o->next) {
            if (KindOf(o) == kind) text += "\n" + std::to_string(kind) + ": " + DescribePayload(o, numbers);
        }
    }
    return text;
}
