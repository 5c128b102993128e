// DialogTextTest.cpp - whether the texts of the dialogs that the program carries fit their controls. What holds for the
// resource scripts themselves stands in tests/unit/DialogLayoutTest.cpp.
#include "DialogTemplates.h"

#include <string>
#include <utility>

#include "ListIds.h"
#include "RunwayIds.h"
#include "UiHarness.h"

namespace ui {

namespace {

const DialogTemplate* Find(const std::vector<DialogTemplate>& dialogs, int id) {
    for (const DialogTemplate& dialog : dialogs) {
        if (dialog.id == id) return &dialog;
    }
    return nullptr;
}

std::string NameOf(const DialogTemplate& dialog, const TemplateControl& control) {
    return "dialog " + std::to_string(dialog.id) + " \"" + Utf8(dialog.title) + "\", control " +
           std::to_string(static_cast<short>(control.id)) + " \"" + Utf8(control.text) + "\"";
}

// Labels name the unit in feet or nautical miles; the program puts the other one there.
std::wstring InMetric(std::wstring text) {
    constexpr std::pair<const wchar_t*, const wchar_t*> kUnits[] = { { L"(ft", L"(m" }, { L"(nm", L"(km" } };
    for (const auto& [from, to] : kUnits) {
        const size_t at = text.find(from);
        if (at != std::wstring::npos) text.replace(at, wcslen(from), to);
    }
    return text;
}

// Pixels of a control that its text cannot have: the box before it, the edges beside it.
int Edges(const TemplateControl& control, const DialogFont& font) {
    switch (control.ButtonType()) {
    case BS_AUTOCHECKBOX:
    case BS_AUTORADIOBUTTON: return font.Scaled(13 + 4);
    case BS_GROUPBOX: return font.Scaled(2 * 9);
    case BS_PUSHBUTTON:
    case BS_DEFPUSHBUTTON: return font.Scaled(2 * 4);
    default: return 0;
    }
}

void ExpectTextFits(const DialogTemplate& dialog, const TemplateControl& control, const std::wstring& text, int dpi) {
    const DialogFont font(dialog, dpi);
    const SIZE size = font.Pixels(control.place);
    const int width = static_cast<int>(size.cx) - Edges(control, font);
    const bool isStatic = control.IsKind(L"Static");
    const SIZE room = font.Room(text, isStatic ? width : 10000);  // only labels break their texts into lines
    EXPECT_LE(room.cx, width) << NameOf(dialog, control) << " as \"" << Utf8(text) << "\" at " << dpi;
    EXPECT_LE(room.cy, size.cy) << NameOf(dialog, control) << " as \"" << Utf8(text) << "\" at " << dpi;
}

}  // namespace

class DialogTextTest : public ::testing::Test {
protected:
    std::vector<DialogTemplate> dialogs = ReadDialogTemplates(std::wstring(kProgramFolder) + L"\\Tarvo.exe");

    void SetUp() override {
        ASSERT_GE(dialogs.size(), 29u) << "not all templates were read";
        ASSERT_NE(Find(dialogs, IDD_RUNWAY_DATA), nullptr);
        ASSERT_NE(Find(dialogs, IDD_COMM_LIST), nullptr);
    }
};

TEST_F(DialogTextTest, EveryTextFitsItsControlInBothUnitsAtEveryResolution) {
    int measured = 0;
    for (const DialogTemplate& dialog : dialogs) {
        ASSERT_EQ(Utf8(dialog.font), "MS Shell Dlg") << "dialog " << dialog.id;
        for (const TemplateControl& control : dialog.controls) {
            if (control.text.empty() || !control.IsVisible()) continue;  // hidden labels are only spoken
            for (const int dpi : { 96, 120, 144, 192 }) {
                ExpectTextFits(dialog, control, control.text, dpi);
                ExpectTextFits(dialog, control, InMetric(control.text), dpi);
            }
            ++measured;
        }
    }
    EXPECT_GT(measured, 300);
}

}  // namespace ui
