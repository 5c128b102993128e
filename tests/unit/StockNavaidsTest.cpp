// Which of the simulator's navaids join an airport, from which files, and what takes their place.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <random>

#include "bgl/AirportWriter.h"
#include "bgl/Cells.h"
#include "bgl/FileBuilder.h"
#include "bgl/NavaidRecords.h"
#include "bgl/OpenAirport.h"
#include "bgl/RecordIds.h"
#include "bgl/SceneryStructure.h"
#include "bgl/StockFiles.h"
#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "fakes/SceneryBytes.h"

namespace {

using namespace model;
namespace fs = std::filesystem;

constexpr double kMile = kMetresPerNauticalMile;

EncodedPoint PointFrom(LatLon origin, double eastMiles, double northMiles) {
    const BglPoint code = LatLonToBgl(LocalToLatLon(origin, { eastMiles * kMile, northMiles * kMile }));
    return { (code.lonCode + 0x30000000u) % 0x30000000u, code.latCode };  // a file's longitudes lie within the turn
}

LatLon Degrees(double north, double east) { return { north * kRadiansPerDegree, -east * kRadiansPerDegree }; }

struct TestNavaid {
    uint16_t recordId;
    uint8_t type;
    EncodedPoint place;
    std::string ident;
    uint32_t region = 0;
};

ByteList NavaidRecordOf(const TestNavaid& navaid) {
    ByteList body(34);
    const auto put = [&](size_t at, const ByteList& bytes) {
        std::copy(bytes.begin(), bytes.end(), body.begin() + static_cast<ptrdiff_t>(at));
    };
    body[0] = navaid.type;
    const bool isNdb = navaid.recordId == 0x17, isMarker = navaid.recordId == 0x18;
    put(isNdb ? 6 : 2, Join({ U32(navaid.place.longitude), U32(navaid.place.latitude) }));
    put(isMarker ? 14 : 26, Join({ U32(PackIdent(navaid.ident) << 5 | 2), U32(navaid.region) }));
    if (isMarker) body.resize(22);
    return Record(navaid.recordId, body);
}

ByteList StockFile(const std::vector<TestNavaid>& navaids) {
    bgl::SectionContent sections[] = { { 0x13, 1, {} }, { 0x17, 1, {} }, { 0x18, 1, {} } };
    for (const TestNavaid& navaid : navaids) {
        for (bgl::SectionContent& section : sections) {
            if (section.type != navaid.recordId) continue;
            bgl::SubsectionContent* subsection = bgl::SubsectionOf(&section, bgl::CellOf(navaid.place));
            ++subsection->recordCount;
            const ByteList record = NavaidRecordOf(navaid);
            bgl::PutBytes(&subsection->records, record.data(), record.size());
        }
    }
    return bgl::AssembleFile(sections, kTestTime);
}

class StockNavaids : public testing::Test {
protected:
    void SetUp() override {
        ResetFakes();
        ClearModel();
        bgl::ForgetStockFiles();
        folder = fs::temp_directory_path() / ("tarvo-stock-" + std::to_string(std::random_device{}()));
        fs::create_directories(folder);
    }
    void TearDown() override {
        ClearModel();
        bgl::ForgetStockFiles();
        std::error_code ignored;
        fs::remove_all(folder, ignored);
    }
    std::string Simulator() const { return folder.string(); }

