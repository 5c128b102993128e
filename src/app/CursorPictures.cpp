// CursorPictures.cpp - see CursorPictures.h.
#include "app/CursorPictures.h"

#include <array>
#include <string_view>
#include <utility>

namespace app {

namespace {

constexpr int kHot = 9;            // of the cross, from the left and the top
constexpr int kArm = 9, kGap = 2;  // pixels from the hot spot
constexpr int kSignLeft = 19, kSignTop = 18;
constexpr int kSignSize = 11;

// A letter is a colour: '#' the line, 'o' the fill of the tool.
using Sign = std::array<std::string_view, kSignSize>;

constexpr Sign kBlank = { "           ", "           ", "           ", "           ", "           ", "           ",
                          "           ", "           ", "           ", "           ", "           " };
constexpr Sign kNode = { "           ", "   #####   ", "  #ooooo#  ", " #ooooooo# ", " #ooooooo# ", " #ooooooo# ",
                         " #ooooooo# ", " #ooooooo# ", "  #ooooo#  ", "   #####   ", "           " };
constexpr Sign kLink = { "         ##", "        #o#", "       #o# ", "      #o#  ", "     #o#   ", "    #o#    ",
                         "   #o#     ", "  #o#      ", " #o#       ", "#o#        ", "##         " };
constexpr Sign kSpot = { "#######    ", "#ooooo##   ", "#o###oo#   ", "#o# #oo#   ", "#o###oo#   ", "#ooooo##   ",
                         "#o#####    ", "#o#        ", "#o#        ", "###        ", "           " };
constexpr Sign kApron = { "   ####### ", "  #ooooo#  ", " #oooooo#  ", "#ooooooo## ", "#oooooooo##", "#ooooooooo#",
                          "#ooooooooo#", " #oooooooo#", " #oooooooo#", "  #########", "           " };
constexpr Sign kCorner = { "#          ", "##         ", "#o#        ", "#oo#  #    ", "#ooo# #    ", "#oo# ##### ",
                           "#o#   #    ", "##    #    ", "#          ", "           ", "           " };
constexpr Sign kLamps = { " ##        ", "#oo#       ", "#oo#       ", " ## ##     ", "   #oo#    ", "   #oo#    ",
                          "    ## ##  ", "      #oo# ", "      #oo# ", "       ##  ", "           " };
constexpr Sign kMarker = { "     #     ", "     #     ", "   #####   ", "  #  #  #  ", "  #  #  #  ", "###########",
                           "  #  #  #  ", "  #  #  #  ", "   #####   ", "     #     ", "     #     " };
constexpr Sign kGuideline = { "         ##", "         ##", "       #   ", "      #    ", "           ", "    #      ",
                              "   #       ", "           ", " #         ", "##         ", "##         " };

constexpr uint32_t kOpaque = 0xFF000000, kBlack = kOpaque, kWhite = 0xFFFFFFFF;

struct ToolSign {
    map::CursorShape shape;
    const Sign* sign;
    uint32_t day, night;  // of the fill
};

using map::CursorShape;
constexpr ToolSign kSigns[] = {
    { CursorShape::Box, &kBlank, 0, 0 },
    { CursorShape::Node, &kNode, 0xFF6E6EFF, 0xFF9090FF },
    { CursorShape::Link, &kLink, 0xFF8C8CFF, 0xFFA0A0FF },
    { CursorShape::Parking, &kSpot, 0xFFA0FFA0, 0xFF80D080 },
    { CursorShape::Apron, &kApron, 0xFFC3C3B4, 0xFF808078 },
    { CursorShape::ApronPoint, &kCorner, 0xFFC3C3B4, 0xFF808078 },
    { CursorShape::EdgeLights, &kLamps, 0xFF4060FF, 0xFF80A0FF },
    { CursorShape::Marker, &kMarker, 0, 0 },
    { CursorShape::Guideline, &kGuideline, 0, 0 },
};

const ToolSign* SignOf(CursorShape shape) {
    for (const ToolSign& sign : kSigns) {
        if (sign.shape == shape) return &sign;
    }
    return nullptr;
}

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
        Set(drawing, kHot - distance, kHot, drawing->line);
        Set(drawing, kHot + distance, kHot, drawing->line);
        Set(drawing, kHot, kHot - distance, drawing->line);
        Set(drawing, kHot, kHot + distance, drawing->line);
    }
}

void DrawSign(Drawing* drawing, const Sign& sign, uint32_t fill) {
    for (int y = 0; y < kSignSize; ++y) {
        const std::string_view row = sign[static_cast<size_t>(y)];
        for (int x = 0; x < kSignSize; ++x) {
            const char letter = row[static_cast<size_t>(x)];
            if (letter != ' ') Set(drawing, kSignLeft + x, kSignTop + y, letter == 'o' ? fill : drawing->line);
        }
    }
}

// Around everything that is drawn, so that it is seen on any ground.
void DrawHalo(Drawing* drawing) {
    const CursorPicture drawn = drawing->picture;
    for (int y = 0; y < kCursorSize; ++y) {
        for (int x = 0; x < kCursorSize; ++x) {
            if (drawn.pixels[Index(x, y)] == 0) continue;
            for (const auto& [dx, dy] : { std::array{ 1, 0 }, { -1, 0 }, { 0, 1 }, { 0, -1 } }) {
                uint32_t* pixel = PixelAt(drawing, x + dx, y + dy);
                if (pixel && *pixel == 0) *pixel = drawing->halo;
            }
        }
    }
}

// Three quarters of a circle with a head at its end.
constexpr std::array<std::string_view, 15> kTurnArrow = {
    "     #####     ", "   ##     ##   ", "  #         #  ", " #           # ", " #           # ",
    "#              ", "#              ", "#              ", "#           #  ", "#          ### ",
    " #        #####", " #           # ", "  #         #  ", "   ##     ##   ", "     #####     ",
};

CursorPicture DrawTurn(bool night) {
    Drawing drawing;
    if (night) std::swap(drawing.line, drawing.halo);
    constexpr int kPlace = 8;
    for (int y = 0; y < 15; ++y) {
        for (int x = 0; x < 15; ++x) {
            if (kTurnArrow[static_cast<size_t>(y)][static_cast<size_t>(x)] == '#')
                Set(&drawing, kPlace + x, kPlace + y, drawing.line);
        }
    }
    DrawHalo(&drawing);
    drawing.picture.hotX = drawing.picture.hotY = kPlace + 7;
    return drawing.picture;
}

}  // namespace

bool HasCursorPicture(CursorShape shape) { return shape == CursorShape::Turn || SignOf(shape); }

CursorPicture DrawCursor(CursorShape shape, bool night) {
    if (shape == CursorShape::Turn) return DrawTurn(night);
    Drawing drawing;
    if (night) std::swap(drawing.line, drawing.halo);
    drawing.picture.hotX = drawing.picture.hotY = kHot;
    DrawCross(&drawing);
    if (const ToolSign* sign = SignOf(shape)) DrawSign(&drawing, *sign->sign, night ? sign->night : sign->day);
    DrawHalo(&drawing);
    return drawing.picture;
}

}  // namespace app
