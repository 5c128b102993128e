// UiDriver.h - drives the program from a second process: start it, find its windows, give commands, read boxes.
//
// Nothing here waits a fixed time: everything waits for a state, up to kPatience. The pause between two looks is
// only there to leave the processor to the program.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

namespace ui {

struct MouseMessage;

constexpr DWORD kPatience = 20000;  // milliseconds; far beyond what any state takes on a busy machine

bool WaitUntil(const std::function<bool()>& state, DWORD milliseconds = kPatience);

// A started program. It ends with the driver, even when the driver is killed, because it runs in the driver's job.
struct Program {
    HANDLE process = nullptr;
    HANDLE job = nullptr;
    DWORD id = 0;
};
bool StartProgram(const std::wstring& commandLine, const std::wstring& folder, Program* program);
bool WaitForExit(const Program& program, DWORD* exitCode, DWORD milliseconds = kPatience);
void EndProgram(Program* program);  // ends it if it still runs, and forgets it

// Windows. Null where nothing was found in time.
std::wstring ClassOf(HWND window);
DWORD ProcessOf(HWND window);
std::wstring TextOf(HWND window);  // also of controls of another process, which GetWindowText does not read
void SetText(HWND window, const std::wstring& text);
std::vector<HWND> TopLevelWindows(DWORD processId = 0);  // visible ones; 0 = of all processes
std::vector<HWND> Children(HWND parent);
HWND ChildWithId(HWND parent, int id);                                              // at any depth
HWND FindVisible(DWORD processId, const wchar_t* className, const wchar_t* title);  // null = any
HWND WaitForWindow(DWORD processId, const wchar_t* className, const wchar_t* title, DWORD milliseconds = kPatience);
HWND WaitForDialog(DWORD processId, const wchar_t* title = nullptr, DWORD milliseconds = kPatience);
bool WaitUntilGone(HWND window, DWORD milliseconds = kPatience);
bool WaitForTitlePart(HWND window, const std::wstring& part, DWORD milliseconds = kPatience);

bool InMenu(HWND window);  // a menu of that window is open

// The program answers again. Not that it has done what was posted: sent messages overtake posted ones.
bool Settle(HWND window, DWORD milliseconds = kPatience);

// Posted, not sent: a command that opens a modal dialog would block the sender until it is closed.
void PostCommand(HWND window, UINT id);
void PressButton(HWND dialog, int id);

struct Box {
    HWND window = nullptr;
    std::wstring title, text;
    std::vector<int> buttons;  // IDOK, IDYES, ...
    int defaultButton = 0;
    HICON icon = nullptr;  // the program's own handle; StockIcon tells which it is
};
Box ReadBox(HWND window);

// Types `path` into an open or save dialog and presses its button. False when the dialog has no name box.
bool AnswerFileDialog(HWND dialog, const std::wstring& path);

std::string Utf8(const std::wstring& text);
std::wstring Wide(const std::string& utf8);

// The part of the driver that works inside the program (agent.dll, beside the driver's own program file).
struct Agent {
    HWND window = nullptr;  // the agent's own
    HWND target = nullptr;  // the program's main window
    HHOOK hook = nullptr;
};
struct MenuEntry {
    int depth = 0;
    UINT id = 0, state = 0, type = 0;
    std::wstring text;
};
bool AttachAgent(HWND mainWindow, Agent* agent);
void DetachAgent(Agent* agent);
UINT MenuState(const Agent& agent, UINT id);  // MF_ flags, 0xFFFFFFFF when there is no such entry
std::vector<MenuEntry> ReadMenu(const Agent& agent);
// What was posted to the program before is done, or has a modal dialog open.
bool SettlePosted(const Agent& agent);
int KeyState(const Agent& agent, int key);
void HoldKey(const Agent& agent, int key, bool down);  // what GetKeyState tells the program from now on
int StockIcon(const Agent& agent, HICON icon);         // 32513 error, 32514 question, 32515 warning, 32516 information
int StockCursor(const Agent& agent);                   // 32512 arrow, 32515 cross, ...; 0 a cursor of the program's own
POINT CursorHotSpot(const Agent& agent);               // of the cursor that is set now
bool DropFile(const Agent& agent, const std::wstring& path);  // as if it were dropped on the main window
HWND FocusOf(const Agent& agent);
// From within the program that has the windows. False when no agent is there.
bool SendUninterrupted(const std::vector<MouseMessage>& messages);
// What is to be painted of the window is on the screen, and what the display has to say has been heard. False as above.
bool ShowPainted(HWND window);
// While commands are caught, the program gets none: what a menu gives can be read instead of obeyed.
void CatchCommands(const Agent& agent, bool on);
UINT CaughtCommand(const Agent& agent);  // the last one, which is then forgotten; 0 none

// What the program has of the window system's objects.
struct GuiObjects {
    int gdi = 0;
    int user = 0;  // windows, menus, icons and cursors; under Wine those of other programs too
};
GuiObjects CountGuiObjects(const Agent& agent);

}  // namespace ui
