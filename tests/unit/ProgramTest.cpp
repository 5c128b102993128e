#include "app/Program.h"

#include <gtest/gtest.h>

#include <fstream>

#include "app/AppState.h"
#include "app/AutoBackup.h"
#include "app/ParkingSpecs.h"
#include "app/Settings.h"
#include "dialogs/Subject.h"
#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "fakes/FakeProfile.h"
#include "fakes/FakeShell.h"
#include "fakes/FakeSimLinkHost.h"
#include "fakes/TestLibrary.h"
#include "map/MapView.h"
#include "map/Tools.h"
#include "model/EditHistory.h"
#include "model/ObjectList.h"
#include "model/Positions.h"

namespace {

namespace fs = std::filesystem;
using platform::Answer;

class ProgramTest : public testing::Test {
protected:
    void SetUp() override { Restart(); }
    void TearDown() override {
        ResetProgram();
        fakeProfiles = {};
    }
    void Restart() {
        ResetProgram();
        fakeProfiles = {};
        fakeSimLinkHost = {};
        map::ResizeView(800, 600);
        app::state.programFolder = disk.program;
        fake.fileTime = 0;  // no reminder
    }
    fs::path File(const std::string& name) const { return disk.root / "program" / name; }
    std::string PutAirport(const std::string& name, const char* ident) const {
        const std::vector<uint8_t> bytes = MakeSceneryFile({ { ident, "", "", "", "" } });
        disk.PutCache(name, { reinterpret_cast<const char*>(bytes.data()), bytes.size() });
        return Utf8Path(File(name));
    }
    std::string Text(const std::string& name) const { return disk.ReadCache(name); }

    static void AddNode() {
        model::SceneryObject* node = model::CreateObject(model::kTaxiNode, sizeof(model::TaxiNodeRecord));
        model::SetPosition(node, build::kMiddle);
        model::BeginAction();
        model::AddObject(node);
    }
    // A running program with an airport to which one node was added.
    static void BeginWithChanges() {
        app::LoadProgramFiles();
        app::BeginSession("", "");
        model::state.airport = build::Airport("KTST");
        model::state.loaded = true;
        AddNode();
        ASSERT_TRUE(model::state.modified);
    }

