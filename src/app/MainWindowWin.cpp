// MainWindowWin.cpp - the main window: layout, painting, and input passed on to the map and the command table.
//
// The map is the part of the client area between the toolbars and the status bar. Pixels of the map count from its
// upper left corner.
#include "app/MainWindowWin.h"

#include <windowsx.h>

#include <commctrl.h>

#include "app/Airport.h"
#include "app/AppHost.h"
#include "app/Commands.h"
#include "app/Keys.h"
#include "app/MapSurfaceWin.h"
#include "app/SaveAirport.h"
#include "app/StatusBarWin.h"
#include "app/Toolbar.h"
#include "app/ToolbarWin.h"
#include "map/MapHost.h"
#include "map/MapView.h"
#include "map/Tools.h"
#include "model/ObjectList.h"
#include "platform/CanvasGdiWin.h"
#include "platform/PlatformWin.h"
#include "platform/WideTextWin.h"
#include "Resource.h"

namespace app {

namespace {

constexpr wchar_t kName[] = L"Tarvo";
constexpr UINT kDpiChanged = 0x02E0;  // WM_DPICHANGED of Windows 8.1

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

RECT MapArea() {
    RECT area{};
    GetClientRect(window.handle, &area);
    area.top += HeightOf(window.rebar);
    area.bottom -= HeightOf(window.statusBar);
    return area;
}

platform::Pixel ToMap(POINT client) {
    const RECT area = MapArea();
    return { client.x - area.left, client.y - area.top };
}

platform::Pixel MapPixelOf(LPARAM lParam) { return ToMap({ GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam) }); }

bool IsOnMap(LPARAM lParam) {
    const RECT area = MapArea();
    return PtInRect(&area, { GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam) });
}

map::KeyState KeysOf(WPARAM wParam) { return { (wParam & MK_SHIFT) != 0, (wParam & MK_CONTROL) != 0 }; }

void LayOut() {
    SendMessageW(window.rebar, WM_SIZE, 0, 0);
    SendMessageW(window.statusBar, WM_SIZE, 0, 0);
    const RECT area = MapArea();
    if (area.right > area.left && area.bottom > area.top)
        map::ResizeView(area.right - area.left, area.bottom - area.top);
    platform::RequestRepaint();
}

bool OnCreate(HWND handle) {
    window.handle = handle;
    window.dpi = platform::DpiOf(handle);
    platform::UseMainWindow(handle);
    window.rebar = CreateToolbars(handle, window.dpi);
    window.statusBar = CreateStatusBar(handle, window.dpi);
    if (!window.rebar || !window.statusBar) return false;
    SetWindowTitle(TitleText());
    ShowCommandStates();
    LayOut();
    return true;
}

void OnPaint() {
    PAINTSTRUCT paint;
    const HDC dc = BeginPaint(window.handle, &paint);
    PaintMapArea(dc, MapArea(), window.dpi / 96.0);
    EndPaint(window.handle, &paint);
    ShowStatus(map::tools.cursor);  // the map may have moved under the pointer
}

void OnDpiChanged(int dpi, const RECT& proposed) {
    window.dpi = dpi;
    platform::FreeGdiFonts();
    ScaleToolbars(dpi);
    ScaleStatusBar(dpi);
    SetWindowPos(window.handle, nullptr, proposed.left, proposed.top, proposed.right - proposed.left,
                 proposed.bottom - proposed.top, SWP_NOZORDER | SWP_NOACTIVATE);
    LayOut();
}

LPCWSTR CursorOfMap() {
    if (map::tools.panning) return IDC_HAND;
    return map::tools.tool == map::Tool::Pointer ? IDC_ARROW : IDC_CROSS;
}

void ShowMapCursor() { SetCursor(LoadCursorW(nullptr, CursorOfMap())); }

bool OnSetCursor() {
    POINT point;
    GetCursorPos(&point);
    ScreenToClient(window.handle, &point);
    const RECT area = MapArea();
    if (!PtInRect(&area, point) && !map::tools.panning) return false;
    ShowMapCursor();
    return true;
}

// While a button is held the map gets the mouse wherever it is.
void ReleaseWhenIdle() {
    if (!map::tools.pressed && !map::tools.panning && GetCapture() == window.handle) ReleaseCapture();
}

void AfterMouse() {
    ShowCommandStates();
    ShowStatus(map::tools.cursor);
}

void OnLeftDown(WPARAM wParam, LPARAM lParam) {
    if (!model::state.loaded || !IsOnMap(lParam)) return;
    SetCapture(window.handle);
    map::OnButtonDown(MapPixelOf(lParam), KeysOf(wParam));
    AfterMouse();
    UpdateWindow(window.handle);  // the next press must find what this one made
}

