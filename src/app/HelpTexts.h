// HelpTexts.h - the texts of the Help menu's boxes.
#pragma once

namespace app {

void ShowKeyboardFunctions();
void ShowAbout();

}  // namespace app
