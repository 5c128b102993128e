// ProgressWin.cpp - the progress box (bgl/LibraryHost.h), a modal dialog on a thread of its own, for the thread that
// shows it is the one that works.
//
// The box has no owner: an owner on another thread would join the two input queues, and the box would wait for a
// thread that is busy. It lies on top and never takes the activation, so none needs to be given back. Keys and clicks
// meant for the dialog under it wait in that thread's queue. The two threads share the handle of the box, and the word
// that it is to close; both hold that until they are done with it, so that a box that is late disturbs no later one.
#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <atomic>
#include <memory>
#include <string>

#include "bgl/LibraryHost.h"
#include "platform/PlatformWin.h"
#include "platform/WideTextWin.h"
#include "ProgressIds.h"

namespace app {

namespace {

constexpr UINT kClose = WM_APP;
constexpr DWORD kPollMilliseconds = 100, kPatience = 2000;

struct Box {
    std::atomic<HWND> window = nullptr;
    std::atomic<bool> closed = false;  // also before there is a window
    HWND under = nullptr;
    HANDLE isUp = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    Box() = default;
    Box(const Box&) = delete;
    Box& operator=(const Box&) = delete;
    ~Box() {
        if (isUp) CloseHandle(isUp);
    }
};

HANDLE thread;
std::shared_ptr<Box> box;

HWND BoxWindow() { return box ? box->window.load() : nullptr; }

// Moves the box over the middle of that window. It may change its size on the way, where the screens' resolutions
// differ, hence twice.
void PlaceOver(HWND dialog, HWND under) {
    for (int pass = 0; pass < 2; ++pass) {
        RECT area{}, own{};
        GetWindowRect(under && !IsIconic(under) ? under : GetDesktopWindow(), &area);
        GetWindowRect(dialog, &own);
        const LONG x = (area.left + area.right - (own.right - own.left)) / 2;
        const LONG y = (area.top + area.bottom - (own.bottom - own.top)) / 2;
        SetWindowPos(dialog, HWND_TOPMOST, x, y, 0, 0, SWP_NOSIZE | SWP_NOACTIVATE);
    }
}

INT_PTR OnInit(HWND dialog, Box* own) {
    own->window = dialog;
    if (own->closed) {  // whoever closes it sees the window, or is seen here
        EndDialog(dialog, 0);
        return FALSE;
    }
    SendDlgItemMessageW(dialog, IDC_PROGRESS_BAR, PBM_SETRANGE, 0, MAKELPARAM(0, 100));
    PlaceOver(dialog, own->under);
    ShowWindow(dialog, SW_SHOWNOACTIVATE);
    SetEvent(own->isUp);
    return FALSE;  // the focus stays where it is
}

INT_PTR CALLBACK BoxProc(HWND dialog, UINT message, WPARAM, LPARAM lParam) {
    switch (message) {
    case WM_INITDIALOG: return OnInit(dialog, reinterpret_cast<Box*>(lParam));
    case WM_MOUSEACTIVATE: SetWindowLongPtrW(dialog, DWLP_MSGRESULT, MA_NOACTIVATE); return TRUE;
    case kClose: EndDialog(dialog, 0); return TRUE;
    default: return FALSE;
    }
}

DWORD WINAPI RunBox(void* parameter) {
    const std::unique_ptr<std::shared_ptr<Box>> own(static_cast<std::shared_ptr<Box>*>(parameter));
    DialogBoxParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDD_PROGRESS), nullptr, BoxProc,
                    reinterpret_cast<LPARAM>(own->get()));
    (*own)->window = nullptr;
    return 0;
}

// The working thread's windows are painted, and the system sees that the program lives. Input stays in the queue.
void PaintWindows() {
    constexpr int kMost = 64;  // a window that never counts as painted must not hold the work
    MSG message;
    for (int i = 0; i < kMost && PeekMessageW(&message, nullptr, WM_PAINT, WM_PAINT, PM_REMOVE); ++i) {
        if (message.message == WM_QUIT) {  // it comes whatever is asked for, and belongs to the program's own loop
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        DispatchMessageW(&message);
    }
}

// A box that is not there yet ends when it comes up.
void CloseBox() {
    box->closed = true;
    if (const HWND dialog = BoxWindow()) PostMessageW(dialog, kClose, 0, 0);
}

void WaitForEnd() {
    const DWORD start = GetTickCount();
    while (GetTickCount() - start < kPatience) {
        if (MsgWaitForMultipleObjects(1, &thread, FALSE, kPollMilliseconds, QS_SENDMESSAGE) == WAIT_OBJECT_0) return;
        PaintWindows();
    }
}

bool StartThread() {
    box = std::make_shared<Box>();
    if (!box->isUp) return false;
    box->under = platform::MainWindow() ? GetLastActivePopup(platform::MainWindow()) : nullptr;
    auto shared = std::make_unique<std::shared_ptr<Box>>(box);
    thread = CreateThread(nullptr, 0, RunBox, shared.get(), 0, nullptr);
    if (thread) shared.release();  // the thread's now
    return thread != nullptr;
}

// Until the box is there, or its thread has ended without one: then the work goes on unseen.
void WaitForBox() {
    const HANDLE events[] = { box->isUp, thread };
    const DWORD start = GetTickCount();
    while (GetTickCount() - start < kPatience) {
        if (WaitForMultipleObjects(2, events, FALSE, kPollMilliseconds) != WAIT_TIMEOUT) return;
        PaintWindows();
    }
}

void ShowBoxText(const std::string& text) {
    const HWND dialog = BoxWindow();
    const std::wstring wide = platform::WideFromUtf8(text);
    if (dialog)
        SendMessageTimeoutW(GetDlgItem(dialog, IDC_PROGRESS_TEXT), WM_SETTEXT, 0,
                            reinterpret_cast<LPARAM>(wide.c_str()), SMTO_ABORTIFHUNG, kPatience, nullptr);
}

}  // namespace

}  // namespace app

namespace bgl {

void ShowProgress(const std::string& text) {
    if (!app::thread && app::StartThread()) app::WaitForBox();
    app::ShowBoxText(text);
    SetProgress(0);
}

void SetProgress(int percent) {
    const HWND dialog = app::BoxWindow();
    const auto position = static_cast<WPARAM>(std::clamp(percent, 0, 100));
    if (dialog) PostMessageW(GetDlgItem(dialog, IDC_PROGRESS_BAR), PBM_SETPOS, position, 0);
    app::PaintWindows();
}

void CloseProgress() {
    if (!app::thread) return;
    app::CloseBox();
    app::WaitForEnd();
    CloseHandle(app::thread);
    app::thread = nullptr;
    app::box.reset();
}

void FinishProgress() {
    SetProgress(100);
    Sleep(kFullBarMilliseconds);
    CloseProgress();
}

}  // namespace bgl
