// SaveTest.cpp - saving through the dialog, the question before an airport is dropped, and what failure leaves behind.
#include <cstdio>

#include "ProgramParts.h"
#include "Resource.h"
#include "UiFiles.h"
#include "UiHarness.h"

namespace ui {

constexpr wchar_t kWorkFolder[] = L"C:\\UiTest\\Work";
constexpr wchar_t kQuestion[] = L"Do you want to save changes to the current facility ?";
constexpr wchar_t kSaveTitle[] = L"Save Airport File";

class SaveTest : public UiTest {
protected:
    void SetUp() override {
        CreateDirectoryW(kWorkFolder, nullptr);
        DeleteFileW(In(L"TV2_own.bgl").c_str());
        DeleteFileW(In(L"new.bgl").c_str());
    }
    std::wstring In(const wchar_t* name) const { return std::wstring(kWorkFolder) + L"\\" + name; }

    // The file holds this airport alone: of one with several the program would warn. Made once in a run.
    void MakeSingle(const std::wstring& path) {
        if (IsThere(path)) return;
        ASSERT_NO_FATAL_FAILURE(StartWithSample("hub"));
        PostCommand(mainWindow, IDM_SAVE_AS);
        const HWND dialog = Dialog(kSaveTitle);
        ASSERT_TRUE(AnswerFileDialog(dialog, path));
        ASSERT_TRUE(WaitForTitle(L"( file single.bgl )")) << Utf8(Title());
        EXPECT_EQ(CloseProgram(), 0u);
        DetachAgent(&agent);
        EndProgram(&program);
    }
    // Starts with an airport in a file of our own, and changes it.
    void StartModified() {
        const SampleAirport sample = FindSample("hub");
        ASSERT_NO_FATAL_FAILURE(MakeSingle(In(L"single.bgl")));
        ASSERT_TRUE(CopyFileW(In(L"single.bgl").c_str(), In(L"TV2_own.bgl").c_str(), FALSE));
        ASSERT_NO_FATAL_FAILURE(Start(L"\"" + In(L"TV2_own.bgl") + L"\" " + sample.ident));
        ASSERT_TRUE(WaitForTitle(sample.ident));
        CreateNode(mainWindow, IDT_NORMAL_NODE);
        ASSERT_FALSE(IsGreyed(IDM_UNDO)) << "nothing was changed";
    }
    void AnswerPrompt(int button) {
        const Box box = MessageBoxUp();
        EXPECT_EQ(box.text, kQuestion);
        EXPECT_EQ(box.buttons, (std::vector<int>{ IDYES, IDNO, IDCANCEL }));
        EXPECT_EQ(StockIcon(agent, box.icon), 32515);
        PressButton(box.window, button);
        ASSERT_TRUE(WaitUntilGone(box.window));
    }
    // The dialog of a new airport comes up, and no other airport is left.
    void ExpectNewAirportDialog(const std::wstring& ident) {
        const HWND dialog = Dialog(L"Airport Properties");
        ASSERT_NE(dialog, nullptr);
        CloseDialog(dialog, IDCANCEL);
        EXPECT_TRUE(WaitUntil([&] { return Title().find(ident) == std::wstring::npos; })) << Utf8(Title());
        EXPECT_EQ(CloseProgram(), 0u) << "nothing is left to be saved";
    }
    void ExpectExit() {
        DWORD exitCode = 1;
        EXPECT_TRUE(WaitForExit(program, &exitCode));
        EXPECT_EQ(exitCode, 0u);
    }
    // The program, the airport and that it was changed are as before the question.
    void ExpectKept(const std::wstring& title, const Picture& map) {
        SettlePosted(agent);
        EXPECT_TRUE(IsWindowEnabled(mainWindow)) << "a dialog is open";
        EXPECT_EQ(Title(), title);
        EXPECT_FALSE(IsGreyed(IDM_UNDO));
        EXPECT_EQ(GrabMap(mainWindow).pixels, map.pixels);
        PostCommand(mainWindow, IDM_EXIT);
        AnswerPrompt(IDCANCEL);
    }
    // Opens the file once more in a new program and returns its picture of the airport.
    Picture PictureOf(const std::wstring& path) {
        EndProgram(&program);
        DetachAgent(&agent);
        Start(L"\"" + path + L"\"");
        EXPECT_TRUE(WaitForTitle(L"( file")) << Utf8(Title());
        GoToEmptyGround(mainWindow);
        return GrabMap(mainWindow);
    }
};

TEST_F(SaveTest, SaveAsWritesTheAirportAndItReadsBackAsItWas) {
    const SampleAirport sample = FindSample("hub");
    StartWithSample("hub");
    const POINT at = CreateNode(mainWindow, IDT_HOLD_SHORT_NODE);
    ClickToolButton(mainWindow, IDT_POINTER);
    SendClick(mainWindow, at.x, at.y + 60);
    const Picture shown = GrabMap(mainWindow);
    PostCommand(mainWindow, IDM_SAVE_AS);
    const HWND dialog = Dialog(kSaveTitle);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(TextOf(ChildWithId(dialog, 1148)), L"TV2_" + sample.ident + L".bgl");
    ASSERT_TRUE(AnswerFileDialog(dialog, In(L"new")));  // the extension is added
    ASSERT_TRUE(WaitForTitle(L"( file new.bgl )")) << Utf8(Title());
    EXPECT_EQ(CloseProgram(), 0u) << "the saved airport still counts as changed";
    const Picture again = PictureOf(In(L"new.bgl"));
    const RECT area = MapArea(mainWindow);
    EXPECT_GT(CountColourAround(again, at, 0xFF0000), 0) << "the node is not in the file";
    int different = 0;
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) different += PixelAt(shown, x, y) != PixelAt(again, x, y);
    }
    EXPECT_EQ(different, 0) << "the map of the saved airport differs";
}

