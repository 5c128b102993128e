// PrintLayout.h - the map on paper: the page, the scale, and where on the printer's pixels everything comes to lie.
//
// Lengths on paper are in paper units, inches or centimetres; lengths on the ground in ground units, feet or metres by
// the user's settings. A scale is ground units to the paper unit.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/Canvas.h"

namespace map {

constexpr double kLeastPrintScale = 8;

struct Paper {
    bool metric = false;                              // centimetres, not inches
    double width = 0, height = 0;                     // as the sheet is turned
    double left = 0, top = 0, right = 0, bottom = 0;  // margins
};

// For as long as the program runs.
struct PrintSettings {
    bool printBorder = false, printTitle = false;
    double printScale = kLeastPrintScale;
    bool fitPage = true;         // the scale follows the view and the paper
    bool pageSetupDone = false;  // the page setup was shown; before, the paper is that of the default printer
    Paper paper;
};

extern PrintSettings print;

// All in pixels of the device.
struct PrintDevice {
    int32_t sheetWidth = 0, sheetHeight = 0;
    int32_t left = 0, top = 0;      // of the area that it can print on, from the sheet's corner
    int32_t width = 0, height = 0;  // of that area
    int32_t perInchX = 96, perInchY = 96;
};

// What a page consists of, in pixels.
struct PrintPage {
    platform::PixelRect box;  // of the map, from the corner of the printable area; empty when there is no room
    double pixelsPerMetre = 0;
    int penWidth = 1;       // of what is one pixel wide on the screen
    double textScale = 1;   // of the labels' heights
    int titleHeight = -10;  // of its letters; negative, as platform::TextRun has it
};

// By the system's number of its measure: "0" is the metric one.
bool IsPaperMetric(std::string_view measure);

Paper UsualPaper(bool metric);  // A4 or Letter with margins of 2.5 centimetres or an inch

// From what the system's page setup tells: thousandths of the paper unit. A printer that is unsure of its paper or margins
// tells zeros; the usual ones take their place.
struct PageSetupRecord {
    int32_t width = 0, height = 0, left = 0, top = 0, right = 0, bottom = 0;
};
Paper PaperFrom(const PageSetupRecord& record, bool metric);
PageSetupRecord RecordOf(const Paper& paper);

// The sheet may be another one than the page setup knew, when it was chosen with the printer.
void TakeSheetOf(const PrintDevice& device, Paper* paper);

// While fitPage is set: the smallest scale at which everything that the view shows is on the page.
void FitPrintScale(PrintSettings* settings);

// A sheet shown on the screen is a printer with few pixels.
PrintDevice SampleDevice(const Paper& paper, int32_t width, int32_t height);

PrintPage PlanPage(const PrintSettings& settings, const PrintDevice& device);
bool IsEmpty(const PrintPage& page);

// Both draw with the corner of the page's box as their origin. The view is as before when they return.
void PaintPage(platform::Canvas* canvas, const PrintPage& page);
void PaintPageFrame(platform::Canvas* canvas, const PrintPage& page,
                    const PrintSettings& settings);  // border and title

// Texts of the page setup.
std::string ScaleLabel(const Paper& paper);  // "S&cale (ft/in):"
std::string ScaleText(const PrintSettings& settings);
double ScaleFromText(std::string_view text);  // what is no number of at least kLeastPrintScale becomes that

std::string PrintTitle(const PrintSettings& settings);

}  // namespace map
