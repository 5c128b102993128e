// CursorPictures.cpp - see CursorPictures.h.
#include "app/CursorPictures.h"

#include <algorithm>
#include <utility>

#include "app/CursorRows.h"

namespace app {

namespace {

constexpr uint32_t kBlack = 0xFF000000, kWhite = 0xFFFFFFFF;
constexpr uint32_t kSelectedDay = 0xFFFFC81E, kSelectedNight = 0xFFBF9617;  // as the map shows the selection
constexpr uint32_t kApronDay = 0xFFC3C3B4, kApronNight = 0xFF808078;

struct Spot {
    int x = 0, y = 0;
};
constexpr Spot kTip = { 1, 1 }, kMiddle = { 15, 15 };  // hot spots of the arrow and of pictures about their middle
constexpr Spot kCross = { 9, 9 };                      // where the cross of the tools that place something is open
constexpr Spot kBeside = { 19, 18 };                   // what such a tool places is drawn there
constexpr int kArm = 8, kGap = 2;                      // of the cross: pixels from its middle

constexpr int kPlainDpi = 96, kHalfwayDpi = 47;  // half a size more still gets the smaller picture
constexpr int kMostCursorTimes = 8;

struct Look {
    map::CursorShape shape;
    Rows rows;
    Spot place, hot;
    uint32_t day = 0, night = 0;  // of the fill
    bool crossed = false;
};

// The tools that place something: a cross to place it with, and what it is.
constexpr Look Placing(map::CursorShape shape, Rows rows, uint32_t day = 0, uint32_t night = 0) {
    return { shape, rows, kBeside, kCross, day, night, true };
}

using map::CursorShape;
constexpr Look kLooks[] = {
    { CursorShape::Arrow, kArrow, kTip, kTip, kWhite, 0xFF404040 },
    { CursorShape::Hand, kHand, { 8, 7 }, kMiddle, 0xFFF0DCC0, 0xFF605040 },
    { CursorShape::Move, kFourArrows, { 5, 5 }, kMiddle, kSelectedDay, kSelectedNight },
    { CursorShape::Turn, kTurnArrow, { 8, 8 }, kMiddle },
    Placing(CursorShape::Box, {}),
    Placing(CursorShape::Node, kNode, 0xFF6E6EFF, 0xFF9090FF),
    Placing(CursorShape::Link, kLink, 0xFF8C8CFF, 0xFFA0A0FF),
    Placing(CursorShape::Parking, kSpot, 0xFFA0FFA0, 0xFF80D080),
    Placing(CursorShape::Apron, kApron, kApronDay, kApronNight),
    Placing(CursorShape::ApronPoint, kCorner, kApronDay, kApronNight),
    Placing(CursorShape::EdgeLights, kLamps, 0xFF4060FF, 0xFF80A0FF),
    Placing(CursorShape::Marker, kMarker),
    Placing(CursorShape::Guideline, kGuideline),
};

constexpr bool IsInOrder() {
    int shape = 0;
    return std::all_of(std::begin(kLooks), std::end(kLooks),
                       [&](const Look& look) { return static_cast<int>(look.shape) == shape++; });
}
static_assert(std::size(kLooks) == map::kCursorShapes && IsInOrder());

struct Drawing {
    CursorPicture picture;
    uint32_t line = kBlack, halo = kWhite;
};

size_t Index(int x, int y) { return static_cast<size_t>(y) * kCursorSize + static_cast<size_t>(x); }

uint32_t* PixelAt(Drawing* drawing, int x, int y) {
    if (x < 0 || y < 0 || x >= kCursorSize || y >= kCursorSize) return nullptr;
    return &drawing->picture.pixels[Index(x, y)];
}

void Set(Drawing* drawing, int x, int y, uint32_t colour) {
    if (uint32_t* pixel = PixelAt(drawing, x, y)) *pixel = colour;
}

void DrawCross(Drawing* drawing) {
    for (int distance = kGap; distance <= kArm; ++distance) {
        for (const int side : { -distance, distance }) {
            Set(drawing, kCross.x + side, kCross.y, drawing->line);
            Set(drawing, kCross.x, kCross.y + side, drawing->line);
        }
    }
}

void DrawRows(Drawing* drawing, Rows rows, Spot place, uint32_t fill) {
    Spot at = place;
    for (const char letter : rows) {
        if (letter == '#' || letter == 'o') Set(drawing, at.x, at.y, letter == 'o' ? fill : drawing->line);
        at = letter == '\n' ? Spot{ place.x, at.y + 1 } : Spot{ at.x + 1, at.y };
    }
}

// Around everything that is drawn, so that it is seen on any ground.
void DrawHalo(Drawing* drawing) {
    const CursorPicture drawn = drawing->picture;
    for (int y = 0; y < kCursorSize; ++y) {
        for (int x = 0; x < kCursorSize; ++x) {
            if (drawn.pixels[Index(x, y)] == 0) continue;
            for (const Spot step : { Spot{ 1, 0 }, { -1, 0 }, { 0, 1 }, { 0, -1 } }) {
                uint32_t* pixel = PixelAt(drawing, x + step.x, y + step.y);
                if (pixel && *pixel == 0) *pixel = drawing->halo;
            }
        }
    }
}

}  // namespace

CursorPicture DrawCursor(CursorShape shape, bool night) {
    const Look& look = kLooks[static_cast<size_t>(shape)];
    Drawing drawing;
    if (night) std::swap(drawing.line, drawing.halo);
    drawing.picture.hotX = look.hot.x;
    drawing.picture.hotY = look.hot.y;
    if (look.crossed) DrawCross(&drawing);
    DrawRows(&drawing, look.rows, look.place, night ? look.night : look.day);
    DrawHalo(&drawing);
    return drawing.picture;
}

int CursorTimes(int dpi) { return std::clamp((dpi + kHalfwayDpi) / kPlainDpi, 1, kMostCursorTimes); }

std::vector<uint32_t> EnlargedPixels(const CursorPicture& picture, int times) {
    const int size = kCursorSize * times;
    std::vector<uint32_t> pixels;
    pixels.reserve(static_cast<size_t>(size) * static_cast<size_t>(size));
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) pixels.push_back(picture.pixels[Index(x / times, y / times)]);
    }
    return pixels;
}

}  // namespace app
