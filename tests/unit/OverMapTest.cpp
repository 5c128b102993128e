#include "dialogs/OverMap.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

class OverMapTest : public testing::Test {
protected:
    void SetUp() override {
        dialogs::overMap = { true, [this](model::LatLon at) { ++clicks, clicked = at; } };
    }
    void TearDown() override { dialogs::overMap = {}; }

    int clicks = 0;
    model::LatLon clicked;
};

TEST_F(OverMapTest, AClickBeyondAPoleIsTakenAndPlacesNothing) {
    for (const double latitude : { 1.6, -1.6, 1e30, std::numeric_limits<double>::quiet_NaN() })
        EXPECT_TRUE(dialogs::TakeMapClick({ latitude, 1 }));
    EXPECT_EQ(clicks, 0);
    EXPECT_TRUE(dialogs::TakeMapClick({ 1.5, 1 }));
    EXPECT_EQ(clicks, 1);
}

TEST_F(OverMapTest, AClickBeyondThe180thMeridianIsBroughtWithinHalfATurn) {
    EXPECT_TRUE(dialogs::TakeMapClick({ 0.5, model::kPi + 0.25 }));
    EXPECT_NEAR(clicked.lon, 0.25 - model::kPi, 1e-12);
}

}  // namespace
