#include "app/ToolHint.h"

#include <gtest/gtest.h>

#include "app/AppState.h"
#include "app/Commands.h"
#include "app/Notices.h"
#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "fakes/FakeShell.h"
#include "map/Tools.h"
#include "model/ObjectList.h"
#include "Resource.h"

namespace {

class ToolHintTest : public testing::Test {
protected:
    void SetUp() override { ResetProgram(); }
    void TearDown() override { ResetProgram(); }

    static void OpenAirport() {
        model::state.airport = build::Airport("KTST");
        model::state.loaded = true;
    }
};

TEST_F(ToolHintTest, WithoutAnAirportItTellsHowToBegin) {
    app::ShowToolHint();
    EXPECT_NE(fakeShell.notice.find("Open Airport"), std::string::npos) << fakeShell.notice;
}

TEST_F(ToolHintTest, ChoosingAToolTellsHowItWorksAndThePointerNothing) {
    OpenAirport();
    app::RunCommand(IDT_APRON);
    EXPECT_NE(fakeShell.notice.find("Enter closes"), std::string::npos) << fakeShell.notice;
    app::RunCommand(IDT_NORMAL_LINK);
    EXPECT_NE(fakeShell.notice.find("pull"), std::string::npos) << fakeShell.notice;
    app::RunCommand(IDT_POINTER);
    EXPECT_EQ(fakeShell.notice, "");
}

TEST_F(ToolHintTest, EveryToolButThePointerHasOne) {
    OpenAirport();
    for (int tool = 1; tool <= static_cast<int>(map::Tool::Guidelines); ++tool) {
        map::tools.toolMode = static_cast<map::Tool>(tool);
        EXPECT_NE(app::ToolHint(), "") << tool;
    }
}

TEST_F(ToolHintTest, WhatElseIsToBeToldGoesFirst) {
    OpenAirport();
    app::RunCommand(IDT_PARKING);
    app::SetNotice(app::Notice::Pointer, "Gate 1");
    EXPECT_EQ(app::NoticeText(), "Gate 1");
    app::SetNotice(app::Notice::Pointer, "");
    EXPECT_EQ(app::NoticeText(), app::ToolHint());
}

}  // namespace
