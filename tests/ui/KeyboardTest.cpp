// KeyboardTest.cpp - the property dialogs worked by the keyboard alone, and an airport made from nothing.
#include <string>
#include <vector>

#include "AirportIds.h"
#include "GroundSteps.h"
#include "ListIds.h"
#include "NavaidIds.h"
#include "PlacesIds.h"

namespace ui {

constexpr wchar_t kAirport[] = L"Airport Properties", kNavaids[] = L"NAVAID List", kWork[] = L"C:\\UiTest\\Work",
                  kComms[] = L"Comm Frequencies List", kComm[] = L"COMM Frequency Properties",
                  kTower[] = L"Tower Viewpoint Properties", kHelipad[] = L"Helipad Properties";

// A field, the letter that reaches it with Alt (0: Tab does), what is typed into it and what it shows then.
struct Typed {
    WORD letter;
    int control;
    const wchar_t *text, *shown;
};

// An object of a list, perhaps made before: the entry of the menu Insert and what is typed into its dialog.
struct Listed {
    const char* name;
    UINT insert;  // command that makes one; 0: it is there
    const wchar_t* insertTitle;
    std::vector<Typed> needed;
    UINT list;
    const wchar_t *listTitle, *search;  // typing that finds the row; null the last one
    const wchar_t* title;
    Typed field;
};

// An object that the tool makes in the middle of the map.
struct Ground {
    const char* name;
    UINT tool;
    bool drawn;  // by a drag
    const wchar_t* title;
    Typed field;
};

class KeyboardTest : public GroundTest {
protected:
    static HWND Rows(HWND list) { return ChildWithId(list, IDC_LIST_ROWS); }
    static int Selected(HWND list) { return static_cast<int>(SendMessageW(Rows(list), LB_GETCURSEL, 0, 0)); }
    static std::string SelectedRow(HWND list) {
        return Selected(list) < 0 ? "" : Utf8(ListBoxText(Rows(list), Selected(list)));
    }
    // The keys go there, though nobody has brought it to the front.
    bool HasKeys(HWND window) const {
        return WaitUntil([&] {
            const HWND focus = FocusOf(agent);
            return GetForegroundWindow() == window && (focus == window || IsChild(window, focus));
        });
    }
    HWND DialogWithKeys(const wchar_t* title) {
        const HWND dialog = Dialog(title);
        EXPECT_TRUE(HasKeys(dialog)) << "the focus is not in " << Utf8(title);
        return dialog;
    }
    // MenuTest proves that keys lead to every entry.
    HWND OpenBy(UINT entry, const wchar_t* title) {
        EXPECT_TRUE(HasKeys(mainWindow));
        Command(entry);
        return DialogWithKeys(title);
    }
    // The map's menu stands in the middle of what can be seen of it.
    HWND OpenByMapMenu(const wchar_t* title) {
        EXPECT_TRUE(HasKeys(mainWindow));
        const HWND dialog = OpenByMenu([] { TapKey(VK_APPS); }, title);
        EXPECT_TRUE(HasKeys(dialog)) << "the focus is not in " << Utf8(title);
        return dialog;
    }
    void Leave(HWND dialog, WORD key, HWND next) {
        TapKey(key);
        ASSERT_TRUE(WaitUntilGone(dialog)) << "the key does not close it";
        ASSERT_TRUE(HasKeys(next)) << "the focus is lost";
    }
    bool TabTo(HWND field) {
        constexpr int kMostFields = 40;
        for (int i = 0; i < kMostFields; ++i) {
            const HWND before = FocusOf(agent);
            if (before == field) return true;
            TapKey(VK_TAB);
            if (!WaitUntil([&] { return FocusOf(agent) != before; })) return false;
        }
        return false;
    }
    // By Alt and the letter. Late words of the display about the active window may take the keys to the desktop.
    void Reach(HWND dialog, WORD letter, int control) {
        const HWND field = ChildWithId(dialog, control);
        TapKey(letter, { VK_MENU });
        EXPECT_TRUE(WaitUntil([&] {
            if (FocusOf(agent) == field) return true;
            if (GetForegroundWindow() != dialog && BringToFront(dialog)) TapKey(letter, { VK_MENU });
            return false;
        })) << "Alt+"
            << static_cast<char>(letter) << " leads to control " << GetDlgCtrlID(FocusOf(agent));
    }
    void Type(HWND dialog, const Typed& typed) {
        const HWND field = ChildWithId(dialog, typed.control);
        if (typed.letter) {
            Reach(dialog, typed.letter, typed.control);
            ASSERT_EQ(FocusOf(agent), field);
        } else {
            ASSERT_TRUE(TabTo(field)) << "Tab does not lead to control " << typed.control;
        }
        TypeText(typed.text);
        ASSERT_TRUE(WaitUntil([&] { return TextOf(field) == typed.shown; })) << Utf8(TextOf(field));
    }
    void TypeAll(HWND dialog, const std::vector<Typed>& fields) {
        for (const Typed& typed : fields) ASSERT_NO_FATAL_FAILURE(Type(dialog, typed));
    }
    void ExpectKept(HWND dialog, const Typed& typed) {
        EXPECT_EQ(Shown(dialog, typed.control), Utf8(typed.shown)) << "it was not kept";
    }
    void FindRow(HWND list, const wchar_t* search) {
        if (!search) {
            TapKey(VK_END);  // the first key may select no more than the row that it would have gone from
            ASSERT_TRUE(WaitUntil([&] { return Selected(list) >= 0; }));
            TapKey(VK_END);
            const LRESULT last = SendMessageW(Rows(list), LB_GETCOUNT, 0, 0) - 1;
            ASSERT_TRUE(WaitUntil([&] { return Selected(list) == last; })) << SelectedRow(list);
            return;
        }
        TypeText(search);
        ASSERT_TRUE(WaitUntil([&] { return SelectedRow(list).find(Utf8(search)) != std::string::npos; }))
            << Utf8(search) << " is not found, but " << SelectedRow(list);
    }
    // The object of the list's row: opened by Enter, changed, opened again.
    void WorkFromList(const Listed& row) {
        HWND list = OpenBy(row.list, row.listTitle);
        ASSERT_NE(list, nullptr);
        ASSERT_NO_FATAL_FAILURE(FindRow(list, row.search));
        TapKey(VK_RETURN);
        HWND dialog = DialogWithKeys(row.title);
        ASSERT_NE(dialog, nullptr);
        ASSERT_NO_FATAL_FAILURE(Type(dialog, row.field));
        ASSERT_NO_FATAL_FAILURE(Leave(dialog, VK_RETURN, list));
        TapKey(VK_RETURN);
        dialog = DialogWithKeys(row.title);
        ASSERT_NE(dialog, nullptr);
        ExpectKept(dialog, row.field);
        ASSERT_NO_FATAL_FAILURE(Leave(dialog, VK_ESCAPE, list));
        ASSERT_NO_FATAL_FAILURE(Leave(list, VK_ESCAPE, mainWindow));
    }
    void InsertAndWork(const Listed& row) {
        if (row.insert) {
            const HWND dialog = OpenBy(row.insert, row.insertTitle);
            ASSERT_NE(dialog, nullptr);
            ASSERT_NO_FATAL_FAILURE(TypeAll(dialog, row.needed));
            ASSERT_NO_FATAL_FAILURE(Leave(dialog, VK_RETURN, mainWindow));
        }
        ASSERT_NO_FATAL_FAILURE(WorkFromList(row));
    }
    // Changes what stands in the middle of the map, and looks at it again.
    void WorkInTheMiddle(HWND dialog, const wchar_t* title, const Typed& field) {
        ASSERT_NE(dialog, nullptr);
        ASSERT_TRUE(HasKeys(dialog));
        ASSERT_NO_FATAL_FAILURE(Type(dialog, field));
        ASSERT_NO_FATAL_FAILURE(Leave(dialog, VK_RETURN, mainWindow));
        dialog = OpenByDoubleClick(ground, title);
        ASSERT_NE(dialog, nullptr);
        ASSERT_TRUE(HasKeys(dialog));
        ExpectKept(dialog, field);
        ASSERT_NO_FATAL_FAILURE(Leave(dialog, VK_ESCAPE, mainWindow));
    }
    POINT Middle() const {
        const RECT area = MapArea(mainWindow);
        return { (area.left + area.right) / 2, (area.top + area.bottom) / 2 };
    }
    // An airport without anything, so that all ground is free.
    void MakeAirport() {
        ASSERT_NO_FATAL_FAILURE(Start());
        ASSERT_TRUE(BringToFront(mainWindow));
        const HWND dialog = OpenBy(IDM_NEW, kAirport);
        ASSERT_NE(dialog, nullptr);
        ASSERT_NO_FATAL_FAILURE(TypeAll(dialog, { { 'L', IDC_AIRPORT_LATITUDE, L"N47 30", L"N47 30" },
                                                  { 'O', IDC_AIRPORT_LONGITUDE, L"W122 30", L"W122 30" },
                                                  { 'E', IDC_AIRPORT_ELEVATION, L"400", L"400" },
                                                  { 0, IDC_AIRPORT_IDENT, L"xkey", L"XKEY" },
                                                  { 0, IDC_COUNTRY, L"Nowhere", L"Nowhere" },
                                                  { 0, IDC_CITY, L"Somewhere", L"Somewhere" },
                                                  { 0, IDC_AIRPORT_NAME, L"Keyed Field", L"Keyed Field" } }));
        ASSERT_NO_FATAL_FAILURE(Leave(dialog, VK_RETURN, mainWindow));
        ASSERT_TRUE(WaitForTitle(L"XKEY    Keyed Field")) << Utf8(Title());
        ground = Middle();
    }
    // What the status bar tells of the middle of the map.
    void ReadMiddle(std::wstring* latitude, std::wstring* longitude) {
        SendMouse(mainWindow, WM_MOUSEMOVE, ground.x, ground.y);
        std::wstring text;
        ASSERT_TRUE(WaitUntil([&] {
            text = StatusText(mainWindow, kPositionPart);
            return text.find(L"N47") != std::wstring::npos && text.find(L'W') != std::wstring::npos;
        })) << Utf8(text);
        const size_t north = text.find(L'N'), west = text.find(L'W');
        *latitude = text.substr(north, text.find(L'\'', north) + 1 - north);
        *longitude = text.substr(west, text.find(L'\'', west) + 1 - west);
    }
    void Make(const Ground& row) {
        if (row.drawn)
            Drag(row.tool, Beside(-kApart / 2), Beside(kApart / 2));
        else
            Use(row.tool, ground);
        ASSERT_TRUE(CanUndo()) << "nothing was made";
    }
};

TEST_F(KeyboardTest, WhatStandsInAListIsMadeAndChangedByKeys) {
    const Typed latitude = { 'L', IDC_NAV_LATITUDE, L"N47* 27.0000'", L"N47* 27.0000'" },
                longitude = { 'O', IDC_NAV_LONGITUDE, L"W122* 18.5000'", L"W122* 18.5000'" },
                startLatitude = { 'L', IDC_PLACE_LATITUDE, L"N47* 27.0000'", L"N47* 27.0000'" },
                startLongitude = { 'O', IDC_PLACE_LONGITUDE, L"W122* 18.5000'", L"W122* 18.5000'" };
    const Listed rows[] = {
        { "start",
          IDM_INSERT_START,
          L"Start Location Properties",
          { startLatitude, startLongitude, { 'A', IDC_PLACE_HEADING, L"123.4", L"123.4" } },
          IDM_LIST_STARTS,
          L"Start Locations List",
          L"123.4",
          L"Start Location Properties",
          { 'E', IDC_PLACE_ELEVATION, L"321", L"321" } },
        { "NDB",
          IDM_INSERT_NDB,
          L"NDB Properties",
          { { 'I', IDC_NAV_IDENT, L"ZQK", L"ZQK" },
            { 'F', IDC_NAV_FREQUENCY, L"362.5", L"362.5" },
            latitude,
            longitude },
          IDM_LIST_NAVAIDS,
          kNavaids,
          L"ZQK",
          L"NDB Properties",
          { 'N', IDC_NAV_NAME, L"Keyed beacon", L"Keyed beacon" } },
        { "VOR",
          IDM_INSERT_VOR,
          L"VOR/DME Properties",
          { { 'I', IDC_NAV_IDENT, L"ZQV", L"ZQV" },
            { 'F', IDC_NAV_FREQUENCY, L"113.55", L"113.55" },
            latitude,
            longitude },
          IDM_LIST_NAVAIDS,
          kNavaids,
          L"ZQV",
          L"VOR/DME Properties",
          { 'D', IDC_VOR_DME_RANGE, L"60.0", L"60.0" } },
        { "ILS",
          0,
          nullptr,
          {},
          IDM_LIST_NAVAIDS,
          kNavaids,
          L"ISNQ",
          L"ILS Properties",
          { 'N', IDC_NAV_NAME, L"Keyed approach", L"Keyed approach" } },
        { "New ILS",
          IDM_INSERT_ILS,
          L"New ILS",
          { { 'R', IDC_NAV_RUNWAY, L"3", L"34L" } },
          IDM_LIST_NAVAIDS,
          kNavaids,
          L"IABC",
          L"ILS Properties",
          { 'W', IDC_ILS_WIDTH, L"4.50", L"4.50" } },
        { "New Markers and marker",
          IDM_INSERT_MARKER_BEACON,
          L"New Marker Beacons",
          { { 0, IDC_MARKERS_OUTER_DISTANCE, L"12345", L"12345" } },
          IDM_LIST_NAVAIDS,
          kNavaids,
          nullptr,
          L"Marker Properties",
          { 0, IDC_NAV_IDENT, L"ZQM", L"ZQM" } },
        { "comm",
          0,
          nullptr,
          {},
          IDM_LIST_COMMS,
          kComms,
          L"119.9",
          kComm,
          { 'N', IDC_NAV_NAME, L"Keyed tower", L"Keyed tower" } },
    };
    StartWithSample("hub");
    ASSERT_TRUE(BringToFront(mainWindow));
    for (const Listed& row : rows) {
        SCOPED_TRACE(row.name);
        ASSERT_NO_FATAL_FAILURE(InsertAndWork(row));
    }
}

// Nearly every letter is taken in this dialog.
TEST_F(KeyboardTest, EachLetterOfTheIlsDialogLeadsToItsField) {
    constexpr struct {
        WORD letter;
        int control;
    } kLetters[] = {
        { 'F', IDC_NAV_IDENT },           { 'N', IDC_NAV_NAME },
        { 'Q', IDC_NAV_FREQUENCY },       { 'R', IDC_NAV_RUNWAY },
        { 'X', IDC_ILS_SUFFIX },          { 'L', IDC_NAV_LATITUDE },
        { 'O', IDC_NAV_LONGITUDE },       { 'E', IDC_NAV_ELEVATION },
        { 'C', IDC_NAV_VARIATION },       { 'T', IDC_NAV_HEADING },
        { 'W', IDC_ILS_WIDTH },           { 'A', IDC_ILS_SLOPE_LATITUDE },
        { 'U', IDC_ILS_SLOPE_LONGITUDE }, { 'V', IDC_ILS_SLOPE_ELEVATION },
        { 'S', IDC_ILS_SLOPE_PITCH },     { 'D', IDC_ILS_DME_LATITUDE },
        { 'G', IDC_ILS_DME_LONGITUDE },   { 'I', IDC_ILS_DME_ELEVATION },
        { 'B', IDC_ILS_BACK_COURSE },  // the boxes last: they switch fields off
        { 'P', IDC_ILS_SLOPE },           { 'M', IDC_ILS_DME },
    };
    StartWithSample("hub");
    ASSERT_TRUE(BringToFront(mainWindow));
    const HWND list = OpenBy(IDM_LIST_NAVAIDS, kNavaids);
    ASSERT_NE(list, nullptr);
    ASSERT_NO_FATAL_FAILURE(FindRow(list, L"ISNQ"));
    TapKey(VK_RETURN);
    const HWND dialog = DialogWithKeys(L"ILS Properties");
    ASSERT_NE(dialog, nullptr);
    for (const auto& row : kLetters) Reach(dialog, row.letter, row.control);
    ASSERT_NO_FATAL_FAILURE(Leave(dialog, VK_ESCAPE, list));
    Leave(list, VK_ESCAPE, mainWindow);
}

TEST_F(KeyboardTest, AFrequencyIsInsertedByKeys) {
    StartWithSample("hub");
    ASSERT_TRUE(BringToFront(mainWindow));
    const HWND list = OpenBy(IDM_LIST_COMMS, kComms);
    ASSERT_NE(list, nullptr);
    TapKey('I', { VK_MENU });
    HWND dialog = DialogWithKeys(kComm);
    ASSERT_NE(dialog, nullptr);
    const Typed name = { 'N', IDC_NAV_NAME, L"Keyed ground", L"Keyed ground" };
    ASSERT_NO_FATAL_FAILURE(TypeAll(dialog, { { 'F', IDC_NAV_FREQUENCY, L"121.9", L"121.9" }, name }));
    ASSERT_NO_FATAL_FAILURE(Leave(dialog, VK_RETURN, list));
    ASSERT_TRUE(WaitUntil([&] { return SelectedRow(list).ends_with("\tKeyed ground"); })) << SelectedRow(list);
    TapKey('P', { VK_MENU });
    dialog = DialogWithKeys(kComm);
    ASSERT_NE(dialog, nullptr);
    ExpectKept(dialog, name);
    ASSERT_NO_FATAL_FAILURE(Leave(dialog, VK_ESCAPE, list));
    Leave(list, VK_ESCAPE, mainWindow);
}

TEST_F(KeyboardTest, AirportPropertiesAreChangedByKeys) {
    StartWithSample("hub");
    ASSERT_TRUE(BringToFront(mainWindow));
    for (const Typed& field :
         { Typed{ 0, IDC_CITY, L"Keyed City", L"Keyed City" }, Typed{ 'E', IDC_AIRPORT_ELEVATION, L"444", L"444" } }) {
        HWND dialog = OpenBy(IDM_AIRPORT_PROPERTIES, kAirport);
        ASSERT_NE(dialog, nullptr);
        ASSERT_NO_FATAL_FAILURE(Type(dialog, field));
        ASSERT_NO_FATAL_FAILURE(Leave(dialog, VK_RETURN, mainWindow));
        dialog = OpenBy(IDM_AIRPORT_PROPERTIES, kAirport);
        ASSERT_NE(dialog, nullptr);
        ExpectKept(dialog, field);
        ASSERT_NO_FATAL_FAILURE(Leave(dialog, VK_ESCAPE, mainWindow));
    }
}

TEST_F(KeyboardTest, HelipadAndTowerArePlacedAndChangedByKeys) {
    const struct {
        const char* name;
        UINT entry;
        const wchar_t* title;
        Typed field;
    } rows[] = {
        { "helipad", IDM_INSERT_HELIPAD, kHelipad, { 'D', IDC_PLACE_HEADING, L"45.0", L"45.0" } },
        { "tower", IDM_INSERT_TOWER, kTower, { 'E', IDC_PLACE_ELEVATION, L"140", L"140" } },
    };
    ASSERT_NO_FATAL_FAILURE(MakeAirport());
    std::wstring latitude, longitude;
    ASSERT_NO_FATAL_FAILURE(ReadMiddle(&latitude, &longitude));
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const HWND dialog = OpenBy(row.entry, row.title);
        ASSERT_NE(dialog, nullptr);
        ASSERT_NO_FATAL_FAILURE(
            TypeAll(dialog, { { 'L', IDC_PLACE_LATITUDE, latitude.c_str(), latitude.c_str() },
                              { 'O', IDC_PLACE_LONGITUDE, longitude.c_str(), longitude.c_str() } }));
        ASSERT_NO_FATAL_FAILURE(Leave(dialog, VK_RETURN, mainWindow));
        ASSERT_NO_FATAL_FAILURE(WorkInTheMiddle(OpenByDoubleClick(ground, row.title), row.title, row.field));
        Undoes();
    }
}

