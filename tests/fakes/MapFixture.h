// MapFixture.h - a test airport on a map of 800 x 600 pixels, half a pixel to the metre, north up.
#pragma once

#include <gtest/gtest.h>

#include "app/Settings.h"
#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "fakes/RecordingCanvas.h"
#include "map/FaultMarker.h"
#include "map/MapView.h"
#include "map/PaintMap.h"
#include "map/Palette.h"
#include "map/Shapes.h"
#include "map/Tools.h"

class MapFixture : public testing::Test {
protected:
    static constexpr int kWidth = 800, kHeight = 600;

    void SetUp() override {
        ResetFakes();
        model::ClearModel();
        model::state.edgeLights = {};
        app::settings = {};
        app::settings.showLatLongGrid = false;
        map::view = {};
        map::layers = {};
        map::simAircraft = {};
        map::faultMarker = {};
        map::tools = {};
        map::ResetTools();
        map::ResetView(build::kMiddle);
        Scale(0.5);
        ResetFakes();
    }
    void TearDown() override {
        map::ResetTools();
        model::ClearModel();
    }

    static void Open() {
        build::Airport("KTST");
        model::state.loaded = true;
    }
    static void Scale(double pixelsPerMetre) {
        map::view.span = kHeight / pixelsPerMetre;
        map::ResizeView(kWidth, kHeight);
    }
    // Whole metres mostly lie on whole pixels: a hair more, so that the last digit does not choose between two.
    static platform::Pixel PixelOf(build::Place place) {
        const model::Point point = map::WorldToScreen(build::At(place));
        return map::ToPixel({ point.x + 1e-6, point.y + 1e-6 });
    }

    // After something else than the screen was drawn. The places on the screen are those of the last painting.
    static void ExpectViewAsBefore(const map::MapView& before) {
        EXPECT_EQ(map::view.centre.lat, before.centre.lat);
        EXPECT_EQ(map::view.centre.lon, before.centre.lon);
        EXPECT_EQ(map::view.span, before.span);
        EXPECT_EQ(map::view.pixelsPerMetre, before.pixelsPerMetre);
        EXPECT_EQ(map::view.rotation, before.rotation);
        EXPECT_EQ(map::view.clientWidth, before.clientWidth);
        EXPECT_EQ(map::view.clientHeight, before.clientHeight);
        EXPECT_EQ(map::view.screenCentreX, before.screenCentreX);
        EXPECT_EQ(map::view.screenCentreY, before.screenCentreY);
        EXPECT_EQ(map::view.fineness, 1);
        EXPECT_EQ(map::view.lastDragPoint, before.lastDragPoint);
        EXPECT_GT(fake.repaints, 0) << "or clicks would meet the places of the other picture";
    }

    static void Paint(RecordingCanvas* log) { map::PaintMap(&log->canvas); }
    static void Paint() {
        RecordingCanvas log;
        Paint(&log);
    }
};
