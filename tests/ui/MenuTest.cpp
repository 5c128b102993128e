// MenuTest.cpp - menus, toolbar and the boxes of the Help menu.
#include <algorithm>

#include "ProgramParts.h"
#include "Resource.h"
#include "StandInBrowser.h"
#include "UiHarness.h"

namespace ui {

using MenuTest = UiTest;

struct ExpectedEntry {
    UINT id;
    const wchar_t* text;
};

constexpr ExpectedEntry kEntries[] = {
    { 40004, L"&Open Airport..." },
    { 40005, L"&Close Airport" },
    { 40085, L"&New Airport..." },
    { 40006, L"&Save" },
    { 40008, L"Save &As..." },
    { 40037, L"&Properties" },
    { 40070, L"Pag&e Setup..." },
    { 40069, L"P&rint..." },
    { 40401, L"Save &Map Picture..." },
    { 40007, L"E&xit" },
    { 40058, L"&Undo\tCtrl+Z" },
    { 40059, L"&Redo\tCtrl+Y" },
    { 40060, L"&Select All\tCtrl+A" },
    { 40088, L"Delete &Guidelines and Markers\tCtrl+Del" },
    { 40011, L"Lock to &Flight Sim" },
    { 40078, L"Show &Parking Types\tP" },
    { 40079, L"Show Parking &Codes\tP" },
    { 40073, L"Show &Lights\tL" },
    { 40072, L"Show &Nodes / Links / Parking\tN" },
    { 40039, L"Show &Start Locations\tS" },
    { 40040, L"Show Nav&aids\tA" },
    { 40063, L"Show &Hold Short Limits\tH" },
    { 40091, L"Show Lat / Long &Grid\tG" },
    { 40042, L"&Runway..." },
    { 40090, L"&Helipad..." },
    { 40043, L"&Tower Viewpoint..." },
    { 40044, L"&Start Location..." },
    { 40045, L"&ILS..." },
    { 40047, L"&Marker Beacon..." },
    { 40050, L"&NDB..." },
    { 40049, L"&VOR/DME..." },
    { 40056, L"&Parking" },
    { 40054, L"&Taxi Designators" },
    { 40053, L"&Runways" },
    { 40057, L"&Start Locations" },
    { 40055, L"&Comm Frequencies" },
    { 40052, L"&Navaids" },
    { 40064, L"&Fault Finder..." },
    { 40080, L"&Aircraft Editor..." },
    { 40067, L"&Options" },
    { 40061, L"&Help" },
    { 40089, L"&Keyboard Functions" },
    { 40002, L"&About" },
};

constexpr UINT kNeedAirport[] = { IDM_CLOSE, IDM_SAVE, IDM_SAVE_AS };
constexpr UINT kGreyedWithoutAirport[] = {
    IDM_CLOSE,          IDM_SAVE,         IDM_SAVE_AS,      IDM_AIRPORT_PROPERTIES, IDM_PAGE_SETUP,
    IDM_PRINT,          IDM_UNDO,         IDM_REDO,         IDM_SELECT_ALL,         IDM_INSERT_RUNWAY,
    IDM_INSERT_HELIPAD, IDM_INSERT_TOWER, IDM_INSERT_START, IDM_INSERT_ILS,         IDM_INSERT_MARKER_BEACON,
    IDM_INSERT_NDB,     IDM_INSERT_VOR,   IDM_LIST_PARKING, IDM_LIST_DESIGNATORS,   IDM_LIST_RUNWAYS,
    IDM_LIST_STARTS,    IDM_LIST_COMMS,   IDM_LIST_NAVAIDS, IDM_FAULT_FINDER,       IDM_SAVE_PICTURE,
};

TEST_F(MenuTest, EveryEntryHasItsTextAndNoOtherIsThere) {
    Start();
    std::vector<MenuEntry> commands;
    for (const MenuEntry& entry : ReadMenu(agent)) {
        if (entry.depth > 0 && entry.id != 0) commands.push_back(entry);
    }
    for (const ExpectedEntry& expected : kEntries) {
        const auto found = std::find_if(commands.begin(), commands.end(),
                                        [&](const MenuEntry& entry) { return entry.id == expected.id; });
        ASSERT_NE(found, commands.end()) << expected.id;
        EXPECT_EQ(found->text, expected.text);
    }
    EXPECT_EQ(commands.size(), std::size(kEntries));
}

TEST_F(MenuTest, WhatNeedsAnAirportIsGreyedUntilOneIsOpenAndAfterItIsClosed) {
    StartWithSample("hub");
    for (UINT id : kNeedAirport) EXPECT_FALSE(IsGreyed(id)) << id;
    Command(IDM_CLOSE);
    ASSERT_TRUE(WaitUntil([&] { return Title() == L"Tarvo        "; })) << Utf8(Title());
    for (UINT id : kGreyedWithoutAirport) EXPECT_TRUE(IsGreyed(id)) << id;
}

static wchar_t Mnemonic(const std::wstring& text) {
    const size_t mark = text.find(L'&');
    return mark + 1 < text.size() ? static_cast<wchar_t>(towupper(text[mark + 1])) : L'\0';
}

TEST_F(MenuTest, EveryEntryHasALetterOfItsOwnInItsMenu) {
    Start();
    std::wstring bar, popup;
    for (const MenuEntry& entry : ReadMenu(agent)) {
        if (entry.depth > 0 && entry.id == 0) continue;  // a separator
        if (entry.depth == 0) popup.clear();
        std::wstring& letters = entry.depth == 0 ? bar : popup;
        const wchar_t letter = Mnemonic(entry.text);
        EXPECT_TRUE(iswalnum(letter)) << Utf8(entry.text);
        EXPECT_EQ(letters.find(letter), std::wstring::npos) << Utf8(entry.text);
        letters += letter;
    }
    EXPECT_EQ(bar, L"FEVILTH");
}

// Real keys: Alt and the letter of the menu, then the letter of the entry. An entry that is grey gives nothing.
TEST_F(MenuTest, EveryEntryIsReachedByTheKeyboardAndAGreyOneIsDead) {
    StartWithSample("hub");
    ASSERT_TRUE(BringToFront(mainWindow));
    CatchCommands(agent, true);
    wchar_t menu = 0;
    int given = 0;
    for (const MenuEntry& entry : ReadMenu(agent)) {
        if (entry.depth == 0) menu = Mnemonic(entry.text);
        if (entry.depth == 0 || entry.id == 0) continue;
        const bool greyed = IsGreyed(entry.id);
        TapKey(menu, { VK_MENU });
        ASSERT_TRUE(WaitUntil([&] { return InMenu(mainWindow); })) << Utf8(entry.text);
        TapKey(Mnemonic(entry.text));
        if (!greyed) {
            ASSERT_TRUE(WaitUntil([&] { return !InMenu(mainWindow); })) << Utf8(entry.text);
            ASSERT_TRUE(SettlePosted(agent));
            EXPECT_EQ(CaughtCommand(agent), entry.id) << Utf8(entry.text);
            ++given;
            continue;
        }
        ASSERT_TRUE(WaitUntil([&] {
            if (InMenu(mainWindow)) TapKey(VK_ESCAPE);
            return !InMenu(mainWindow);
        })) << Utf8(entry.text);
        ASSERT_TRUE(SettlePosted(agent));
        EXPECT_EQ(CaughtCommand(agent), 0u) << Utf8(entry.text);
    }
    CatchCommands(agent, false);
    EXPECT_GE(given, 15);
}

TEST_F(MenuTest, HelpOpensTheManual) {
    const StandInBrowser browser;
    Start();
    Command(IDM_HELP);
    EXPECT_TRUE(browser.WaitForOpened("C:\\UiTest\\Tarvo\\ReadMe.htm\n")) << browser.Opened();
}

TEST_F(MenuTest, AGreyedCommandDoesNothingThoughItIsSent) {
    Start();
    Command(IDM_SAVE_AS);
    EXPECT_TRUE(IsWindowEnabled(mainWindow)) << "a dialog came up";
    EXPECT_EQ(FindVisible(program.id, L"#32770", nullptr), nullptr);
}

TEST_F(MenuTest, ViewEntriesCarryCheckMarksThatMenuAndKeysToggle) {
    Start();
    EXPECT_TRUE(IsChecked(IDM_NETWORK));
    EXPECT_TRUE(IsChecked(IDM_GRID));
    for (UINT id : { IDM_LIGHTS, IDM_STARTS, IDM_NAVAIDS, IDM_HOLD_SHORT_LIMITS, IDM_LABEL_TYPES, IDM_LABEL_CODES })
        EXPECT_FALSE(IsChecked(id)) << id;
    Command(IDM_LIGHTS);
    EXPECT_TRUE(IsChecked(IDM_LIGHTS));
    PostKey(mainWindow, 'L');
    EXPECT_TRUE(WaitUntil([&] { return !IsChecked(IDM_LIGHTS); }));
    PostKey(mainWindow, 'P');
    EXPECT_TRUE(WaitUntil([&] { return IsChecked(IDM_LABEL_TYPES); }));
    Command(IDM_LABEL_CODES);
    EXPECT_TRUE(IsChecked(IDM_LABEL_CODES));
    EXPECT_FALSE(IsChecked(IDM_LABEL_TYPES));
}

TEST_F(MenuTest, AboutShowsTheVersion) {
    Start();
    PostCommand(mainWindow, IDM_ABOUT);
    const HWND dialog = Dialog(L"About Tarvo");
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(ReadBox(dialog).text, L"Tarvo Version 2.21 for FS2004");
    EXPECT_FALSE(IsWindowEnabled(mainWindow));
    CloseDialog(dialog, IDOK);
    EXPECT_TRUE(IsWindowEnabled(mainWindow));
}

TEST_F(MenuTest, KeyboardFunctionsShowsItsText) {
    Start();
    PostCommand(mainWindow, IDM_KEYBOARD);
    const HWND dialog = Dialog(L"Keyboard Functions");
    ASSERT_NE(dialog, nullptr);
    const std::wstring text = ReadBox(dialog).text;
    EXPECT_EQ(text.substr(0, 54), L"Shift\tHold down while selecting multiple objects\nCtrl\t");
    EXPECT_NE(text.find(L"Home\tRotate CCW (or use Ctrl+mouse wheel)\nEnd\tRotate CW"), std::wstring::npos);
    EXPECT_TRUE(
        text.ends_with(L"In Flight Simulator:\no\tCreate a parking spot\n.\tCreate a node\nM\tCreate a marker\n"))
        << Utf8(text);
    CloseDialog(dialog, IDOK);
}

TEST_F(MenuTest, TheToolbarShowsTheActiveToolAndGreysWhatHasNothingBehindIt) {
    StartWithSample("hub");
    const HWND toolbar = ToolbarOf(mainWindow);
    ASSERT_NE(toolbar, nullptr);
    EXPECT_EQ(GetDlgCtrlID(toolbar), IDC_FIRST_TOOLBAR);
    for (int id : { IDT_OPEN, IDT_SAVE, IDT_PRINT, IDT_UNDO, IDT_REDO, IDT_ZOOM_IN, IDT_ZOOM_OUT, IDT_LOCK, IDT_POINTER,
                    IDT_NORMAL_NODE, IDT_HOLD_SHORT_NODE, IDT_ILS_HOLD_SHORT_NODE, IDT_NORMAL_LINK, IDT_RUNWAY_LINK,
                    IDT_APRON_LINK, IDT_CLOSED_LINK })
        EXPECT_NE(ToolButtonState(toolbar, id), -1) << id;
    EXPECT_EQ(ToolButtonState(toolbar, IDT_POINTER), TBSTATE_ENABLED | TBSTATE_CHECKED);
    EXPECT_EQ(ToolButtonState(toolbar, IDT_PRINT), TBSTATE_ENABLED);
    EXPECT_EQ(ToolButtonState(toolbar, IDT_UNDO), 0);
    ClickToolButton(mainWindow, IDT_ILS_HOLD_SHORT_NODE);
    EXPECT_EQ(ToolButtonState(toolbar, IDT_ILS_HOLD_SHORT_NODE), TBSTATE_ENABLED | TBSTATE_CHECKED);
    EXPECT_EQ(ToolButtonState(toolbar, IDT_POINTER), TBSTATE_ENABLED);
    ClickToolButton(mainWindow, IDT_LOCK);
    EXPECT_EQ(ToolButtonState(toolbar, IDT_ILS_HOLD_SHORT_NODE), TBSTATE_ENABLED | TBSTATE_CHECKED);
}

TEST_F(MenuTest, AToolbarButtonExplainsItselfUnderThePointer) {
    Start();
    ASSERT_TRUE(BringToFront(mainWindow));
    const HWND toolbar = ToolbarOf(mainWindow);
    const RECT button = ToolButtonRect(toolbar, IDT_ZOOM_IN);
    ParkPointer();
    MovePointer(toolbar, (button.left + button.right) / 2, (button.top + button.bottom) / 2);
    const auto tooltip = [&] { return FindVisible(program.id, TOOLTIPS_CLASSW, nullptr); };
    ASSERT_TRUE(WaitUntil([&] { return tooltip() != nullptr; })) << "no tooltip";
    EXPECT_EQ(TextOf(tooltip()), L"Zoom in (mouse wheel or + key)");
    ParkPointer();
}

}  // namespace ui
