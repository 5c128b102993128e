// UiDriver.cpp - processes, windows, commands and boxes of the program under test.
#include "UiDriver.h"

#include <cwchar>

namespace ui {

bool WaitUntil(const std::function<bool()>& state, DWORD milliseconds) {
    ULONGLONG start = GetTickCount64();
    while (!state()) {
        if (GetTickCount64() - start > milliseconds) return false;
        Sleep(5);
    }
    return true;
}

bool StartProgram(const std::wstring& commandLine, const std::wstring& folder, Program* program) {
    program->job = CreateJobObjectW(nullptr, nullptr);
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    SetInformationJobObject(program->job, JobObjectExtendedLimitInformation, &limits, sizeof limits);
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION started = {};
    std::wstring writable = commandLine;  // CreateProcess may write into it
    if (!CreateProcessW(nullptr, writable.data(), nullptr, nullptr, FALSE, CREATE_SUSPENDED, nullptr,
                        folder.empty() ? nullptr : folder.c_str(), &startup, &started)) {
        CloseHandle(program->job);
        program->job = nullptr;
        return false;
    }
    AssignProcessToJobObject(program->job, started.hProcess);
    ResumeThread(started.hThread);
    CloseHandle(started.hThread);
    program->process = started.hProcess;
    program->id = started.dwProcessId;
    return true;
}

bool WaitForExit(const Program& program, DWORD* exitCode, DWORD milliseconds) {
    if (WaitForSingleObject(program.process, milliseconds) != WAIT_OBJECT_0) return false;
    return GetExitCodeProcess(program.process, exitCode) != 0;
}

void EndProgram(Program* program) {
    if (program->process) {
        TerminateProcess(program->process, 99);
        WaitForSingleObject(program->process, kPatience);
        CloseHandle(program->process);
    }
    if (program->job) CloseHandle(program->job);
    *program = {};
}

std::wstring ClassOf(HWND window) {
    wchar_t name[256] = L"";
    int length = GetClassNameW(window, name, 256);
    return std::wstring(name, static_cast<size_t>(length));
}

DWORD ProcessOf(HWND window) {
    DWORD id = 0;
    GetWindowThreadProcessId(window, &id);
    return id;
}

std::wstring TextOf(HWND window) {
    DWORD_PTR length = 0, got = 0;
    if (!SendMessageTimeoutW(window, WM_GETTEXTLENGTH, 0, 0, SMTO_ABORTIFHUNG, kPatience, &length)) return L"";
    std::wstring text(length + 1, 0);
    SendMessageTimeoutW(window, WM_GETTEXT, length + 1, reinterpret_cast<LPARAM>(text.data()), SMTO_ABORTIFHUNG,
                        kPatience, &got);
    text.resize(got);
    return text;
}

void SetText(HWND window, const std::wstring& text) {
    SendMessageW(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

std::vector<HWND> TopLevelWindows(DWORD processId) {
    struct Search {
        DWORD processId;
        std::vector<HWND> found;
    } search = { processId, {} };
    auto visit = [](HWND window, LPARAM parameter) -> BOOL {
        auto* into = reinterpret_cast<Search*>(parameter);
        bool wanted = !into->processId || ProcessOf(window) == into->processId;
        if (wanted && IsWindowVisible(window)) into->found.push_back(window);
        return TRUE;
    };
    EnumWindows(visit, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

std::vector<HWND> Children(HWND parent) {
    std::vector<HWND> found;
    auto visit = [](HWND window, LPARAM parameter) -> BOOL {
        reinterpret_cast<std::vector<HWND>*>(parameter)->push_back(window);
        return TRUE;
    };
    EnumChildWindows(parent, visit, reinterpret_cast<LPARAM>(&found));
    return found;
}

HWND ChildWithId(HWND parent, int id) {
    if (HWND direct = GetDlgItem(parent, id)) return direct;
    for (HWND child : Children(parent)) {
        if (GetDlgCtrlID(child) == id) return child;
    }
    return nullptr;
}

HWND FindVisible(DWORD processId, const wchar_t* className, const wchar_t* title) {
    for (HWND window : TopLevelWindows(processId)) {
        if (className && ClassOf(window) != className) continue;
        if (!title || TextOf(window) == title) return window;
    }
    return nullptr;
}

HWND WaitForWindow(DWORD processId, const wchar_t* className, const wchar_t* title, DWORD milliseconds) {
    HWND found = nullptr;
    WaitUntil([&] { return (found = FindVisible(processId, className, title)) != nullptr; }, milliseconds);
    return found;
}

HWND WaitForDialog(DWORD processId, const wchar_t* title, DWORD milliseconds) {
    return WaitForWindow(processId, L"#32770", title, milliseconds);
}

bool WaitUntilGone(HWND window, DWORD milliseconds) {
    return WaitUntil([&] { return !IsWindow(window) || !IsWindowVisible(window); }, milliseconds);
}

bool WaitForTitlePart(HWND window, const std::wstring& part, DWORD milliseconds) {
    return WaitUntil([&] { return TextOf(window).find(part) != std::wstring::npos; }, milliseconds);
}

bool Settle(HWND window, DWORD milliseconds) {
    DWORD_PTR result;
    return SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, milliseconds, &result) != 0;
}

void PostCommand(HWND window, UINT id) { PostMessageW(window, WM_COMMAND, id, 0); }

bool InMenu(HWND window) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    return GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info) && (info.flags & GUI_INMENUMODE) != 0;
}

void PressButton(HWND dialog, int id) {
    PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), reinterpret_cast<LPARAM>(GetDlgItem(dialog, id)));
}

Box ReadBox(HWND window) {
    Box box;
    box.window = window;
    box.title = TextOf(window);
    for (HWND child : Children(window)) {
        std::wstring kind = ClassOf(child);
        if (kind == L"Button") box.buttons.push_back(GetDlgCtrlID(child));
        if (kind != L"Static") continue;
        if ((GetWindowLongW(child, GWL_STYLE) & SS_TYPEMASK) == SS_ICON) {
            box.icon = reinterpret_cast<HICON>(SendMessageW(child, STM_GETICON, 0, 0));
        } else {
            box.text = TextOf(child);
        }
    }
    box.defaultButton = LOWORD(SendMessageW(window, DM_GETDEFID, 0, 0));
    return box;
}

bool AnswerFileDialog(HWND dialog, const std::wstring& path) {
    constexpr int kNameBox = 1148;  // cmb13 of the common dialogs
    HWND name = nullptr;
    // The dialog is visible a little before its controls are filled in.
    if (!WaitUntil([&] { return (name = ChildWithId(dialog, kNameBox)) != nullptr; })) return false;
    Settle(dialog);
    SetText(name, path);
    if (!WaitUntil([&] { return TextOf(name) == path; })) return false;
    PressButton(dialog, IDOK);
    return true;
}

std::string Utf8(const std::wstring& text) {
    int length = static_cast<int>(text.size());
    int bytes = WideCharToMultiByte(CP_UTF8, 0, text.c_str(), length, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<size_t>(bytes), 0);
    WideCharToMultiByte(CP_UTF8, 0, text.c_str(), length, result.data(), bytes, nullptr, nullptr);
    return result;
}

std::wstring Wide(const std::string& utf8) {
    int length = static_cast<int>(utf8.size());
    int characters = MultiByteToWideChar(CP_UTF8, 0, utf8.c_str(), length, nullptr, 0);
    std::wstring result(static_cast<size_t>(characters), 0);
    MultiByteToWideChar(CP_UTF8, 0, utf8.c_str(), length, result.data(), characters);
    return result;
}

}  // namespace ui
