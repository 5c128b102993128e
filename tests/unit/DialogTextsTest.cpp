// DialogTextsTest.cpp - what the dialogs of the airport, of navaids and of places say, as the resource scripts have it,
// and the data of a runway with the labels for feet.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "fakes/DialogScripts.h"

namespace {

constexpr const char* kHint = R"(Lat / Long can be set by\nclicking on main window)";
constexpr const char* kVariation = R"(Magnetic Variation\nE=positive, W=negative)";

struct DialogTexts {
    const char *name, *caption;
    std::vector<std::string> texts;  // in tab order; OK, Cancel and "&Help" besides
};

const std::vector<DialogTexts> kAirportDialogs = {
    { "IDD_AIRPORT",
      "Airport Properties",
      { "Airport Reference Point", "&Latitude", "L&ongitude", "&Elevation (ft ASL)", kVariation, "Airport Services",
        "Avgas", "Jet Fuel", "Airport Identification and Location", "Airport ID", "Country", "State/Province", "City",
        "Airport Name", "From File:" } },
    { "IDD_HELIPAD",
      "Helipad Properties",
      { "&Latitude", "L&ongitude", "&Elevation (ft ASL)", "Hea&ding (true)", "Length (ft)", "Width (ft)", "&Surface",
        "&Type", "T&ransparent", "&Closed", kHint } },
    { "IDD_TOWER", "Tower Viewpoint Properties", { "&Latitude", "L&ongitude", "&Elevation (ft ASL)", kHint } },
    { "IDD_START",
      "Start Location Properties",
      { "&Latitude", "L&ongitude", "&Elevation (ft ASL)", "He&ading (true)", "&Designator", "S&uffix", "&Start Type",
        kHint } },
};

const std::vector<DialogTexts> kNavaidDialogs = {
    { "IDD_ILS",
      "ILS Properties",
      { "Identification",
        "Identi&fier",
        "&Name",
        "Fre&quency (MHz)",
        "&Runway Number",
        "Runway Suffi&x",
        "&Back Course Usable",
        kHint,
        "Localizer",
        "&Latitude",
        "L&ongitude",
        "&Elevation (ft ASL)",
        "Range (nm)",
        R"(Magneti&c Variation\nE=positive, W=negative)",
        "Heading (&true)",
        "Magnetic Course",
        "Beam &Width (degrees)",
        "Glide Slope",
        "ILS has a Glide Slo&pe",
        "L&atitude",
        "Longit&ude",
        "Ele&vation (ft ASL)",
        "Range (nm)",
        "Angle (degree&s)",
        "DME",
        "ILS has a D&ME",
        "Latitu&de",
        "Lon&gitude",
        "Elevat&ion (ft ASL)",
        "Range (nm)",
        "Channel" } },
    { "IDD_NEW_ILS",
      "New ILS",
      { "The following runways are available for a new ILS:", "&Runway",
        "An ILS will be created for the runway with a localizer, glide path, and DME placed in default locations.  You "
        "can move them if needed." } },
    { "IDD_MARKER",
      "Marker Properties",
      { "Identifier", "Type", "&Latitude", "L&ongitude", "Elevation (ft ASL)", "Heading (true)", kHint } },
    { "IDD_NEW_MARKERS",
      "New Marker Beacons",
      { "&Runway", "Distance from Threshold (ft)", "O&uter Marker", "Outer Marker Distance", "&Middle Marker",
        "Middle Marker Distance", "&Inner Marker", "Inner Marker Distance" } },
    { "IDD_NDB",
      "NDB Properties",
      { "&Identifier", "&Name", "&Frequency (kHz)", "&Type", "&Latitude", "L&ongitude", "&Elevation (ft ASL)",
        "Range (nm)", R"(Magnetic &Variation\nE=positive, W=negative)", kHint } },
    { "IDD_VOR",
      "VOR/DME Properties",
      { "&Identifier", "&Name", "&Frequency (MHz)", "&Type", "&Class", "&Latitude", "L&ongitude", "&Elevation (ft ASL)",
        "Range (nm)", "&DME Range (nm)", R"(Magnetic &Variation\nE=positive, W=negative)", kHint } },
    { "IDD_COMM", "COMM Frequency Properties", { "&Frequency", "&Type", "&Name" } },
};

const std::vector<std::string> kEndTexts = { "Designator",         "Designator Suffix",   "ILS Ident",
                                             "Closed for Takeoff", "Closed for Landing",  "Right Hand Pattern",
                                             "Overrun Area (ft)",  "Displaced Thres (ft)" };
const std::vector<std::string> kVasiTexts = { "System", "Distance (ft)", "Offset (ft)", "Spacing (ft)", "Slope (deg)" };

class DialogTextsTest : public testing::Test {
protected:
    const scripts::Template* Find(const std::string& name) const {
        const auto found = std::find_if(dialogs.begin(), dialogs.end(),
                                        [&](const scripts::Template& dialog) { return dialog.name == name; });
        return found == dialogs.end() ? nullptr : &*found;
    }
    // Empty controls left out: the program fills them.
    std::vector<std::string> TextsOf(const std::string& name) const {
        std::vector<std::string> texts;
        if (const scripts::Template* dialog = Find(name)) {
            for (const scripts::Control& control : dialog->controls) {
                if (!control.text.empty()) texts.push_back(control.text);
            }
        }
        return texts;
    }
    void ExpectTexts(const DialogTexts& expected) const {
        ASSERT_NE(Find(expected.name), nullptr) << expected.name;
        EXPECT_EQ(Find(expected.name)->caption, expected.caption);
        std::vector<std::string> texts = expected.texts;
        texts.insert(texts.end(), { "OK", "Cancel", "&Help" });
        EXPECT_EQ(TextsOf(expected.name), texts) << expected.name;
    }

    std::vector<scripts::Template> dialogs = scripts::AllTemplates();
};

TEST_F(DialogTextsTest, TheAirportAndItsPlaces) {
    for (const DialogTexts& dialog : kAirportDialogs) ExpectTexts(dialog);
}

TEST_F(DialogTextsTest, NavaidsAndFrequencies) {
    for (const DialogTexts& dialog : kNavaidDialogs) ExpectTexts(dialog);
}

TEST_F(DialogTextsTest, TheDataOfARunwayInFeet) {
    std::vector<std::string> texts = { "RECIPROCAL END" };
    texts.insert(texts.end(), kEndTexts.begin(), kEndTexts.end());
    texts.insert(texts.end(),
                 { "Runway Data", "Length (ft)", "Width (ft)", "Pattern Alt (ft)", "Surface", "Center Location",
                   "Latitude", "Longitude", "Elevation (ft ASL)", kHint, "Heading (from Base End)", "True Heading",
                   "- Magnetic Variation", "Magnetic Heading", "BASE END" });
    texts.insert(texts.end(), kEndTexts.begin(), kEndTexts.end());
    EXPECT_EQ(TextsOf("IDD_RUNWAY_DATA"), texts);
}

TEST_F(DialogTextsTest, TheVasiUnitsOfARunwayInFeet) {
    std::vector<std::string> texts;
    for (int unit = 0; unit < 4; ++unit) texts.insert(texts.end(), kVasiTexts.begin(), kVasiTexts.end());
    EXPECT_EQ(TextsOf("IDD_RUNWAY_VASI"), texts);
}

}  // namespace
