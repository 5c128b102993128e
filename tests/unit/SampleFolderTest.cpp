// SampleFolderTest.cpp - the whole sample simulator, made once and looked at from all sides.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <sstream>

#include "bgl/AirportReader.h"
#include "bgl/OpenAirport.h"
#include "bgl/SceneryStructure.h"
#include "fakes/FakePlatform.h"
#include "fakes/TemporaryFolder.h"
#include "model/Ident.h"
#include "model/Links.h"
#include "model/ObjectList.h"
#include "sample/Layouts.h"
#include "sample/Regions.h"
#include "sample/SampleFolder.h"
#include "sample/World.h"

namespace {

namespace fs = std::filesystem;

std::string ReadText(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return { std::istreambuf_iterator<char>(file), {} };
}

struct SampleFolder : testing::Test {
    static void SetUpTestSuite() {
        folder = temporary.emplace().path;
        std::string error;
        ASSERT_TRUE(sample::MakeSampleFolder({ Utf8Path(folder), TARVO_SAMPLE_DATA }, &error)) << error;
    }
    static void TearDownTestSuite() { temporary.reset(); }
    void SetUp() override {
        ResetFakes();
        model::ClearModel();
    }
    void TearDown() override { model::ClearModel(); }

    // Lines "name=path|IDENT" of the index file.
    static std::map<std::string, std::pair<std::string, std::string>> Named() {
        std::map<std::string, std::pair<std::string, std::string>> named;
        std::istringstream text(ReadText(folder / "sample.txt"));
        for (std::string line; std::getline(text, line);) {
            const size_t equals = line.find('='), bar = line.find('|');
            named[line.substr(0, equals)] = { line.substr(equals + 1, bar - equals - 1), line.substr(bar + 1) };
        }
        return named;
    }
    static bool Open(const std::string& relative, const std::string& ident) {
        bgl::AirportPlace place;
        return bgl::FindAirportInFile(Utf8Path(folder) + "\\" + relative, ident, &place) &&
               bgl::OpenAirport(place, Utf8Path(folder));
    }

    inline static std::optional<TemporaryFolder> temporary;
    inline static fs::path folder;
};

uint32_t CountIf(uint32_t kind, bool (*fits)(const model::SceneryObject*)) {
    uint32_t count = 0;
    for (auto* object = model::FirstOfKind(model::state.head, kind); object; object = model::NextOfKind(object, kind))
        count += fits(object);
    return count;
}

}  // namespace

TEST_F(SampleFolder, LooksLikeAnInstalledSimulator) {
    EXPECT_TRUE(fs::is_regular_file(folder / "FS9.exe"));
    EXPECT_TRUE(fs::is_directory(folder / "AddOn Scenery" / "Scenery"));
    EXPECT_TRUE(fs::is_empty(folder / "AddOn Scenery" / "Scenery"));
    for (const char* region : sample::kRegions) EXPECT_TRUE(fs::is_directory(folder / "Scenery" / region / "Scenery"));
    const std::string config = ReadText(folder / "Scenery.cfg");
    EXPECT_TRUE(config.starts_with("[General]\r\nTitle="));
    EXPECT_NE(config.find("Local=Scenery\\Namw\r\n"), std::string::npos);
    EXPECT_NE(config.find("Local=AddOn Scenery\r\n"), std::string::npos);
    for (size_t at = config.find('\n'); at != std::string::npos; at = config.find('\n', at + 1))
        ASSERT_EQ(config[at - 1], '\r');
}

TEST_F(SampleFolder, AirportFilesHaveStockNamesAndNavaidFilesThatOfTheirRegion) {
    int airports = 0, navaids = 0;
    for (const char* region : sample::kRegions) {
        for (const auto& entry : fs::directory_iterator(folder / "Scenery" / region / "Scenery")) {
            const std::string name = Utf8Path(entry.path().filename());
            if (name == sample::NavaidFileName(region))
                ++navaids;
            else if (bgl::IsStockFileName(name))
                ++airports;
            else
                ADD_FAILURE() << name;
        }
    }
    EXPECT_GE(airports, 15);
    EXPECT_GE(navaids, 1);
}

