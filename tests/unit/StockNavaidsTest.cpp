// Which of the simulator's navaids join an airport, from which files, and what takes their place.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "bgl/Cells.h"
#include "bgl/FileBuilder.h"
#include "bgl/NavaidRecords.h"
#include "bgl/OpenAirport.h"
#include "bgl/RecordIds.h"
#include "bgl/StockFiles.h"
#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "fakes/StockFixture.h"

namespace {

using namespace stock;
namespace fs = std::filesystem;

class StockNavaids : public StockFixture {};

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

TEST_F(StockNavaids, IlsOfTheAirportItselfIsKeptAnywhereInTheCellsThatAreRead) {
    OpenAt(Degrees(47.4, -122.3));
    const uint32_t ours = PackIdent("KSEA") << 11 | 0x123, other = PackIdent("KBFI") << 11;
    const EncodedPoint away = At(6, 6);
    Put("Namw", "nv9Namw0.bgl",
        StockFile({ { 0x13, 4, away, "IOURS", ours },
                    { 0x13, 4, away, "IOTHER", other },
                    { 0x13, 4, away, "INONE", 0 },
                    { 0x13, 4, At(200, 200), "IFAR", ours } }));
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

}  // namespace
