// UiControls.cpp - reads and works controls of another process.
#include "UiControls.h"

#include "UiDriver.h"

namespace ui {
namespace {

constexpr size_t kTextOffset = 1024;  // the text lies behind the structure that points to it
constexpr int kTextCharacters = 512;
constexpr size_t kItemBytes = kTextOffset + (kTextCharacters + 1) * sizeof(wchar_t);

LPARAM Address(const RemoteMemory& memory) { return reinterpret_cast<LPARAM>(memory.address); }

wchar_t* TextAddress(const RemoteMemory& memory) { return reinterpret_cast<wchar_t*>(memory.address + kTextOffset); }

std::wstring ReadItemText(const RemoteMemory& memory) {
    wchar_t text[kTextCharacters + 1] = L"";
    memory.Get(text, kTextCharacters * sizeof(wchar_t), kTextOffset);
    return text;
}

std::wstring BoxText(HWND box, int index, UINT lengthMessage, UINT textMessage) {
    LRESULT length = SendMessageW(box, lengthMessage, static_cast<WPARAM>(index), 0);
    if (length < 0) return L"";
    std::wstring text(static_cast<size_t>(length) + 1, 0);
    SendMessageW(box, textMessage, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<size_t>(length));
    return text;
}

void NotifyOwner(HWND control, UINT code) {
    SendMessageW(GetParent(control), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(control), code),
                 reinterpret_cast<LPARAM>(control));
}

}  // namespace

RemoteMemory::RemoteMemory(HWND window, size_t bytes) {
    process = OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, ProcessOf(window));
    address = static_cast<char*>(VirtualAllocEx(process, nullptr, bytes, MEM_COMMIT, PAGE_READWRITE));
}

RemoteMemory::~RemoteMemory() {
    VirtualFreeEx(process, address, 0, MEM_RELEASE);
    CloseHandle(process);
}

bool RemoteMemory::Put(const void* data, size_t bytes, size_t offset) const {
    return WriteProcessMemory(process, address + offset, data, bytes, nullptr) != 0;
}

bool RemoteMemory::Get(void* data, size_t bytes, size_t offset) const {
    return ReadProcessMemory(process, address + offset, data, bytes, nullptr) != 0;
}

int ListRows(HWND list) { return static_cast<int>(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0)); }

std::wstring ListText(HWND list, int row, int column) {
    RemoteMemory memory(list, kItemBytes);
    LVITEMW item = {};
    item.iSubItem = column;
    item.cchTextMax = kTextCharacters;
    item.pszText = TextAddress(memory);
    memory.Put(&item, sizeof item);
    SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), Address(memory));
    return ReadItemText(memory);
}

std::wstring ListColumnTitle(HWND list, int column) {
    RemoteMemory memory(list, kItemBytes);
    LVCOLUMNW title = {};
    title.mask = LVCF_TEXT;
    title.cchTextMax = kTextCharacters;
    title.pszText = TextAddress(memory);
    memory.Put(&title, sizeof title);
    SendMessageW(list, LVM_GETCOLUMNW, static_cast<WPARAM>(column), Address(memory));
    return ReadItemText(memory);
}

void SelectListRow(HWND list, int row) {
    RemoteMemory memory(list, kItemBytes);
    LVITEMW item = {};
    item.stateMask = item.state = LVIS_SELECTED | LVIS_FOCUSED;
    memory.Put(&item, sizeof item);
    SendMessageW(list, LVM_SETITEMSTATE, static_cast<WPARAM>(row), Address(memory));
}

RECT ListRowRect(HWND list, int row) {
    RemoteMemory memory(list, sizeof(RECT));
    RECT rect = { LVIR_BOUNDS, 0, 0, 0 };
    memory.Put(&rect, sizeof rect);
    SendMessageW(list, LVM_GETITEMRECT, static_cast<WPARAM>(row), Address(memory));
    memory.Get(&rect, sizeof rect);
    return rect;
}

HTREEITEM NextTreeItem(HWND tree, UINT relation, HTREEITEM item) {
    return reinterpret_cast<HTREEITEM>(SendMessageW(tree, TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(item)));
}

std::wstring TreeText(HWND tree, HTREEITEM item) {
    RemoteMemory memory(tree, kItemBytes);
    TVITEMW request = {};
    request.mask = TVIF_TEXT;
    request.hItem = item;
    request.cchTextMax = kTextCharacters;
    request.pszText = TextAddress(memory);
    memory.Put(&request, sizeof request);
    SendMessageW(tree, TVM_GETITEMW, 0, Address(memory));
    return ReadItemText(memory);
}

RECT TreeItemRect(HWND tree, HTREEITEM item) {
    RemoteMemory memory(tree, sizeof(RECT));
    memory.Put(&item, sizeof item);
    SendMessageW(tree, TVM_GETITEMRECT, TRUE, Address(memory));
    RECT rect = {};
    memory.Get(&rect, sizeof rect);
    return rect;
}

RECT ToolButtonRect(HWND toolbar, int id) {
    RemoteMemory memory(toolbar, sizeof(RECT));
    RECT rect = {};
    memory.Put(&rect, sizeof rect);
    SendMessageW(toolbar, TB_GETRECT, static_cast<WPARAM>(id), Address(memory));
    memory.Get(&rect, sizeof rect);
    return rect;
}

int ToolButtonState(HWND toolbar, int id) {
    return static_cast<int>(SendMessageW(toolbar, TB_GETSTATE, static_cast<WPARAM>(id), 0));
}

std::wstring ListBoxText(HWND box, int index) { return BoxText(box, index, LB_GETTEXTLEN, LB_GETTEXT); }
std::wstring ComboText(HWND combo, int index) { return BoxText(combo, index, CB_GETLBTEXTLEN, CB_GETLBTEXT); }

void PickInCombo(HWND combo, int index) {
    SendMessageW(combo, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
    NotifyOwner(combo, CBN_SELENDOK);
    NotifyOwner(combo, CBN_SELCHANGE);
}

void PickInListBox(HWND box, int index) {
    SendMessageW(box, LB_SETCURSEL, static_cast<WPARAM>(index), 0);
    NotifyOwner(box, LBN_SELCHANGE);
}

}  // namespace ui
