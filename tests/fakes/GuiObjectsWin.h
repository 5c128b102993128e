// GuiObjectsWin.h - how many objects of the window system this process has.
//
// Some systems do not count: GetGuiResources gives 0. There the process's own table of GDI objects is counted, and
// every handle is tried.
#pragma once

#include <windows.h>

#include <cstddef>
#include <cstdint>

// One row of the table of GDI objects of a 64-bit process.
struct GdiTableRow {
    uint64_t object;
    uint32_t owner;
    uint16_t unique;
    uint8_t type;  // 0 is free
    uint8_t flags;
    uint64_t user;
};
static_assert(sizeof(GdiTableRow) == 24);

inline int CountGdiTable() {
    using ProcessBlockCall = void*(WINAPI*)();
    constexpr size_t kTable = 0xF8;  // in the process's block
    const auto call = reinterpret_cast<ProcessBlockCall>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "RtlGetCurrentPeb")));
    if (!call) return 0;
    const auto* table = *reinterpret_cast<const GdiTableRow* const*>(static_cast<const char*>(call()) + kTable);
    MEMORY_BASIC_INFORMATION memory{};
    if (!table || !VirtualQuery(table, &memory, sizeof memory)) return 0;
    int count = 0;
    for (size_t i = 0; i < memory.RegionSize / sizeof *table; ++i) count += table[i].type != 0;
    return count;
}

// The system keeps device contexts that were given back, up to some number. All of those are made, so that they do not
// look like growth.
inline void FillContextCache() {
    HDC contexts[80];
    for (HDC& dc : contexts) dc = GetDC(nullptr);
    for (const HDC dc : contexts) ReleaseDC(nullptr, dc);
}

inline int CountUserHandles() {
    int count = 0;
    for (uintptr_t value = 0x20; value < 0x10000; value += 2) {
        ICONINFO icon{};
        if (IsWindow(reinterpret_cast<HWND>(value)) || IsMenu(reinterpret_cast<HMENU>(value))) {
            ++count;
        } else if (GetIconInfo(reinterpret_cast<HICON>(value), &icon)) {
            ++count;
            DeleteObject(icon.hbmMask);
            if (icon.hbmColor) DeleteObject(icon.hbmColor);
        }
    }
    return count;
}

inline int GdiObjects() {
    if (const DWORD told = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS)) return static_cast<int>(told);
    FillContextCache();
    return CountGdiTable();
}

// Windows, menus, icons and cursors; where handles are tried, the windows of other processes too.
inline int UserObjects() {
    const DWORD told = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
    return told ? static_cast<int>(told) : CountUserHandles();
}
