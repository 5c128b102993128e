// Toolbar.cpp - what stands in the toolbars, in its order.
#include "app/Toolbar.h"

#include <algorithm>

#include "app/Commands.h"
#include "Resource.h"

namespace app {

namespace {

constexpr ToolButton kSeparator = { 0 };

constexpr ToolButton Box(int id, int width, const char* tooltip = "") {
    return { 0, ToolPicture::Open, id, width, tooltip };
}

constexpr ToolButton kFirst[] = {
    { IDT_OPEN, ToolPicture::Open },
    { IDT_SAVE, ToolPicture::Save },
    kSeparator,
    { IDT_PRINT, ToolPicture::Print },
    kSeparator,
    { IDT_UNDO, ToolPicture::Undo },
    { IDT_REDO, ToolPicture::Redo },
    kSeparator,
    { IDT_ZOOM_IN, ToolPicture::ZoomIn },
    { IDT_ZOOM_OUT, ToolPicture::ZoomOut },
    kSeparator,
    { IDT_LOCK, ToolPicture::Lock },
    kSeparator,
    { IDT_POINTER, ToolPicture::Pointer },
    kSeparator,
    { IDT_NORMAL_NODE, ToolPicture::NormalNode },
    { IDT_HOLD_SHORT_NODE, ToolPicture::HoldShortNode },
    { IDT_ILS_HOLD_SHORT_NODE, ToolPicture::IlsHoldShortNode },
    kSeparator,
    { IDT_NORMAL_LINK, ToolPicture::NormalLink },
    { IDT_RUNWAY_LINK, ToolPicture::RunwayLink },
    { IDT_APRON_LINK, ToolPicture::ApronLink },
    { IDT_CLOSED_LINK, ToolPicture::ClosedLink },
    Box(IDC_DESIGNATOR, 112, "Select a designator to highlight taxi path, or to assign to new taxi links"),
    kSeparator,
    Box(IDC_ROTATION, 46),
};

constexpr ToolButton kSecond[] = {
    { IDT_PARKING, ToolPicture::Parking },
    Box(IDC_PARKING_TYPE, 160, "Select the parking type"),
    Box(IDC_PARKING_SPEC, 306, "Select a parking spec (e.g. airline code) to assign to parking spots"),
    { IDT_APRON, ToolPicture::Apron },
    { IDT_APRON_POINT, ToolPicture::ApronPoint },
    { IDT_EDGE_LIGHTS, ToolPicture::EdgeLights },
    kSeparator,
    { IDT_MARKERS, ToolPicture::Marker },
    { IDT_GUIDELINES, ToolPicture::Guideline },
};

const char* BoxToolTip(std::span<const ToolButton> buttons, int id) {
    for (const ToolButton& button : buttons) {
        if (button.box == id) return *button.tooltip ? button.tooltip : nullptr;
    }
    return nullptr;
}

// Where the row that starts at `start` ends: the position of the first item that no longer fits.
size_t EndOfRow(std::span<const ToolItem> items, size_t start, int available) {
    int width = items[start].width;
    size_t end = start + 1;
    while (end < items.size() && width + items[end].width <= available) width += items[end++].width;
    return end;
}

}  // namespace

std::span<const ToolButton> FirstToolbar() { return kFirst; }
std::span<const ToolButton> SecondToolbar() { return kSecond; }

const char* ToolTipFor(int id) {
    if (id == 0) return nullptr;
    if (const char* tooltip = CommandToolTip(id)) return tooltip;
    const char* tooltip = BoxToolTip(kFirst, id);
    return tooltip ? tooltip : BoxToolTip(kSecond, id);
}

std::vector<size_t> RowStarts(std::span<const ToolItem> items, int available) {
    std::vector<size_t> starts = { 0 };
    while (starts.back() < items.size()) {
        const size_t start = starts.back();
        size_t end = EndOfRow(items, start, available);
        if (end >= items.size()) break;
        size_t separator = end;
        while (separator > start && !items[separator].separator) --separator;
        if (separator > start) end = separator + 1;
        if (end >= items.size()) break;
        starts.push_back(end);
    }
    return starts;
}

ItemPlace PlaceInRow(std::span<const ToolItem> items, std::span<const size_t> starts, size_t item) {
    const auto startsRow = [&](size_t at) {
        return at > 0 && std::find(starts.begin(), starts.end(), at) != starts.end();
    };
    const auto isSeparator = [&](size_t at) { return at < items.size() && items[at].separator; };
    ItemPlace place;
    place.hidden = isSeparator(item) && startsRow(item + 1);
    place.last = !place.hidden && (startsRow(item + 1) || (isSeparator(item + 1) && startsRow(item + 2)));
    return place;
}

}  // namespace app
