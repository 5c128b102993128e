// DriverMain.cpp - driver.exe: drives a running program from a shell script, one step a call.
#include <cstdio>
#include <cstdlib>
#include <cwchar>

#include "UiControls.h"
#include "UiDriver.h"
#include "UiInput.h"

namespace {

using Arguments = std::vector<std::wstring>;  // what follows WINDOW

constexpr int kOk = 0, kNotFound = 1, kUsage = 2;

constexpr char kHelp[] =
    "driver list                        all visible top-level windows\n"
    "driver hold                        prints the screen's size and keeps the desktop until it is ended\n"
    "driver tree    WINDOW              its controls\n"
    "driver wait    WINDOW [MS]         until it is there\n"
    "driver gone    WINDOW [MS]         until it is not\n"
    "driver title   WINDOW PART [MS]    until its title holds PART; prints the title\n"
    "driver command WINDOW ID           menu command\n"
    "driver press   WINDOW ID           button of a dialog\n"
    "driver text    WINDOW ID           prints a control's text\n"
    "driver set     WINDOW ID TEXT      sets it\n"
    "driver pick    WINDOW ID INDEX     entry of a combo box or list box\n"
    "driver box     WINDOW [ID]         prints a message box; presses button ID\n"
    "driver file    WINDOW PATH         answers an open or save dialog\n"
    "driver menu    WINDOW              the menu bar: id, state, text\n"
    "driver key     WINDOW KEY          real key press, virtual key code\n"
    "driver type    WINDOW TEXT         real typing\n"
    "driver click   WINDOW X Y          real click, client coordinates\n"
    "driver wheel   WINDOW X Y DELTA    wheel message\n"
    "driver shot    WINDOW FILE         picture of the window, BMP\n"
    "driver close   WINDOW              as if its close button was pressed\n"
    "driver note    FILE TEXT           adds a line to a file\n"
    "WINDOW is a title, @Class or 0xHANDLE. Result 0 done, 1 not found, 2 wrong call.\n";

void Print(const std::wstring& text) { printf("%s\n", ui::Utf8(text).c_str()); }

int Number(const std::wstring& text) { return static_cast<int>(wcstol(text.c_str(), nullptr, 0)); }

DWORD Patience(const Arguments& arguments, size_t index) {
    return index < arguments.size() ? static_cast<DWORD>(Number(arguments[index])) : ui::kPatience;
}

HWND Find(const std::wstring& name) {
    if (name.rfind(L"0x", 0) == 0) {
        HWND window = reinterpret_cast<HWND>(wcstoull(name.c_str(), nullptr, 16));
        return IsWindow(window) ? window : nullptr;
    }
    if (name[0] == L'@') return ui::FindVisible(0, name.c_str() + 1, nullptr);
    return ui::FindVisible(0, nullptr, name.c_str());
}

HWND WaitFor(const std::wstring& name, DWORD milliseconds) {
    HWND window = nullptr;
    ui::WaitUntil([&] { return (window = Find(name)) != nullptr; }, milliseconds);
    return window;
}

void Describe(HWND window) {
    RECT rect;
    GetWindowRect(window, &rect);
    printf("0x%llx id=%d %s%s %d,%d %dx%d ", static_cast<unsigned long long>(reinterpret_cast<UINT_PTR>(window)),
           GetDlgCtrlID(window), IsWindowVisible(window) ? "visible" : "hidden",
           IsWindowEnabled(window) ? "" : " disabled", static_cast<int>(rect.left), static_cast<int>(rect.top),
           static_cast<int>(rect.right - rect.left), static_cast<int>(rect.bottom - rect.top));
    Print(ui::ClassOf(window) + L" \"" + ui::TextOf(window) + L"\"");
}

int ListWindows() {
    for (HWND window : ui::TopLevelWindows()) Describe(window);
    return kOk;
}

// A desktop that no window can be made on has a size, but not the display's.
int HoldDesktop() {
    HWND window = CreateWindowW(L"Static", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    printf("%s%dx%d\n", window ? "" : "no window on ", GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN));
    fflush(stdout);
    if (!window) return kNotFound;
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
    return kOk;
}

int Tree(HWND window, const Arguments&) {
    Describe(window);
    for (HWND child : ui::Children(window)) Describe(child);
    return kOk;
}

int Wait(HWND window, const Arguments&) {
    Describe(window);
    return kOk;
}

int Title(HWND window, const Arguments& arguments) {
    bool shown = ui::WaitForTitlePart(window, arguments[0], Patience(arguments, 1));
    Print(ui::TextOf(window));
    return shown ? kOk : kNotFound;
}

int Command(HWND window, const Arguments& arguments) {
    if (!IsWindowEnabled(window)) return kNotFound;  // a modal dialog holds it: no user could give the command
    ui::PostCommand(window, static_cast<UINT>(Number(arguments[0])));
    return ui::Settle(window) ? kOk : kNotFound;
}

int Press(HWND window, const Arguments& arguments) {
    if (!ui::ChildWithId(window, Number(arguments[0]))) return kNotFound;
    ui::PressButton(window, Number(arguments[0]));
    return kOk;
}

int Text(HWND window, const Arguments& arguments) {
    HWND control = ui::ChildWithId(window, Number(arguments[0]));
    if (!control) return kNotFound;
    Print(ui::TextOf(control));
    return kOk;
}

int Set(HWND window, const Arguments& arguments) {
    HWND control = ui::ChildWithId(window, Number(arguments[0]));
    if (!control) return kNotFound;
    ui::SetText(control, arguments[1]);
    return kOk;
}

int Pick(HWND window, const Arguments& arguments) {
    HWND control = ui::ChildWithId(window, Number(arguments[0]));
    if (!control) return kNotFound;
    bool list = ui::ClassOf(control) == L"ListBox";
    (list ? ui::PickInListBox : ui::PickInCombo)(control, Number(arguments[1]));
    return kOk;
}

int ShowBox(HWND window, const Arguments& arguments) {
    ui::Box box = ui::ReadBox(window);
    Print(box.title + L"\n" + box.text);
    for (int button : box.buttons) {
        printf("%d%s ", button, button == box.defaultButton ? "*" : "");
        Print(ui::TextOf(GetDlgItem(window, button)));
    }
    if (!arguments.empty()) ui::PressButton(window, Number(arguments[0]));
    return kOk;
}

int File(HWND window, const Arguments& arguments) {
    return ui::AnswerFileDialog(window, arguments[0]) ? kOk : kNotFound;
}

int Menu(HWND window, const Arguments&) {
    ui::Agent agent;
    if (!ui::AttachAgent(window, &agent)) return kNotFound;
    for (const ui::MenuEntry& entry : ui::ReadMenu(agent)) {
        printf("%*s%u %s%s", entry.depth * 4, "", entry.id, entry.state & MFS_GRAYED ? "grey " : "",
               entry.state & MFS_CHECKED ? "checked " : "");
        Print(entry.text);
    }
    ui::DetachAgent(&agent);
    return kOk;
}

int Key(HWND window, const Arguments& arguments) {
    if (!ui::BringToFront(window)) return kNotFound;
    ui::TapKey(static_cast<WORD>(Number(arguments[0])));
    return ui::Settle(window) ? kOk : kNotFound;
}

int Type(HWND window, const Arguments& arguments) {
    if (!ui::BringToFront(window)) return kNotFound;
    ui::TypeText(arguments[0]);
    return ui::Settle(window) ? kOk : kNotFound;
}

int Click(HWND window, const Arguments& arguments) {
    ui::ClickPointer(window, Number(arguments[0]), Number(arguments[1]));
    return kOk;
}

int Wheel(HWND window, const Arguments& arguments) {
    ui::SendWheel(window, Number(arguments[0]), Number(arguments[1]), Number(arguments[2]));
    return kOk;
}

int Shot(HWND window, const Arguments& arguments) {
    if (!ui::BringToFront(window)) return kNotFound;
    ui::ParkPointer();
    ui::Picture picture = ui::GrabStable([&] { return ui::GrabWindow(window); });
    return ui::SaveBmp(picture, arguments[0]) ? kOk : kNotFound;
}

int Close(HWND window, const Arguments&) {
    PostMessageW(window, WM_CLOSE, 0, 0);
    return kOk;
}

// Registered as a browser, it tells what it was asked to open.
int Note(const wchar_t* path, const wchar_t* text) {
    FILE* file = _wfopen(path, L"ab");
    if (!file) return kNotFound;
    const bool written = fprintf(file, "%s\n", ui::Utf8(text).c_str()) > 0;
    return (fclose(file) == 0) && written ? kOk : kNotFound;
}

struct Step {
    const wchar_t* name;
    size_t arguments;  // least number behind WINDOW
    int (*run)(HWND window, const Arguments& arguments);
};

constexpr Step kSteps[] = {
    { L"tree", 0, Tree },   { L"wait", 0, Wait },   { L"title", 1, Title }, { L"command", 1, Command },
    { L"press", 1, Press }, { L"text", 1, Text },   { L"set", 2, Set },     { L"pick", 2, Pick },
    { L"box", 0, ShowBox }, { L"file", 1, File },   { L"menu", 0, Menu },   { L"key", 1, Key },
    { L"type", 1, Type },   { L"click", 2, Click }, { L"wheel", 3, Wheel }, { L"shot", 1, Shot },
    { L"close", 0, Close },
};

int RunStep(const std::wstring& name, const std::wstring& target, const Arguments& arguments) {
    if (name == L"gone") {
        return ui::WaitUntil([&] { return !Find(target); }, Patience(arguments, 0)) ? kOk : kNotFound;
    }
    for (const Step& step : kSteps) {
        if (name != step.name || arguments.size() < step.arguments) continue;
        HWND window = WaitFor(target, name == L"wait" ? Patience(arguments, 0) : ui::kPatience);
        return window ? step.run(window, arguments) : kNotFound;
    }
    fputs(kHelp, stderr);
    return kUsage;
}

}  // namespace

int wmain(int count, wchar_t** values) {
    if (count == 2 && std::wstring(values[1]) == L"list") return ListWindows();
    if (count == 2 && std::wstring(values[1]) == L"hold") return HoldDesktop();
    if (count == 4 && std::wstring(values[1]) == L"note") return Note(values[2], values[3]);
    if (count < 3 || !values[2][0]) {
        fputs(kHelp, stderr);
        return kUsage;
    }
    return RunStep(values[1], values[2], Arguments(values + 3, values + count));
}
