// PageSetupWin.cpp - the system's page setup, with the map's border, title and scale, and the map on its sample page.
#include <windows.h>

#include <commdlg.h>
#include <dlgs.h>

#include "app/AppHost.h"
#include "app/HelpPage.h"
#include "app/PrinterWin.h"
#include "app/Printing.h"
#include "PageSetupIds.h"
#include "platform/DialogWin.h"
#include "platform/PlatformWin.h"
#include "platform/WideTextWin.h"

namespace app {

Printer printer;

namespace {

constexpr size_t kScaleLimit = 10;  // characters

struct OpenSetup {
    HWND dialog = nullptr;
    RECT sheet{};  // on the sample
};
OpenSetup setup;

// The measure that the user has chosen for the system.
bool IsPaperMetric() {
    wchar_t measure[2] = {};
    GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_IMEASURE, measure, 2);
    return map::IsPaperMetric(platform::Utf8FromWide(measure));
}

// Hundredths of a millimetre are thousandths of a centimetre.
DWORD UnitFlag(bool metric) { return metric ? PSD_INHUNDREDTHSOFMILLIMETERS : PSD_INTHOUSANDTHSOFINCHES; }

map::Paper PaperOf(const PAGESETUPDLGW& dialog, bool metric) {
    const POINT size = dialog.ptPaperSize;
    const RECT margins = dialog.rtMargin;
    return map::PaperFrom({ static_cast<int32_t>(size.x), static_cast<int32_t>(size.y),
                            static_cast<int32_t>(margins.left), static_cast<int32_t>(margins.top),
                            static_cast<int32_t>(margins.right), static_cast<int32_t>(margins.bottom) },
                          metric);
}

RECT MarginsOf(const map::Paper& paper) {
    const map::PageSetupRecord record = map::RecordOf(paper);
    return { record.left, record.top, record.right, record.bottom };
}

PAGESETUPDLGW NewSetup(bool metric) {
    PAGESETUPDLGW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = platform::OwnerOfDialogs();
    dialog.Flags = UnitFlag(metric);
    return dialog;
}

// The control remembers by itself whether the user has typed; what was typed is not written over.
bool IsScaleTyped() { return SendDlgItemMessageW(setup.dialog, IDC_PRINT_SCALE, EM_GETMODIFY, 0, 0) != 0; }
void ForgetTyping() { SendDlgItemMessageW(setup.dialog, IDC_PRINT_SCALE, EM_SETMODIFY, FALSE, 0); }

void ShowScale() {
    if (IsScaleTyped()) return;
    const std::string text = map::ScaleText(map::print);
    if (platform::FieldText(setup.dialog, IDC_PRINT_SCALE) != text)
        platform::SetFieldText(setup.dialog, IDC_PRINT_SCALE, text);
}

void RedrawSample() {
    map::FitPrintScale(&map::print);
    ShowScale();
    InvalidateRect(GetDlgItem(setup.dialog, rct1), nullptr, TRUE);
}

void ShowControls(HWND dialog) {
    setup.dialog = dialog;
    platform::CheckField(dialog, IDC_PRINT_BORDER, map::print.printBorder);
    platform::CheckField(dialog, IDC_PRINT_TITLE, map::print.printTitle);
    platform::SetFieldText(dialog, IDC_PRINT_SCALE_LABEL, map::ScaleLabel(map::print.paper));
    platform::LimitField(dialog, IDC_PRINT_SCALE, kScaleLimit);
    map::FitPrintScale(&map::print);
    ShowScale();
}

void TakeTypedScale() {
    if (!IsScaleTyped()) return;
    ForgetTyping();
    map::print.printScale = map::ScaleFromText(platform::FieldText(setup.dialog, IDC_PRINT_SCALE));
    map::print.fitPage = false;
    RedrawSample();
}

void FitPage() {
    map::print.fitPage = true;
    ForgetTyping();
    RedrawSample();
}

void OnControl(HWND dialog, int control, int notice) {
    switch (control) {
    case IDC_PRINT_BORDER: map::print.printBorder = platform::IsFieldChecked(dialog, control); return RedrawSample();
    case IDC_PRINT_TITLE: map::print.printTitle = platform::IsFieldChecked(dialog, control); return RedrawSample();
    case IDC_FIT_PAGE: return FitPage();
    case IDC_PRINT_SCALE:
        if (notice == EN_KILLFOCUS) TakeTypedScale();
        return;
    case IDOK: return TakeTypedScale();  // Enter leaves the focus where it is
    default: return;
    }
}

constexpr char kTopic[] = "#Printing";  // of F1; the dialog has no help button

UINT_PTR CALLBACK SetupHook(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    if (message == WM_INITDIALOG) ShowControls(dialog);
    if (message == WM_COMMAND && setup.dialog == dialog) OnControl(dialog, LOWORD(wParam), HIWORD(wParam));
    if (message == WM_HELP) OpenHelp(kTopic);
    return message == WM_INITDIALOG || message == WM_HELP;  // the system does the rest of everything else
}

void DrawSample(HDC dc) {
    const int width = setup.sheet.right - setup.sheet.left, height = setup.sheet.bottom - setup.sheet.top;
    const int state = SaveDC(dc);
    OffsetViewportOrgEx(dc, setup.sheet.left, setup.sheet.top, nullptr);
    DrawPrintPage(dc, map::SampleDevice(map::print.paper, width, height));
    RestoreDC(dc, state);
}

void OnSampleSetup(const PAGESETUPDLGW& dialog) {
    map::print.paper = PaperOf(dialog, map::print.paper.metric);
    map::FitPrintScale(&map::print);
    if (map::print.fitPage) ShowScale();
}

// In place of the lines that stand for text, the map.
UINT_PTR CALLBACK SampleHook(HWND, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_PSD_PAGESETUPDLG: OnSampleSetup(*reinterpret_cast<const PAGESETUPDLGW*>(lParam)); return FALSE;
    case WM_PSD_FULLPAGERECT: setup.sheet = *reinterpret_cast<const RECT*>(lParam); return FALSE;
    case WM_PSD_GREEKTEXTRECT: DrawSample(reinterpret_cast<HDC>(wParam)); return TRUE;
    default: return FALSE;
    }
}

}  // namespace

