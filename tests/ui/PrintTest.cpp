// PrintTest.cpp - page setup and printing, on a printer that writes its pages to a file.
#include <memory>

#include "PageSetupIds.h"
#include "ProgramParts.h"
#include "Resource.h"
#include "TestPrinter.h"
#include "UiHarness.h"

namespace ui {

constexpr wchar_t kPrintFolder[] = L"C:\\UiTest\\Print";
constexpr wchar_t kSetupTitle[] = L"Page Setup", kPrintTitle[] = L"Print";

int Count(const std::string& text, const std::string& part) {
    int count = 0;
    for (size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size())) ++count;
    return count;
}

class PrintTest : public UiTest {
protected:
    void StartWithPrinter() {
        CreateDirectoryW(kPrintFolder, nullptr);
        printer = std::make_unique<TestPrinter>(kPrintFolder);
        ASSERT_TRUE(printer->IsThere()) << "no printer can be declared";
        ASSERT_NO_FATAL_FAILURE(StartWithSample("hub"));
    }
    void TearDown() override {
        UiTest::TearDown();
        printer.reset();
    }

    // What the printer got when the print dialog was answered with OK.
    std::string PrintWith(UINT command) {
        printer->Forget();
        PostCommand(mainWindow, command);
        const HWND dialog = Dialog(kPrintTitle);
        if (!dialog) return {};
        CloseDialog(dialog, IDOK);
        std::string document;
        EXPECT_TRUE(WaitUntil([&] { return (document = printer->Document()).find("%%EOF") != std::string::npos; }))
            << "the page does not arrive";
        EXPECT_TRUE(WaitUntil([&] { return IsWindowEnabled(mainWindow) != FALSE; }));
        return document;
    }
    HWND OpenSetup() {
        PostCommand(mainWindow, IDM_PAGE_SETUP);
        return Dialog(kSetupTitle);
    }
    static bool IsChecked(HWND dialog, int control) {
        return SendMessageW(GetDlgItem(dialog, control), BM_GETCHECK, 0, 0) == BST_CHECKED;
    }
    static void Tick(HWND dialog, int control) { SendMessageW(GetDlgItem(dialog, control), BM_CLICK, 0, 0); }
    static std::wstring Scale(HWND dialog) { return TextOf(GetDlgItem(dialog, IDC_PRINT_SCALE)); }
    // As if typed: the field knows that it was the user.
    static void TypeScale(HWND dialog, const wchar_t* text) {
        const HWND field = GetDlgItem(dialog, IDC_PRINT_SCALE);
        SendMessageW(field, EM_SETSEL, 0, -1);
        SendMessageW(field, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text));
    }
    // Into the field, and out of it by the Tab key.
    void TypeScaleAndLeave(HWND dialog, const wchar_t* text) {
        const HWND field = GetDlgItem(dialog, IDC_PRINT_SCALE);
        PostMessageW(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(field), TRUE);
        ASSERT_TRUE(WaitUntil([&] { return FocusOf(agent) == field; }));
        TypeScale(dialog, text);
        PostKey(field, VK_TAB);
        ASSERT_TRUE(WaitUntil([&] { return FocusOf(agent) != field; }));
    }

    std::unique_ptr<TestPrinter> printer;
};

TEST_F(PrintTest, WithoutAnAirportThereIsNothingToPrint) {
    Start();
    EXPECT_TRUE(IsGreyed(IDM_PRINT));
    EXPECT_TRUE(IsGreyed(IDM_PAGE_SETUP));
    EXPECT_EQ(ToolButtonState(ToolbarOf(mainWindow), IDT_PRINT), 0);
}

