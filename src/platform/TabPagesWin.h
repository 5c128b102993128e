// TabPagesWin.h - a dialog of several pages: a tab control, and for each tab a child dialog that lies over it.
//
// The tab control comes last in the dialog's template, has no other control behind it and WS_CLIPSIBLINGS; the
// templates of the pages are made with DS_CONTROL | WS_CHILD and are no larger than the inside of the tab control.
#pragma once

#include <windows.h>

#include <span>

namespace platform {

struct TabPage {
    const char* title;
    int resource;
};

// For WM_INITDIALOG. The pages come first in the tab order; the first one shows and gets the focus. What a control of
// a page notifies by WM_COMMAND the dialog gets, as if the control were its own.
void MakePages(HWND dialog, int tab, std::span<const TabPage> pages);

HWND PageWindow(HWND dialog, int tab, int page);
int PageShown(HWND dialog, int tab);

// The dialog gets TCN_SELCHANGE, as it does when the user chooses a tab, and answers with ShowChosenPage.
void TurnToPage(HWND dialog, int tab, int page);
void ShowChosenPage(HWND dialog, int tab);

// Ctrl+Tab and Ctrl+Page Down turn to the next page of the dialog, with Shift or Page Up back. Whether the message was
// such a key.
bool TurnedPage(HWND dialog, const MSG& message);

}  // namespace platform
