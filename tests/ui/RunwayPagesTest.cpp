// RunwayPagesTest.cpp - the pages of the runway editor: turning them, and what one control does to others.
#include <cstdlib>
#include <string>

#include "RunwaySteps.h"
#include "StandInBrowser.h"

namespace ui {

class RunwayPagesTest : public RunwayEditorTest {};

TEST_F(RunwayPagesTest, ARefusedFieldOfAnotherPageIsBroughtUp) {
    StartOnGround();
    const HWND dialog = InsertPlaced();
    ASSERT_NE(dialog, nullptr);
    Enter(dialog, IDC_STROBES + IDC_SECOND_END, L"many");
    ExpectRefusal(dialog, "ERROR: The approach strobes must be a whole number from 0 to 31",
                  IDC_STROBES + IDC_SECOND_END);
    EXPECT_EQ(PageOf(dialog), kLights);
    Enter(dialog, IDC_STROBES + IDC_SECOND_END, L"0");
    Choose(dialog, IDC_VASI_SYSTEM + 3 * IDC_NEXT_VASI, 8);
    Enter(dialog, IDC_VASI_SLOPE + 3 * IDC_NEXT_VASI, L"91");
    ExpectRefusal(dialog, "ERROR: The VASI slope must be a number from 0 to 90 degrees",
                  IDC_VASI_SLOPE + 3 * IDC_NEXT_VASI);
    EXPECT_EQ(PageOf(dialog), kVasi);
    Enter(dialog, IDC_VASI_SLOPE + 3 * IDC_NEXT_VASI, L"0.00");
    Enter(dialog, IDC_RUNWAY_HEADING, L"400");
    ExpectRefusal(dialog, "ERROR: The true heading must be a number from 0 to 360 degrees", IDC_RUNWAY_HEADING);
    EXPECT_EQ(PageOf(dialog), kData);
    CloseDialog(dialog, IDCANCEL);
    EXPECT_FALSE(CanUndo());
}

TEST_F(RunwayPagesTest, ThePagesAreTurnedByTheirTabsAndByKeys) {
    StartOnGround();
    const HWND dialog = Insert();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(PageOf(dialog), kData);
    for (const int page : { kMarkings, kVasi, kLights, kData }) {
        Turn(dialog, page);
        EXPECT_TRUE(WaitUntil([&] { return PageOf(dialog) == page; })) << page;
    }
    const auto expectPage = [&](int page, int first) {
        EXPECT_TRUE(WaitUntil([&] { return PageOf(dialog) == page; })) << page;
        EXPECT_TRUE(WaitUntil([&] { return FocusOf(agent) == ChildWithId(dialog, first); })) << page;
    };
    ASSERT_TRUE(BringToFront(dialog));
    TapKey(VK_TAB, { VK_CONTROL });
    expectPage(kLights, IDC_APPROACH_SYSTEM + IDC_SECOND_END);
    TapKey(VK_NEXT, { VK_CONTROL });
    expectPage(kVasi, IDC_VASI_SYSTEM + 2 * IDC_NEXT_VASI);
    TapKey(VK_TAB, { VK_CONTROL });
    expectPage(kMarkings, IDC_CLOSED_MARK + IDC_SECOND_END);
    TapKey(VK_TAB, { VK_CONTROL });
    expectPage(kData, IDC_END_NUMBER + IDC_SECOND_END);
    TapKey(VK_TAB, { VK_CONTROL, VK_SHIFT });
    expectPage(kMarkings, IDC_CLOSED_MARK + IDC_SECOND_END);
    TapKey(VK_PRIOR, { VK_CONTROL });
    expectPage(kVasi, IDC_VASI_SYSTEM + 2 * IDC_NEXT_VASI);
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(RunwayPagesTest, TheEndsAreNamedAfterTheirDesignatorsOnEveryPage) {
    StartOnGround();
    const HWND dialog = Insert();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(Shown(dialog, IDC_END_LIGHTS_GROUP), "Runway 36 End Lights");
    EXPECT_EQ(Shown(dialog, IDC_END_LIGHTS_GROUP + IDC_SECOND_END), "Runway 18 End Lights");
    Choose(dialog, IDC_END_NUMBER, 4);
    Choose(dialog, IDC_END_SUFFIX, 1);
    Choose(dialog, IDC_END_NUMBER + IDC_SECOND_END, 43);
    EXPECT_EQ(Shown(dialog, IDC_END_LIGHTS_GROUP), "Runway 4L End Lights");
    EXPECT_EQ(Shown(dialog, IDC_VASI_GROUP), "Runway 4L (Left)");
    EXPECT_EQ(Shown(dialog, IDC_VASI_GROUP + IDC_NEXT_VASI), "Runway 4L (Right)");
    EXPECT_EQ(Shown(dialog, IDC_VASI_GROUP + 2 * IDC_NEXT_VASI), "Runway SE (Left)");
    EXPECT_EQ(Shown(dialog, IDC_END_MARKS_GROUP), "Runway 4L End Only");
    EXPECT_EQ(Shown(dialog, IDC_END_MARKS_GROUP + IDC_SECOND_END), "Runway SE End Only");
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(RunwayPagesTest, AChosenVasiSystemFillsItsUnitAndAHeadingItsMagneticOne) {
    StartOnGround();
    const HWND dialog = InsertPlaced();
    ASSERT_NE(dialog, nullptr);
    EXPECT_FALSE(IsWindowEnabled(ChildWithId(dialog, IDC_VASI_DISTANCE)));
    Choose(dialog, IDC_VASI_SYSTEM, 8);
    EXPECT_TRUE(IsWindowEnabled(ChildWithId(dialog, IDC_VASI_DISTANCE)));
    EXPECT_FALSE(IsWindowEnabled(ChildWithId(dialog, IDC_VASI_SLOPE + IDC_NEXT_VASI)));
    EXPECT_EQ(Shown(dialog, IDC_VASI_DISTANCE), "1000");
    EXPECT_EQ(Shown(dialog, IDC_VASI_SLOPE), "3.00");
    EXPECT_EQ(Shown(dialog, IDC_VASI_DISTANCE + IDC_NEXT_VASI), "0");
    const double variation = atof(Shown(dialog, IDC_RUNWAY_VARIATION).c_str());
    Enter(dialog, IDC_RUNWAY_HEADING, L"200");
    EXPECT_NEAR(atof(Shown(dialog, IDC_MAGNETIC_HEADING).c_str()), 200 - variation, 0.11);
    Enter(dialog, IDC_RUNWAY_HEADING, L"two");
    EXPECT_EQ(Shown(dialog, IDC_MAGNETIC_HEADING), "");
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(RunwayPagesTest, AClickPlacesTheRunwayOnlyWhileItsPositionIsSeen) {
    StartOnGround();
    const HWND dialog = Insert();
    ASSERT_NE(dialog, nullptr);
    Turn(dialog, kLights);
    ClickMap(ground);
    EXPECT_EQ(Shown(dialog, IDC_RUNWAY_LATITUDE), "");
    Turn(dialog, kData);
    ClickMap(ground);
    const std::string first = Shown(dialog, IDC_RUNWAY_LATITUDE);
    EXPECT_NE(first, "");
    ClickMap({ ground.x, ground.y + 50 });
    EXPECT_NE(Shown(dialog, IDC_RUNWAY_LATITUDE), first);
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(RunwayPagesTest, InMetresLabelsAndFieldsAreMetric) {
    StartOnGround("hub", kMetricSettings);
    const HWND dialog = InsertPlaced();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(Shown(dialog, IDC_RUNWAY_LENGTH_LABEL), "Length (m)");
    EXPECT_EQ(Shown(dialog, IDC_PATTERN_ALTITUDE_LABEL), "Pattern Alt (m)");
    EXPECT_EQ(Shown(dialog, IDC_RUNWAY_ELEVATION_LABEL), "Elevation (m ASL)");
    EXPECT_EQ(Shown(dialog, IDC_OVERRUN_LABEL + IDC_SECOND_END), "Overrun Area (m)");
    EXPECT_EQ(Shown(dialog, IDC_DISPLACED_LABEL), "Displaced Thres (m)");
    EXPECT_EQ(Shown(dialog, IDC_VASI_DISTANCE_LABEL + 3 * IDC_NEXT_VASI), "Distance (m)");
    EXPECT_EQ(Shown(dialog, IDC_VASI_SPACING_LABEL), "Spacing (m)");
    EXPECT_EQ(Shown(dialog, IDC_RUNWAY_WIDTH), "46.0");
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(RunwayPagesTest, EveryControlLiesWithinItsPageAndThePagesWithinTheirTabs) {
    StartOnGround();
    const HWND dialog = Insert();
    ASSERT_NE(dialog, nullptr);
    const HWND tabs = ChildWithId(dialog, IDC_RUNWAY_TABS);
    RECT tabPlace{};
    GetWindowRect(tabs, &tabPlace);
    int checked = 0;
    for (const HWND control : Children(dialog)) {
        const HWND page = GetParent(control);
        if (page == dialog) continue;
        RECT place{}, inside{};
        GetWindowRect(control, &place);
        GetWindowRect(page, &inside);
        EXPECT_TRUE(place.left >= inside.left && place.right <= inside.right && place.top >= inside.top &&
                    place.bottom <= inside.bottom)
            << GetDlgCtrlID(control);
        EXPECT_TRUE(inside.left > tabPlace.left && inside.right < tabPlace.right && inside.top > tabPlace.top &&
                    inside.bottom < tabPlace.bottom);
        ++checked;
    }
    EXPECT_GT(checked, 100);
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(RunwayPagesTest, EachPageHasItsTopicInTheManual) {
    const StandInBrowser browser;
    StartOnGround();
    const HWND dialog = Insert();
    ASSERT_NE(dialog, nullptr);
    const char* const topics[] = { "#Runways", "#RunwayLights", "#VASI", "#RunwayMarkings" };
    std::string opened;
    for (int page = 0; page < 4; ++page) {
        Turn(dialog, page);
        PressButton(dialog, IDHELP);
        ASSERT_TRUE(WaitUntil([&] { return StandInBrowser::Opened().size() > opened.size(); })) << topics[page];
        const std::string line = StandInBrowser::Opened().substr(opened.size());
        EXPECT_NE(line.find(std::string("ReadMe.htm") + topics[page] + "\n"), std::string::npos) << line;
        opened = StandInBrowser::Opened();
    }
    CloseDialog(dialog, IDCANCEL);
}

}  // namespace ui
