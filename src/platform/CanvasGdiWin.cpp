// CanvasGdiWin.cpp - see CanvasGdiWin.h.
//
// A replaced pen or brush is deleted as soon as its successor is selected. Clips are kept as regions, not with SaveDC:
// restoring a device context would select pens again that are deleted by then.
#include "platform/CanvasGdiWin.h"

#include <algorithm>
#include <cmath>

#include "platform/WideTextWin.h"

namespace platform {

namespace {

struct Font {
    int height;
    bool bold;
    int tenths;  // of a degree, counter-clockwise
    HFONT handle;
};

// Text at the map's rotation makes a font for each angle, so the oldest has to go some time.
constexpr size_t kFontLimit = 48;
std::vector<Font> fonts;

GdiTarget& TargetOf(void* target) { return *static_cast<GdiTarget*>(target); }

POINT ToPoint(Pixel pixel) { return { pixel.x, pixel.y }; }

std::vector<POINT> ToPoints(std::span<const Pixel> pixels) {
    std::vector<POINT> points(pixels.size());
    std::transform(pixels.begin(), pixels.end(), points.begin(), ToPoint);
    return points;
}

void SelectPenOf(void* target, int width, Colour colour) {
    GdiTarget& gdi = TargetOf(target);
    const bool none = width == kNoPen;
    const HPEN pen = none ? nullptr : CreatePen(PS_SOLID, std::max(width, 1), colour);
    SelectObject(gdi.dc, pen ? pen : GetStockObject(NULL_PEN));
    if (gdi.pen) DeleteObject(gdi.pen);
    gdi.pen = pen;
    gdi.hasPen = pen != nullptr;
    gdi.penWidth = width;
    gdi.penColour = colour;
}

void SelectBrushOf(void* target, Colour colour) {
    GdiTarget& gdi = TargetOf(target);
    // kNoBrush is also a colour, all but black. Who fills with colours that users chose steps aside from it.
    const HBRUSH brush = colour == kNoBrush ? nullptr : CreateSolidBrush(colour);
    SelectObject(gdi.dc, brush ? brush : GetStockObject(NULL_BRUSH));
    if (gdi.brush) DeleteObject(gdi.brush);
    gdi.brush = brush;
    gdi.hasBrush = brush != nullptr;
}

// GDI leaves out the last pixel of a thin line.
void DrawLastPixel(const GdiTarget& gdi, Pixel at) {
    if (gdi.hasPen && gdi.penWidth <= 1) SetPixelV(gdi.dc, at.x, at.y, gdi.penColour);
}

void DrawLineOf(void* target, Pixel from, Pixel to) {
    const GdiTarget& gdi = TargetOf(target);
    MoveToEx(gdi.dc, from.x, from.y, nullptr);
    ::LineTo(gdi.dc, to.x, to.y);
    DrawLastPixel(gdi, to);
}

void DrawPolylineOf(void* target, std::span<const Pixel> pixels) {
    if (pixels.size() < 2) return;
    const GdiTarget& gdi = TargetOf(target);
    Polyline(gdi.dc, ToPoints(pixels).data(), static_cast<int>(pixels.size()));
    DrawLastPixel(gdi, pixels.back());
}

void DrawPolygonOf(void* target, std::span<const Pixel> pixels) {
    if (pixels.size() < 2) return;
    const GdiTarget& gdi = TargetOf(target);
    SetPolyFillMode(gdi.dc, WINDING);
    Polygon(gdi.dc, ToPoints(pixels).data(), static_cast<int>(pixels.size()));
}

void DrawEllipseOf(void* target, PixelRect box) {
    const GdiTarget& gdi = TargetOf(target);
    const int outline = gdi.hasPen ? 0 : 1;  // without a pen GDI makes the figure a pixel smaller
    Ellipse(gdi.dc, box.left, box.top, box.right + outline, box.bottom + outline);
}

void TracePath(HDC dc, const Path& path) {
    BeginPath(dc);
    size_t next = 0;
    for (Path::Step step : path.steps) {
        switch (step) {
        case Path::Step::Move:
            MoveToEx(dc, path.points[next].x, path.points[next].y, nullptr);
            ++next;
            break;
        case Path::Step::Line:
            ::LineTo(dc, path.points[next].x, path.points[next].y);
            ++next;
            break;
        case Path::Step::Curve: {
            const std::vector<POINT> curve = ToPoints(std::span(path.points).subspan(next, 3));
            PolyBezierTo(dc, curve.data(), 3);
            next += 3;
            break;
        }
        case Path::Step::Close: CloseFigure(dc); break;
        }
    }
    EndPath(dc);
}

void DrawPathOf(void* target, const Path& path) {
    const GdiTarget& gdi = TargetOf(target);
    if (path.steps.empty() || (!gdi.hasPen && !gdi.hasBrush)) return;
    SetPolyFillMode(gdi.dc, WINDING);
    TracePath(gdi.dc, path);
    // Results are not looked at: printer drivers report failure for what they have drawn.
    if (!gdi.hasPen)
        FillPath(gdi.dc);
    else if (!gdi.hasBrush)
        StrokePath(gdi.dc);
    else
        StrokeAndFillPath(gdi.dc);
}

void PushClipOf(void* target, const Path& path) {
    GdiTarget& gdi = TargetOf(target);
    HRGN before = CreateRectRgn(0, 0, 0, 0);
    if (GetClipRgn(gdi.dc, before) != 1) {
        DeleteObject(before);
        before = nullptr;
    }
    gdi.clips.push_back(before);
    SetPolyFillMode(gdi.dc, WINDING);
    TracePath(gdi.dc, path);
    SelectClipPath(gdi.dc, RGN_AND);
}

void PopClipOf(void* target) {
    GdiTarget& gdi = TargetOf(target);
    if (gdi.clips.empty()) return;
    SelectClipRgn(gdi.dc, gdi.clips.back());
    if (gdi.clips.back()) DeleteObject(gdi.clips.back());
    gdi.clips.pop_back();
}

HFONT FontFor(int height, bool bold, int tenths) {
    const auto found = std::find_if(fonts.begin(), fonts.end(), [&](const Font& font) {
        return font.height == height && font.bold == bold && font.tenths == tenths;
    });
    if (found != fonts.end()) return found->handle;
    if (fonts.size() >= kFontLimit) {
        DeleteObject(fonts.front().handle);  // selected nowhere: text calls give the font back
        fonts.erase(fonts.begin());
    }
    const HFONT handle =
        CreateFontW(height, 0, tenths, tenths, bold ? FW_BOLD : FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                    OUT_TT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, VARIABLE_PITCH | FF_SWISS, L"Arial");
    if (!handle) return static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));  // not kept: the next text tries again
    fonts.push_back({ height, bold, tenths, handle });
    return handle;
}

