// DialogTemplates.cpp - see DialogTemplates.h.
#include "DialogTemplates.h"

#include <cstring>
#include <iterator>

namespace ui {

namespace {

// What a resource holds, word by word.
struct Reader {
    const BYTE* at;
    const BYTE* start;

    template <class Number>
    Number Take() {
        Number number;
        std::memcpy(&number, at, sizeof number);
        at += sizeof number;
        return number;
    }
    std::wstring TakeText() {
        std::wstring text;
        for (WORD unit = Take<WORD>(); unit != 0; unit = Take<WORD>()) text.push_back(static_cast<wchar_t>(unit));
        return text;
    }
    // A text, or 0xFFFF and a number; the number is of no text.
    std::wstring TakeName(WORD* ordinal) {
        WORD first;
        std::memcpy(&first, at, sizeof first);
        if (first != 0xFFFF) return TakeText();
        Take<WORD>();
        *ordinal = Take<WORD>();
        return {};
    }
    void AlignTo4() { at = start + (at - start + 3) / 4 * 4; }
};

std::wstring KindOfOrdinal(WORD ordinal) {
    constexpr const wchar_t* kKinds[] = { L"Button", L"Edit", L"Static", L"ListBox", L"ScrollBar", L"ComboBox" };
    constexpr WORD kFirst = 0x80;
    return ordinal >= kFirst && ordinal < kFirst + std::size(kKinds) ? kKinds[ordinal - kFirst] : L"";
}

RECT TakePlace(Reader* reader) {
    const LONG x = reader->Take<short>(), y = reader->Take<short>();
    const LONG width = reader->Take<short>(), height = reader->Take<short>();
    return { x, y, x + width, y + height };
}

TemplateControl TakeControl(Reader* reader) {
    reader->AlignTo4();
    reader->Take<DWORD>();  // help id
    reader->Take<DWORD>();  // extended style
    TemplateControl control;
    control.style = reader->Take<DWORD>();
    control.place = TakePlace(reader);
    control.id = reader->Take<DWORD>();
    WORD kind = 0, picture = 0;
    control.kind = reader->TakeName(&kind);
    if (control.kind.empty()) control.kind = KindOfOrdinal(kind);
    control.text = reader->TakeName(&picture);
    reader->at += reader->Take<WORD>();  // creation data
    return control;
}

DialogTemplate TakeDialog(Reader reader, int id) {
    DialogTemplate dialog;
    dialog.id = id;
    reader.Take<DWORD>();  // version and signature of DIALOGEX
    reader.Take<DWORD>();  // help id
    reader.Take<DWORD>();  // extended style
    dialog.style = reader.Take<DWORD>();
    const WORD count = reader.Take<WORD>();
    const RECT place = TakePlace(&reader);
    dialog.size = { place.right - place.left, place.bottom - place.top };
    WORD menu = 0, kind = 0;
    reader.TakeName(&menu);
    reader.TakeName(&kind);
    dialog.title = reader.TakeText();
    if (dialog.style & DS_SETFONT) {
        dialog.points = reader.Take<WORD>();
        reader.Take<DWORD>();  // weight, italic, character set
        dialog.font = reader.TakeText();
    }
    for (WORD i = 0; i < count; ++i) dialog.controls.push_back(TakeControl(&reader));
    return dialog;
}

BOOL CALLBACK AddTemplate(HMODULE module, LPCWSTR type, LPWSTR name, LONG_PTR found) {
    const HRSRC resource = FindResourceW(module, name, type);
    const HGLOBAL loaded = resource ? LoadResource(module, resource) : nullptr;
    const auto* bytes = static_cast<const BYTE*>(loaded ? LockResource(loaded) : nullptr);
    if (bytes && IS_INTRESOURCE(name)) {
        reinterpret_cast<std::vector<DialogTemplate>*>(found)->push_back(
            TakeDialog({ bytes, bytes }, static_cast<int>(reinterpret_cast<UINT_PTR>(name))));
    }
    return TRUE;
}

}  // namespace

std::vector<DialogTemplate> ReadDialogTemplates(const std::wstring& program) {
    std::vector<DialogTemplate> found;
    const HMODULE module = LoadLibraryExW(program.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    if (!module) return found;
    EnumResourceNamesW(module, MAKEINTRESOURCEW(5), AddTemplate, reinterpret_cast<LONG_PTR>(&found));  // RT_DIALOG
    FreeLibrary(module);
    return found;
}

DialogFont::DialogFont(const DialogTemplate& dialog, int perInch)
    : dc(CreateCompatibleDC(nullptr)),
      font(CreateFontW(-MulDiv(dialog.points, perInch, 72), 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0,
                       dialog.font.c_str())),
      before(SelectObject(dc, font)),
      dpi(perInch) {
    constexpr wchar_t kLetters[] = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    SIZE letters{};
    TEXTMETRICW metrics{};
    GetTextExtentPoint32W(dc, kLetters, static_cast<int>(std::size(kLetters)) - 1, &letters);
    GetTextMetricsW(dc, &metrics);
    base = { (letters.cx / 26 + 1) / 2, metrics.tmHeight };
}

DialogFont::~DialogFont() {
    SelectObject(dc, before);
    DeleteObject(font);
    DeleteDC(dc);
}

SIZE DialogFont::Pixels(const RECT& place) const {
    return { MulDiv(place.right - place.left, base.cx, 4), MulDiv(place.bottom - place.top, base.cy, 8) };
}

SIZE DialogFont::Room(const std::wstring& text, int width) const {
    RECT room = { 0, 0, width, 0 };
    DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &room, DT_CALCRECT | DT_WORDBREAK);
    return { room.right, room.bottom };
}

}  // namespace ui
