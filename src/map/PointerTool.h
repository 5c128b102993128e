// PointerTool.h - the pointer tool: a press selects; a drag turns, re-attaches, moves, or opens a rectangle.
#pragma once

#include "map/Tools.h"

namespace map {

enum class PointerDrag { None, Turn, Reattach, Move, Box };
PointerDrag CurrentPointerDrag();  // what is going on; None until the pointer has left the press

void PressPointer(model::Pixel at, KeyState keys);
void FollowPointer(model::Pixel at);
void ReleasePointer(model::Pixel at);
void CancelPointer();
void ForgetPointer();

}  // namespace map
