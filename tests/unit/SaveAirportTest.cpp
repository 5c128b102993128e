#include "app/SaveAirport.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <utility>

#include "app/Airport.h"
#include "app/AppState.h"
#include "app/Notices.h"
#include "app/Settings.h"
#include "bgl/AirportIndex.h"
#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "fakes/FakeShell.h"
#include "fakes/TemporaryFolder.h"
#include "map/Tools.h"
#include "model/EditHistory.h"
#include "platform/Files.h"

namespace {

namespace fs = std::filesystem;
using platform::Answer;

constexpr char kQuestion[] = "Do you want to save changes to the current facility ?";
constexpr char kFailure[] = "ERROR: Unable to create .bgl file";

class SaveAirportTest : public testing::Test {
protected:
    void SetUp() override {
        ResetProgram();
        model::state.airport = build::Airport("KTST");
        model::state.loaded = true;
        model::state.modified = true;
        app::state.sourceFile = In("AP915150.bgl");
    }
    void TearDown() override { ResetProgram(); }
    std::string In(const std::string& name) const { return (folder / name).string(); }
    void Put(const std::string& name, const std::string& text) const {
        std::ofstream(folder / name, std::ios::binary) << text;
    }
    std::string Content(const std::string& name) const {
        std::ifstream file(folder / name, std::ios::binary);
        return { std::istreambuf_iterator<char>(file), {} };
    }
    const TemporaryFolder temporary;
    const fs::path& folder = temporary.path;
};

TEST_F(SaveAirportTest, TheStatusBarTellsWhatWasSaved) {
    app::state.savePath = In("TV2_KTST.bgl");
    EXPECT_TRUE(app::SaveAirport());
    EXPECT_EQ(app::NoticeText(), "Saved TV2_KTST.bgl");
}

TEST_F(SaveAirportTest, ItTellsSoOnlyAsLongAsTheAirportIsAsItWasSaved) {
    const std::pair<const char*, void (*)()> changes[] = {
        { "an edit",
          [] {
              model::BeginAction();
              model::AddObject(model::CreateObject(model::kTaxiNode, sizeof(model::TaxiNodeRecord)));
          } },
        { "Undo", [] { model::Undo(); } },
        { "Redo", [] { model::Redo(); } },
        { "Close Airport", [] { app::CloseAirport(); } },
    };
    app::state.savePath = In("TV2_KTST.bgl");
    for (const auto& [name, change] : changes) {
        EXPECT_TRUE(app::SaveAirport());
        app::DropOldRemark();
        EXPECT_EQ(fakeShell.notice, "Saved TV2_KTST.bgl") << name;
        change();
        app::DropOldRemark();
        EXPECT_EQ(fakeShell.notice, "") << name;
    }
}

TEST_F(SaveAirportTest, AnotherRemarkIsNotTakenAwayWithTheAirport) {
    app::state.savePath = In("TV2_KTST.bgl");
    EXPECT_TRUE(app::SaveAirport());
    app::SetNotice(app::Notice::Remark, "of the map");
    app::CloseAirport();
    app::DropOldRemark();
    EXPECT_EQ(fakeShell.notice, "of the map");
}

TEST_F(SaveAirportTest, ASaveThatFailsLeavesNothingOfTheOneBefore) {
    app::state.savePath = In("mine.bgl");
    EXPECT_TRUE(app::SaveAirport());
    fs::create_directory(folder / "taken.bgl");
    app::state.savePath = In("taken.bgl");
    EXPECT_FALSE(app::SaveAirport());
    EXPECT_EQ(fakeShell.notice, "");
}

TEST_F(SaveAirportTest, AFileOfOurOwnIsRewrittenWithoutADialogInAnyMixOfCase) {
    for (const char* name : { "TV2_KTST.bgl", "tv2_ktst.BGL", "Tv2_x.bgl" }) {
        app::state.sourceFile = In(name);
        app::state.savePath.clear();
        model::state.modified = true;
        EXPECT_TRUE(app::SaveAirport());
        EXPECT_TRUE(platform::FileExists(In(name))) << name;
        EXPECT_FALSE(model::state.modified);
        EXPECT_EQ(app::state.savePath, In(name));
    }
    EXPECT_TRUE(fakeShell.saveQuestions.empty());
}

TEST_F(SaveAirportTest, AnotherFileIsNeverOverwrittenUnasked) {
    Put("mine.bgl", "old");
    app::state.sourceFile = In("mine.bgl");
    EXPECT_FALSE(app::SaveAirport());  // the user cancels the dialog
    EXPECT_EQ(fakeShell.saveQuestions.size(), 1u);
    EXPECT_EQ(Content("mine.bgl"), "old");
    EXPECT_TRUE(model::state.modified);
}

TEST_F(SaveAirportTest, TheDialogProposesTheAddOnFolderAndTheIdentifier) {
    app::state.simulatorFolder = "C:\\FS9";
    app::SaveAirportAs();
    ASSERT_EQ(fakeShell.saveQuestions.size(), 1u);
    EXPECT_EQ(fakeShell.saveQuestions[0].folder, "C:\\FS9\\AddOn Scenery\\Scenery\\");
    EXPECT_EQ(fakeShell.saveQuestions[0].name, "TV2_KTST.bgl");
}

TEST_F(SaveAirportTest, TheDialogStartsWhereTheAirportWasSavedLast) {
    app::state.simulatorFolder = "C:\\FS9";
    app::state.savePath = "D:\\Mine\\x.bgl";
    app::SaveAirportAs();
    ASSERT_EQ(fakeShell.saveQuestions.size(), 1u);
    EXPECT_EQ(fakeShell.saveQuestions[0].folder, "D:\\Mine\\");
}

TEST_F(SaveAirportTest, WithoutASimulatorTheDialogStartsBesideTheSource) {
    app::SaveAirportAs();
    ASSERT_EQ(fakeShell.saveQuestions.size(), 1u);
    EXPECT_EQ(fs::path(fakeShell.saveQuestions[0].folder), folder);
}

TEST_F(SaveAirportTest, TheChosenPathIsWrittenAndServesLaterSaves) {
    fakeShell.savePath = In("new.bgl");
    EXPECT_TRUE(app::SaveAirportAs());
    EXPECT_FALSE(model::state.modified);
    EXPECT_EQ(app::state.savePath, In("new.bgl"));
    EXPECT_EQ(fakeShell.title, "Tarvo    KTST        ( file new.bgl )");
    const std::string first = Content("new.bgl");
    EXPECT_FALSE(first.empty());
    build::Node({ 10, 10 });
    model::state.modified = true;
    EXPECT_TRUE(app::SaveAirport());
    EXPECT_EQ(fakeShell.saveQuestions.size(), 1u) << "a second dialog";
    EXPECT_GT(Content("new.bgl").size(), first.size());
}

TEST_F(SaveAirportTest, TheIndexAndTheSettingsHearWhereTheAirportLives) {
    fakeShell.savePath = In("new.bgl");
    EXPECT_TRUE(app::SaveAirportAs());
    EXPECT_EQ(app::settings.lastSavedFile, In("new.bgl"));
    EXPECT_TRUE(bgl::library.savedFiles.contains(bgl::PathKey(In("new.bgl"))));
    bgl::library.savedFiles.clear();
    EXPECT_TRUE(app::SaveAirport());
    EXPECT_TRUE(bgl::library.savedFiles.contains(bgl::PathKey(In("new.bgl"))));
    fs::create_directory(folder / "taken.bgl");
    fakeShell.savePath = In("taken.bgl");
    EXPECT_FALSE(app::SaveAirportAs());
    EXPECT_EQ(app::settings.lastSavedFile, In("new.bgl"));
    bgl::library = {};
}

TEST_F(SaveAirportTest, AFailedWriteKeepsTheFlagAndTheSource) {
    fs::create_directory(folder / "taken.bgl");
    fakeShell.savePath = In("taken.bgl");
    EXPECT_FALSE(app::SaveAirportAs());
    ASSERT_EQ(fake.messages.size(), 1u);
    EXPECT_EQ(fake.messages[0].text, kFailure);
    EXPECT_TRUE(model::state.modified);
    EXPECT_EQ(app::state.savePath, In("taken.bgl")) << "the chosen path, for the next try";
    EXPECT_EQ(app::state.sourceFile, In("AP915150.bgl"));
}

TEST_F(SaveAirportTest, TheNameOfAStockFileIsRefused) {
    Put("AP915150.bgl", "hundreds of airports");
    fakeShell.savePath = In("AP915150.bgl");
    EXPECT_FALSE(app::SaveAirportAs());
    EXPECT_EQ(Content("AP915150.bgl"), "hundreds of airports");
    ASSERT_EQ(fake.messages.size(), 1u);
    EXPECT_EQ(fake.messages[0].text,
              "ERROR: The name of a stock scenery file cannot be used.\nPlease save the airport under another name.");
    fakeShell.savePath = In("AP999999.bgl");  // its navaids would not be read back
    EXPECT_FALSE(app::SaveAirportAs());
    EXPECT_FALSE(platform::FileExists(In("AP999999.bgl")));
}

TEST_F(SaveAirportTest, TheNameOfAnAutobackupIsRefused) {
    fakeShell.savePath = In("autobackuptemp2.BGL");
    EXPECT_FALSE(app::SaveAirportAs());
    ASSERT_EQ(fake.messages.size(), 1u);
    EXPECT_EQ(fake.messages[0].text,
              "ERROR: Tarvo deletes files of the autobackup's name.\nPlease save the airport under another name.");
    EXPECT_FALSE(platform::FileExists(In("autobackuptemp2.BGL")));
    EXPECT_TRUE(model::state.modified);
}

TEST_F(SaveAirportTest, NoOtherStockFileIsWrittenOverEither) {
    fs::create_directories(folder / "Scenery" / "Namw" / "Scenery");
    const std::string navaids = In("Scenery/Namw/Scenery/NV9namw0.bgl");
    Put("Scenery/Namw/Scenery/NV9namw0.bgl", "the navaids of a region");
    app::state.simulatorFolder = folder.string();
    fakeShell.savePath = navaids;
    EXPECT_FALSE(app::SaveAirportAs());
    EXPECT_EQ(Content("Scenery/Namw/Scenery/NV9namw0.bgl"), "the navaids of a region");
    EXPECT_EQ(fake.messages.size(), 1u);
    fakeShell.savePath = In("Scenery/Namw/Scenery/TV2_KTST.bgl");
    EXPECT_TRUE(app::SaveAirportAs()) << "beside them there is room";
}

TEST_F(SaveAirportTest, WithoutAnAirportNothingIsSaved) {
    model::state.loaded = false;
    app::state.savePath = In("x.bgl");
    EXPECT_FALSE(app::SaveAirport());
    EXPECT_FALSE(app::SaveAirportAs());
    EXPECT_FALSE(platform::FileExists(In("x.bgl")));
    EXPECT_TRUE(fakeShell.saveQuestions.empty());
}

TEST_F(SaveAirportTest, ThePromptComesOnlyForAModifiedAirport) {
    model::state.modified = false;
    EXPECT_TRUE(app::SavePrompt());
    model::state.modified = true;
    model::state.loaded = false;
    EXPECT_TRUE(app::SavePrompt());
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(SaveAirportTest, AnApronThatIsDrawnButNotClosedIsAskedForToo) {
    model::state.modified = false;
    map::tools.outline = { build::At({ 0, 0 }), build::At({ 100, 0 }) };
    EXPECT_TRUE(app::SavePrompt());
    EXPECT_TRUE(fake.messages.empty()) << "two corners are no apron";
    map::tools.outline.push_back(build::At({ 100, 100 }));
    fake.answers = { Answer::Cancel };
    EXPECT_FALSE(app::SavePrompt());
    ASSERT_EQ(fake.messages.size(), 1u);
    EXPECT_EQ(fake.messages[0].text, kQuestion);
    EXPECT_EQ(model::CountKind(model::kApron), 1u);
    EXPECT_TRUE(map::tools.outline.empty());
}

TEST_F(SaveAirportTest, YesSavesNoDropsAndCancelStops) {
    app::state.savePath = In("x.bgl");
    fake.answers = { Answer::Cancel, Answer::No, Answer::Yes };
    EXPECT_FALSE(app::SavePrompt());
    EXPECT_FALSE(platform::FileExists(In("x.bgl")));
    EXPECT_TRUE(app::SavePrompt());
    EXPECT_FALSE(platform::FileExists(In("x.bgl")));
    EXPECT_TRUE(model::state.modified);
    EXPECT_TRUE(app::SavePrompt());
    EXPECT_TRUE(platform::FileExists(In("x.bgl")));
    EXPECT_FALSE(model::state.modified);
    ASSERT_EQ(fake.messages.size(), 3u);
    EXPECT_EQ(fake.messages[0].text, kQuestion);
    EXPECT_EQ(fake.messages[0].buttons, platform::Buttons::YesNoCancel);
    EXPECT_EQ(fake.messages[0].icon, platform::Icon::Exclamation);
}

TEST_F(SaveAirportTest, YesWithoutASavedFileKeepsTheAirport) {
    fake.answers = { Answer::Yes };  // and the save dialog is cancelled
    EXPECT_FALSE(app::SavePrompt());
    EXPECT_TRUE(model::state.loaded);
    EXPECT_TRUE(model::state.modified);
    fs::create_directory(folder / "taken.bgl");
    app::state.savePath = In("taken.bgl");
    fake.answers = { Answer::Yes };
    EXPECT_FALSE(app::SavePrompt());
    EXPECT_EQ(fake.messages.back().text, kFailure);
}

}  // namespace
