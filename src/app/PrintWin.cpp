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

// From the print dialog until the printer is released.
struct PrintJob {
    HDC page = nullptr;          // of the open printer
    HWND focusBefore = nullptr;  // while printing is under way
};
PrintJob job;

// Of a call of the system that has just returned.
PrintStep StepAfter(int result) {
    if (result > 0) return PrintStep::Done;
    const DWORD error = GetLastError();
    return error == ERROR_CANCELLED || error == ERROR_PRINT_CANCELLED ? PrintStep::Cancelled : PrintStep::Failed;
}

// The settings remember the copies of the last print; each print begins with one.
void AskForOneCopy() {
    auto* mode = static_cast<DEVMODEW*>(GlobalLock(printer.mode));
    if (!mode) return;
    if (mode->dmFields & DM_COPIES) mode->dmCopies = 1;
    GlobalUnlock(printer.mode);
}

// A window that is disabled loses the focus, and enabling it does not give that back. While another program is in front
// the focus stays there.
void GiveFocusBack() {
    if (job.focusBefore && GetActiveWindow()) SetFocus(job.focusBefore);
}

}  // namespace

PrintStep StepAfterDialog(bool chosen) {
    if (chosen) return PrintStep::Done;
    const DWORD error = CommDlgExtendedError();  // of a missing printer the dialog tells itself
    return error == 0 || error == PDERR_NODEFAULTPRN ? PrintStep::Cancelled : PrintStep::Failed;
}

PrintStep AskPrinter() {
    AskForOneCopy();
    PRINTDLGW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = platform::OwnerOfDialogs();
    dialog.hDevMode = printer.mode;
    dialog.hDevNames = printer.names;
    dialog.Flags = PD_RETURNDC | PD_NOSELECTION | PD_NOPAGENUMS | PD_HIDEPRINTTOFILE | PD_USEDEVMODECOPIESANDCOLLATE;
    dialog.nCopies = 1;
    const platform::OthersDisabled others(dialog.hwndOwner, nullptr);
    const PrintStep step = StepAfterDialog(PrintDlgW(&dialog));
    printer = { dialog.hDevMode, dialog.hDevNames };
    if (step != PrintStep::Done) return step;
    job.page = dialog.hDC;
    return job.page ? PrintStep::Done : PrintStep::Failed;
}

void ReleasePrinter() {
    DeleteDC(job.page);
    job = {};
}

void ForgetPrinter() {
    GlobalFree(printer.mode);
    GlobalFree(printer.names);
    printer = {};
}

void ShowPrinting(bool underWay) {
    if (underWay) job.focusBefore = GetFocus();
    EnableWindow(platform::MainWindow(), !underWay);
    if (!underWay) GiveFocusBack();
    ShowWaitCursor(underWay);
}

bool BeginDocument() {
    DOCINFOW document{};
    document.cbSize = sizeof document;
    document.lpszDocName = kDocument;
    return StartDocW(job.page, &document) > 0;
}

bool BeginPage() { return StartPage(job.page) > 0; }

void DrawPage() {
    const map::PrintDevice device = DeviceOf(job.page);
    map::TakeSheetOf(device, &map::print.paper);
    map::FitPrintScale(&map::print);
    DrawPrintPage(job.page, device);
}

PrintStep FinishPage() { return StepAfter(EndPage(job.page)); }

PrintStep FinishDocument() { return StepAfter(EndDoc(job.page)); }

void DropDocument() { AbortDoc(job.page); }

}  // namespace app
