// Toolbar.h - the buttons of the first toolbar and their pictures.
#pragma once

#include <span>

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
};
constexpr int kToolPictures = 16;

struct ToolButton {
    int command;  // 0: a separator
    ToolPicture picture = ToolPicture::Open;
    bool stays = false;  // pressed while its tool is the active one
    const char* tooltip = "";
};
std::span<const ToolButton> FirstToolbar();

// The tooltip of a command's button; null when it has none.
const char* ToolTipFor(int command);

constexpr int kPictureWidth = 21, kPictureHeight = 20;  // at 96 dots per inch

// Draws a picture of kPictureWidth x kPictureHeight units, each of them `unit` pixels.
void DrawToolPicture(platform::Canvas* canvas, ToolPicture picture, int unit);

}  // namespace app
