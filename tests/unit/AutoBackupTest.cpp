// AutoBackupTest.cpp - the backup of the open airport, and what a crash leaves.
#include "app/AutoBackup.h"

#include <gtest/gtest.h>

#include <fstream>
#include <utility>

#include "app/Airport.h"
#include "app/AppState.h"
#include "app/SaveAirport.h"
#include "bgl/AirportWriter.h"
#include "bgl/SceneryStructure.h"
#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "fakes/FakeShell.h"
#include "fakes/TestLibrary.h"
#include "map/MapView.h"
#include "model/EditHistory.h"
#include "platform/Files.h"

namespace {

namespace fs = std::filesystem;

class AutoBackup : public testing::Test {
protected:
    void SetUp() override {
        ResetProgram();
        map::ResizeView(800, 600);
        app::state.programFolder = disk.program;
    }
    void TearDown() override { ResetProgram(); }

    fs::path File(const std::string& name) const { return disk.root / "program" / name; }
    bool Exists(const std::string& name) const { return fs::exists(File(name)); }
    void Put(const std::string& name, const std::vector<uint8_t>& bytes) const {
        disk.PutCache(name, { reinterpret_cast<const char*>(bytes.data()), bytes.size() });
    }
    void PutAirport(const std::string& name, const char* ident) const {
        Put(name, MakeSceneryFile({ { ident, "", "", "", "" } }));
    }
    bool Find() { return app::FindAutoBackup(app::AutoBackupPath(disk.program), &place, &time); }

    // An airport that was changed, in an instance that has its backup.
    void OpenModified() {
        ASSERT_TRUE(app::ClaimAutoBackup());
        model::state.airport = build::Airport("KTST");
        model::state.loaded = true;
        model::SceneryObject* node = model::CreateObject(model::kTaxiNode, sizeof(model::TaxiNodeRecord));
        model::BeginAction();
        model::AddObject(node);
        ASSERT_TRUE(model::state.modified);
    }
    // The process is gone: what it held is free, and the memory is that of a new start.
    void Crash() {
        ResetProgram();
        map::ResizeView(800, 600);
        app::state.programFolder = disk.program;
    }

