// MapPictureWin.cpp - the save dialog for a picture of the map, and the picture itself: a bitmap or an enhanced metafile.
#include <windows.h>

#include <commdlg.h>
#include <shlobj.h>

#include "app/AppHost.h"
#include "platform/CanvasGdiWin.h"
#include "platform/PlatformWin.h"
#include "platform/PngWin.h"
#include "platform/WideTextWin.h"

namespace app {

namespace {

using platform::kPathLimit;
constexpr wchar_t kDescription[] = L"Tarvo\0Map of an airport\0";  // program and picture

// The form that the file dialogs take: label and pattern in turn, each with its zero.
std::wstring FilterOf(const std::vector<PictureKind>& kinds) {
    std::wstring filter;
    for (const PictureKind& kind : kinds) {
        filter += platform::WideFromUtf8(kind.label) + L" (*" + platform::WideFromUtf8(kind.extension) + L")" + L'\0';
        filter += L"*" + platform::WideFromUtf8(kind.extension) + L'\0';
    }
    return filter;
}

void PaintOn(HDC dc, const map::PictureSize& size) {
    const double textScale = platform::DpiOf(platform::MainWindow()) / 96.0;
    platform::GdiCanvas gdi = platform::OpenGdiCanvas(dc, textScale * size.times);
    map::PaintPicture(&gdi.canvas, size);
    platform::CloseGdiCanvas(&gdi);
}

bool DrawPng(const map::PictureSize& size, std::vector<uint8_t>* bytes) {
    const HDC dc = CreateCompatibleDC(nullptr);
    const platform::PixelBitmap bitmap = platform::MakePixelBitmap(size.width, size.height);
    const HGDIOBJ before = dc && bitmap.handle ? SelectObject(dc, bitmap.handle) : nullptr;
    bool made = before != nullptr;
    if (made) {
        PaintOn(dc, size);
        SelectObject(dc, before);
        GdiFlush();
        const auto width = static_cast<uint32_t>(size.width), height = static_cast<uint32_t>(size.height);
        made = platform::PngFile({ bitmap.pixels, size_t{ width } * height }, width, height, bytes);
    }
    if (bitmap.handle) DeleteObject(bitmap.handle);
    if (dc) DeleteDC(dc);
    return made;
}

// As large as the map on the screen, in hundredths of a millimetre.
RECT FrameOf(HDC screen, int width, int height) {
    return { 0, 0, MulDiv(width, GetDeviceCaps(screen, HORZSIZE) * 100, GetDeviceCaps(screen, HORZRES)),
             MulDiv(height, GetDeviceCaps(screen, VERTSIZE) * 100, GetDeviceCaps(screen, VERTRES)) };
}

HENHMETAFILE RecordMetafile(const map::PictureSize& size) {
    const int width = size.width / size.times, height = size.height / size.times;
    const HDC screen = GetDC(nullptr);
    const RECT frame = FrameOf(screen, width, height);
    const HDC dc = CreateEnhMetaFileW(screen, nullptr, &frame, kDescription);
    ReleaseDC(nullptr, screen);
    if (!dc) return nullptr;
    SetMapMode(dc, MM_ANISOTROPIC);
    SetWindowExtEx(dc, size.width, size.height, nullptr);
    SetViewportExtEx(dc, width, height, nullptr);
    PaintOn(dc, size);
    return CloseEnhMetaFile(dc);
}

bool DrawMetafile(const map::PictureSize& size, std::vector<uint8_t>* bytes) {
    const HENHMETAFILE metafile = RecordMetafile(size);
    if (!metafile) return false;
    bytes->resize(GetEnhMetaFileBits(metafile, 0, nullptr));
    const UINT got = GetEnhMetaFileBits(metafile, static_cast<UINT>(bytes->size()), bytes->data());
    DeleteEnhMetaFile(metafile);
    return got != 0 && got == bytes->size();
}

// Else the dialog would begin where the last airport was opened or saved, among the scenery.
std::wstring PicturesOfUser() {
    wchar_t path[MAX_PATH];
    return SUCCEEDED(SHGetFolderPathW(nullptr, CSIDL_MYPICTURES, nullptr, SHGFP_TYPE_CURRENT, path)) ? path : L"";
}

}  // namespace

bool AskPicturePath(const PictureQuestion& question, PictureAnswer* answer) {
    std::wstring file = platform::WideFromUtf8(question.name);
    file.resize(kPathLimit);
    const std::wstring folder = question.folder.empty() ? PicturesOfUser() : platform::WideFromUtf8(question.folder);
    const std::wstring filter = FilterOf(question.kinds);
    OPENFILENAMEW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = platform::OwnerOfDialogs();
    dialog.lpstrFilter = filter.c_str();
    dialog.nFilterIndex = static_cast<DWORD>(question.kind + 1);
    dialog.lpstrFile = file.data();
    dialog.nMaxFile = kPathLimit;
    dialog.lpstrInitialDir = folder.empty() ? nullptr : folder.c_str();
    dialog.lpstrTitle = L"Save Map Picture";
    // No default extension: which one is added depends on the kind.
    dialog.Flags = OFN_EXPLORER | OFN_OVERWRITEPROMPT | OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_PATHMUSTEXIST;
    const platform::OthersDisabled others(dialog.hwndOwner, nullptr);
    if (!GetSaveFileNameW(&dialog)) return false;
    answer->path = platform::Utf8FromWide(file.c_str());
    answer->kind = dialog.nFilterIndex > 0 ? dialog.nFilterIndex - 1 : 0;
    return true;
}

bool DrawMapPicture(PictureFormat format, const map::PictureSize& size, std::vector<uint8_t>* bytes) {
    return format == PictureFormat::Png ? DrawPng(size, bytes) : DrawMetafile(size, bytes);
}

}  // namespace app
