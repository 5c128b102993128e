#include "app/CursorPictures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <utility>

namespace {

using namespace app;
using map::CursorShape;

uint32_t PixelAt(const CursorPicture& picture, int x, int y) {
    return picture.pixels[static_cast<size_t>(y * kCursorSize + x)];
}

template <class Check>
void ForEachPicture(Check check) {
    for (int i = 0; i < map::kCursorShapes; ++i) {
        for (const bool night : { false, true }) {
            SCOPED_TRACE(testing::Message() << "shape " << i << (night ? " by night" : " by day"));
            check(DrawCursor(static_cast<CursorShape>(i), night), night);
        }
    }
}

TEST(CursorPictures, EveryPictureIsAnotherOneByDayAndByNight) {
    std::set<std::array<uint32_t, kCursorSize * kCursorSize>> seen;
    int count = 0;
    ForEachPicture([&](const CursorPicture& picture, bool) {
        seen.insert(picture.pixels);
        ++count;
    });
    EXPECT_EQ(seen.size(), static_cast<size_t>(count));
}

// Black and white side by side stand out from any ground, and nothing is cut off at the border.
TEST(CursorPictures, ARimOfTheOtherShadeRunsAroundEveryLine) {
    ForEachPicture([](const CursorPicture& picture, bool night) {
        const uint32_t line = night ? 0xFFFFFFFF : 0xFF000000, rim = night ? 0xFF000000 : 0xFFFFFFFF;
        int lines = 0;
        for (int y = 0; y < kCursorSize; ++y) {
            for (int x = 0; x < kCursorSize; ++x) {
                lines += PixelAt(picture, x, y) == line;
                const bool border = x == 0 || y == 0 || x == kCursorSize - 1 || y == kCursorSize - 1;
                ASSERT_FALSE(border && PixelAt(picture, x, y) == line) << x << ' ' << y;
                if (PixelAt(picture, x, y) != 0) continue;
                for (const auto& [dx, dy] : { std::pair{ 1, 0 }, { -1, 0 }, { 0, 1 }, { 0, -1 } }) {
                    if (x + dx < 0 || y + dy < 0 || x + dx >= kCursorSize || y + dy >= kCursorSize) continue;
                    const uint32_t beside = PixelAt(picture, x + dx, y + dy);
                    ASSERT_TRUE(beside == 0 || beside == rim) << x << ' ' << y;
                }
            }
        }
        EXPECT_GE(lines, 28);  // those of the bare cross
    });
}

TEST(CursorPictures, TheArrowPointsWithItsTip) {
    for (const bool night : { false, true }) {
        const CursorPicture picture = DrawCursor(CursorShape::Arrow, night);
        EXPECT_EQ(PixelAt(picture, picture.hotX, picture.hotY), night ? 0xFFFFFFFF : 0xFF000000);
        for (int i = 0; i < kCursorSize; ++i) {
            // Beyond it there is only the rim.
            EXPECT_EQ(PixelAt(picture, i, 0) != 0, i == 1) << i;
            EXPECT_EQ(PixelAt(picture, 0, i) != 0, i >= 1 && i <= 17) << i;
        }
    }
}

TEST(CursorPictures, TheFourArrowsAreAlikeAboutTheHotSpot) {
    const CursorPicture picture = DrawCursor(CursorShape::Move, false);
    EXPECT_EQ(PixelAt(picture, picture.hotX, picture.hotY), 0xFFFFC81E);  // the colour of the selection
    for (int y = -11; y <= 11; ++y) {
        for (int x = -11; x <= 11; ++x) {
            EXPECT_EQ(PixelAt(picture, picture.hotX + x, picture.hotY + y),
                      PixelAt(picture, picture.hotX - y, picture.hotY + x));
        }
    }
}

TEST(CursorPictures, TheHandHoldsTheGroundInItsPalm) {
    for (const bool night : { false, true }) {
        const CursorPicture picture = DrawCursor(CursorShape::Hand, night);
        const uint32_t palm = PixelAt(picture, picture.hotX, picture.hotY);
        EXPECT_NE(palm, 0u);
        EXPECT_NE(palm, 0xFF000000);
        EXPECT_NE(palm, 0xFFFFFFFF);
    }
}

TEST(CursorPictures, AtHighResolutionTheyAreAWholeNumberOfTimesLarger) {
    const std::pair<int, int> rows[] = { { 0, 1 },   { 96, 1 },  { 120, 1 }, { 144, 1 },
                                         { 168, 2 }, { 192, 2 }, { 288, 3 }, { 100000, 8 } };
    for (const auto& [dpi, times] : rows) EXPECT_EQ(CursorTimes(dpi), times) << dpi;
    const CursorPicture picture = DrawCursor(CursorShape::Parking, false);
    EXPECT_TRUE(std::ranges::equal(EnlargedPixels(picture, 1), picture.pixels));
    const std::vector<uint32_t> large = EnlargedPixels(picture, 3);
    ASSERT_EQ(large.size(), static_cast<size_t>(9 * kCursorSize * kCursorSize));
    for (int y = 0; y < 3 * kCursorSize; ++y) {
        for (int x = 0; x < 3 * kCursorSize; ++x)
            ASSERT_EQ(large[static_cast<size_t>(y * 3 * kCursorSize + x)], PixelAt(picture, x / 3, y / 3));
    }
}

TEST(CursorPictures, TheHotSpotIsInTheOpenMiddleOfTheCross) {
    const CursorPicture picture = DrawCursor(CursorShape::Node, false);
    const auto at = [&](int x, int y) { return picture.pixels[static_cast<size_t>(y * kCursorSize + x)]; };
    EXPECT_EQ(at(picture.hotX, picture.hotY), 0u);
    for (const int side : { -5, 5 }) {
        EXPECT_EQ(at(picture.hotX + side, picture.hotY), 0xFF000000u);
        EXPECT_EQ(at(picture.hotX, picture.hotY + side), 0xFF000000u);
        EXPECT_EQ(at(picture.hotX + side, picture.hotY + 1), 0xFFFFFFFFu);
    }
}

TEST(CursorPictures, ByNightLinesAreLight) {
    const CursorPicture picture = DrawCursor(CursorShape::Box, true);
    EXPECT_EQ(picture.pixels[static_cast<size_t>(picture.hotY * kCursorSize + picture.hotX + 5)], 0xFFFFFFFFu);
}

}  // namespace
