#include "app/Airport.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "app/AppState.h"
#include "bgl/AirportWriter.h"
#include "bgl/FileBuilder.h"
#include "bgl/RecordIds.h"
#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "fakes/FakeShell.h"
#include "fakes/SceneryBytes.h"
#include "fakes/TemporaryFolder.h"
#include "map/MapView.h"
#include "map/Tools.h"
#include "model/EditHistory.h"

namespace {

namespace fs = std::filesystem;
using app::OpenAirportFile;

class AirportTest : public testing::Test {
protected:
    void SetUp() override {
        ResetProgram();
        map::ResizeView(800, 600);
    }
    void TearDown() override { ResetProgram(); }
    std::string In(const std::string& name) const { return (folder / name).string(); }

    // A file with one airport and one node.
    std::string WriteAirport(const std::string& name, std::string_view ident) const {
        model::state.airport = build::Airport(ident);
        model::SetAirportName("Test Field");
        build::Node({ 50, 50 });
        EXPECT_EQ(bgl::WriteAirportFile(In(name)), 1);
        model::ClearModel();
        return In(name);
    }
    static std::string OnlyMessage() { return fake.messages.size() == 1 ? fake.messages[0].text : "not one message"; }

    const TemporaryFolder temporary;
    const fs::path& folder = temporary.path;
};

TEST_F(AirportTest, OpeningShowsTheAirportInTheMiddleNorthUp) {
    const std::string path = WriteAirport("mine.bgl", "KTST");
    map::view.rotation = 1;
    map::layers.navaids = true;
    map::tools.toolMode = map::Tool::Nodes;
    app::state.savePath = "C:\\old.bgl";
    ASSERT_TRUE(OpenAirportFile(path, "ktst"));
    EXPECT_TRUE(model::state.loaded);
    EXPECT_FALSE(model::state.modified);
    EXPECT_EQ(model::CountKind(model::kTaxiNode), 1u);
    EXPECT_NEAR(map::view.centre.lat, build::kMiddle.lat, 1e-8);
    EXPECT_NEAR(map::view.centre.lon, build::kMiddle.lon, 1e-8);
    EXPECT_EQ(map::view.rotation, 0);
    EXPECT_EQ(map::tools.toolMode, map::Tool::Pointer);
    EXPECT_FALSE(map::layers.navaids);
    EXPECT_EQ(app::state.sourceFile, path);
    EXPECT_EQ(app::state.savePath, "") << "Save would overwrite the file of another airport";
    EXPECT_EQ(fakeShell.title, "Tarvo    KTST    Test Field    ( file mine.bgl )");
    EXPECT_GE(fakeShell.stateRefreshes, 1);
    EXPECT_GE(fake.repaints, 1);
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(AirportTest, WithoutAnIdentifierTheFirstAirportIsOpened) {
    ASSERT_TRUE(OpenAirportFile(WriteAirport("mine.bgl", "EDDH"), ""));
    EXPECT_EQ(model::state.icao, "EDDH");
}

TEST_F(AirportTest, AFileThatCannotBeOpenedIsNamed) {
    EXPECT_FALSE(OpenAirportFile(In("missing.bgl"), ""));
    EXPECT_EQ(OnlyMessage(), "Unable to open file \"" + In("missing.bgl") + "\"");
    EXPECT_EQ(fake.messages[0].icon, platform::Icon::Exclamation);
    EXPECT_FALSE(model::state.loaded);
}

TEST_F(AirportTest, AFileOfAnotherKindIsRefused) {
    std::ofstream(In("text.bgl")) << "this is no scenery";
    std::ofstream(In("empty.bgl"));
    EXPECT_FALSE(OpenAirportFile(In("text.bgl"), "KTST"));
    EXPECT_EQ(OnlyMessage(), "Selected file  " + In("text.bgl") + "  is not in recognised AFD format");
    fake.messages.clear();
    EXPECT_FALSE(OpenAirportFile(In("empty.bgl"), ""));
    EXPECT_EQ(OnlyMessage(), "Selected file  " + In("empty.bgl") + "  is not in recognised AFD format");
}

TEST_F(AirportTest, AFileWithoutAirportsIsRefused) {
    std::vector<char> header(56);
    const uint32_t magic = 0x19920201;
    std::memcpy(header.data(), &magic, 4);
    header[4] = 56;
    std::ofstream(In("none.bgl"), std::ios::binary).write(header.data(), 56);
    EXPECT_FALSE(OpenAirportFile(In("none.bgl"), "KTST"));
    EXPECT_EQ(OnlyMessage(), "Selected file  " + In("none.bgl") + "  does not contain any airports");
}

TEST_F(AirportTest, AnAirportThatTheFileLacksIsNamedAndTheOpenOneStays) {
    const std::string path = WriteAirport("mine.bgl", "KTST");
    ASSERT_TRUE(OpenAirportFile(path, ""));
    EXPECT_FALSE(OpenAirportFile(path, "ksea"));
    EXPECT_EQ(OnlyMessage(), "Selected file  " + path + "  does not contain airport KSEA");
    EXPECT_EQ(model::state.icao, "KTST");
    EXPECT_EQ(app::state.sourceFile, path);
}

TEST_F(AirportTest, WhatHindersSavingIsToldOnceTheAirportIsShown) {
    std::vector<uint8_t> records;
    for (const char* ident : { "KAAA", "KBBB" }) {
        const std::vector<uint8_t> record = AirportRecordWith({}, ident);
        records.insert(records.end(), record.begin(), record.end());
    }
    const bgl::SectionContent sections[] = { { bgl::kAirportSection, bgl::kByCell, { { 1, 2, { records } } } } };
    const std::vector<uint8_t> file = bgl::AssembleFile(sections, 1);
    std::ofstream(In("TV2_both.bgl"), std::ios::binary)
        .write(reinterpret_cast<const char*>(file.data()), static_cast<std::streamsize>(file.size()));
    ASSERT_TRUE(OpenAirportFile(In("TV2_both.bgl"), "KBBB"));
    EXPECT_EQ(model::state.icao, "KBBB");
    EXPECT_EQ(app::state.sourceFile, In("TV2_both.bgl"));
    EXPECT_TRUE(OnlyMessage().starts_with("This file holds 2 airports.")) << OnlyMessage();
    EXPECT_EQ(fake.messages.at(0).buttons, platform::Buttons::Ok);
    EXPECT_EQ(fake.messages.at(0).icon, platform::Icon::Exclamation);
}

TEST_F(AirportTest, ClosingLeavesNothingBehind) {
    ASSERT_TRUE(OpenAirportFile(WriteAirport("TV2_KTST.bgl", "KTST"), ""));
    app::state.savePath = app::state.sourceFile;
    map::tools.toolMode = map::Tool::Nodes;
    map::tools.hasClick = true;
    app::CloseAirport();
    EXPECT_FALSE(model::state.loaded);
    EXPECT_EQ(model::state.head, nullptr);
    EXPECT_EQ(app::state.sourceFile, "");
    EXPECT_EQ(app::state.savePath, "");
    EXPECT_EQ(map::tools.toolMode, map::Tool::Pointer);
    EXPECT_FALSE(map::tools.hasClick);
    EXPECT_EQ(fakeShell.title, "Tarvo        ");
}

TEST_F(AirportTest, ANewAirportHasNoSourceFileAndItsTitleNamesNone) {
    model::state.airport = build::Airport("KTST");
    model::state.icao = "KTST";
    model::SetAirportName("Test Field");
    model::state.loaded = true;
    EXPECT_EQ(app::TitleText(), "Tarvo    KTST    Test Field    ( file  )");
}

TEST_F(AirportTest, WithoutAnAirportTheTitleHasTwoEmptyFields) { EXPECT_EQ(app::TitleText(), "Tarvo        "); }

TEST_F(AirportTest, TheTitleTellsAStockAirport) {
    model::state.airport = build::Airport("KSEA");
    model::SetAirportName("Z\xFCrich");  // Windows-1252
    model::state.loaded = true;
    app::state.sourceFile = "C:\\FS9\\Scenery\\Namw\\Scenery\\ap915150.BGL";
    EXPECT_EQ(app::TitleText(), "Tarvo    KSEA    Z\xC3\xBCrich    ( stock airport )");
    app::state.sourceFile = "C:\\FS9\\AP9151500.bgl";
    EXPECT_EQ(app::TitleText(), "Tarvo    KSEA    Z\xC3\xBCrich    ( file AP9151500.bgl )");
}

TEST(AirportPaths, AreCutAtTheLastSeparator) {
    EXPECT_EQ(app::FileNameOf("C:\\a\\b.bgl"), "b.bgl");
    EXPECT_EQ(app::FileNameOf("/a/b.bgl"), "b.bgl");
    EXPECT_EQ(app::FileNameOf("C:b.bgl"), "b.bgl");
    EXPECT_EQ(app::FileNameOf("b.bgl"), "b.bgl");
    EXPECT_EQ(app::FileNameOf("C:\\a\\"), "");
    EXPECT_EQ(app::FolderOf("C:\\a\\b.bgl"), "C:\\a");
    EXPECT_EQ(app::FolderOf("b.bgl"), "");
}

}  // namespace
