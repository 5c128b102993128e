#include "app/HelpPage.h"

#include <gtest/gtest.h>

#include "app/AppState.h"
#include "fakes/FakeShell.h"
#include "fakes/TestLibrary.h"

namespace {

using app::BrowserCommand;
using app::FileUrl;

TEST(HelpPageTest, ThePageLiesInTheProgramFolder) { EXPECT_EQ(app::HelpFile("C:\\Tarvo"), "C:\\Tarvo\\ReadMe.htm"); }

TEST(HelpPageTest, ATopicIsTheFragmentOfTheUrl) {
    EXPECT_EQ(FileUrl("C:\\Tarvo\\ReadMe.htm", "#Options"), "file:///C:/Tarvo/ReadMe.htm#Options");
    EXPECT_EQ(FileUrl("C:\\Tarvo\\ReadMe.htm", "Options"), "file:///C:/Tarvo/ReadMe.htm#Options");
    EXPECT_EQ(FileUrl("C:\\Tarvo\\ReadMe.htm", ""), "file:///C:/Tarvo/ReadMe.htm");
    EXPECT_EQ(FileUrl("C:\\Tarvo\\ReadMe.htm", "#"), "file:///C:/Tarvo/ReadMe.htm");
}

TEST(HelpPageTest, WhatHasAMeaningInUrlsIsEncoded) {
    EXPECT_EQ(FileUrl("D:\\Program Files (x86)\\Tarvo\\a.htm", "#X"),
              "file:///D:/Program%20Files%20%28x86%29/Tarvo/a.htm#X");
    EXPECT_EQ(FileUrl("C:\\C#\\100%\\a.htm", "#X"), "file:///C:/C%23/100%25/a.htm#X");
    EXPECT_EQ(FileUrl("C:\\%20\\a;b&c=d'e!f.htm", ""), "file:///C:/%2520/a%3Bb%26c%3Dd%27e%21f.htm");
    EXPECT_EQ(FileUrl("C:\\a-b_c.d~e\\f.htm", ""), "file:///C:/a-b_c.d~e/f.htm");
}

TEST(HelpPageTest, LettersBeyondAsciiAreEncodedAsUtf8) {
    EXPECT_EQ(FileUrl("C:\\Z\xC3\xBCrich\\\xE6\x97\xA5\xF0\x9F\x9B\xAB\\a.htm", "#X"),
              "file:///C:/Z%C3%BCrich/%E6%97%A5%F0%9F%9B%AB/a.htm#X");
}

TEST(HelpPageTest, AFolderOfAServerNamesTheServer) {
    EXPECT_EQ(FileUrl("\\\\nas\\our tools\\ReadMe.htm", "#X"), "file://nas/our%20tools/ReadMe.htm#X");
}

TEST(HelpPageTest, TheMarkOfLongPathsIsLeftOut) {
    EXPECT_EQ(FileUrl("\\\\?\\C:\\Tarvo\\a.htm", "#X"), "file:///C:/Tarvo/a.htm#X");
    EXPECT_EQ(FileUrl("\\\\?\\UNC\\nas\\tools\\a.htm", "#X"), "file://nas/tools/a.htm#X");
}

TEST(HelpPageTest, TheUrlTakesItsPlaceInTheBrowsersCommand) {
    const std::string url = "file:///C:/a.htm#X";
    EXPECT_EQ(BrowserCommand("\"C:\\b.exe\" -osint -url \"%1\"", url),
              "\"C:\\b.exe\" -osint -url \"file:///C:/a.htm#X\"");
    EXPECT_EQ(BrowserCommand("\"C:\\b.exe\" --single-argument %1", url),
              "\"C:\\b.exe\" --single-argument file:///C:/a.htm#X");
    EXPECT_EQ(BrowserCommand("b.exe \"%L\"", url), "b.exe \"file:///C:/a.htm#X\"");
    EXPECT_EQ(BrowserCommand("b.exe %l -x", url), "b.exe file:///C:/a.htm#X -x");
}

TEST(HelpPageTest, ACommandWithoutAPlaceGetsTheUrlAtItsEnd) {
    EXPECT_EQ(BrowserCommand("\"C:\\b.exe\" -nohome", "file:///C:/a.htm"),
              "\"C:\\b.exe\" -nohome \"file:///C:/a.htm\"");
}

TEST(HelpPageTest, TheUrlIsNotTakenForAPlaceItself) {
    EXPECT_EQ(BrowserCommand("b.exe \"%1\"", "file:///C:/%1C%L.htm"), "b.exe \"file:///C:/%1C%L.htm\"");
}

TEST(HelpPageTest, WithoutABrowserThereIsNoCommand) { EXPECT_EQ(BrowserCommand("", "file:///C:/a.htm"), ""); }

// What opens the page.

using Commands = std::vector<std::string>;

class OpenHelpTest : public testing::Test {
protected:
    OpenHelpTest() {
        ResetProgram();
        app::state.programFolder = files.program;
        files.PutCache("ReadMe.htm", "<h1>Manual</h1>");
    }
    ~OpenHelpTest() override { ResetProgram(); }

    std::string Page() const { return app::HelpFile(files.program); }
    std::string Url() const { return FileUrl(Page(), "#Options"); }

    TestLibrary files;
};

TEST_F(OpenHelpTest, TheBrowserForWebAddressesIsAskedFirstAndGetsTheTopic) {
    fakeShell.registeredCommands = { { "http", "web.exe %1" }, { ".htm", "page.exe %1" } };
    app::OpenHelp("#Options");
    EXPECT_EQ(fakeShell.startedCommands, Commands{ "web.exe " + Url() });
    EXPECT_TRUE(fakeShell.documents.empty());
}

TEST_F(OpenHelpTest, WithoutItTheProgramForPagesIsAsked) {
    fakeShell.registeredCommands = { { ".htm", "page.exe %1" } };
    app::OpenHelp("#Options");
    EXPECT_EQ(fakeShell.startedCommands, Commands{ "page.exe " + Url() });
    EXPECT_TRUE(fakeShell.documents.empty());
}

TEST_F(OpenHelpTest, WhenNeitherStartsTheShellOpensThePage) {
    fakeShell.registeredCommands = { { "http", "web.exe %1" }, { ".htm", "page.exe %1" } };
    fakeShell.commandsStart = false;
    app::OpenHelp("#Options");
    EXPECT_EQ(fakeShell.startedCommands, (Commands{ "web.exe " + Url(), "page.exe " + Url() }));
    EXPECT_EQ(fakeShell.documents, Commands{ Page() });
}

TEST_F(OpenHelpTest, WithNothingRegisteredTheShellOpensThePage) {
    app::OpenHelp("#Options");
    EXPECT_TRUE(fakeShell.startedCommands.empty());
    EXPECT_EQ(fakeShell.documents, Commands{ Page() });
}

TEST_F(OpenHelpTest, WithoutThePageNothingIsStarted) {
    fakeShell.registeredCommands = { { "http", "web.exe %1" } };
    app::state.programFolder = files.simulator;
    app::OpenHelp("#Options");
    EXPECT_TRUE(fakeShell.startedCommands.empty());
    EXPECT_TRUE(fakeShell.documents.empty());
}

}  // namespace
