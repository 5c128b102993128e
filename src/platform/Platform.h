// Platform.h - what the portable code asks of the system it runs on, apart from files and drawing.
//
// PlatformWin.cpp serves the program, PlatformPosix.cpp the command line tool, tests/fakes the tests.
// All texts are UTF-8.
#pragma once

#include <cstdint>
#include <string_view>

namespace platform {

enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel };
enum class Icon { None, Information, Question, Exclamation };
enum class Answer { Ok, Cancel, Yes, No };

// Shows a modal message box titled "Tarvo" and returns the button that closed it. Esc and the close
// box count as Cancel where the box has that button, else as its only or its No button.
Answer ShowMessage(std::string_view text, Buttons buttons, Icon icon);

// Such a box with OK and the exclamation mark: what was not done, or not as asked, and why. False, for
// `return ShowRefusal(...)`.
bool ShowRefusal(std::string_view text);

// The same with "ERROR: " before the text: what the user entered, or what a file holds, is wrong.
bool ShowError(std::string_view text);

// Invalidates the whole map; the next paint redraws it from the model. Cheap, may be called often.
void RequestRepaint();

// The system time as a Windows FILETIME: 100 ns units since 1601-01-01 UTC.
uint64_t SystemFileTime();

}  // namespace platform
