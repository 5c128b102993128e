// ProfileWin.cpp - INI files through the system's profile functions.
//
// Those keep a file in the encoding that it has, and make a new one in the 8-bit encoding of the system, where a
// path may lose characters. So a missing file is made as an empty UTF-16 one first, and an 8-bit one becomes
// UTF-16 when it is to take such a text. They know a byte order mark only where it is that of little-endian UTF-16;
// any other one they take for a part of the first line, and lose the section that begins there. A file with such a
// mark is read here, and becomes UTF-16 before anything is written to it.
#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <vector>

#include "platform/Files.h"
#include "platform/IniText.h"
#include "platform/Profile.h"
#include "platform/Text.h"
#include "platform/WideTextWin.h"

namespace platform {

namespace {

constexpr uint64_t kLargestFile = 16u << 20;  // bytes

bool HasForeignMark(std::string_view start) {
    return start.starts_with("\xEF\xBB\xBF") || start.starts_with("\xFE\xFF");
}

std::string_view TextOf(const std::vector<uint8_t>& bytes) {
    return { reinterpret_cast<const char*>(bytes.data()), bytes.size() };
}

bool IsReadHere(const std::string& path) {
    const FileHandle file = OpenForReading(path);
    char start[3];
    return file && HasForeignMark({ start, ReadAt(file.get(), 0, start, sizeof start) });
}

std::string ReadHere(const std::string& file, const std::string& section, const std::string& key,
                     const std::string& fallback) {
    const std::string text = ReadIniText(file);
    for (const IniSection& found : ParseIni(text)) {
        if (!EqualNoCase(found.name, section)) continue;
        for (const auto& [name, value] : found.values) {
            if (EqualNoCase(name, key)) return std::string(value);
        }
    }
    return fallback;
}

bool FitsSystemText(const std::wstring& text) {
    BOOL replaced = FALSE;
    const int size = static_cast<int>(text.size());
    if (size == 0) return true;
    return WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, text.data(), size, nullptr, 0, nullptr, &replaced) > 0 &&
           !replaced;
}

bool WriteAsUtf16(const std::string& file, const std::string& text) {
    const std::wstring wide = L"\xFEFF" + WideFromUtf8(text);
    return WriteFileWhole(file, { reinterpret_cast<const uint8_t*>(wide.data()), wide.size() * sizeof(wchar_t) });
}

// A new file, empty but for the mark. One that is there stays as it is, even when it cannot be read just now.
bool MakeUtf16File(const std::string& file) {
    const HANDLE made =
        CreateFileW(WideFromUtf8(file).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (made == INVALID_HANDLE_VALUE) return GetLastError() == ERROR_FILE_EXISTS;
    constexpr wchar_t kMark = 0xFEFF;
    DWORD written = 0;
    const bool ok = WriteFile(made, &kMark, sizeof kMark, &written, nullptr) && written == sizeof kMark;
    return CloseHandle(made) && ok;
}

// False when the file cannot be made ready to take the text without a loss.
bool PrepareFile(const std::string& file, const std::wstring& text) {
    std::vector<uint8_t> bytes;
    if (!ReadWholeFile(file, kLargestFile, &bytes)) return MakeUtf16File(file);
    if (bytes.empty()) return WriteAsUtf16(file, "");
    if (HasForeignMark(TextOf(bytes))) return WriteAsUtf16(file, DecodeIniText(bytes));
    const bool isUtf16 = bytes.size() >= 2 && bytes[0] == 0xFF && bytes[1] == 0xFE;
    return isUtf16 || FitsSystemText(text) || WriteAsUtf16(file, DecodeIniText(bytes));
}

// Reading takes one pair of quotes and the blanks around a value away.
std::wstring Protected(std::wstring value) {
    std::replace_if(
        value.begin(), value.end(), [](wchar_t c) { return c == L'\r' || c == L'\n' || c == 0; }, L' ');
    if (value.empty()) return value;
    const auto isOdd = [](wchar_t c) { return c == L' ' || c == L'\t' || c == L'"' || c == L'\''; };
    return isOdd(value.front()) || isOdd(value.back()) ? L"\"" + value + L"\"" : value;
}

}  // namespace

std::string ReadProfile(const std::string& file, const std::string& section, const std::string& key,
                        const std::string& fallback, size_t limit) {
    if (IsReadHere(file)) return Utf8FromWide(WideFromUtf8(ReadHere(file, section, key, fallback)).substr(0, limit));
    std::wstring value(limit + 1, L'\0');
    value.resize(GetPrivateProfileStringW(WideFromUtf8(section).c_str(), WideFromUtf8(key).c_str(),
                                          WideFromUtf8(fallback).c_str(), value.data(),
                                          static_cast<DWORD>(value.size()), WideFromUtf8(file).c_str()));
    return Utf8FromWide(value);
}

bool WriteProfile(const std::string& file, const std::string& section, const std::string& key,
                  const std::string& value) {
    const std::wstring text = Protected(WideFromUtf8(value));
    return PrepareFile(file, text) &&
           WritePrivateProfileStringW(WideFromUtf8(section).c_str(), WideFromUtf8(key).c_str(), text.c_str(),
                                      WideFromUtf8(file).c_str()) != 0;
}

std::string Utf8FromSystemText(std::string_view text) {
    const int size = static_cast<int>(std::min<size_t>(text.size(), INT32_MAX));
    std::wstring wide(text.size(), L'\0');
    if (size > 0)
        wide.resize(static_cast<size_t>(MultiByteToWideChar(CP_ACP, 0, text.data(), size, wide.data(), size)));
    return Utf8FromWide(wide);
}

}  // namespace platform
