// AutoBackupWinTest.cpp - a backup that somebody else keeps open, which only Windows knows.
#include <windows.h>

#include <gtest/gtest.h>

#include "app/AppState.h"
#include "app/AutoBackup.h"
#include "fakes/FakePlatform.h"
#include "fakes/FakeShell.h"
#include "fakes/TestLibrary.h"
#include "model/ObjectList.h"

namespace {

TEST(AutoBackupWin, OneThatCannotBeReadJustNowIsPassedOverAndStays) {
    ResetProgram();
    const TestLibrary disk;
    app::state.programFolder = disk.program;
    const std::vector<uint8_t> bytes = MakeSceneryFile({ { "KSEA", "", "", "", "" } });
    const std::string content(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    disk.PutCache("AutoBackupTemp.bgl", content);
    const std::filesystem::path file = disk.root / "program" / "AutoBackupTemp.bgl";
    const HANDLE held = CreateFileW(file.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    EXPECT_TRUE(app::ClaimAutoBackup());
    EXPECT_EQ(app::state.autoBackup, app::AutoBackupPath(disk.program, 2));
    EXPECT_FALSE(app::RecoverAirport());
    CloseHandle(held);
    app::RemoveAutoBackup();
    EXPECT_EQ(disk.ReadCache("AutoBackupTemp.bgl"), content);
    EXPECT_TRUE(app::ClaimAutoBackup() && app::RecoverAirport());
    EXPECT_EQ(model::state.icao, "KSEA");
    EXPECT_TRUE(fake.messages.empty());
    ResetProgram();
}

}  // namespace
