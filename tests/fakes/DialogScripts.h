// DialogScripts.h - the dialogs as the resource scripts draw them.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <string>
#include <vector>

namespace scripts {

struct Box {
    int left = 0, top = 0, width = 0, height = 0;  // dialog units
};

struct Control {
    std::string kind, text, id, style;
    Box box;
};

struct Template {
    std::string name, caption, style;
    Box box;
    std::vector<Control> controls;
};

inline Box BoxOf(const std::smatch& match, size_t first) {
    return { std::stoi(match[first]), std::stoi(match[first + 1]), std::stoi(match[first + 2]),
             std::stoi(match[first + 3]) };
}

// `KIND "text", id, x, y, width, height, style` or `CONTROL "text", id, class, style, x, y, width, height`.
inline bool ReadControl(const std::string& line, Control* control) {
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

inline Template ReadTemplate(const std::smatch& head, std::istream& script) {
    Template dialog{ head[1], "", "", BoxOf(head, 2), {} };
    std::string line;
    while (std::getline(script, line) && !line.starts_with("BEGIN")) {
        if (line.starts_with("STYLE")) dialog.style = line;
        if (line.starts_with("CAPTION"))
            dialog.caption = line.substr(line.find('"') + 1, line.rfind('"') - line.find('"') - 1);
    }
    while (std::getline(script, line) && !line.starts_with("END")) {
        Control control;
        if (line.find_first_not_of(" \r") == std::string::npos) continue;
        EXPECT_TRUE(ReadControl(line, &control)) << dialog.name << ": " << line;
        dialog.controls.push_back(control);
    }
    return dialog;
}

// Those of all scripts in res, in no order.
inline std::vector<Template> AllTemplates() {
    namespace fs = std::filesystem;
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

}  // namespace scripts
