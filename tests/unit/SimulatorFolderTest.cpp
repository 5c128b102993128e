#include "app/SimulatorFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "app/AppState.h"
#include "app/Settings.h"
#include "fakes/FakePlatform.h"
#include "fakes/FakeShell.h"
#include "fakes/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;

class SimulatorFolderTest : public testing::Test {
protected:
    void SetUp() override {
        ResetProgram();
        fs::create_directories(root / "with");
        fs::create_directories(root / "without");
        std::ofstream(root / "with" / "FS9.exe") << "x";
    }
    void TearDown() override { ResetProgram(); }
    std::string In(const std::string& name) const { return (root / name).string(); }
    // The folder, "" when there is none.
    static std::string Found() {
        const int found = app::FindSimulatorFolder();
        EXPECT_EQ(found, app::state.simulatorFolder.empty() ? 0 : 1);
        return app::state.simulatorFolder;
    }
    // The user points to a folder and answers the question that follows.
    void Choose(const std::string& folder, platform::Answer answer) {
        fakeShell.browsedFolder = folder;
        fake.answers = { answer };
    }
    const TemporaryFolder temporary;
    const fs::path& root = temporary.path;
};

TEST_F(SimulatorFolderTest, TheFirstRegisteredFolderWithTheProgramIsTaken) {
    fakeShell.registeredFolders = { In("without"), In("missing"), In("with") };
    EXPECT_EQ(Found(), In("with"));
}

TEST_F(SimulatorFolderTest, ALastSeparatorIsRemoved) {
    fakeShell.registeredFolders = { In("with") + "\\" };
    EXPECT_EQ(Found(), In("with"));
}

TEST_F(SimulatorFolderTest, WithoutTheProgramThereIsNoSimulator) {
    EXPECT_EQ(Found(), "");
    fakeShell.registeredFolders = { "", "\\", In("without") };
    EXPECT_EQ(Found(), "");
}

TEST_F(SimulatorFolderTest, TheSettingWinsWithoutBeingLookedAt) {
    fakeShell.registeredFolders = { In("with") };
    app::settings.overrideFsFolder = "any text";
    EXPECT_EQ(Found(), "any text");
    EXPECT_EQ(fakeShell.folderQuestions, 0);
    app::settings.overrideFsFolder = "D:\\FS9\\";
    EXPECT_EQ(Found(), "D:\\FS9") << "folders end without a separator";
}

TEST_F(SimulatorFolderTest, NobodyIsAskedWhenItIsRegistered) {
    fakeShell.registeredFolders = { In("with") };
    Found();
    EXPECT_EQ(fakeShell.folderQuestions, 0);
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(SimulatorFolderTest, CancellingTheBrowserAsksNothingMore) {
    EXPECT_EQ(Found(), "");
    EXPECT_EQ(fakeShell.folderQuestions, 1);
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(SimulatorFolderTest, AnEmptyEntryIsAsGoodAsNone) {
    fakeShell.registeredFolders = { "", "\\" };
    Choose("D:\\FS9", platform::Answer::No);
    EXPECT_EQ(Found(), "D:\\FS9");
    ASSERT_EQ(fake.messages.size(), 1u);
    EXPECT_EQ(fake.messages[0].text.find("The Flight Simulator pointer was not found in the Windows Registry."), 0u);
}

TEST_F(SimulatorFolderTest, WithoutAnEntryTheUserIsAskedWhetherToInsertOne) {
    Choose("D:\\Games\\FS9\\", platform::Answer::Yes);
    EXPECT_EQ(Found(), "D:\\Games\\FS9");
    ASSERT_EQ(fake.messages.size(), 1u);
    EXPECT_EQ(fake.messages[0].text,
              "The Flight Simulator pointer was not found in the Windows Registry.\n\n"
              "This can happen if you reinstalled Windows without reinstalling FS.\n"
              "Some add-on tools use this pointer to locate FS.\n\n"
              "Do you want to insert a Registry entry for Flight Simulator that\n"
              "points to the folder you just selected?\n\nD:\\Games\\FS9");
    EXPECT_EQ(fake.messages[0].buttons, platform::Buttons::YesNo);
    EXPECT_EQ(fake.messages[0].icon, platform::Icon::Exclamation);
    EXPECT_EQ(fakeShell.registeredFolders, std::vector<std::string>{ "D:\\Games\\FS9" });
}

TEST_F(SimulatorFolderTest, AWrongEntryIsShownWhenItsRepairIsOffered) {
    fakeShell.registeredFolders = { In("without") + "\\" };
    Choose("D:\\FS9", platform::Answer::Yes);
    EXPECT_EQ(Found(), "D:\\FS9");
    ASSERT_EQ(fake.messages.size(), 1u);
    EXPECT_EQ(fake.messages[0].text,
              "The Flight Simulator pointer in the Windows Registry points to the\n"
              "following folder and FS was not found there:\n\n" +
                  In("without") +
                  "\n\nThis can happen if you moved FS or the Registry was altered.\n"
                  "Some add-on tools use this pointer to locate FS.\n\n"
                  "Do you want to repair the Registry entry for Flight Simulator\n"
                  "so it points to the folder you just selected? :\n\nD:\\FS9");
    EXPECT_EQ(fakeShell.registeredFolders, std::vector<std::string>{ "D:\\FS9" });
}

TEST_F(SimulatorFolderTest, TheChosenFolderIsUsedWithoutAnEntryToo) {
    Choose("D:\\FS9", platform::Answer::No);
    EXPECT_EQ(Found(), "D:\\FS9");
    EXPECT_TRUE(fakeShell.registeredFolders.empty());
}

TEST_F(SimulatorFolderTest, AnEntryThatMayNotBeWrittenIsSaidAndTheFolderUsed) {
    fakeShell.registryRefuses = true;
    Choose("D:\\FS9", platform::Answer::Yes);
    EXPECT_EQ(Found(), "D:\\FS9");
    ASSERT_EQ(fake.messages.size(), 2u);
    EXPECT_EQ(fake.messages[1].buttons, platform::Buttons::Ok);
    EXPECT_EQ(fake.messages[1].text,
              "Windows did not let Tarvo write the Registry entry for Flight Simulator.\n\n"
              "The folder is used until Tarvo ends. To have it found the next time,\n"
              "write this line below [General] in Tarvo2.ini:\n\n"
              "OverrideFSFolder=D:\\FS9");
}

}  // namespace
