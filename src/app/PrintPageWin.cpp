// PrintPageWin.cpp - one page on a device context: a printer's, that of the sample in the page setup, or a metafile's.
#include "app/PrinterWin.h"
#include "platform/CanvasGdiWin.h"

namespace app {

map::PrintDevice DeviceOf(HDC dc) {
    map::PrintDevice device;
    device.sheetWidth = GetDeviceCaps(dc, PHYSICALWIDTH);
    device.sheetHeight = GetDeviceCaps(dc, PHYSICALHEIGHT);
    device.left = GetDeviceCaps(dc, PHYSICALOFFSETX);
    device.top = GetDeviceCaps(dc, PHYSICALOFFSETY);
    device.width = GetDeviceCaps(dc, HORZRES);
    device.height = GetDeviceCaps(dc, VERTRES);
    device.perInchX = GetDeviceCaps(dc, LOGPIXELSX);
    device.perInchY = GetDeviceCaps(dc, LOGPIXELSY);
    if (device.sheetWidth <= 0 || device.sheetHeight <= 0) {  // no sheet, but a picture
        device.sheetWidth = device.width;
        device.sheetHeight = device.height;
    }
    return device;
}

void DrawPrintPage(HDC dc, const map::PrintDevice& device) {
    const map::PrintPage page = map::PlanPage(map::print, device);
    POINT origin{};
    OffsetViewportOrgEx(dc, page.box.left, page.box.top, &origin);
    platform::GdiCanvas gdi = platform::OpenGdiCanvas(dc, page.textScale);
    map::PaintPage(&gdi.canvas, page);
    platform::CloseGdiCanvas(&gdi);
    gdi = platform::OpenGdiCanvas(dc, 1);  // the title's height is the printer's own already
    map::PaintPageFrame(&gdi.canvas, page, map::print);
    platform::CloseGdiCanvas(&gdi);
    SetViewportOrgEx(dc, origin.x, origin.y, nullptr);
}

}  // namespace app