TEST_F(PrintTest, TheMapIsPrintedOnOnePageAndStaysOnTheScreen) {
    StartWithPrinter();
    const Picture before = GrabMap(mainWindow);
    const std::string document = PrintWith(IDM_PRINT);
    EXPECT_NE(document.find("%%Title: Tarvo Airport Printout"), std::string::npos);
    EXPECT_EQ(Count(document, "%%Page:"), 1);
    EXPECT_GT(Count(document, "setrgbcolor"), 20) << "the page is empty";
    EXPECT_EQ(GrabMap(mainWindow).pixels, before.pixels);
    SettlePosted(agent);
    const std::string again = PrintWith(IDT_PRINT);
    EXPECT_EQ(Count(again, "%%Page:"), 1) << "by the toolbar";
    EXPECT_EQ(CloseProgram(), 0u);
}

TEST_F(PrintTest, ACancelledDialogPrintsNothing) {
    StartWithPrinter();
    PostCommand(mainWindow, IDM_PRINT);
    const HWND dialog = Dialog(kPrintTitle);
    ASSERT_NE(dialog, nullptr);
    CloseDialog(dialog, IDCANCEL);
    EXPECT_TRUE(WaitUntil([&] { return IsWindowEnabled(mainWindow) != FALSE; }));
    EXPECT_TRUE(SettlePosted(agent));
    EXPECT_EQ(printer->Document(), "");
    EXPECT_FALSE(IsGreyed(IDM_PRINT));
}

TEST_F(PrintTest, TheScaleFollowsWhatIsTyped) {
    StartWithPrinter();
    const HWND dialog = OpenSetup();
    ASSERT_NE(dialog, nullptr);
    wchar_t measure[2] = L"";
    GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_IMEASURE, measure, 2);
    EXPECT_EQ(TextOf(GetDlgItem(dialog, IDC_PRINT_SCALE_LABEL)),
              measure[0] == L'0' ? L"S&cale (ft/cm):" : L"S&cale (ft/in):");
    EXPECT_FALSE(IsChecked(dialog, IDC_PRINT_BORDER));
    EXPECT_FALSE(IsChecked(dialog, IDC_PRINT_TITLE));
    const std::wstring fitted = Scale(dialog);
    EXPECT_GT(std::stoi(fitted), 100) << "the view is some kilometres wide";
    TypeScaleAndLeave(dialog, L"5");
    EXPECT_TRUE(WaitUntil([&] { return Scale(dialog) == L"8"; }));
    TypeScaleAndLeave(dialog, L"what?");
    EXPECT_TRUE(WaitUntil([&] { return Scale(dialog) == L"8"; }));
    TypeScaleAndLeave(dialog, L"400");
    EXPECT_EQ(Scale(dialog), L"400");
    Press(dialog, IDC_FIT_PAGE);
    EXPECT_TRUE(WaitUntil([&] { return Scale(dialog) == fitted; }));
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(PrintTest, SettingsStayUntilTheProgramEndsAndCancelForgetsThem) {
    StartWithPrinter();
    HWND dialog = OpenSetup();
    ASSERT_NE(dialog, nullptr);
    Tick(dialog, IDC_PRINT_BORDER);
    Tick(dialog, IDC_PRINT_TITLE);
    TypeScale(dialog, L"1500");
    CloseDialog(dialog, IDOK);
    ASSERT_NE(dialog = OpenSetup(), nullptr);
    EXPECT_TRUE(IsChecked(dialog, IDC_PRINT_BORDER));
    EXPECT_TRUE(IsChecked(dialog, IDC_PRINT_TITLE));
    EXPECT_EQ(Scale(dialog), L"1500");
    Tick(dialog, IDC_PRINT_BORDER);
    Press(dialog, IDC_FIT_PAGE);
    ASSERT_TRUE(WaitUntil([&] { return Scale(dialog) != L"1500"; }));
    CloseDialog(dialog, IDCANCEL);
    ASSERT_NE(dialog = OpenSetup(), nullptr);
    EXPECT_TRUE(IsChecked(dialog, IDC_PRINT_BORDER));
    EXPECT_EQ(Scale(dialog), L"1500");
    CloseDialog(dialog, IDCANCEL);
    EXPECT_EQ(Count(PrintWith(IDM_PRINT), "%%Page:"), 1);
}

}  // namespace ui