TEST_F(SampleFolder, EveryAirportOfTheDataIsFoundWhereItsBlockSaysAndReadsBack) {
    sample::World world;
    std::string error;
    ASSERT_TRUE(sample::LoadWorld(TARVO_SAMPLE_DATA, &world, &error)) << error;
    EXPECT_GE(world.airports.size(), 500u);
    for (const sample::AirportRow& row : world.airports) {
        const model::BglPoint code = model::LatLonToBgl(row.position);
        const sample::Block block = sample::BlockOf({ code.lonCode, code.latCode });
        const std::string path = Utf8Path(folder) + "\\" + sample::RegionFolder(sample::RegionOf(block)) + "\\" +
                                 sample::AirportFileName(block);
        bgl::AirportPlace place;
        ASSERT_TRUE(bgl::FindAirportInFile(path, row.ident, &place)) << row.ident << " in " << path;
        model::ClearModel();
        bgl::OpenWarnings warnings;
        ASSERT_TRUE(bgl::OpenAirport(place, "", &warnings)) << row.ident;
        EXPECT_EQ(bgl::TextOf(warnings), "") << row.ident;
        EXPECT_EQ(model::state.icao, row.ident);
        const uint32_t runways = model::CountKind(model::kRunway), pads = model::CountKind(model::kHelipad);
        EXPECT_EQ(model::CountKind(model::kStartLocation), 2 * runways + pads) << row.ident;
    }
}

TEST_F(SampleFolder, HubReadsBackWithAllItsLinksAndSpots) {
    ASSERT_TRUE(Named().contains("hub"));
    const auto [path, ident] = Named()["hub"];
    EXPECT_EQ(ident, sample::kHubIdent);
    ASSERT_TRUE(Open(path, ident));
    EXPECT_GE(model::CountKind(model::kParkingSpot), 300u);
    EXPECT_GE(model::CountKind(model::kTaxiNode), 600u);
    EXPECT_GE(model::CountKind(model::kTaxiLink), 800u);
    EXPECT_EQ(model::CountKind(model::kRunway), 3u);
    EXPECT_EQ(model::CountKind(model::kTowerViewpoint), 1u);
    EXPECT_EQ(model::state.city, "Seattle");
    EXPECT_EQ(model::state.state, "Washington");
    std::set<const model::SceneryObject*> linked;
    for (auto* object = model::FirstOfKind(model::state.head, model::kTaxiLink); object;
         object = model::NextOfKind(object, model::kTaxiLink)) {
        const auto& link = model::PayloadAs<model::TaxiLinkPayload>(object);
        const model::SceneryObject *start = link.start, *end = link.end, *designator = link.designator;
        ASSERT_NE(start, nullptr);
        ASSERT_NE(end, nullptr);
        EXPECT_NE(designator, nullptr);
        if (model::LinkTypeOf(link) == model::kParkingLink) linked.insert(end);
    }
    EXPECT_EQ(linked.size(), model::CountKind(model::kParkingSpot));
}

TEST_F(SampleFolder, HubHasItsIlssAndTheNavaidsAroundItAsStock) {
    const auto [path, ident] = Named()["hub"];
    ASSERT_TRUE(Open(path, ident));
    const auto servesHub = [](const model::SceneryObject* object) {
        return (model::PayloadAs<model::IlsPayload>(object).body.region >> 11) == model::PackIdent(sample::kHubIdent);
    };
    EXPECT_EQ(CountIf(model::kIls, servesHub), 4u);
    const auto isSeattle = [](const model::SceneryObject* object) {
        const auto& body = model::PayloadAs<model::VorDmePayload>(object).body;
        const uint32_t word = body.ident, frequency = body.frequency;
        return model::IsStock(object) && model::UnpackIdent(word >> model::kIdentShift) == "SEA" &&
               frequency == 116800000;
    };
    EXPECT_EQ(CountIf(model::kVorDme, isSeattle), 1u);
    EXPECT_GE(model::CountKind(model::kNdb), 1u);
    EXPECT_GE(model::CountKind(model::kMarkerBeacon), 8u);
}

