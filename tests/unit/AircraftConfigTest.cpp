// AircraftConfigTest.cpp - one value of an aircraft.cfg is read and replaced, every other byte stays.
#include <gtest/gtest.h>

#include "aircraft/ConfigText.h"
#include "aircraft/ParkingTypes.h"

namespace {

using namespace aircraft;

ConfigText Decode(const std::string& bytes) {
    return DecodeConfig({ reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size() });
}

std::string Encode(const ConfigText& config) {
    const std::vector<uint8_t> bytes = EncodeConfig(config);
    return { bytes.begin(), bytes.end() };
}

// "(missing)" without such a section.
std::string Value(const std::string& bytes, const std::string& section, const std::string& key) {
    const ConfigText config = Decode(bytes);
    const auto sections = platform::ParseIni(config.text);
    const auto* found = FindSection(sections, section);
    return found ? ConfigValue(config, *found, key) : "(missing)";
}

// The bytes after the change of "atc_airline" in "fltsim.0"; "(refused)" when it is.
std::string WithAirline(const std::string& bytes, const std::string& value) {
    ConfigText config = Decode(bytes);
    if (!SetConfigValue(&config, "fltsim.0", "atc_airline", value)) {
        EXPECT_EQ(Encode(config), bytes) << "a refused value changed something";
        return "(refused)";
    }
    return Encode(config);
}

TEST(AircraftConfig, OnlyTheValueChanges) {
    EXPECT_EQ(
        WithAirline("; mine\r\n[fltsim.0]\r\ntitle = A\r\n  ATC_Airline =  KLM \r\n; end\r\n\r\n[x]\r\na=1", "UAL"),
        "; mine\r\n[fltsim.0]\r\ntitle = A\r\n  ATC_Airline =  UAL \r\n; end\r\n\r\n[x]\r\na=1");
}

TEST(AircraftConfig, LineEndsOfAnyKindStay) {
    EXPECT_EQ(WithAirline("[fltsim.0]\natc_airline=KLM\n\n", "U"), "[fltsim.0]\natc_airline=U\n\n");
    EXPECT_EQ(WithAirline("[fltsim.0]\ratc_airline=\rb=1", "U"), "[fltsim.0]\ratc_airline=U\rb=1");
    EXPECT_EQ(WithAirline("[fltsim.0]\r\natc_airline=KLM", ""), "[fltsim.0]\r\natc_airline=");
}

TEST(AircraftConfig, TheFirstOfEqualSectionsAndKeysCounts) {
    const std::string bytes = "[FLTSIM.0]\natc_airline=A\natc_airline=B\n[fltsim.0]\natc_airline=C\n";
    EXPECT_EQ(Value(bytes, "fltsim.0", "atc_airline"), "A");
    EXPECT_EQ(WithAirline(bytes, "X"), "[FLTSIM.0]\natc_airline=X\natc_airline=B\n[fltsim.0]\natc_airline=C\n");
}

TEST(AircraftConfig, TheSectionOfAnotherNumberIsNotTouched) {
    const std::string bytes = "[fltsim.00]\natc_airline=A\n[fltsim.01]\n[ fltsim.0 ]\natc_airline=B\n";
    EXPECT_EQ(WithAirline(bytes, "X"), "[fltsim.00]\natc_airline=A\n[fltsim.01]\n[ fltsim.0 ]\natc_airline=X\n");
}

TEST(AircraftConfig, AMissingKeyGetsALineBehindTheLastOneOfItsSection) {
    EXPECT_EQ(WithAirline("[fltsim.0]\ntitle=A\n\n[x]\n", "U"), "[fltsim.0]\ntitle=A\natc_airline=U\n\n[x]\n");
    EXPECT_EQ(WithAirline("[fltsim.0] \r\n[x]\r\n", "U"), "[fltsim.0] \r\natc_airline=U\r\n[x]\r\n");
    EXPECT_EQ(WithAirline("[x]\n[fltsim.0]\ntitle=A", "U"), "[x]\n[fltsim.0]\ntitle=A\natc_airline=U");
    EXPECT_EQ(WithAirline("[fltsim.0]", "U"), "[fltsim.0]\r\natc_airline=U");
}

TEST(AircraftConfig, AMissingKeyWithoutAValueStaysMissing) {
    EXPECT_EQ(WithAirline("[fltsim.0]\ntitle=A\n", ""), "[fltsim.0]\ntitle=A\n");
}

TEST(AircraftConfig, AMissingSectionIsRefused) { EXPECT_EQ(WithAirline("[fltsim.1]\n", "U"), "(refused)"); }

TEST(AircraftConfig, ACommentBehindTheValueIsNoPartOfItAndStays) {
    const std::string bytes = "[fltsim.0]\natc_airline=KLM // Dutch\natc_parking_codes=K\t; x\n";
    EXPECT_EQ(Value(bytes, "fltsim.0", "atc_airline"), "KLM");
    EXPECT_EQ(Value(bytes, "fltsim.0", "atc_parking_codes"), "K");
    EXPECT_EQ(WithAirline(bytes, "U"), "[fltsim.0]\natc_airline=U // Dutch\natc_parking_codes=K\t; x\n");
    EXPECT_EQ(WithAirline("[fltsim.0]\natc_airline=// none\n", "U"), "[fltsim.0]\natc_airline=U // none\n");
    EXPECT_EQ(Value("[fltsim.0]\natc_airline=A//B;C\n", "fltsim.0", "atc_airline"), "A//B;C");
}

TEST(AircraftConfig, QuotesStayAroundTheValue) {
    EXPECT_EQ(WithAirline("[fltsim.0]\natc_airline=\"KLM\"\n", "U"), "[fltsim.0]\natc_airline=\"U\"\n");
    EXPECT_EQ(WithAirline("[fltsim.0]\natc_airline='KLM' ; x\n", "U"), "[fltsim.0]\natc_airline='U' ; x\n");
    EXPECT_EQ(Value("[fltsim.0]\natc_airline=\"A // B\"\n", "fltsim.0", "atc_airline"), "A // B");
}

TEST(AircraftConfig, WhatWouldNotReadBackIsRefused) {
    const std::string bytes = "[fltsim.0]\natc_airline=KLM\n";
    for (const char* value : { "A // B", "; A", " A", "A\n[x]", "\"A\"", "\xE6\x9D\xB1" })
        EXPECT_EQ(WithAirline(bytes, value), "(refused)") << value;
    EXPECT_EQ(WithAirline(bytes, "\xC3\x83\xC2\xA9"), "(refused)") << "the next reader would take it for UTF-8";
}

TEST(AircraftConfig, TextsAreWindows1252UnlessTheyAreValidUtf8) {
    EXPECT_EQ(Value("[fltsim.0]\natc_airline=Z\xFCri\n", "fltsim.0", "atc_airline"), "Z\xC3\xBCri");
    EXPECT_EQ(Value("[fltsim.0]\natc_airline=Z\xC3\xBCri\n", "fltsim.0", "atc_airline"), "Z\xC3\xBCri");
    EXPECT_EQ(WithAirline("[fltsim.0]\natc_airline=\xFC\n", "\xC3\xA4"), "[fltsim.0]\natc_airline=\xE4\n");
    EXPECT_EQ(WithAirline("[fltsim.0]\natc_airline=\xC3\xBC\n", "\xC3\xA4"), "[fltsim.0]\natc_airline=\xC3\xA4\n");
    EXPECT_EQ(WithAirline("[fltsim.0]\natc_airline=\xC3\xBC\n", "A"), "[fltsim.0]\natc_airline=A\n");
}

TEST(AircraftConfig, AByteOrderMarkStays) {
    EXPECT_EQ(WithAirline("\xEF\xBB\xBF[fltsim.0]\natc_airline=K\n", "\xE6\x9D\xB1"),
              "\xEF\xBB\xBF[fltsim.0]\natc_airline=\xE6\x9D\xB1\n");
}

TEST(AircraftConfig, Utf16StaysWhatItIsInEitherByteOrder) {
    const auto wide = [](const std::string& text, bool highFirst) {
        std::string bytes = highFirst ? "\xFE\xFF" : "\xFF\xFE";
        for (const char c : text) bytes += highFirst ? std::string{ '\0', c } : std::string{ c, '\0' };
        return bytes;
    };
    for (const bool highFirst : { false, true }) {
        const std::string bytes = wide("[fltsim.0]\r\natc_airline=KLM\r\n", highFirst);
        EXPECT_EQ(Value(bytes, "fltsim.0", "atc_airline"), "KLM");
        EXPECT_EQ(WithAirline(bytes, "\xC3\xBC"), wide("[fltsim.0]\r\natc_airline=\xFC\r\n", highFirst));
    }
    const std::string beyond("\xFF\xFE[\0x\0]\0\x3D\xD8\x00\xDE", 12);
    EXPECT_EQ(Encode(Decode(beyond)), beyond);
}

struct Types {
    const char* entered;
    const char* written;  // "" with `unknown` set when it is refused
    const char* unknown = "";
};

TEST(AircraftParkingTypes, EveryAcceptedWordIsWrittenAsTheSimulatorKnowsIt) {
    constexpr Types kAll[] = {
        { "GATE", "GATE" },
        { "g", "GATE" },
        { "Ramp", "RAMP" },
        { "R", "RAMP" },
        { "cargo", "CARGO" },
        { "C", "CARGO" },
        { "dock", "DOCK" },
        { "d", "DOCK" },
        { "mil_cargo", "MIL_CARGO" },
        { "Mil-Cargo", "MIL_CARGO" },
        { "mr", "MIL_CARGO" },
        { "MIL_COMBAT", "MIL_COMBAT" },
        { "mil-combat", "MIL_COMBAT" },
        { "MB", "MIL_COMBAT" },
        { "", "" },
        { " , ", "" },
        { "g r", "GATE,RAMP" },
        { ",gate,\tramp , MB,", "GATE,RAMP,MIL_COMBAT" },
        { "gate,GATES", "", "GATES" },
        { "fuel", "", "fuel" },
        { "mil cargo", "", "mil" },
    };
    for (const Types& row : kAll) {
        std::string types, unknown;
        EXPECT_EQ(NormaliseTypes(row.entered, &types, &unknown), row.unknown[0] == '\0') << row.entered;
        EXPECT_EQ(types, row.written) << row.entered;
        EXPECT_EQ(unknown, row.unknown) << row.entered;
    }
}

}  // namespace
