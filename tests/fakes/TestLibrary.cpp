// TestLibrary.cpp - see TestLibrary.h.
#include "TestLibrary.h"

#include <algorithm>
#include <chrono>
#include <fstream>
#include <iterator>

#include "bgl/ByteWriter.h"
#include "bgl/NameList.h"
#include "bgl/RecordIds.h"
#include "bgl/SceneryStructure.h"
#include "model/Ident.h"
#include "model/Records.h"

namespace fs = std::filesystem;

namespace {

constexpr uint32_t kAirportIdentBit = 1;  // low bits of an airport's ident word

uint32_t IdentWord(const TestAirport& airport) {
    return model::PackIdent(airport.ident) << model::kIdentShift | kAirportIdentBit;
}

bgl::ByteWriter AirportRecords(const std::vector<TestAirport>& airports) {
    bgl::ByteWriter out;
    for (const TestAirport& airport : airports) {
        model::AirportRecord record{};
        record.ident = IdentWord(airport);
        const size_t start = bgl::BeginRecord(&out, bgl::kAirportRecord);
        bgl::PutBytes(&out, &record, sizeof record);
        bgl::EndRecord(&out, start);
    }
    return out;
}

bgl::ByteWriter NameRecord(const std::vector<TestAirport>& airports) {
    std::vector<bgl::NamedAirport> named;
    for (const TestAirport& airport : airports) {
        named.push_back({ airport.country, airport.state, airport.city, airport.name, IdentWord(airport), {} });
    }
    bgl::ByteWriter out;
    bgl::WriteNameList(named, &out);
    return out;
}

void PutText(const fs::path& path, std::string_view text) {
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary).write(text.data(), static_cast<std::streamsize>(text.size()));
}

fs::file_time_type TimeAfter(int seconds) {
    static const fs::file_time_type start = fs::file_time_type::clock::now() - std::chrono::hours(1000);
    return start + std::chrono::seconds(seconds);
}

}  // namespace

std::vector<uint8_t> MakeSceneryFile(const std::vector<TestAirport>& airports) {
    struct Section {
        uint32_t type, sectionClass, id;
        bgl::ByteWriter records;
    };
    const Section sections[] = { { bgl::kAirportSection, bgl::kByCell, 0x80000, AirportRecords(airports) },
                                 { bgl::kNameListSection, bgl::kNameList, bgl::kIndexSubsectionId,
                                   NameRecord(airports) } };
    constexpr uint32_t kCount = 2;
    constexpr uint32_t kTables = bgl::kFileHeaderSize + kCount * bgl::kSectionEntrySize;
    bgl::ByteWriter out;
    bgl::PutZeros(&out, bgl::kFileHeaderSize);
    bgl::PutAt(&out, 0, bgl::kFileMagic);
    bgl::PutAt(&out, 4, bgl::kFileHeaderSize);
    bgl::PutAt(&out, 20, kCount);
    uint32_t table = kTables, records = kTables + kCount * bgl::kSubsectionEntrySize;
    for (const Section& section : sections) {
        bgl::Put(&out, bgl::SectionEntry{ section.type, section.sectionClass, 1, table, bgl::kSubsectionEntrySize });
        table += bgl::kSubsectionEntrySize;
    }
    const auto count = static_cast<uint32_t>(airports.size());
    for (const Section& section : sections) {
        const auto size = static_cast<uint32_t>(section.records.bytes.size());
        bgl::Put(&out, bgl::SubsectionEntry{ section.id, count, records, size });
        records += size;
    }
    for (const Section& section : sections) {
        bgl::PutBytes(&out, section.records.bytes.data(), section.records.bytes.size());
    }
    return out.bytes;
}

TestLibrary::TestLibrary() {
    fs::create_directories(root / "sim");
    fs::create_directories(root / "program");
    simulator = Utf8Path(root / "sim");
    program = Utf8Path(root / "program");
}

fs::path TestLibrary::FileOf(const std::string& area, const std::string& name) const {
    const auto u8 = [](std::string text) {
        std::replace(text.begin(), text.end(), '\\', '/');
        return std::u8string(text.begin(), text.end());
    };
    return root / "sim" / u8(area) / "scenery" / u8(name);
}

void TestLibrary::Put(const std::string& area, const std::string& name, const std::vector<uint8_t>& bytes,
                      int seconds) const {
    PutText(FileOf(area, name), { reinterpret_cast<const char*>(bytes.data()), bytes.size() });
    Touch(area, name, seconds);
}

void TestLibrary::Remove(const std::string& area, const std::string& name) const { fs::remove(FileOf(area, name)); }

void TestLibrary::Touch(const std::string& area, const std::string& name, int seconds) const {
    fs::last_write_time(FileOf(area, name), TimeAfter(seconds));
}

void TestLibrary::PutConfig(std::string_view text) const { PutText(root / "sim" / "Scenery.cfg", text); }

void TestLibrary::PutAreas(const std::vector<std::string>& areas) const {
    std::string text = "[General]\r\nTitle=FS9 World Scenery\r\n";
    for (size_t i = 0; i < areas.size(); ++i) {
        const std::string number = std::to_string(i + 1);
        text += "\r\n[Area." + number + "]\r\nTitle=" + areas[i] + "\r\nLocal=" + areas[i] +
                "\r\nRemote=\r\nActive=TRUE\r\nRequired=FALSE\r\nLayer=" + number + "\r\n";
    }
    PutConfig(text);
}

std::string TestLibrary::ReadCache(const std::string& name) const {
    std::ifstream file(root / "program" / name, std::ios::binary);
    return { std::istreambuf_iterator<char>(file), {} };
}

void TestLibrary::PutCache(const std::string& name, std::string_view text) const {
    PutText(root / "program" / name, text);
}
