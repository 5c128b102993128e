// PrinterHost.h - what printing asks of the system, step by step. PrintWin.cpp and PageSetupWin.cpp serve the program,
// tests/fakes/FakePrinter.cpp the tests.
#pragma once

namespace app {

enum class PrintStep { Done, Cancelled, Failed };  // what was cancelled needs no words to the user

// As long as no page setup was shown: map::print.paper becomes that of the default printer, without a dialog.
void LearnPaper();

// The system's print dialog. When that is done, a printer is open until ReleasePrinter.
PrintStep AskPrinter();
void ReleasePrinter();

// The next dialog begins with the printer that the system prefers.
void ForgetPrinter();

// While it is so, the main window takes no input and the hourglass is shown.
void ShowPrinting(bool underWay);

// One document of one page on the open printer. Drawing fits the map to the sheet that the printer really has.
bool BeginDocument();
bool BeginPage();
void DrawPage();
PrintStep FinishPage();
PrintStep FinishDocument();
void DropDocument();  // what has been drawn is thrown away

}  // namespace app
