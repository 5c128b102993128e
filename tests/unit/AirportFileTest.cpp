// The file that saving makes, and what is there when it cannot be made.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "bgl/AirportWriter.h"
#include "fakes/AirportFixture.h"
#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "fakes/SceneryBytes.h"
#include "fakes/TemporaryFolder.h"

namespace {

using namespace model;

class AirportFile : public AirportFixture {
protected:
    static ByteList Content(const std::filesystem::path& path) {
        std::ifstream file(path, std::ios::binary);
        return ByteList(std::istreambuf_iterator<char>(file), {});
    }
    const TemporaryFolder temporary;
    const std::filesystem::path& folder = temporary.path;
};

TEST_F(AirportFile, HoldsTheBuiltBytesAndTheTimeOfSaving) {
    fake.fileTime = kTestTime;
    const auto path = folder / "TV2_KSEA.bgl";
    EXPECT_EQ(bgl::WriteAirportFile(Utf8Path(path)), 1);
    EXPECT_EQ(Content(path), BuildFile());
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(AirportFile, ReplacesAnOlderFile) {
    const auto path = folder / u8"TV2_\u00c5land.bgl";
    std::ofstream(path, std::ios::binary) << std::string(100000, 'x');
    fake.fileTime = kTestTime;
    EXPECT_EQ(bgl::WriteAirportFile(Utf8Path(path)), 1);
    EXPECT_EQ(Content(path) == BuildFile(), true);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), 1);
}

TEST_F(AirportFile, CannotBeCreatedInAMissingFolder) {
    EXPECT_EQ(bgl::WriteAirportFile(Utf8Path(folder / "missing" / "a.bgl")), 0);
    ASSERT_EQ(fake.messages.size(), 1u);
    EXPECT_EQ(fake.messages[0].text, "ERROR: Unable to create .bgl file");
    EXPECT_EQ(fake.messages[0].buttons, platform::Buttons::Ok);
    EXPECT_EQ(fake.messages[0].icon, platform::Icon::Exclamation);
}

TEST_F(AirportFile, CannotReplaceAFolderWhichStaysAsItIs) {
    const auto path = folder / "taken.bgl";
    std::filesystem::create_directories(path);
    std::ofstream(path / "inside") << "content";
    EXPECT_EQ(bgl::WriteAirportFile(Utf8Path(path)), 0);
    EXPECT_EQ(fake.messages.size(), 1u);
    EXPECT_EQ(Content(path / "inside"), Text("content"));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), 1);  // no sibling left behind
}

TEST_F(AirportFile, RefusedAirportLeavesTheOldFileAlone) {
    const auto path = folder / "old.bgl";
    std::ofstream(path, std::ios::binary) << "old";
    for (int i = 0; i < 256; ++i) build::Runway(1);
    EXPECT_EQ(bgl::WriteAirportFile(Utf8Path(path)), 0);
    ASSERT_EQ(fake.messages.size(), 1u);
    EXPECT_EQ(fake.messages[0].text, "ERROR: The airport has 256 runways.\nA scenery file can hold no more than 255.");
    EXPECT_EQ(fake.messages[0].icon, platform::Icon::Exclamation);
    EXPECT_EQ(Content(path), Text("old"));
}

TEST_F(AirportFile, WithoutAirportTheOldFileStaysAndNothingIsSaid) {
    const auto path = folder / "old.bgl";
    std::ofstream(path, std::ios::binary) << "old";
    ClearModel();
    EXPECT_EQ(bgl::WriteAirportFile(Utf8Path(path)), 0);
    EXPECT_TRUE(fake.messages.empty());
    EXPECT_EQ(Content(path), Text("old"));
}

}  // namespace
