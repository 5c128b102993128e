// Keys.cpp - the key table.
#include "app/Keys.h"

#include "Resource.h"

namespace app {

namespace {

// Virtual-key codes; letters have the code of their capital.
enum Key : int {
    kBackspace = 8,
    kClear = 12,
    kEnter = 13,
    kEscape = 27,
    kPageDown = 34,
    kEnd = 35,
    kHome = 36,
    kLeft = 37,
    kUp = 38,
    kRight = 39,
    kDown = 40,
    kDelete = 46,
    kNumpad5 = 101,
    kNumpadAdd = 107,
    kNumpadSubtract = 109,
    kPlus = 187,
    kMinus = 189,
};
constexpr int kFirstKey = 12, kLastKey = 189;

enum class Held { Either, Yes, No };

struct KeyRow {
    int key;
    Held ctrl, shift;
    int command;
};

constexpr KeyRow kKeys[] = {
    { kEscape, Held::Either, Held::Either, IDK_CLOSE_POLYGON },
    { kClear, Held::Either, Held::Either, IDK_SLEW_STOP },
    { kNumpad5, Held::Either, Held::Either, IDK_SLEW_STOP },
    { kPageDown, Held::Either, Held::No, IDK_ROTATE_DOWN },
    { kPageDown, Held::Either, Held::Yes, IDK_ROTATE_DOWN_FINE },
    { kEnd, Held::Either, Held::No, IDK_ROTATE_UP },
    { kEnd, Held::Either, Held::Yes, IDK_ROTATE_UP_FINE },
    { kHome, Held::Either, Held::Either, IDK_HOME },
    { kLeft, Held::Either, Held::Either, IDK_PAN_LEFT },
    { kUp, Held::Either, Held::Either, IDK_PAN_UP },
    { kRight, Held::Either, Held::Either, IDK_PAN_RIGHT },
    { kDown, Held::Either, Held::Either, IDK_PAN_DOWN },
    { kDelete, Held::No, Held::Either, IDK_DELETE },
    { kDelete, Held::Yes, Held::Either, IDM_DELETE_GUIDELINES },
    { 'A', Held::No, Held::Either, IDM_NAVAIDS },
    { 'A', Held::Yes, Held::Either, IDM_SELECT_ALL },
    { 'G', Held::Either, Held::Either, IDM_GRID },
    { 'H', Held::Either, Held::Either, IDM_HOLD_SHORT_LIMITS },
    { 'L', Held::Either, Held::Either, IDM_LIGHTS },
    { 'N', Held::Either, Held::Either, IDM_NETWORK },
    { 'P', Held::Either, Held::Either, IDK_CYCLE_LABELS },
    { 'S', Held::Either, Held::Either, IDM_STARTS },
    { 'T', Held::Either, Held::No, IDK_CYCLE_DESIGNATOR },
    { 'T', Held::Either, Held::Yes, IDK_CYCLE_DESIGNATOR_BACK },
    { 'Y', Held::Yes, Held::Either, IDM_REDO },
    { 'Z', Held::Yes, Held::Either, IDM_UNDO },
    { kNumpadAdd, Held::Either, Held::Either, IDT_ZOOM_IN },
    { kPlus, Held::Either, Held::Either, IDT_ZOOM_IN },
    { kNumpadSubtract, Held::Either, Held::Either, IDT_ZOOM_OUT },
    { kMinus, Held::Either, Held::Either, IDT_ZOOM_OUT },
};

bool Fits(Held wanted, bool held) { return wanted == Held::Either || (wanted == Held::Yes) == held; }

}  // namespace

int CommandForKey(int key, KeyModifiers held) {
    if (key < kFirstKey || key > kLastKey) return 0;
    for (const KeyRow& row : kKeys) {
        if (row.key == key && Fits(row.ctrl, held.ctrl) && Fits(row.shift, held.shift)) return row.command;
    }
    return 0;
}

int CommandForOutlineKey(int key) {
    switch (key) {
    case kBackspace: return IDK_TAKE_BACK_CORNER;
    case kEnter: return IDK_FINISH_POLYGON;
    default: return 0;
    }
}

}  // namespace app
