// Keys.h - keys, and which command one gives.
#pragma once

namespace app {

// Virtual-key codes; letters have the code of their capital.
enum Key : int {
    kBackspace = 8,
    kTab = 9,
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
    kF1 = 112,
    kPlus = 187,
    kMinus = 189,
};

enum class Held { Either, Yes, No };

// A key with what must be held; key 0 is none.
struct KeyStroke {
    int key = 0;
    Held ctrl = Held::Either, shift = Held::Either;
    bool whileDrawing = false;  // only while an apron outline is open, and then before all others
};
constexpr KeyStroke Any(int key) { return { key }; }
constexpr KeyStroke WithCtrl(int key) { return { key, Held::Yes }; }
constexpr KeyStroke WithoutCtrl(int key) { return { key, Held::No }; }
constexpr KeyStroke Shifted(int key) { return { key, Held::Either, Held::Yes }; }
constexpr KeyStroke Unshifted(int key) { return { key, Held::Either, Held::No }; }
constexpr KeyStroke WhileDrawing(int key) { return { key, Held::Either, Held::Either, true }; }

struct KeyModifiers {
    bool ctrl = false, shift = false;
};

// The command id for a virtual-key code; 0 for a key without one.
int CommandForKey(int key, KeyModifiers held);

// The keys that draw: asked first while an apron outline is open. 0 when the key is none of them.
int CommandForOutlineKey(int key);

}  // namespace app
