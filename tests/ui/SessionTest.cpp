// SessionTest.cpp - how the program starts and ends: settings, reminder, automatic backups, dropped files, shutdown.
#include <algorithm>
#include <cstdio>

#include "app/Timers.h"
#include "ProgramParts.h"
#include "Resource.h"
#include "UiAgent.h"
#include "UiFiles.h"
#include "UiHarness.h"

namespace ui {

namespace {

constexpr wchar_t kWork[] = L"C:\\UiTest\\Work";
constexpr wchar_t kBackup[] = L"C:\\UiTest\\Tarvo\\AutoBackupTemp.bgl";
constexpr wchar_t kSpecs[] = L"C:\\UiTest\\Tarvo\\ParkingSpecs.txt";
constexpr wchar_t kSavedSpecs[] = L"C:\\UiTest\\ParkingSpecs.saved";
constexpr wchar_t kDrafts[] = L"Tarvo2.new*";  // of the settings file
constexpr wchar_t kPrompt[] = L"Do you want to save changes to the current facility ?";
constexpr WPARAM kLinkTimer = app::kSimLinkTimer, kBackupTimer = app::kBackupTimer;

void PutBytes(const std::wstring& path, const std::string& bytes) {
    FILE* file = _wfopen(path.c_str(), L"wb");
    ASSERT_NE(file, nullptr);
    fwrite(bytes.data(), 1, bytes.size(), file);
    fclose(file);
}

std::vector<std::wstring> FilesLike(const wchar_t* pattern) {
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW((std::wstring(kProgramFolder) + L"\\" + pattern).c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return names;
    do names.push_back(found.cFileName);
    while (FindNextFileW(search, &found));
    FindClose(search);
    return names;
}

// Of the settings file, as text without the zeros of its encoding.
std::string SettingsText() {
    std::string text = BytesOf(kSettingsFile);
    text.erase(std::remove(text.begin(), text.end(), '\0'), text.end());
    return text;
}

}  // namespace

class SessionTest : public UiTest {
protected:
    void SetUp() override {
        CreateDirectoryW(kWork, nullptr);
        DeleteFileW(kBackup);
        DeleteFileW(Own().c_str());
        DeleteFileW(kSettingsFile);
        // Drafts of programs that were killed: the program itself takes them away only when they are old.
        for (const std::wstring& draft : FilesLike(kDrafts))
            DeleteFileW((std::wstring(kProgramFolder) + L"\\" + draft).c_str());
    }
    void TearDown() override {
        UiTest::TearDown();
        RemoveDirectoryW(kBackup);
        SetFileAttributesW(kSettingsFile, FILE_ATTRIBUTE_NORMAL);
        DeleteFileW(kSettingsFile);
    }
    static std::wstring Own() { return std::wstring(kWork) + L"\\session.bgl"; }

    // An airport in a file of its own folder, changed by one node.
    void StartModified() {
        sample = FindSample("regional");
        ASSERT_TRUE(CopyFileW(sample.path.c_str(), Own().c_str(), FALSE));
        ASSERT_NO_FATAL_FAILURE(Start(L"\"" + Own() + L"\" " + sample.ident));
        ASSERT_TRUE(WaitForTitle(sample.ident));
        CreateNode(mainWindow, IDT_NORMAL_NODE);
        ASSERT_FALSE(IsGreyed(IDM_UNDO)) << "nothing was changed";
    }
    // Two minutes are over.
    void TickBackup() {
        PostMessageW(mainWindow, WM_TIMER, kBackupTimer, 0);
        ASSERT_TRUE(SettlePosted(agent));
    }
    // Whether the timer ran; it does not any more.
    bool RanTimer(WPARAM timer) {
        return SendMessageW(agent.window, kAgentEndTimer, timer, reinterpret_cast<LPARAM>(mainWindow)) != 0;
    }
    void Kill() {
        DetachAgent(&agent);
        EndProgram(&program);
    }
    // The backup of a changed airport, left by a program that was killed.
    void LeaveBackup() {
        ASSERT_NO_FATAL_FAILURE(StartModified());
        TickBackup();
        ASSERT_TRUE(IsThere(kBackup));
        Kill();
        ASSERT_TRUE(IsThere(kBackup));
    }
    void AnswerPrompt(int button) {
        const Box box = MessageBoxUp();
        EXPECT_EQ(box.text, kPrompt);
        PressButton(box.window, button);
        ASSERT_TRUE(WaitUntilGone(box.window));
    }
    // The program ends without saving, and nothing is left to recover.
    void ExpectGivenUp() {
        PostCommand(mainWindow, IDM_EXIT);
        AnswerPrompt(IDNO);
        EXPECT_TRUE(HasEnded());
        EXPECT_FALSE(IsThere(kBackup));
    }
    bool WaitForNotice(const std::wstring& start) {
        return WaitUntil([&] { return StatusText(mainWindow, kNoticePart).starts_with(start); });
    }
    bool NoBoxIsUp() const { return FindVisible(program.id, L"#32770", nullptr) == nullptr; }
    bool HasEnded() {
        DWORD exitCode = 1;
        return WaitForExit(program, &exitCode) && exitCode == 0;
    }

