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
        app::PrintAirportMap();
        Steps steps = fakePrinter.steps;
        EXPECT_EQ(Steps(steps.begin(), steps.begin() + 2), (Steps{ "LearnPaper", "AskPrinter" }));
        steps.erase(steps.begin(), steps.begin() + 2);
        return steps;
    }
    static std::string OnlyMessage() { return fake.messages.size() == 1 ? fake.messages[0].text : "(not one)"; }
};

TEST_F(PrintingTest, ThePageIsADocumentOfItsOwn) {
    EXPECT_EQ(StepsOfPrinting(),
              (Steps{ "BeginDocument", "BeginPage", "DrawPage", "FinishPage", "FinishDocument", "ReleasePrinter" }));
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
    EXPECT_EQ(StepsOfPrinting(), (Steps{ "BeginDocument", "ReleasePrinter" }));
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(PrintingTest, WhenThePageCannotBeBegunTheDocumentEndsWithoutOne) {
    fakePrinter.pageBegins = false;
    EXPECT_EQ(StepsOfPrinting(), (Steps{ "BeginDocument", "BeginPage", "FinishDocument", "ReleasePrinter" }));
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(PrintingTest, APageThatFailsIsThrownAwayAndTold) {
    fakePrinter.pageEnd = PrintStep::Failed;
    EXPECT_EQ(StepsOfPrinting(),
              (Steps{ "BeginDocument", "BeginPage", "DrawPage", "FinishPage", "DropDocument", "ReleasePrinter" }));
    EXPECT_EQ(OnlyMessage(), "ERROR: The map could not be printed.");
}

TEST_F(PrintingTest, ADocumentThatFailsAtItsEndIsToldToo) {
    fakePrinter.documentEnd = PrintStep::Failed;
    EXPECT_EQ(StepsOfPrinting(), (Steps{ "BeginDocument", "BeginPage", "DrawPage", "FinishPage", "FinishDocument",
                                         "DropDocument", "ReleasePrinter" }));
    EXPECT_EQ(OnlyMessage(), "ERROR: The map could not be printed.");
}

TEST_F(PrintingTest, WhatTheUserCancelsMeanwhileIsThrownAwayInSilence) {
    fakePrinter.pageEnd = PrintStep::Cancelled;
    EXPECT_EQ(StepsOfPrinting()[4], "DropDocument");
    EXPECT_TRUE(fake.messages.empty());
}

}  // namespace
