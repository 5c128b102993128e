#include "platform/Platform.h"

#include <gtest/gtest.h>

#include "fakes/FakePlatform.h"

namespace {

using platform::Buttons;
using platform::Icon;

class Messages : public testing::Test {
    void SetUp() override { ResetFakes(); }
};

TEST_F(Messages, ARefusalHasOkAloneAndTheExclamationMark) {
    EXPECT_FALSE(platform::ShowRefusal("Not this one"));
    ASSERT_EQ(fake.messages.size(), 1u);
    EXPECT_EQ(fake.messages[0].text, "Not this one");
    EXPECT_EQ(fake.messages[0].buttons, Buttons::Ok);
    EXPECT_EQ(fake.messages[0].icon, Icon::Exclamation);
}

TEST_F(Messages, AnErrorIsARefusalThatSaysSo) {
    EXPECT_FALSE(platform::ShowError("Not this one"));
    ASSERT_EQ(fake.messages.size(), 1u);
    EXPECT_EQ(fake.messages[0].text, "ERROR: Not this one");
    EXPECT_EQ(fake.messages[0].buttons, Buttons::Ok);
    EXPECT_EQ(fake.messages[0].icon, Icon::Exclamation);
}

}  // namespace
