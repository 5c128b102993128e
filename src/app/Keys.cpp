// Keys.cpp - looking a key up in the command table.
#include "app/Keys.h"

#include "app/CommandTable.h"

namespace app {

namespace {

// Codes outside are no commands, whatever the table says; those that draw an outline are no commands of the map.
constexpr int kFirstKey = 12, kLastKey = 189;

bool Fits(Held wanted, bool held) { return wanted == Held::Either || (wanted == Held::Yes) == held; }

bool Fits(const KeyStroke& stroke, int key, KeyModifiers held, bool drawing) {
    return stroke.key == key && stroke.whileDrawing == drawing && Fits(stroke.ctrl, held.ctrl) &&
           Fits(stroke.shift, held.shift);
}

int FindCommand(int key, KeyModifiers held, bool drawing) {
    for (const Command& command : CommandTable()) {
        for (const KeyStroke& stroke : command.keys) {
            if (Fits(stroke, key, held, drawing)) return command.id;
        }
    }
    return 0;
}

}  // namespace

int CommandForKey(int key, KeyModifiers held) {
    return key < kFirstKey || key > kLastKey ? 0 : FindCommand(key, held, false);
}

int CommandForOutlineKey(int key) { return key == 0 ? 0 : FindCommand(key, {}, true); }

}  // namespace app
