// SceneryBytes.h - scenery files as bytes, for tests: made by hand, taken apart, and compared.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

using ByteList = std::vector<uint8_t>;

constexpr uint64_t kTestTime = 0x01C4112233445566;

ByteList Hex(std::string_view digits);             // blanks and line ends do not count
std::string HexOf(std::span<const uint8_t> data);  // "03 00 4A", for readable failures

ByteList Join(const std::vector<ByteList>& parts);
ByteList Zeros(size_t count);
ByteList U16(uint32_t value);
ByteList U32(uint32_t value);
ByteList F32(float value);
ByteList Text(std::string_view text);

// A record with its head; its size is the true one unless another is asked for.
ByteList Record(uint16_t id, const ByteList& body);
ByteList RecordOfSize(uint16_t id, uint32_t size, const ByteList& body);

// An airport record: 46 bytes with that ident and the given records behind them.
ByteList AirportRecordWith(const std::vector<ByteList>& records, std::string_view ident = "KSEA");

struct FoundRecord {
    uint16_t id = 0;
    ByteList body;
};
struct FoundSubsection {
    uint32_t id = 0, recordCount = 0;
    ByteList bytes;
};
struct FoundSection {
    uint32_t type = 0, sectionClass = 0;
    std::vector<FoundSubsection> subsections;
};

// Taken apart without any code of the program, with checks that offsets and sizes fit together.
std::vector<FoundSection> SectionsOf(const ByteList& file);
const FoundSection* SectionOf(const std::vector<FoundSection>& sections, uint32_t type);
std::vector<FoundRecord> RecordsIn(std::span<const uint8_t> bytes);

// The records inside the airport record of the file, in order.
std::vector<FoundRecord> AirportPartsOf(const ByteList& file);
std::vector<ByteList> PartsWithId(const std::vector<FoundRecord>& parts, uint16_t id);

// A packed field for a check, which would bind a reference to it.
template <class T>
T Copied(T field) {
    return field;
}

// The open airport as a file with the test's time stamp; fails the test when it is refused.
ByteList BuildFile();

// Everything of the open airport that a file holds, one line an object, kinds in the order of files.
std::string DescribeModel();
