// UiAgentClient.cpp - the driver's end of agent.dll.
#include <cwchar>

#include "UiAgent.h"
#include "UiControls.h"
#include "UiDriver.h"

namespace ui {
namespace {

std::wstring AgentPath() {
    wchar_t path[MAX_PATH] = L"";
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    std::wstring folder = path;
    return folder.substr(0, folder.find_last_of(L'\\') + 1) + L"agent.dll";
}

HWND AgentWindowOf(HWND window) {
    wchar_t title[32];
    swprintf(title, 32, L"%u", static_cast<unsigned>(ProcessOf(window)));
    return FindWindowW(kAgentClass, title);
}

std::vector<std::wstring> Split(const std::wstring& text, wchar_t separator) {
    std::vector<std::wstring> parts;
    size_t start = 0;
    for (size_t end; (end = text.find(separator, start)) != std::wstring::npos; start = end + 1) {
        parts.push_back(text.substr(start, end - start));
    }
    parts.push_back(text.substr(start));
    return parts;
}

}  // namespace

bool AttachAgent(HWND mainWindow, Agent* agent) {
    HMODULE library = LoadLibraryW(AgentPath().c_str());
    if (!library) return false;
    auto procedure = reinterpret_cast<HOOKPROC>(reinterpret_cast<void*>(GetProcAddress(library, "AgentHook")));
    DWORD thread = GetWindowThreadProcessId(mainWindow, nullptr);
    agent->hook = SetWindowsHookExW(WH_GETMESSAGE, procedure, library, thread);
    if (!agent->hook) return false;
    agent->target = mainWindow;
    return WaitUntil([&] {
        PostMessageW(mainWindow, WM_NULL, 0, 0);  // the hook acts when the thread takes a message
        return (agent->window = AgentWindowOf(mainWindow)) != nullptr;
    });
}

void DetachAgent(Agent* agent) {
    if (agent->hook) UnhookWindowsHookEx(agent->hook);
    *agent = {};
}

UINT MenuState(const Agent& agent, UINT id) {
    return static_cast<UINT>(SendMessageW(agent.window, kAgentMenuState, id, reinterpret_cast<LPARAM>(agent.target)));
}

std::vector<MenuEntry> ReadMenu(const Agent& agent) {
    RemoteMemory memory(agent.window, kAgentBufferBytes);
    LRESULT length = SendMessageW(agent.window, kAgentMenuDump, reinterpret_cast<WPARAM>(agent.target),
                                  reinterpret_cast<LPARAM>(memory.address));
    std::wstring dump(static_cast<size_t>(length), 0);
    memory.Get(dump.data(), dump.size() * sizeof(wchar_t));
    std::vector<MenuEntry> entries;
    for (const std::wstring& line : Split(dump, L'\n')) {
        std::vector<std::wstring> fields = Split(line, kAgentFieldSeparator);
        if (fields.size() != 5) continue;
        auto number = [&](size_t i) { return static_cast<UINT>(wcstoul(fields[i].c_str(), nullptr, 10)); };
        entries.push_back({ static_cast<int>(number(0)), number(1), number(2), number(3), fields[4] });
    }
    return entries;
}

bool SettlePosted(const Agent& agent) {
    const LRESULT before = SendMessageW(agent.window, kAgentMarks, 0, 0);
    PostMessageW(agent.window, kAgentMark, 0, 0);
    return WaitUntil([&] { return SendMessageW(agent.window, kAgentMarks, 0, 0) != before; });
}

int KeyState(const Agent& agent, int key) {
    return static_cast<int>(SendMessageW(agent.window, kAgentKeyState, static_cast<WPARAM>(key), 0));
}

void HoldKey(const Agent& agent, int key, bool down) {
    SendMessageW(agent.window, kAgentSetKey, static_cast<WPARAM>(key), down ? 0x80 : 0);
}

int StockIcon(const Agent& agent, HICON icon) {
    return static_cast<int>(SendMessageW(agent.window, kAgentIcon, reinterpret_cast<WPARAM>(icon), 0));
}

int StockCursor(const Agent& agent) { return static_cast<int>(SendMessageW(agent.window, kAgentCursor, 0, 0)); }

POINT CursorHotSpot(const Agent& agent) {
    const LRESULT spot = SendMessageW(agent.window, kAgentHotSpot, 0, 0);
    return { static_cast<short>(LOWORD(spot)), static_cast<short>(HIWORD(spot)) };
}

GuiObjects CountGuiObjects(const Agent& agent) {
    return { static_cast<int>(SendMessageW(agent.window, kAgentGdiObjects, 0, 0)),
             static_cast<int>(SendMessageW(agent.window, kAgentUserObjects, 0, 0)) };
}

void CatchCommands(const Agent& agent, bool on) { SendMessageW(agent.window, kAgentCatch, on ? 1 : 0, 0); }

UINT CaughtCommand(const Agent& agent) { return static_cast<UINT>(SendMessageW(agent.window, kAgentCaught, 0, 0)); }

bool DropFile(const Agent& agent, const std::wstring& path) {
    const RemoteMemory memory(agent.window, (path.size() + 1) * sizeof(wchar_t));
    return memory.Put(path.c_str(), (path.size() + 1) * sizeof(wchar_t)) &&
           SendMessageW(agent.window, kAgentDrop, reinterpret_cast<WPARAM>(agent.target),
                        reinterpret_cast<LPARAM>(memory.address)) != 0;
}

bool SendUninterrupted(const std::vector<MouseMessage>& messages) {
    const HWND agent = messages.empty() ? nullptr : AgentWindowOf(messages[0].window);
    if (!agent) return false;
    const RemoteMemory memory(agent, messages.size() * sizeof(MouseMessage));
    if (!memory.Put(messages.data(), messages.size() * sizeof(MouseMessage))) return false;
    SendMessageW(agent, kAgentMouse, messages.size(), reinterpret_cast<LPARAM>(memory.address));
    return true;
}

bool ShowPainted(HWND window) {
    const HWND agent = AgentWindowOf(window);
    return agent && SendMessageW(agent, kAgentShow, 0, reinterpret_cast<LPARAM>(window)) != 0;
}

HWND FocusOf(const Agent& agent) { return reinterpret_cast<HWND>(SendMessageW(agent.window, kAgentFocus, 0, 0)); }

}  // namespace ui
