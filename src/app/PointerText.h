// PointerText.h - what lies under the mouse pointer, in words for the status bar.
#pragma once

#include <string>

#include "model/SceneryObject.h"
#include "platform/Pixel.h"

namespace app {

// Kind, name, number, type; UTF-8.
std::string NameOfObject(const model::SceneryObject* object);

// Of the object that a press at the pixel would select; empty where there is none.
std::string PointerText(platform::Pixel at);

// The last part of the status bar shows it. A drag in progress leaves the text as it is.
void ShowPointerText();

}  // namespace app
