// Keys.h - which command a key gives.
#pragma once

namespace app {

struct KeyModifiers {
    bool ctrl = false, shift = false;
};

// The command id for a virtual-key code; 0 for a key without one.
int CommandForKey(int key, KeyModifiers held);

// The keys that draw: asked first while an apron outline is open. 0 when the key is none of them.
int CommandForOutlineKey(int key);

}  // namespace app
