// ListControlWin.cpp - see ListControlWin.h.
#include "dialogs/ListControlWin.h"

#include <algorithm>

#include "platform/DialogWin.h"
#include "platform/ListViewWin.h"
#include "platform/WideTextWin.h"

namespace dialogs {

namespace {

// The parking list's columns, in hundredths of its width.
constexpr int kShares[] = { 24, 22, 14, 40 };
constexpr int kColumnGap = 8;  // dialog units between the widest text of a column and the next column

bool IsListView(const ListControl& list) { return !list.header; }

// Points into the titles.
std::vector<platform::Column> ColumnsOf(const std::vector<std::string>& titles) {
    std::vector<platform::Column> columns;
    for (size_t i = 0; i < titles.size() && i < std::size(kShares); ++i) {
        columns.push_back({ titles[i].c_str(), kShares[i] });
    }
    return columns;
}

void AddColumns(const ListControl& list) {
    const std::vector<std::string> titles = CellsOf(list.headerText);
    platform::SetColumns(list.rows, ColumnsOf(titles));
    SendMessageW(list.rows, LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
}

int LastColumn() { return static_cast<int>(std::size(kShares)) - 1; }

// Pixels of dialog units, horizontally.
int Pixels(HWND control, int units) {
    RECT box = { 0, 0, units, 0 };
    MapDialogRect(GetParent(control), &box);
    return box.right;
}

struct Measure {
    HDC dc;
    HGDIOBJ before;
    HWND control;
    explicit Measure(HWND window) : dc(GetDC(window)), control(window) {
        before = SelectObject(dc, reinterpret_cast<HGDIOBJ>(SendMessageW(window, WM_GETFONT, 0, 0)));
    }
    ~Measure() {
        SelectObject(dc, before);
        ReleaseDC(control, dc);
    }
    Measure(const Measure&) = delete;
    Measure& operator=(const Measure&) = delete;
    int WidthOf(const std::string& text) const {
        const std::wstring wide = platform::WideFromUtf8(text);
        SIZE size{};
        GetTextExtentPoint32W(dc, wide.c_str(), static_cast<int>(wide.size()), &size);
        return size.cx;
    }
};

// The last column is as wide as its texts; a list narrower than that scrolls.
void WidenLastColumn(const ListControl& list, const std::vector<ListRow>& rows) {
    const Measure measure(list.rows);
    const int margin = Pixels(list.rows, kColumnGap);
    int needed = 0;
    for (const ListRow& row : rows) needed = std::max(needed, measure.WidthOf(CellsOf(row.text).back()) + margin);
    const WPARAM column = static_cast<WPARAM>(LastColumn());
    if (SendMessageW(list.rows, LVM_GETCOLUMNWIDTH, column, 0) < needed)
        SendMessageW(list.rows, LVM_SETCOLUMNWIDTH, column, needed);
}

// The texts themselves are asked for when they are painted (AnswerCell).
void FillListView(const ListControl& list, const std::vector<ListRow>& rows) {
    WidenLastColumn(list, rows);
    SendMessageW(list.rows, LVM_SETITEMCOUNT, rows.size(), 0);
}

// Each column begins behind the widest text of the one before it. List boxes take dialog units.
void FitTabStops(ListControl* list, const std::vector<ListRow>& rows) {
    const Measure measure(list->rows);
    std::vector<int> widths;
    const auto widen = [&](const std::string& text) {
        const std::vector<std::string> cells = CellsOf(text);
        widths.resize(std::max(widths.size(), cells.size()));
        for (size_t i = 0; i < cells.size(); ++i) widths[i] = std::max(widths[i], measure.WidthOf(cells[i]));
    };
    widen(list->headerText);
    for (const ListRow& row : rows) widen(row.text);

    constexpr int kUnitsMeasured = 400;  // many at a time: one unit is a fraction of a pixel
    const int pixels = std::max(Pixels(list->rows, kUnitsMeasured), 1);
    std::vector<INT> units;
    list->tabStops.clear();
    for (size_t i = 0; i + 1 < widths.size(); ++i) {
        const int from = list->tabStops.empty() ? 0 : list->tabStops.back();
        const int at = (from + widths[i]) * kUnitsMeasured / pixels + 1 + kColumnGap;
        units.push_back(at);
        list->tabStops.push_back(Pixels(list->rows, at));
    }
    SendMessageW(list->rows, LB_SETTABSTOPS, units.size(), reinterpret_cast<LPARAM>(units.data()));
    const int whole = (list->tabStops.empty() ? 0 : list->tabStops.back()) + widths.back() + Pixels(list->rows, 2);
    SendMessageW(list->rows, LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(whole), 0);
}

void FillListBox(ListControl* list, const std::vector<ListRow>& rows) {
    FitTabStops(list, rows);
    for (const ListRow& row : rows) {
        SendMessageW(list->rows, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(platform::WideFromUtf8(row.text).c_str()));
    }
    InvalidateRect(list->header, nullptr, TRUE);
}

}  // namespace

void StartListControl(ListControl* list, HWND rows, HWND header, const char* headerText) {
    *list = { rows, header, headerText, {} };
    if (IsListView(*list))
        AddColumns(*list);
    else
        SetWindowTextW(header, platform::WideFromUtf8(headerText).c_str());
}

void FillList(ListControl* list, const std::vector<ListRow>& rows) {
    SendMessageW(list->rows, WM_SETREDRAW, FALSE, 0);
    SendMessageW(list->rows, IsListView(*list) ? LVM_DELETEALLITEMS : LB_RESETCONTENT, 0, 0);
    if (IsListView(*list))
        FillListView(*list, rows);
    else
        FillListBox(list, rows);
    SendMessageW(list->rows, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(list->rows, nullptr, TRUE);
}

void FitList(ListControl* list, const std::vector<ListRow>& rows) {
    if (IsListView(*list)) {
        const std::vector<std::string> titles = CellsOf(list->headerText);
        platform::FitColumns(list->rows, ColumnsOf(titles));
        WidenLastColumn(*list, rows);
    } else {
        FitTabStops(list, rows);
        InvalidateRect(list->header, nullptr, TRUE);
    }
    InvalidateRect(list->rows, nullptr, TRUE);
}

bool IsPointerOnRow(const ListControl& list) {
    const DWORD place = GetMessagePos();
    POINT at = { static_cast<short>(LOWORD(place)), static_cast<short>(HIWORD(place)) };
    ScreenToClient(list.rows, &at);
    return HIWORD(SendMessageW(list.rows, LB_ITEMFROMPOINT, 0, MAKELPARAM(at.x, at.y))) == 0;
}

int SelectedRow(const ListControl& list) {
    if (IsListView(list)) return platform::SelectedListRow(list.rows);
    return static_cast<int>(SendMessageW(list.rows, LB_GETCURSEL, 0, 0));
}

void SelectRow(const ListControl& list, int row) {
    if (IsListView(list))
        platform::SelectListRow(list.rows, row);
    else
        SendMessageW(list.rows, LB_SETCURSEL, static_cast<WPARAM>(row), 0);
}

int TopRow(const ListControl& list) {
    return static_cast<int>(SendMessageW(list.rows, IsListView(list) ? LVM_GETTOPINDEX : LB_GETTOPINDEX, 0, 0));
}

// A list view scrolls only as far as it must: from its end upwards, the row comes to stand above.
void ScrollToRow(const ListControl& list, int row) {
    if (!IsListView(list)) {
        SendMessageW(list.rows, LB_SETTOPINDEX, static_cast<WPARAM>(row), 0);
        return;
    }
    const LRESULT count = SendMessageW(list.rows, LVM_GETITEMCOUNT, 0, 0);
    if (count == 0) return;
    SendMessageW(list.rows, LVM_ENSUREVISIBLE, static_cast<WPARAM>(count - 1), FALSE);
    SendMessageW(list.rows, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
}

void AnswerCell(const std::vector<ListRow>& rows, LVITEMW* item) {
    if (!(item->mask & LVIF_TEXT) || item->cchTextMax <= 0 || item->iItem < 0) return;
    item->pszText[0] = L'\0';
    if (static_cast<size_t>(item->iItem) >= rows.size()) return;
    const std::vector<std::string> cells = CellsOf(rows[static_cast<size_t>(item->iItem)].text);
    if (static_cast<size_t>(item->iSubItem) >= cells.size()) return;
    const std::wstring text = platform::WideFromUtf8(cells[static_cast<size_t>(item->iSubItem)]);
    lstrcpynW(item->pszText, text.c_str(), item->cchTextMax);
}

void DrawListHeader(const ListControl& list, const DRAWITEMSTRUCT& draw) {
    constexpr int kInset = 1;  // of the texts in a list box
    FillRect(draw.hDC, &draw.rcItem, GetSysColorBrush(COLOR_BTNFACE));
    POINT left{};
    MapWindowPoints(list.rows, list.header, &left, 1);
    const int origin = left.x - GetScrollPos(list.rows, SB_HORZ);
    SetBkMode(draw.hDC, TRANSPARENT);
    SetTextColor(draw.hDC, GetSysColor(COLOR_BTNTEXT));
    const std::wstring text = platform::WideFromUtf8(list.headerText);
    TabbedTextOutW(draw.hDC, origin + kInset, draw.rcItem.top, text.c_str(), static_cast<int>(text.size()),
                   static_cast<int>(list.tabStops.size()), list.tabStops.data(), origin);
}

void MarkSortedColumn(const ListControl& list, int column) {
    for (int i = 0; i <= LastColumn(); ++i) {
        platform::MarkListColumn(list.rows, i, i == column ? platform::Sorted::Up : platform::Sorted::Not);
    }
}

}  // namespace dialogs
