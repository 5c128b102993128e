// EditCommandsTest.cpp - the commands that open dialogs, and what is refused while one is open over the map.
#include "app/EditCommands.h"

#include <gtest/gtest.h>

#include "app/Commands.h"
#include "app/ViewCommands.h"
#include "dialogs/Editors.h"
#include "dialogs/OverMap.h"
#include "fakes/BuildObjects.h"
#include "fakes/FakeEditors.h"
#include "fakes/FakePlatform.h"
#include "fakes/FakeShell.h"
#include "fakes/RecordingCanvas.h"
#include "map/LightStrips.h"
#include "map/MapView.h"
#include "map/PaintMap.h"
#include "map/Selection.h"
#include "model/EditHistory.h"
#include "model/ObjectList.h"
#include "model/Positions.h"
#include "Resource.h"

namespace {

class EditCommandsTest : public ::testing::Test {
protected:
    void SetUp() override {
        ResetProgram();
        fakeEditors = {};
        dialogs::overMap = {};
    }
    void TearDown() override {
        dialogs::overMap = {};
        model::ClearModel();
    }

    static model::SceneryObject* OpenAirport() {
        model::AppendObject(model::CreateObject(model::kAirport, sizeof(model::AirportRecord)));
        model::state.loaded = true;
        return model::state.airport;
    }
};

TEST_F(EditCommandsTest, EveryInsertCommandOpensItsDialog) {
    OpenAirport();
    const std::pair<int, const char*> rows[] = {
        { IDM_INSERT_RUNWAY, "insert runway" }, { IDM_INSERT_HELIPAD, "insert helipad" },
        { IDM_INSERT_TOWER, "insert tower" },   { IDM_INSERT_START, "insert start" },
        { IDM_INSERT_ILS, "insert ils" },       { IDM_INSERT_MARKER_BEACON, "insert markers" },
        { IDM_INSERT_NDB, "insert ndb" },       { IDM_INSERT_VOR, "insert vor" },
    };
    for (const auto& [command, name] : rows) {
        ASSERT_TRUE(app::RunCommand(command)) << name;
        EXPECT_EQ(fakeEditors.opened.back(), name);
    }
}

TEST_F(EditCommandsTest, WhatIsInsertedIsShown) {
    OpenAirport();
    map::layers = {};
    fakeEditors.insertStored = true;
    app::RunCommand(IDM_INSERT_START);
    EXPECT_TRUE(map::layers.starts);
    EXPECT_FALSE(map::layers.navaids);
    for (const int command : { IDM_INSERT_ILS, IDM_INSERT_MARKER_BEACON, IDM_INSERT_NDB, IDM_INSERT_VOR }) {
        map::layers.navaids = false;
        app::RunCommand(command);
        EXPECT_TRUE(map::layers.navaids) << command;
    }
    map::layers = {};
}

TEST_F(EditCommandsTest, ACancelledInsertLeavesTheLayersAsTheyWere) {
    OpenAirport();
    for (const bool shown : { false, true }) {
        map::layers.starts = map::layers.navaids = shown;
        app::RunCommand(IDM_INSERT_START);
        app::RunCommand(IDM_INSERT_VOR);
        EXPECT_EQ(map::layers.starts, shown);
        EXPECT_EQ(map::layers.navaids, shown);
    }
    map::layers = {};
}

TEST_F(EditCommandsTest, EveryListCommandOpensItsList) {
    OpenAirport();
    const std::pair<int, dialogs::ListKind> rows[] = {
        { IDM_LIST_PARKING, dialogs::ListKind::Parking },
        { IDM_LIST_RUNWAYS, dialogs::ListKind::Runways },
        { IDM_LIST_DESIGNATORS, dialogs::ListKind::Designators },
        { IDM_LIST_STARTS, dialogs::ListKind::Starts },
        { IDM_LIST_COMMS, dialogs::ListKind::Comms },
        { IDM_LIST_NAVAIDS, dialogs::ListKind::Navaids },
    };
    for (const auto& [command, kind] : rows) {
        ASSERT_TRUE(app::RunCommand(command));
        EXPECT_EQ(fakeEditors.lists.back(), kind);
    }
}

TEST_F(EditCommandsTest, WithoutAnAirportThereIsNothingToEditOrList) {
    for (const int command : { IDM_AIRPORT_PROPERTIES, IDM_INSERT_RUNWAY, IDM_LIST_PARKING, IDM_PROPERTIES }) {
        EXPECT_FALSE(app::RunCommand(command)) << command;
    }
    EXPECT_TRUE(fakeEditors.opened.empty());
}

TEST_F(EditCommandsTest, AirportPropertiesAreThoseOfTheAirport) {
    const model::SceneryObject* airport = OpenAirport();
    ASSERT_TRUE(app::RunCommand(IDM_AIRPORT_PROPERTIES));
    EXPECT_EQ(fakeEditors.opened.back(), "airport");
    EXPECT_EQ(fakeEditors.subjects.back(), airport);
}

TEST_F(EditCommandsTest, PropertiesAreThoseOfTheObjectUnderTheMenu) {
    OpenAirport();
    model::SceneryObject* node = build::Node();
    map::ResizeView(800, 600);
    map::ResetView(model::PositionOf(node));
    RecordingCanvas log;
    map::PaintMap(&log.canvas);
    app::NoteMenuPoint({ 400, 300 });
    ASSERT_TRUE(app::RunCommand(IDM_PROPERTIES));
    EXPECT_EQ(fakeEditors.opened.back(), "node");
    EXPECT_EQ(fakeEditors.subjects.back(), node);
    app::NoteMenuPoint({ 10, 10 });
    EXPECT_FALSE(app::IsCommandEnabled(IDM_PROPERTIES));
}

TEST_F(EditCommandsTest, PropertiesOfAStripOfLightsAreThoseOfTheStripUnderTheMenu) {
    OpenAirport();
    const auto strip = [](double north) {
        const model::EncodedPoint a = build::Encoded({ -100, north }), b = build::Encoded({ 100, north });
        return model::EdgeLightStrip{ 60, a.longitude, a.latitude, b.longitude, b.latitude, 0, 0, 0 };
    };
    const model::SceneryObject* lights = build::EdgeLights({ strip(100), strip(-100), strip(200) });
    map::layers.lights = true;
    map::ResizeView(800, 600);
    map::ResetView(build::kMiddle);
    RecordingCanvas log;
    map::PaintMap(&log.canvas);
    const auto selected = [&] {
        std::vector<bool> strips;
        for (uint32_t i = 0; i < map::StripCount(lights); ++i)
            strips.push_back(map::StripAt(lights, i).segmentSelected);
        return strips;
    };
    using Strips = std::vector<bool>;
    const auto pixelOf = [](double north) { return map::WorldToPixel(build::At({ 20, north })); };
    map::SelectAt(pixelOf(100), false);
    ASSERT_EQ(selected(), (Strips{ true, false, false }));
    app::NoteMenuPoint(pixelOf(-100));
    ASSERT_TRUE(app::RunCommand(IDM_PROPERTIES));
    EXPECT_EQ(fakeEditors.opened.back(), "edge lights");
    EXPECT_EQ(selected(), (Strips{ false, true, false }));
    map::SelectAt(pixelOf(100), true);
    app::RunCommand(IDM_PROPERTIES);
    EXPECT_EQ(selected(), (Strips{ true, true, false })) << "it is one of those that are selected";
    map::layers = {};
}

TEST_F(EditCommandsTest, ANewAirportClosesTheOneBefore) {
    OpenAirport();
    ASSERT_TRUE(app::RunCommand(IDM_NEW));
    EXPECT_EQ(fakeEditors.opened.back(), "new airport");
    EXPECT_FALSE(model::state.loaded);
}

TEST_F(EditCommandsTest, ANewAirportClearsTheCheckMarkOfTheNavaids) {
    OpenAirport();
    map::layers.navaids = true;
    app::RunCommand(IDM_NEW);
    EXPECT_TRUE(map::layers.navaids) << "no airport has come";
    fakeEditors.newAirportStored = true;
    app::RunCommand(IDM_NEW);
    EXPECT_FALSE(map::layers.navaids);
}

TEST_F(EditCommandsTest, ANewAirportIsNotMadeWhenTheSavePromptIsCancelled) {
    OpenAirport();
    model::state.modified = true;
    fake.answers = { platform::Answer::Cancel };
    app::RunCommand(IDM_NEW);
    EXPECT_TRUE(fakeEditors.opened.empty());
    EXPECT_TRUE(model::state.loaded);
}

TEST_F(EditCommandsTest, WhileADialogIsOpenOnlyTheMapCanBeMoved) {
    OpenAirport();
    dialogs::overMap.open = true;
    for (const int command : { IDM_SAVE, IDM_CLOSE, IDM_OPEN, IDM_NEW, IDK_DELETE, IDM_UNDO, IDT_NORMAL_NODE,
                               IDM_SELECT_ALL, IDM_INSERT_RUNWAY, IDM_EXIT }) {
        EXPECT_FALSE(app::IsCommandEnabled(command)) << command;
    }
    for (const int command : { IDT_ZOOM_IN, IDT_ZOOM_OUT, IDK_PAN_LEFT, IDK_ROTATE_UP, IDM_GRID, IDM_NAVAIDS }) {
        EXPECT_TRUE(app::IsCommandEnabled(command)) << command;
    }
}

TEST_F(EditCommandsTest, AClickOnTheMapGoesToTheOpenDialog) {
    model::LatLon clicked{};
    EXPECT_FALSE(dialogs::TakeMapClick({ 0.5, 1 }));
    dialogs::overMap = { true, [&](model::LatLon at) { clicked = at; } };
    EXPECT_TRUE(dialogs::TakeMapClick({ 0.5, 1 }));
    EXPECT_EQ(clicked.lat, 0.5);
    EXPECT_EQ(clicked.lon, 1);
}

}  // namespace