TEST_F(KeyboardTest, WhatStandsOnTheGroundIsChangedByKeys) {
    const Ground rows[] = {
        { "node", IDT_NORMAL_NODE, false, kNode, { 'N', IDC_NODE_TYPE, L"H", L"Hold-short node" } },
        { "link", IDT_NORMAL_LINK, true, kLink, { 'W', IDC_LINK_WIDTH, L"120", L"120" } },
        { "parking", IDT_PARKING, false, kSpot, { 'E', IDC_SPOT_HEADING, L"123.4", L"123.4" } },
        { "parking codes", IDT_PARKING, false, kSpot, { 0, IDC_SPOT_CODES, L"JAL,KLM", L"JAL,KLM" } },
        { "edge lights", IDT_EDGE_LIGHTS, true, kEdgeLights, { 'B', IDC_BRIGHTNESS, L"20", L"20" } },
    };
    ASSERT_NO_FATAL_FAILURE(MakeAirport());
    Command(IDM_LIGHTS);
    for (const Ground& row : rows) {
        SCOPED_TRACE(row.name);
        ASSERT_NO_FATAL_FAILURE(Make(row));
        ASSERT_NO_FATAL_FAILURE(WorkInTheMiddle(OpenByMapMenu(row.title), row.title, row.field));
        Undoes();
    }
}

