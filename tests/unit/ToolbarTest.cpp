#include "app/Toolbar.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "Resource.h"

namespace {

using app::FirstToolbar;

TEST(Toolbar, ButtonsAndSeparatorsStandInTheirOrder) {
    const int expected[] = { IDT_OPEN,
                             IDT_SAVE,
                             0,
                             IDT_PRINT,
                             0,
                             IDT_UNDO,
                             IDT_REDO,
                             0,
                             IDT_ZOOM_IN,
                             IDT_ZOOM_OUT,
                             0,
                             IDT_LOCK,
                             0,
                             IDT_POINTER,
                             0,
                             IDT_NORMAL_NODE,
                             IDT_HOLD_SHORT_NODE,
                             IDT_ILS_HOLD_SHORT_NODE,
                             0,
                             IDT_NORMAL_LINK,
                             IDT_RUNWAY_LINK,
                             IDT_APRON_LINK,
                             IDT_CLOSED_LINK };
    ASSERT_EQ(FirstToolbar().size(), std::size(expected));
    for (size_t i = 0; i < std::size(expected); ++i) EXPECT_EQ(FirstToolbar()[i].command, expected[i]) << i;
}

TEST(Toolbar, EveryButtonHasAPictureOfItsOwn) {
    std::set<app::ToolPicture> pictures;
    for (const app::ToolButton& button : FirstToolbar()) {
        if (button.command) pictures.insert(button.picture);
    }
    EXPECT_EQ(pictures.size(), static_cast<size_t>(app::kToolPictures));
}

TEST(Toolbar, TooltipsAreFoundByTheCommand) {
    EXPECT_STREQ(app::ToolTipFor(IDT_ZOOM_IN), "Zoom in (mouse wheel or + key)");
    EXPECT_STREQ(app::ToolTipFor(IDT_HOLD_SHORT_NODE), "Create hold-short nodes by clicking with the mouse");
    EXPECT_STREQ(app::ToolTipFor(IDT_LOCK), "Lock the map location to the Flight Simulator aircraft location");
    EXPECT_EQ(app::ToolTipFor(0), nullptr);
    EXPECT_EQ(app::ToolTipFor(IDM_SAVE), nullptr);
    for (const app::ToolButton& button : FirstToolbar()) {
        EXPECT_EQ(std::string(button.tooltip).empty(), button.command == 0) << button.command;
    }
}

// What a picture covers, in pixels.
struct Extent {
    int calls = 0;
    platform::PixelRect box{ INT32_MAX, INT32_MAX, INT32_MIN, INT32_MIN };
    void Add(platform::Pixel at) {
        box.left = std::min(box.left, at.x);
        box.top = std::min(box.top, at.y);
        box.right = std::max(box.right, at.x);
        box.bottom = std::max(box.bottom, at.y);
        ++calls;
    }
};
Extent& Of(void* target) { return *static_cast<Extent*>(target); }

constexpr platform::CanvasCalls kMeasuring = {
    .selectPen = [](void*, int, platform::Colour) {},
    .selectBrush = [](void*, platform::Colour) {},
    .line = [](void* target, platform::Pixel from, platform::Pixel to) { Of(target).Add(from), Of(target).Add(to); },
    .polyline = nullptr,
    .polygon =
        [](void* target, std::span<const platform::Pixel> points) {
            for (platform::Pixel point : points) Of(target).Add(point);
        },
    .ellipse =
        [](void* target, platform::PixelRect box) {
            Of(target).Add({ box.left, box.top });
            Of(target).Add({ box.right - 1, box.bottom - 1 });
        },
    .path =
        [](void* target, const platform::Path& path) {
            for (platform::Pixel point : path.points) Of(target).Add(point);
        },
    .pushClip = nullptr,
    .popClip = nullptr,
    .text = nullptr,
    .textSize = nullptr,
};

TEST(Toolbar, PicturesFillTheirSheetAndStayOnIt) {
    constexpr int kUnit = 10;
    for (int picture = 0; picture < app::kToolPictures; ++picture) {
        Extent extent;
        platform::Canvas canvas;
        canvas.target = &extent;
        canvas.calls = &kMeasuring;
        app::DrawToolPicture(&canvas, static_cast<app::ToolPicture>(picture), kUnit);
        ASSERT_GT(extent.calls, 0) << picture;
        EXPECT_GE(extent.box.left, 0) << picture;
        EXPECT_GE(extent.box.top, 0) << picture;
        EXPECT_LE(extent.box.right, app::kPictureWidth * kUnit) << picture;
        EXPECT_LE(extent.box.bottom, app::kPictureHeight * kUnit) << picture;
        EXPECT_GT(extent.box.right - extent.box.left, 8 * kUnit) << picture;
        EXPECT_GT(extent.box.bottom - extent.box.top, 7 * kUnit) << picture;
    }
}

}  // namespace
