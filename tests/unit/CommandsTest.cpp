#include "app/Commands.h"

#include <gtest/gtest.h>

#include <cstring>
#include <utility>

#include "app/Airport.h"
#include "app/HelpTexts.h"
#include "app/Settings.h"
#include "app/Toolbar.h"
#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "fakes/FakeShell.h"
#include "map/MapView.h"
#include "map/Tools.h"
#include "model/EditHistory.h"
#include "Resource.h"

namespace {

using app::IsCommandChecked;
using app::IsCommandEnabled;
using app::RunCommand;

constexpr int kNeedAirport[] = {
    IDM_CLOSE,
    IDM_SAVE,
    IDM_SAVE_AS,
    IDM_SELECT_ALL,
    IDT_SAVE,
    IDT_NORMAL_NODE,
    IDT_HOLD_SHORT_NODE,
    IDT_ILS_HOLD_SHORT_NODE,
    IDK_DELETE,
    IDT_NORMAL_LINK,
    IDT_RUNWAY_LINK,
    IDT_APRON_LINK,
    IDT_CLOSED_LINK,
    IDT_PARKING,
    IDT_APRON,
    IDT_APRON_POINT,
    IDT_EDGE_LIGHTS,
    IDT_MARKERS,
    IDT_GUIDELINES,

    IDM_AIRPORT_PROPERTIES,
    IDM_PAGE_SETUP,
    IDM_PRINT,
    IDT_PRINT,
    IDM_INSERT_RUNWAY,
    IDM_INSERT_HELIPAD,
    IDM_INSERT_TOWER,
    IDM_INSERT_START,
    IDM_INSERT_ILS,
    IDM_INSERT_MARKER_BEACON,
    IDM_INSERT_NDB,
    IDM_INSERT_VOR,
    IDM_LIST_PARKING,
    IDM_LIST_DESIGNATORS,
    IDM_LIST_RUNWAYS,
    IDM_LIST_STARTS,
    IDM_LIST_COMMS,
    IDM_LIST_NAVAIDS,
    IDM_FAULT_FINDER,
};
constexpr int kAlways[] = {
    IDM_EXIT,         IDM_LABEL_TYPES, IDM_LABEL_CODES,       IDM_LIGHTS,    IDM_NETWORK,
    IDM_STARTS,       IDM_NAVAIDS,     IDM_HOLD_SHORT_LIMITS, IDM_GRID,      IDM_HELP,
    IDM_KEYBOARD,     IDM_ABOUT,       IDT_ZOOM_IN,           IDT_ZOOM_OUT,  IDT_POINTER,
    IDK_CYCLE_LABELS, IDK_HOME,        IDK_PAN_LEFT,          IDK_PAN_UP,    IDK_PAN_RIGHT,
    IDK_PAN_DOWN,     IDK_ROTATE_DOWN, IDK_ROTATE_DOWN_FINE,  IDK_ROTATE_UP, IDK_ROTATE_UP_FINE,
    IDM_OPTIONS,
};

class CommandsTest : public testing::Test {
protected:
    void SetUp() override {
        ResetProgram();
        map::ResizeView(800, 600);
    }
    void TearDown() override { ResetProgram(); }

