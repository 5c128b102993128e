// ListControlWin.h - the control that shows the rows of a list window: a list view with column headers, or a list box
// with tab stops below a header row. Which of them the dialog's resource has decides.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <vector>

#include "dialogs/ListRows.h"

namespace dialogs {

struct ListControl {
    HWND rows = nullptr;
    HWND header = nullptr;  // drawn by DrawListHeader; null for a list view
    std::string headerText;
    std::vector<int> tabStops;  // pixels
};

void StartListControl(ListControl* list, HWND rows, HWND header, const char* headerText);

// What is selected and how far the list is scrolled is lost.
void FillList(ListControl* list, const std::vector<ListRow>& rows);

// The columns anew, after the control's size or the resolution of its monitor has changed.
void FitList(ListControl* list, const std::vector<ListRow>& rows);

// Whether the message at hand is that of a pointer on a row of a list box, not below the last one.
bool IsPointerOnRow(const ListControl& list);

int SelectedRow(const ListControl& list);          // -1 when there is none
void SelectRow(const ListControl& list, int row);  // and brings it into sight; -1 selects none

// A list view asks for the text of a cell when it paints it.
void AnswerCell(const std::vector<ListRow>& rows, LVITEMW* item);

int TopRow(const ListControl& list);
void ScrollToRow(const ListControl& list, int row);  // makes it the upper one

void DrawListHeader(const ListControl& list, const DRAWITEMSTRUCT& draw);

// The arrow in the header of the column that a list view is sorted by; -1 for none.
void MarkSortedColumn(const ListControl& list, int column);

}  // namespace dialogs