    TestLibrary disk;
    bgl::AirportPlace place;
    uint64_t time = 0;
};

TEST_F(AutoBackup, ItsAirportAndItsTimeAreFound) {
    PutAirport("AutoBackupTemp.bgl", "KSEA");
    ASSERT_TRUE(Find());
    EXPECT_EQ(place.path, app::AutoBackupPath(disk.program));
    EXPECT_GT(place.offset, 0u);
    EXPECT_EQ(place.size, 52u);
    EXPECT_GT(time, 0x01D0000000000000u);
}

TEST_F(AutoBackup, NoneOrADamagedOneIsIgnored) {
    EXPECT_FALSE(Find());
    std::vector<uint8_t> bytes = MakeSceneryFile({ { "KSEA", "", "", "", "" } });
    Put("AutoBackupTemp.bgl", {});
    EXPECT_FALSE(Find());
    bytes.resize(60);
    Put("AutoBackupTemp.bgl", bytes);
    EXPECT_FALSE(Find());
    Put("AutoBackupTemp.bgl", MakeSceneryFile({}));
    EXPECT_FALSE(Find());
    ASSERT_TRUE(app::ClaimAutoBackup());
    EXPECT_FALSE(app::RecoverAirport());
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(AutoBackup, AFolderOfThatNameIsIgnored) {
    fs::create_directories(File("AutoBackupTemp.bgl"));
    EXPECT_FALSE(Find());
}

TEST_F(AutoBackup, AModifiedAirportIsWrittenAndStaysModified) {
    OpenModified();
    app::WriteAutoBackup();
    EXPECT_TRUE(Exists("AutoBackupTemp.bgl"));
    EXPECT_TRUE(model::state.modified);
    EXPECT_EQ(fakeShell.waitCursors, 1);
    EXPECT_FALSE(fakeShell.waiting);
    EXPECT_EQ(fakeShell.notice, "");
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(AutoBackup, WithoutAnAirportOrAChangeNothingIsWritten) {
    OpenModified();
    model::state.modified = false;
    app::WriteAutoBackup();
    model::state.modified = true;
    model::state.loaded = false;
    app::WriteAutoBackup();
    EXPECT_FALSE(Exists("AutoBackupTemp.bgl"));
    EXPECT_EQ(fakeShell.waitCursors, 0);
}

TEST_F(AutoBackup, WhatADragOrADialogShowsIsNotWritten) {
    OpenModified();
    model::state.busy = true;
    app::WriteAutoBackup();
    EXPECT_FALSE(Exists("AutoBackupTemp.bgl"));
    model::state.busy = false;
    model::SceneryObject* provisional = model::CreateObject(model::kTaxiNode, sizeof(model::TaxiNodeRecord));
    model::AppendObject(provisional);
    model::state.provisional = provisional;
    app::WriteAutoBackup();
    EXPECT_FALSE(Exists("AutoBackupTemp.bgl"));
    model::state.provisional = nullptr;
    app::WriteAutoBackup();
    EXPECT_TRUE(Exists("AutoBackupTemp.bgl"));
}

TEST_F(AutoBackup, WhatHadToWaitIsWrittenOnceTheAirportIsAtRest) {
    OpenModified();
    app::WriteDueAutoBackup();
    EXPECT_FALSE(Exists("AutoBackupTemp.bgl")) << "no backup is due yet";
    model::state.busy = true;
    app::WriteAutoBackup();
    app::WriteDueAutoBackup();
    EXPECT_FALSE(Exists("AutoBackupTemp.bgl"));
    model::state.busy = false;
    app::WriteDueAutoBackup();
    EXPECT_TRUE(Exists("AutoBackupTemp.bgl"));
    app::WriteDueAutoBackup();
    EXPECT_EQ(fakeShell.waitCursors, 1) << "written again though nothing is due";
}

TEST_F(AutoBackup, NothingToWriteIsAFailureToo) {
    OpenModified();
    model::SceneryObject* airport = std::exchange(model::state.airport, nullptr);
    app::WriteAutoBackup();
    model::state.airport = airport;
    EXPECT_EQ(fakeShell.notice, "Autobackup failed: there is no airport");
    EXPECT_FALSE(Exists("AutoBackupTemp.bgl"));
}

TEST_F(AutoBackup, AWriteThatFailsLeavesTheBackupBefore) {
    OpenModified();
    app::WriteAutoBackup();
    const std::string before = disk.ReadCache("AutoBackupTemp.bgl");
    fs::rename(disk.root / "program", disk.root / "away");
    model::AppendObject(model::CreateObject(model::kTaxiNode, sizeof(model::TaxiNodeRecord)));
    app::WriteAutoBackup();
    EXPECT_EQ(fakeShell.notice.find("Autobackup failed: cannot write "), 0u) << fakeShell.notice;
    EXPECT_TRUE(model::state.modified);
    fs::rename(disk.root / "away", disk.root / "program");
    EXPECT_EQ(disk.ReadCache("AutoBackupTemp.bgl"), before);
    app::WriteAutoBackup();
    EXPECT_NE(disk.ReadCache("AutoBackupTemp.bgl"), before);
    EXPECT_EQ(fakeShell.notice, "");
}

TEST_F(AutoBackup, AFileOfSeveralAirportsIsNoneOfOursAndStays) {
    Put("AutoBackupTemp.bgl", MakeSceneryFile({ { "KSEA", "", "", "", "" }, { "EDDH", "", "", "", "" } }));
    const std::string before = disk.ReadCache("AutoBackupTemp.bgl");
    OpenModified();
    EXPECT_EQ(app::state.autoBackup, app::AutoBackupPath(disk.program, 2));
    EXPECT_FALSE(Find());
    app::WriteAutoBackup();
    app::RemoveAutoBackup();
    EXPECT_EQ(disk.ReadCache("AutoBackupTemp.bgl"), before);
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(AutoBackup, ABrokenAirportIsIgnoredWithoutAWord) {
    std::vector<uint8_t> bytes = MakeSceneryFile({ { "KSEA", "", "", "", "" } });
    Put("AutoBackupTemp.bgl", bytes);
    ASSERT_TRUE(Find());
    bytes[static_cast<size_t>(place.offset) + 2] = 40;  // the length in the record's head, 52 in truth
    Put("AutoBackupTemp.bgl", bytes);
    ASSERT_TRUE(app::ClaimAutoBackup());
    EXPECT_FALSE(app::RecoverAirport());
    EXPECT_FALSE(model::state.loaded);
    EXPECT_TRUE(fake.messages.empty());
    EXPECT_EQ(app::state.autoBackup, app::AutoBackupPath(disk.program)) << "as good as none";
}

TEST_F(AutoBackup, ItsNameIsKnownInAnyFolder) {
    for (const char* path :
         { "AutoBackupTemp.bgl", "C:\\autobackuptemp.BGL", "D:\\x\\AutoBackupTemp2.bgl", "/y/AutoBackupTemp9.bgl" })
        EXPECT_TRUE(app::IsAutoBackupName(path)) << path;
    for (const char* path : { "AutoBackupTemp1.bgl", "AutoBackupTemp10.bgl", "AutoBackupTemp.bgl\\x.bgl",
                              "TV2_AutoBackupTemp.bgl", "AutoBackupTemp", "" })
        EXPECT_FALSE(app::IsAutoBackupName(path)) << path;
}

TEST_F(AutoBackup, NoAirportIsSavedUnderItsName) {
    OpenModified();
    fakeShell.savePath = Utf8Path(disk.root / "AutoBackupTemp3.bgl");
    EXPECT_FALSE(app::SaveAirport());
    EXPECT_EQ(fake.messages.size(), 1u);
    EXPECT_FALSE(fs::exists(disk.root / "AutoBackupTemp3.bgl"));
    EXPECT_EQ(app::state.savePath, "");
}

TEST_F(AutoBackup, WithoutAFreeOneTheStatusBarTellsSo) {
    std::vector<platform::FileHandle> others;
    for (int instance = 1; instance <= app::kMostBackups; ++instance) {
        std::string lock = app::AutoBackupPath(disk.program, instance);
        others.push_back(platform::HoldFile(lock.replace(lock.size() - 4, 4, ".lock")));
        ASSERT_TRUE(others.back());
    }
    EXPECT_FALSE(app::ClaimAutoBackup());
    EXPECT_EQ(fakeShell.notice, "No autobackup: all 9 backups in the program folder are in use");
}

TEST_F(AutoBackup, AFailureShowsInTheStatusBarOnlyAndGoesWhenItIsOver) {
    OpenModified();
    fs::create_directories(File("AutoBackupTemp.bgl"));
    app::WriteAutoBackup();
    EXPECT_EQ(fakeShell.notice, "Autobackup failed: cannot write " + app::AutoBackupPath(disk.program));
    EXPECT_TRUE(fake.messages.empty());
    fs::remove(File("AutoBackupTemp.bgl"));
    app::WriteAutoBackup();
    EXPECT_EQ(fakeShell.notice, "");
}

TEST_F(AutoBackup, WhatDoesNotFitIntoAFileIsToldOnOneLine) {
    OpenModified();
    for (int i = 0; i < 300; ++i)
        model::AppendObject(model::CreateObject(model::kHelipad, sizeof(model::HelipadRecord)));
    app::WriteAutoBackup();
    EXPECT_EQ(fakeShell.notice.find("Autobackup failed: The airport has 300 helipads. A scenery file"), 0u)
        << fakeShell.notice;
    EXPECT_TRUE(fake.messages.empty());
    EXPECT_FALSE(Exists("AutoBackupTemp.bgl"));
}

TEST_F(AutoBackup, AfterACrashTheAirportIsOpenModifiedAndTheStatusBarTellsFromWhen) {
    OpenModified();
    app::WriteAutoBackup();
    Crash();
    ASSERT_TRUE(app::ClaimAutoBackup());
    ASSERT_TRUE(app::RecoverAirport());
    EXPECT_EQ(model::state.icao, "KTST");
    EXPECT_EQ(model::CountKind(model::kTaxiNode), 1u);
    EXPECT_TRUE(model::state.modified);
    EXPECT_EQ(fakeShell.notice, "Recovered KTST from the autobackup of (time)");
    EXPECT_TRUE(Exists("AutoBackupTemp.bgl")) << "a second crash would lose the airport";
}

TEST_F(AutoBackup, ARecoveredAirportAsksForAFileAndItsBackupGoesOnceItIsSaved) {
    PutAirport("AutoBackupTemp.bgl", "KSEA");
    ASSERT_TRUE(app::ClaimAutoBackup() && app::RecoverAirport());
    EXPECT_FALSE(app::SaveAirport());  // the user cancels the dialog
    EXPECT_EQ(fakeShell.saveQuestions.size(), 1u);
    EXPECT_TRUE(Exists("AutoBackupTemp.bgl"));
    fakeShell.savePath = Utf8Path(File("TV2_KSEA.bgl"));
    EXPECT_TRUE(app::SaveAirport());
    EXPECT_FALSE(Exists("AutoBackupTemp.bgl"));
    EXPECT_EQ(fakeShell.notice, "Saved TV2_KSEA.bgl");
}

TEST_F(AutoBackup, TheBackupItselfIsNoPlaceToSaveTo) {
    PutAirport("AutoBackupTemp.bgl", "KSEA");
    ASSERT_TRUE(app::ClaimAutoBackup() && app::RecoverAirport());
    fakeShell.savePath = app::AutoBackupPath(disk.program);
    EXPECT_FALSE(app::SaveAirport());
    EXPECT_EQ(fake.messages.size(), 1u);
    EXPECT_TRUE(model::state.modified);
    EXPECT_TRUE(Exists("AutoBackupTemp.bgl"));
}

TEST_F(AutoBackup, GivingTheRecoveredAirportUpRemovesItsBackup) {
    PutAirport("AutoBackupTemp.bgl", "KSEA");
    ASSERT_TRUE(app::ClaimAutoBackup() && app::RecoverAirport());
    app::CloseAirport();
    EXPECT_FALSE(Exists("AutoBackupTemp.bgl"));
    EXPECT_EQ(fakeShell.notice, "");
    PutAirport("AutoBackupTemp.bgl", "KSEA");
    ASSERT_TRUE(app::RecoverAirport());
    PutAirport("other.bgl", "EDDH");
    ASSERT_TRUE(app::OpenAirportFile(Utf8Path(File("other.bgl")), ""));
    EXPECT_FALSE(Exists("AutoBackupTemp.bgl"));
}

TEST_F(AutoBackup, OpenedByHandItIsARecoveredAirportToo) {
    PutAirport("AutoBackupTemp.bgl", "KSEA");
    ASSERT_TRUE(app::ClaimAutoBackup() && app::RecoverAirport());
    ASSERT_TRUE(app::OpenAirportFile(app::AutoBackupPath(disk.program), ""));
    EXPECT_TRUE(Exists("AutoBackupTemp.bgl"));
    EXPECT_TRUE(model::state.modified);
}

TEST_F(AutoBackup, AFileThatCannotBeReadLeavesTheRecoveredAirportAndItsBackup) {
    PutAirport("AutoBackupTemp.bgl", "KSEA");
    ASSERT_TRUE(app::ClaimAutoBackup() && app::RecoverAirport());
    EXPECT_FALSE(app::OpenAirportFile(Utf8Path(File("missing.bgl")), ""));
    EXPECT_EQ(model::state.icao, "KSEA");
    EXPECT_TRUE(Exists("AutoBackupTemp.bgl"));
}

TEST_F(AutoBackup, ClosingAnotherAirportLeavesTheBackupInTheProgramFolder) {
    OpenModified();
    app::WriteAutoBackup();
    app::CloseAirport();
    EXPECT_TRUE(Exists("AutoBackupTemp.bgl"));
    app::RemoveAutoBackup();
    EXPECT_FALSE(Exists("AutoBackupTemp.bgl"));
}

TEST_F(AutoBackup, ASecondInstanceHasItsOwnAndDoesNotTakeThatOfTheFirst) {
    OpenModified();
    app::WriteAutoBackup();
    app::AppState first = std::move(app::state);
    app::state = {};
    app::state.programFolder = disk.program;
    ASSERT_TRUE(app::ClaimAutoBackup());
    EXPECT_EQ(app::state.autoBackup, app::AutoBackupPath(disk.program, 2));
    EXPECT_FALSE(app::RecoverAirport());
    app::WriteAutoBackup();  // the model of the tests is still the modified airport
    EXPECT_TRUE(Exists("AutoBackupTemp2.bgl"));
    app::RemoveAutoBackup();
    EXPECT_FALSE(Exists("AutoBackupTemp2.bgl"));
    EXPECT_TRUE(Exists("AutoBackupTemp.bgl"));
    app::state = std::move(first);
}

TEST_F(AutoBackup, WhatASecondInstanceLeftIsRecoveredByTheNextStart) {
    PutAirport("AutoBackupTemp2.bgl", "EDDH");
    ASSERT_TRUE(app::ClaimAutoBackup() && app::RecoverAirport());
    EXPECT_EQ(model::state.icao, "EDDH");
    app::RemoveAutoBackup();
    EXPECT_FALSE(Exists("AutoBackupTemp2.bgl"));
}

TEST_F(AutoBackup, OfSeveralBackupsEachStartTakesOne) {
    PutAirport("AutoBackupTemp.bgl", "KSEA");
    PutAirport("AutoBackupTemp3.bgl", "EDDH");
    ASSERT_TRUE(app::ClaimAutoBackup() && app::RecoverAirport());
    EXPECT_EQ(model::state.icao, "KSEA");
    EXPECT_TRUE(Exists("AutoBackupTemp3.bgl"));
}

TEST_F(AutoBackup, AProgramFolderThatCannotBeWrittenToIsToldInTheStatusBar) {
    app::state.programFolder = Utf8Path(disk.root / "missing");
    EXPECT_FALSE(app::ClaimAutoBackup());
    EXPECT_EQ(fakeShell.notice, "No autobackup: the program folder cannot be written to");
    model::state.airport = build::Airport("KTST");
    model::state.loaded = model::state.modified = true;
    app::WriteAutoBackup();
    EXPECT_EQ(fakeShell.notice, "Autobackup failed: the program folder cannot be written to");
    app::RemoveAutoBackup();
}

}  // namespace
