// PrintWin.cpp - the print dialog and the printer's device context (PrinterHost.h).
#include <windows.h>

#include <commdlg.h>

#include "app/AppHost.h"
#include "app/PrinterHost.h"
#include "app/PrinterWin.h"
#include "map/PrintLayout.h"
#include "platform/PlatformWin.h"

namespace app {

namespace {

constexpr wchar_t kDocument[] = L"Tarvo Airport Printout";

HDC page;  // of the open printer

// Of a call of the system that has just returned.
PrintStep StepAfter(int result) {
    if (result > 0) return PrintStep::Done;
    const DWORD error = GetLastError();
    return error == ERROR_CANCELLED || error == ERROR_PRINT_CANCELLED ? PrintStep::Cancelled : PrintStep::Failed;
}

}  // namespace

PrintStep StepAfterDialog(bool chosen) {
    if (chosen) return PrintStep::Done;
    const DWORD error = CommDlgExtendedError();  // of a missing printer the dialog tells itself
    return error == 0 || error == PDERR_NODEFAULTPRN ? PrintStep::Cancelled : PrintStep::Failed;
}

PrintStep AskPrinter() {
    PRINTDLGW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = platform::OwnerOfDialogs();
    dialog.hDevMode = printer.mode;
    dialog.hDevNames = printer.names;
    dialog.Flags = PD_RETURNDC | PD_NOSELECTION | PD_NOPAGENUMS | PD_USEDEVMODECOPIESANDCOLLATE;
    dialog.nCopies = 1;
    const platform::OthersDisabled others(dialog.hwndOwner, nullptr);
    const PrintStep step = StepAfterDialog(PrintDlgW(&dialog));
    printer = { dialog.hDevMode, dialog.hDevNames };
    if (step != PrintStep::Done) return step;
    page = dialog.hDC;
    return page ? PrintStep::Done : PrintStep::Failed;
}

void ReleasePrinter() {
    DeleteDC(page);
    page = nullptr;
}

void ForgetPrinter() {
    GlobalFree(printer.mode);
    GlobalFree(printer.names);
    printer = {};
}

void ShowPrinting(bool underWay) {
    EnableWindow(platform::MainWindow(), !underWay);
    ShowWaitCursor(underWay);
}

bool BeginDocument() {
    DOCINFOW document{};
    document.cbSize = sizeof document;
    document.lpszDocName = kDocument;
    return StartDocW(page, &document) > 0;
}

bool BeginPage() { return StartPage(page) > 0; }

void DrawPage() {
    const map::PrintDevice device = DeviceOf(page);
    map::TakeSheetOf(device, &map::print.paper);
    map::FitPrintScale(&map::print);
    DrawPrintPage(page, device);
}

PrintStep FinishPage() { return StepAfter(EndPage(page)); }

PrintStep FinishDocument() { return StepAfter(EndDoc(page)); }

void DropDocument() { AbortDoc(page); }

}  // namespace app
