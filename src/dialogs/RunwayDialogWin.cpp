// RunwayDialogWin.cpp - the window of the runway editor: its pages, and what one control does to others.
#include <windows.h>

#include <commctrl.h>

#include "dialogs/Choices.h"
#include "dialogs/Editors.h"
#include "dialogs/EditorWin.h"
#include "dialogs/RunwayDialog.h"
#include "dialogs/RunwayPagesWin.h"
#include "dialogs/Subject.h"
#include "platform/DialogWin.h"
#include "platform/TabPagesWin.h"
#include "RunwayIds.h"

namespace dialogs {

namespace {

// In the order of RunwayPage.
constexpr platform::TabPage kPages[] = {
    { "Runway", IDD_RUNWAY_DATA },
    { "Lights", IDD_RUNWAY_LIGHTS },
    { "VASI", IDD_RUNWAY_VASI },
    { "Markings", IDD_RUNWAY_MARKINGS },
};
constexpr const char* kTopics[] = { "#Runways", "#RunwayLights", "#VASI", "#RunwayMarkings" };

RunwayPages PagesOf(HWND dialog) {
    RunwayPages pages;
    for (int i = 0; i < 4; ++i) pages.window[i] = platform::PageWindow(dialog, IDC_RUNWAY_TABS, i);
    return pages;
}

bool IsDataPageShown(HWND dialog) {
    return platform::PageShown(dialog, IDC_RUNWAY_TABS) == static_cast<int>(RunwayPage::Data);
}

void ShowMagneticHeading(HWND page) {
    platform::SetFieldText(page, IDC_MAGNETIC_HEADING,
                           MagneticHeadingText(platform::FieldText(page, IDC_RUNWAY_HEADING)));
}

void ShowEndNames(const RunwayPages& pages, const SceneryObject* runway) {
    const RunwayFields fields = ReadRunwayPages(pages);
    for (int end = 0; end < 2; ++end) {
        ShowEndName(pages, end, NameOfEnd(fields.ends[static_cast<size_t>(end)], runway, end));
    }
}

void OnVasiSystem(const RunwayPages& pages, int unit) {
    const HWND page = pages[RunwayPage::Vasi];
    VasiFields fields = ReadVasiUnit(page, unit);
    ChooseVasiSystem(&fields, fields.system, ReadRunwayPages(pages), static_cast<size_t>(unit / 2));
    ShowVasiUnit(page, unit, fields);
}

void Load(HWND dialog, const SceneryObject* runway, const RunwayFields& fields) {
    platform::MakePages(dialog, IDC_RUNWAY_TABS, kPages);
    const RunwayPages pages = PagesOf(dialog);
    LoadRunwayPages(pages, fields);
    ShowMagneticHeading(pages[RunwayPage::Data]);
    ShowEndNames(pages, runway);
}

void OnControl(HWND dialog, const SceneryObject* runway, int id, int code) {
    const RunwayPages pages = PagesOf(dialog);
    if (id == IDC_RUNWAY_HEADING && code == EN_CHANGE) ShowMagneticHeading(pages[RunwayPage::Data]);
    if (code != CBN_SELCHANGE) return;
    for (const int number : { IDC_END_NUMBER, IDC_END_SUFFIX }) {
        if (id == number || id == number + IDC_SECOND_END) ShowEndNames(pages, runway);
    }
    for (int unit = 0; unit < 4; ++unit) {
        if (id == IDC_VASI_SYSTEM + unit * IDC_NEXT_VASI) OnVasiSystem(pages, unit);
    }
}

void ShowRefused(HWND dialog, const BadField& bad) {
    const auto page = static_cast<int>(PageOf(bad));
    const int control = RunwayControl(bad);
    if (control == 0) return;  // the user has cancelled a question
    platform::TurnToPage(dialog, IDC_RUNWAY_TABS, page);
    platform::FocusField(platform::PageWindow(dialog, IDC_RUNWAY_TABS, page), control);
}

}  // namespace

bool EditRunway(SceneryObject* runway) {
    SelectSubject(runway, ExtendKeyHeld());
    const RunwayFields shown = LoadRunwayFields(runway);
    Editor editor;
    editor.resource = IDD_RUNWAY;
    editor.topic = kTopics[0];
    editor.load = [&](HWND dialog) { Load(dialog, runway, shown); };
    editor.store = [&](HWND dialog, BadField* bad) {
        return StoreRunwayFields(shown, ReadRunwayPages(PagesOf(dialog)), runway, bad);
    };
    editor.show = ShowRefused;
    editor.command = [&](HWND dialog, int id, int code) { OnControl(dialog, runway, id, code); };
    editor.notify = [&](HWND dialog, NMHDR* header) -> INT_PTR {
        if (header->idFrom != IDC_RUNWAY_TABS || header->code != static_cast<UINT>(TCN_SELCHANGE)) return FALSE;
        platform::ShowChosenPage(dialog, IDC_RUNWAY_TABS);
        editor.topic = kTopics[platform::PageShown(dialog, IDC_RUNWAY_TABS)];
        return TRUE;
    };
    editor.clicked = [&](HWND dialog, model::LatLon at) {
        if (!IsDataPageShown(dialog)) return;  // the position is out of sight
        ShowPosition(PagesOf(dialog)[RunwayPage::Data], IDC_RUNWAY_LATITUDE, IDC_RUNWAY_LONGITUDE,
                     MoveToClick(runway, at));
    };
    return RunEditor(editor);
}

bool InsertRunwayDialog() { return InsertAndEdit(InsertRunway, EditRunway); }

}  // namespace dialogs
