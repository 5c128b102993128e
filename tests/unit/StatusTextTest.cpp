#include "app/StatusText.h"

#include <gtest/gtest.h>

#include "app/Settings.h"
#include "fakes/BuildObjects.h"
#include "fakes/FakeShell.h"
#include "map/MapView.h"
#include "map/Tools.h"
#include "model/CoordinateText.h"

namespace {

class StatusTextTest : public testing::Test {
protected:
    void SetUp() override {
        ResetProgram();
        model::state.airport = build::Airport("KTST");
        model::state.loaded = true;
        map::ResizeView(800, 600);
        map::ResetView(build::kMiddle);
        map::view.span = 600;  // a pixel is a metre
        map::ResizeView(800, 600);
    }
    void TearDown() override { ResetProgram(); }
    static void ClickInTheMiddle() {
        map::tools.hasClick = true;
        map::tools.lastClick = build::kMiddle;
    }
};

TEST_F(StatusTextTest, ThePositionIsInTheFormatOfTheSettings) {
    app::settings.latLongFormat = 2;
    EXPECT_EQ(app::PositionText({ 400, 300 }), "N47* 00.0000'   W122* 00.0000'");
    app::settings.latLongFormat = 1;
    EXPECT_EQ(app::PositionText({ 400, 300 }), "N47.000000   W122.000000");
}

TEST_F(StatusTextTest, DistanceIsInFeetOrMetres) {
    ClickInTheMiddle();
    EXPECT_EQ(app::DistanceText({ 500, 300 }), "Distance: 328.1 ft");
    app::settings.metric = true;
    EXPECT_EQ(app::DistanceText({ 500, 300 }), "Distance: 100.0 m");
}

TEST_F(StatusTextTest, TheAngleIsTrueWhateverTheMapIsRotatedBy) {
    ClickInTheMiddle();
    EXPECT_EQ(app::AngleText({ 500, 300 }), "Angle: 90.0*");
    EXPECT_EQ(app::AngleText({ 400, 200 }), "Angle: 0.0*");
    map::view.rotation = 30 * model::kRadiansPerDegree;
    EXPECT_EQ(app::AngleText({ 500, 300 }), "Angle: 120.0*");
}

TEST_F(StatusTextTest, BeforeTheFirstClickThereIsNoDistance) {
    EXPECT_EQ(app::DistanceText({ 500, 300 }), "");
    EXPECT_EQ(app::AngleText({ 500, 300 }), "");
}

TEST_F(StatusTextTest, WithoutAnAirportOnlyTheRotationIsShown) {
    ClickInTheMiddle();
    model::state.loaded = false;
    EXPECT_EQ(app::PositionText({ 400, 300 }), "");
    EXPECT_EQ(app::DistanceText({ 400, 300 }), "");
    EXPECT_EQ(app::AngleText({ 400, 300 }), "");
    EXPECT_EQ(app::RotationText(), "  0.0*");
}

TEST_F(StatusTextTest, TheRotationTakesFivePlaces) {
    map::view.rotation = 355 * model::kRadiansPerDegree;
    EXPECT_EQ(app::RotationText(), "355.0*");
    map::view.rotation = 5 * model::kRadiansPerDegree;
    EXPECT_EQ(app::RotationText(), "  5.0*");
}

}  // namespace
