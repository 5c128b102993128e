// DialogControlsTest.cpp - the controls of the dialogs Open Airport and Options: numbers, kinds and texts as the resource
// scripts have them.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "fakes/DialogScripts.h"
#include "OpenAirportIds.h"
#include "OptionsIds.h"

namespace {

struct Shown {
    int number;  // -1 for a label
    std::string kind, text;
    bool operator==(const Shown&) const = default;
};
std::ostream& operator<<(std::ostream& out, const Shown& control) {
    return out << control.number << ' ' << control.kind << " \"" << control.text << '"';
}

const std::map<std::string, int> kNumbers = {
    { "-1", -1 },
    { "IDOK", 1 },
    { "IDCANCEL", 2 },
    { "IDHELP", 9 },
    { "IDC_PLACES", IDC_PLACES },
    { "IDC_AIRPORTS", IDC_AIRPORTS },
    { "IDC_AIRPORT_ID", IDC_AIRPORT_ID },
    { "IDC_SPECIFIC_FILE", IDC_SPECIFIC_FILE },
    { "IDC_ALL_SCENERY", IDC_ALL_SCENERY },
    { "IDC_FILE_NAME", IDC_FILE_NAME },
    { "IDC_SEARCH", IDC_SEARCH },
    { "IDC_OPEN_FILE", IDC_OPEN_FILE },
    { "IDC_OPEN_HELP", IDC_OPEN_HELP },
    { "IDC_METRIC", IDC_METRIC },
    { "IDC_METRIC_RADIUS", IDC_METRIC_RADIUS },
    { "IDC_LAT_LONG_FORMAT", IDC_LAT_LONG_FORMAT },
    { "IDC_GRID_DIVISIONS", IDC_GRID_DIVISIONS },
    { "IDC_GRID_MINUTES", IDC_GRID_MINUTES },
    { "IDC_GRID_SECONDS", IDC_GRID_SECONDS },
};

scripts::Template DialogOf(const std::string& name) {
    const std::vector<scripts::Template> dialogs = scripts::AllTemplates();
    const auto found = std::find_if(dialogs.begin(), dialogs.end(),
                                    [&](const scripts::Template& dialog) { return dialog.name == name; });
    EXPECT_NE(found, dialogs.end()) << name;
    return found == dialogs.end() ? scripts::Template{} : *found;
}

std::vector<Shown> ControlsOf(const scripts::Template& dialog) {
    std::vector<Shown> controls;
    for (const scripts::Control& control : dialog.controls) {
        EXPECT_TRUE(kNumbers.contains(control.id)) << control.id;
        controls.push_back({ kNumbers.at(control.id), control.kind, control.text });
    }
    return controls;
}

TEST(DialogControls, OpenAirportHasItsNumbersAndTexts) {
    const scripts::Template dialog = DialogOf("IDD_OPEN_AIRPORT");
    EXPECT_EQ(IDD_OPEN_AIRPORT, 365);
    EXPECT_EQ(dialog.caption, "Open Airport");
    EXPECT_EQ(dialog.box.width, 380);
    EXPECT_EQ(dialog.box.height, 254);
    EXPECT_EQ(ControlsOf(dialog), (std::vector<Shown>{
                                      { 1005, "AUTORADIOBUTTON", "From All Scenery" },
                                      { 1004, "AUTORADIOBUTTON", "From Specific File" },
                                      { 4, "PUSHBUTTON", "&Open File..." },
                                      { 1007, "LTEXT", "" },
                                      { -1, "LTEXT", "&Places" },
                                      { 1000, "WC_TREEVIEW", "" },
                                      { -1, "LTEXT", "Airport ID" },
                                      { 1002, "EDITTEXT", "" },
                                      { 3, "PUSHBUTTON", "&Search" },
                                      { -1, "LTEXT", "Airports" },
                                      { 1001, "WC_LISTVIEW", "" },
                                      { -1, "LTEXT", "Stock = Original unmodified Flight Simulator airport" },
                                      { -1, "LTEXT", "Mod   = Modified airport or new airport" },
                                      { 1, "DEFPUSHBUTTON", "OK" },
                                      { 2, "PUSHBUTTON", "Cancel" },
                                      { 9, "PUSHBUTTON", "&Help" },
                                  }));
}

TEST(DialogControls, OptionsHaveTheirNumbersAndTexts) {
    const scripts::Template dialog = DialogOf("IDD_OPTIONS");
    EXPECT_EQ(IDD_OPTIONS, 1560);
    EXPECT_EQ(dialog.caption, "Options");
    EXPECT_EQ(ControlsOf(dialog), (std::vector<Shown>{
                                      { 1300, "AUTOCHECKBOX", "Metric Units" },
                                      { 1301, "AUTOCHECKBOX", "Metric Parking Radius" },
                                      { -1, "LTEXT", "Lat / Long Format" },
                                      { 1304, "COMBOBOX", "" },
                                      { -1, "LTEXT", "Lat / Long Grid Divisions" },
                                      { 1305, "COMBOBOX", "" },
                                      { 1306, "AUTORADIOBUTTON", "Decimal Minutes (e.g. 49 15.1)" },
                                      { 1307, "AUTORADIOBUTTON", "Seconds (e.g. 49 15 06)" },
                                      { 1, "DEFPUSHBUTTON", "OK" },
                                      { 2, "PUSHBUTTON", "Cancel" },
                                      { 9, "PUSHBUTTON", "&Help" },
                                  }));
}

}  // namespace
