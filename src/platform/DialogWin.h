// DialogWin.h - what every dialog window needs: opening, fields, choices.
//
// A dialog is an ordinary DLGPROC. Its data pointer arrives as the lParam of WM_INITDIALOG and is found again by
// DialogData. Texts are UTF-8.
#pragma once

#include <windows.h>

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

constexpr UINT kDpiChanged = 0x02E0;  // WM_DPICHANGED of Windows 8.1

// What a dialog with columns posts to itself when that comes, for it gets its new size only then.
constexpr UINT kFitColumns = WM_APP;

// Runs the dialog of that resource modally over the main window, or over the dialog that is active, and returns what
// it was ended with; 0 or less when it could not be made.
INT_PTR RunDialog(int resource, DLGPROC procedure, void* data);

// Opens it beside the main window, hidden until ShowWindow; null when it could not be made. It ends with
// DestroyWindow.
HWND OpenDialog(int resource, DLGPROC procedure, void* data);

// Runs the dialog over the main window, which stays alive so that the map can be moved and clicked; what must not happen
// meanwhile the main window itself refuses. Such a dialog ends with EndDialogOverMap.
INT_PTR RunDialogOverMap(int resource, DLGPROC procedure, void* data);
void EndDialogOverMap(HWND dialog, INT_PTR result);
HWND DialogOverMap();  // null when there is none

// Keys of a modeless dialog beyond those that every dialog has; they also hold while the main window has the focus. Of
// several dialogs the one that was opened last gets them.
void UseKeys(HWND dialog, HACCEL keys);

// The message loop asks first: whether the message was one for an open modeless dialog, which now has it.
bool DialogTookMessage(MSG* message);

// For WM_INITDIALOG: keeps the data pointer and places the dialog over the middle of its owner, on the screen. F1 then
// does what the button IDHELP does.
void StartDialog(HWND dialog, LPARAM data);
// Its upper left corner there, as far as the whole dialog then is on the screen.
void PlaceDialog(HWND dialog, POINT corner);
void* DialogData(HWND dialog);

std::string FieldText(HWND dialog, int control);
void SetFieldText(HWND dialog, int control, std::string_view text);
void LimitField(HWND dialog, int control, size_t characters);

// Where the user is sent after a refusal: the focus, with the whole text selected.
void FocusField(HWND dialog, int control);

bool IsFieldChecked(HWND dialog, int control);
void CheckField(HWND dialog, int control, bool checked);
void EnableField(HWND dialog, int control, bool enabled);
void ShowField(HWND dialog, int control, bool shown);

// A combo or list box. A choice is a position; -1 is none.
void FillChoices(HWND dialog, int control, const std::vector<std::string>& texts);
void FillChoices(HWND dialog, int control, std::span<const char* const> texts);
int ChoiceOf(HWND dialog, int control);
void SetChoice(HWND dialog, int control, int choice);

// A list view: columns whose widths are shares, in hundredths, of what the control shows without a scroll bar.
struct Column {
    const char* title;
    int share;
};
void SetColumns(HWND list, std::span<const Column> columns);
void FitColumns(HWND list, std::span<const Column> columns);  // again, after the control's size has changed

}  // namespace platform
