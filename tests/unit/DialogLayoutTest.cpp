// DialogLayoutTest.cpp - the dialogs as the resource scripts draw them: nothing sticks out or overlaps, and all can be
// reached by the keyboard. Whether the texts fit is measured in tests/ui/DialogTextTest.cpp.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "fakes/DialogScripts.h"

namespace {

using namespace scripts;

class DialogLayout : public testing::Test {
protected:
    std::vector<Template> dialogs = AllTemplates();
    void SetUp() override { ASSERT_GT(dialogs.size(), 30u) << "the resource scripts were not read"; }
};

bool Overlap(const Box& a, const Box& b) {
    return a.left < b.left + b.width && b.left < a.left + a.width && a.top < b.top + b.height &&
           b.top < a.top + a.height;
}

// Frames hold other controls, and hidden labels are only spoken; the system's own preview of a page is made of three that
// lie on each other.
bool MayLieUnder(const Control& control) {
    return control.kind == "GROUPBOX" || control.kind == "\"STATIC\"" ||
           control.style.find("NOT WS_VISIBLE") != std::string::npos;
}

TEST_F(DialogLayout, EveryControlLiesWithinItsDialog) {
    for (const Template& dialog : dialogs) {
        for (const Control& control : dialog.controls) {
            EXPECT_TRUE(control.box.left >= 0 && control.box.top >= 0) << dialog.name << ' ' << control.text;
            EXPECT_LE(control.box.left + control.box.width, dialog.box.width) << dialog.name << ' ' << control.text;
            EXPECT_LE(control.box.top + control.box.height, dialog.box.height) << dialog.name << ' ' << control.text;
        }
    }
}

TEST_F(DialogLayout, NoControlsOverlap) {
    for (const Template& dialog : dialogs) {
        for (size_t i = 0; i < dialog.controls.size(); ++i) {
            for (size_t j = 0; j < i; ++j) {
                const Control &a = dialog.controls[i], &b = dialog.controls[j];
                if (MayLieUnder(a) || MayLieUnder(b)) continue;
                EXPECT_FALSE(Overlap(a.box, b.box))
                    << dialog.name << ": " << a.kind << " \"" << a.text << "\" at " << a.box.left << ", " << a.box.top
                    << " and " << b.kind << " \"" << b.text << "\" at " << b.box.left << ", " << b.box.top;
            }
        }
    }
}

// Two labels of these dialogs share a letter: their texts are given.
const std::set<std::pair<std::string, char>> kGivenTwice = {
    { "IDD_FAULT_FINDER", 'h' },
    { "IDD_PARKING", 'n' },
    { "IDD_PARKING", 'p' },
};

TEST_F(DialogLayout, NoTwoControlsHaveOneMnemonic) {
    static const std::regex mnemonic("&([^&])");
    for (const Template& dialog : dialogs) {
        std::map<char, std::string> taken;
        std::set<std::pair<std::string, char>> excused = kGivenTwice;
        for (const Control& control : dialog.controls) {
            std::smatch match;
            if (!std::regex_search(control.text, match, mnemonic)) continue;
            const char letter = static_cast<char>(std::tolower(static_cast<unsigned char>(match[1].str()[0])));
            const auto [other, isFree] = taken.emplace(letter, control.text);
            EXPECT_TRUE(isFree || excused.erase({ dialog.name, letter }) == 1)
                << dialog.name << ": " << other->second << " and " << control.text;
        }
    }
}

// A page of a tab control has the buttons of its dialog, and what only shows progress is answered by nothing.
TEST_F(DialogLayout, EveryDialogHasADefaultButtonAndIsLeftByEsc) {
    for (const Template& dialog : dialogs) {
        if (dialog.style.find("WS_SYSMENU") == std::string::npos) continue;
        const auto count = [&](auto is) { return std::count_if(dialog.controls.begin(), dialog.controls.end(), is); };
        EXPECT_EQ(count([](const Control& control) { return control.kind == "DEFPUSHBUTTON"; }), 1) << dialog.name;
        EXPECT_EQ(count([](const Control& control) { return control.id == "IDCANCEL"; }), 1) << dialog.name;
    }
}

// What a screen reader speaks for a field is the text before it. A designator is a pair of boxes with one label.
TEST_F(DialogLayout, EveryFieldComesAfterItsLabel) {
    const std::set<std::string> labels = { "LTEXT", "RTEXT", "CTEXT", "COMBOBOX", "\"Static\"" };
    const std::set<std::string> fields = { "COMBOBOX", "LISTBOX", "WC_LISTVIEW", "WC_TREEVIEW" };
    for (const Template& dialog : dialogs) {
        std::string before;
        for (const Control& control : dialog.controls) {
            const bool isField = fields.contains(control.kind) ||
                                 (control.kind == "EDITTEXT" && control.style.find("READONLY") == std::string::npos);
            EXPECT_TRUE(!isField || labels.contains(before))
                << dialog.name << ": the field at " << control.box.left << ", " << control.box.top;
            before = control.kind;
        }
    }
}

TEST_F(DialogLayout, EachListHasItsButtons) {
    const std::map<std::string, std::vector<std::string>> expected = {
        { "IDD_NAVAID_LIST", { "&Delete", "&Properties", "Close", "&Help" } },
        { "IDD_RUNWAY_LIST", { "&Delete", "&Properties", "Close", "&Help" } },
        { "IDD_PARKING_LIST", { "&Delete", "&Properties", "&Randomize", "&Original Order", "Close", "&Help" } },
        { "IDD_START_LIST", { "&Delete", "&Properties", "Close", "&Help" } },
        { "IDD_DESIGNATOR_LIST", { "&Delete", "Close", "&Help" } },
        { "IDD_COMM_LIST", { "&Insert", "&Delete", "&Properties", "Close", "&Help" } },
    };
    std::map<std::string, std::vector<std::string>> buttons;
    for (const Template& dialog : dialogs) {
        if (!expected.contains(dialog.name)) continue;
        for (const Control& control : dialog.controls) {
            if (control.kind.ends_with("PUSHBUTTON")) buttons[dialog.name].push_back(control.text);
        }
    }
    EXPECT_EQ(buttons, expected);
}

}  // namespace
