// ToolCombosWin.cpp - see ToolCombosWin.h.
#include "app/ToolCombosWin.h"

#include <commctrl.h>
#include <string>
#include <vector>

#include "app/AppHost.h"
#include "app/StatusText.h"
#include "app/Timers.h"
#include "app/ToolBoxesWin.h"
#include "app/ToolCombos.h"
#include "dialogs/DesignatorBox.h"
#include "dialogs/OverMap.h"
#include "dialogs/ParkingDialog.h"
#include "map/Tools.h"
#include "model/ObjectList.h"
#include "platform/DialogWin.h"
#include "platform/PlatformWin.h"
#include "platform/WideTextWin.h"
#include "Resource.h"

namespace app {

namespace {

constexpr UINT kComboDelay = 50;  // milliseconds until an opened list is there

struct Boxes {
    std::vector<std::string> designators;  // the texts in the box
    ListTracker tracker;                   // of the list that is open; only one can be
    std::wstring rotationText;
};
Boxes boxes;

bool IsOpen(HWND combo) { return SendMessageW(combo, CB_GETDROPPEDSTATE, 0, 0) != 0; }
int ChosenRow(HWND combo) { return static_cast<int>(SendMessageW(combo, CB_GETCURSEL, 0, 0)); }

void ShowRow(HWND combo, int row) { SendMessageW(combo, CB_SETCURSEL, static_cast<WPARAM>(row), 0); }

std::string TypedText() {
    wchar_t text[dialogs::kTypedLimit + 1] = {};
    GetWindowTextW(toolBoxes.designator, text, static_cast<int>(std::size(text)));
    return platform::Utf8FromWide(text);
}

// Filled without drawing each line.
void Fill(HWND combo, const std::vector<std::string>& texts) {
    SendMessageW(combo, WM_SETREDRAW, FALSE, 0);
    SendMessageW(combo, CB_RESETCONTENT, 0, 0);
    for (const std::string& text : texts)
        SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(platform::WideFromUtf8(text).c_str()));
    SendMessageW(combo, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(combo, nullptr, TRUE);
}

// What is being typed, and where the cursor stands in it, survive.
void FillDesignators(const std::vector<std::string>& texts) {
    boxes.designators = texts;
    const std::wstring typed = platform::WideFromUtf8(TypedText());
    const LRESULT cursor = SendMessageW(toolBoxes.designator, CB_GETEDITSEL, 0, 0);
    Fill(toolBoxes.designator, texts);
    if (!toolCombos.typing) return;
    SetWindowTextW(toolBoxes.designator, typed.c_str());
    SendMessageW(toolBoxes.designator, CB_SETEDITSEL, 0, cursor);
}

void RestoreDesignator() {
    TakeBackTyping();
    ShowRow(toolBoxes.designator, CurrentDesignatorRow());
}

void ShowDesignators() {
    EnableWindow(toolBoxes.designator, model::state.loaded && !dialogs::overMap.open);
    RefreshDesignatorRows();
    if (IsOpen(toolBoxes.designator)) return;
    std::vector<std::string> texts;
    for (const dialogs::DesignatorChoice& row : toolCombos.designators.rows) texts.push_back(row.text);
    if (texts != boxes.designators) FillDesignators(texts);
    if (!toolCombos.typing && ChosenRow(toolBoxes.designator) != CurrentDesignatorRow()) RestoreDesignator();
}

void FillSpecs() {
    RefreshSpecRows();
    std::vector<std::string> texts;
    for (const SpecRow& row : toolCombos.specs) texts.push_back(row.text);
    Fill(toolBoxes.spec, texts);
    ShowRow(toolBoxes.spec, CurrentSpecRow());
}

void RestoreBox(HWND combo) {
    if (combo == toolBoxes.designator) RestoreDesignator();
    if (combo == toolBoxes.type) ShowRow(combo, CurrentTypeRow());
    if (combo == toolBoxes.spec) ShowRow(combo, CurrentSpecRow());
}

// A modal dialog, or one over the map, keeps what it shows from being changed under it.
bool IsHeldByDialog() { return platform::DialogOverMap() || !IsWindowEnabled(platform::MainWindow()); }

void Choose(HWND combo, bool stepped) {
    const int row = ChosenRow(combo);
    if (!IsHeldByDialog()) {
        if (combo == toolBoxes.designator) ChooseDesignator(row);
        if (combo == toolBoxes.type) ChooseType(row);
        if (combo == toolBoxes.spec) ChooseSpec(row, stepped);
    }
    RestoreBox(combo);
    ShowCommandStates();
}

void OnOpened(HWND combo) {
    if (combo != toolBoxes.spec) return;
    FillSpecs();
    SetTimer(platform::MainWindow(), kComboTimer, kComboDelay, nullptr);
}

void OnClosed(HWND combo, ListResult result) {
    if (result == ListResult::Choose) Choose(combo, false);
    if (result == ListResult::Restore) RestoreBox(combo);
    if (combo != toolBoxes.designator || result == ListResult::Choose) SetFocus(platform::MainWindow());
}

void OnListEvent(HWND combo, ListEvent event) {
    const ListResult result = FollowList(&boxes.tracker, event, IsOpen(combo));
    if (event == ListEvent::Opened) return OnOpened(combo);
    if (event == ListEvent::Closed) return OnClosed(combo, result);
    if (result == ListResult::Choose) Choose(combo, true);
}

void ShowTyped() {
    ShowDesignators();
    RestoreDesignator();
    ShowCommandStates();
}

void OnTypingLeft() {
    if (LeaveTyping(TypedText(), IsHeldByDialog())) ShowTyped();
}

bool HandleEditKey(WPARAM key) {
    switch (TypingKeyOf(static_cast<int>(key), IsOpen(toolBoxes.designator))) {
    case TypingKey::Finish: PostMessageW(platform::MainWindow(), kTypingFinished, 0, 0); return true;
    case TypingKey::TakeBack:
        RestoreDesignator();
        SetFocus(platform::MainWindow());
        return true;
    default: return false;
    }
}

LRESULT CALLBACK EditProc(HWND edit, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) {
    if (message == WM_KEYDOWN && HandleEditKey(wParam)) return 0;
    if (message == WM_CHAR && IsTypingKeyCharacter(static_cast<int>(wParam)))
        return 0;  // an edit control beeps at these
    return DefSubclassProc(edit, message, wParam, lParam);
}

void PrepareBox(int id) {
    if (id == IDC_DESIGNATOR) {
        SendMessageW(toolBoxes.designator, CB_LIMITTEXT, dialogs::kTypedLimit, 0);
        if (const HWND edit = EditOf(toolBoxes.designator)) SetWindowSubclass(edit, EditProc, 0, 0);
    }
    if (id == IDC_PARKING_TYPE) Fill(toolBoxes.type, dialogs::ParkingTypeChoices());
    if (id == IDC_PARKING_SPEC) FillSpecs();
}

}  // namespace

HWND CreateToolBox(HWND toolbar, int id) {
    const HWND box = MakeToolBox(toolbar, id);
    if (box) PrepareBox(id);
    return box;
}

void ShowToolBoxes() {
    if (!toolBoxes.designator || !toolBoxes.type || !toolBoxes.spec) return;
    ShowDesignators();
    if (!IsOpen(toolBoxes.type) && ChosenRow(toolBoxes.type) != CurrentTypeRow())
        ShowRow(toolBoxes.type, CurrentTypeRow());
}

void ShowRotation() {
    const std::wstring text = platform::WideFromUtf8(RotationText());
    if (!toolBoxes.rotation || text == boxes.rotationText) return;
    boxes.rotationText = text;
    SetWindowTextW(toolBoxes.rotation, text.c_str());
}

bool OnComboNotice(int id, int code) {
    const HWND combo = BoxOf(id);
    if (!combo) return false;
    switch (code) {
    case CBN_DROPDOWN: OnListEvent(combo, ListEvent::Opened); break;
    case CBN_SELENDOK: OnListEvent(combo, ListEvent::Accepted); break;
    case CBN_SELENDCANCEL: OnListEvent(combo, ListEvent::Cancelled); break;
    case CBN_SELCHANGE: OnListEvent(combo, ListEvent::Moved); break;
    case CBN_CLOSEUP: OnListEvent(combo, ListEvent::Closed); break;
    case CBN_EDITCHANGE: StartTyping(); break;
    case CBN_KILLFOCUS: OnTypingLeft(); break;
    default: break;
    }
    return true;
}

void OnComboTimer() {
    KillTimer(platform::MainWindow(), kComboTimer);
    // The list itself is told: not every system's combo box passes CB_SETTOPINDEX on.
    if (IsOpen(toolBoxes.spec)) SendMessageW(PartsOf(toolBoxes.spec).hwndList, LB_SETTOPINDEX, 0, 0);
}

void CommitTypedDesignator() {
    if (FinishTyping(TypedText(), IsHeldByDialog())) ShowTyped();
    SetFocus(platform::MainWindow());
}

bool LeaveToolBoxes() {
    const bool asks = NeedsQuestion(TypedText());
    CommitTypedDesignator();
    return !asks;
}

}  // namespace app
