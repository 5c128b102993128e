// PrinterWin.h - what page setup and printing share: the printer, and drawing a page.
#pragma once

#include <windows.h>

#include "app/PrinterHost.h"
#include "map/PrintLayout.h"

namespace app {

// The printer that the user has chosen in one of the system's dialogs, and its settings; null for the default printer.
// The dialogs replace both.
struct Printer {
    HGLOBAL mode = nullptr, names = nullptr;
};
extern Printer printer;

// How the system's dialog for a page or a printer ended that has just returned.
PrintStep StepAfterDialog(bool chosen);

map::PrintDevice DeviceOf(HDC dc);

// The page of map::print, on a device context whose origin is the corner of the device's printable area.
void DrawPrintPage(HDC dc, const map::PrintDevice& device);

}  // namespace app
