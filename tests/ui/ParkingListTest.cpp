// ParkingListTest.cpp - the parking list, which can be sorted and mixed.
#include <algorithm>
#include <string>
#include <vector>

#include "ListSteps.h"

namespace ui {

class ParkingListTest : public ListFixture {
protected:
    void ClickHeader(HWND dialog, int column) {
        const HWND rows = Rows(dialog);
        const HWND header = reinterpret_cast<HWND>(SendMessageW(rows, LVM_GETHEADER, 0, 0));
        int x = 10;
        for (int i = 0; i < column; ++i)
            x += static_cast<int>(SendMessageW(rows, LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(i), 0));
        SendClick(header, x, 5);
        Settle(dialog);
    }
    // Cells of a column, from twenty rows all over the list: each costs a visit to the program.
    static std::vector<std::string> SomeOf(HWND dialog, int column) {
        constexpr int kLooks = 20;
        std::vector<std::string> texts;
        for (int i = 0; i < kLooks; ++i) {
            texts.push_back(Utf8(ListText(Rows(dialog), (Count(dialog) - 1) * i / (kLooks - 1), column)));
        }
        return texts;
    }
    static std::vector<std::string> Names(HWND dialog) { return SomeOf(dialog, 0); }
};

TEST_F(ParkingListTest, EachHeaderSortsByItsColumnAndOriginalOrderIsThatOfTheFile) {
    const HWND dialog = StartWithList(IDM_LIST_PARKING, kParkingList);
    ASSERT_NE(dialog, nullptr);
    const std::vector<std::string> original = Names(dialog);
    ASSERT_GT(Count(dialog), 20);
    EXPECT_EQ(Row(dialog, 0), "Gate D  1\tGate Medium\t68.9 ft\tASA,QXE");

    ClickHeader(dialog, 0);
    EXPECT_EQ(Names(dialog).front(), "Gate A  1");
    ClickHeader(dialog, 2);
    std::vector<double> radii;
    for (const std::string& text : SomeOf(dialog, 2)) radii.push_back(std::stod(text));
    EXPECT_TRUE(std::is_sorted(radii.begin(), radii.end()));
    EXPECT_LT(radii.front(), radii.back());
    ClickHeader(dialog, 3);
    const std::vector<std::string> codes = SomeOf(dialog, 3);
    EXPECT_FALSE(codes.front().empty()) << "spots with codes come first";
    EXPECT_TRUE(codes.back().empty());
    ClickHeader(dialog, 1);
    EXPECT_TRUE(SomeOf(dialog, 1).front().starts_with("Gate"));

    Press(dialog, IDC_LIST_ORIGINAL_ORDER);
    EXPECT_TRUE(WaitUntil([&] { return Names(dialog) == original; }));
    EXPECT_FALSE(CanUndo()) << "only the rows change their order";
}

TEST_F(ParkingListTest, RandomizeMixesTheGatesAndKeepsThemFirst) {
    const HWND dialog = StartWithList(IDM_LIST_PARKING, kParkingList);
    ASSERT_NE(dialog, nullptr);
    const int count = Count(dialog);
    const std::vector<std::string> original = Names(dialog);
    Press(dialog, IDC_LIST_RANDOMIZE);
    EXPECT_TRUE(WaitUntil([&] { return Names(dialog) != original; }));
    EXPECT_EQ(Count(dialog), count);
    bool past = false;
    for (const std::string& type : SomeOf(dialog, 1)) {
        const bool gate = type.starts_with("Gate");
        EXPECT_FALSE(gate && past) << "a gate behind other spots";
        past |= !gate;
    }
    EXPECT_FALSE(CanUndo());
}

TEST_F(ParkingListTest, AChangedSpotStaysSelectedAndInItsPlaceOfTheOrder) {
    const HWND dialog = StartWithList(IDM_LIST_PARKING, kParkingList);
    ASSERT_NE(dialog, nullptr);
    const int count = Count(dialog);
    ClickHeader(dialog, 0);
    const std::string first = Row(dialog, 0), second = Row(dialog, 1);
    Select(dialog, 0);
    Press(dialog, IDC_LIST_DELETE);
    ASSERT_TRUE(WaitForCount(dialog, count - 1));
    EXPECT_EQ(Row(dialog, 0), second);
    EXPECT_TRUE(WaitUntil([&] { return Selected(dialog) == 0; }));
    Command(IDM_UNDO);
    ASSERT_TRUE(WaitForCount(dialog, count));
    EXPECT_EQ(Row(dialog, 0), first) << "the list is still sorted by name";
    EXPECT_EQ(Row(dialog, 1), second);
    EXPECT_EQ(Selected(dialog), 1) << "the row that was selected still is";
}

TEST_F(ParkingListTest, TheKeyboardAloneIsEnough) {
    const HWND dialog = StartWithList(IDM_LIST_PARKING, kParkingList);
    ASSERT_NE(dialog, nullptr);
    const int count = Count(dialog);
    ASSERT_TRUE(BringToFront(dialog));
    ASSERT_TRUE(WaitUntil([&] { return FocusOf(agent) == Rows(dialog); }));
    TypeText(L"gate c 2");
    ASSERT_TRUE(
        WaitUntil([&] { return Selected(dialog) >= 0 && Row(dialog, Selected(dialog)).starts_with("Gate C  2"); }));
    const int row = Selected(dialog);
    const std::string found = Row(dialog, row);
    TapKey(VK_RETURN);
    const HWND properties = Dialog(kParkingProperties);
    ASSERT_NE(properties, nullptr);
    EXPECT_FALSE(IsWindowEnabled(dialog)) << "the list waits";
    ASSERT_TRUE(BringToFront(properties));
    TapKey(VK_ESCAPE);
    ASSERT_TRUE(WaitUntilGone(properties));
    EXPECT_TRUE(WaitUntil([&] { return FocusOf(agent) == Rows(dialog); })) << "back to the list";
    EXPECT_EQ(Row(dialog, row), found);
    EXPECT_EQ(Selected(dialog), row);
    TapKey(VK_DELETE);
    EXPECT_TRUE(WaitForCount(dialog, count - 1));
    EXPECT_NE(Row(dialog, row), found);
    TapKey(VK_ESCAPE);
    EXPECT_TRUE(WaitUntilGone(dialog));
}

TEST_F(ParkingListTest, TheColumnsFitAgainOnAMonitorOfAnotherResolution) {
    constexpr UINT kDpiChanged = 0x02E0;  // WM_DPICHANGED of Windows 8.1
    const HWND dialog = StartWithList(IDM_LIST_PARKING, kParkingList);
    ASSERT_NE(dialog, nullptr);
    const auto width = [&] { return SendMessageW(Rows(dialog), LVM_GETCOLUMNWIDTH, 0, 0); };
    const LRESULT before = width();
    ASSERT_GT(before, 40);
    SendMessageW(Rows(dialog), LVM_SETCOLUMNWIDTH, 0, 40);
    ASSERT_EQ(width(), 40);
    SendMessageW(dialog, kDpiChanged, MAKEWPARAM(96, 96), 0);
    EXPECT_TRUE(WaitUntil([&] { return width() == before; })) << width();
}

TEST_F(ParkingListTest, ADoubleClickOnARowOpensTheProperties) {
    const HWND dialog = StartWithList(IDM_LIST_PARKING, kParkingList);
    ASSERT_NE(dialog, nullptr);
    ASSERT_TRUE(BringToFront(dialog));
    DoubleClickPointer(Rows(dialog), 40, 60);
    const HWND properties = Dialog(kParkingProperties);
    ASSERT_NE(properties, nullptr);
    CloseDialog(properties, IDCANCEL);
    EXPECT_GE(Selected(dialog), 0);
}

}  // namespace ui
