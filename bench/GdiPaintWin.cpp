// GdiPaintWin.cpp - a full redraw of the hub at 1280 x 1024 into a bitmap through GDI, split into computing and drawing.
//
// Computing is the same painting on a canvas that only counts; drawing is what is left of the whole.
#include <windows.h>

#include "fakes/RecordingCanvas.h"
#include "Hub.h"
#include "map/MapView.h"
#include "map/PaintMap.h"
#include "platform/CanvasGdiWin.h"
#include "RatioTable.h"

namespace {

constexpr int kWidth = 1280, kHeight = 1024, kRounds = 40;
constexpr double kWantedRedraws = 60;  // a second

struct Bitmap {
    HDC dc = nullptr;
    HBITMAP bitmap = nullptr;
    HGDIOBJ first = nullptr;
};

Bitmap MakeBitmap() {
    HDC screen = GetDC(nullptr);
    Bitmap made;
    made.dc = CreateCompatibleDC(screen);
    made.bitmap = CreateCompatibleBitmap(screen, kWidth, kHeight);
    ReleaseDC(nullptr, screen);
    if (!made.dc || !made.bitmap) std::abort();
    made.first = SelectObject(made.dc, made.bitmap);
    return made;
}

void FreeBitmap(const Bitmap& bitmap) {
    SelectObject(bitmap.dc, bitmap.first);
    DeleteObject(bitmap.bitmap);
    DeleteDC(bitmap.dc);
}

void Compute() {
    CallCounts counts;
    platform::Canvas canvas = CountingCanvas(&counts);
    map::PaintMap(&canvas);
}

void Redraw(HDC dc) {
    platform::GdiCanvas gdi = platform::OpenGdiCanvas(dc, 1);
    map::PaintMap(&gdi.canvas);
    platform::CloseGdiCanvas(&gdi);
    GdiFlush();
}

void Measure(HDC dc, model::LatLon middle, double span, bool night) {
    map::view = {};
    map::layers = {};
    map::ResetView(middle);
    map::view.span = span;
    map::ResizeView(kWidth, kHeight);
    map::layers.lights = night;
    map::layers.navaids = map::layers.starts = true;
    Redraw(dc);
    const double computing = BestSeconds(kRounds, Compute), all = BestSeconds(kRounds, [&] { Redraw(dc); });
    const std::string what =
        "the hub at " + std::to_string(static_cast<int>(span)) + (night ? " m by night" : " m by day");
    ratios.push_back({ "computing " + what + " / drawing it", computing / (all - computing), 0.25 });
    ratios.push_back({ what + ": 60 redraws / a second", kWantedRedraws * all, 1 });
}

}  // namespace

int main() {
    const model::LatLon middle = MakeHub();
    const Bitmap bitmap = MakeBitmap();
    for (const double span : { 3704.0, 600.0 }) {
        for (const bool night : { false, true }) Measure(bitmap.dc, middle, span, night);
    }
    FreeBitmap(bitmap);
    platform::FreeGdiFonts();
    PrintRatios();
}
