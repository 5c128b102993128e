// DialogLayoutTest.cpp - the dialogs as the resource scripts draw them: nothing sticks out or overlaps, and all can be
// reached by the keyboard. Whether the texts fit is measured in tests/ui/DialogTextTest.cpp.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

struct Box {
    int left = 0, top = 0, width = 0, height = 0;  // dialog units
};

struct Control {
    std::string kind, text, id, style;
    Box box;
};

struct Template {
    std::string name, style;
    Box box;
    std::vector<Control> controls;
};

Box BoxOf(const std::smatch& match, size_t first) {
    return { std::stoi(match[first]), std::stoi(match[first + 1]), std::stoi(match[first + 2]),
             std::stoi(match[first + 3]) };
}

// `KIND "text", id, x, y, width, height, style` or `CONTROL "text", id, class, style, x, y, width, height`.
bool ReadControl(const std::string& line, Control* control) {
    static const std::string kStart = R"re(^\s*([A-Z]+)\s+(?:"((?:[^"]|"")*)",\s*)?)re";
    static const std::string kBox = R"re((\d+),\s*(\d+),\s*(\d+),\s*(\d+))re";
    static const std::regex common(kStart + R"re(([^",]+),\s*)re" + kBox + "(.*)$");
    static const std::regex general(kStart + R"re(([^",]+),\s*([^,]+),\s*([^,]+),\s*)re" + kBox);
    std::smatch match;
    if (std::regex_search(line, match, common)) {
        *control = { match[1], match[2], match[3], match[8], BoxOf(match, 4) };
        if (control->kind == "COMBOBOX") control->box.height = 12;  // the script gives that of the open list
        return true;
    }
    if (!std::regex_search(line, match, general)) return false;
    *control = { match[4], match[2], match[3], match[5], BoxOf(match, 6) };
    return true;
}

Template ReadTemplate(const std::smatch& head, std::istream& script) {
    Template dialog{ head[1], "", BoxOf(head, 2), {} };
    std::string line;
    while (std::getline(script, line) && !line.starts_with("BEGIN")) {
        if (line.starts_with("STYLE")) dialog.style = line;
    }
    while (std::getline(script, line) && !line.starts_with("END")) {
        Control control;
        if (line.find_first_not_of(" \r") == std::string::npos) continue;
        EXPECT_TRUE(ReadControl(line, &control)) << dialog.name << ": " << line;
        dialog.controls.push_back(control);
    }
    return dialog;
}

std::vector<Template> AllTemplates() {
    static const std::regex head(R"re(^(\w+) DIALOGEX (\d+), (\d+), (\d+), (\d+))re");
    std::vector<Template> found;
    for (const fs::directory_entry& entry :
         fs::directory_iterator(fs::path(TARVO_TEST_DATA).parent_path().parent_path() / "res")) {
        if (entry.path().extension() != ".rc") continue;
        std::ifstream script(entry.path());
        for (std::string line; std::getline(script, line);) {
            std::smatch match;
            if (std::regex_search(line, match, head)) found.push_back(ReadTemplate(match, script));
        }
    }
    return found;
}

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
        for (const Control& control : dialog.controls) {
            std::smatch match;
            if (!std::regex_search(control.text, match, mnemonic)) continue;
            const char letter = static_cast<char>(std::tolower(static_cast<unsigned char>(match[1].str()[0])));
            const auto [other, isFree] = taken.emplace(letter, control.text);
            EXPECT_TRUE(isFree || kGivenTwice.contains({ dialog.name, letter }))
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
    const std::set<std::string> labels = { "LTEXT", "RTEXT", "CTEXT", "AUTOCHECKBOX", "COMBOBOX" };
    for (const Template& dialog : dialogs) {
        std::string before;
        for (const Control& control : dialog.controls) {
            const bool isField = control.kind == "COMBOBOX" ||
                                 (control.kind == "EDITTEXT" && control.style.find("READONLY") == std::string::npos);
            EXPECT_TRUE(!isField || labels.contains(before))
                << dialog.name << ": the field at " << control.box.left << ", " << control.box.top;
            before = control.kind;
        }
    }
}

}  // namespace
