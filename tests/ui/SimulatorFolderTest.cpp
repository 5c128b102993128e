// SimulatorFolderTest.cpp - what a start asks when the registry does not lead to the simulator.
#include <shlobj.h>

#include "UiFiles.h"
#include "UiHarness.h"

namespace ui {

namespace {

constexpr wchar_t kKey[] = L"SOFTWARE\\Microsoft\\Microsoft Games\\Flight Simulator\\9.0";
constexpr wchar_t kValue[] = L"EXE Path";
constexpr wchar_t kBrowser[] = L"Tarvo -- Please locate the Flight Simulator 2004 folder";

void Register(const wchar_t* folder, DWORD type = REG_SZ) {
    HKEY key;
    ASSERT_EQ(
        RegCreateKeyExW(HKEY_LOCAL_MACHINE, kKey, 0, nullptr, 0, KEY_WRITE | KEY_WOW64_32KEY, nullptr, &key, nullptr),
        ERROR_SUCCESS);
    if (folder)
        RegSetValueExW(key, kValue, 0, type, reinterpret_cast<const BYTE*>(folder),
                       static_cast<DWORD>((wcslen(folder) + 1) * sizeof(wchar_t)));
    else
        RegDeleteValueW(key, kValue);
    RegCloseKey(key);
}

std::wstring Registered() {
    HKEY key;
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, kKey, 0, KEY_READ | KEY_WOW64_32KEY, &key) != ERROR_SUCCESS) return {};
    wchar_t text[MAX_PATH] = L"";
    DWORD bytes = sizeof text;
    RegGetValueW(key, nullptr, kValue, RRF_RT_REG_SZ, nullptr, text, &bytes);
    RegCloseKey(key);
    return text;
}

// It is there, but not shown yet.
HWND HiddenMainWindow(DWORD process) {
    HWND window = nullptr;
    for (DWORD owner = 0; (window = FindWindowExW(nullptr, window, kMainClass, nullptr)) != nullptr;) {
        GetWindowThreadProcessId(window, &owner);
        if (owner == process) break;
    }
    return window;
}

}  // namespace

class SimulatorFolderTest : public UiTest {
protected:
    void TearDown() override {
        UiTest::TearDown();
        Register(kSimulatorFolder);
    }
    // Points the browser to the sample simulator and presses its button. Its tree fills while it comes up, and a
    // selection before its time is lost.
    void Choose(HWND browser) {
        const std::wstring folder = kSimulatorFolder;
        const RemoteMemory memory(browser, (folder.size() + 1) * sizeof(wchar_t));
        ASSERT_TRUE(memory.Put(folder.c_str(), (folder.size() + 1) * sizeof(wchar_t)));
        ASSERT_TRUE(WaitUntil([&] {
            SendMessageW(browser, BFFM_SETSELECTIONW, TRUE, reinterpret_cast<LPARAM>(memory.address));
            const HWND tree = ChildWithId(browser, 14145);
            const HTREEITEM item = tree ? NextTreeItem(tree, TVGN_CARET) : nullptr;
            return item && TreeText(tree, item) == L"FS9";
        }));
        PressButton(browser, IDOK);
        ASSERT_TRUE(WaitUntilGone(browser));
    }
};

TEST_F(SimulatorFolderTest, ItIsAskedForAndEnteredInTheRegistryWithConsent) {
    Register(nullptr);
    Launch(L"", kQuietSettings);
    const HWND browser = Dialog(kBrowser);
    ASSERT_NE(browser, nullptr);
    Choose(browser);
    const Box box = MessageBoxUp();
    EXPECT_TRUE(box.text.starts_with(L"The Flight Simulator pointer was not found in the Windows Registry.\n"))
        << Utf8(box.text);
    EXPECT_TRUE(box.text.ends_with(kSimulatorFolder)) << Utf8(box.text);
    EXPECT_EQ(box.buttons, (std::vector<int>{ IDYES, IDNO }));
    PressButton(box.window, IDYES);
    Attach();
    EXPECT_EQ(Registered(), kSimulatorFolder);
    EXPECT_EQ(CloseProgram(), 0u);
}

TEST_F(SimulatorFolderTest, AVariableInTheEntryIsReplaced) {
    Register(L"%SystemDrive%\\UiTest\\FS9", REG_EXPAND_SZ);
    Launch(L"", kQuietSettings);
    Attach();
    EXPECT_EQ(FindVisible(program.id, L"#32770", nullptr), nullptr) << "the simulator is not found";
    EXPECT_EQ(CloseProgram(), 0u);
}

TEST_F(SimulatorFolderTest, AWrongEntryIsNamedAndStaysWithoutConsent) {
    Register(L"C:\\UiTest\\");
    Launch(L"", kQuietSettings);
    const HWND browser = Dialog(kBrowser);
    ASSERT_NE(browser, nullptr);
    Choose(browser);
    const Box box = MessageBoxUp();
    EXPECT_NE(box.text.find(L"FS was not found there:\n\nC:\\UiTest\n\n"), std::wstring::npos) << Utf8(box.text);
    PressButton(box.window, IDNO);
    Attach();
    EXPECT_EQ(Registered(), L"C:\\UiTest\\");
}

TEST_F(SimulatorFolderTest, AShutdownUnderTheQuestionKeepsThatTheWindowWasMaximized) {
    Register(nullptr);
    Launch(L"", "[General]\r\nNextUpdateNotice=9999\r\nWindowMaximized=1\r\n");
    const HWND browser = Dialog(kBrowser);
    ASSERT_NE(browser, nullptr);
    const HWND window = HiddenMainWindow(program.id);
    ASSERT_NE(window, nullptr);
    constexpr LPARAM kCritical = 0x40000000;
    SendMessageW(window, WM_ENDSESSION, TRUE, kCritical);
    const std::string settings = BytesOf(kSettingsFile);
    EXPECT_NE(settings.find("NodeKeyCode=190"), std::string::npos) << "nothing was written: " << settings;
    EXPECT_NE(settings.find("WindowMaximized=1"), std::string::npos) << settings;
}

TEST_F(SimulatorFolderTest, CancellingStartsTheProgramWithoutASimulator) {
    Register(nullptr);
    const SampleAirport sample = FindSample("grass");
    Launch(L"\"" + sample.path + L"\" " + sample.ident, kQuietSettings);
    const HWND browser = Dialog(kBrowser);
    ASSERT_NE(browser, nullptr);
    PressButton(browser, IDCANCEL);
    Attach();
    EXPECT_TRUE(WaitForTitle(sample.ident)) << "single files can be opened all the same";
}

}  // namespace ui
