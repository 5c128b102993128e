// EditorWin.cpp - see EditorWin.h.
#include "dialogs/EditorWin.h"

#include <map>
#include <string>

#include "dialogs/DialogHost.h"
#include "dialogs/OverMap.h"
#include "dialogs/Subject.h"
#include "model/CoordinateText.h"
#include "platform/DialogWin.h"
#include "platform/Platform.h"
#include "platform/PlatformWin.h"

namespace dialogs {

namespace {

std::map<int, POINT> leftAt;  // where the user has moved the dialogs, by resource; until the program ends
POINT openedAt;               // the one that is open

const Editor& EditorOf(HWND dialog) { return *static_cast<const Editor*>(platform::DialogData(dialog)); }

void SendTo(HWND dialog, const BadField& bad) {
    const Editor& editor = EditorOf(dialog);
    if (editor.show) editor.show(dialog, bad);
    for (const FieldControl& row : editor.controls) {
        if (row.field == bad.field && row.part == bad.part) return platform::FocusField(dialog, row.control);
    }
}

POINT PlaceOf(HWND dialog) {
    RECT place{};
    GetWindowRect(dialog, &place);
    return { place.left, place.top };
}

// At the right edge of the main window: what is edited, or is to be clicked at, mostly lies in its middle.
void PlaceBesideMap(HWND dialog) {
    constexpr int kFromEdge = 24;  // at 96 dots per inch
    const HWND over = GetWindow(dialog, GW_OWNER);
    RECT main{}, own{};
    GetWindowRect(over, &main);
    GetWindowRect(dialog, &own);
    const LONG right = main.right - platform::ScaleToDpi(kFromEdge, platform::DpiOf(over));
    platform::PlaceDialog(dialog, { right - (own.right - own.left), own.top });
}

void Place(HWND dialog) {
    if (const auto left = leftAt.find(EditorOf(dialog).resource); left != leftAt.end())
        platform::PlaceDialog(dialog, left->second);
    else if (EditorOf(dialog).clicked)
        PlaceBesideMap(dialog);
    openedAt = PlaceOf(dialog);
}

// Only what the user has moved stays there: the others open over the main window, wherever it is then.
void RememberPlace(HWND dialog) {
    const POINT place = PlaceOf(dialog);
    if (place.x != openedAt.x || place.y != openedAt.y) leftAt[EditorOf(dialog).resource] = place;
}

INT_PTR OnInit(HWND dialog, LPARAM data) {
    platform::StartDialog(dialog, data);
    EditorOf(dialog).load(dialog);
    Place(dialog);
    if (EditorOf(dialog).clicked)
        overMap.clicked = [dialog](model::LatLon at) {
            EditorOf(dialog).clicked(dialog, at);
            SetActiveWindow(dialog);  // the user goes on in the fields
        };
    return TRUE;
}

void OnCommand(HWND dialog, int id, int code) {
    switch (id) {
    case IDOK:
        if (StoreOrRefuse(dialog)) platform::EndDialogOverMap(dialog, IDOK);
        break;
    case IDCANCEL: platform::EndDialogOverMap(dialog, IDCANCEL); break;
    case IDHELP: OpenHelpTopic(EditorOf(dialog).topic); break;
    default:
        if (EditorOf(dialog).command) EditorOf(dialog).command(dialog, id, code);
    }
}

INT_PTR CALLBACK EditorProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) return OnInit(dialog, lParam);
    if (!platform::DialogData(dialog)) return FALSE;
    switch (message) {
    case WM_COMMAND: OnCommand(dialog, LOWORD(wParam), HIWORD(wParam)); return TRUE;
    case WM_DESTROY: RememberPlace(dialog); return FALSE;
    case WM_NOTIFY:
        return EditorOf(dialog).notify ? EditorOf(dialog).notify(dialog, reinterpret_cast<NMHDR*>(lParam)) : FALSE;
    default: return FALSE;
    }
}

}  // namespace

bool RunEditor(const Editor& editor) {
    if (overMap.open) return false;  // the open one has its preview and its record
    overMap = { true, {} };
    ShowDialogState();
    const INT_PTR result = platform::RunDialogOverMap(editor.resource, EditorProc, const_cast<Editor*>(&editor));
    overMap = {};
    if (result != IDOK) CancelDialog();
    ShowDialogState();
    platform::RequestRepaint();
    return result == IDOK;
}

bool StoreOrRefuse(HWND dialog) {
    BadField bad;
    const bool stored = EditorOf(dialog).store(dialog, &bad);
    if (!stored) SendTo(dialog, bad);
    return stored;
}

bool ExtendKeyHeld() { return GetKeyState(VK_SHIFT) < 0 || GetKeyState(VK_CONTROL) < 0; }

void ShowPosition(HWND dialog, int latitude, int longitude, const model::CoordinateTexts& texts) {
    platform::LimitField(dialog, latitude, model::kCoordinateTextLimit);
    platform::LimitField(dialog, longitude, model::kCoordinateTextLimit);
    platform::SetFieldText(dialog, latitude, texts.latitude);
    platform::SetFieldText(dialog, longitude, texts.longitude);
}

void LabelUnit(HWND dialog, int control, const char* before, Unit unit, const char* after) {
    platform::SetFieldText(dialog, control, std::string(before) + UnitLabel(unit) + after);
}

model::CoordinateTexts PositionIn(HWND dialog, int latitude, int longitude) {
    return { platform::FieldText(dialog, latitude), platform::FieldText(dialog, longitude) };
}

}  // namespace dialogs
