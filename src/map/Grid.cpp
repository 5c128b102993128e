// Grid.cpp - see Grid.h; and the painting of the grid.
//
// A parallel carries its label where it leaves the map on the left, a meridian where it leaves it at the
// bottom; on a turned map each line takes the side that it is closer to running into.
#include "map/Grid.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <vector>

#include "app/Settings.h"
#include "map/MapView.h"
#include "map/Painter.h"
#include "model/Geodesy.h"

namespace map {

namespace {

constexpr int kDefaultDivision = 1;
constexpr int kLabelDivisors[] = { 1, 2, 3, 4, 5, 6, 10, 12, 15, 20 };
constexpr double kClosestLines = 16, kClosestLabels = 70;  // pixels of a screen
constexpr int kMinute = 60, kDegree = 3600;                // seconds of arc
constexpr int kBendPieces = 24;                            // of a line that covers more than a degree
constexpr int kLabelHeight = 13, kLabelGap = 4;            // pixels
constexpr double kSecondsPerRadian = model::kDegreesPerRadian * kDegree;

double MetresPerMinute() { return model::kMetresPerNauticalMile * std::cos(view.centre.lat); }

int BaseStep() {
    const int index = app::settings.latLongGridDivs;
    const bool known = index >= 0 && index < static_cast<int>(std::size(kGridDivisions));
    return kGridDivisions[known ? index : kDefaultDivision];
}

int LabelStepFor(int step, double pixelsPerSecond) {
    const int whole = step < kMinute ? kMinute : kDegree;
    const double halfHeight = view.clientHeight / pixelsPerSecond / 2;  // seconds
    int labelStep = step;
    for (const int divisor : kLabelDivisors) {
        const int candidate = whole / divisor;
        if (candidate >= halfHeight || candidate % step != 0) continue;
        labelStep = candidate;
        break;
    }
    const int limit = 90 * kDegree;  // a view of the whole earth and more
    while (labelStep * pixelsPerSecond < kClosestLabels * view.fineness && labelStep < limit) labelStep += step;
    return labelStep;
}

struct Extent {
    double low = 0, high = 0;  // seconds of arc
};

// What the corners of the client area see; false when that is no place on earth.
bool FindExtents(Extent* latitudes, Extent* longitudes) {
    constexpr double kPole = 90.0 * kDegree;
    const double width = view.clientWidth, height = view.clientHeight;
    double lats[4] = {}, lons[4] = {};
    int count = 0;
    for (const Point corner : { Point{ 0, 0 }, Point{ width, 0 }, Point{ width, height }, Point{ 0, height } }) {
        const LatLon at = ScreenToWorld(corner);
        if (!std::isfinite(at.lat) || !std::isfinite(at.lon)) return false;
        lats[count] = at.lat * kSecondsPerRadian;
        lons[count++] = at.lon * kSecondsPerRadian;
    }
    *latitudes = { std::max(*std::min_element(lats, lats + 4), -kPole),
                   std::min(*std::max_element(lats, lats + 4), kPole) };
    *longitudes = { *std::min_element(lons, lons + 4), *std::max_element(lons, lons + 4) };
    const double middle = view.centre.lon * kSecondsPerRadian;
    longitudes->low = std::max(longitudes->low, middle - 2 * kPole);
    longitudes->high = std::min(longitudes->high, middle + 2 * kPole);
    return latitudes->low <= latitudes->high && longitudes->low <= longitudes->high;
}

Point OnScreen(double latitude, double longitude) {
    return WorldToScreen({ latitude / kSecondsPerRadian, longitude / kSecondsPerRadian });
}

// Straight on the screen, or bent where the earth's curvature shows.
std::vector<Point> GridLine(bool isParallel, double at, const Extent& along) {
    const int pieces = along.high - along.low > kDegree ? kBendPieces : 1;
    std::vector<Point> points;
    for (int i = 0; i <= pieces; ++i) {
        const double other = along.low + (along.high - along.low) * i / pieces;
        points.push_back(isParallel ? OnScreen(at, other) : OnScreen(other, at));
    }
    return points;
}

// The piece of the line that can be seen decides where the label goes.
void PaintGridLabel(const Painter& painter, const std::vector<Point>& line, const std::string& text) {
    for (size_t i = 1; i < line.size(); ++i) {
        Point from = line[i - 1], to = line[i];
        if (!CutToBox(VisibleBox(), &from, &to)) continue;
        const bool flat = std::abs(to.x - from.x) >= std::abs(to.y - from.y);
        if (flat ? from.x > to.x : from.y < to.y) std::swap(from, to);
        if (flat ? from.x > view.visible.left + 1 : from.y < view.visible.bottom - 1)
            continue;  // the line begins farther on
        platform::TextRun run;
        run.text = text;
        run.at = ToPixel(from + Point{ FromScreen(kLabelGap), flat ? 0.0 : -FromScreen(kLabelGap) });
        run.alignY = platform::AlignY::Bottom;
        run.height = kLabelHeight;
        run.colour = InkOf(Ink::GridLabel);
        platform::DrawText(painter.canvas, run);
        return;
    }
}

void PaintLines(const Painter& painter, bool isParallel, const GridSpacing& spacing, const Extent& across,
                const Extent& along) {
    const auto first = static_cast<int64_t>(std::ceil(across.low / spacing.step));
    const auto last = static_cast<int64_t>(std::floor(across.high / spacing.step));
    for (int64_t number = first; number <= last; ++number) {
        const int64_t seconds = number * spacing.step;
        const std::vector<Point> line = GridLine(isParallel, static_cast<double>(seconds), along);
        if (!Meets(BoundsOf(line), painter.clip)) continue;
        Stroke(painter, 1, InkOf(Ink::GridLine));
        StrokeLines(painter.canvas, line);
        if (seconds % spacing.labelStep != 0) continue;
        PaintGridLabel(painter, line, GridLabel(seconds, spacing.labelStep));
    }
}

}  // namespace

GridSpacing ChooseGridSpacing() {
    const double pixelsPerMinute = MetresPerMinute() * view.pixelsPerMetre;
    GridSpacing spacing;
    spacing.step = BaseStep();
    if (pixelsPerMinute / kMinute * spacing.step < kClosestLines * view.fineness) spacing.step = kMinute;
    if (pixelsPerMinute < kClosestLines * view.fineness) spacing.step = kDegree;
    spacing.labelStep = LabelStepFor(spacing.step, pixelsPerMinute / kMinute);
    return spacing;
}

std::string GridLabel(int64_t seconds, int labelStep) {
    constexpr int64_t kTurn = 360 * kDegree;
    constexpr int kTenthOfMinute = 6;  // seconds
    int64_t value = std::abs(seconds) % kTurn;
    if (value > kTurn / 2) value = kTurn - value;  // beyond the date line
    const int degrees = static_cast<int>(value / kDegree), rest = static_cast<int>(value % kDegree);
    char text[32];
    if (!app::settings.latLongGridDecimal)
        std::snprintf(text, sizeof text, "%d %02d %02d", degrees, rest / kMinute, rest % kMinute);
    else if (labelStep % kTenthOfMinute == 0)
        std::snprintf(text, sizeof text, "%d %04.1lf", degrees, rest / 60.0);
    else
        std::snprintf(text, sizeof text, "%d %05.2lf", degrees, rest / 60.0);
    return text;
}

void PaintGrid(Painter* painter) {
    Extent latitudes, longitudes;
    if (!FindExtents(&latitudes, &longitudes)) return;
    const GridSpacing spacing = ChooseGridSpacing();
    PaintLines(*painter, true, spacing, latitudes, longitudes);
    PaintLines(*painter, false, spacing, longitudes, latitudes);
}

}  // namespace map