int ScaledHeight(const GdiTarget& gdi, const TextRun& run) {
    const int height = static_cast<int>(std::lround(run.height * gdi.textScale));
    return height != 0 ? height : 1;
}

SIZE MeasureText(const GdiTarget& gdi, const TextRun& run, const std::wstring& text) {
    SelectObject(gdi.dc, FontFor(ScaledHeight(gdi, run), run.bold, 0));
    SIZE size{};
    GetTextExtentPoint32W(gdi.dc, text.c_str(), static_cast<int>(text.size()), &size);
    SelectObject(gdi.dc, gdi.firstFont);
    return size;
}

// How much of an extent lies left of, or above, the anchor.
double ShareBefore(AlignX align) { return align == AlignX::Left ? 0 : align == AlignX::Centre ? 0.5 : 1; }
double ShareBefore(AlignY align) { return align == AlignY::Top ? 0 : align == AlignY::Middle ? 0.5 : 1; }

void DrawTextOf(void* target, const TextRun& run) {
    const GdiTarget& gdi = TargetOf(target);
    const std::wstring text = WideFromUtf8(run.text);
    const SIZE size = MeasureText(gdi, run, text);
    const double left = -ShareBefore(run.alignX) * static_cast<double>(size.cx);
    const double top = -ShareBefore(run.alignY) * static_cast<double>(size.cy);
    const double cosine = std::cos(run.angle), sine = std::sin(run.angle);
    const auto x = run.at.x + static_cast<int>(std::lround(left * cosine - top * sine));
    const auto y = run.at.y + static_cast<int>(std::lround(left * sine + top * cosine));
    const auto tenths = static_cast<int>(std::lround(-run.angle * 1800 / 3.14159265358979323846)) % 3600;
    SelectObject(gdi.dc, FontFor(ScaledHeight(gdi, run), run.bold, tenths));
    SetBkMode(gdi.dc, TRANSPARENT);
    SetTextColor(gdi.dc, run.colour);
    SetTextAlign(gdi.dc, TA_LEFT | TA_TOP);
    TextOutW(gdi.dc, x, y, text.c_str(), static_cast<int>(text.size()));
    SelectObject(gdi.dc, gdi.firstFont);
}

constexpr CanvasCalls kGdiCalls = {
    .selectPen = SelectPenOf,
    .selectBrush = SelectBrushOf,
    .line = DrawLineOf,
    .polyline = DrawPolylineOf,
    .polygon = DrawPolygonOf,
    .ellipse = DrawEllipseOf,
    .path = DrawPathOf,
    .pushClip = PushClipOf,
    .popClip = PopClipOf,
    .text = DrawTextOf,
};

}  // namespace

GdiCanvas OpenGdiCanvas(HDC dc, double textScale) {
    GdiCanvas gdi;
    gdi.target = std::make_unique<GdiTarget>();
    gdi.target->dc = dc;
    gdi.target->textScale = textScale;
    gdi.target->firstPen = GetCurrentObject(dc, OBJ_PEN);
    gdi.target->firstBrush = GetCurrentObject(dc, OBJ_BRUSH);
    gdi.target->firstFont = GetCurrentObject(dc, OBJ_FONT);
    gdi.canvas.target = gdi.target.get();
    gdi.canvas.calls = &kGdiCalls;
    gdi.canvas.textScale = textScale;
    return gdi;
}

void CloseGdiCanvas(GdiCanvas* gdi) {
    GdiTarget& target = *gdi->target;
    while (!target.clips.empty()) PopClipOf(&target);
    SelectObject(target.dc, target.firstPen);
    SelectObject(target.dc, target.firstBrush);
    if (target.pen) DeleteObject(target.pen);
    if (target.brush) DeleteObject(target.brush);
    gdi->target.reset();
    gdi->canvas = {};
}

PixelBitmap MakePixelBitmap(int width, int height) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* pixels = nullptr;
    const HBITMAP handle = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
    return { handle, static_cast<uint32_t*>(pixels) };
}

void FreeGdiFonts() {
    for (const Font& font : fonts) DeleteObject(font.handle);
    fonts.clear();
}

}  // namespace platform
