// Printing.cpp - see Printing.h.
#include "app/Printing.h"

#include "app/PrinterHost.h"
#include "map/PrintLayout.h"
#include "platform/Platform.h"

namespace app {

namespace {

// A document that cannot be begun is no failure: the system may have asked for a file's name in vain.
PrintStep PrintDocument() {
    if (!BeginDocument()) return PrintStep::Cancelled;
    if (!BeginPage()) {
        FinishDocument();
        return PrintStep::Cancelled;
    }
    DrawPage();
    PrintStep step = FinishPage();
    if (step == PrintStep::Done) step = FinishDocument();
    if (step != PrintStep::Done) DropDocument();
    return step;
}

}  // namespace

void Print() {
    LearnPaper();
    map::FitPrintScale(&map::print);
    const PrintStep chosen = AskPrinter();
    if (chosen == PrintStep::Failed) RefusePrinter();
    if (chosen != PrintStep::Done) return;
    ShowPrinting(true);
    const PrintStep printed = PrintDocument();
    ShowPrinting(false);
    ReleasePrinter();
    if (printed == PrintStep::Failed) platform::ShowError("The map could not be printed.");
}

void RefusePrinter() {
    ForgetPrinter();
    platform::ShowError("The printer cannot be used.");
}

}  // namespace app
