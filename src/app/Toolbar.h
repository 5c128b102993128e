// Toolbar.h - the buttons and boxes of the two toolbars, their pictures, and how they stand in rows.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "platform/Canvas.h"

namespace app {

enum class ToolPicture : int {
    Open,
    Save,
    Print,
    Undo,
    Redo,
    ZoomIn,
    ZoomOut,
    Lock,
    Pointer,
    NormalNode,
    HoldShortNode,
    IlsHoldShortNode,
    NormalLink,
    RunwayLink,
    ApronLink,
    ClosedLink,
    Parking,
    Apron,
    ApronPoint,
    EdgeLights,
    Marker,
    Guideline,
};
constexpr int kToolPictures = 22;

struct ToolButton {
    int command;  // 0: a separator or a box
    ToolPicture picture = ToolPicture::Open;
    int box = 0;               // control id of a combo box or a read-out that stands in the row of buttons
    int width = 0;             // of that, at 96 dots per inch; it stands between two gaps
    const char* tooltip = "";  // of that; a command's stands in the command table
};
constexpr int kBoxGap = 2;
std::span<const ToolButton> FirstToolbar();
std::span<const ToolButton> SecondToolbar();

// The tooltip of a command's button or of a box; null when it has none.
const char* ToolTipFor(int id);

// What stands in a toolbar, and where the rows start when it must not be wider than `available`: the positions of the
// items that start a row, the first one 0. A row breaks at a separator when it has one, and that one is not shown;
// what is wider than the room has a row of its own.
struct ToolItem {
    int width;
    bool separator;
};
std::vector<size_t> RowStarts(std::span<const ToolItem> items, int available);

// Where an item stands then: at the end of its row, or hidden because the row breaks at it.
struct ItemPlace {
    bool last = false, hidden = false;
};
ItemPlace PlaceInRow(std::span<const ToolItem> items, std::span<const size_t> starts, size_t item);

constexpr int kPictureWidth = 21, kPictureHeight = 20;  // at 96 dots per inch

// Draws a picture of kPictureWidth x kPictureHeight units, each of them `unit` pixels.
void DrawToolPicture(platform::Canvas* canvas, ToolPicture picture, int unit);

}  // namespace app
