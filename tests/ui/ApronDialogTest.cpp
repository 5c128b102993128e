// ApronDialogTest.cpp - the dialogs of aprons and of apron edge lights.
#include "GroundSteps.h"

namespace ui {

class ApronDialogTest : public GroundTest {
protected:
    // Answers the message of a refused number and expects the focus in its field.
    void ExpectRefused(HWND dialog, int control, const wchar_t* text, const std::string& message) {
        const std::wstring before = TextOf(ChildWithId(dialog, control));
        Enter(dialog, control, text);
        ExpectRefusal(dialog, message, control);
        SetText(ChildWithId(dialog, control), before);
    }
};

constexpr char kBeyondFeet[] = " must be a number from 1.7 to 3280.8 feet";

TEST_F(ApronDialogTest, SurfaceAndDrawingOfAnApronAreKeptAndUndone) {
    StartOnGround();
    const POINT inside = MakeApron();
    HWND dialog = OpenByDoubleClick(inside, kApron);
    ASSERT_NE(dialog, nullptr);
    const HWND surfaces = ChildWithId(dialog, IDC_APRON_SURFACE);
    EXPECT_EQ(SendMessageW(surfaces, CB_GETCOUNT, 0, 0), 24);
    const int before = Choice(dialog, IDC_APRON_SURFACE), other = before == 4 ? 8 : 4;
    EXPECT_TRUE(IsSet(dialog, IDC_DRAW_SURFACE));
    Choose(dialog, IDC_APRON_SURFACE, other);
    Toggle(dialog, IDC_DRAW_SURFACE);
    ASSERT_NE(dialog = Reopen(dialog, IDOK, inside, kApron), nullptr);
    EXPECT_EQ(Choice(dialog, IDC_APRON_SURFACE), other);
    EXPECT_FALSE(IsSet(dialog, IDC_DRAW_SURFACE));
    CloseDialog(dialog, IDCANCEL);
    Command(IDM_UNDO);
    dialog = OpenByRightClick(inside, kApron);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(Choice(dialog, IDC_APRON_SURFACE), before);
    EXPECT_TRUE(IsSet(dialog, IDC_DRAW_SURFACE));
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(ApronDialogTest, CancelAndAnUnchangedOkOfAnApronAreNoEdit) {
    StartOnGround();
    const POINT inside = MakeApron();
    HWND dialog = OpenByDoubleClick(inside, kApron);
    ASSERT_NE(dialog, nullptr);
    Toggle(dialog, IDC_DRAW_SURFACE);
    ASSERT_NE(dialog = Reopen(dialog, IDCANCEL, inside, kApron), nullptr);
    EXPECT_TRUE(IsSet(dialog, IDC_DRAW_SURFACE));
    CloseDialog(dialog, IDOK);
    EXPECT_EQ(Undoes(), 1) << "more than the drawing of the apron";
}

TEST_F(ApronDialogTest, AnApronIsEditedByTheKeyboardAlone) {
    StartOnGround();
    const POINT inside = MakeApron();
    HWND dialog = OpenByDoubleClick(inside, kApron);
    ASSERT_NE(dialog, nullptr);
    ASSERT_TRUE(BringToFront(dialog));
    TapKey('D', { VK_MENU });
    EXPECT_TRUE(WaitUntil([&] { return !IsSet(dialog, IDC_DRAW_SURFACE); }));
    TapKey('S', { VK_MENU });
    EXPECT_TRUE(WaitUntil([&] { return FocusOf(agent) == ChildWithId(dialog, IDC_APRON_SURFACE); }));
    TapKey(VK_HOME);
    EXPECT_TRUE(WaitUntil([&] { return Choice(dialog, IDC_APRON_SURFACE) == 0; }));
    TapKey(VK_RETURN);
    ASSERT_TRUE(WaitUntilGone(dialog));
    dialog = OpenByDoubleClick(inside, kApron);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(Choice(dialog, IDC_APRON_SURFACE), 0);
    EXPECT_FALSE(IsSet(dialog, IDC_DRAW_SURFACE));
    ASSERT_TRUE(BringToFront(dialog));
    TapKey(VK_ESCAPE);
    EXPECT_TRUE(WaitUntilGone(dialog));
}

TEST_F(ApronDialogTest, EveryFieldOfTheLightsIsKept) {
    StartOnGround();
    const POINT lamps = MakeStrip();
    HWND dialog = OpenByDoubleClick(lamps, kEdgeLights);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(Shown(dialog, IDC_SPACING_LABEL), "&Light Spacing (ft)");
    EXPECT_EQ(Shown(dialog, IDC_OPTIMUM_LABEL), "&Optimum Light Spacing (ft)");
    EXPECT_EQ(Shown(dialog, IDC_SPACING), "200.0");
    EXPECT_EQ(Shown(dialog, IDC_OPTIMUM), "200.0");
    EXPECT_EQ(Shown(dialog, IDC_BRIGHTNESS), "13");
    EXPECT_FALSE(IsSet(dialog, IDC_ADJUST_SPACING));
    Enter(dialog, IDC_SPACING, L"150");
    Enter(dialog, IDC_BRIGHTNESS, L"6.5");
    ASSERT_NE(dialog = Reopen(dialog, IDOK, lamps, kEdgeLights), nullptr);
    EXPECT_EQ(Shown(dialog, IDC_SPACING), "150.0");
    EXPECT_EQ(Shown(dialog, IDC_BRIGHTNESS), "6.5");
    CloseDialog(dialog, IDOK);
    EXPECT_EQ(Undoes(), 2) << "not the strip and one edit";
}

TEST_F(ApronDialogTest, TheSpacingIsThatOfTheSelectedStrip) {
    StartOnGround("hub", kMetricSettings);
    const POINT first = MakeStrip();
    const POINT second = MakeStrip(kApart);
    HWND dialog = OpenByDoubleClick(second, kEdgeLights);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(Shown(dialog, IDC_SPACING_LABEL), "&Light Spacing (m)");
    EXPECT_EQ(Shown(dialog, IDC_OPTIMUM_LABEL), "&Optimum Light Spacing (m)");
    EXPECT_EQ(Shown(dialog, IDC_SPACING), "61.0");
    Enter(dialog, IDC_SPACING, L"30");
    ASSERT_NE(dialog = Reopen(dialog, IDOK, first, kEdgeLights), nullptr);
    EXPECT_EQ(Shown(dialog, IDC_SPACING), "61.0");
    CloseDialog(dialog, IDCANCEL);
    AddToSelection(second);
    dialog = OpenWithShift(first, kEdgeLights);
    ASSERT_NE(dialog, nullptr);
    ASSERT_NE(dialog = Reopen(dialog, IDCANCEL, second, kEdgeLights), nullptr);
    EXPECT_EQ(Shown(dialog, IDC_SPACING), "30.0");
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(ApronDialogTest, AdjustEndsTheStripsAtALampAndHoldsForNewOnes) {
    StartOnGround();
    const POINT lamps = MakeStrip();
    HWND dialog = OpenByDoubleClick(lamps, kEdgeLights);
    ASSERT_NE(dialog, nullptr);
    Toggle(dialog, IDC_ADJUST_SPACING);
    Enter(dialog, IDC_OPTIMUM, L"170");
    ASSERT_NE(dialog = Reopen(dialog, IDOK, lamps, kEdgeLights), nullptr);
    EXPECT_TRUE(IsSet(dialog, IDC_ADJUST_SPACING));
    EXPECT_EQ(Shown(dialog, IDC_OPTIMUM), "170.0");
    const std::string adjusted = Shown(dialog, IDC_SPACING);
    EXPECT_NE(adjusted, "200.0");
    EXPECT_NEAR(atof(adjusted.c_str()), 170, 30);
    CloseDialog(dialog, IDCANCEL);
    const POINT twin = MakeStrip(kApart);
    dialog = OpenByDoubleClick(twin, kEdgeLights);
    ASSERT_NE(dialog, nullptr);
    EXPECT_NEAR(atof(Shown(dialog, IDC_SPACING).c_str()), atof(adjusted.c_str()), 1) << "it is as long as the first";
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(ApronDialogTest, NonsenseInTheLightsIsRefused) {
    StartOnGround();
    const HWND dialog = OpenByDoubleClick(MakeStrip(), kEdgeLights);
    ASSERT_NE(dialog, nullptr);
    ExpectRefused(dialog, IDC_SPACING, L"0", std::string("ERROR: The light spacing") + kBeyondFeet);
    ExpectRefused(dialog, IDC_SPACING, L"200 ft", std::string("ERROR: The light spacing") + kBeyondFeet);
    ExpectRefused(dialog, IDC_OPTIMUM, L"", std::string("ERROR: The optimum light spacing") + kBeyondFeet);
    ExpectRefused(dialog, IDC_BRIGHTNESS, L"-1", "ERROR: The brightness must be a number from 0 to 1000");
    CloseDialog(dialog, IDCANCEL);
    EXPECT_EQ(Undoes(), 1) << "more than the strip";
}

}  // namespace ui