void LearnPaper() {
    if (map::print.pageSetupDone) return;
    const bool metric = IsPaperMetric();
    PAGESETUPDLGW dialog = NewSetup(metric);
    dialog.Flags |= PSD_RETURNDEFAULT | PSD_NOWARNING;
    if (!PageSetupDlgW(&dialog)) {  // no printer
        map::print.paper = map::UsualPaper(metric);
        return;
    }
    GlobalFree(dialog.hDevMode);
    GlobalFree(dialog.hDevNames);
    map::print.paper = PaperOf(dialog, metric);
}

void PageSetup() {
    LearnPaper();
    const map::PrintSettings before = map::print;
    PAGESETUPDLGW dialog = NewSetup(map::print.paper.metric);
    dialog.hDevMode = printer.mode;
    dialog.hDevNames = printer.names;
    dialog.rtMargin = MarginsOf(map::print.paper);
    dialog.hInstance = GetModuleHandleW(nullptr);
    dialog.lpPageSetupTemplateName = MAKEINTRESOURCEW(IDD_PAGE_SETUP);
    dialog.lpfnPageSetupHook = SetupHook;
    dialog.lpfnPagePaintHook = SampleHook;
    dialog.Flags |= PSD_MARGINS | PSD_ENABLEPAGESETUPTEMPLATE | PSD_ENABLEPAGESETUPHOOK | PSD_ENABLEPAGEPAINTHOOK;
    const platform::OthersDisabled others(dialog.hwndOwner, nullptr);
    const PrintStep step = StepAfterDialog(PageSetupDlgW(&dialog));
    const bool shown = setup.dialog != nullptr;
    setup = {};
    printer = { dialog.hDevMode, dialog.hDevNames };
    if (step != PrintStep::Done) {
        map::print = before;
        map::print.pageSetupDone |= shown;
        if (step == PrintStep::Failed) RefusePrinter();
        return;
    }
    map::print.paper = PaperOf(dialog, map::print.paper.metric);
    map::print.pageSetupDone = true;
}

}  // namespace app