    static void OpenAnAirport() {
        model::state.airport = build::Airport("KTST");
        model::state.loaded = true;
    }
    static void AddRecordedNode() {
        model::SceneryObject* node = model::CreateObject(model::kTaxiNode, sizeof(model::TaxiNodeRecord));
        model::BeginAction();
        model::AddObject(node);
    }
};

TEST_F(CommandsTest, WhatNeedsAnAirportIsGreyedWithoutOne) {
    for (int id : kNeedAirport) EXPECT_FALSE(IsCommandEnabled(id)) << id;
    OpenAnAirport();
    for (int id : kNeedAirport) EXPECT_TRUE(IsCommandEnabled(id)) << id;
}

TEST_F(CommandsTest, WhatNeedsNoAirportIsAlwaysEnabled) {
    for (int id : kAlways) EXPECT_TRUE(IsCommandEnabled(id)) << id;
    OpenAnAirport();
    for (int id : kAlways) EXPECT_TRUE(IsCommandEnabled(id)) << id;
}

TEST_F(CommandsTest, AnIdWithoutARowIsGreyedAndDead) {
    OpenAnAirport();
    for (int id : { 0, 1, -1, 39999, 65535 }) {
        EXPECT_FALSE(IsCommandEnabled(id)) << id;
        EXPECT_FALSE(IsCommandChecked(id)) << id;
        EXPECT_FALSE(RunCommand(id)) << id;
    }
}

TEST_F(CommandsTest, AGreyedCommandStaysDead) {
    EXPECT_FALSE(RunCommand(IDM_SAVE_AS));
    EXPECT_FALSE(RunCommand(IDT_SAVE));
    EXPECT_FALSE(RunCommand(IDT_NORMAL_NODE));
    EXPECT_TRUE(fakeShell.saveQuestions.empty());
    EXPECT_EQ(map::tools.toolMode, map::Tool::Pointer);
    EXPECT_EQ(fakeShell.stateRefreshes, 0);
}

TEST_F(CommandsTest, MenusAndToolbarAreShownAgainAfterEveryCommand) {
    EXPECT_TRUE(RunCommand(IDM_LIGHTS));
    EXPECT_EQ(fakeShell.stateRefreshes, 1);
}

TEST_F(CommandsTest, UndoAndRedoOfTheIdentifierAndTheNameShowInTheTitle) {
    OpenAnAirport();
    model::PlaceTexts texts = model::CurrentPlaceTexts();
    texts.icao = "KNEW";
    texts.name = {};
    std::strcpy(texts.name.data(), "New Field");
    const std::string old = app::TitleText();
    model::BeginAction();
    model::ModifyAirport(model::CopyObject(model::state.airport), texts);
    const std::string changed = app::TitleText();
    ASSERT_NE(changed.find("KNEW"), std::string::npos) << changed;
    for (const auto& [undo, redo] : { std::pair{ IDM_UNDO, IDM_REDO }, std::pair{ IDT_UNDO, IDT_REDO } }) {
        EXPECT_TRUE(RunCommand(undo));
        EXPECT_EQ(fakeShell.title, old);
        EXPECT_TRUE(RunCommand(redo));
        EXPECT_EQ(fakeShell.title, changed);
    }
}

TEST_F(CommandsTest, DeleteIsDeadDuringADrag) {
    OpenAnAirport();
    AddRecordedNode();
    model::FirstOfKind(model::state.head, model::kTaxiNode)->flags |= model::kSelected;
    model::state.busy = true;
    EXPECT_FALSE(RunCommand(IDK_DELETE));
    model::state.busy = false;
    EXPECT_EQ(model::CountKind(model::kTaxiNode), 1u);
    EXPECT_TRUE(RunCommand(IDK_DELETE));
    EXPECT_EQ(model::CountKind(model::kTaxiNode), 0u);
}

TEST_F(CommandsTest, UndoAndRedoAreEnabledWhileThereIsSomethingToUndoOrRedo) {
    OpenAnAirport();
    EXPECT_FALSE(IsCommandEnabled(IDM_UNDO));
    EXPECT_FALSE(IsCommandEnabled(IDT_UNDO));
    AddRecordedNode();
    EXPECT_TRUE(IsCommandEnabled(IDM_UNDO));
    EXPECT_FALSE(IsCommandEnabled(IDM_REDO));
    EXPECT_TRUE(RunCommand(IDT_UNDO));
    EXPECT_EQ(model::CountKind(model::kTaxiNode), 0u);
    EXPECT_FALSE(IsCommandEnabled(IDT_UNDO));
    EXPECT_TRUE(RunCommand(IDM_REDO));
    EXPECT_EQ(model::CountKind(model::kTaxiNode), 1u);
    EXPECT_GE(fake.repaints, 2);
}

TEST_F(CommandsTest, NothingIsSavedDeletedOrClosedUnderADrag) {
    OpenAnAirport();
    AddRecordedNode();
    model::state.busy = true;
    for (int id : { IDM_CLOSE, IDM_SAVE, IDM_SAVE_AS, IDM_UNDO, IDT_UNDO, IDT_SAVE, IDM_SELECT_ALL, IDK_DELETE })
        EXPECT_FALSE(RunCommand(id)) << id;
    EXPECT_TRUE(RunCommand(IDT_ZOOM_IN));
    model::state.busy = false;
    EXPECT_TRUE(IsCommandEnabled(IDK_DELETE));
}

TEST_F(CommandsTest, DeleteRemovesTheSelectionAsOneAction) {
    OpenAnAirport();
    build::Node({ 10, 0 })->flags |= model::kSelected;
    build::Node({ 20, 0 })->flags |= model::kSelected;
    build::Node({ 30, 0 });
    EXPECT_TRUE(RunCommand(IDK_DELETE));
    EXPECT_EQ(model::CountKind(model::kTaxiNode), 1u);
    RunCommand(IDM_UNDO);
    EXPECT_EQ(model::CountKind(model::kTaxiNode), 3u);
}

TEST_F(CommandsTest, DeletingGuidelinesIsGreyedUntilThereAreAny) {
    OpenAnAirport();
    EXPECT_FALSE(IsCommandEnabled(IDM_DELETE_GUIDELINES));
    build::Marker();
    EXPECT_TRUE(RunCommand(IDM_DELETE_GUIDELINES));
    EXPECT_EQ(model::CountKind(model::kReferenceMarker), 0u);
}

TEST_F(CommandsTest, TheTwoLabelEntriesExcludeEachOtherAndSwitchOff) {
    RunCommand(IDM_LABEL_TYPES);
    EXPECT_TRUE(IsCommandChecked(IDM_LABEL_TYPES));
    RunCommand(IDM_LABEL_CODES);
    EXPECT_FALSE(IsCommandChecked(IDM_LABEL_TYPES));
    EXPECT_TRUE(IsCommandChecked(IDM_LABEL_CODES));
    RunCommand(IDM_LABEL_CODES);
    EXPECT_FALSE(IsCommandChecked(IDM_LABEL_CODES));
    EXPECT_EQ(app::settings.showLabels, 0);
}

TEST_F(CommandsTest, TheLabelKeyGoesFromNoneToTypesToCodesToNone) {
    for (int mode : { 1, 2, 0, 1 }) {
        RunCommand(IDK_CYCLE_LABELS);
        EXPECT_EQ(app::settings.showLabels, mode);
    }
}

TEST_F(CommandsTest, LayersAreToggledCheckedAndRepainted) {
    struct {
        int id;
        bool atStart;
    } const rows[] = {
        { IDM_LIGHTS, false },
        { IDM_NETWORK, true },
        { IDM_STARTS, false },
        { IDM_NAVAIDS, false },
        { IDM_HOLD_SHORT_LIMITS, false },
        { IDM_GRID, true },
    };
    for (const auto& row : rows) {
        fake.repaints = 0;
        EXPECT_EQ(IsCommandChecked(row.id), row.atStart) << row.id;
        RunCommand(row.id);
        EXPECT_EQ(IsCommandChecked(row.id), !row.atStart) << row.id;
        EXPECT_EQ(fake.repaints, 1) << row.id;
        RunCommand(row.id);
        EXPECT_EQ(IsCommandChecked(row.id), row.atStart) << row.id;
    }
}

TEST_F(CommandsTest, ANodeButtonChoosesTheToolAndTheKind) {
    OpenAnAirport();
    EXPECT_TRUE(IsCommandChecked(IDT_POINTER));
    struct {
        int id, kind;
    } const rows[] = { { IDT_HOLD_SHORT_NODE, 2 }, { IDT_ILS_HOLD_SHORT_NODE, 4 }, { IDT_NORMAL_NODE, 1 } };
    for (const auto& row : rows) {
        RunCommand(row.id);
        EXPECT_EQ(map::tools.toolMode, map::Tool::Nodes);
        EXPECT_EQ(map::tools.nodeKind, row.kind);
        int checked = 0;
        for (const app::ToolButton& button : app::FirstToolbar()) checked += IsCommandChecked(button.command);
        EXPECT_EQ(checked, 1);
        EXPECT_TRUE(IsCommandChecked(row.id));
    }
    RunCommand(IDT_POINTER);
    EXPECT_EQ(map::tools.toolMode, map::Tool::Pointer);
    EXPECT_FALSE(IsCommandChecked(IDT_NORMAL_NODE));
}

TEST_F(CommandsTest, ZoomPanAndRotationReachTheView) {
    map::ResetView(build::kMiddle);
    RunCommand(IDT_ZOOM_IN);
    EXPECT_DOUBLE_EQ(map::view.span, map::kInitialSpan * 0.9);
    RunCommand(IDT_ZOOM_OUT);
    EXPECT_NEAR(map::view.span, map::kInitialSpan, 1e-9);
    RunCommand(IDK_ROTATE_DOWN);
    EXPECT_NEAR(map::view.rotation * model::kDegreesPerRadian, 355, 1e-9);
    RunCommand(IDK_ROTATE_UP_FINE);
    EXPECT_NEAR(map::view.rotation * model::kDegreesPerRadian, 356, 1e-9);
    RunCommand(IDK_ROTATE_UP);
    EXPECT_NEAR(map::view.rotation * model::kDegreesPerRadian, 1, 1e-9);
    RunCommand(IDK_ROTATE_DOWN_FINE);
    EXPECT_NEAR(map::view.rotation, 0, 1e-9);
    map::ResetView(build::kMiddle);
    RunCommand(IDK_PAN_RIGHT);
    EXPECT_LT(map::view.centre.lon, build::kMiddle.lon);  // west-positive
    RunCommand(IDK_PAN_LEFT);
    RunCommand(IDK_PAN_UP);
    EXPECT_GT(map::view.centre.lat, build::kMiddle.lat);
    RunCommand(IDK_PAN_DOWN);
    RunCommand(IDK_PAN_DOWN);
    EXPECT_LT(map::view.centre.lat, build::kMiddle.lat);
    RunCommand(IDK_HOME);
    EXPECT_EQ(map::view.centre.lat, build::kMiddle.lat);
}

TEST_F(CommandsTest, ExitAsksTheWindowToClose) {
    RunCommand(IDM_EXIT);
    EXPECT_EQ(fakeShell.closeRequests, 1);
}

TEST_F(CommandsTest, OptionsOpensItsDialog) {
    EXPECT_TRUE(RunCommand(IDM_OPTIONS));
    EXPECT_EQ(fakeShell.optionsDialogs, 1);
}

TEST_F(CommandsTest, HelpOpensTheReadMeOfTheProgramFolder) {
    RunCommand(IDM_HELP);
    ASSERT_EQ(fakeShell.documents.size(), 1u);
    EXPECT_EQ(fakeShell.documents[0], "\\ReadMe.htm");  // the program folder of the tests is empty
}

TEST_F(CommandsTest, OpenAsksAboutTheAirportBeforeItsDialogComes) {
    for (const int id : { IDM_OPEN, IDT_OPEN }) {
        fakeShell.openDialogs = 0;
        model::state.modified = false;
        EXPECT_TRUE(RunCommand(id));
        EXPECT_EQ(fakeShell.openDialogs, 1);
        OpenAnAirport();
        model::state.modified = true;
        fake.answers = { platform::Answer::Cancel };
        RunCommand(id);
        EXPECT_EQ(fakeShell.openDialogs, 1);
        fake.answers = { platform::Answer::No };
        RunCommand(id);
        EXPECT_EQ(fakeShell.openDialogs, 2);
        EXPECT_TRUE(model::state.loaded) << "nothing was chosen yet";
    }
}

TEST_F(CommandsTest, ARecentEntryIsEnabledWhereTheListHasOne) {
    app::settings.previousFiles = { "KAAA,C:\\none.bgl", "no file" };
    EXPECT_TRUE(IsCommandEnabled(IDM_RECENT_FIRST));
    for (int id = IDM_RECENT_FIRST + 1; id <= IDM_RECENT_LAST; ++id) EXPECT_FALSE(IsCommandEnabled(id)) << id;
    app::settings.previousFiles.assign(10, "KAAA,C:\\none.bgl");
    for (int id = IDM_RECENT_FIRST; id <= IDM_RECENT_LAST; ++id) {
        fake.messages.clear();
        EXPECT_TRUE(RunCommand(id));
        EXPECT_EQ(fake.messages.size(), 1u) << id << " tells that the file is not there";
    }
}

TEST_F(CommandsTest, ARecentEntryAsksAboutTheAirportFirst) {
    app::settings.previousFiles = { "KAAA,C:\\none.bgl" };
    OpenAnAirport();
    model::state.modified = true;
    fake.answers = { platform::Answer::Cancel };
    RunCommand(IDM_RECENT_FIRST);
    EXPECT_EQ(fake.messages.size(), 1u);
    EXPECT_TRUE(model::state.modified);
}

TEST_F(CommandsTest, EachToolCommandPressesItsOwnButtonOnly) {
    const struct {
        int id;
        map::Tool tool;
        uint32_t linkKind;
    } rows[] = {
        { IDT_NORMAL_LINK, map::Tool::Links, 1 },      { IDT_RUNWAY_LINK, map::Tool::Links, 2 },
        { IDT_APRON_LINK, map::Tool::Links, 4 },       { IDT_CLOSED_LINK, map::Tool::Links, 5 },
        { IDT_PARKING, map::Tool::Parking, 0 },        { IDT_APRON, map::Tool::Apron, 0 },
        { IDT_APRON_POINT, map::Tool::ApronPoint, 0 }, { IDT_EDGE_LIGHTS, map::Tool::EdgeLights, 0 },
        { IDT_MARKERS, map::Tool::Markers, 0 },        { IDT_GUIDELINES, map::Tool::Guidelines, 0 },
    };
    OpenAnAirport();
    for (const auto& row : rows) {
        EXPECT_TRUE(RunCommand(row.id));
        EXPECT_EQ(map::tools.toolMode, row.tool);
        EXPECT_TRUE(row.linkKind == 0 || map::tools.linkKind == row.linkKind);
        for (const auto& other : rows) EXPECT_EQ(IsCommandChecked(other.id), other.id == row.id);
        EXPECT_FALSE(IsCommandChecked(IDT_POINTER));
    }
}

TEST_F(CommandsTest, AnOutlineIsClosedByKeysOnceItHasThreeCorners) {
    OpenAnAirport();
    RunCommand(IDT_APRON);
    map::view.span = 600;
    map::ResizeView(800, 600);
    for (const platform::Pixel at : { platform::Pixel{ 100, 100 }, { 200, 100 }, { 200, 200 }, { 100, 200 } }) {
        EXPECT_EQ(IsCommandEnabled(IDK_FINISH_POLYGON), map::tools.outline.size() >= 3);
        map::OnButtonDown(at, {});
        map::OnButtonUp(at, {});
        EXPECT_TRUE(IsCommandEnabled(IDK_CLOSE_POLYGON));
    }
    EXPECT_TRUE(RunCommand(IDK_TAKE_BACK_CORNER));
    EXPECT_EQ(map::tools.outline.size(), 3u);
    EXPECT_TRUE(RunCommand(IDK_CLOSE_POLYGON));
    EXPECT_EQ(model::CountKind(model::kApron), 1u);
    for (const int id : { IDK_CLOSE_POLYGON, IDK_FINISH_POLYGON, IDK_TAKE_BACK_CORNER })
        EXPECT_FALSE(IsCommandEnabled(id));
}

}  // namespace
