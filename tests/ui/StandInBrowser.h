// StandInBrowser.h - a browser that writes down what it was asked to open: driver.exe, registered for web addresses
// and for the files of a page. What was registered before comes back at the end.
#pragma once

#include <windows.h>

#include <cstdio>
#include <string>
#include <vector>

#include "UiDriver.h"

namespace ui {

class StandInBrowser {
public:
    StandInBrowser() {
        DeleteFileW(kNotes);
        wchar_t path[MAX_PATH] = L"";
        GetModuleFileNameW(nullptr, path, MAX_PATH);
        const std::wstring folder = std::wstring(path).substr(0, std::wstring(path).find_last_of(L'\\'));
        const std::wstring command = L"\"" + folder + L"\\driver.exe\" note " + kNotes + L" \"%1\"";
        Replace(L".htm", L"TarvoTestPage");
        Replace(L"TarvoTestPage\\shell\\open\\command", command);
        Replace(L"http\\shell\\open\\command", command);
    }
    ~StandInBrowser() {
        for (const Value& value : before)
            RegSetValueW(HKEY_CLASSES_ROOT, value.key.c_str(), REG_SZ, value.text.c_str(), 0);
        DeleteFileW(kNotes);
    }
    StandInBrowser(const StandInBrowser&) = delete;
    StandInBrowser& operator=(const StandInBrowser&) = delete;

    // What it was asked to open so far, one line each.
    static std::string Opened() {
        std::string text;
        if (FILE* file = _wfopen(kNotes, L"rb")) {
            for (int c; (c = fgetc(file)) != EOF;) text += static_cast<char>(c);
            fclose(file);
        }
        return text;
    }
    static bool WaitForOpened(const std::string& lines) {
        return WaitUntil([&] { return Opened() == lines; });
    }

private:
    static constexpr wchar_t kNotes[] = L"C:\\UiTest\\Opened.txt";
    struct Value {
        std::wstring key, text;
    };
    std::vector<Value> before;

    void Replace(const std::wstring& key, const std::wstring& text) {
        wchar_t old[1024] = L"";
        LONG bytes = sizeof old;
        RegQueryValueW(HKEY_CLASSES_ROOT, key.c_str(), old, &bytes);
        before.push_back({ key, old });
        RegSetValueW(HKEY_CLASSES_ROOT, key.c_str(), REG_SZ, text.c_str(), 0);
    }
};

}  // namespace ui
