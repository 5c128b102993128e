// UiHarness.h - the fixture of every user-interface test: a fresh Tarvo for each test, ended whatever happens.
//
// The tests work on copies that the run makes beforehand: C:\UiTest\Tarvo (the program folder) and C:\UiTest\FS9
// (the sample simulator, to which the simulator's registry entry points).
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "Resource.h"
#include "UiControls.h"
#include "UiDriver.h"
#include "UiInput.h"

namespace ui {

constexpr wchar_t kProgramFolder[] = L"C:\\UiTest\\Tarvo";
constexpr wchar_t kSimulatorFolder[] = L"C:\\UiTest\\FS9";
constexpr wchar_t kMainClass[] = L"Tarvo";

// The file that carries the settings between two starts, and one setting that keeps the update reminder away.
constexpr wchar_t kSettingsFile[] = L"C:\\UiTest\\Tarvo\\Tarvo2.ini";
constexpr char kQuietSettings[] = "[General]\r\nNextUpdateNotice=9999\r\n";

// Path of a sample airport ("hub", "regional", "grass") and its identifier, as the sample simulator lists them.
struct SampleAirport {
    std::wstring path, ident;
};
SampleAirport FindSample(const std::string& name);

class UiTest : public ::testing::Test {
protected:
    // Starts the program and waits for its main window, agent attached. `settings` becomes the settings file; null
    // keeps the one that the start before has left.
    void Start(const std::wstring& arguments = L"", const char* settings = kQuietSettings);
    // And waits until the title shows that airport.
    void StartWithSample(const std::string& name, const char* settings = kQuietSettings);
    // Only the process, without waiting for a window: for tests of what comes up before or over it.
    void Launch(const std::wstring& arguments, const char* settings);
    void Attach();
    void TearDown() override;

    // A command as the menu or a toolbar gives it. Fails when a modal dialog holds the main window: the program
    // would obey, but no user could have given the command.
    void Command(UINT id);
    UINT State(UINT id) const { return MenuState(agent, id); }
    bool IsGreyed(UINT id) const;
    bool IsChecked(UINT id) const;
    bool CanUndo() const { return !IsGreyed(IDM_UNDO); }
    std::wstring Title() const { return TextOf(mainWindow); }
    bool WaitForTitle(const std::wstring& part) const { return WaitForTitlePart(mainWindow, part); }

    HWND Dialog(const wchar_t* title);        // waits for it; a test failure and null when it does not come
    HWND DialogOtherThan(HWND known);         // the next dialog or box on top of `known`
    Box MessageBoxUp();                       // waits for the program's box, title "Tarvo"
    void Answer(const Box& box, int button);  // and waits until the box is gone
    void Press(HWND dialog, int button) { PressButton(dialog, button); }
    void CloseDialog(HWND dialog, int button);  // presses and waits until it is gone

    // A menu of the main window's that `ask` opens. Under Wine one that is asked for as soon as a dialog has closed now and
    // then does not come up or takes no key; the next one does.
    bool OpenMenu(const std::function<void()>& ask);
    // And the entry of that letter; `isDone` looks for what it does.
    bool ChooseFromMenu(const std::function<void()>& ask, WORD letter, const std::function<bool()>& isDone);

    DWORD CloseProgram();  // WM_CLOSE; exit code, or 0xFFFFFFFF when it does not end

    Program program;
    HWND mainWindow = nullptr;
    Agent agent;
};

}  // namespace ui