TEST_F(KeyboardTest, TheMapMenuOpensThePropertiesOfWhatWasClicked) {
    ASSERT_NO_FATAL_FAILURE(MakeAirport());
    const POINT spot = Beside(kApart), node = Beside(-kApart);
    Use(IDT_NORMAL_NODE, node);
    Use(IDT_PARKING, spot);
    for (const auto& [at, title] : { std::pair(node, kNode), std::pair(spot, kSpot), std::pair(node, kNode) }) {
        const HWND dialog = OpenByRightClick(at, title);
        ASSERT_NE(dialog, nullptr);
        ASSERT_TRUE(HasKeys(dialog));
        EXPECT_EQ(Utf8(TextOf(dialog)), Utf8(title));
        ASSERT_NO_FATAL_FAILURE(Leave(dialog, VK_ESCAPE, mainWindow));
    }
}

TEST_F(KeyboardTest, AnAirportMadeFromNothingIsSavedAndReadAgain) {
    ASSERT_NO_FATAL_FAILURE(MakeAirport());
    HWND dialog = OpenBy(IDM_INSERT_TOWER, kTower);
    ASSERT_NE(dialog, nullptr);
    ASSERT_NO_FATAL_FAILURE(TypeAll(dialog, { { 'L', IDC_PLACE_LATITUDE, L"N47 30.5", L"N47 30.5" },
                                              { 'O', IDC_PLACE_LONGITUDE, L"W122 30.5", L"W122 30.5" } }));
    ASSERT_NO_FATAL_FAILURE(Leave(dialog, VK_RETURN, mainWindow));

    dialog = OpenBy(IDM_SAVE_AS, L"Save Airport File");
    ASSERT_NE(dialog, nullptr);
    const HWND name = ChildWithId(dialog, 1148);
    ASSERT_TRUE(WaitUntil([&] { return TextOf(name) == L"TV2_XKEY.bgl"; })) << Utf8(TextOf(name));
    CreateDirectoryW(kWork, nullptr);
    const std::wstring path = std::wstring(kWork) + L"\\" + TextOf(name);
    DeleteFileW(path.c_str());
    ASSERT_TRUE(AnswerFileDialog(dialog, path));
    ASSERT_TRUE(WaitForTitle(L"( file TV2_XKEY.bgl )")) << Utf8(Title());
    ASSERT_EQ(CloseProgram(), 0u) << "the saved airport still counts as changed";
    DetachAgent(&agent);
    EndProgram(&program);

    ASSERT_NO_FATAL_FAILURE(Start(L"\"" + path + L"\""));
    ASSERT_TRUE(WaitForTitle(L"XKEY    Keyed Field")) << Utf8(Title());
    EXPECT_NE(Title().find(L"( file TV2_XKEY.bgl )"), std::wstring::npos) << Utf8(Title());
    ASSERT_TRUE(BringToFront(mainWindow));
    dialog = OpenBy(IDM_AIRPORT_PROPERTIES, kAirport);
    ASSERT_NE(dialog, nullptr);
    const std::pair<int, const char*> texts[] = {
        { IDC_AIRPORT_LATITUDE, "N47* 30.0000'" },
        { IDC_AIRPORT_LONGITUDE, "W122* 30.0000'" },
        { IDC_AIRPORT_ELEVATION, "400" },
        { IDC_AIRPORT_IDENT, "XKEY" },
        { IDC_COUNTRY, "Nowhere" },
        { IDC_CITY, "Somewhere" },
        { IDC_AIRPORT_NAME, "Keyed Field" },
        { IDC_STATE, "" },
    };
    for (const auto& [control, text] : texts) EXPECT_EQ(Shown(dialog, control), text) << control;
    Leave(dialog, VK_ESCAPE, mainWindow);
    PostCommand(mainWindow, IDM_INSERT_TOWER);
    const Box box = MessageBoxUp();
    EXPECT_EQ(Utf8(box.text).substr(0, 24), "This airport already has") << "the tower was saved too";
    Answer(box, IDOK);
}

}  // namespace ui
