// HelpTexts.h - the texts of the Help menu's boxes.
#pragma once

namespace app {

extern const char* const kKeyboardText;
extern const char* const kAboutText;

void ShowKeyboardFunctions();
void ShowAbout();

}  // namespace app
