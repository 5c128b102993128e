// AirportPropertiesTest.cpp - the window "Airport Properties", and what Cancel leaves of a new airport.
#include "AirportIds.h"
#include "EditorSteps.h"

namespace ui {

class AirportPropertiesTest : public EditorTest {
protected:
    HWND OpenProperties() { return Open(IDM_AIRPORT_PROPERTIES, L"Airport Properties"); }
};

TEST_F(AirportPropertiesTest, EveryFieldIsKept) {
    StartOnGround();
    HWND dialog = OpenProperties();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(Shown(dialog, IDC_FROM_FILE), Utf8(FindSample("hub").path));
    EXPECT_EQ(Shown(dialog, IDC_AIRPORT_ELEVATION_LABEL), "&Elevation (ft ASL)");
    if (!IsSet(dialog, IDC_AVGAS)) Toggle(dialog, IDC_AVGAS);
    if (IsSet(dialog, IDC_JET_FUEL)) Toggle(dialog, IDC_JET_FUEL);
    const struct {
        int id;
        const wchar_t* text;
    } fields[] = { { IDC_AIRPORT_LATITUDE, L"N47* 30.0000'" },
                   { IDC_AIRPORT_LONGITUDE, L"W122* 20.0000'" },
                   { IDC_AIRPORT_ELEVATION, L"123" },
                   { IDC_AIRPORT_VARIATION, L"-3.5" },
                   { IDC_COUNTRY, L"Nowhere" },
                   { IDC_STATE, L"Anywhere" },
                   { IDC_CITY, L"Somewhere" },
                   { IDC_AIRPORT_NAME, L"Test Field" } };
    for (const auto& field : fields) Enter(dialog, field.id, field.text);
    CloseDialog(dialog, IDOK);
    ASSERT_NE(dialog = OpenProperties(), nullptr);
    for (const auto& field : fields) EXPECT_EQ(Shown(dialog, field.id), Utf8(field.text));
    EXPECT_TRUE(IsSet(dialog, IDC_AVGAS));
    EXPECT_FALSE(IsSet(dialog, IDC_JET_FUEL));
    Toggle(dialog, IDC_AVGAS);
    Toggle(dialog, IDC_JET_FUEL);
    CloseDialog(dialog, IDOK);
    ASSERT_NE(dialog = OpenProperties(), nullptr);
    EXPECT_FALSE(IsSet(dialog, IDC_AVGAS));
    EXPECT_TRUE(IsSet(dialog, IDC_JET_FUEL));
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(AirportPropertiesTest, InMetresTheElevationIsLabelledSo) {
    StartOnGround("hub", kMetricSettings);
    const HWND dialog = OpenProperties();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(Shown(dialog, IDC_AIRPORT_ELEVATION_LABEL), "&Elevation (m ASL)");
    CloseDialog(dialog, IDCANCEL);
}

// What a cancelled one had left would be in the next one: a second tower.
TEST_F(AirportPropertiesTest, ANewAirportHasNothingOfTheOneThatWasCancelled) {
    Start();
    HWND dialog = Open(IDM_NEW, L"Airport Properties");
    ASSERT_NE(dialog, nullptr);
    CloseDialog(dialog, IDCANCEL);
    ASSERT_NE(dialog = Open(IDM_NEW, L"Airport Properties"), nullptr);
    Enter(dialog, IDC_AIRPORT_LATITUDE, L"N47 30");
    Enter(dialog, IDC_AIRPORT_LONGITUDE, L"W122 30");
    Enter(dialog, IDC_AIRPORT_IDENT, L"XTST");
    for (const int id : { IDC_COUNTRY, IDC_CITY, IDC_AIRPORT_NAME }) Enter(dialog, id, L"Nowhere");
    CloseDialog(dialog, IDOK);
    Command(IDM_SELECT_ALL);
    PostCommand(mainWindow, IDK_DELETE);
    const Box box = MessageBoxUp();
    EXPECT_EQ(Utf8(box.text), "Are you sure you want to delete the control tower viewpoint?");
    Answer(box, IDCANCEL);
    SettlePosted(agent);
    EXPECT_TRUE(IsWindowEnabled(mainWindow)) << "another tower is asked about";
}

}  // namespace ui
