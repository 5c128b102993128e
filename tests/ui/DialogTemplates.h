// DialogTemplates.h - the dialog templates that the program carries, read from its file.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace ui {

// Places and sizes are in dialog units.
struct TemplateControl {
    DWORD id = 0, style = 0;
    RECT place = {};
    std::wstring kind;  // the window class: "Button", "Edit", "Static", ...
    std::wstring text;
    bool IsKind(const wchar_t* name) const { return lstrcmpiW(kind.c_str(), name) == 0; }
    DWORD ButtonType() const { return IsKind(L"Button") ? style & BS_TYPEMASK : 0xFFFF; }
    bool IsVisible() const { return style & WS_VISIBLE; }
};

struct DialogTemplate {
    int id = 0;
    DWORD style = 0;
    SIZE size = {};
    std::wstring title, font;
    int points = 0;
    std::vector<TemplateControl> controls;  // in tab order
};

// All of them; empty when the file cannot be read.
std::vector<DialogTemplate> ReadDialogTemplates(const std::wstring& program);

// Dialog units as pixels, and how much room texts take, in a template's font at a resolution.
struct DialogFont {
    DialogFont(const DialogTemplate& dialog, int perInch);
    ~DialogFont();
    DialogFont(const DialogFont&) = delete;
    DialogFont& operator=(const DialogFont&) = delete;
    SIZE Pixels(const RECT& place) const;
    // Wrapped to the width; a single word may still be wider.
    SIZE Room(const std::wstring& text, int width) const;
    int Scaled(int pixels) const { return MulDiv(pixels, dpi, 96); }

    HDC dc;
    HFONT font;
    HGDIOBJ before;
    int dpi;
    SIZE base = {};  // four units across, eight units down
};

}  // namespace ui
