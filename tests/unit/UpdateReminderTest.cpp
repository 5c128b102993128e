#include "app/UpdateReminder.h"

#include <gtest/gtest.h>

#include "app/Settings.h"
#include "fakes/FakePlatform.h"
#include "fakes/FakeShell.h"

namespace {

constexpr uint64_t kSecond = 10000000, kMonth = 2592000 * kSecond;
constexpr uint64_t kFirstDay = 12717388800 * kSecond;  // 2004-01-01

class UpdateReminderTest : public testing::Test {
protected:
    void SetUp() override { ResetProgram(); }
    void TearDown() override { ResetProgram(); }
    static void StartAfter(uint64_t months) {
        fake.fileTime = kFirstDay + months * kMonth;
        app::RemindOfUpdates();
    }
};

TEST_F(UpdateReminderTest, MonthsAreWholePeriodsOfThirtyDays) {
    EXPECT_EQ(app::MonthsOfAge(0), 0);
    EXPECT_EQ(app::MonthsOfAge(kFirstDay - 1), 0);
    EXPECT_EQ(app::MonthsOfAge(kFirstDay + kMonth - 1), 0);
    EXPECT_EQ(app::MonthsOfAge(kFirstDay + kMonth), 1);
    EXPECT_EQ(app::MonthsOfAge(kFirstDay + 100 * kMonth + 5), 100);
}

TEST_F(UpdateReminderTest, TheFirstMonthBringsItWhenNothingPutsItOff) {
    app::settings.nextUpdateNotice = 0;
    StartAfter(1);
    ASSERT_EQ(fake.messages.size(), 1u);
    EXPECT_EQ(fake.messages[0].icon, platform::Icon::Information);
    EXPECT_EQ(fake.messages[0].buttons, platform::Buttons::Ok);
    EXPECT_EQ(fake.messages[0].text.find("INFORMATION: This version of Tarvo is 1 months old.\n"
                                         "There is probably an updated version available by now.\n"),
              0u);
    EXPECT_EQ(app::settings.nextUpdateNotice, 3);
}

TEST_F(UpdateReminderTest, BeforeTheFirstMonthItNeverComes) {
    app::settings.nextUpdateNotice = 0;
    StartAfter(0);
    fake.fileTime = 0;  // a clock that was never set
    app::RemindOfUpdates();
    EXPECT_TRUE(fake.messages.empty());
    EXPECT_EQ(app::settings.nextUpdateNotice, 0);
}

TEST_F(UpdateReminderTest, ItReturnsEveryTwoMonths) {
    StartAfter(2);
    EXPECT_EQ(fake.messages.size(), 0u);
    StartAfter(3);  // the stock setting
    EXPECT_EQ(fake.messages.size(), 1u);
    StartAfter(3);
    StartAfter(4);
    EXPECT_EQ(fake.messages.size(), 1u);
    StartAfter(5);
    EXPECT_EQ(fake.messages.size(), 2u);
    EXPECT_EQ(app::settings.nextUpdateNotice, 7);
}

}  // namespace
