// PrintLayout.cpp - see PrintLayout.h.
#include "map/PrintLayout.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

#include "app/Settings.h"
#include "map/MapView.h"
#include "map/PaintMap.h"
#include "model/Ident.h"
#include "model/ObjectList.h"
#include "platform/Text.h"

namespace map {

PrintSettings print;

namespace {

constexpr double kMostPrintScale = 4294967295;  // what still prints as a whole number of 32 bits
constexpr double kThousandth = 0.001;
constexpr double kInch = 1, kInchInCentimetres = 2.54;
constexpr double kSheetTolerance = 0.05;  // paper units: drivers round their papers
constexpr double kPenOnGround = 3.048;    // metres: ten feet
constexpr int kWidestPen = 3;
constexpr double kLeastFineness = 0.01;  // of a sample of the page
constexpr int32_t kMostPerInch = 100000;
constexpr double kScreenPixelsPerInch = 96, kPointsPerInch = 72;
constexpr int kTitlePoints = 10;
constexpr platform::Pixel kTitlePlace = { 8, 5 };
constexpr platform::Colour kBlack = 0;

struct Extent {
    double width = 0, height = 0;
};

double UnitsPerInch(const Paper& paper) { return paper.metric ? kInchInCentimetres : kInch; }
double GroundUnitsPerMetre() { return app::settings.metric ? 1 : model::kFeetPerMetre; }
const char* GroundUnit() { return app::settings.metric ? "m" : "ft"; }
const char* PaperUnit(const Paper& paper) { return paper.metric ? "cm" : "in"; }

// Within the margins.
Extent RoomOn(const Paper& paper) {
    return { std::max(0.0, paper.width - paper.left - paper.right),
             std::max(0.0, paper.height - paper.top - paper.bottom) };
}

// What the window shows, in ground units.
Extent GroundShown() {
    if (view.span == 0) {
        view.span = kInitialSpan;
        view.pixelsPerMetre = view.clientHeight / view.span;
    }
    const double unit = GroundUnitsPerMetre() / view.pixelsPerMetre;
    return { view.clientWidth * unit, view.clientHeight * unit };
}

double WithinScales(double scale) {
    return scale > kLeastPrintScale ? std::min(scale, kMostPrintScale) : kLeastPrintScale;  // also for no number
}

int32_t Whole(double value, int32_t most) {
    if (!(value > 0)) return 0;
    return static_cast<int32_t>(std::llround(std::min(value, double(most))));
}

// The view's extent in the middle of the margins, as far as they and the printer reach.
platform::PixelRect BoxOf(const PrintSettings& settings, const PrintDevice& device, Extent perUnit) {
    const Paper& paper = settings.paper;
    const Extent room = RoomOn(paper), ground = GroundShown();
    const double width = std::min(room.width, ground.width / settings.printScale);
    const double height = std::min(room.height, ground.height / settings.printScale);
    const double left = paper.left + (room.width - width) / 2, top = paper.top + (room.height - height) / 2;
    return { Whole(left * perUnit.width - device.left, device.width),
             Whole(top * perUnit.height - device.top, device.height),
             Whole((left + width) * perUnit.width - device.left, device.width),
             Whole((top + height) * perUnit.height - device.top, device.height) };
}

int32_t WidthOf(const PrintPage& page) { return page.box.right - page.box.left; }
int32_t HeightOf(const PrintPage& page) { return page.box.bottom - page.box.top; }

std::array<platform::Pixel, 4> CornersOf(int32_t right, int32_t bottom) {
    return { platform::Pixel{ 0, 0 }, { right, 0 }, { right, bottom }, { 0, bottom } };
}

void ViewPage(const PrintPage& page) {
    ResizeView(WidthOf(page), HeightOf(page));
    view.screenCentreX = WidthOf(page) / 2.0;
    view.screenCentreY = HeightOf(page) / 2.0;
    view.pixelsPerMetre = page.pixelsPerMetre;
    view.span = view.clientHeight / page.pixelsPerMetre;
    view.fineness = std::max(kLeastFineness, page.textScale);
}

void PaintTitle(platform::Canvas* canvas, const PrintPage& page, const PrintSettings& settings) {
    const std::string title = PrintTitle(settings);
    platform::TextRun run;
    run.text = title;
    run.at = kTitlePlace;
    run.height = page.titleHeight;
    run.colour = kBlack;
    platform::DrawText(canvas, run);
}

}  // namespace

bool IsPaperMetric(std::string_view measure) { return measure == "0"; }

Paper UsualPaper(bool metric) {
    if (metric) return { true, 21.0, 29.7, 2.5, 2.5, 2.5, 2.5 };
    return { false, 8.5, 11, 1, 1, 1, 1 };
}

Paper PaperFrom(const PageSetupRecord& record, bool metric) {
    Paper paper = UsualPaper(metric);
    if (record.width > 0 && record.height > 0) {
        paper.width = record.width * kThousandth;
        paper.height = record.height * kThousandth;
    }
    const int32_t margins[] = { record.left, record.top, record.right, record.bottom };
    if (std::all_of(std::begin(margins), std::end(margins), [](int32_t margin) { return margin <= 0; })) return paper;
    paper.left = record.left * kThousandth;
    paper.top = record.top * kThousandth;
    paper.right = record.right * kThousandth;
    paper.bottom = record.bottom * kThousandth;
    return paper;
}

PageSetupRecord RecordOf(const Paper& paper) {
    const auto thousandths = [](double length) { return static_cast<int32_t>(std::llround(length / kThousandth)); };
    return { thousandths(paper.width), thousandths(paper.height), thousandths(paper.left),
             thousandths(paper.top),   thousandths(paper.right),  thousandths(paper.bottom) };
}

void TakeSheetOf(const PrintDevice& device, Paper* paper) {
    if (device.perInchX <= 0 || device.perInchY <= 0) return;
    const double width = device.sheetWidth * UnitsPerInch(*paper) / device.perInchX;
    const double height = device.sheetHeight * UnitsPerInch(*paper) / device.perInchY;
    if (std::fabs(width - paper->width) > kSheetTolerance) paper->width = width;
    if (std::fabs(height - paper->height) > kSheetTolerance) paper->height = height;
}

void FitPrintScale(PrintSettings* settings) {
    if (!settings->fitPage) return;
    const Extent room = RoomOn(settings->paper), ground = GroundShown();
    settings->printScale = WithinScales(std::max(ground.width / room.width, ground.height / room.height));
}

PrintDevice SampleDevice(const Paper& paper, int32_t width, int32_t height) {
    PrintDevice device;
    device.sheetWidth = device.width = width;
    device.sheetHeight = device.height = height;
    device.perInchX = Whole(width / paper.width * UnitsPerInch(paper), kMostPerInch);
    device.perInchY = Whole(height / paper.height * UnitsPerInch(paper), kMostPerInch);
    return device;
}

PrintPage PlanPage(const PrintSettings& settings, const PrintDevice& device) {
    const Extent perUnit = { device.sheetWidth / settings.paper.width, device.sheetHeight / settings.paper.height };
    PrintPage page;
    page.box = BoxOf(settings, device, perUnit);
    page.pixelsPerMetre = (perUnit.width + perUnit.height) / 2 / settings.printScale * GroundUnitsPerMetre();
    page.penWidth = std::max(1, Whole(page.pixelsPerMetre * kPenOnGround, kWidestPen));
    page.textScale = device.perInchY / kScreenPixelsPerInch;
    page.titleHeight = -std::max(1, static_cast<int>(std::llround(kTitlePoints * device.perInchY / kPointsPerInch)));
    return page;
}

bool IsEmpty(const PrintPage& page) {
    return WidthOf(page) <= 0 || HeightOf(page) <= 0 || !std::isfinite(page.pixelsPerMetre);
}

void PaintPage(platform::Canvas* canvas, const PrintPage& page) {
    if (IsEmpty(page)) return;
    const MapView onScreen = view;
    ViewPage(page);
    PaintPageMap(canvas, page.penWidth, onScreen);
}

void PaintPageFrame(platform::Canvas* canvas, const PrintPage& page, const PrintSettings& settings) {
    if (IsEmpty(page)) return;
    if (settings.printBorder) {
        platform::SetPen(canvas, 1, kBlack);
        platform::SetBrush(canvas, platform::kNoBrush);
        platform::DrawPolygon(canvas, CornersOf(WidthOf(page) - 1, HeightOf(page) - 1));
    }
    if (settings.printTitle) PaintTitle(canvas, page, settings);
}

std::string ScaleLabel(const Paper& paper) {
    return std::string("S&cale (") + GroundUnit() + '/' + PaperUnit(paper) + "):";
}

std::string ScaleText(const PrintSettings& settings) {
    char text[16];
    std::snprintf(text, sizeof text, "%u", static_cast<unsigned>(std::llround(WithinScales(settings.printScale))));
    return text;
}

double ScaleFromText(std::string_view text) {
    const size_t start = text.find_first_not_of(" \t");
    double number = 0;
    for (size_t i = start; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i)
        number = std::min(number * 10 + (text[i] - '0'), kMostPrintScale);
    return WithinScales(number);
}

std::string PrintTitle(const PrintSettings& settings) {
    return model::state.icao + "  " + platform::Utf8FromWindows1252(model::AirportName()) +
           ",  Scale: " + ScaleText(settings) + ' ' + GroundUnit() + '/' + PaperUnit(settings.paper);
}

}  // namespace map