TEST_F(SaveTest, TheDialogOffersBglFilesInTheAddOnFolder) {
    const std::wstring file = L"C:\\UiTest\\FS9\\AddOn Scenery\\Scenery\\TV2_first.bgl";
    StartWithSample("hub");
    PostCommand(mainWindow, IDM_SAVE_AS);
    const HWND dialog = Dialog(kSaveTitle);
    ASSERT_NE(dialog, nullptr);
    constexpr int kFileTypes = 1136;
    EXPECT_EQ(TextOf(ChildWithId(dialog, kFileTypes)), L"Bgl files");
    ASSERT_TRUE(AnswerFileDialog(dialog, L"TV2_first.bgl"));
    EXPECT_TRUE(WaitForTitle(L"( file TV2_first.bgl )")) << Utf8(Title());
    EXPECT_TRUE(DeleteFileW(file.c_str())) << "another folder was shown";
}

TEST_F(SaveTest, AnExistingFileIsReplacedOnlyWithConsent) {
    FILE* file = _wfopen(In(L"new.bgl").c_str(), L"wb");
    ASSERT_NE(file, nullptr);
    fputs("old", file);
    fclose(file);
    StartWithSample("hub");
    PostCommand(mainWindow, IDM_SAVE_AS);
    const HWND dialog = Dialog(kSaveTitle);
    ASSERT_TRUE(AnswerFileDialog(dialog, In(L"new.bgl")));
    const HWND question = DialogOtherThan(dialog);
    ASSERT_NE(question, nullptr);
    CloseDialog(question, IDNO);
    EXPECT_EQ(BytesOf(In(L"new.bgl")), "old");
    CloseDialog(dialog, IDCANCEL);
    EXPECT_NE(Title().find(L"stock airport"), std::wstring::npos);
}

TEST_F(SaveTest, AFileOfOurOwnIsSavedWithoutADialog) {
    StartModified();
    const std::string before = BytesOf(In(L"TV2_own.bgl"));
    ClickToolButton(mainWindow, IDT_SAVE);
    EXPECT_NE(BytesOf(In(L"TV2_own.bgl")), before);
    EXPECT_EQ(CloseProgram(), 0u);
}

TEST_F(SaveTest, TheStatusBarTellsOfASaveUntilTheNextEditAndTheEndOfTheAirport) {
    const auto isTold = [&](std::wstring_view start) {
        return WaitUntil([&] { return StatusText(mainWindow, kNoticePart).starts_with(start); });
    };
    const auto isSilent = [&] {
        return WaitUntil([&] { return StatusText(mainWindow, kNoticePart).find(L"Saved") == std::wstring::npos; });
    };
    StartModified();
    PostCommand(mainWindow, IDM_SAVE);
    EXPECT_TRUE(isTold(L"Saved TV2_own.bgl"));
    PostCommand(mainWindow, IDM_UNDO);
    EXPECT_TRUE(isSilent()) << Utf8(StatusText(mainWindow, kNoticePart));
    PostCommand(mainWindow, IDM_SAVE);
    EXPECT_TRUE(isTold(L"Saved TV2_own.bgl"));
    PostCommand(mainWindow, IDM_CLOSE);
    EXPECT_TRUE(isTold(L"File > Open Airport")) << Utf8(StatusText(mainWindow, kNoticePart));
    EXPECT_EQ(CloseProgram(), 0u);
}

TEST_F(SaveTest, ExitAsksAndCancelKeepsTheAirport) {
    StartModified();
    const std::wstring title = Title();
    PostCommand(mainWindow, IDM_EXIT);
    AnswerPrompt(IDCANCEL);
    SettlePosted(agent);
    EXPECT_EQ(Title(), title);
    EXPECT_FALSE(IsGreyed(IDM_UNDO));
    EXPECT_TRUE(IsWindowEnabled(mainWindow));
}

TEST_F(SaveTest, NoDropsTheChanges) {
    StartModified();
    const std::string before = BytesOf(In(L"TV2_own.bgl"));
    PostCommand(mainWindow, IDM_EXIT);
    AnswerPrompt(IDNO);
    DWORD exitCode = 1;
    EXPECT_TRUE(WaitForExit(program, &exitCode));
    EXPECT_EQ(exitCode, 0u);
    EXPECT_EQ(BytesOf(In(L"TV2_own.bgl")), before);
}

