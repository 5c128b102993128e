// UiHarness.cpp - starts the program for one test and ends it afterwards.
#include "UiHarness.h"

#include <cstdio>

#include "UiFiles.h"

namespace ui {
namespace {

constexpr int kMenuTries = 3;
constexpr DWORD kSoon = 10000;  // milliseconds, after which a menu is asked for again

bool WriteTextFile(const wchar_t* path, const char* text) {
    FILE* file = _wfopen(path, L"wb");
    if (!file) return false;
    bool written = fputs(text, file) >= 0;
    return (fclose(file) == 0) && written;
}

}  // namespace

// Lines of sample.txt: name=relative path|identifier
SampleAirport FindSample(const std::string& name) {
    std::string list = "\n" + BytesOf(std::wstring(kSimulatorFolder) + L"\\sample.txt");
    size_t start = list.find("\n" + name + "=");
    if (start == std::string::npos) return {};
    start += name.size() + 2;
    size_t bar = list.find('|', start), end = list.find_first_of("\r\n", start);
    if (end == std::string::npos) end = list.size();
    if (bar == std::string::npos || bar > end) return {};
    std::wstring path = Wide(list.substr(start, bar - start));
    return { std::wstring(kSimulatorFolder) + L"\\" + path, Wide(list.substr(bar + 1, end - bar - 1)) };
}

void UiTest::Launch(const std::wstring& arguments, const char* settings) {
    if (settings) {
        ASSERT_TRUE(WriteTextFile(kSettingsFile, settings));
    }
    ParkPointer();  // under a new window it would send moves of its own
    std::wstring folder = kProgramFolder;
    std::wstring line = L"\"" + folder + L"\\Tarvo.exe\"" + (arguments.empty() ? L"" : L" " + arguments);
    ASSERT_TRUE(StartProgram(line, folder, &program)) << "cannot start " << Utf8(line);
}

void UiTest::Attach() {
    mainWindow = WaitForWindow(program.id, kMainClass, nullptr);
    ASSERT_NE(mainWindow, nullptr) << "no main window";
    ASSERT_TRUE(AttachAgent(mainWindow, &agent)) << "agent.dll does not answer";
}

void UiTest::Start(const std::wstring& arguments, const char* settings) {
    ASSERT_NO_FATAL_FAILURE(Launch(arguments, settings));
    ASSERT_NO_FATAL_FAILURE(Attach());
}

void UiTest::StartWithSample(const std::string& name, const char* settings) {
    SampleAirport sample = FindSample(name);
    ASSERT_FALSE(sample.path.empty()) << "no sample airport " << name;
    ASSERT_NO_FATAL_FAILURE(Start(L"\"" + sample.path + L"\" " + sample.ident, settings));
    ASSERT_TRUE(WaitForTitle(sample.ident)) << "title is " << Utf8(Title());
}

// A program left by a failed test must not disturb the next one, nor may what it left for its own recovery.
void UiTest::TearDown() {
    DetachAgent(&agent);
    EndProgram(&program);
    mainWindow = nullptr;
    DeleteFileW((std::wstring(kProgramFolder) + L"\\AutoBackupTemp.bgl").c_str());
}

void UiTest::Command(UINT id) {
    ASSERT_TRUE(IsWindowEnabled(mainWindow)) << "a modal dialog is open";
    PostCommand(mainWindow, id);
    ASSERT_TRUE(SettlePosted(agent)) << "the program does not answer";
}

bool UiTest::IsGreyed(UINT id) const {
    UINT state = State(id);
    return state != 0xFFFFFFFF && (state & (MF_GRAYED | MF_DISABLED));
}

bool UiTest::IsChecked(UINT id) const {
    UINT state = State(id);
    return state != 0xFFFFFFFF && (state & MF_CHECKED);
}

HWND UiTest::Dialog(const wchar_t* title) {
    HWND dialog = WaitForDialog(program.id, title);
    EXPECT_NE(dialog, nullptr) << "no dialog \"" << Utf8(title ? title : L"") << "\"";
    return dialog;
}

HWND UiTest::DialogOtherThan(HWND known) {
    HWND found = nullptr;
    WaitUntil([&] {
        for (HWND window : TopLevelWindows(program.id)) {
            if (window != known && ClassOf(window) == L"#32770") found = window;
        }
        return found != nullptr;
    });
    EXPECT_NE(found, nullptr) << "no second dialog";
    return found;
}

Box UiTest::MessageBoxUp() {
    HWND window = WaitForDialog(program.id, L"Tarvo");
    EXPECT_NE(window, nullptr) << "no message box";
    return window ? ReadBox(window) : Box{};
}

void UiTest::Answer(const Box& box, int button) {
    ASSERT_NE(box.window, nullptr);
    CloseDialog(box.window, button);
}

void UiTest::CloseDialog(HWND dialog, int button) {
    PressButton(dialog, button);
    ASSERT_TRUE(WaitUntilGone(dialog)) << "the dialog stays open";
    Settle(mainWindow);
}

bool UiTest::OpenMenu(const std::function<void()>& ask) {
    for (int attempt = 0; attempt < kMenuTries; ++attempt) {
        EXPECT_TRUE(BringToFront(mainWindow));
        EXPECT_TRUE(SettlePosted(agent));
        ShowPainted(mainWindow);  // only what is painted can be hit
        ask();
        if (WaitUntil([&] { return InMenu(mainWindow); }, kSoon)) return SettlePosted(agent);  // not only announced
    }
    return false;
}

bool UiTest::ChooseFromMenu(const std::function<void()>& ask, WORD letter, const std::function<bool()>& isDone) {
    for (int attempt = 0; attempt < kMenuTries; ++attempt) {
        if (!OpenMenu(ask)) return false;
        TapKey(letter);
        if (WaitUntil(isDone, kSoon)) return true;
        if (InMenu(mainWindow)) TapKey(VK_ESCAPE);
        EXPECT_TRUE(WaitUntil([&] { return !InMenu(mainWindow); }));
        if (isDone()) return true;
    }
    return false;
}

DWORD UiTest::CloseProgram() {
    DWORD exitCode = 0xFFFFFFFF;
    PostMessageW(mainWindow, WM_CLOSE, 0, 0);
    if (!WaitForExit(program, &exitCode)) return 0xFFFFFFFF;
    return exitCode;
}

}  // namespace ui
