// RecentAirportsTest.cpp - the airports at the end of the File menu.
#include <string>
#include <vector>

#include "OpenAirportSteps.h"
#include "UiFiles.h"

namespace ui {

class RecentAirportsTest : public OpenAirportFixture {};

TEST_F(RecentAirportsTest, OpenedAirportsComeToTheTopOfTheFileMenu) {
    Start();
    for (const wchar_t* ident : { L"KSEA", L"CYYJ", L"KSEA" }) {
        ASSERT_NO_FATAL_FAILURE(OpenByIdent(ident));
    }
    EXPECT_EQ(RecentTexts(), (std::vector<std::wstring>{ L"&1  KSEA", L"&2  CYYJ" }));
    PostCommand(mainWindow, IDM_RECENT_FIRST + 1);
    EXPECT_TRUE(WaitForTitle(L"Tarvo    CYYJ")) << Utf8(Title());
    EXPECT_EQ(RecentTexts(), (std::vector<std::wstring>{ L"&1  CYYJ", L"&2  KSEA" }));
    EXPECT_FALSE(IsGreyed(IDM_RECENT_FIRST));
}

TEST_F(RecentAirportsTest, RecentAirportsAreThereAfterARestart) {
    Start();
    ASSERT_NO_FATAL_FAILURE(OpenByIdent(L"CYYJ"));
    EXPECT_EQ(CloseProgram(), 0u);
    DetachAgent(&agent);
    EndProgram(&program);
    Start(L"", nullptr);
    EXPECT_EQ(RecentTexts(), std::vector<std::wstring>{ L"&1  CYYJ" });
    PostCommand(mainWindow, IDM_RECENT_FIRST);
    EXPECT_TRUE(WaitForTitle(L"Tarvo    CYYJ")) << Utf8(Title());
}

TEST_F(RecentAirportsTest, APathThatASettingsFileOf8BitsCannotHoldIsThereAfterARestart) {
    const SampleAirport sample = FindSample("hub");
    const std::wstring name = L"Flugh\u00E4fen \u6771\u4EAC.bgl";
    const std::wstring file = PutAddOn(sample.path, name.c_str());
    Start(L"\"" + file + L"\" " + sample.ident, "[General]\r\nNextUpdateNotice=9999\r\nMine=7\r\n");
    ASSERT_TRUE(WaitForTitle(L"( file " + name + L" )")) << Utf8(Title());
    EXPECT_EQ(CloseProgram(), 0u);
    const std::string bytes = BytesOf(kSettingsFile);
    EXPECT_EQ(bytes.substr(0, 2), "\xFF\xFE");
    EXPECT_NE(bytes.find(std::string("M\0i\0n\0e\0=\0007\0", 12)), std::string::npos) << "a key of others is lost";
    DetachAgent(&agent);
    EndProgram(&program);
    Start(L"", nullptr);
    PostCommand(mainWindow, IDM_RECENT_FIRST);
    EXPECT_TRUE(WaitForTitle(L"( file " + name + L" )")) << Utf8(Title());
}

TEST_F(RecentAirportsTest, ARecentAirportThatItsFileDoesNotHoldAnyMoreLeavesNoneOpen) {
    const SampleAirport sample = FindSample("hub");
    const std::wstring file = PutAddOn(sample.path, L"changed.bgl");
    Start();
    for (const wchar_t* ident : { L"KSEA", L"CYYJ" }) {
        ASSERT_NO_FATAL_FAILURE(OpenByIdent(ident));
    }
    PutAddOn(std::wstring(kSimulatorFolder) + L"\\Scenery\\Namw\\Scenery\\AP916120.bgl", L"changed.bgl");
    PostCommand(mainWindow, IDM_RECENT_FIRST + 1);
    const Box box = MessageBoxUp();
    EXPECT_EQ(box.text, L"Selected file  " + file + L"  does not contain airport KSEA");
    Answer(box, IDOK);
    EXPECT_EQ(Title(), L"Tarvo        ");
    EXPECT_TRUE(IsGreyed(IDM_SAVE));
}

TEST_F(RecentAirportsTest, ARecentAirportWhoseFileHasGoneIsNamedAndTheOpenOneStays) {
    const SampleAirport sample = FindSample("hub");
    const std::wstring file = PutAddOn(sample.path, L"gone.bgl");
    Start();
    for (const wchar_t* ident : { L"KSEA", L"CYYJ" }) {
        ASSERT_NO_FATAL_FAILURE(OpenByIdent(ident));
    }
    ASSERT_TRUE(DeleteFileW(file.c_str()));
    PostCommand(mainWindow, IDM_RECENT_FIRST + 1);
    const Box box = MessageBoxUp();
    EXPECT_EQ(box.text, L"Unable to open file \"" + file + L"\"");
    Answer(box, IDOK);
    EXPECT_NE(Title().find(L"CYYJ"), std::wstring::npos) << Utf8(Title());
    EXPECT_FALSE(IsGreyed(IDM_SAVE));
}

}  // namespace ui
