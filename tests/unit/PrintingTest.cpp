#include "app/Printing.h"

#include <gtest/gtest.h>

#include "fakes/FakePlatform.h"
#include "fakes/FakePrinter.h"
#include "fakes/FakeShell.h"

namespace {

using app::PrintStep;
using Steps = std::vector<std::string>;

class PrintingTest : public testing::Test {
protected:
    void SetUp() override { ResetProgram(); }
    void TearDown() override {
        EXPECT_FALSE(fakePrinter.open) << "the printer is not released";
        EXPECT_FALSE(fakePrinter.underWay) << "the main window stays disabled";
        ResetProgram();
    }

    // The steps from the answer of the print dialog on.
    static Steps StepsOfPrinting() {
        app::Print();
        Steps steps = fakePrinter.steps;
        EXPECT_EQ(Steps(steps.begin(), steps.begin() + 2), (Steps{ "LearnPaper", "AskPrinter" }));
        steps.erase(steps.begin(), steps.begin() + 2);
        return steps;
    }
    // Those of the document: around them the main window is disabled, and after them the printer is released.
    static Steps StepsOfDocument() {
        const Steps steps = StepsOfPrinting();
        if (steps.size() < 3) return { "(no document)" };
        EXPECT_EQ(steps.front(), "Disable");
        EXPECT_EQ(Steps(steps.end() - 2, steps.end()), (Steps{ "Enable", "ReleasePrinter" }));
        return { steps.begin() + 1, steps.end() - 2 };
    }
    static std::string OnlyMessage() { return fake.messages.size() == 1 ? fake.messages[0].text : "(not one)"; }
};

TEST_F(PrintingTest, ThePageIsADocumentOfItsOwn) {
    EXPECT_EQ(StepsOfDocument(), (Steps{ "BeginDocument", "BeginPage", "DrawPage", "FinishPage", "FinishDocument" }));
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(PrintingTest, ACancelledDialogPrintsNothing) {
    fakePrinter.asked = PrintStep::Cancelled;
    EXPECT_EQ(StepsOfPrinting(), Steps{});
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(PrintingTest, APrinterThatIsGoneIsToldAndForgotten) {
    fakePrinter.asked = PrintStep::Failed;
    EXPECT_EQ(StepsOfPrinting(), Steps{ "ForgetPrinter" });
    EXPECT_EQ(OnlyMessage(), "ERROR: The printer cannot be used.");
}

TEST_F(PrintingTest, ADocumentThatCannotBeBegunEndsThereInSilence) {
    fakePrinter.documentBegins = false;
    EXPECT_EQ(StepsOfDocument(), Steps{ "BeginDocument" });
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(PrintingTest, WhenThePageCannotBeBegunTheDocumentEndsWithoutOne) {
    fakePrinter.pageBegins = false;
    EXPECT_EQ(StepsOfDocument(), (Steps{ "BeginDocument", "BeginPage", "FinishDocument" }));
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(PrintingTest, APageThatFailsIsThrownAwayAndTold) {
    fakePrinter.pageEnd = PrintStep::Failed;
    EXPECT_EQ(StepsOfDocument(), (Steps{ "BeginDocument", "BeginPage", "DrawPage", "FinishPage", "DropDocument" }));
    EXPECT_EQ(OnlyMessage(), "ERROR: The map could not be printed.");
}

TEST_F(PrintingTest, ADocumentThatFailsAtItsEndIsToldToo) {
    fakePrinter.documentEnd = PrintStep::Failed;
    EXPECT_EQ(StepsOfDocument(),
              (Steps{ "BeginDocument", "BeginPage", "DrawPage", "FinishPage", "FinishDocument", "DropDocument" }));
    EXPECT_EQ(OnlyMessage(), "ERROR: The map could not be printed.");
}

TEST_F(PrintingTest, WhatTheUserCancelsMeanwhileIsThrownAwayInSilence) {
    fakePrinter.pageEnd = PrintStep::Cancelled;
    EXPECT_EQ(StepsOfDocument().back(), "DropDocument");
    EXPECT_TRUE(fake.messages.empty());
}

}  // namespace
