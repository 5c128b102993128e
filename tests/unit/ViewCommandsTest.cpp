#include "app/ViewCommands.h"

#include <gtest/gtest.h>

#include "app/Commands.h"
#include "dialogs/OverMap.h"
#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "fakes/FakeShell.h"
#include "map/MapView.h"
#include "map/Tools.h"
#include "model/ObjectList.h"
#include "Resource.h"

namespace {

class ViewCommandsTest : public testing::Test {
protected:
    void SetUp() override {
        ResetProgram();
        map::simAircraft = {};
        map::ResizeView(800, 600);
        map::ResetView(build::kMiddle);
    }
    void TearDown() override {
        ResetProgram();
        map::simAircraft = {};
    }
};

TEST_F(ViewCommandsTest, TheLockIsToggledFromMenuAndToolbarAndNeedsNoSimulator) {
    EXPECT_TRUE(app::RunCommand(IDM_LOCK));
    EXPECT_TRUE(map::view.lockedToSim);
    EXPECT_TRUE(app::IsCommandChecked(IDM_LOCK));
    EXPECT_TRUE(app::IsCommandChecked(IDT_LOCK));
    EXPECT_TRUE(app::RunCommand(IDT_LOCK));
    EXPECT_FALSE(map::view.lockedToSim);
    EXPECT_FALSE(app::IsCommandChecked(IDM_LOCK));
}

TEST_F(ViewCommandsTest, ALockedMapIsNeitherPannedNorTurnedButZooms) {
    app::RunCommand(IDM_LOCK);
    for (const int id : { IDK_PAN_LEFT, IDK_PAN_UP, IDK_PAN_RIGHT, IDK_PAN_DOWN, IDK_ROTATE_DOWN, IDK_ROTATE_UP_FINE })
        app::RunCommand(id);
    EXPECT_EQ(map::view.centre.lat, build::kMiddle.lat);
    EXPECT_EQ(map::view.centre.lon, build::kMiddle.lon);
    EXPECT_EQ(map::view.rotation, 0);
    app::RunCommand(IDT_ZOOM_IN);
    EXPECT_DOUBLE_EQ(map::view.span, map::kInitialSpan * 0.9);
}

TEST_F(ViewCommandsTest, TheMapMenuDoesNotOpenUnderADragOrADialog) {
    EXPECT_TRUE(app::MayOpenMapMenu());
    model::state.busy = true;
    EXPECT_FALSE(app::MayOpenMapMenu());
    model::state.busy = false;
    dialogs::overMap.open = true;
    EXPECT_FALSE(app::MayOpenMapMenu());
    dialogs::overMap = {};
    EXPECT_TRUE(app::MayOpenMapMenu());
}

TEST_F(ViewCommandsTest, JumpHereIsGreyedWithoutASimulator) {
    EXPECT_FALSE(app::RunCommand(IDM_JUMP_HERE));
    EXPECT_TRUE(fake.placedAircraft.empty());
}

TEST_F(ViewCommandsTest, JumpHereMeansThePlaceWhereTheMenuWasOpened) {
    model::state.loaded = true;
    map::simAircraft.active = true;
    map::view.rotation = 0.5;
    app::NoteMenuPoint({ 600, 100 });
    map::tools.cursor = { 5, 5 };
    const model::LatLon there = map::ScreenToWorld({ 600, 100 });
    EXPECT_TRUE(app::RunCommand(IDM_JUMP_HERE));
    ASSERT_EQ(fake.placedAircraft.size(), 1u);
    EXPECT_EQ(fake.placedAircraft[0].position.lat, there.lat);
    EXPECT_EQ(fake.placedAircraft[0].position.lon, there.lon);
    EXPECT_EQ(fake.placedAircraft[0].heading, 0.5);
    EXPECT_EQ(map::view.centre.lat, build::kMiddle.lat) << "the view moved";
}

}  // namespace
