// MainWindowWin.cpp - the main window: layout, painting, and input passed on to the map and the command table.
//
// The map has the whole client area; the toolbars and the status bar lie over it. What they leave of it takes the mouse.
#include "app/MainWindowWin.h"

#include <windowsx.h>

#include <commctrl.h>

#include "app/Airport.h"
#include "app/AppHost.h"
#include "app/Commands.h"
#include "app/CursorsWin.h"
#include "app/Keys.h"
#include "app/MapMenuWin.h"
#include "app/MapMouseWin.h"
#include "app/MapSurfaceWin.h"
#include "app/Notices.h"
#include "app/PointerText.h"
#include "app/Program.h"
#include "app/SessionWin.h"
#include "app/StatusBarWin.h"
#include "app/Timers.h"
#include "app/Toolbar.h"
#include "app/ToolbarWin.h"
#include "app/ToolCombosWin.h"
#include "app/ViewCommands.h"
#include "dialogs/ListWin.h"
#include "map/ApronTool.h"
#include "map/MapHost.h"
#include "map/Tools.h"
#include "model/ObjectList.h"
#include "platform/CanvasGdiWin.h"
#include "platform/DialogWin.h"
#include "platform/PlatformWin.h"
#include "platform/WideTextWin.h"
#include "Resource.h"

namespace app {

namespace {

constexpr wchar_t kName[] = L"Tarvo";

struct Window {
    HWND handle = nullptr, rebar = nullptr, statusBar = nullptr;
    int dpi = 96;
};
Window window;

int HeightOf(HWND child) {
    RECT rect{};
    GetWindowRect(child, &rect);
    return rect.bottom - rect.top;
}

void LayOut() {
    RECT client{};
    GetClientRect(window.handle, &client);
    FitToolbars(client.right);
    SendMessageW(window.statusBar, WM_SIZE, 0, 0);
    MeasureMap(client, MapArea());
    platform::RequestRepaint();
}

bool OnCreate(HWND handle) {
    window.handle = handle;
    window.dpi = platform::DpiOf(handle);
    platform::UseMainWindow(handle);
    LoadProgramFiles();
    window.rebar = CreateToolbars(handle, window.dpi);
    window.statusBar = CreateStatusBar(handle, window.dpi);
    if (!window.rebar || !window.statusBar) return false;
    SetWindowTitle(TitleText());
    ShowRecentAirports();
    ShowCommandStates();
    LayOut();
    return OpenSession(handle);
}

void OnPaint() {
    PAINTSTRUCT paint;
    const HDC dc = BeginPaint(window.handle, &paint);
    RECT client{};
    GetClientRect(window.handle, &client);
    PaintMapArea(dc, client, MapArea(), window.dpi / 96.0);
    EndPaint(window.handle, &paint);
    DropOldRemark();                // the airport may have been edited
    ShowPointerText();              // something else may lie under the pointer
    ShowStatus(map::tools.cursor);  // the map may have moved under the pointer
    RefreshMapCursor();
    ShowRotation();
    dialogs::RefreshLists();
}

void OnDpiChanged(int dpi, const RECT* proposed) {
    window.dpi = dpi;
    platform::FreeGdiFonts();
    ScaleToolbars(dpi);
    ScaleStatusBar(dpi);
    if (proposed)
        SetWindowPos(window.handle, nullptr, proposed->left, proposed->top, proposed->right - proposed->left,
                     proposed->bottom - proposed->top, SWP_NOZORDER | SWP_NOACTIVATE);
    LayOut();
}

void OnKey(WPARAM key) {
    const KeyModifiers held = { GetKeyState(VK_CONTROL) < 0, GetKeyState(VK_SHIFT) < 0 };
    const int drawing = map::HasOutline() ? CommandForOutlineKey(static_cast<int>(key)) : 0;
    if (const int command = drawing ? drawing : CommandForKey(static_cast<int>(key), held)) RunCommand(command);
}

// From a menu, a toolbar, or a box in a toolbar.
void OnCommand(WPARAM wParam, LPARAM lParam) {
    if (lParam != 0 && OnComboNotice(LOWORD(wParam), HIWORD(wParam))) return;
    RunCommand(LOWORD(wParam));
}

void AnswerTooltip(NMTTDISPINFOW* question) {
    static std::wstring text;  // the control reads it after we have returned
    const char* tooltip = ToolTipFor(static_cast<int>(question->hdr.idFrom));
    if (!tooltip) return;
    text = platform::WideFromUtf8(tooltip);
    question->lpszText = text.data();
}

LRESULT OnNotify(NMHDR* notice) {
    if (notice->code == TTN_GETDISPINFOW) AnswerTooltip(reinterpret_cast<NMTTDISPINFOW*>(notice));
    if (notice->code == static_cast<UINT>(RBN_HEIGHTCHANGE) && window.statusBar) LayOut();
    return 0;
}

// By the right button at the pointer, by the keyboard in the middle of the map.
bool OnContextMenu(HWND clicked, LPARAM lParam) {
    if (clicked != window.handle || !MayOpenMapMenu()) return false;
    const RECT area = MapArea();
    POINT client = { (area.left + area.right) / 2, (area.top + area.bottom) / 2 };
    if (lParam != -1) {
        client = { GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam) };
        ScreenToClient(window.handle, &client);
    }
    if (!PtInRect(&area, client)) return false;
    UpdateWindow(window.handle);  // the menu is about what can be seen
    POINT screen = client;
    ClientToScreen(window.handle, &screen);
    ShowMapMenu(window.handle, screen, { client.x, client.y });
    return true;
}

void OnDestroy() {
    platform::UseMainWindow(nullptr);
    FreeMapSurface();
    FreeCursors();
    platform::FreeGdiFonts();
    model::ClearModel();
    PostQuitMessage(0);
}

LRESULT CALLBACK MainWindowProc(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    if (handle == window.handle && OnMapMouse(message, wParam, lParam)) return 0;
    switch (message) {
    case WM_CREATE: return OnCreate(handle) ? 0 : -1;
    case WM_SIZE:
        if (wParam != SIZE_MINIMIZED) LayOut();
        return 0;
    case WM_ERASEBKGND: return 1;  // the paint covers everything
    case WM_PAINT: OnPaint(); return 0;
    case WM_KEYDOWN: OnKey(wParam); return 0;
    case WM_COMMAND: OnCommand(wParam, lParam); return 0;
    case kTypingFinished: CommitTypedDesignator(); return 0;
    case WM_NOTIFY: return OnNotify(reinterpret_cast<NMHDR*>(lParam));
    case WM_INITMENUPOPUP: ShowCommandStates(); return 0;
    case WM_SETCURSOR:
        if (LOWORD(lParam) == HTCLIENT && reinterpret_cast<HWND>(wParam) == handle && OnMapCursor()) return TRUE;
        break;
    case WM_SYSCOLORCHANGE:
        SendMessageW(window.rebar, message, wParam, lParam);
        SendMessageW(window.statusBar, message, wParam, lParam);
        return 0;
    case platform::kDpiChanged: OnDpiChanged(LOWORD(wParam), reinterpret_cast<const RECT*>(lParam)); return 0;
    case WM_CONTEXTMENU:
        if (OnContextMenu(reinterpret_cast<HWND>(wParam), lParam)) return 0;
        break;
    case WM_TIMER:
        if (wParam == kComboTimer) OnComboTimer();
        if (wParam == kDragTimer) map::OnDragTimer();
        OnTimer(wParam);
        return 0;
    case WM_DROPFILES: OnDroppedFiles(handle, reinterpret_cast<HDROP>(wParam)); return 0;
    case WM_QUERYENDSESSION: return OnQueryEndSession(handle, lParam);
    case WM_ENDSESSION: OnEndSession(wParam != 0, lParam); return 0;
    case WM_CLOSE: OnClose(handle); return 0;
    case WM_DESTROY: OnDestroy(); return 0;
    default: break;
    }
    return DefWindowProcW(handle, message, wParam, lParam);
}

}  // namespace

