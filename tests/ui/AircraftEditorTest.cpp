// AircraftEditorTest.cpp - the Aircraft Editor on the aircraft of the sample simulator. Each test leaves their files as
// it found them.
#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "AircraftEditorIds.h"
#include "ProgramParts.h"
#include "Resource.h"
#include "StandInBrowser.h"
#include "UiHarness.h"

namespace ui {

constexpr int kRows = 28;
constexpr wchar_t kFolder[] = L"C:\\UiTest\\FS9\\Aircraft\\";
const std::wstring kConfig = std::wstring(kFolder) + L"b747_400\\aircraft.cfg";
const std::wstring kModel = std::wstring(kFolder) + L"b747_400\\model\\boeing747-400.mdl";
const std::wstring kConfigBackup = kConfig + L"_BACKUP", kModelBackup = kModel + L"_BACKUP";

static std::string ReadFileText(const std::wstring& path) {
    std::string text;
    if (FILE* file = _wfopen(path.c_str(), L"rb")) {
        for (int c; (c = fgetc(file)) != EOF;) text += static_cast<char>(c);
        fclose(file);
    }
    return text;
}

static void WriteFileText(const std::wstring& path, const std::string& text) {
    if (FILE* file = _wfopen(path.c_str(), L"wb")) {
        fwrite(text.data(), 1, text.size(), file);
        fclose(file);
    }
}

static bool FileIsThere(const std::wstring& path) {
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

class AircraftEditorTest : public UiTest {
protected:
    void SetUp() override {
        config = ReadFileText(kConfig);
        model = ReadFileText(kModel);
        ASSERT_FALSE(config.empty()) << "the sample simulator has no aircraft";
    }
    void TearDown() override {
        UiTest::TearDown();
        SetFileAttributesW(kConfig.c_str(), FILE_ATTRIBUTE_NORMAL);
        WriteFileText(kConfig, config);
        WriteFileText(kModel, model);
        DeleteFileW(kConfigBackup.c_str());
        DeleteFileW(kModelBackup.c_str());
    }
    void Open() {
        PostCommand(mainWindow, IDM_AIRCRAFT_EDITOR);
        dialog = Dialog(L"Aircraft Editor");
        list = GetDlgItem(dialog, IDC_AIRCRAFT_LIST);
    }
    int RowOf(const std::wstring& variation) const {
        for (int row = 0; row < ListRows(list); ++row) {
            if (ListText(list, row, 2) == variation) return row;
        }
        return -1;
    }
    void Select(const std::wstring& variation) {
        const int row = RowOf(variation);
        ASSERT_GE(row, 0) << Utf8(variation);
        SelectListRow(list, row);
        Settle(dialog);
    }
    HWND Control(int id) const { return GetDlgItem(dialog, id); }
    std::wstring Field(int id) const { return TextOf(Control(id)); }
    void Enter(int id, const wchar_t* text) { SetText(Control(id), text); }
    std::vector<std::wstring> Cells(int column) const {
        std::vector<std::wstring> cells;
        for (int row = 0; row < ListRows(list); ++row) cells.push_back(ListText(list, row, column));
        return cells;
    }
    void ClickHead(int column) {
        const auto header = reinterpret_cast<HWND>(SendMessageW(list, LVM_GETHEADER, 0, 0));
        int left = 0;
        for (int i = 0; i < column; ++i)
            left += static_cast<int>(SendMessageW(list, LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(i), 0));
        SendClick(header, left + 15, 8);
        Settle(dialog);
    }
    int SelectedRow() const {
        return static_cast<int>(SendMessageW(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
    }
    // The sample's configuration with another value in it.
    std::string ConfigWith(const std::string& before, const std::string& after) const {
        std::string text = config;
        return text.replace(text.find(before), before.size(), after);
    }
    void ExpectRefusal(const wchar_t* text, int field) {
        Press(dialog, IDOK);
        const Box box = MessageBoxUp();
        EXPECT_EQ(box.text, text);
        Answer(box, IDOK);
        EXPECT_TRUE(IsWindowVisible(dialog)) << "the dialog stays open";
        EXPECT_TRUE(WaitUntil([&] { return FocusOf(agent) == Control(field); }));
        const LRESULT selection = SendMessageW(Control(field), EM_GETSEL, 0, 0);
        EXPECT_EQ(LOWORD(selection), 0u);
        EXPECT_EQ(HIWORD(selection), TextOf(Control(field)).size()) << "the whole text is selected";
    }
    HWND dialog = nullptr, list = nullptr;
    std::string config, model;
};

TEST_F(AircraftEditorTest, ListsAllVariationsAndShowsTheSelectedOne) {
    Start();
    Open();
    ASSERT_EQ(ListRows(list), kRows);
    EXPECT_FALSE(IsWindowEnabled(mainWindow)) << "the dialog is modal";
    EXPECT_EQ(TextOf(Control(IDC_AIRCRAFT_RESTORE)), L"Restore &Original Settings");
    Select(L"Northwest Airlines");
    EXPECT_EQ(Field(IDC_AIRCRAFT_TITLE), L"Boeing 747-400 Northwest Airlines");
    EXPECT_EQ(Field(IDC_AIRCRAFT_AIRLINE), L"NORTHWEST");
    EXPECT_EQ(Field(IDC_AIRCRAFT_TYPES), L"GATE");
    EXPECT_EQ(Field(IDC_AIRCRAFT_CODE), L"NWA");
    EXPECT_EQ(Field(IDC_AIRCRAFT_RADIUS), L"35");
    EXPECT_TRUE(IsWindowEnabled(Control(IDC_AIRCRAFT_RADIUS)));
    EXPECT_FALSE(IsWindowEnabled(Control(IDC_AIRCRAFT_RESTORE))) << "there is no backup";
    const int row = RowOf(L"Northwest Airlines");
    const wchar_t* const cells[] = {
        L"Boeing", L"747-400", L"Northwest Airlines", L"NORTHWEST", L"GATE", L"NWA", L"35"
    };
    for (int column = 0; column < 7; ++column) EXPECT_EQ(ListText(list, row, column), cells[column]) << column;
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(AircraftEditorTest, OkWritesOnlyTheChangedValuesAndKeepsOneBackup) {
    Start();
    Open();
    Select(L"British Airways");
    Enter(IDC_AIRCRAFT_TYPES, L"g ramp");
    CloseDialog(dialog, IDOK);
    const std::string first = ConfigWith("atc_parking_types=GATE\r\n", "atc_parking_types=GATE,RAMP\r\n");
    EXPECT_EQ(ReadFileText(kConfig), first);
    EXPECT_EQ(ReadFileText(kConfigBackup), config);
    EXPECT_FALSE(FileIsThere(kModelBackup));

    Open();
    Select(L"British Airways");
    EXPECT_TRUE(IsWindowEnabled(Control(IDC_AIRCRAFT_RESTORE)));
    Enter(IDC_AIRCRAFT_AIRLINE, L"SHUTTLE");
    Enter(IDC_AIRCRAFT_RADIUS, L"36");
    CloseDialog(dialog, IDOK);
    std::string second = first;
    second.replace(second.find("SPEEDBIRD"), 9, "SHUTTLE");
    EXPECT_EQ(ReadFileText(kConfig), second);
    EXPECT_EQ(ReadFileText(kConfigBackup), config) << "the first copy is kept";
    std::string changed = model;
    changed[28] = 36;
    EXPECT_EQ(ReadFileText(kModel), changed);
    EXPECT_EQ(ReadFileText(kModelBackup), model);

    Open();
    Select(L"British Airways");
    PressButton(dialog, IDC_AIRCRAFT_RESTORE);
    EXPECT_TRUE(WaitUntil([&] { return Field(IDC_AIRCRAFT_AIRLINE) == L"SPEEDBIRD"; }));
    EXPECT_EQ(Field(IDC_AIRCRAFT_TYPES), L"GATE");
    EXPECT_EQ(Field(IDC_AIRCRAFT_RADIUS), L"35");
    EXPECT_EQ(ListText(list, RowOf(L"British Airways"), 3), L"SPEEDBIRD");
    EXPECT_EQ(ListText(list, RowOf(L"British Airways"), 6), L"35");
    EXPECT_EQ(ReadFileText(kConfig), config);
    EXPECT_EQ(ReadFileText(kModel), model);
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(AircraftEditorTest, WrongEntriesAreRefusedAndNothingIsWritten) {
    Start();
    Open();
    Select(L"British Airways");
    for (const wchar_t* radius : { L"0", L"201" }) {
        Enter(IDC_AIRCRAFT_RADIUS, radius);
        ExpectRefusal(L"ERROR: Radius must be between 1 and 200 metres", IDC_AIRCRAFT_RADIUS);
    }
    Enter(IDC_AIRCRAFT_RADIUS, L"200");
    Enter(IDC_AIRCRAFT_TYPES, L"gate hangar");
    ExpectRefusal(L"ERROR: Unknown parking type 'hangar'", IDC_AIRCRAFT_TYPES);
    CloseDialog(dialog, IDCANCEL);
    EXPECT_EQ(ReadFileText(kConfig), config);
    EXPECT_EQ(ReadFileText(kModel), model);
    EXPECT_FALSE(FileIsThere(kConfigBackup));
    EXPECT_FALSE(FileIsThere(kModelBackup));
}

TEST_F(AircraftEditorTest, AProtectedFileIsToldAndTheDialogStays) {
    ASSERT_TRUE(SetFileAttributesW(kConfig.c_str(), FILE_ATTRIBUTE_READONLY));
    Start();
    Open();
    Select(L"British Airways");
    Enter(IDC_AIRCRAFT_AIRLINE, L"SHUTTLE");
    Enter(IDC_AIRCRAFT_RADIUS, L"36");
    Press(dialog, IDOK);
    const Box box = MessageBoxUp();
    EXPECT_EQ(box.text, L"ERROR: Unable to write file\n" + kConfig);
    Answer(box, IDOK);
    EXPECT_TRUE(IsWindowVisible(dialog));
    EXPECT_EQ(ReadFileText(kConfig), config);
    EXPECT_EQ(ReadFileText(kModel), model);
    EXPECT_FALSE(FileIsThere(kConfigBackup)) << "nothing was changed, so there is nothing to restore";
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(AircraftEditorTest, TheSelectorFillsTheCodeAndFollowsIt) {
    Start();
    Open();
    Select(L"House colours");
    const HWND selector = Control(IDC_AIRCRAFT_CODE_SELECTOR);
    ASSERT_GT(SendMessageW(selector, CB_GETCOUNT, 0, 0), 0);
    EXPECT_EQ(SendMessageW(selector, CB_GETCURSEL, 0, 0), CB_ERR) << "there is no code";
    PickInCombo(selector, 0);
    const std::wstring text = ComboText(selector, 0), code = Field(IDC_AIRCRAFT_CODE);
    EXPECT_FALSE(code.empty());
    EXPECT_TRUE(text.starts_with(code + L" - ")) << Utf8(text);
    Enter(IDC_AIRCRAFT_CODE, L"");
    Settle(dialog);
    EXPECT_EQ(SendMessageW(selector, CB_GETCURSEL, 0, 0), CB_ERR);
    Enter(IDC_AIRCRAFT_CODE, code.c_str());
    Settle(dialog);
    EXPECT_EQ(SendMessageW(selector, CB_GETCURSEL, 0, 0), 0);
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(AircraftEditorTest, AClickOnAHeadSortsAndTheSelectedRowGoesAlong) {
    Start();
    Open();
    std::vector<std::wstring> cells = Cells(0);
    EXPECT_TRUE(std::is_sorted(cells.begin(), cells.end(), [](const std::wstring& a, const std::wstring& b) {
        return lstrcmpiW(a.c_str(), b.c_str()) < 0;
    }));
    Select(L"Cargolux");
    Enter(IDC_AIRCRAFT_AIRLINE, L"TYPED");
    ClickHead(6);
    const auto number = [](const std::wstring& a, const std::wstring& b) {
        return _wtoi(a.c_str()) < _wtoi(b.c_str());
    };
    cells = Cells(6);
    EXPECT_TRUE(std::is_sorted(cells.begin(), cells.end(), number));
    EXPECT_EQ(ListText(list, SelectedRow(), 2), L"Cargolux");
    ClickHead(6);
    cells = Cells(6);
    EXPECT_TRUE(std::is_sorted(cells.rbegin(), cells.rend(), number));
    EXPECT_EQ(ListText(list, SelectedRow(), 2), L"Cargolux");
    EXPECT_EQ(Field(IDC_AIRCRAFT_AIRLINE), L"TYPED") << "sorting forgets nothing";
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(AircraftEditorTest, TypingFindsInTheSortedColumn) {
    Start();
    Open();
    ClickHead(2);
    ASSERT_TRUE(BringToFront(dialog));
    EXPECT_TRUE(WaitUntil([&] { return FocusOf(agent) == list; })) << "the list has the focus at first";
    TypeText(L"sky");
    EXPECT_TRUE(WaitUntil([&] { return Field(IDC_AIRCRAFT_AIRLINE) == L"SKYWEST"; }))
        << Utf8(Field(IDC_AIRCRAFT_TITLE));
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(AircraftEditorTest, HelpOpensTheManualAtItsTopic) {
    const StandInBrowser browser;
    Start();
    Open();
    const std::string topic = "file:///C:/UiTest/Tarvo/ReadMe.htm#AircraftEditor\n";
    Press(dialog, IDHELP);
    std::string opened = topic;
    EXPECT_TRUE(browser.WaitForOpened(opened)) << browser.Opened();
    EXPECT_TRUE(IsWindowVisible(dialog)) << "the dialog stays open";
    for (const int control : { IDC_AIRCRAFT_LIST, IDC_AIRCRAFT_AIRLINE }) {
        SendMessageW(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Control(control)), TRUE);
        ASSERT_TRUE(BringToFront(dialog));
        TapKey(VK_F1);
        opened += topic;
        EXPECT_TRUE(browser.WaitForOpened(opened)) << "F1 in control " << control << ": " << browser.Opened();
    }
    CloseDialog(dialog, IDCANCEL);
}

}  // namespace ui
