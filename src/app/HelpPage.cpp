// HelpPage.cpp - see HelpPage.h.
#include "app/HelpPage.h"

#include <algorithm>

#include "app/AppHost.h"
#include "app/AppState.h"
#include "platform/Files.h"

namespace app {

namespace {

constexpr std::string_view kBrowsers[] = { "http", ".htm" };  // where one may be registered, in order
constexpr std::string_view kLongPath = "\\\\?\\", kLongServerPath = "\\\\?\\UNC\\";

bool StaysAsItIs(char character) {
    constexpr std::string_view kUnreserved = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
    return kUnreserved.find(character) != std::string_view::npos;
}

// Every other byte as "%" and two hexadecimal digits; with UTF-8 bytes that is what browsers expect.
std::string Encoded(std::string_view text) {
    constexpr char kDigits[] = "0123456789ABCDEF";
    std::string encoded;
    for (const char character : text) {
        if (StaysAsItIs(character)) {
            encoded += character;
            continue;
        }
        const auto byte = static_cast<unsigned char>(character);
        encoded += '%';
        encoded += kDigits[byte >> 4];
        encoded += kDigits[byte & 15];
    }
    return encoded;
}

// "C:/folder/file" or "//server/share/file".
std::string WithSlashes(std::string_view path) {
    std::string plain;
    if (path.starts_with(kLongServerPath)) {
        plain = "\\\\" + std::string(path.substr(kLongServerPath.size()));
    } else {
        plain = path.starts_with(kLongPath) ? path.substr(kLongPath.size()) : path;
    }
    std::replace(plain.begin(), plain.end(), '\\', '/');
    return plain;
}

}  // namespace

std::string HelpFile(const std::string& programFolder) { return programFolder + "\\ReadMe.htm"; }

std::string FileUrl(std::string_view path, std::string_view topic) {
    const std::string plain = WithSlashes(path);
    const bool hasDrive = plain.size() >= 2 && plain[1] == ':';
    std::string url = "file:";
    if (hasDrive) {
        url += "///" + plain.substr(0, 2) + Encoded(std::string_view(plain).substr(2));
    } else {
        url += Encoded(plain);
    }
    if (topic.starts_with('#')) topic.remove_prefix(1);
    if (!topic.empty()) url += "#" + Encoded(topic);
    return url;
}

std::string BrowserCommand(std::string_view command, std::string_view url) {
    if (command.empty()) return {};
    std::string line(command);
    for (const std::string_view place : { "%1", "%l", "%L" }) {
        const size_t at = line.find(place);
        if (at != std::string::npos) return line.replace(at, place.size(), url);
    }
    return line + " \"" + std::string(url) + "\"";
}

void OpenHelp(std::string_view topic) {
    const std::string page = HelpFile(state.programFolder);
    if (!platform::FileExists(page)) return;
    const std::string url = FileUrl(page, topic);
    for (const std::string_view browser : kBrowsers) {
        if (StartCommand(BrowserCommand(RegisteredCommand(browser), url))) return;
    }
    OpenDocument(page);
}

}  // namespace app
