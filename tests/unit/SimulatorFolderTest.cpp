#include "app/SimulatorFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>

#include "app/Settings.h"
#include "fakes/FakeShell.h"

namespace {

namespace fs = std::filesystem;

class SimulatorFolderTest : public testing::Test {
protected:
    void SetUp() override {
        ResetProgram();
        root = fs::temp_directory_path() / ("tarvo-sim-" + std::to_string(std::random_device{}()));
        fs::create_directories(root / "with");
        fs::create_directories(root / "without");
        std::ofstream(root / "with" / "FS9.exe") << "x";
    }
    void TearDown() override {
        ResetProgram();
        std::error_code ignored;
        fs::remove_all(root, ignored);
    }
    std::string In(const std::string& name) const { return (root / name).string(); }
    fs::path root;
};

TEST_F(SimulatorFolderTest, TheFirstRegisteredFolderWithTheProgramIsTaken) {
    fakeShell.registeredFolders = { In("without"), In("missing"), In("with") };
    EXPECT_EQ(app::FindSimulatorFolder(), In("with"));
}

TEST_F(SimulatorFolderTest, ALastSeparatorIsRemoved) {
    fakeShell.registeredFolders = { In("with") + "\\" };
    EXPECT_EQ(app::FindSimulatorFolder(), In("with"));
}

TEST_F(SimulatorFolderTest, WithoutTheProgramThereIsNoSimulator) {
    EXPECT_EQ(app::FindSimulatorFolder(), "");
    fakeShell.registeredFolders = { "", "\\", In("without") };
    EXPECT_EQ(app::FindSimulatorFolder(), "");
}

TEST_F(SimulatorFolderTest, TheSettingWinsWithoutBeingLookedAt) {
    fakeShell.registeredFolders = { In("with") };
    app::settings.overrideFsFolder = "any text";
    EXPECT_EQ(app::FindSimulatorFolder(), "any text");
}

}  // namespace
