#include "bgl/OpenAirport.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>

#include "bgl/AirportWriter.h"
#include "bgl/SceneryFile.h"
#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "fakes/SceneryBytes.h"

namespace {

using namespace model;

class OpenAirport : public testing::Test {
protected:
    void SetUp() override {
        ResetFakes();
        ClearModel();
        path =
            (std::filesystem::temp_directory_path() / ("tarvo-open-" + std::to_string(std::random_device{}()) + ".bgl"))
                .string();
        build::Airport("KSEA");
        build::Node();
        build::Vor();
        state.country = "United States";
        SetAirportName("Seattle");
        EXPECT_EQ(bgl::WriteAirportFile(path), 1);
        EXPECT_TRUE(bgl::FindAirportInFile(path, "", &place));
    }
    void TearDown() override {
        ClearModel();
        std::filesystem::remove(path);
    }
    std::string path;
    bgl::AirportPlace place;
};

TEST_F(OpenAirport, ReplacesWhatWasOpen) {
    build::Node();
    state.modified = true;
    state.city = "Old";
    ASSERT_TRUE(bgl::OpenAirport(place, ""));
    EXPECT_EQ(CountKind(kAirport), 1u);
    EXPECT_EQ(CountKind(kTaxiNode), 1u);
    EXPECT_EQ(CountKind(kVorDme), 1u);
    EXPECT_EQ(state.icao, "KSEA");
    EXPECT_EQ(AirportName(), "Seattle");
    EXPECT_EQ(state.country, "United States");
    EXPECT_EQ(state.city, "");
    EXPECT_TRUE(state.loaded);
    EXPECT_FALSE(state.modified);
}

TEST_F(OpenAirport, FileThatCannotBeOpenedLeavesAnEmptyModelAndNoMessage) {
    place.path += ".missing";
    EXPECT_FALSE(bgl::OpenAirport(place, ""));
    EXPECT_EQ(state.head, nullptr);
    EXPECT_FALSE(state.loaded);
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(OpenAirport, StretchWithoutAirportRecordIsRefused) {
    place.offset += 52;
    EXPECT_FALSE(bgl::OpenAirport(place, ""));
    EXPECT_EQ(state.head, nullptr);
    place.offset = 1u << 30;
    EXPECT_FALSE(bgl::OpenAirport(place, ""));
    EXPECT_EQ(state.head, nullptr);
}

TEST_F(OpenAirport, ReadAirportLeavesTheModelAloneWhenTheFileCannotBeOpened) {
    build::Node();
    const std::string before = DescribeModel();
    place.path += ".missing";
    EXPECT_FALSE(bgl::ReadAirport(place));
    EXPECT_EQ(DescribeModel(), before);
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(OpenAirport, ReadAirportReadsOnlyTheStretch) {
    place.size -= 20;  // the last node is cut
    ClearModel();
    ASSERT_TRUE(bgl::ReadAirport(place));
    EXPECT_EQ(CountKind(kTaxiNode), 0u);
    EXPECT_EQ(CountKind(kVorDme), 0u);
    ClearModel();
    place.size = 0xFFFFFFFF;
    ASSERT_TRUE(bgl::ReadAirport(place));
    EXPECT_EQ(CountKind(kTaxiNode), 1u);
}

TEST_F(OpenAirport, AirportRecordShorterThanItsBodyIsRefused) {
    ByteList file = BuildFile();
    const size_t sizeField = static_cast<size_t>(place.offset) + 2;
    file[sizeField] = 40;
    file[sizeField + 1] = 0;
    EXPECT_FALSE(bgl::OpenAirportBytes(file, ""));
    EXPECT_EQ(state.head, nullptr);
}

TEST_F(OpenAirport, FileInMemoryWithoutAirportIsRefused) {
    EXPECT_FALSE(bgl::OpenAirportBytes({}, ""));
    EXPECT_EQ(state.head, nullptr);
    build::Airport("KSEA");
    const ByteList file = BuildFile();
    EXPECT_FALSE(bgl::OpenAirportBytes(file, "KBFI"));
    EXPECT_EQ(state.head, nullptr);
    EXPECT_TRUE(bgl::OpenAirportBytes(file, "ksea"));
}

}  // namespace
