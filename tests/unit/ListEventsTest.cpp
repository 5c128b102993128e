// When the choice in a list that drops down counts.
#include <gtest/gtest.h>

#include "app/ToolCombos.h"

namespace {

using namespace app;

std::vector<ListResult> Follow(std::initializer_list<std::pair<ListEvent, bool>> events) {
    ListTracker tracker;
    std::vector<ListResult> results;
    for (const auto& [event, open] : events) results.push_back(FollowList(&tracker, event, open));
    return results;
}

using enum ListEvent;
constexpr ListResult kNone = ListResult::None, kChoose = ListResult::Choose, kRestore = ListResult::Restore;
using Results = std::vector<ListResult>;

TEST(ListEvents, AChoiceWithTheMouseIsMadeWhenTheListCloses) {
    EXPECT_EQ(Follow({ { Opened, false }, { Accepted, true }, { Closed, false } }), (Results{ kNone, kNone, kChoose }));
    EXPECT_EQ(Follow({ { Opened, false }, { Accepted, true }, { Moved, true }, { Closed, false } }),
              (Results{ kNone, kNone, kNone, kChoose }));
}

TEST(ListEvents, AChoiceThatIsToldAfterTheListHasClosedIsTakenThen) {
    EXPECT_EQ(Follow({ { Opened, false }, { Accepted, true }, { Closed, false }, { Moved, false } }),
              (Results{ kNone, kNone, kChoose, kChoose }));
}

TEST(ListEvents, GoingThroughAnOpenListChoosesNothingUntilItIsAccepted) {
    EXPECT_EQ(Follow({ { Opened, false }, { Moved, true }, { Moved, true }, { Accepted, true }, { Closed, false } }),
              (Results{ kNone, kNone, kNone, kNone, kChoose }));
    EXPECT_EQ(Follow({ { Opened, false }, { Moved, true }, { Cancelled, true }, { Closed, false } }),
              (Results{ kNone, kNone, kNone, kRestore }));
}

TEST(ListEvents, AStepWithTheListClosedIsAChoice) {
    EXPECT_EQ(Follow({ { Accepted, false }, { Moved, false } }), (Results{ kNone, kChoose }));
    EXPECT_EQ(Follow({ { Moved, false }, { Opened, false }, { Closed, false } }),
              (Results{ kChoose, kNone, kRestore }));
}

}  // namespace
