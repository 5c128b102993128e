// EditorWin.h - runs the window of a property dialog: OK with its refusals, Cancel, "&Help", clicks on the map, and the
// place on the screen to which the user has moved it.
#pragma once

#include <windows.h>

#include <functional>
#include <span>

#include "dialogs/Field.h"
#include "dialogs/NumberField.h"
#include "dialogs/Subject.h"
#include "model/CoordinateText.h"
#include "model/Geodesy.h"

namespace dialogs {

// The control that shows a field of the portable half.
struct FieldControl {
    Field field;
    int control;
    int part = 0;
};

// What a dialog adds to that. Its buttons have the ids IDOK, IDCANCEL and IDHELP. Only `load` and `store` are needed.
struct Editor {
    int resource = 0;
    const char* topic = "";                            // of "&Help", "#Nodes" for example
    std::span<const FieldControl> controls;            // where a refusal sends the user
    std::function<void(HWND)> load;                    // fills the controls, once
    std::function<bool(HWND, BadField*)> store;        // OK; false keeps the dialog open, its message is shown already
    std::function<void(HWND, int, int)> command;       // any other control: its id and its notification
    std::function<void(HWND, model::LatLon)> clicked;  // on the map
    std::function<void(HWND, const BadField&)> show;   // brings the refused field up, when it lies on a hidden page
    std::function<INT_PTR(HWND, NMHDR*)> notify;       // WM_NOTIFY
};

// Whether it was closed by OK; only one is open at a time. Cancel takes back every preview and drops the record that
// was made for the dialog.
bool RunEditor(const Editor& editor);

// Stores, or sends the user to the refused field; whether all was stored. The dialog stays open.
bool StoreOrRefuse(HWND dialog);

// Whether Shift or Ctrl is held: then what is selected stays so (SelectSubject).
bool ExtendKeyHeld();

// The pair of position fields: limits their length and shows the texts.
void ShowPosition(HWND dialog, int latitude, int longitude, const model::CoordinateTexts& texts);
model::CoordinateTexts PositionIn(HWND dialog, int latitude, int longitude);

// "Elevation (ft ASL)", "Range (nm)" and such, with the unit of the settings between the two parts.
void LabelUnit(HWND dialog, int control, const char* before, Unit unit, const char* after);

// An editor of one object whose fields are shown and read as a whole: two functions of the window, two of its portable
// half.
template <class Fields>
struct ObjectEditor {
    int resource;
    const char* topic;
    std::span<const FieldControl> controls;
    Fields (*load)(const SceneryObject* object);
    void (*show)(HWND dialog, const Fields& fields);
    Fields (*read)(HWND dialog);
    bool (*store)(const Fields& shown, const Fields& entered, SceneryObject* object, BadField* bad);
    int latitude = 0, longitude = 0;  // the controls that a click on the map fills; 0 for an object without a position
};

// What runs it, for a dialog that adds something. `of` and `shown` must outlive it.
template <class Fields>
Editor EditorFor(const ObjectEditor<Fields>& of, const Fields& shown, SceneryObject* object) {
    Editor editor;
    editor.resource = of.resource;
    editor.topic = of.topic;
    editor.controls = of.controls;
    editor.load = [&](HWND dialog) { of.show(dialog, shown); };
    editor.store = [&of, &shown, object](HWND dialog, BadField* bad) {
        return of.store(shown, of.read(dialog), object, bad);
    };
    if (of.latitude != 0)
        editor.clicked = [&of, object](HWND dialog, model::LatLon at) {
            ShowPosition(dialog, of.latitude, of.longitude, MoveToClick(object, at));
        };
    return editor;
}

template <class Fields>
bool RunEditor(const ObjectEditor<Fields>& of, SceneryObject* object) {
    const Fields shown = of.load(object);
    return RunEditor(EditorFor(of, shown, object));
}

}  // namespace dialogs
