// Toolbar.cpp - the first toolbar's buttons, in their order.
#include "app/Toolbar.h"

#include "Resource.h"

namespace app {

namespace {

constexpr ToolButton kSeparator = { 0 };

constexpr ToolButton kButtons[] = {
    { IDT_OPEN, ToolPicture::Open, false, "Open an airport from the scenery files" },
    { IDT_SAVE, ToolPicture::Save, false, "Save an open airport back to the scenery files" },
    kSeparator,
    { IDT_PRINT, ToolPicture::Print, false, "Print the airport map" },
    kSeparator,
    { IDT_UNDO, ToolPicture::Undo, false, "Undo (Ctrl+Z)" },
    { IDT_REDO, ToolPicture::Redo, false, "Redo (Ctrl+Y)" },
    kSeparator,
    { IDT_ZOOM_IN, ToolPicture::ZoomIn, false, "Zoom in (mouse wheel or + key)" },
    { IDT_ZOOM_OUT, ToolPicture::ZoomOut, false, "Zoom out (mouse wheel or - key)" },
    kSeparator,
    { IDT_LOCK, ToolPicture::Lock, true, "Lock the map location to the Flight Simulator aircraft location" },
    kSeparator,
    { IDT_POINTER, ToolPicture::Pointer, true, "Pointer mode" },
    kSeparator,
    { IDT_NORMAL_NODE, ToolPicture::NormalNode, true, "Create normal nodes by clicking with the mouse" },
    { IDT_HOLD_SHORT_NODE, ToolPicture::HoldShortNode, true, "Create hold-short nodes by clicking with the mouse" },
    { IDT_ILS_HOLD_SHORT_NODE, ToolPicture::IlsHoldShortNode, true,
      "Create ILS hold-short nodes by clicking with the mouse" },
    kSeparator,
    { IDT_NORMAL_LINK, ToolPicture::NormalLink, true, "Create normal taxi link by connecting nodes with the mouse" },
    { IDT_RUNWAY_LINK, ToolPicture::RunwayLink, true, "Create runway taxi link by connecting nodes with the mouse" },
    { IDT_APRON_LINK, ToolPicture::ApronLink, true, "Create apron taxi link by connecting nodes with the mouse" },
    { IDT_CLOSED_LINK, ToolPicture::ClosedLink, true, "Create closed taxi link by connecting nodes with the mouse" },
};

}  // namespace

std::span<const ToolButton> FirstToolbar() { return kButtons; }

const char* ToolTipFor(int command) {
    if (command == 0) return nullptr;
    for (const ToolButton& button : kButtons) {
        if (button.command == command) return button.tooltip;
    }
    return nullptr;
}

}  // namespace app
