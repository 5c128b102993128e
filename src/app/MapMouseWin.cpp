// MapMouseWin.cpp - see MapMouseWin.h.
#include "app/MapMouseWin.h"

#include <windowsx.h>

#include "app/AppHost.h"
#include "app/CursorsWin.h"
#include "app/MainWindowWin.h"
#include "app/PointerText.h"
#include "app/StatusBarWin.h"
#include "app/ToolCombosWin.h"
#include "dialogs/OverMap.h"
#include "map/MapView.h"
#include "map/Placing.h"
#include "map/ToolCursor.h"
#include "map/Tools.h"
#include "model/ObjectList.h"
#include "platform/PlatformWin.h"

namespace app {

namespace {

platform::Pixel MapPixelOf(LPARAM lParam) { return { GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam) }; }

bool IsOnMap(LPARAM lParam) {
    const RECT area = MapArea();
    return PtInRect(&area, { GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam) });
}

map::KeyState KeysOf(WPARAM wParam) { return { (wParam & MK_SHIFT) != 0, (wParam & MK_CONTROL) != 0 }; }

void ShowMapCursor(platform::Pixel at) {
    const int dpi = platform::DpiOf(platform::MainWindow());
    SetCursor(CursorFor(map::CursorAt(at), map::layers.lights, dpi));
}

// While a button is held the map gets the mouse wherever it is.
void ReleaseWhenIdle() {
    if (!map::tools.pressed && !map::tools.panning && GetCapture() == platform::MainWindow()) ReleaseCapture();
}

void AfterMouse() {
    ShowCommandStates();
    ShowStatus(map::tools.cursor);
}

void OnLeftDown(WPARAM wParam, LPARAM lParam, bool doubleClick) {
    if (!model::state.loaded || !IsOnMap(lParam) || !LeaveToolBoxes()) return;
    UpdateWindow(platform::MainWindow());  // what is pressed is what can be seen
    if (dialogs::TakeMapClick(map::UnderPixel(MapPixelOf(lParam)))) return;
    if (doubleClick)
        map::OnDoubleClick(MapPixelOf(lParam), KeysOf(wParam));
    else
        map::OnButtonDown(MapPixelOf(lParam), KeysOf(wParam));
    if (map::tools.pressed) SetCapture(platform::MainWindow());
    ShowMapCursor(map::tools.cursor);
    AfterMouse();
}

void OnLeftUp(WPARAM wParam, LPARAM lParam) {
    UpdateWindow(platform::MainWindow());  // the map may have scrolled since the last paint
    map::OnButtonUp(MapPixelOf(lParam), KeysOf(wParam));
    ReleaseWhenIdle();
    ShowMapCursor(map::tools.cursor);
    AfterMouse();
}

void OnMiddleDown(LPARAM lParam) {
    if (!IsOnMap(lParam)) return;
    map::OnMiddleDown(MapPixelOf(lParam));
    if (map::tools.panning) SetCapture(platform::MainWindow());
    ShowMapCursor(map::tools.cursor);
}

void OnMiddleUp() {
    map::OnMiddleUp();
    ReleaseWhenIdle();
    ShowMapCursor(map::tools.cursor);
}

void OnMove(WPARAM wParam, LPARAM lParam) {
    map::OnMouseMove(MapPixelOf(lParam), KeysOf(wParam));
    if (GetCapture() == platform::MainWindow()) ShowMapCursor(map::tools.cursor);  // no WM_SETCURSOR comes then
    ShowPointerText();
    ShowStatus(map::tools.cursor);
}

// Something else took the mouse; the release of the button will not be seen here.
void OnCaptureLost() {
    if (GetCapture() == platform::MainWindow()) return;  // taken again by ourselves
    if (map::tools.panning) map::OnMiddleUp();
    map::CancelDrag();
    AfterMouse();
}

// The user has gone to another program with a button held: its release goes there.
void OnProgramLeft() {
    if (GetCapture() == platform::MainWindow()) ReleaseCapture();
}

}  // namespace

bool OnMapCursor() {
    POINT point;
    GetCursorPos(&point);
    ScreenToClient(platform::MainWindow(), &point);
    const RECT area = MapArea();
    if (!PtInRect(&area, point) && !map::tools.panning) return false;
    ShowMapCursor({ point.x, point.y });  // the move to there is told of only after this
    return true;
}

void RefreshMapCursor() {
    POINT screen;
    GetCursorPos(&screen);
    if (!GetCapture() && WindowFromPoint(screen) == platform::MainWindow()) OnMapCursor();
}

bool OnMapMouse(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_MOUSEMOVE: OnMove(wParam, lParam); return true;
    case WM_LBUTTONDOWN: OnLeftDown(wParam, lParam, false); return true;
    case WM_LBUTTONDBLCLK: OnLeftDown(wParam, lParam, true); return true;
    case WM_LBUTTONUP: OnLeftUp(wParam, lParam); return true;
    case WM_MBUTTONDOWN:
    case WM_MBUTTONDBLCLK: OnMiddleDown(lParam); return true;
    case WM_MBUTTONUP: OnMiddleUp(); return true;
    case WM_MOUSEWHEEL:
        map::OnWheel(GET_WHEEL_DELTA_WPARAM(wParam), KeysOf(wParam).ctrl, KeysOf(wParam).shift);
        return true;
    case WM_CAPTURECHANGED: OnCaptureLost(); return true;
    case WM_ACTIVATEAPP:
        if (!wParam) OnProgramLeft();
        return false;
    default: return false;
    }
}

}  // namespace app
