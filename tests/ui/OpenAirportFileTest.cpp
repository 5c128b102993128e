// OpenAirportFileTest.cpp - the Open Airport dialog over a single file.
#include <string>
#include <vector>

#include "OpenAirportSteps.h"

namespace ui {

class OpenAirportFileTest : public OpenAirportFixture {};

TEST_F(OpenAirportFileTest, ASingleFileShowsItsAirportsAndIsRemembered) {
    const SampleAirport sample = FindSample("hub");
    Start();
    ASSERT_NO_FATAL_FAILURE(OpenFilledDialog());
    Search(L"K");
    PressButton(dialog, IDC_SPECIFIC_FILE);
    EXPECT_TRUE(WaitUntil([&] { return IsWindowEnabled(ChildWithId(dialog, IDC_OPEN_FILE)) != 0; }));
    EXPECT_TRUE(WaitUntil([&] { return ListRows(airports) == 0; }));
    ASSERT_NO_FATAL_FAILURE(ChooseFile(sample.path));
    ASSERT_TRUE(WaitUntil([&] { return NextTreeItem(places, TVGN_ROOT) != nullptr; }));
    EXPECT_EQ(TextOf(ChildWithId(dialog, IDC_FILE_NAME)), sample.path);
    Search(L"CYYJ");
    EXPECT_EQ(ListRows(airports), 0) << "it lies in another file";
    CloseDialog(dialog, IDCANCEL);
    ASSERT_NO_FATAL_FAILURE(OpenFilledDialog());
    EXPECT_EQ(SendMessageW(ChildWithId(dialog, IDC_SPECIFIC_FILE), BM_GETCHECK, 0, 0), BST_CHECKED);
    EXPECT_EQ(TextOf(ChildWithId(dialog, IDC_FILE_NAME)), sample.path);
    Search(sample.ident);
    ASSERT_EQ(ListRows(airports), 1);
    PressButton(dialog, IDC_ALL_SCENERY);
    EXPECT_TRUE(WaitUntil([&] { return ListRows(airports) == 0; }));
    EXPECT_TRUE(WaitUntil([&] { return Item(nullptr, L"Canada") != nullptr; }));
    EXPECT_FALSE(IsWindowEnabled(ChildWithId(dialog, IDC_OPEN_FILE)));
}

TEST_F(OpenAirportFileTest, SwitchingToASingleFileEmptiesTheDialogUntilOneIsOpened) {
    const SampleAirport sample = FindSample("hub");
    Start();
    ASSERT_NO_FATAL_FAILURE(OpenFilledDialog());
    PressButton(dialog, IDC_SPECIFIC_FILE);
    ASSERT_TRUE(WaitUntil([&] { return IsWindowEnabled(ChildWithId(dialog, IDC_OPEN_FILE)) != 0; }));
    ASSERT_NO_FATAL_FAILURE(ChooseFile(sample.path));
    ASSERT_TRUE(WaitUntil([&] { return NextTreeItem(places, TVGN_ROOT) != nullptr; }));
    PressButton(dialog, IDC_ALL_SCENERY);
    ASSERT_TRUE(WaitUntil([&] { return Item(nullptr, L"Canada") != nullptr; }));
    Search(sample.ident);
    ASSERT_EQ(ListRows(airports), 1);
    PressButton(dialog, IDC_SPECIFIC_FILE);
    SettlePosted(agent);
    EXPECT_EQ(ListRows(airports), 0);
    EXPECT_EQ(NextTreeItem(places, TVGN_ROOT), nullptr);
    EXPECT_EQ(TextOf(ChildWithId(dialog, IDC_FILE_NAME)), sample.path);
    Search(sample.ident);
    EXPECT_EQ(ListRows(airports), 0);
}

TEST_F(OpenAirportFileTest, ASingleFileIsRefusedWithItsReason) {
    const SampleAirport sample = FindSample("hub");
    const std::wstring text = PutText(L"text.bgl", "no scenery at all, but long enough to be taken for a header");
    const std::wstring none = sample.path.substr(0, sample.path.find_last_of(L'\\')) + L"\\nv9Namw0.bgl";
    const std::wstring held = PutAddOn(sample.path, L"held.bgl");
    Start();
    ASSERT_NO_FATAL_FAILURE(OpenFilledDialog());
    PressButton(dialog, IDC_SPECIFIC_FILE);
    ASSERT_TRUE(WaitUntil([&] { return IsWindowEnabled(ChildWithId(dialog, IDC_OPEN_FILE)) != 0; }));
    ExpectRefusal(text, L"Selected file  " + text + L"  is not in recognised AFD format");
    ASSERT_NE(GetFileAttributesW(none.c_str()), INVALID_FILE_ATTRIBUTES);
    ExpectRefusal(none, L"Selected file  " + none + L"  does not contain any airports");
    const HANDLE lock = CreateFileW(held.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(lock, INVALID_HANDLE_VALUE);
    ExpectRefusal(held, L"Unable to open file \"" + held + L"\"");
    CloseHandle(lock);
    ASSERT_NO_FATAL_FAILURE(ChooseFile(held));
    EXPECT_TRUE(WaitUntil([&] { return NextTreeItem(places, TVGN_ROOT) != nullptr; }));
}

TEST_F(OpenAirportFileTest, TheFolderOfTheFileChosenLastIsShownFirstAlsoThatOfADrive) {
    const std::wstring file = L"C:\\root.bgl";
    placed.push_back(file);
    ASSERT_TRUE(CopyFileW(FindSample("hub").path.c_str(), file.c_str(), FALSE));
    Start();
    ASSERT_NO_FATAL_FAILURE(OpenFilledDialog());
    PressButton(dialog, IDC_SPECIFIC_FILE);
    ASSERT_TRUE(WaitUntil([&] { return IsWindowEnabled(ChildWithId(dialog, IDC_OPEN_FILE)) != 0; }));
    for (const wchar_t* name : { file.c_str(), L"root.bgl" }) {
        ASSERT_NO_FATAL_FAILURE(ChooseFile(name)) << Utf8(name);
        EXPECT_TRUE(WaitUntil([&] { return NextTreeItem(places, TVGN_ROOT) != nullptr; }));
        EXPECT_EQ(TextOf(ChildWithId(dialog, IDC_FILE_NAME)), file);
    }
}

TEST_F(OpenAirportFileTest, WithoutASimulatorTheLibraryIsEmptyAndSingleFilesOpen) {
    const SampleAirport sample = FindSample("hub");
    Start(L"", "[General]\r\nNextUpdateNotice=9999\r\nOverrideFSFolder=C:\\UiTest\\None\r\n");
    ASSERT_NO_FATAL_FAILURE(OpenDialog());
    ASSERT_NO_FATAL_FAILURE(WaitForCollection());
    EXPECT_EQ(NextTreeItem(places, TVGN_ROOT), nullptr);
    PressButton(dialog, IDC_SPECIFIC_FILE);
    ASSERT_TRUE(WaitUntil([&] { return IsWindowEnabled(ChildWithId(dialog, IDC_OPEN_FILE)) != 0; }));
    ASSERT_NO_FATAL_FAILURE(ChooseFile(sample.path));
    ASSERT_TRUE(WaitUntil([&] { return NextTreeItem(places, TVGN_ROOT) != nullptr; }));
    SetText(field, sample.ident);
    PressButton(dialog, IDOK);
    ExpectOpened(sample.ident);
}

}  // namespace ui
