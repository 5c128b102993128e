// UiControls.h - lists, trees, toolbars and combo boxes of another process.
//
// A control message that carries a structure needs that structure in the control's own process: it is written to
// memory there, the message is sent, and the answer is read back.
#pragma once

#include <windows.h>

#include <commctrl.h>
#include <string>

namespace ui {

struct RemoteMemory {
    HANDLE process;
    char* address;  // valid in the other process only
    RemoteMemory(HWND window, size_t bytes);
    ~RemoteMemory();
    RemoteMemory(const RemoteMemory&) = delete;
    RemoteMemory& operator=(const RemoteMemory&) = delete;
    bool Put(const void* data, size_t bytes, size_t offset = 0) const;
    bool Get(void* data, size_t bytes, size_t offset = 0) const;
};

int ListRows(HWND list);
std::wstring ListText(HWND list, int row, int column);
std::wstring ListColumnTitle(HWND list, int column);
void SelectListRow(HWND list, int row);
RECT ListRowRect(HWND list, int row);  // client coordinates of the list

HTREEITEM NextTreeItem(HWND tree, UINT relation, HTREEITEM item = nullptr);  // TVGN_ROOT, TVGN_CHILD, TVGN_NEXT
std::wstring TreeText(HWND tree, HTREEITEM item);
RECT TreeItemRect(HWND tree, HTREEITEM item);

RECT ToolButtonRect(HWND toolbar, int id);  // client coordinates of the toolbar
int ToolButtonState(HWND toolbar, int id);  // TBSTATE_ flags, -1 when there is no such button

std::wstring ListBoxText(HWND box, int index);
std::wstring ComboText(HWND combo, int index);
// As a user would: the owner is told, which the selecting message alone does not do.
void PickInCombo(HWND combo, int index);
void PickInListBox(HWND box, int index);

}  // namespace ui
