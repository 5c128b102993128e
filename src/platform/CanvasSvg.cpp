// CanvasSvg.cpp - see CanvasSvg.h.
//
// Whole coordinates name the middle of a pixel, as on a screen: the drawing is moved by half a pixel, so
// that a line one pixel wide covers exactly one row. Pens have round ends and joins.
#include "platform/CanvasSvg.h"

#include <cstdio>
#include <string_view>

#include "platform/Text.h"

namespace platform {

namespace {

constexpr double kAscent = 0.8;  // of the font height: from the top of the line to the baseline
constexpr double kDegrees = 57.29577951308232;

struct SvgTarget {
    std::string body;
    std::string fill = "none";    // attribute values in force
    std::string stroke = "none";  // with the width
    int clips = 0;                // made so far; each has an id of its own
};

SvgTarget* Svg(void* target) { return static_cast<SvgTarget*>(target); }

void Append(std::string* out, Pixel point) { *out += std::to_string(point.x) + ',' + std::to_string(point.y); }

std::string Hex(Colour colour) {
    char text[8];
    std::snprintf(text, sizeof text, "#%02x%02x%02x", colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF);
    return text;
}

std::string Number(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.2f", value);
    return text;
}

// Text may come from a file: what XML forbids becomes a question mark.
std::string Escaped(std::string_view text) {
    std::string out;
    for (const char c : text) {
        switch (c) {
        case '&': out += "&amp;"; break;
        case '<': out += "&lt;"; break;
        case '>': out += "&gt;"; break;
        default: out += static_cast<unsigned char>(c) < 0x20 || c == 0x7F ? '?' : c; break;
        }
    }
    return out;
}

std::string PathData(const Path& path) {
    std::string data;
    size_t at = 0;
    for (const Path::Step step : path.steps) {
        constexpr const char* kLetters[] = { "M", "L", "C", "Z" };
        constexpr size_t kTaken[] = { 1, 1, 3, 0 };
        const auto kind = static_cast<size_t>(step);
        data += kLetters[kind];
        for (size_t i = 0; i < kTaken[kind]; ++i) {
            if (i) data += ' ';
            Append(&data, path.points[at++]);
        }
    }
    return data;
}

std::string PointList(std::span<const Pixel> points) {
    std::string list;
    for (const Pixel& point : points) {
        if (!list.empty()) list += ' ';
        Append(&list, point);
    }
    return list;
}

void SelectPen(void* target, int width, Colour colour) {
    Svg(target)->stroke = width == kNoPen ? "none" : Hex(colour) + "\" stroke-width=\"" + std::to_string(width);
}

void SelectBrush(void* target, Colour colour) { Svg(target)->fill = colour == kNoBrush ? "none" : Hex(colour); }

void Line(void* target, Pixel from, Pixel to) {
    std::string data = "M";
    Append(&data, from);
    data += 'L';
    Append(&data, to);
    Svg(target)->body += "<path d=\"" + data + "\" fill=\"none\" stroke=\"" + Svg(target)->stroke + "\"/>\n";
}

void Polyline(void* target, std::span<const Pixel> points) {
    Svg(target)->body +=
        "<polyline points=\"" + PointList(points) + "\" fill=\"none\" stroke=\"" + Svg(target)->stroke + "\"/>\n";
}

void FilledShape(void* target, const std::string& element) {
    Svg(target)->body += element + " fill=\"" + Svg(target)->fill + "\" stroke=\"" + Svg(target)->stroke + "\"/>\n";
}

void Polygon(void* target, std::span<const Pixel> points) {
    FilledShape(target, "<polygon points=\"" + PointList(points) + "\"");
}

void Ellipse(void* target, PixelRect box) {
    const double cx = (box.left + (box.right - 1.0)) / 2, cy = (box.top + (box.bottom - 1.0)) / 2;
    const double rx = (box.right - 1.0 - box.left) / 2, ry = (box.bottom - 1.0 - box.top) / 2;
    FilledShape(target, "<ellipse cx=\"" + Number(cx) + "\" cy=\"" + Number(cy) + "\" rx=\"" + Number(rx) + "\" ry=\"" +
                            Number(ry) + "\"");
}

void DrawSvgPath(void* target, const Path& path) { FilledShape(target, "<path d=\"" + PathData(path) + "\""); }

void PushSvgClip(void* target, const Path& path) {
    const std::string id = "clip" + std::to_string(++Svg(target)->clips);
    Svg(target)->body += "<clipPath id=\"" + id + "\"><path d=\"" + PathData(path) +
                         "\"/></clipPath>\n<g clip-path=\"url(#" + id + ")\">\n";
}

void PopSvgClip(void* target) { Svg(target)->body += "</g>\n"; }

void SvgText(void* target, const TextRun& run) {
    constexpr const char* kAnchors[] = { "start", "middle", "end" };
    constexpr double kBaselines[] = { kAscent, kAscent - 0.5, kAscent - 1 };  // below `at`, in font heights
    std::string element = "<text x=\"" + std::to_string(run.at.x) + "\" y=\"" +
                          Number(run.at.y + kBaselines[static_cast<size_t>(run.alignY)] * run.height) +
                          "\" font-size=\"" + Number(run.height * 0.86) + "\" text-anchor=\"" +
                          kAnchors[static_cast<size_t>(run.alignX)] + "\"";
    if (run.bold) element += " font-weight=\"bold\"";
    if (run.angle != 0) {
        element += " transform=\"rotate(" + Number(run.angle * kDegrees) + ' ' + std::to_string(run.at.x) + ' ' +
                   std::to_string(run.at.y) + ")\"";
    }
    Svg(target)->body += element + " fill=\"" + Hex(run.colour) + "\">" + Escaped(run.text) + "</text>\n";
}

constexpr CanvasCalls kSvgCalls = {
    SelectPen, SelectBrush, Line, Polyline, Polygon, Ellipse, DrawSvgPath, PushSvgClip, PopSvgClip, SvgText,
};

}  // namespace

std::string SvgDocument(int32_t width, int32_t height, const std::function<void(Canvas*)>& paint) {
    SvgTarget target;
    Canvas canvas;
    canvas.target = &target;
    canvas.calls = &kSvgCalls;
    paint(&canvas);
    const std::string w = std::to_string(width), h = std::to_string(height);
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + w +
           "\" height=\"" + h + "\" viewBox=\"0 0 " + w + ' ' + h +
           "\">\n<g transform=\"translate(0.5 0.5)\" stroke-linecap=\"round\" stroke-linejoin=\"round\" "
           "font-family=\"Arial, Helvetica, 'Liberation Sans', sans-serif\">\n" +
           target.body + "</g>\n</svg>\n";
}

}  // namespace platform
