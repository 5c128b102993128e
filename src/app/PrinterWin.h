// PrinterWin.h - what page setup and printing share: the printer, and drawing a page.
#pragma once

#include <windows.h>

#include "map/PrintLayout.h"

namespace app {

// The printer that the user has chosen in one of the system's dialogs, and its settings; null for the default printer.
// The dialogs replace both.
struct Printer {
    HGLOBAL mode = nullptr, names = nullptr;
};
extern Printer printer;

// As long as no page setup was shown: the paper of the default printer, without a dialog.
void LearnPaper();

// After a dialog of the system that was not ended with OK: why, unless the user cancelled it.
void TellPrinterTrouble();

map::PrintDevice DeviceOf(HDC dc);

// The page of map::print, on a device context whose origin is the corner of the device's printable area.
void DrawPrintPage(HDC dc, const map::PrintDevice& device);

}  // namespace app
