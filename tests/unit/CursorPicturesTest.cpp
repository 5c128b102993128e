#include "app/CursorPictures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace {

using namespace app;
using map::CursorShape;

TEST(CursorPictures, TheArrowHandAndMoveAreTheSystemsOwn) {
    int own = 0;
    for (int i = 0; i < map::kCursorShapes; ++i) own += HasCursorPicture(static_cast<CursorShape>(i));
    EXPECT_EQ(own, map::kCursorShapes - 3);
    for (const CursorShape shape : { CursorShape::Arrow, CursorShape::Hand, CursorShape::Move })
        EXPECT_FALSE(HasCursorPicture(shape));
}

TEST(CursorPictures, EveryPictureIsAnotherOneByDayAndByNight) {
    std::set<std::array<uint32_t, kCursorSize * kCursorSize>> seen;
    int count = 0;
    for (int i = 0; i < map::kCursorShapes; ++i) {
        const auto shape = static_cast<CursorShape>(i);
        if (!HasCursorPicture(shape)) continue;
        for (const bool night : { false, true }) {
            seen.insert(DrawCursor(shape, night).pixels);
            ++count;
        }
    }
    EXPECT_EQ(seen.size(), static_cast<size_t>(count));
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
