// OptionsTest.cpp - the Options dialog: what it shows, what each control changes at once, what is kept.
#include <string>
#include <vector>

#include "OptionsIds.h"
#include "ProgramParts.h"
#include "Resource.h"
#include "StandInBrowser.h"
#include "UiHarness.h"

namespace ui {

class OptionsTest : public UiTest {
protected:
    HWND Open() {
        PostCommand(mainWindow, IDM_OPTIONS);
        return Dialog(L"Options");
    }
    void Ok(HWND dialog) {
        CloseDialog(dialog, IDOK);
        SettlePosted(agent);
    }
    static void Click(HWND dialog, int id) {
        SendMessageW(GetDlgItem(dialog, id), BM_CLICK, 0, 0);
        Settle(dialog);
    }
    static bool IsSet(HWND dialog, int id) {
        return SendMessageW(GetDlgItem(dialog, id), BM_GETCHECK, 0, 0) == BST_CHECKED;
    }
    static int Choice(HWND dialog, int id) {
        return static_cast<int>(SendMessageW(GetDlgItem(dialog, id), CB_GETCURSEL, 0, 0));
    }
    void Pick(int id, int choice) {
        const HWND dialog = Open();
        PickInCombo(GetDlgItem(dialog, id), choice);
        Ok(dialog);
    }
    void Toggle(int id) {
        const HWND dialog = Open();
        Click(dialog, id);
        Ok(dialog);
    }
    static std::string Setting(const wchar_t* key) {
        wchar_t text[64] = L"";
        GetPrivateProfileStringW(L"General", key, L"(none)", text, 64, kSettingsFile);
        return Utf8(text);
    }
    POINT MiddleOfMap() const { return MapMiddle(mainWindow); }
    std::wstring PositionReadOut() const { return StatusText(mainWindow, kPositionPart); }
};

static std::vector<std::wstring> ComboTexts(HWND combo) {
    std::vector<std::wstring> texts;
    const auto count = static_cast<int>(SendMessageW(combo, CB_GETCOUNT, 0, 0));
    for (int i = 0; i < count; ++i) texts.push_back(ComboText(combo, i));
    return texts;
}

TEST_F(OptionsTest, TheControlsHaveTheirTextsAndShowTheDefaults) {
    Start();
    const HWND dialog = Open();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(TextOf(GetDlgItem(dialog, 1300)), L"Metric Units");
    EXPECT_EQ(TextOf(GetDlgItem(dialog, 1301)), L"Metric Parking Radius");
    EXPECT_EQ(TextOf(GetDlgItem(dialog, 1306)), L"Decimal Minutes (e.g. 49 15.1)");
    EXPECT_EQ(TextOf(GetDlgItem(dialog, 1307)), L"Seconds (e.g. 49 15 06)");
    EXPECT_EQ(ComboTexts(GetDlgItem(dialog, 1304)),
              (std::vector<std::wstring>{ L"N49.12345", L"N49* 15.1234'", L"N49* 15' 45.1234\"", L"N49:15.1234",
                                          L"N49:15:45.1234" }));
    const std::vector<std::wstring> divisions = ComboTexts(GetDlgItem(dialog, 1305));
    ASSERT_EQ(divisions.size(), 10u);
    EXPECT_EQ(divisions[0], L"60 Sec (1.00 Min)");
    EXPECT_EQ(divisions[9], L" 3 Sec (0.05 Min)");
    EXPECT_FALSE(IsSet(dialog, 1300));
    EXPECT_FALSE(IsSet(dialog, 1301));
    EXPECT_EQ(Choice(dialog, 1304), 1);
    EXPECT_EQ(Choice(dialog, 1305), 1);
    EXPECT_TRUE(IsSet(dialog, 1306));
    EXPECT_FALSE(IsSet(dialog, 1307));
    EXPECT_FALSE(IsWindowEnabled(mainWindow)) << "the dialog is modal";
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(OptionsTest, APositionIsShownInTheChosenFormatAtOnce) {
    const wchar_t* const marks[] = { L".", L"*.'", L"*'.\"", L":.", L"::." };  // of the latitude, without its digits
    StartWithSample("hub");
    const POINT middle = MiddleOfMap();
    SendMouse(mainWindow, WM_MOUSEMOVE, middle.x, middle.y);
    for (int format = 0; format < 5; ++format) {
        Pick(IDC_LAT_LONG_FORMAT, format);
        const auto latitudeMarks = [&] {
            std::wstring text = PositionReadOut();
            text = text.substr(0, text.find(L"   "));
            std::erase_if(text, [](wchar_t c) { return iswalnum(c) || c == L' '; });
            return text;
        };
        EXPECT_TRUE(WaitUntil([&] { return latitudeMarks() == marks[format]; })) << Utf8(PositionReadOut());
    }
}

TEST_F(OptionsTest, DistancesAreShownInTheChosenUnitAtOnce) {
    StartWithSample("hub");
    const POINT middle = MiddleOfMap();
    SendClick(mainWindow, middle.x, middle.y);
    SendMouse(mainWindow, WM_MOUSEMOVE, middle.x + 100, middle.y);
    const auto distance = [&] { return StatusText(mainWindow, kDistancePart); };
    ASSERT_TRUE(distance().ends_with(L" ft")) << Utf8(distance());
    const double feet = _wtof(distance().c_str() + 10);
    Toggle(IDC_METRIC);
    EXPECT_TRUE(WaitUntil([&] { return distance().ends_with(L" m"); })) << Utf8(distance());
    EXPECT_NEAR(_wtof(distance().c_str() + 10) * 3.280839895, feet, 0.3);
    Toggle(IDC_METRIC);
    EXPECT_TRUE(WaitUntil([&] { return distance().ends_with(L" ft"); }));
}

TEST_F(OptionsTest, TheGridOnTheMapFollowsAtOnce) {
    StartWithSample("hub");
    const Picture before = GrabMap(mainWindow);
    Pick(IDC_GRID_DIVISIONS, 5);
    const Picture finer = GrabMap(mainWindow);
    EXPECT_NE(finer.pixels, before.pixels) << "the lines stand where they stood";
    Toggle(IDC_GRID_SECONDS);
    const Picture seconds = GrabMap(mainWindow);
    EXPECT_NE(seconds.pixels, finer.pixels) << "the labels are what they were";
    Pick(IDC_GRID_DIVISIONS, 1);
    Toggle(IDC_GRID_MINUTES);
    EXPECT_EQ(GrabMap(mainWindow).pixels, before.pixels);
}

TEST_F(OptionsTest, CancelAndEscChangeNothing) {
    StartWithSample("hub");
    const POINT middle = MiddleOfMap();
    SendMouse(mainWindow, WM_MOUSEMOVE, middle.x, middle.y);
    const std::wstring position = PositionReadOut();
    const Picture before = GrabMap(mainWindow);
    for (int way : { IDCANCEL, VK_ESCAPE }) {
        const HWND dialog = Open();
        for (int id : { IDC_METRIC, IDC_METRIC_RADIUS, IDC_GRID_SECONDS }) Click(dialog, id);
        PickInCombo(GetDlgItem(dialog, IDC_LAT_LONG_FORMAT), 4);
        PickInCombo(GetDlgItem(dialog, IDC_GRID_DIVISIONS), 8);
        if (way == VK_ESCAPE) {
            ASSERT_TRUE(BringToFront(dialog));
            TapKey(VK_ESCAPE);
            ASSERT_TRUE(WaitUntilGone(dialog));
        } else {
            CloseDialog(dialog, way);
        }
        SettlePosted(agent);
        EXPECT_EQ(GrabMap(mainWindow).pixels, before.pixels);
        SendMouse(mainWindow, WM_MOUSEMOVE, middle.x, middle.y);
        EXPECT_EQ(PositionReadOut(), position);
    }
    const HWND dialog = Open();
    EXPECT_FALSE(IsSet(dialog, IDC_METRIC));
    EXPECT_FALSE(IsSet(dialog, IDC_METRIC_RADIUS));
    EXPECT_EQ(Choice(dialog, IDC_LAT_LONG_FORMAT), 1);
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(OptionsTest, TheChoicesAreThereAgainAfterARestart) {
    Start();
    HWND dialog = Open();
    for (int id : { IDC_METRIC, IDC_METRIC_RADIUS, IDC_GRID_SECONDS }) Click(dialog, id);
    PickInCombo(GetDlgItem(dialog, IDC_LAT_LONG_FORMAT), 4);
    PickInCombo(GetDlgItem(dialog, IDC_GRID_DIVISIONS), 8);
    Ok(dialog);
    ASSERT_EQ(CloseProgram(), 0u);
    EXPECT_EQ(Setting(L"Metric"), "1");
    EXPECT_EQ(Setting(L"MetricParkingRadius"), "1");
    EXPECT_EQ(Setting(L"LatLongFormat"), "5");
    EXPECT_EQ(Setting(L"LatLongGridDivs"), "8");
    EXPECT_EQ(Setting(L"LatLongGridDecimal"), "0");
    DetachAgent(&agent);
    EndProgram(&program);

    Start(L"", nullptr);
    dialog = Open();
    EXPECT_TRUE(IsSet(dialog, IDC_METRIC));
    EXPECT_TRUE(IsSet(dialog, IDC_METRIC_RADIUS));
    EXPECT_EQ(Choice(dialog, IDC_LAT_LONG_FORMAT), 4);
    EXPECT_EQ(Choice(dialog, IDC_GRID_DIVISIONS), 8);
    EXPECT_FALSE(IsSet(dialog, IDC_GRID_MINUTES));
    EXPECT_TRUE(IsSet(dialog, IDC_GRID_SECONDS));
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(OptionsTest, TheKeyboardAloneIsEnough) {
    Start();
    HWND dialog = Open();
    ASSERT_TRUE(BringToFront(dialog));
    const auto focusIs = [&](int id) { return WaitUntil([&] { return FocusOf(agent) == GetDlgItem(dialog, id); }); };
    EXPECT_TRUE(focusIs(IDC_METRIC));
    TapKey(VK_SPACE);
    TapKey(VK_TAB);
    EXPECT_TRUE(focusIs(IDC_METRIC_RADIUS));
    TapKey(VK_TAB);
    EXPECT_TRUE(focusIs(IDC_LAT_LONG_FORMAT));
    TapKey(VK_END);
    TapKey(VK_TAB);
    EXPECT_TRUE(focusIs(IDC_GRID_DIVISIONS));
    TapKey(VK_HOME);
    TapKey(VK_TAB);
    EXPECT_TRUE(focusIs(IDC_GRID_MINUTES)) << "a group of radio buttons is one stop, at the one that is set";
    TapKey(VK_DOWN);
    EXPECT_TRUE(focusIs(IDC_GRID_SECONDS));
    TapKey(VK_RETURN);
    ASSERT_TRUE(WaitUntilGone(dialog));
    dialog = Open();
    EXPECT_TRUE(IsSet(dialog, IDC_METRIC));
    EXPECT_FALSE(IsSet(dialog, IDC_METRIC_RADIUS));
    EXPECT_EQ(Choice(dialog, IDC_LAT_LONG_FORMAT), 4);
    EXPECT_EQ(Choice(dialog, IDC_GRID_DIVISIONS), 0);
    EXPECT_TRUE(IsSet(dialog, IDC_GRID_SECONDS));
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(OptionsTest, HelpOpensTheManualAtItsTopic) {
    const StandInBrowser browser;
    Start();
    const HWND dialog = Open();
    Press(dialog, IDHELP);
    EXPECT_TRUE(browser.WaitForOpened("file:///C:/UiTest/Tarvo/ReadMe.htm#Options\n")) << browser.Opened();
    EXPECT_TRUE(IsWindowVisible(dialog)) << "the dialog stays open";
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(OptionsTest, HelpWithoutAManualSaysNothing) {
    const StandInBrowser browser;
    const std::wstring page = std::wstring(kProgramFolder) + L"\\ReadMe.htm", away = page + L".away";
    Start();
    ASSERT_TRUE(MoveFileW(page.c_str(), away.c_str()));
    const HWND dialog = Open();
    Press(dialog, IDHELP);
    SettlePosted(agent);
    EXPECT_TRUE(IsWindowEnabled(dialog)) << "a box came up";
    ASSERT_TRUE(MoveFileW(away.c_str(), page.c_str()));
    Press(dialog, IDHELP);
    EXPECT_TRUE(browser.WaitForOpened("file:///C:/UiTest/Tarvo/ReadMe.htm#Options\n")) << browser.Opened();
    CloseDialog(dialog, IDCANCEL);
}

}  // namespace ui
