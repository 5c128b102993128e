// ToolHint.cpp - see ToolHint.h.
#include "app/ToolHint.h"

#include <iterator>

#include "app/AppState.h"
#include "app/Notices.h"
#include "map/Tools.h"
#include "model/ObjectList.h"

namespace app {

namespace {

constexpr const char* kBegin = "File > Open Airport or New Airport to begin";

// In the order of map::Tool.
constexpr const char* kHints[] = {
    "",
    "Click to place a node; beside a link it joins the link",
    "Press on a node or a parking spot and pull to the next one",
    "Click to place a spot; it heads up the screen",
    "Click the corners; Enter closes, Backspace takes one back",
    "Click on the edge of an apron to add a corner",
    "Press at one end of the strip and pull to the other",
    "Click to place a marker; distances count from it",
    "Press and pull to draw a line",
};
static_assert(std::size(kHints) == static_cast<size_t>(map::Tool::Guidelines) + 1, "a tool has no hint");

}  // namespace

std::string ToolHint() { return model::state.loaded ? kHints[static_cast<size_t>(map::tools.toolMode)] : kBegin; }

void ShowToolHint() {
    const std::string hint = ToolHint();
    if (hint != state.notices[static_cast<int>(Notice::Hint)]) SetNotice(Notice::Hint, hint);
}

}  // namespace app
