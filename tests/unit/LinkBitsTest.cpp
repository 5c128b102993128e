#include "model/LinkBits.h"

#include <gtest/gtest.h>

namespace {

using namespace model;

TEST(LinkBits, EachSideHasTwoBitsForItsEdgeLine) {
    constexpr EdgeLine kLines[] = { EdgeLine::None, EdgeLine::Solid, EdgeLine::Dashed, EdgeLine::SolidAndDashed };
    for (uint32_t code = 0; code < 4; ++code) {
        EXPECT_EQ(EdgeLineOf(code << 18, LinkSide::Left), kLines[code]);
        EXPECT_EQ(EdgeLineOf(code << 18, LinkSide::Right), EdgeLine::None);
        EXPECT_EQ(EdgeLineOf(code << 21, LinkSide::Right), kLines[code]);
        EXPECT_EQ(EdgeLineOf(code << 21, LinkSide::Left), EdgeLine::None);
    }
}

TEST(LinkBits, AnEdgeLineIsExchangedWithoutTouchingOtherBits) {
    for (uint32_t code = 0; code < 4; ++code) {
        const auto line = static_cast<EdgeLine>(code);
        EXPECT_EQ(WithEdgeLine(0xFFFFFFFF, LinkSide::Left, line), 0xFFF3FFFF | code << 18);
        EXPECT_EQ(WithEdgeLine(0xFFFFFFFF, LinkSide::Right, line), 0xFF9FFFFF | code << 21);
        EXPECT_EQ(WithEdgeLine(0, LinkSide::Left, line), code << 18);
        EXPECT_EQ(WithEdgeLine(0, LinkSide::Right, line), code << 21);
    }
}

TEST(LinkBits, LinesAndLightsFillTheThirdByte) {
    uint32_t bits = kLinkCentreLine | kLinkCentreLights | kLinkLeftLights | kLinkRightLights;
    EXPECT_EQ(bits, 0x930000u);
    bits = WithEdgeLine(bits, LinkSide::Left, EdgeLine::SolidAndDashed);
    EXPECT_EQ(WithEdgeLine(bits, LinkSide::Right, EdgeLine::SolidAndDashed), kLinkLinesAndLights);
}

}  // namespace
