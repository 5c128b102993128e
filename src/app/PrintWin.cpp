// PrintWin.cpp - the print dialog, and one page with the map.
#include <windows.h>

#include <commdlg.h>

#include "app/AppHost.h"
#include "app/PrinterWin.h"
#include "map/PrintLayout.h"
#include "platform/PlatformWin.h"

namespace app {

namespace {

constexpr wchar_t kDocument[] = L"Tarvo Airport Printout";

// It may be gone: the next dialog begins with the one that the system prefers.
void RefusePrinter() {
    GlobalFree(printer.mode);
    GlobalFree(printer.names);
    printer = {};
    platform::ShowMessage("ERROR: The printer cannot be used.", platform::Buttons::Ok, platform::Icon::Exclamation);
}

// Null when the user cancelled. To be deleted.
HDC AskPrinter() {
    PRINTDLGW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = platform::OwnerOfDialogs();
    dialog.hDevMode = printer.mode;
    dialog.hDevNames = printer.names;
    dialog.Flags = PD_RETURNDC | PD_NOSELECTION | PD_NOPAGENUMS | PD_USEDEVMODECOPIESANDCOLLATE;
    dialog.nCopies = 1;
    const platform::OthersDisabled others(dialog.hwndOwner, nullptr);
    const bool chosen = PrintDlgW(&dialog);
    printer = { dialog.hDevMode, dialog.hDevNames };
    if (!chosen) TellPrinterTrouble();
    if (chosen && !dialog.hDC) RefusePrinter();
    return chosen ? dialog.hDC : nullptr;
}

void DrawPageOf(HDC dc) {
    const map::PrintDevice device = DeviceOf(dc);
    map::TakeSheetOf(device, &map::print.paper);
    map::FitPrintScale(&map::print);
    DrawPrintPage(dc, device);
}

bool WasCancelled() {
    const DWORD error = GetLastError();
    return error == ERROR_CANCELLED || error == ERROR_PRINT_CANCELLED;
}

void PrintPage(HDC dc) {
    DrawPageOf(dc);
    if (EndPage(dc) > 0 && EndDoc(dc) > 0) return;
    const bool cancelled = WasCancelled();
    AbortDoc(dc);
    if (!cancelled)
        platform::ShowMessage("ERROR: The map could not be printed.", platform::Buttons::Ok,
                              platform::Icon::Exclamation);
}

// One document of one page.
void PrintDocument(HDC dc) {
    DOCINFOW document{};
    document.cbSize = sizeof document;
    document.lpszDocName = kDocument;
    if (StartDocW(dc, &document) <= 0) return;
    if (StartPage(dc) > 0)
        PrintPage(dc);
    else
        EndDoc(dc);
}

}  // namespace

void TellPrinterTrouble() {
    const DWORD error = CommDlgExtendedError();
    if (error != 0 && error != PDERR_NODEFAULTPRN) RefusePrinter();  // of a missing printer the dialog tells itself
}

void PrintAirportMap() {
    LearnPaper();
    map::FitPrintScale(&map::print);
    const HDC dc = AskPrinter();
    if (!dc) return;
    const HWND window = platform::MainWindow();
    EnableWindow(window, FALSE);
    ShowWaitCursor(true);
    PrintDocument(dc);
    ShowWaitCursor(false);
    EnableWindow(window, TRUE);
    DeleteDC(dc);
}

}  // namespace app
