// ToolBoxesWin.h - the boxes in the toolbars as windows: how they are made, scaled and placed. ToolCombosWin.h fills them.
#pragma once

#include <windows.h>

namespace app {

struct ToolBoxes {
    HWND designator = nullptr, type = nullptr, spec = nullptr, rotation = nullptr;
};
extern ToolBoxes toolBoxes;

HWND BoxOf(int id);  // null for another control

// The windows that a combo box consists of; null where it has none.
COMBOBOXINFO PartsOf(HWND combo);
HWND EditOf(HWND combo);

// Makes the empty box of that control id with its tip, a child of its toolbar; null when that fails.
HWND MakeToolBox(HWND toolbar, int id);

void ScaleToolBoxes(int dpi);
void PlaceToolBox(int id, const RECT& place);  // in the middle of its place, in the toolbar's client coordinates

}  // namespace app
