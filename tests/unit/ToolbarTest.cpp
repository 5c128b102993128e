#include "app/Toolbar.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "Resource.h"

namespace {

using app::FirstToolbar;
using app::SecondToolbar;

std::vector<app::ToolButton> AllButtons() {
    std::vector<app::ToolButton> buttons(FirstToolbar().begin(), FirstToolbar().end());
    buttons.insert(buttons.end(), SecondToolbar().begin(), SecondToolbar().end());
    return buttons;
}

// What stands there: a command, a box, or 0 for a separator.
void ExpectOrder(std::span<const app::ToolButton> buttons, const std::vector<int>& expected) {
    ASSERT_EQ(buttons.size(), expected.size());
    for (size_t i = 0; i < expected.size(); ++i) EXPECT_EQ(buttons[i].command + buttons[i].box, expected[i]) << i;
}

TEST(Toolbar, ButtonsAndSeparatorsStandInTheirOrder) {
    ExpectOrder(FirstToolbar(), { IDT_OPEN,
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
                                  IDT_CLOSED_LINK,
                                  IDC_DESIGNATOR,
                                  0,
                                  IDC_ROTATION });
    ExpectOrder(SecondToolbar(), { IDT_PARKING, IDC_PARKING_TYPE, IDC_PARKING_SPEC, IDT_APRON, IDT_APRON_POINT,
                                   IDT_EDGE_LIGHTS, 0, IDT_MARKERS, IDT_GUIDELINES });
}

TEST(Toolbar, BoxesHaveTheirWidths) {
    std::map<int, int> widths;
    for (const app::ToolButton& button : AllButtons()) {
        if (button.box) widths[button.box] = button.width;
    }
    EXPECT_EQ(widths[IDC_DESIGNATOR], 112);
    EXPECT_EQ(widths[IDC_PARKING_TYPE], 160);
    EXPECT_EQ(widths[IDC_PARKING_SPEC], 306);
}

TEST(Toolbar, EveryButtonHasAPictureOfItsOwn) {
    std::set<app::ToolPicture> pictures;
    for (const app::ToolButton& button : AllButtons()) {
        if (button.command) pictures.insert(button.picture);
    }
    EXPECT_EQ(pictures.size(), static_cast<size_t>(app::kToolPictures));
}

TEST(Toolbar, EveryButtonHasItsTooltip) {
    const std::map<int, std::string> texts = {
        { IDT_OPEN, "Open an airport from the scenery files" },
        { IDT_SAVE, "Save an open airport back to the scenery files" },
        { IDT_PRINT, "Print the airport map" },
        { IDT_UNDO, "Undo (Ctrl+Z)" },
        { IDT_REDO, "Redo (Ctrl+Y)" },
        { IDT_ZOOM_IN, "Zoom in (mouse wheel or + key)" },
        { IDT_ZOOM_OUT, "Zoom out (mouse wheel or - key)" },
        { IDT_LOCK, "Lock the map location to the Flight Simulator aircraft location" },
        { IDT_POINTER, "Pointer mode" },
        { IDT_NORMAL_NODE, "Create normal nodes by clicking with the mouse" },
        { IDT_HOLD_SHORT_NODE, "Create hold-short nodes by clicking with the mouse" },
        { IDT_ILS_HOLD_SHORT_NODE, "Create ILS hold-short nodes by clicking with the mouse" },
        { IDT_NORMAL_LINK, "Create normal taxi link by connecting nodes with the mouse" },
        { IDT_RUNWAY_LINK, "Create runway taxi link by connecting nodes with the mouse" },
        { IDT_APRON_LINK, "Create apron taxi link by connecting nodes with the mouse" },
        { IDT_CLOSED_LINK, "Create closed taxi link by connecting nodes with the mouse" },
        { IDT_PARKING, "Create parking spots by clicking with the mouse" },
        { IDT_APRON, "Create apron polygon by clicking clicking mouse to place points" },
        { IDT_APRON_POINT, "Insert new point in existing apron polygon by clicking with the mouse" },
        { IDT_EDGE_LIGHTS, "Insert apron light strip by clicking and pulling with the mouse" },
        { IDT_MARKERS, "Create reference markers by clicking with the mouse" },
        { IDT_GUIDELINES, "Create guidelines with the mouse" },
    };
    for (const auto& [command, text] : texts) EXPECT_EQ(app::ToolTipFor(command), text);
    EXPECT_EQ(app::ToolTipFor(0), nullptr);
    EXPECT_EQ(app::ToolTipFor(IDM_SAVE), nullptr);
    EXPECT_EQ(texts.size(), static_cast<size_t>(app::kToolPictures));
    for (const app::ToolButton& button : AllButtons())
        EXPECT_EQ(button.command != 0, app::ToolTipFor(button.command) != nullptr) << button.command;
}

TEST(Toolbar, ComboBoxesHaveTooltipsAndTheReadOutHasNone) {
    EXPECT_STREQ(app::ToolTipFor(IDC_DESIGNATOR),
                 "Select a designator to highlight taxi path, or to assign to new taxi links");
    EXPECT_STREQ(app::ToolTipFor(IDC_PARKING_TYPE), "Select the parking type");
    EXPECT_STREQ(app::ToolTipFor(IDC_PARKING_SPEC),
                 "Select a parking spec (e.g. airline code) to assign to parking spots");
    EXPECT_EQ(app::ToolTipFor(IDC_ROTATION), nullptr);
}

using Starts = std::vector<size_t>;
constexpr app::ToolItem kButton = { 10, false }, kGap = { 4, true };

TEST(Toolbar, WhatFitsStandsInOneRow) {
    const app::ToolItem items[] = { kButton, kButton, kGap, kButton };
    EXPECT_EQ(app::RowStarts(items, 34), (Starts{ 0 }));
    EXPECT_EQ(app::RowStarts(items, 1000), (Starts{ 0 }));
}

TEST(Toolbar, ARowBreaksAtTheLastSeparatorThatFits) {
    const app::ToolItem items[] = { kButton, kGap, kButton, kGap, kButton, kButton };
    EXPECT_EQ(app::RowStarts(items, 40), (Starts{ 0, 4 }));
    EXPECT_EQ(app::RowStarts(items, 24), (Starts{ 0, 4 })) << "the separator at the end needs no room";
    EXPECT_EQ(app::RowStarts(items, 20), (Starts{ 0, 2, 4 }));
}

TEST(Toolbar, ARowWithoutSeparatorsBreaksBeforeWhatDoesNotFit) {
    const app::ToolItem items[] = { kButton, kButton, kButton, kButton };
    EXPECT_EQ(app::RowStarts(items, 25), (Starts{ 0, 2 }));
    EXPECT_EQ(app::RowStarts(items, 30), (Starts{ 0, 3 }));
}

TEST(Toolbar, ARowEndsBehindItsLastItemAndHidesTheSeparatorThatItBreaksAt) {
    const app::ToolItem items[] = { kButton, kGap, kButton, kButton, kGap, kButton };
    const auto places = [&](const Starts& starts) {
        std::string text;
        for (size_t item = 0; item < std::size(items); ++item) {
            const app::ItemPlace place = app::PlaceInRow(items, starts, item);
            text += place.hidden ? (place.last ? '?' : 'h') : place.last ? 'l' : '.';
        }
        return text;
    };
    EXPECT_EQ(places({ 0 }), "......");
    EXPECT_EQ(places({ 0, 2 }), "lh....");
    EXPECT_EQ(places({ 0, 2, 5 }), "lh.lh.");
    EXPECT_EQ(places({ 0, 3 }), "..l...") << "a row that breaks between two buttons";
}

TEST(Toolbar, WhatIsWiderThanTheRoomHasARowOfItsOwn) {
    const app::ToolItem items[] = { kButton, { 90, false }, kButton };
    EXPECT_EQ(app::RowStarts(items, 50), (Starts{ 0, 1, 2 }));
    EXPECT_EQ(app::RowStarts(items, 0), (Starts{ 0, 1, 2 }));
    EXPECT_EQ(app::RowStarts({}, 0), (Starts{ 0 }));
}

TEST(Toolbar, EveryItemStandsInExactlyOneRowAtEveryWidth) {
    std::mt19937 random(7);
    for (int round = 0; round < 2000; ++round) {
        std::vector<app::ToolItem> items(random() % 12);
        for (app::ToolItem& item : items) item = { int(random() % 40), random() % 3 == 0 };
        const Starts starts = app::RowStarts(items, int(random() % 100));
        ASSERT_EQ(starts.front(), 0u);
        for (size_t row = 1; row < starts.size(); ++row) {
            ASSERT_GT(starts[row], starts[row - 1]);
            ASSERT_LT(starts[row], items.size());
        }
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