TEST_F(SaveTest, YesSavesAndThenCloses) {
    StartModified();
    const std::string before = BytesOf(In(L"TV2_own.bgl"));
    PostCommand(mainWindow, IDM_CLOSE);
    AnswerPrompt(IDYES);
    EXPECT_TRUE(WaitUntil([&] { return Title() == L"Tarvo        "; })) << Utf8(Title());
    EXPECT_NE(BytesOf(In(L"TV2_own.bgl")), before);
}

TEST_F(SaveTest, YesSavesAndGoesOnNoGoesOnAndCancelKeepsTheAirport) {
    struct Case {
        const char* name;
        UINT command;
        int button;
    };
    const Case cases[] = {
        { "new, yes", IDM_NEW, IDYES },   { "new, no", IDM_NEW, IDNO },   { "new, cancel", IDM_NEW, IDCANCEL },
        { "exit, yes", IDM_EXIT, IDYES }, { "exit, no", IDM_EXIT, IDNO }, { "exit, cancel", IDM_EXIT, IDCANCEL },
    };
    const std::wstring ident = FindSample("hub").ident;
    for (const Case& row : cases) {
        SCOPED_TRACE(row.name);
        ASSERT_NO_FATAL_FAILURE(StartModified());
        const std::string before = BytesOf(In(L"TV2_own.bgl"));
        const std::wstring title = Title();
        const Picture map = GrabMap(mainWindow);
        PostCommand(mainWindow, row.command);
        ASSERT_NO_FATAL_FAILURE(AnswerPrompt(row.button));
        if (row.button == IDCANCEL)
            ExpectKept(title, map);
        else if (row.command == IDM_NEW)
            ExpectNewAirportDialog(ident);
        else
            ExpectExit();
        EXPECT_EQ(BytesOf(In(L"TV2_own.bgl")) != before, row.button == IDYES);
        DetachAgent(&agent);
        EndProgram(&program);
    }
}

TEST_F(SaveTest, YesWithoutAFileNameKeepsTheAirportWhenTheDialogIsCancelled) {
    StartWithSample("hub");
    CreateNode(mainWindow, IDT_NORMAL_NODE);
    const std::wstring title = Title();
    PostMessageW(mainWindow, WM_CLOSE, 0, 0);
    AnswerPrompt(IDYES);
    const HWND dialog = Dialog(kSaveTitle);
    ASSERT_NE(dialog, nullptr);
    CloseDialog(dialog, IDCANCEL);
    EXPECT_EQ(Title(), title);
    EXPECT_FALSE(IsGreyed(IDM_SAVE));
}

TEST_F(SaveTest, AFileHeldByAnotherProgramStaysAndTheUserIsTold) {
    StartModified();
    const std::string before = BytesOf(In(L"TV2_own.bgl"));
    const HANDLE held = CreateFileW(In(L"TV2_own.bgl").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    PostCommand(mainWindow, IDM_SAVE);
    const Box box = MessageBoxUp();
    EXPECT_EQ(box.text, L"ERROR: Unable to create .bgl file");
    EXPECT_EQ(box.buttons, std::vector<int>{ IDOK });
    CloseHandle(held);
    Answer(box, IDOK);
    EXPECT_EQ(BytesOf(In(L"TV2_own.bgl")), before);
    PostCommand(mainWindow, IDM_EXIT);  // and the airport still counts as changed
    AnswerPrompt(IDCANCEL);
}

TEST_F(SaveTest, AReadOnlyFileStays) {
    StartModified();
    const std::string before = BytesOf(In(L"TV2_own.bgl"));
    ASSERT_TRUE(SetFileAttributesW(In(L"TV2_own.bgl").c_str(), FILE_ATTRIBUTE_READONLY));
    PostCommand(mainWindow, IDM_SAVE);
    const Box box = MessageBoxUp();
    EXPECT_EQ(box.text, L"ERROR: Unable to create .bgl file");
    Answer(box, IDOK);
    SetFileAttributesW(In(L"TV2_own.bgl").c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(BytesOf(In(L"TV2_own.bgl")), before);
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW(In(L"~tv*").c_str(), &found);
    EXPECT_EQ(search, INVALID_HANDLE_VALUE) << "a sibling was left behind";
    if (search != INVALID_HANDLE_VALUE) FindClose(search);
}

TEST_F(SaveTest, AStockFileIsNeverOverwritten) {
    const SampleAirport sample = FindSample("hub");
    const std::string before = BytesOf(sample.path);
    StartWithSample("hub");
    PostCommand(mainWindow, IDM_SAVE_AS);
    const HWND dialog = Dialog(kSaveTitle);
    ASSERT_TRUE(AnswerFileDialog(dialog, sample.path));
    const HWND question = DialogOtherThan(dialog);
    ASSERT_NE(question, nullptr);
    PressButton(question, IDYES);
    const Box box = MessageBoxUp();
    EXPECT_EQ(box.text.substr(0, 7), L"ERROR: ");
    Answer(box, IDOK);
    EXPECT_EQ(BytesOf(sample.path), before);
}

}  // namespace ui
