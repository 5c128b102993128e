// CommandTableTest.cpp - a walk over all commands: each has an effect, or a reason to be greyed.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <sstream>

#include "app/Commands.h"
#include "app/CommandTable.h"
#include "app/Keys.h"
#include "app/Settings.h"
#include "app/Toolbar.h"
#include "fakes/BuildObjects.h"
#include "fakes/FakeEditors.h"
#include "fakes/FakePlatform.h"
#include "fakes/FakePrinter.h"
#include "fakes/FakeShell.h"
#include "map/MapView.h"
#include "map/Tools.h"
#include "model/EditHistory.h"
#include "model/Positions.h"
#include "Resource.h"

namespace {

void AddNode(build::Place at) {
    model::SceneryObject* node = model::CreateObject(model::kTaxiNode, sizeof(model::TaxiNodeRecord));
    model::SetPosition(node, build::At(at));
    model::BeginAction();
    model::AddObject(node);
}

// An airport in which everything can be done: something is selected, something not, edits can be undone and redone,
// recent airports are known and the simulator is there.
void MakeRichState() {
    ResetProgram();
    map::ResizeView(800, 600);
    model::state.airport = build::Airport("KTST");
    model::state.icao = "KTST";
    model::state.loaded = true;
    map::ResetView(build::kMiddle);
    map::PanStep(map::PanDirection::Up);  // so that Home has somewhere to go
    build::Node({ 10, 0 })->flags |= model::kSelected;
    build::Designator("A");
    build::Marker();
    AddNode({ 20, 0 });
    AddNode({ 30, 0 });
    model::Undo();
    model::state.modified = true;
    map::simAircraft.active = true;
    for (int i = 0; i < 10; ++i)
        app::settings.previousFiles.push_back("K" + std::to_string(100 + i) + ",/missing/" + std::to_string(i));
    fake.answers = { platform::Answer::No };  // to the save prompt
}

void MakeRichStateWithNodeTool() {
    MakeRichState();
    map::SetTool(map::Tool::Nodes);
    map::tools.nodeKind = 2;
}

void MakeStateWithOutline() {
    MakeRichState();
    map::SetTool(map::Tool::Apron);
    for (const model::Pixel at : { model::Pixel{ 100, 100 }, { 300, 100 }, { 300, 300 } }) {
        map::OnButtonDown(at, {});
        map::OnButtonUp(at, {});
    }
}

void DescribeModel(std::ostream* out) {
    for (const model::SceneryObject* o = model::state.head; o; o = o->next) *out << o << ':' << o->flags << ' ';
    *out << model::state.undoHead << ' ' << model::state.redoHead << ' ' << model::state.loaded << '\n';
}

void DescribeMap(std::ostream* out) {
    const map::MapView& view = map::view;
    *out << view.centre.lat << ' ' << view.centre.lon << ' ' << view.span << ' ' << view.rotation << ' '
         << view.lockedToSim << '\n';
    const map::MapLayers& layers = map::layers;
    *out << layers.network << layers.lights << layers.starts << layers.navaids << layers.holdShortLimits
         << layers.highlightedDesignator << '\n';
    const map::ToolState& tools = map::tools;
    *out << int(tools.toolMode) << ' ' << int(tools.nodeKind) << ' ' << tools.linkKind << ' ' << tools.outline.size()
         << '\n';
}

void DescribeFakes(std::ostream* out) {
    const FakeShell& shell = fakeShell;
    *out << shell.saveQuestions.size() << ' ' << shell.texts.size() << ' ' << shell.documents.size() << ' '
         << shell.openDialogs << ' ' << shell.optionsDialogs << ' ' << shell.aircraftEditors.size() << ' '
         << shell.pageSetups << ' ' << fakePrinter.steps.size() << ' ' << shell.pictureQuestions.size() << ' '
         << shell.faultFinders << ' ' << shell.closeRequests << '\n'
         << fake.messages.size() << ' ' << fake.placedAircraft.size() << ' ' << fakeEditors.opened.size() << ' '
         << fakeEditors.lists.size() << '\n';
}

// Everything that a user could tell apart, but for repaints: they alone are no effect.
std::string Description() {
    std::ostringstream out;
    out.precision(17);
    DescribeModel(&out);
    DescribeMap(&out);
    DescribeFakes(&out);
    const app::Settings& settings = app::settings;
    out << settings.showLabels << settings.showLatLongGrid << '\n';
    return out.str();
}

// Greyed or without an effect here although it has a row. What the tests of its own folder prove is no gap.
const std::map<int, std::string> kElsewhere = {
    { IDK_SLEW_STOP, "needs a simulator that answers: SimLinkTest" },
    { IDM_PROPERTIES, "needs a place where an object lies: EditCommandsTest" },
};

std::vector<int> AllIds() {
    std::vector<int> ids;
    for (const app::Command& command : app::CommandTable()) ids.push_back(command.id);
    return ids;
}

bool HasRow(int id) {
    const std::vector<int> ids = AllIds();
    return std::find(ids.begin(), ids.end(), id) != ids.end();
}

class CommandTable : public testing::TestWithParam<int> {
protected:
    void TearDown() override { ResetProgram(); }
};

TEST_P(CommandTable, ACommandHasAnEffectWhereItIsEnabled) {
    const int id = GetParam();
    if (kElsewhere.contains(id)) return;
    bool enabled = false, effect = false;
    for (const auto make : { MakeRichState, MakeRichStateWithNodeTool, MakeStateWithOutline }) {
        make();
        if (!app::IsCommandEnabled(id)) continue;
        enabled = true;
        const std::string before = Description();
        ASSERT_TRUE(app::RunCommand(id));
        effect |= Description() != before;
    }
    EXPECT_TRUE(enabled) << "greyed though everything is there";
    EXPECT_TRUE(effect) << "nothing happened";
}

INSTANTIATE_TEST_SUITE_P(All, CommandTable, testing::ValuesIn(AllIds()));

TEST(CommandTableGaps, EveryButtonHasARow) {
    for (const auto buttons : { app::FirstToolbar(), app::SecondToolbar() }) {
        for (const app::ToolButton& button : buttons) {
            EXPECT_TRUE(button.command == 0 || HasRow(button.command)) << button.command;
        }
    }
}

// The numbers of the menus' entries, from the resource script and its header.
std::vector<int> MenuIds() {
    const auto textOf = [](const char* name) {
        std::ifstream file(std::filesystem::path(TARVO_TEST_DATA).parent_path().parent_path() / "res" / name);
        return std::string(std::istreambuf_iterator<char>(file), {});
    };
    const std::string script = textOf("Tarvo.rc"), header = textOf("Resource.h");
    const std::regex entry(R"re(MENUITEM\s+"(?:[^"]|"")*"\s*,\s*(\w+))re");
    std::vector<int> ids;
    for (std::sregex_iterator at(script.begin(), script.end(), entry), end; at != end; ++at) {
        std::smatch number;
        const std::regex define("#define\\s+" + (*at)[1].str() + "\\s+(\\d+)");
        EXPECT_TRUE(std::regex_search(header, number, define)) << (*at)[1];
        if (!number.empty()) ids.push_back(std::stoi(number[1]));
    }
    return ids;
}

TEST(CommandTableGaps, EveryMenuEntryHasARow) {
    const std::vector<int> ids = MenuIds();
    EXPECT_EQ(ids.size(), 45u);
    for (const int id : ids) EXPECT_TRUE(HasRow(id)) << id;
}

TEST(CommandTableGaps, EveryKeyHasARow) {
    for (int key = 0; key < 256; ++key) {
        for (const app::KeyModifiers held : { app::KeyModifiers{}, { true, false }, { false, true }, { true, true } }) {
            const int id = app::CommandForKey(key, held);
            EXPECT_TRUE(id == 0 || HasRow(id)) << key;
        }
    }
}

}  // namespace
