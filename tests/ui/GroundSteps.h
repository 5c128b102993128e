// GroundSteps.h - the fixture for the dialogs of the ground network: nodes, links, spots, aprons and lights on free
// ground.
#pragma once

#include <string>

#include "EditorSteps.h"
#include "TaxiIds.h"

namespace ui {

constexpr wchar_t kNode[] = L"Node Properties", kLink[] = L"Link Properties", kSpot[] = L"Parking Properties",
                  kApron[] = L"Apron Properties", kEdgeLights[] = L"Apron Edge Lights Properties";

class GroundTest : public EditorTest {
protected:
    static constexpr int kApart = 120;  // pixels

    void Use(UINT tool, POINT at) {
        Command(tool);
        ClickMap(at);
        Command(IDT_POINTER);
    }
    POINT Beside(int dx, int dy = 0) const { return { ground.x + dx, ground.y + dy }; }
    // By sent messages: a late word of the display about the active window, as after a dialog, does not end the drag, and
    // no late move of the pointer falls on the menu that comes next.
    void Drag(UINT tool, POINT from, POINT to) {
        Command(tool);
        SendDrag(mainWindow, { from, { (from.x + to.x) / 2, (from.y + to.y) / 2 }, to });
        Settle(mainWindow);
        Command(IDT_POINTER);
    }
    // Between two nodes on free ground. Returns its middle.
    POINT MakeLink(int dy = 0) {
        Drag(IDT_NORMAL_LINK, Beside(0, dy), Beside(kApart, dy));
        return Beside(kApart / 2, dy);
    }
    // A triangle. Returns a point in it.
    POINT MakeApron() {
        Command(IDT_APRON);
        for (const POINT corner : { Beside(0), Beside(kApart), Beside(kApart, kApart) }) ClickMap(corner);
        PostKey(mainWindow, VK_ESCAPE);
        SettlePosted(agent);
        Command(IDT_POINTER);
        return Beside(3 * kApart / 4, kApart / 3);
    }
    // Lamps on a line. Returns its middle.
    POINT MakeStrip(int dy = 0) {
        if (!IsChecked(IDM_LIGHTS)) Command(IDM_LIGHTS);
        Drag(IDT_EDGE_LIGHTS, Beside(0, dy), Beside(kApart, dy));
        return Beside(kApart / 2, dy);
    }

    // Answers the dialog and opens that of what lies there.
    HWND Reopen(HWND dialog, int button, POINT at, const wchar_t* title) {
        CloseDialog(dialog, button);
        return OpenByDoubleClick(at, title);
    }

    // Adds what lies there to the selection.
    void AddToSelection(POINT at) {
        SendClick(mainWindow, at.x, at.y, MK_SHIFT);
        Settle(mainWindow);
    }
    // A double click while Shift is held.
    HWND OpenWithShift(POINT at, const wchar_t* title) {
        HoldKey(agent, VK_SHIFT, true);
        SendClick(mainWindow, at.x, at.y, MK_SHIFT);
        PostMessageW(mainWindow, WM_LBUTTONDBLCLK, MK_LBUTTON | MK_SHIFT, MAKELPARAM(at.x, at.y));
        PostMessageW(mainWindow, WM_LBUTTONUP, MK_SHIFT, MAKELPARAM(at.x, at.y));
        const HWND dialog = Dialog(title);
        HoldKey(agent, VK_SHIFT, false);
        return dialog;
    }
    int Undoes() {
        int count = 0;
        for (; CanUndo(); ++count) Command(IDM_UNDO);
        return count;
    }
};

}  // namespace ui
