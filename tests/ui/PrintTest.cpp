// PrintTest.cpp - page setup and printing, on a printer that writes its pages to a file.
#include <windows.h>

#include <dlgs.h>
#include <map>
#include <memory>
#include <sstream>

#include "PageSetupIds.h"
#include "ProgramParts.h"
#include "Resource.h"
#include "StandInBrowser.h"
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

// What the lines `NUMBERS operator` of the document set, in order; only those with that many numbers.
std::vector<std::vector<double>> Operands(const std::string& text, const std::string& name, size_t count) {
    std::vector<std::vector<double>> found;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::vector<double> numbers;
        for (double number = 0; words >> number;) numbers.push_back(number);
        words.clear();
        std::string word;
        if (numbers.size() == count && words >> word && word == name) found.push_back(numbers);
    }
    return found;
}

std::vector<int> LineWidths(const std::string& text) {
    std::vector<int> widths;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        if (line.find(" setlinewidth") != std::string::npos) widths.push_back(atoi(line.c_str()));
    }
    return widths;
}

// The text that a part of the document shows; characters that have no letter of their own stand for themselves.
std::string Shown(const std::string& text) {
    const std::map<std::string, std::string> signs = {
        { "uni00A0", " " }, { "space", " " }, { "comma", "," }, { "colon", ":" },   { "slash", "/" },  { "zero", "0" },
        { "one", "1" },     { "two", "2" },   { "five", "5" },  { "uni00AD", "-" }, { "hyphen", "-" },
    };
    std::string shown;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::string name, call;
        if (!(words >> name >> call) || call != "glyphshow") continue;
        const auto sign = signs.find(name.substr(1));
        shown += sign == signs.end() ? name.substr(1) : sign->second;
    }
    return shown;
}

// What the user has chosen as the measure of the system, "0" metric or "1" not, until the object ends. Programs that
// start meanwhile go by it.
class SystemMeasure {
public:
    explicit SystemMeasure(const wchar_t* measure) {
        DWORD bytes = sizeof before;
        wasSet = RegGetValueW(HKEY_CURRENT_USER, kKey, kValue, RRF_RT_REG_SZ, nullptr, before, &bytes) == ERROR_SUCCESS;
        Set(measure);
    }
    ~SystemMeasure() {
        if (wasSet) {
            Set(before);
        } else {
            RegDeleteKeyValueW(HKEY_CURRENT_USER, kKey, kValue);
        }
    }
    SystemMeasure(const SystemMeasure&) = delete;
    SystemMeasure& operator=(const SystemMeasure&) = delete;

private:
    static constexpr wchar_t kKey[] = L"Control Panel\\International", kValue[] = L"iMeasure";
    static void Set(const wchar_t* measure) {
        RegSetKeyValueW(HKEY_CURRENT_USER, kKey, kValue, REG_SZ, measure, 2 * sizeof(wchar_t));
    }
    wchar_t before[8] = L"";
    bool wasSet = false;
};

