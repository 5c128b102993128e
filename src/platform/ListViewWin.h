// ListViewWin.h - what every list view of the program does: one row selected, one column sorted by.
#pragma once

#include <windows.h>

namespace platform {

int SelectedListRow(HWND list);          // -1 when there is none
void SelectListRow(HWND list, int row);  // and scrolls to it; -1 takes the selection away
enum class Sorted { Not, Up, Down };
void MarkListColumn(HWND list, int column, Sorted sorted);  // by the arrow in its header

}  // namespace platform