    SampleAirport sample;
};

TEST_F(SessionTest, AFirstStartHasNoSettingsAndShowsTheReminderOverTheWindow) {
    Launch(L"", nullptr);
    const Box box = MessageBoxUp();
    EXPECT_TRUE(box.text.starts_with(L"INFORMATION: This version of Tarvo is ")) << Utf8(box.text);
    EXPECT_NE(box.text.find(L" months old.\nThere is probably an updated version available by now.\n"),
              std::wstring::npos);
    EXPECT_EQ(box.text.find(L"www"), std::wstring::npos);
    EXPECT_EQ(box.buttons, std::vector<int>{ IDOK });
    Attach();
    EXPECT_TRUE(IsWindowVisible(mainWindow));
    EXPECT_EQ(StockIcon(agent, box.icon), 32516);
    Answer(box, IDOK);
    EXPECT_EQ(CloseProgram(), 0u);
    const int months = _wtoi(box.text.c_str() + 38);
    EXPECT_GT(months, 200);
    const std::string text = SettingsText();
    EXPECT_NE(text.find("NextUpdateNotice=" + std::to_string(months + 2)), std::string::npos) << text;
    EXPECT_NE(text.find("NodeKeyCode=190"), std::string::npos);
    EXPECT_EQ(text.find("OverrideFSFolder"), std::string::npos);
    Start(L"", nullptr);
    Settle(mainWindow);
    EXPECT_TRUE(NoBoxIsUp()) << "the reminder comes again";
}

TEST_F(SessionTest, SettingsSurviveARestartByteForByteAndKeysOfOthersStay) {
    Start(
        L"",
        "[General]\r\nNextUpdateNotice=9999\r\nMine=7\r\nOverrideFSFolder=C:\\UiTest\\FS9\r\n[Other]\r\nMetric=5\r\n");
    EXPECT_EQ(CloseProgram(), 0u);
    const std::string first = BytesOf(kSettingsFile);
    EXPECT_NE(first.find("Mine=7"), std::string::npos);
    EXPECT_NE(first.find("OverrideFSFolder=C:\\UiTest\\FS9"), std::string::npos);
    EXPECT_NE(first.find("[Other]\r\nMetric=5"), std::string::npos);
    EXPECT_NE(first.find("PrevOpenedFile10="), std::string::npos);
    EXPECT_NE(first.find("SpecName20="), std::string::npos);
    Start(L"", nullptr);
    EXPECT_EQ(CloseProgram(), 0u);
    EXPECT_EQ(BytesOf(kSettingsFile), first);
    EXPECT_TRUE(FilesLike(kDrafts).empty());
}

TEST_F(SessionTest, WhatTheUserChangedIsThereAtTheNextStart) {
    Start();
    Command(IDM_GRID);
    Command(IDM_LABEL_CODES);
    ShowWindow(mainWindow, SW_SHOWMAXIMIZED);
    ASSERT_TRUE(WaitUntil([&] { return IsZoomed(mainWindow) != 0; }));
    EXPECT_EQ(CloseProgram(), 0u);
    Start(L"", nullptr);
    EXPECT_FALSE(IsChecked(IDM_GRID));
    EXPECT_TRUE(IsChecked(IDM_LABEL_CODES));
    EXPECT_TRUE(IsZoomed(mainWindow));
    ShowWindow(mainWindow, SW_RESTORE);
    EXPECT_EQ(CloseProgram(), 0u);
    EXPECT_NE(SettingsText().find("WindowMaximized=0"), std::string::npos);
}

TEST_F(SessionTest, StartGoesThroughItsStepsInOrder) {
    ASSERT_NO_FATAL_FAILURE(LeaveBackup());
    CopyFileW(kSpecs, kSavedSpecs, FALSE);
    PutBytes(kSpecs, "Air Test,1,2,3,TOOLONG\n");
    Launch(L"", "[General]\r\nNextUpdateNotice=0\r\nWindowMaximized=1\r\n");
    const Box specs = MessageBoxUp();
    CopyFileW(kSavedSpecs, kSpecs, FALSE);
    EXPECT_EQ(specs.text,
              L"Error found in ParkingSpecs.txt file on the following line:\n\nAir Test,1,2,3,TOOLONG\n\n"
              L"The parking code \"TOOLONG\" is more than 4 characters long\n");
    EXPECT_EQ(FindVisible(program.id, kMainClass, nullptr), nullptr) << "the window comes before the parking specs";
    PressButton(specs.window, IDOK);
    ASSERT_TRUE(WaitUntilGone(specs.window));
    const Box reminder = MessageBoxUp();
    EXPECT_TRUE(reminder.text.starts_with(L"INFORMATION: ")) << Utf8(reminder.text);
    Attach();
    EXPECT_TRUE(IsZoomed(mainWindow));
    EXPECT_EQ(Title(), L"Tarvo        ") << "the backup comes before the reminder";
    Answer(reminder, IDOK);
    EXPECT_TRUE(WaitForTitle(L"( file AutoBackupTemp.bgl )")) << Utf8(Title());
}

TEST_F(SessionTest, AChangedAirportIsBackedUpRecoveredAfterAKillAndSaved) {
    ASSERT_NO_FATAL_FAILURE(LeaveBackup());
    Start();
    ASSERT_TRUE(WaitForTitle(sample.ident)) << Utf8(Title());
    EXPECT_TRUE(WaitForNotice(L"Recovered " + sample.ident + L" from the autobackup of 20"))
        << Utf8(StatusText(mainWindow, kNoticePart));
    EXPECT_TRUE(IsThere(kBackup)) << "a second crash would lose the airport";
    const std::string backup = BytesOf(kBackup);
    const std::wstring target = std::wstring(kWork) + L"\\TV2_recovered.bgl";
    DeleteFileW(target.c_str());
    PostCommand(mainWindow, IDM_SAVE);
    const HWND dialog = Dialog(L"Save Airport File");
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(TextOf(ChildWithId(dialog, 1148)), L"TV2_" + sample.ident + L".bgl");
    ASSERT_TRUE(AnswerFileDialog(dialog, target));
    ASSERT_TRUE(WaitForTitle(L"( file TV2_recovered.bgl )")) << Utf8(Title());
    EXPECT_TRUE(WaitUntil([&] { return !IsThere(kBackup); }));
    EXPECT_TRUE(WaitForNotice(L"Saved TV2_"));
    EXPECT_EQ(BytesOf(target).size(), backup.size());
    EXPECT_EQ(CloseProgram(), 0u) << "the saved airport still counts as changed";
}

TEST_F(SessionTest, ARecoveredAirportStaysUntilItIsGivenUpAtThePrompt) {
    ASSERT_NO_FATAL_FAILURE(LeaveBackup());
    Start();
    ASSERT_TRUE(WaitForTitle(sample.ident)) << Utf8(Title());
    PostCommand(mainWindow, IDM_EXIT);
    AnswerPrompt(IDCANCEL);
    SettlePosted(agent);
    EXPECT_TRUE(WaitForTitle(sample.ident));
    EXPECT_TRUE(IsThere(kBackup));
    ExpectGivenUp();
}

TEST_F(SessionTest, TheFileOfTheCommandLineWaitsForTheRecoveredAirport) {
    ASSERT_NO_FATAL_FAILURE(LeaveBackup());
    const SampleAirport other = FindSample("grass");
    Start(L"\"" + other.path + L"\" " + other.ident);
    const Box box = MessageBoxUp();
    EXPECT_NE(box.text.find(sample.ident), std::wstring::npos) << Utf8(box.text);
    EXPECT_NE(box.text.find(other.path), std::wstring::npos);
    PressButton(box.window, IDOK);
    ASSERT_TRUE(WaitUntilGone(box.window));
    AnswerPrompt(IDNO);
    EXPECT_TRUE(WaitForTitle(other.ident)) << Utf8(Title());
    EXPECT_FALSE(IsThere(kBackup));
}

TEST_F(SessionTest, ASecondInstanceLeavesTheBackupOfTheFirstAlone) {
    ASSERT_NO_FATAL_FAILURE(StartModified());
    TickBackup();
    const std::string backup = BytesOf(kBackup);
    ASSERT_FALSE(backup.empty());
    Program second;
    const std::wstring folder = kProgramFolder;
    ASSERT_TRUE(StartProgram(L"\"" + folder + L"\\Tarvo.exe\"", folder, &second));
    const HWND window = WaitForWindow(second.id, kMainClass, nullptr);
    EXPECT_NE(window, nullptr);
    Settle(window);
    EXPECT_EQ(TextOf(window), L"Tarvo        ") << "it took the other one's airport";
    PostMessageW(window, WM_CLOSE, 0, 0);
    DWORD exitCode = 1;
    EXPECT_TRUE(WaitForExit(second, &exitCode));
    EndProgram(&second);
    EXPECT_EQ(BytesOf(kBackup), backup);
}

TEST_F(SessionTest, TheTimersOfTheLinkAndOfTheBackupRunFromTheStart) {
    Start();
    EXPECT_TRUE(RanTimer(kLinkTimer));
    EXPECT_TRUE(RanTimer(kBackupTimer));
    EXPECT_FALSE(RanTimer(kBackupTimer)) << "the question itself is wrong";
    EXPECT_FALSE(RanTimer(2)) << "nothing is dragged";
}

TEST_F(SessionTest, AFailingBackupShowsInTheStatusBarOnly) {
    ASSERT_NO_FATAL_FAILURE(StartModified());
    ASSERT_TRUE(CreateDirectoryW(kBackup, nullptr));
    TickBackup();
    EXPECT_TRUE(WaitForNotice(L"Autobackup failed: ")) << Utf8(StatusText(mainWindow, kNoticePart));
    EXPECT_TRUE(NoBoxIsUp());
    RemoveDirectoryW(kBackup);
    TickBackup();
    EXPECT_TRUE(IsThere(kBackup));
    EXPECT_TRUE(WaitForNotice(L"Click to place a node")) << "the hint of the tool in use is back";
}

TEST_F(SessionTest, AnUnchangedAirportIsNotBackedUpAndTheEndRemovesTheBackup) {
    StartWithSample("grass");
    TickBackup();
    EXPECT_FALSE(IsThere(kBackup));
    CreateNode(mainWindow, IDT_NORMAL_NODE);
    TickBackup();
    EXPECT_TRUE(IsThere(kBackup));
    ExpectGivenUp();
}

TEST_F(SessionTest, ClosingAnAirportRemovesTheFileInTheRootAndNotTheBackup) {
    StartWithSample("grass");
    CreateNode(mainWindow, IDT_NORMAL_NODE);
    TickBackup();
    PutBytes(L"C:\\AutoBackupTemp.bgl", "x");
    PostCommand(mainWindow, IDM_CLOSE);
    AnswerPrompt(IDNO);
    ASSERT_TRUE(WaitUntil([&] { return Title() == L"Tarvo        "; }));
    EXPECT_FALSE(IsThere(L"C:\\AutoBackupTemp.bgl"));
    EXPECT_TRUE(IsThere(kBackup));
}

TEST_F(SessionTest, CancelKeepsTheAirportWhenItIsToBeClosed) {
    ASSERT_NO_FATAL_FAILURE(StartModified());
    PostCommand(mainWindow, IDM_CLOSE);
    AnswerPrompt(IDCANCEL);
    SettlePosted(agent);
    EXPECT_NE(Title().find(sample.ident), std::wstring::npos);
    EXPECT_FALSE(IsGreyed(IDM_UNDO));
}

TEST_F(SessionTest, ADroppedFileOpensAfterThePrompt) {
    Start();
    const SampleAirport first = FindSample("grass"), second = FindSample("hub");
    const std::wstring own = std::wstring(kWork) + L"\\dropped \u6771.bgl";
    ASSERT_TRUE(CopyFileW(first.path.c_str(), own.c_str(), FALSE));
    ASSERT_TRUE(DropFile(agent, own));
    ASSERT_TRUE(WaitForTitle(L"( file dropped \u6771.bgl )")) << Utf8(Title());
    CreateNode(mainWindow, IDT_NORMAL_NODE);
    ASSERT_TRUE(DropFile(agent, second.path));
    AnswerPrompt(IDCANCEL);
    SettlePosted(agent);
    EXPECT_TRUE(WaitForTitle(L"( file dropped"));
    ASSERT_TRUE(DropFile(agent, second.path));
    AnswerPrompt(IDNO);
    EXPECT_TRUE(WaitForTitle(L"( stock airport )")) << Utf8(Title());
    ASSERT_TRUE(DropFile(agent, std::wstring(kProgramFolder) + L"\\ReadMe.htm"));
    const Box box = MessageBoxUp();
    EXPECT_NE(box.text.find(L"is not in recognised AFD format"), std::wstring::npos);
    Answer(box, IDOK);
    EXPECT_TRUE(WaitForTitle(L"( stock airport )"));
}

TEST_F(SessionTest, ADroppedFileMayHaveALongPath) {
    std::wstring folder = std::wstring(kWork);
    for (int i = 0; i < 4; ++i) {
        folder += L"\\" + std::wstring(80, L'a' + static_cast<wchar_t>(i));
        CreateDirectoryW((L"\\\\?\\" + folder).c_str(), nullptr);
    }
    const std::wstring path = folder + L"\\far.bgl";
    ASSERT_GT(path.size(), size_t{ MAX_PATH });
    ASSERT_TRUE(CopyFileW(FindSample("grass").path.c_str(), (L"\\\\?\\" + path).c_str(), FALSE));
    Start();
    ASSERT_TRUE(DropFile(agent, path));
    EXPECT_TRUE(WaitForTitle(L"( file far.bgl )")) << Utf8(Title());
}

TEST_F(SessionTest, ShuttingDownAsksAndThenSavesTheSettings) {
    ASSERT_NO_FATAL_FAILURE(StartModified());
    Command(IDM_GRID);
    SendNotifyMessageW(mainWindow, WM_QUERYENDSESSION, 0, 0);
    AnswerPrompt(IDCANCEL);
    SettlePosted(agent);
    EXPECT_NE(Title().find(sample.ident), std::wstring::npos);
    SendNotifyMessageW(mainWindow, WM_QUERYENDSESSION, 0, 0);
    AnswerPrompt(IDNO);
    TickBackup();
    ASSERT_TRUE(IsThere(kBackup));
    SendMessageW(mainWindow, WM_ENDSESSION, TRUE, 0);
    EXPECT_NE(SettingsText().find("ShowLatLongGrid=0"), std::string::npos);
    EXPECT_FALSE(IsThere(kBackup));
}

TEST_F(SessionTest, AfterTheEndOfTheSessionNoTickTakesTheHotKeysAgain) {
    Start();
    SendMessageW(mainWindow, WM_ENDSESSION, TRUE, 0);
    EXPECT_FALSE(RanTimer(kLinkTimer));
}

TEST_F(SessionTest, EditsAfterTheAnswerToAShutdownAreBackedUp) {
    ASSERT_NO_FATAL_FAILURE(StartModified());
    SendNotifyMessageW(mainWindow, WM_QUERYENDSESSION, 0, 0);
    const Box box = MessageBoxUp();
    EXPECT_TRUE(IsThere(kBackup)) << "who does not answer in time loses the airport";
    PressButton(box.window, IDNO);
    ASSERT_TRUE(WaitUntilGone(box.window));
    SettlePosted(agent);
    CreateNode(mainWindow, IDT_NORMAL_NODE);
    SendMessageW(mainWindow, WM_ENDSESSION, TRUE, 0);
    EXPECT_TRUE(IsThere(kBackup));
}

TEST_F(SessionTest, ABackupThatIsDueDuringADragIsWrittenAfterIt) {
    ASSERT_NO_FATAL_FAILURE(StartModified());
    Command(IDT_GUIDELINES);
    const RECT area = MapArea(mainWindow);
    SendMouse(mainWindow, WM_LBUTTONDOWN, area.left + 20, area.top + 20, MK_LBUTTON);
    SendMouse(mainWindow, WM_MOUSEMOVE, area.left + 80, area.top + 80, MK_LBUTTON);
    TickBackup();
    const bool during = IsThere(kBackup);
    SendMouse(mainWindow, WM_LBUTTONUP, area.left + 80, area.top + 80);
    EXPECT_TRUE(WaitUntil([&] { return IsThere(kBackup); }));
    EXPECT_FALSE(during);
}

TEST_F(SessionTest, TheCloseBoxPointsToTheDialogThatIsOpen) {
    StartWithSample("grass");
    PostCommand(mainWindow, IDM_AIRPORT_PROPERTIES);
    const HWND dialog = WaitForWindow(program.id, L"#32770", nullptr);
    ASSERT_NE(dialog, nullptr);
    ASSERT_TRUE(BringToFront(mainWindow));
    PostMessageW(mainWindow, WM_CLOSE, 0, 0);
    ASSERT_TRUE(SettlePosted(agent));
    EXPECT_TRUE(WaitUntil([&] { return GetForegroundWindow() == dialog; }));
    EXPECT_TRUE(IsWindowVisible(mainWindow));
    PressButton(dialog, IDCANCEL);
    ASSERT_TRUE(WaitUntilGone(dialog));
    EXPECT_EQ(CloseProgram(), 0u);
}

TEST_F(SessionTest, AShutdownThatDoesNotAskLeavesABackup) {
    ASSERT_NO_FATAL_FAILURE(StartModified());
    constexpr LPARAM kCritical = 0x40000000;
    EXPECT_NE(SendMessageW(mainWindow, WM_QUERYENDSESSION, 0, kCritical), 0);
    EXPECT_TRUE(NoBoxIsUp());
    SendMessageW(mainWindow, WM_ENDSESSION, TRUE, kCritical);
    EXPECT_TRUE(IsThere(kBackup));
}

TEST_F(SessionTest, SettingsThatMayNotBeWrittenAreToldOnceAndTheProgramEnds) {
    PutBytes(kSettingsFile, kQuietSettings);
    ASSERT_TRUE(SetFileAttributesW(kSettingsFile, FILE_ATTRIBUTE_READONLY));
    Start(L"", nullptr);
    EXPECT_EQ(CloseProgram(), 0u) << "nothing was changed, so nothing is lost";
    Start(L"", nullptr);
    Command(IDM_GRID);
    PostMessageW(mainWindow, WM_CLOSE, 0, 0);
    const Box box = MessageBoxUp();
    EXPECT_NE(box.text.find(kProgramFolder), std::wstring::npos) << Utf8(box.text);
    PressButton(box.window, IDOK);
    EXPECT_TRUE(HasEnded());
    EXPECT_EQ(BytesOf(kSettingsFile), kQuietSettings);
}

TEST_F(SessionTest, AProgramThatIsKilledWhileItEndsLeavesWholeSettings) {
    Start();
    EXPECT_EQ(CloseProgram(), 0u);
    for (DWORD round = 0; round < 12; ++round) {
        Start(L"", nullptr);
        Command(IDM_GRID);
        PostMessageW(mainWindow, WM_CLOSE, 0, 0);
        WaitForSingleObject(program.process, round * 2);  // the moment of the kill
        Kill();
        const std::string text = SettingsText();
        EXPECT_NE(text.find("NextUpdateNotice=9999"), std::string::npos) << text;
        EXPECT_NE(text.find("SpecName20="), std::string::npos) << text;
    }
}

}  // namespace ui