class PrintTest : public UiTest {
protected:
    void StartWithPrinter(const wchar_t* systemMeasure = L"1", const char* settings = kQuietSettings) {
        CreateDirectoryW(kPrintFolder, nullptr);
        measure = std::make_unique<SystemMeasure>(systemMeasure);
        printer = std::make_unique<TestPrinter>(kPrintFolder);
        ASSERT_TRUE(printer->IsThere()) << "no printer can be declared";
        ASSERT_NO_FATAL_FAILURE(StartWithSample("hub", settings));
    }
    void TearDown() override {
        UiTest::TearDown();
        printer.reset();
        measure.reset();
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
    bool WaitForKeyboardOnMap() const {
        return WaitUntil([&] { return FocusOf(agent) == mainWindow; });
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
    static void TypeInto(HWND field, const wchar_t* text) {
        SendMessageW(field, EM_SETSEL, 0, -1);
        SendMessageW(field, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text));
    }
    static void TypeScale(HWND dialog, const wchar_t* text) { TypeInto(GetDlgItem(dialog, IDC_PRINT_SCALE), text); }
    // Border, title and a scale.
    static void ChooseAll(HWND dialog, const wchar_t* scale) {
        Tick(dialog, IDC_PRINT_BORDER);
        Tick(dialog, IDC_PRINT_TITLE);
        TypeScale(dialog, scale);
    }
    // Into the field, and out of it by the Tab key.
    void TypeAndLeave(HWND dialog, int control, const wchar_t* text) {
        const HWND field = GetDlgItem(dialog, control);
        PostMessageW(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(field), TRUE);
        ASSERT_TRUE(WaitUntil([&] { return FocusOf(agent) == field; }));
        TypeInto(field, text);
        PostKey(field, VK_TAB);
        ASSERT_TRUE(WaitUntil([&] { return FocusOf(agent) != field; }));
    }
    void TypeScaleAndLeave(HWND dialog, const wchar_t* text) { TypeAndLeave(dialog, IDC_PRINT_SCALE, text); }
    // The sheet in the page setup.
    static std::vector<uint32_t> Sample(HWND dialog) {
        return GrabStable([&] { return GrabWindow(GetDlgItem(dialog, rct1)); }).pixels;
    }
    static bool WaitForOtherSample(HWND dialog, std::vector<uint32_t>* sample) {
        const std::vector<uint32_t> before = *sample;
        return WaitUntil([&] { return (*sample = Sample(dialog)) != before; });
    }

    std::unique_ptr<SystemMeasure> measure;
    std::unique_ptr<TestPrinter> printer;
};

TEST_F(PrintTest, F1InPageSetupOpensTheTopicOfPrinting) {
    const StandInBrowser browser;
    ASSERT_NO_FATAL_FAILURE(StartWithPrinter());
    const HWND dialog = OpenSetup();
    ASSERT_NE(dialog, nullptr);
    ASSERT_TRUE(BringToFront(dialog));
    PostMessageW(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(GetDlgItem(dialog, IDC_PRINT_SCALE)), TRUE);
    ASSERT_TRUE(WaitUntil([&] { return FocusOf(agent) == GetDlgItem(dialog, IDC_PRINT_SCALE); }));
    TapKey(VK_F1);
    EXPECT_TRUE(browser.WaitForOpened("file:///C:/UiTest/Tarvo/ReadMe.htm#Printing\n")) << browser.Opened();
    CloseDialog(dialog, IDCANCEL);
}

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

// A4 at 600 pixels to the inch: 4958 x 7016 pixels, of which 150 on each side cannot be printed on.
TEST_F(PrintTest, ThePageIsMeasured) {
    StartWithPrinter();
    HWND dialog = OpenSetup();
    ASSERT_NE(dialog, nullptr);
    ChooseAll(dialog, L"1500");
    TypeAndLeave(dialog, edt4, L"2");  // the left margin
    CloseDialog(dialog, IDOK);
    ASSERT_NE(dialog = OpenSetup(), nullptr);
    EXPECT_EQ(TextOf(GetDlgItem(dialog, edt4))[0], L'2') << "the margin is kept";
    CloseDialog(dialog, IDOK);
    const std::string document = PrintWith(IDM_PRINT);
    const auto clips = Operands(document, "rectclip", 4);
    ASSERT_GT(clips.size(), 100u);
    const std::vector<double> box = clips.front();
    EXPECT_EQ(box[0], 2 * 600 - 150) << "two inches of margin";
    EXPECT_EQ(box[2], 4958 - 3 * 600) << "the view is wider than the paper, whose right margin is an inch";
    const double shown = 3704.3518 * 3.280839895 / 1500 * 600;  // two nautical miles of the first view, in feet
    EXPECT_NEAR(box[3], shown, 1.01) << "both edges are whole pixels";
    EXPECT_NEAR(box[1] + box[3] / 2, 7016 / 2.0 - 150, 1) << "in the middle";
    for (const std::vector<double>& clip : clips) {
        if (clip[2] == 0 || clip[3] == 0) continue;  // of something beside the map
        EXPECT_GE(clip[0], box[0]);
        EXPECT_GE(clip[1], box[1]);
        EXPECT_LE(clip[0] + clip[2], box[0] + box[2]);
        EXPECT_LE(clip[1] + clip[3], box[1] + box[3]);
    }
    const size_t border = document.rfind("1 setlinewidth");
    ASSERT_NE(border, std::string::npos);
    for (const auto& width : LineWidths(document.substr(0, border))) EXPECT_GE(width, 3) << "ten feet are 4 pixels";
    const std::string frame = document.substr(border);
    EXPECT_EQ(frame.find("rectclip"), std::string::npos);
    const auto starts = Operands(frame, "moveto", 2);
    ASSERT_EQ(starts.size(), 2u) << "the border and the title";
    EXPECT_EQ(starts[0], (std::vector<double>{ box[0], box[1] }));
    EXPECT_EQ(Operands(frame, "lineto", 2)[1], (std::vector<double>{ box[0] + box[2] - 1, box[1] + box[3] - 1 }));
    EXPECT_EQ(starts[1][0], box[0] + 8);
    EXPECT_NE(frame.find("[83 0 0 -83 0 0]"), std::string::npos) << "ten points";
    const std::string title = Shown(frame);
    EXPECT_EQ(title.substr(0, 6), Utf8(FindSample("hub").ident) + "  ") << title;
    EXPECT_EQ(title.substr(title.find(',')), ",  Scale: 1500 ft/in") << title;
}

TEST_F(PrintTest, BesideAnOpenListNothingElseCanBeDoneMeanwhile) {
    StartWithPrinter();
    PostCommand(mainWindow, IDM_LIST_RUNWAYS);
    ASSERT_TRUE(SettlePosted(agent));
    const HWND list = FindVisible(program.id, L"#32770", nullptr);
    ASSERT_NE(list, nullptr);
    for (const UINT command : { IDM_PAGE_SETUP, IDM_PRINT, IDM_SAVE_PICTURE }) {
        PostCommand(mainWindow, command);
        const HWND dialog = DialogOtherThan(list);
        ASSERT_NE(dialog, nullptr) << command;
        EXPECT_FALSE(IsWindowEnabled(mainWindow)) << command;
        EXPECT_FALSE(IsWindowEnabled(list)) << command;
        CloseDialog(dialog, IDCANCEL);
        EXPECT_TRUE(WaitUntil([&] { return IsWindowEnabled(mainWindow) && IsWindowEnabled(list); })) << command;
    }
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
    EXPECT_EQ(TextOf(GetDlgItem(dialog, IDC_PRINT_SCALE_LABEL)), L"S&cale (ft/in):");
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

TEST_F(PrintTest, GroundFollowsTheSettingsAndPaperTheSystem) {
    struct Case {
        const wchar_t* measure;
        const char* settings;
        const wchar_t* label;
    };
    const Case cases[] = {
        { L"0", "[General]\r\nNextUpdateNotice=9999\r\nMetric=0\r\n", L"S&cale (ft/cm):" },
        { L"0", "[General]\r\nNextUpdateNotice=9999\r\nMetric=1\r\n", L"S&cale (m/cm):" },
        { L"1", "[General]\r\nNextUpdateNotice=9999\r\nMetric=1\r\n", L"S&cale (m/in):" },
    };
    for (const Case& each : cases) {
        ASSERT_NO_FATAL_FAILURE(StartWithPrinter(each.measure, each.settings));
        const HWND dialog = OpenSetup();
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(TextOf(GetDlgItem(dialog, IDC_PRINT_SCALE_LABEL)), each.label);
        CloseDialog(dialog, IDCANCEL);
        TearDown();
    }
}

TEST_F(PrintTest, TheSampleFollowsEachControl) {
    StartWithPrinter();
    const HWND dialog = OpenSetup();
    ASSERT_NE(dialog, nullptr);
    ASSERT_TRUE(BringToFront(dialog));
    ParkPointer();
    std::vector<uint32_t> sample = Sample(dialog);
    Tick(dialog, IDC_PRINT_BORDER);
    EXPECT_TRUE(WaitForOtherSample(dialog, &sample)) << "border";
    Tick(dialog, IDC_PRINT_TITLE);
    EXPECT_TRUE(WaitForOtherSample(dialog, &sample)) << "title";
    const std::vector<uint32_t> fitted = sample;
    TypeScaleAndLeave(dialog, L"9000");
    EXPECT_TRUE(WaitForOtherSample(dialog, &sample)) << "scale";
    Press(dialog, IDC_FIT_PAGE);
    EXPECT_TRUE(WaitUntil([&] { return Sample(dialog) == fitted; })) << "Fit Page";
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(PrintTest, AfterPrintingTheMapHasTheKeyboardAgain) {
    StartWithPrinter();
    ASSERT_TRUE(BringToFront(mainWindow));
    ASSERT_TRUE(WaitForKeyboardOnMap());
    EXPECT_EQ(Count(PrintWith(IDM_PRINT), "%%Page:"), 1);
    EXPECT_TRUE(WaitForKeyboardOnMap());
}

TEST_F(PrintTest, EachPrintBeginsWithOneCopy) {
    StartWithPrinter();
    PostCommand(mainWindow, IDM_PRINT);
    HWND dialog = Dialog(kPrintTitle);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(TextOf(GetDlgItem(dialog, edt3)), L"1");
    TypeAndLeave(dialog, edt3, L"5");
    CloseDialog(dialog, IDOK);
    ASSERT_TRUE(WaitUntil([&] { return printer->Document().find("%%EOF") != std::string::npos; }));
    ASSERT_TRUE(WaitUntil([&] { return IsWindowEnabled(mainWindow) != FALSE; }));
    PostCommand(mainWindow, IDM_PRINT);
    ASSERT_NE(dialog = Dialog(kPrintTitle), nullptr);
    EXPECT_EQ(TextOf(GetDlgItem(dialog, edt3)), L"1");
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(PrintTest, ThePrintDialogOffersNothingThatPrintingDoesNotDo) {
    StartWithPrinter();
    PostCommand(mainWindow, IDM_PRINT);
    const HWND dialog = Dialog(kPrintTitle);
    ASSERT_NE(dialog, nullptr);
    const auto offers = [&](int control) {
        const HWND window = GetDlgItem(dialog, control);
        return IsWindowVisible(window) && IsWindowEnabled(window);
    };
    EXPECT_TRUE(offers(rad1)) << "all pages";
    EXPECT_FALSE(offers(rad2)) << "a selection";
    EXPECT_FALSE(offers(rad3)) << "some pages";
    EXPECT_FALSE(offers(chx1)) << "print to file";
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(PrintTest, SettingsStayUntilTheProgramEndsAndCancelForgetsThem) {
    StartWithPrinter();
    HWND dialog = OpenSetup();
    ASSERT_NE(dialog, nullptr);
    ChooseAll(dialog, L"1500");
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