    void Put(const std::string& region, const std::string& name, const ByteList& bytes) const {
        const fs::path in = folder / "Scenery" / region / "Scenery";
        fs::create_directories(in);
        std::ofstream(in / name, std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    }
    // The name of the airport file for the block of a point.
    static std::string BlockFile(EncodedPoint point) {
        char name[32];
        std::snprintf(name, sizeof name, "AP9%02u%02u0.bgl", point.longitude >> 23, point.latitude >> 23);
        return name;
    }
    void OpenAt(LatLon place) {
        ClearModel();
        origin = place;
        SceneryObject* airport = build::Airport("KSEA");
        SetEncodedPosition(airport, LatLonToBgl(place));
    }
    EncodedPoint At(double eastMiles, double northMiles) const { return PointFrom(origin, eastMiles, northMiles); }

    static std::string Idents() {
        std::string text;
        for (const SceneryObject* o = state.head; o; o = o->next) {
            if (!bgl::IsNavaid(o)) continue;
            text += UnpackIdent(bgl::KeyOf(o).ident >> kIdentShift) + " ";
            EXPECT_EQ(IsStock(o), true);
        }
        return text;
    }
    fs::path folder;
    LatLon origin;
};

TEST_F(StockNavaids, EachKindHasItsRectangle) {
    OpenAt(Degrees(47.4, -122.3));
    // The corners lie at the distance, on the bearings 315 and 135 degrees. The rectangle is one of encoded positions:
    // its edges follow parallels and meridians, and the meridians come together toward the north.
    const double near = 3, middle = 11, far = 26;
    std::vector<TestNavaid> navaids;
    for (const auto& [recordId, type, edge, letter] :
         { std::tuple{ 0x13, 4, near, 'I' }, { 0x18, 0, middle, 'M' }, { 0x17, 0, far, 'N' }, { 0x13, 2, far, 'V' } }) {
        const auto corner = [&](double bearing) {
            const BglPoint code = LatLonToBgl(OffsetByPolar(origin, { edge * kMile, bearing * kRadiansPerDegree }));
            return EncodedPoint{ code.lonCode, code.latCode };
        };
        const EncodedPoint northWest = corner(315), southEast = corner(135);
        const auto add = [&, id = static_cast<uint16_t>(recordId), kind = static_cast<uint8_t>(type), first = letter](
                             double eastward, double southward, char second) {
            const auto between = [](uint32_t low, uint32_t high, double share) {
                return low + static_cast<uint32_t>(std::lround((high - low) * share));
            };
            const EncodedPoint place = { between(northWest.longitude, southEast.longitude, eastward),
                                         between(northWest.latitude, southEast.latitude, southward) };
            navaids.push_back({ id, kind, place, std::string{ first, second } });
        };
        // Shares of the rectangle's width and height: one percent inside each edge, at a corner, and outside.
        for (const double inside : { 0.01, 0.99 }) {
            add(inside, 0.5, 'A');
            add(0.5, inside, 'B');
            add(inside, inside, 'C');
        }
        for (const double outside : { -0.01, 1.01 }) {
            add(outside, 0.5, 'X');
            add(0.5, outside, 'X');
        }
    }
    Put("Namw", "nv9Namw0.bgl", StockFile(navaids));
    bgl::LoadStockNavaids(Simulator());
    EXPECT_EQ(CountKind(kIls), 6u);
    EXPECT_EQ(CountKind(kMarkerBeacon), 6u);
    EXPECT_EQ(CountKind(kNdb), 6u);
    EXPECT_EQ(CountKind(kVorDme), 6u);
    EXPECT_EQ(Idents().find('X'), std::string::npos);
}

TEST_F(StockNavaids, IlsOfTheAirportItselfIsKeptAtAnyDistance) {
    OpenAt(Degrees(47.4, -122.3));
    const uint32_t ours = PackIdent("KSEA") << 11 | 0x123, other = PackIdent("KBFI") << 11;
    const EncodedPoint away = At(6, 6);
    Put("Namw", "nv9Namw0.bgl",
        StockFile(
            { { 0x13, 4, away, "IOURS", ours }, { 0x13, 4, away, "IOTHER", other }, { 0x13, 4, away, "INONE", 0 } }));
    bgl::LoadStockNavaids(Simulator());
    EXPECT_EQ(Idents(), "IOURS ");
}

TEST_F(StockNavaids, AnIlsNamesAnAirportOfFiveCharactersByItsLowBits) {
    OpenAt(Degrees(47.4, -122.3));
    PayloadAs<AirportRecord>(state.airport).ident = PackIdent("ZZZZZ") << kIdentShift | 1;
    const EncodedPoint away = At(6, 6);
    Put("Namw", "nv9Namw0.bgl",
        StockFile({ { 0x13, 4, away, "IOURS", PackIdent("ZZZZZ") << 11 | 0x123 },
                    { 0x13, 4, away, "IOTHER", PackIdent("ZZZZY") << 11 } }));
    bgl::LoadStockNavaids(Simulator());
    EXPECT_EQ(Idents(), "IOURS ");
}

TEST_F(StockNavaids, SectionsAreReadInTheOrderOfTheSectionTable) {
    OpenAt(Degrees(47.4, -122.3));
    const EncodedPoint here = At(0, 0);
    const auto section = [&](uint16_t type, const char* ident) {
        return bgl::SectionContent{ type,
                                    1,
                                    { { bgl::CellOf(here), 1, { NavaidRecordOf({ type, 1, here, ident }) } } } };
    };
    const bgl::SectionContent sections[] = { section(0x18, "M"), section(0x13, "V"), section(0x17, "N"),
                                             section(0x13, "W") };
    Put("Namw", "nv9Namw0.bgl", bgl::AssembleFile(sections, 1));
    bgl::LoadStockNavaids(Simulator());
    EXPECT_EQ(Idents(), "M V N W ");
}

TEST_F(StockNavaids, AirportWithoutIdentOwnsNoIls) {
    OpenAt(Degrees(47.4, -122.3));
    PayloadAs<AirportRecord>(state.airport).ident = 1;
    Put("Namw", "nv9Namw0.bgl", StockFile({ { 0x13, 4, At(6, 6), "INONE", 0x123 } }));
    bgl::LoadStockNavaids(Simulator());
    EXPECT_EQ(Idents(), "");
}

TEST_F(StockNavaids, AirportFilesOfTheFiveProbePointsAreReadOnce) {
    // At the corner of four blocks: the probes at the corners find the other three.
    const EncodedPoint corner = { 10u << 23, 20u << 23 };
    OpenAt(BglToLatLon({ corner.latitude + 1000, corner.longitude + 1000 }));
    int number = 0;
    for (double east : { -1.0, 1.0 }) {
        for (double north : { -1.0, 1.0 }) {
            const EncodedPoint place = At(east, north);
            Put("Namw", BlockFile(place), StockFile({ { 0x13, 1, place, "V" + std::to_string(number++) } }));
        }
    }
    Put("Namw", "AP911210.bgl", StockFile({ { 0x13, 1, At(1, 1), "FAR" } }));  // a block next to those
    bgl::LoadStockNavaids(Simulator());
    EXPECT_EQ(CountKind(kVorDme), 4u);
    EXPECT_EQ(Idents().find("FAR"), std::string::npos);
}

TEST_F(StockNavaids, FilesWithOtherNamesAreNotStockFiles) {
    OpenAt(Degrees(47.4, -122.3));
    const ByteList file = StockFile({ { 0x13, 1, At(0, 0), "VOR" } });
    const std::string right = BlockFile(At(0, 0));
    std::string lastDigit = right;
    lastDigit[7] = '1';
    Put("Namw", lastDigit, file);
    Put("Namw", "AT9" + right.substr(3), file);
    Put("Terrain", right, file);
    bgl::LoadStockNavaids(Simulator());
    EXPECT_EQ(Idents(), "");
}

TEST_F(StockNavaids, NamesInAnyCaseAreFound) {
    OpenAt(Degrees(47.4, -122.3));
    std::string name = BlockFile(At(0, 0));
    name[0] = 'a';
    name[9] = 'B';
    Put("Namw", name, StockFile({ { 0x13, 1, At(0, 0), "AP" } }));
    Put("Namw", "NV9namw0.BGL", StockFile({ { 0x13, 1, At(0, 0), "NV" } }));
    bgl::LoadStockNavaids(Simulator());
    EXPECT_EQ(Idents(), "AP NV ");
}

TEST_F(StockNavaids, NavaidFileOfAnotherRegionIsNotOpened) {
    OpenAt(Degrees(47.4, -122.3));
    Put("Namw", "nv9Namw0.bgl", StockFile({ { 0x17, 0, At(0, 1), "NDB" } }));
    Put("Eurw", "nv9Eurw0.bgl", StockFile({ { 0x17, 0, PointFrom(Degrees(50, 10), 0, 0), "FAR" } }));
    const EncodedPoint here = At(0, 0);
    const std::vector<std::string> paths = bgl::StockFilesAt(Simulator(), { &here, 1 });
    ASSERT_EQ(paths.size(), 1u);
    EXPECT_NE(paths[0].find("nv9Namw0.bgl"), std::string::npos);
}

TEST_F(StockNavaids, FoldersAreListedOnceASession) {
    OpenAt(Degrees(47.4, -122.3));
    const EncodedPoint here = At(0, 0), far = PointFrom(Degrees(50, 10), 0, 0);
    Put("Namw", BlockFile(far), StockFile({}));
    Put("Namw", "nv9Namw0.bgl", StockFile({ { 0x17, 0, far, "NDB" } }));
    EXPECT_TRUE(bgl::StockFilesAt(Simulator(), { &here, 1 }).empty());
    Put("Namw", BlockFile(here), StockFile({}));
    EXPECT_TRUE(bgl::StockFilesAt(Simulator(), { &here, 1 }).empty());
    const fs::path other = folder / "other";
    fs::create_directories(other);
    fs::rename(folder / "Scenery", other / "Scenery");
    EXPECT_EQ(bgl::StockFilesAt(other.string(), { &here, 1 }).size(), 1u);
    fs::rename(other / "Scenery", folder / "Scenery");
    bgl::ForgetStockFiles();
    EXPECT_EQ(bgl::StockFilesAt(Simulator(), { &here, 1 }).size(), 1u);
}

// The simulator's drive was not there yet, or its files are being installed.
TEST_F(StockNavaids, FoldersThatHeldNoAirportsOrNoNavaidsAreListedAgain) {
    OpenAt(Degrees(47.4, -122.3));
    const EncodedPoint here = At(0, 0);
    EXPECT_TRUE(bgl::StockFilesAt(Simulator(), { &here, 1 }).empty());
    Put("Namw", BlockFile(here), StockFile({}));
    EXPECT_EQ(bgl::StockFilesAt(Simulator(), { &here, 1 }).size(), 1u);
    Put("Namw", "nv9Namw0.bgl", StockFile({ { 0x17, 0, here, "NDB" } }));
    EXPECT_EQ(bgl::StockFilesAt(Simulator(), { &here, 1 }).size(), 2u);
}

TEST_F(StockNavaids, NamesWithNegativeNumbersAreNoStockFiles) {
    OpenAt(BglToLatLon({ (1u << 23) + 100000, (1u << 23) + 100000 }));
    const ByteList file = StockFile({ { 0x13, 1, At(0, 0), "VOR" } });
    for (const char* name : { "nv9Namw-1.bgl", "nv9-Namw0.bgl", "nv9Namw-0.bgl", "AP90-0-10.bgl", "AP9-1010.bgl",
                              "AP9-01010.bgl", "AP901-10.bgl" })
        Put("Namw", name, file);
    bgl::LoadStockNavaids(Simulator());
    EXPECT_EQ(Idents(), "");
    Put("Namw", BlockFile(At(0, 0)), file);
    bgl::LoadStockNavaids(Simulator());
    EXPECT_EQ(Idents(), "VOR ");
}

TEST_F(StockNavaids, MissingOrDamagedFilesAreSilent) {
    OpenAt(Degrees(47.4, -122.3));
    bgl::LoadStockNavaids(Simulator() + "/missing");
    Put("Namw", "nv9Namw0.bgl", Hex("01 02 92 19"));
    Put("Namw", BlockFile(At(0, 0)), StockFile({ { 0x13, 1, At(0, 0), "VOR" } }));
    const EncodedPoint here = At(0, 0);
    EXPECT_EQ(bgl::StockFilesAt(Simulator(), { &here, 1 }).size(), 1u);
    fs::remove_all(folder / "Scenery");
    bgl::LoadStockNavaids(Simulator());
    EXPECT_EQ(Idents(), "");
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(StockNavaids, AirportsBeside180DegreesGetTheirNavaidsFromBothSides) {
    for (double east : { 179.9, -179.9, 180.0, -180.0, 179.999999, -179.999999 }) {
        fs::remove_all(folder / "Scenery");
        bgl::ForgetStockFiles();
        OpenAt(Degrees(-17.5, east));
        std::vector<TestNavaid> navaids;
        for (double offset : { -17.0, -9.0, 0.0, 9.0, 17.0 })
            navaids.push_back({ 0x13, 1, At(offset, 0), "V" + std::to_string(navaids.size()) });
        navaids.push_back({ 0x13, 1, At(25, 0), "FAR" });
        navaids.push_back({ 0x13, 1, At(-25, 0), "FAR" });
        Put("Ocen", "nv9Ocen0.bgl", StockFile(navaids));
        std::vector<TestNavaid> westSide, eastSide;
        for (const TestNavaid& navaid : navaids)
            (navaid.place.longitude < 0x18000000 ? westSide : eastSide).push_back(navaid);
        bgl::LoadStockNavaids(Simulator());
        EXPECT_EQ(Idents(), Idents().find("FAR") == std::string::npos ? Idents() : "no FAR");
        EXPECT_EQ(CountKind(kVorDme), 5u) << east;

        // The same from the two airport files that meet at 180 degrees.
        fs::remove_all(folder / "Scenery");
        bgl::ForgetStockFiles();
        OpenAt(Degrees(-17.5, east));
        ASSERT_FALSE(westSide.empty() || eastSide.empty()) << east;
        Put("Ocen", BlockFile(westSide[0].place), StockFile(westSide));
        Put("Ocen", BlockFile(eastSide[0].place), StockFile(eastSide));
        bgl::LoadStockNavaids(Simulator());
        EXPECT_EQ(CountKind(kVorDme), 5u) << east;
    }
}

TEST_F(StockNavaids, WithoutAirportNothingIsLoaded) {
    Put("Namw", "nv9Namw0.bgl", StockFile({ { 0x17, 0, { 0, 0 }, "NDB" } }));
    bgl::LoadStockNavaids(Simulator());
    EXPECT_EQ(state.head, nullptr);
}

class Replacements : public StockNavaids {
protected:
    void SetUp() override {
        StockNavaids::SetUp();
        OpenAt(Degrees(47.4, -122.3));
    }
    SceneryObject* Own(std::string_view ident, double east, uint32_t region = 0) {
        SceneryObject* vor = build::Vor();
        const EncodedPoint place = At(east, 0);
        SetEncodedPosition(vor, { place.latitude, place.longitude });
        PayloadAs<VorRecord>(vor).ident = PackIdent(ident) << kIdentShift | 2;
        PayloadAs<VorRecord>(vor).region = region;
        return vor;
    }
    SceneryObject* OwnMarker(std::string_view ident, double east, uint32_t region) {
        SceneryObject* marker = build::Append(kMarkerBeacon, sizeof(MarkerBeaconPayload));
        const EncodedPoint place = At(east, 0);
        SetEncodedPosition(marker, { place.latitude, place.longitude });
        PayloadAs<MarkerBeaconPayload>(marker).ident = PackIdent(ident) << kIdentShift | 2;
        PayloadAs<MarkerBeaconPayload>(marker).region = region;
        return marker;
    }
    void Load(const std::vector<TestNavaid>& stock) {
        Put("Namw", "nv9Namw0.bgl", StockFile(stock));
        bgl::LoadStockNavaids(Simulator());
    }
    static SceneryObject* Stock(uint32_t kind, int skip = 0) {
        for (SceneryObject* o = FirstOfKind(state.head, kind); o; o = NextOfKind(o, kind)) {
            if (IsStock(o) && skip-- == 0) return o;
        }
        return nullptr;
    }
};

TEST_F(Replacements, SameKindIdentifierAndRegionAreTiedBothWays) {
    SceneryObject* own = Own("SEA", 1, 7);
    Load({ { 0x13, 1, At(0, 0), "SEA", 7 } });
    ASSERT_NE(Stock(kVorDme), nullptr);
    EXPECT_EQ(own->related, Stock(kVorDme));
    EXPECT_EQ(Stock(kVorDme)->related, own);
    EXPECT_TRUE(IsReplacedStock(Stock(kVorDme)));
}

TEST_F(Replacements, OtherKindIdentifierOrRegionIsNot) {
    const SceneryObject* own = Own("SEA", 1, 7);
    Load({ { 0x13, 1, At(0, 0), "SEB", 7 }, { 0x13, 1, At(0, 0), "SEA", 8 }, { 0x17, 0, At(0, 0), "SEA", 7 } });
    EXPECT_EQ(own->related, nullptr);
    for (int i = 0; i < 2; ++i) EXPECT_EQ(Stock(kVorDme, i)->related, nullptr);
    EXPECT_EQ(Stock(kNdb)->related, nullptr);
}

TEST_F(Replacements, LowBitsOfTheIdentDoNotCount) {
    SceneryObject* own = Own("SEA", 1);
    PayloadAs<VorRecord>(own).ident &= ~kIdentLowBits;
    Load({ { 0x13, 1, At(0, 0), "SEA" } });
    EXPECT_EQ(own->related, Stock(kVorDme));
}

TEST_F(Replacements, OfSeveralTheNearestIsMeantAndEachServesOnce) {
    const SceneryObject *west = Own("SEA", -1), *east = Own("SEA", 2), *third = Own("SEA", 0);
    Load({ { 0x13, 1, At(3, 0), "SEA" }, { 0x13, 1, At(-3, 0), "SEA" } });
    EXPECT_EQ(west->related, Stock(kVorDme, 1));
    EXPECT_EQ(east->related, Stock(kVorDme, 0));
    EXPECT_EQ(third->related, nullptr);
}

TEST_F(Replacements, TheNearestPairComesFirstWhateverTheOrder) {
    const SceneryObject *far = Own("SEA", 4), *near = Own("SEA", 1);
    Load({ { 0x13, 1, At(0, 0), "SEA" } });
    EXPECT_EQ(near->related, Stock(kVorDme));
    EXPECT_EQ(far->related, nullptr);
}

TEST_F(Replacements, NavaidsWithoutIdentifierReplaceTheirLikeInTheSamePlace) {
    const SceneryObject *other = Own("", 0.1, 7), *here = Own("", 0.9), *far = Own("", -4), *named = Own("SEA", 0);
    Load({ { 0x13, 1, At(0, 0), "" }, { 0x17, 0, At(-4, 0), "" }, { 0x13, 1, At(-5.1, 0), "" } });
    EXPECT_EQ(other->related, nullptr) << "of another region";
    EXPECT_EQ(here->related, Stock(kVorDme, 0));
    EXPECT_EQ(far->related, nullptr);
    EXPECT_EQ(named->related, nullptr);
    EXPECT_EQ(Stock(kNdb)->related, nullptr);
}

TEST_F(Replacements, AMarkerReplacesNoneOfAnotherApproach) {
    const SceneryObject *moved = OwnMarker("OM", 0.9, 7), *other = OwnMarker("OM", 5, 7);
    Load({ { 0x18, 0, At(0, 0), "OM", 7 },
           { 0x18, 0, At(6.1, 0), "OM", 7 },
           { 0x18, 0, At(5, 0), "MM", 7 },
           { 0x18, 0, At(5, 0), "OM", 8 } });
    ASSERT_EQ(CountKind(kMarkerBeacon), 6u);
    EXPECT_EQ(moved->related, Stock(kMarkerBeacon, 0));
    EXPECT_EQ(Stock(kMarkerBeacon, 0)->related, moved);
    EXPECT_EQ(other->related, nullptr);
    for (int i = 1; i < 4; ++i) EXPECT_EQ(Stock(kMarkerBeacon, i)->related, nullptr) << i;
}

TEST_F(Replacements, AnIlsReplacesTheNearestOfItsIdentifierHoweverFarItMoved) {
    SceneryObject* own = build::Ils("ISEA");
    const EncodedPoint place = At(0, 1);
    SetEncodedPosition(own, { place.latitude, place.longitude });
    PayloadAs<IlsPayload>(own).body.region = 7;
    Load({ { 0x13, 4, At(0, -1), "ISEA", 7 }, { 0x13, 4, At(0, 1), "IBFI", 7 }, { 0x13, 1, At(0, 1), "ISEA", 7 } });
    ASSERT_EQ(CountKind(kIls), 3u);
    EXPECT_EQ(own->related, Stock(kIls, 0));
    EXPECT_EQ(Stock(kIls, 1)->related, nullptr);
    EXPECT_EQ(Stock(kVorDme)->related, nullptr) << "a VOR is no ILS";
}

TEST_F(Replacements, AreFoundAgainWhenASavedAirportIsOpened) {
    Own("SEA", 1);
    const std::string path = (folder / "TV2_KSEA.bgl").string();
    ASSERT_EQ(bgl::WriteAirportFile(path), 1);
    Put("Namw", "nv9Namw0.bgl", StockFile({ { 0x13, 1, At(0, 0), "SEA" }, { 0x13, 1, At(0, 0), "OLM" } }));
    bgl::AirportPlace place;
    ASSERT_TRUE(bgl::FindAirportInFile(path, "KSEA", &place));
    ASSERT_TRUE(bgl::OpenAirport(place, Simulator()));
    SceneryObject* own = FirstOfKind(state.head, kVorDme);
    EXPECT_FALSE(IsStock(own));
    EXPECT_EQ(CountKind(kVorDme), 3u);
    EXPECT_EQ(own->related, Stock(kVorDme));
    EXPECT_FALSE(state.modified);
    EXPECT_EQ(state.undoHead, nullptr);
}

TEST_F(Replacements, StockFileOfTheAirportGivesStockNavaidsOnly) {
    const std::string name = BlockFile(At(0, 0));
    bgl::SectionContent airports{ 3, 1, { { 1, 1, {} } } };
    airports.subsections[0].records.bytes = AirportRecordWith({});
    const EncodedPoint here = { 0x07B12FA6, 0x07908B15 };
    bgl::SectionContent vors{ 0x13, 1, { { bgl::CellOf(here), 1, { NavaidRecordOf({ 0x13, 1, here, "SEA" }) } } } };
    const bgl::SectionContent sections[] = { airports, vors };
    Put("Namw", name, bgl::AssembleFile(sections, 1));
    bgl::AirportPlace place;
    ASSERT_TRUE(bgl::FindAirportInFile((folder / "Scenery/Namw/Scenery" / name).string(), "", &place));
    ASSERT_TRUE(bgl::OpenAirport(place, Simulator()));
    EXPECT_EQ(Idents(), "SEA ");
    ASSERT_TRUE(bgl::OpenAirport(place, ""));
    EXPECT_EQ(Idents(), "");
}

}  // namespace