    TestLibrary disk;
};

TEST_F(ProgramTest, SpecsComeBeforeSettingsAndThoseBeforeTheSimulator) {
    std::ofstream(File("ParkingSpecs.txt")) << "Air Test,,,,ABC\n,1,2,3\n";
    std::ofstream(File("Tarvo2.ini")) << "[General]\nOverrideFSFolder=E:\\Sim\nMetric=1\n";
    fake.whileMessageIsUp = [] { EXPECT_FALSE(app::settings.metric) << "the settings come before the specs"; };
    app::LoadProgramFiles();
    EXPECT_EQ(app::parkingSpecs.size(), 1u);
    EXPECT_TRUE(app::settings.metric);
    EXPECT_EQ(app::state.simulatorFolder, "E:\\Sim") << "the settings come too late for the simulator folder";
    EXPECT_EQ(fake.messages.size(), 1u) << "the line without a name";
    app::parkingSpecs.clear();
}

TEST_F(ProgramTest, AFirstStartHasTheDefaultsAndAsksOnlyForTheSimulator) {
    app::LoadProgramFiles();
    EXPECT_EQ(app::settings, app::Settings{});
    EXPECT_EQ(fakeShell.folderQuestions, 1);
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(ProgramTest, TheReminderComesBeforeTheRecoveredAirport) {
    PutAirport("AutoBackupTemp.bgl", "KSEA");
    fake.fileTime = 0x01D0000000000000;
    app::BeginSession("", "");
    ASSERT_EQ(fake.messages.size(), 1u);
    EXPECT_EQ(fake.messages[0].text.find("INFORMATION: "), 0u);
    EXPECT_EQ(model::state.icao, "KSEA");
}

TEST_F(ProgramTest, TheFileOfTheCommandLineIsOpenedAndRemembered) {
    const std::string file = PutAirport("mine.bgl", "EDDH");
    app::BeginSession(file, "eddh");
    EXPECT_EQ(model::state.icao, "EDDH");
    EXPECT_FALSE(model::state.modified);
    EXPECT_EQ(app::settings.previousFiles, std::vector<std::string>{ "EDDH," + file });
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(ProgramTest, ARecoveredAirportIsNotDroppedForTheFileOfTheCommandLine) {
    PutAirport("AutoBackupTemp.bgl", "KSEA");
    const std::string file = PutAirport("mine.bgl", "EDDH");
    fake.answers = { Answer::Cancel };
    // An OK box takes a prepared answer too.
    fake.answers.push_front(Answer::Ok);
    app::BeginSession(file, "");
    ASSERT_EQ(fake.messages.size(), 2u);
    EXPECT_EQ(fake.messages[0].text,
              "Tarvo has recovered the unsaved airport KSEA from its autobackup.\n\n"
              "Before this file is opened, save the recovered airport or give it up:\n\n" +
                  file);
    EXPECT_EQ(fake.messages[1].buttons, platform::Buttons::YesNoCancel);
    EXPECT_EQ(model::state.icao, "KSEA");
    EXPECT_TRUE(model::state.modified);
    EXPECT_TRUE(fs::exists(File("AutoBackupTemp.bgl")));
}

TEST_F(ProgramTest, GivenUpItMakesWayForTheFile) {
    PutAirport("AutoBackupTemp.bgl", "KSEA");
    fake.answers = { Answer::Ok, Answer::No };
    app::BeginSession(PutAirport("mine.bgl", "EDDH"), "");
    EXPECT_EQ(model::state.icao, "EDDH");
    EXPECT_FALSE(fs::exists(File("AutoBackupTemp.bgl")));
}

TEST_F(ProgramTest, TheRecoveredBackupIsNoRecentAirport) {
    PutAirport("AutoBackupTemp.bgl", "KSEA");
    app::BeginSession("", "");
    EXPECT_TRUE(app::settings.previousFiles.empty());
}

TEST_F(ProgramTest, ABroughtFileOpensAfterTheSavePrompt) {
    const std::string file = PutAirport("mine.bgl", "EDDH");
    model::state.airport = build::Airport("KTST");
    model::state.icao = "KTST";
    model::state.loaded = model::state.modified = true;
    fake.answers = { Answer::Cancel, Answer::No };
    EXPECT_FALSE(app::OpenBroughtFile(file, ""));
    EXPECT_EQ(model::state.icao, "KTST");
    EXPECT_TRUE(app::OpenBroughtFile(file, ""));
    EXPECT_EQ(model::state.icao, "EDDH");
}

TEST_F(ProgramTest, NoFileIsTakenUnderADragOrADialog) {
    const std::string file = PutAirport("mine.bgl", "EDDH");
    model::state.busy = true;
    EXPECT_FALSE(app::OpenBroughtFile(file, ""));
    model::state.busy = false;
    model::SceneryObject* provisional = build::Node();
    model::state.provisional = provisional;  // a dialog is open on it
    EXPECT_FALSE(app::OpenBroughtFile(file, ""));
    model::state.provisional = nullptr;
    EXPECT_TRUE(app::OpenBroughtFile(file, ""));
}

TEST_F(ProgramTest, TheEndWritesTheSettingsAndRemovesTheBackup) {
    std::ofstream(File("Tarvo2.ini")) << "[General]\nOverrideFSFolder=E:\\Sim\nMine=1\n";
    app::LoadProgramFiles();
    app::BeginSession("", "");
    PutAirport("AutoBackupTemp.bgl", "KSEA");
    app::settings.metric = true;
    fakeShell.maximized = true;
    app::EndSession(false);
    EXPECT_FALSE(fs::exists(File("AutoBackupTemp.bgl")));
    const std::string text = Text("Tarvo2.ini");
    EXPECT_NE(text.find("Metric=1\n"), std::string::npos);
    EXPECT_NE(text.find("WindowMaximized=1\n"), std::string::npos);
    EXPECT_NE(text.find("OverrideFSFolder=E:\\Sim\nMine=1\n"), std::string::npos);
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(ProgramTest, SettingsThatCannotBeKeptAreSaidOnceAndOnlyIfTheyChanged) {
    app::LoadProgramFiles();
    fakeProfiles.writesLeft = 0;
    fakeShell.maximized = true;
    app::EndSession(false);
    EXPECT_TRUE(fake.messages.empty()) << "nothing is lost";
    app::settings.metric = true;
    app::EndSession(false);
    ASSERT_EQ(fake.messages.size(), 1u);
    EXPECT_NE(fake.messages[0].text.find(disk.program), std::string::npos);
    app::EndSession(true);
    EXPECT_EQ(fake.messages.size(), 1u) << "a box while the system shuts down";
}

TEST_F(ProgramTest, AReminderThatCannotBeNotedIsNoLossOfTheUser) {
    app::LoadProgramFiles();
    fake.fileTime = 0x01D0000000000000;
    app::BeginSession("", "");
    ASSERT_EQ(fake.messages.size(), 1u) << "the reminder";
    fakeProfiles.writesLeft = 0;
    app::EndSession(false);
    EXPECT_EQ(fake.messages.size(), 1u);
}

TEST_F(ProgramTest, TheProgramDoesNotEndUnderADialog) {
    fakeSimLinkHost.mapInFront = false;
    EXPECT_FALSE(app::MayEnd());
    EXPECT_FALSE(app::AgreeToEnd());
    fakeSimLinkHost.mapInFront = true;
    EXPECT_TRUE(app::MayEnd());
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(ProgramTest, TheBackupComesBeforeTheQuestionOfAShutdownAndGoesWithTheAnswer) {
    BeginWithChanges();
    fake.answers = { Answer::Cancel, Answer::No };
    EXPECT_FALSE(app::AgreeToEnd());
    EXPECT_TRUE(fs::exists(File("AutoBackupTemp.bgl"))) << "who does not answer in time loses the airport";
    EXPECT_TRUE(app::AgreeToEnd());
    app::EndAsAgreed();
    EXPECT_FALSE(fs::exists(File("AutoBackupTemp.bgl")));
}

TEST_F(ProgramTest, EditsAfterTheAnswerToAShutdownAreLeftToTheNextStart) {
    BeginWithChanges();
    fake.answers = { Answer::No };
    ASSERT_TRUE(app::AgreeToEnd());
    AddNode();
    app::EndAsAgreed();
    Restart();
    app::BeginSession("", "");
    EXPECT_EQ(model::CountKind(model::kTaxiNode), 2u);
    EXPECT_TRUE(model::state.modified);
}

TEST_F(ProgramTest, AShutdownWithoutAQuestionLosesNoEdits) {
    BeginWithChanges();
    app::EndAsAgreed();
    EXPECT_TRUE(fs::exists(File("AutoBackupTemp.bgl")));
}

TEST_F(ProgramTest, AtTheLastMomentTheBackupHoldsNoDragAndNoDialog) {
    BeginWithChanges();
    model::SceneryObject* node = model::FirstOfKind(model::state.head, model::kTaxiNode);
    const model::LatLon home = model::PositionOf(node);
    dialogs::MoveToClick(node, { home.lat + 1e-4, home.lon });
    model::SceneryObject* provisional = dialogs::MakeProvisional(model::kTaxiNode, sizeof(model::TaxiNodeRecord));
    map::tools.pressed = true;
    model::state.busy = true;
    app::EndSessionAtOnce();
    EXPECT_FALSE(model::state.busy);
    EXPECT_EQ(model::state.provisional, provisional) << "its dialog is still open";
    EXPECT_EQ(model::state.tail, provisional);
    dialogs::CancelDialog();
    Restart();
    app::BeginSession("", "");
    EXPECT_EQ(model::CountKind(model::kTaxiNode), 1u);
    EXPECT_NEAR(model::PositionOf(model::FirstOfKind(model::state.head, model::kTaxiNode)).lat, home.lat, 1e-7);
}

TEST_F(ProgramTest, AnEndBeforeTheSettingsAreReadKeepsTheirFile) {
    constexpr char kKept[] = "[General]\nMetric=1\n";
    std::ofstream(File("Tarvo2.ini"), std::ios::binary) << kKept;
    app::EndSessionAtOnce();
    app::EndAsAgreed();
    EXPECT_EQ(Text("Tarvo2.ini"), kKept);
}

TEST_F(ProgramTest, AnEndBeforeTheWindowIsShownKeepsThatItWasMaximized) {
    std::ofstream(File("Tarvo2.ini")) << "[General]\nWindowMaximized=1\n";
    app::LoadProgramFiles();
    fakeShell.maximized.reset();
    app::EndSessionAtOnce();
    const std::string text = Text("Tarvo2.ini");
    EXPECT_NE(text.find("WindowMaximized=1\n"), std::string::npos) << text;
    EXPECT_NE(text.find("Metric=0\n"), std::string::npos) << "nothing was written";
}

TEST_F(ProgramTest, AnEndWithoutAskingLeavesTheBackupToTheNextStart) {
    app::LoadProgramFiles();
    app::BeginSession("", "");
    model::state.airport = build::Airport("KTST");
    model::state.loaded = model::state.modified = true;
    app::settings.metric = true;
    app::EndSessionAtOnce();
    EXPECT_TRUE(fake.messages.empty());
    EXPECT_NE(Text("Tarvo2.ini").find("Metric=1\n"), std::string::npos);
    Restart();
    app::BeginSession("", "");
    EXPECT_EQ(model::state.icao, "KTST");
    EXPECT_TRUE(model::state.modified);
}

}  // namespace
