// GdiPaintWin.cpp - a full redraw of the hub at 1280 x 1024 into a bitmap through GDI, compared with its parts.
//
// Computing is the same painting on a canvas that only counts. Issuing is GDI alone: the calls of one redraw, written
// down before, are handed to the canvas again as they were.
#include <windows.h>

#include "fakes/RecordingCanvas.h"
#include "Hub.h"
#include "map/MapView.h"
#include "map/PaintMap.h"
#include "platform/CanvasGdiWin.h"
#include "RatioTable.h"

namespace {

constexpr int kWidth = 1280, kHeight = 1024, kRounds = 40;
constexpr double kWantedRedraws = 60;    // a second
constexpr double kMostComputing = 0.25;  // of the time that GDI takes

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

template <class Paint>
void DrawOn(HDC dc, Paint paint) {
    platform::GdiCanvas gdi = platform::OpenGdiCanvas(dc, 1);
    paint(&gdi.canvas);
    platform::CloseGdiCanvas(&gdi);
    GdiFlush();
}

void Redraw(HDC dc) { DrawOn(dc, map::PaintMap); }

void Measure(HDC dc, model::LatLon middle, double span, bool night) {
    map::view = {};
    map::layers = {};
    map::ResetView(middle);
    map::view.span = span;
    map::ResizeView(kWidth, kHeight);
    map::layers.lights = night;
    map::layers.navaids = map::layers.starts = true;
    RecordingCanvas page;
    map::PaintMap(&page.canvas);
    const std::vector<ReplayStep> steps = ReplaySteps(page.calls);
    const auto issue = [&] { DrawOn(dc, [&](platform::Canvas* canvas) { Replay(steps, canvas); }); };
    Redraw(dc);
    issue();
    const double computing = BestSeconds(kRounds, Compute), issuing = BestSeconds(kRounds, issue),
                 all = BestSeconds(kRounds, [&] { Redraw(dc); });
    const std::string what =
        "the hub at " + std::to_string(static_cast<int>(span)) + (night ? " m by night" : " m by day");
    ratios.push_back({ "computing " + what + " / issuing its calls", computing / issuing, kMostComputing });
    ratios.push_back({ "redrawing " + what + " / issuing its calls", all / issuing, 1 + kMostComputing });
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