void OnLeftUp(WPARAM wParam, LPARAM lParam) {
    map::OnButtonUp(MapPixelOf(lParam), KeysOf(wParam));
    ReleaseWhenIdle();
    AfterMouse();
}

void OnMiddleDown(LPARAM lParam) {
    if (!IsOnMap(lParam)) return;
    SetCapture(window.handle);
    map::OnMiddleDown(MapPixelOf(lParam));
    ShowMapCursor();
}

void OnMiddleUp() {
    map::OnMiddleUp();
    ReleaseWhenIdle();
    ShowMapCursor();
}

void OnMove(WPARAM wParam, LPARAM lParam) {
    map::OnMouseMove(MapPixelOf(lParam), KeysOf(wParam));
    ShowStatus(map::tools.cursor);
}

// Something else took the mouse; the release of the button will not be seen here.
void OnCaptureLost() {
    if (map::tools.panning) map::OnMiddleUp();
    if (map::tools.pressed) map::OnButtonUp(map::tools.cursor, {});
    AfterMouse();
}

void OnKey(WPARAM key) {
    const KeyModifiers held = { GetKeyState(VK_CONTROL) < 0, GetKeyState(VK_SHIFT) < 0 };
    if (const int command = CommandForKey(static_cast<int>(key), held)) RunCommand(command);
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

// A dialog in front of the window must be answered first. A drag ends here, so that it counts as a change.
bool MayClose() {
    if (!IsWindowEnabled(window.handle)) return false;
    if (GetCapture() == window.handle) ReleaseCapture();
    return SavePrompt();
}

void OnDestroy() {
    platform::UseMainWindow(nullptr);
    FreeMapSurface();
    platform::FreeGdiFonts();
    model::ClearModel();
    PostQuitMessage(0);
}

bool HandleMouse(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_MOUSEMOVE: OnMove(wParam, lParam); return true;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK: OnLeftDown(wParam, lParam); return true;
    case WM_LBUTTONUP: OnLeftUp(wParam, lParam); return true;
    case WM_MBUTTONDOWN:
    case WM_MBUTTONDBLCLK: OnMiddleDown(lParam); return true;
    case WM_MBUTTONUP: OnMiddleUp(); return true;
    case WM_MOUSEWHEEL:
        map::OnWheel(GET_WHEEL_DELTA_WPARAM(wParam), KeysOf(wParam).ctrl, KeysOf(wParam).shift);
        return true;
    case WM_CAPTURECHANGED: OnCaptureLost(); return true;
    default: return false;
    }
}

LRESULT CALLBACK MainWindowProc(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    if (handle == window.handle && HandleMouse(message, wParam, lParam)) return 0;
    switch (message) {
    case WM_CREATE: return OnCreate(handle) ? 0 : -1;
    case WM_SIZE:
        if (wParam != SIZE_MINIMIZED) LayOut();
        return 0;
    case WM_ERASEBKGND: return 1;  // the paint covers everything
    case WM_PAINT: OnPaint(); return 0;
    case WM_KEYDOWN: OnKey(wParam); return 0;
    case WM_COMMAND: RunCommand(LOWORD(wParam)); return 0;
    case WM_NOTIFY: return OnNotify(reinterpret_cast<NMHDR*>(lParam));
    case WM_INITMENUPOPUP: ShowCommandStates(); return 0;
    case WM_SETCURSOR:
        if (LOWORD(lParam) == HTCLIENT && reinterpret_cast<HWND>(wParam) == handle && OnSetCursor()) return TRUE;
        break;
    case WM_SYSCOLORCHANGE:
        SendMessageW(window.rebar, message, wParam, lParam);
        SendMessageW(window.statusBar, message, wParam, lParam);
        return 0;
    case kDpiChanged: OnDpiChanged(LOWORD(wParam), *reinterpret_cast<const RECT*>(lParam)); return 0;
    case WM_QUERYENDSESSION: return MayClose();
    case WM_CLOSE:
        if (MayClose()) DestroyWindow(handle);
        return 0;
    case WM_DESTROY: OnDestroy(); return 0;
    default: break;
    }
    return DefWindowProcW(handle, message, wParam, lParam);
}

}  // namespace

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

void RotationChanged() { app::ShowStatus(tools.cursor); }

// Nothing to place while there is no link to the simulator.
void PlaceSimAircraft(model::LatLon, double) {}

}  // namespace map
