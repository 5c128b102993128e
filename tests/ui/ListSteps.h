// ListSteps.h - the fixture for the list windows: opening, reading and using one, whichever control has its rows.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "EditorSteps.h"
#include "ListIds.h"

namespace ui {

constexpr wchar_t kNavaidList[] = L"NAVAID List", kRunwayList[] = L"Runway List", kParkingList[] = L"Parking List",
                  kStartList[] = L"Start Locations List", kDesignatorList[] = L"Taxiway Designator List",
                  kCommList[] = L"Comm Frequencies List", kComm[] = L"COMM Frequency Properties",
                  kParkingProperties[] = L"Parking Properties";
constexpr int kParkingColumns = 4;

class ListFixture : public EditorTest {
protected:
    static HWND Rows(HWND dialog) { return ChildWithId(dialog, IDC_LIST_ROWS); }
    static bool IsListView(HWND dialog) { return ClassOf(Rows(dialog)) == WC_LISTVIEWW; }
    static int Count(HWND dialog) {
        const UINT ask = IsListView(dialog) ? LVM_GETITEMCOUNT : LB_GETCOUNT;
        return static_cast<int>(SendMessageW(Rows(dialog), ask, 0, 0));
    }
    static std::string Header(HWND dialog) {
        if (!IsListView(dialog)) return Shown(dialog, IDC_LIST_HEADER);
        std::string text;
        for (int column = 0; column < kParkingColumns; ++column) {
            text += (column ? "\t" : "") + Utf8(ListColumnTitle(Rows(dialog), column));
        }
        return text;
    }
    static std::string Row(HWND dialog, int row) {
        if (!IsListView(dialog)) return Utf8(ListBoxText(Rows(dialog), row));
        std::string text;
        for (int column = 0; column < kParkingColumns; ++column) {
            text += (column ? "\t" : "") + Utf8(ListText(Rows(dialog), row, column));
        }
        return text;
    }
    static std::vector<std::string> AllRows(HWND dialog) {
        std::vector<std::string> rows;
        for (int row = 0; row < Count(dialog); ++row) rows.push_back(Row(dialog, row));
        return rows;
    }
    static int Selected(HWND dialog) {
        if (IsListView(dialog))
            return static_cast<int>(
                SendMessageW(Rows(dialog), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
        return static_cast<int>(SendMessageW(Rows(dialog), LB_GETCURSEL, 0, 0));
    }
    static void Select(HWND dialog, int row) {
        if (IsListView(dialog))
            SelectListRow(Rows(dialog), row);
        else
            PickInListBox(Rows(dialog), row);
        Settle(dialog);
    }
    static int RowThatBegins(HWND dialog, const std::string& text) {
        const std::vector<std::string> rows = AllRows(dialog);
        const auto found =
            std::find_if(rows.begin(), rows.end(), [&](const auto& row) { return row.starts_with(text); });
        return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
    }
    static int RowWith(HWND dialog, const std::string& text) {
        const std::vector<std::string> rows = AllRows(dialog);
        const auto found = std::find_if(rows.begin(), rows.end(),
                                        [&](const auto& row) { return row.find(text) != std::string::npos; });
        return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
    }
    // The program with the largest sample airport and one of its lists.
    HWND StartWithList(UINT command, const wchar_t* title) {
        StartWithSample("hub");
        return mainWindow ? Open(command, title) : nullptr;
    }
    bool WaitForCount(HWND dialog, int count) const {
        return WaitUntil([&] { return Count(dialog) == count; });
    }
    void ExpectMessage(HWND dialog, int button, const std::string& text) {
        PressButton(dialog, button);
        const Box box = MessageBoxUp();
        EXPECT_EQ(Utf8(box.text), text);
        EXPECT_FALSE(IsWindowEnabled(dialog)) << "the box is modal";
        EXPECT_FALSE(IsWindowEnabled(mainWindow)) << "the box is modal for the map too";
        Answer(box, box.buttons.back());
        EXPECT_TRUE(WaitUntil([&] { return IsWindowEnabled(dialog) && IsWindowEnabled(mainWindow); }));
    }
};

}  // namespace ui