RECT MapArea() {
    RECT area{};
    GetClientRect(window.handle, &area);
    area.top += HeightOf(window.rebar);
    area.bottom -= HeightOf(window.statusBar);
    return area;
}

bool RegisterMainWindow(HINSTANCE instance) {
    WNDCLASSEXW shape{};
    shape.cbSize = sizeof shape;
    shape.style = CS_HREDRAW | CS_VREDRAW | CS_DBLCLKS | CS_OWNDC;
    shape.lpfnWndProc = MainWindowProc;
    shape.hInstance = instance;
    shape.hIcon = LoadIconW(instance, MAKEINTRESOURCEW(IDI_TARVO));
    shape.hIconSm =
        static_cast<HICON>(LoadImageW(instance, MAKEINTRESOURCEW(IDI_TARVO), IMAGE_ICON, GetSystemMetrics(SM_CXSMICON),
                                      GetSystemMetrics(SM_CYSMICON), LR_SHARED));
    shape.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    shape.hbrBackground = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
    shape.lpszMenuName = MAKEINTRESOURCEW(IDR_MAIN_MENU);
    shape.lpszClassName = kName;
    return RegisterClassExW(&shape) != 0;
}

HWND CreateMainWindow(HINSTANCE instance) {
    return CreateWindowExW(0, kName, kName, WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CW_USEDEFAULT, CW_USEDEFAULT,
                           CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr, instance, nullptr);
}

}  // namespace app

namespace map {

void RotationChanged() { app::ShowRotation(); }

}  // namespace map