TEST_F(SampleFolder, RunwaysNameTheIlsOfEachEndWithoutTheShift) {
    const auto [path, ident] = Named()["hub"];
    ASSERT_TRUE(Open(path, ident));
    std::set<std::string> named;
    for (auto* object = model::FirstOfKind(model::state.head, model::kRunway); object;
         object = model::NextOfKind(object, model::kRunway)) {
        const auto& body = model::PayloadAs<model::RunwayPayload>(object).body;
        const uint32_t primary = body.primaryIls, secondary = body.secondaryIls;
        named.insert(model::UnpackIdent(primary));
        named.insert(model::UnpackIdent(secondary));
    }
    for (const char* ils : { "ISEA", "ISNQ", "ISZI", "IBEJ" }) EXPECT_TRUE(named.contains(ils)) << ils;
}

TEST_F(SampleFolder, SameDataGivesTheSameBytes) {
    const fs::path again = folder / "again";
    std::string error;
    ASSERT_TRUE(sample::MakeSampleFolder({ Utf8Path(again), TARVO_SAMPLE_DATA }, &error)) << error;
    size_t compared = 0;
    for (const auto& entry : fs::recursive_directory_iterator(again)) {
        if (!entry.is_regular_file()) continue;
        EXPECT_EQ(ReadText(entry.path()), ReadText(folder / fs::relative(entry.path(), again))) << entry.path();
        ++compared;
    }
    EXPECT_GE(compared, 50u);
    fs::remove_all(again);
}

TEST_F(SampleFolder, AircraftHaveVariationsParkingTypesAndAModelRadius) {
    int aircraft = 0;
    for (const auto& entry : fs::directory_iterator(folder / "Aircraft")) {
        ++aircraft;
        const std::string config = ReadText(entry.path() / "aircraft.cfg");
        EXPECT_TRUE(config.starts_with("[fltsim.0]\r\ntitle=")) << entry.path();
        EXPECT_NE(config.find("atc_parking_types="), std::string::npos);
        const std::string model = ReadText(entry.path() / "model" / "Model.cfg");
        const size_t name = model.find("normal=");
        ASSERT_NE(name, std::string::npos) << entry.path();
        const std::string file = model.substr(name + 7, model.find('\r', name) - name - 7) + ".mdl";
        const std::string bytes = ReadText(entry.path() / "model" / file);
        ASSERT_GE(bytes.size(), 52u) << file;
        EXPECT_TRUE(bytes.starts_with("RIFF"));
        const auto radius = static_cast<uint8_t>(bytes[28]);
        EXPECT_GE(radius, 1) << file;
        EXPECT_LE(radius, 200) << file;
        EXPECT_EQ(bytes.substr(29, 3), std::string(3, '\0'));
    }
    EXPECT_GE(aircraft, 12);
}

TEST_F(SampleFolder, MissingTablesAreNamed) {
    std::string error;
    EXPECT_FALSE(sample::MakeSampleFolder({ Utf8Path(folder / "other"), Utf8Path(folder / "nowhere") }, &error));
    EXPECT_NE(error.find("airports.csv"), std::string::npos) << error;
}

TEST_F(SampleFolder, MissingColumnIsNamed) {
    const fs::path data = folder / "data";
    fs::create_directories(data);
    std::ofstream(data / "airports.csv") << "ident,name,lat\nKSEA,Seattle,47\n";
    std::string error;
    EXPECT_FALSE(sample::MakeSampleFolder({ Utf8Path(folder / "other"), Utf8Path(data) }, &error));
    EXPECT_NE(error.find("lon"), std::string::npos) << error;
    fs::remove_all(data);
}
