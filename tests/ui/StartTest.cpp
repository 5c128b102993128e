// StartTest.cpp - the program comes up without an airport and goes down again.
#include "UiHarness.h"

namespace ui {

using StartTest = UiTest;

TEST_F(StartTest, MainWindowComesUpWithMenuAndTitle) {
    Start();
    EXPECT_EQ(ClassOf(mainWindow), L"Tarvo");
    EXPECT_EQ(Title().substr(0, 5), L"Tarvo");
    EXPECT_EQ(Title().find(L"( "), std::wstring::npos) << "no airport is open, yet the title names a file";
    std::vector<MenuEntry> menu = ReadMenu(agent);
    ASSERT_FALSE(menu.empty()) << "no menu bar";
    EXPECT_EQ(menu.front().depth, 0);
}

TEST_F(StartTest, SaveAsIsGreyedWithoutAnAirport) {
    constexpr UINT kSaveAs = 40008;
    Start();
    EXPECT_TRUE(IsGreyed(kSaveAs));
    EXPECT_EQ(State(1), 0xFFFFFFFFu) << "an entry that does not exist must not look like one that does";
}

TEST_F(StartTest, CloseMessageEndsTheProgram) {
    Start();
    EXPECT_EQ(CloseProgram(), 0u);
}

}  // namespace ui
