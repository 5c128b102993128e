#include "cli/Dump.h"

#include <gtest/gtest.h>

#include <limits>
#include <sstream>

#include "bgl/AirportWriter.h"
#include "bgl/OpenAirport.h"
#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "fakes/RandomAirport.h"

namespace {

using namespace model;
using testing::IsSubstring;

class Dump : public testing::Test {
protected:
    void SetUp() override {
        ResetFakes();
        ClearModel();
    }
    void TearDown() override { ClearModel(); }

    // The line of the object at that place of the list.
    static std::string LineOf(size_t place) {
        std::istringstream lines(cli::DumpModel());
        std::string line;
        for (size_t i = 0; i <= place + 1; ++i) std::getline(lines, line);
        return line;
    }
    static void ExpectPart(const std::string& line, const std::string& part) {
        EXPECT_PRED_FORMAT2(IsSubstring, part, line);
    }
    static std::string HexOf(const SceneryObject* object) {
        std::string text;
        char digits[3];
        for (uint32_t i = 0; i < object->payloadSize; ++i) {
            std::snprintf(digits, sizeof digits, "%02x", unsigned{ object->payload[i] });
            text += digits;
        }
        return text;
    }
    static void SetName(char* field, std::string_view text) { std::memcpy(field, text.data(), text.size()); }
};

TEST_F(Dump, AnEmptyModelHasNoObjects) {
    EXPECT_EQ(
        cli::DumpModel(),
        "{\"airport\": \"\", \"name\": \"\", \"country\": \"\", \"state\": \"\", \"city\": \"\", \"objects\": []}\n");
}

TEST_F(Dump, NamesAreConvertedFromWindows1252) {
    state.icao = "LSZH";
    SetAirportName("Z\xFCrich \"Kloten\"");
    state.country = "Schweiz";
    state.state = "Z\xFCrich";
    state.city = "\x80";
    EXPECT_EQ(cli::DumpModel(),
              "{\"airport\": \"LSZH\", \"name\": \"Z\xC3\xBCrich \\\"Kloten\\\"\", "
              "\"country\": \"Schweiz\", \"state\": \"Z\xC3\xBCrich\", \"city\": \"\xE2\x82\xAC\", "
              "\"objects\": []}\n");
}

TEST_F(Dump, ANameOf48CharactersEndsWithItsBuffer) {
    SetAirportName(std::string(48, 'x'));
    ExpectPart(cli::DumpModel(), "\"name\": \"" + std::string(48, 'x') + "\"");
}

TEST_F(Dump, ObjectsStandInListOrderEachOnItsLine) {
    build::Airport("KSEA");
    build::Node();
    build::Spot();
    ExpectPart(LineOf(0), "{\"kind\": 1, \"what\": \"Airport\", \"flags\": 1, \"payload\": ");
    ExpectPart(LineOf(1), "{\"kind\": 8, \"what\": \"TaxiNode\", \"flags\": 8, \"payload\": ");
    ExpectPart(LineOf(2), "{\"kind\": 11, \"what\": \"ParkingSpot\", \"flags\": 11, \"payload\": ");
}

TEST_F(Dump, TheKindIsWithoutFlags) {
    build::Node()->flags |= kSelected | kStock;
    ExpectPart(LineOf(0), "\"kind\": 8, \"what\": \"TaxiNode\", \"flags\": 16424, ");
}

TEST_F(Dump, PayloadsAreLowerCaseHexadecimal) {
    SceneryObject* node = build::Node();
    for (uint32_t i = 0; i < 12; ++i) node->payload[i] = static_cast<uint8_t>(i * 0x15);
    ExpectPart(LineOf(0), "\"payload\": \"00152a3f54697e93a8bdd2e7\"");
}

TEST_F(Dump, PositionsAreDegreesNorthAndEast) {
    SceneryObject* node = build::Node();
    SetPosition(node, { -33.9461 * kRadiansPerDegree, -151.1772 * kRadiansPerDegree });  // Sydney: east is negative
    ExpectPart(LineOf(0), "\"north\": -33.94");
    ExpectPart(LineOf(0), "\"east\": 151.17");
    PayloadAs<TaxiNodeRecord>(node).longitude = 402653184;
    PayloadAs<TaxiNodeRecord>(node).latitude = 0;
    ExpectPart(LineOf(0), "\"north\": 90.00000000, \"east\": 0.00000000, \"type\": 1, \"reversed\": false}");
}

TEST_F(Dump, ALinkShowsTwentyBytesAndListPositions) {
    SceneryObject *a = build::Node(), *b = build::Node(), *name = build::Designator("B"),
                  *link = build::Link(b, a, 1, name);
    auto& payload = PayloadAs<TaxiLinkPayload>(link);
    payload.flagsWord = 0x04F50001 | 0x00080000;
    payload.width = 22.5f;
    ExpectPart(LineOf(3), "\"payload\": \"" + HexOf(link).substr(0, 40) + "\", ");
    ExpectPart(LineOf(3),
               "\"type\": 1, \"width\": 22.5, \"surfaceCode\": 4, \"surface\": \"Asphalt\", \"centreLine\": true, "
               "\"centreLights\": false, ");
    ExpectPart(LineOf(3), "\"start\": 1, \"end\": 0, \"designator\": 2}");
}

TEST_F(Dump, ALinkWithoutDesignatorHasNull) {
    SceneryObject *a = build::Node(), *b = build::Node();
    build::Link(a, b);
    ExpectPart(LineOf(2), "\"start\": 0, \"end\": 1, \"designator\": null}");
}

TEST_F(Dump, GuidelinesShowNoPointers) {
    SceneryObject *a = build::Marker(), *b = build::Marker();
    build::Guideline(b, a);
    ExpectPart(LineOf(2), "\"payload\": \"\", \"from\": 1, \"to\": 0}");
}

TEST_F(Dump, ANavaidNamesItsReplacement) {
    SceneryObject *stock = build::Ndb(), *replacement = build::Ndb();
    stock->flags |= kStock;
    stock->related = replacement;
    replacement->related = stock;
    ExpectPart(LineOf(0), "\"related\": 1");
    ExpectPart(LineOf(1), "\"related\": 0");
    EXPECT_EQ(LineOf(0).find("\"related\": 0"), std::string::npos);
}

TEST_F(Dump, AParkingSpotShowsItsNameNumberTypeAndCodes) {
    SceneryObject* spot = build::Spot({}, { "KLM", "DLH", "BAWX" });
    auto& record = PayloadAs<ParkingSpotRecord>(spot);
    record.packed = 3u << 24 | 112u << 12 | 10u << 8 | 13;
    record.radius = 36.5f;
    record.heading = 270;
    ExpectPart(LineOf(0), "\"name\": \"Gate B\", \"number\": 112, \"typeCode\": 10, \"type\": \"Gate Heavy\", ");
    ExpectPart(LineOf(0), "\"heading\": 270, \"radius\": 36.5, \"codes\": [\"KLM\", \"DLH\", \"BAWX\"]}");
}

TEST_F(Dump, ARunwayShowsItsEndsAndTheAreasThatItHas) {
    SceneryObject* object = build::Runway(16, 2);
    auto& runway = PayloadAs<RunwayPayload>(object);
    runway.body.primaryIls = PackIdent("ISNQ");
    runway.primaryBlastPad = { 4, 60, 45 };
    runway.secondaryRightVasi.type = 3;
    const std::string line = LineOf(0);
    ExpectPart(line, "\"primary\": \"16R\", \"secondary\": \"34L\", \"primaryIls\": \"ISNQ\", \"secondaryIls\": \"\"");
    ExpectPart(line, "\"length\": 2000, \"width\": 45, \"surfaceCode\": 0, \"surface\": \"Concrete\"");
    ExpectPart(line,
               "\"primaryBlastPad\": {\"surfaceCode\": 4, \"surface\": \"Asphalt\", \"length\": 60, \"width\": 45}");
    ExpectPart(line, "\"secondaryRightVasi\": {\"type\": 3, ");
    EXPECT_EQ(line.find("secondaryBlastPad"), std::string::npos);
    EXPECT_EQ(line.find("primaryLeftVasi"), std::string::npos);
}

TEST_F(Dump, ASurfaceCodeWithoutNameIsShownAsNumberAlone) {
    SceneryObject* object = build::Runway(16);
    PayloadAs<RunwayPayload>(object).body.surface = 24;
    ExpectPart(LineOf(0), "\"surfaceCode\": 24, \"patternAltitude\"");
}

TEST_F(Dump, FloatsThatAreNotFiniteAreNull) {
    SceneryObject* object = build::Runway(16);
    RunwayRecord& body = PayloadAs<RunwayPayload>(object).body;
    body.length = std::numeric_limits<float>::infinity();
    body.width = std::numeric_limits<float>::quiet_NaN();
    ExpectPart(LineOf(0), "\"length\": null, \"width\": null");
}

TEST_F(Dump, AFrequencyIsHertzAndItsNameMayFillTheField) {
    SceneryObject* object = build::Append(kCommFrequency, sizeof(CommFrequencyRecord));
    auto& comm = PayloadAs<CommFrequencyRecord>(object);
    comm.type = 6;
    comm.frequency = 119900000;
    SetName(comm.name, std::string(49, 'n'));
    ExpectPart(LineOf(0), "\"name\": \"" + std::string(48, 'n') + "\", \"type\": 6, \"frequency\": 119900000}");
}

TEST_F(Dump, AnIlsShowsTheSubRecordsThatItsFlagsName) {
    SceneryObject* object = build::Ils("ISEA");
    auto& ils = PayloadAs<IlsPayload>(object);
    ils.localizer = { 16, 2, 163.5f, 5 };
    ils.body.region = PackIdent("KSEA") << 11 | PackIdent("K1");
    SetName(ils.name, "ILS/DME 16R");
    std::string line = LineOf(0);
    ExpectPart(
        line,
        "\"name\": \"ILS/DME 16R\", \"ident\": \"ISEA\", \"region\": \"K1\", \"ofAirport\": \"KSEA\", \"type\": 4, ");
    ExpectPart(line, "\"runway\": \"16R\", \"heading\": 163.5, \"width\": 5}");
    ils.body.flags = kHasGlideSlope | kHasDme;
    ils.glideSlope.pitch = 3;
    line = LineOf(0);
    ExpectPart(line, "\"glideSlope\": {");
    ExpectPart(line, "\"pitch\": 3}, \"dme\": {");
}

TEST_F(Dump, AnNdbADmeAndAMarkerShowTheirFields) {
    SceneryObject* ndb = build::Ndb();
    PayloadAs<NdbPayload>(ndb).frequency = 350000;
    PayloadAs<NdbPayload>(ndb).ident = PackIdent("BF") << 5 | 3;
    SceneryObject* vor = build::Vor();
    PayloadAs<VorDmePayload>(vor).body.flags = kHasDme;
    SceneryObject* marker = build::Append(kMarkerBeacon, sizeof(MarkerBeaconPayload));
    PayloadAs<MarkerBeaconPayload>(marker).heading = 64;
    ExpectPart(LineOf(0), "\"what\": \"Ndb\"");
    ExpectPart(LineOf(0), "\"ident\": \"BF\"");
    ExpectPart(LineOf(0), "\"frequency\": 350000");
    ExpectPart(LineOf(1), "\"dme\": {\"north\": ");
    ExpectPart(LineOf(2), "\"heading\": 90, ");
}

TEST_F(Dump, ApronsAndEdgeLightsShowTheirPoints) {
    build::Apron({ { 402653184, 0 }, { 402653184, 0x10000000 }, { 0, 0 } });
    build::EdgeLights({ { 60.96f, 402653184, 0, 402653184, 0x10000000, 0, 0, 0 } });
    ExpectPart(LineOf(0),
               "\"drawFlags\": 3, \"vertices\": 3, \"triangles\": 0, \"outline\": [[90.00000000, 0.00000000], "
               "[0.00000000, 0.00000000], [90.00000000, -180.00000000]]}");
    ExpectPart(LineOf(1),
               "\"strips\": [{\"spacing\": 60.96, \"start\": [90.00000000, 0.00000000], "
               "\"end\": [0.00000000, 0.00000000]}]}");
}

TEST_F(Dump, TheAirportsFieldsAreThoseOfItsRecord) {
    SceneryObject* airport = build::Airport("KSEA");
    auto& record = PayloadAs<AirportRecord>(airport);
    record.altitude = 131675;
    record.fuel = 0x80000000;
    record.runwayCount = 3;
    ExpectPart(LineOf(0), "\"ident\": \"KSEA\"");
    ExpectPart(LineOf(0), "\"elevation\": 131.675");
    ExpectPart(LineOf(0), "\"jetFuel\": true, \"avgas\": false, \"counts\": {\"runways\": 3, ");
}

TEST_F(Dump, StartLocationsHelipadsAndTheTower) {
    SceneryObject* start = build::Placed<StartLocationRecord>(kStartLocation, {});
    PayloadAs<StartLocationRecord>(start).number = 34;
    PayloadAs<StartLocationRecord>(start).designatorAndType = 0x11;
    SceneryObject* helipad = build::Placed<HelipadRecord>(kHelipad, {});
    PayloadAs<HelipadRecord>(helipad).surface = 4;
    build::Tower();
    ExpectPart(LineOf(0), "\"name\": \"34L\", \"type\": 1, ");
    ExpectPart(LineOf(1), "\"surface\": \"Asphalt\"");
    ExpectPart(LineOf(2), "\"elevation\": 0.000}");
}

TEST_F(Dump, AnyAirportReadFromAFileHasBalancedBracketsAndCleanText) {
    for (uint64_t seed = 1; seed <= 50; ++seed) {
        Random random{ seed };
        MakeRandomAirport(seed, SmallCounts(&random));
        std::vector<uint8_t> bytes;
        std::string refusal;
        ASSERT_TRUE(bgl::BuildAirportFile(1, &bytes, &refusal));
        ASSERT_TRUE(bgl::OpenAirportBytes(bytes, ""));
        int depth = 0;
        bool inText = false, escaped = false;
        for (const char c : cli::DumpModel()) {
            ASSERT_TRUE(static_cast<uint8_t>(c) >= 0x20 || c == '\n');
            if (inText) {
                inText = escaped || c != '"';
                escaped = !escaped && c == '\\';
            } else {
                inText = c == '"';
                depth += c == '{' || c == '[';
                depth -= c == '}' || c == ']';
                ASSERT_GE(depth, 0);
            }
        }
        EXPECT_EQ(depth, 0);
        EXPECT_FALSE(inText);
    }
}

}  // namespace
