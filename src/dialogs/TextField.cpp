// TextField.cpp - see TextField.h.
#include "dialogs/TextField.h"

#include <algorithm>
#include <cstring>

#include "dialogs/NumberField.h"
#include "model/Ident.h"
#include "platform/Platform.h"
#include "platform/Text.h"

namespace dialogs {

namespace {

bool IsLetterOrDigit(char c) { return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

bool RefuseIdent(size_t least) {
    platform::ShowError("The identifier must be " + std::to_string(least) + " to 5 letters or digits");
    return false;
}

}  // namespace

std::string ShowText(const char* text, size_t size) {
    return platform::Utf8FromWindows1252(std::string_view(text, std::find(text, text + size, '\0')));
}

bool IsBlank(std::string_view text) { return text.find_first_not_of(" \t") == std::string_view::npos; }

bool ToSceneryText(const std::string& entered, std::string* encoded) {
    bool lossless = true;
    *encoded = platform::Windows1252FromUtf8(entered, &lossless);
    const auto isControl = [](char c) { return static_cast<uint8_t>(c) < ' '; };
    return lossless && std::none_of(encoded->begin(), encoded->end(), isControl);
}

bool EncodeText(const char* what, const std::string& entered, size_t most, std::string* encoded) {
    std::string text;
    if (!ToSceneryText(entered, &text)) {
        platform::ShowError(std::string("The ") + what + " contains a character that scenery files cannot hold");
        return false;
    }
    if (text.size() > most) {
        platform::ShowError(std::string("The ") + what + " may have at most " + std::to_string(most) + " characters");
        return false;
    }
    *encoded = std::move(text);
    return true;
}

bool ReadName(const std::string& shown, const std::string& entered, char* buffer, size_t size, BadField* bad) {
    if (entered == shown) return true;
    std::string name;
    if (!EncodeText("name", entered, size - 1, &name)) {
        *bad = { Field::Name };
        return false;
    }
    std::fill_n(buffer, size, '\0');
    std::copy(name.begin(), name.end(), buffer);
    return true;
}

bool ReadIdent(const std::string& shown, const std::string& entered, size_t least, uint32_t* packed, BadField* bad) {
    if (entered == shown) return true;
    if (entered.size() < least || entered.size() > kIdentLimit ||
        !std::all_of(entered.begin(), entered.end(), IsLetterOrDigit)) {
        *bad = { Field::Ident };
        return RefuseIdent(least);
    }
    *packed = model::PackIdent(entered);
    return true;
}

bool ReadIdentWord(const std::string& shown, const std::string& entered, size_t least, uint8_t* place, BadField* bad) {
    uint32_t word;
    std::memcpy(&word, place, sizeof word);
    uint32_t packed = word >> model::kIdentShift;
    if (!ReadIdent(shown, entered, least, &packed, bad)) return false;
    word = packed << model::kIdentShift | (word & model::kIdentLowBits);
    std::memcpy(place, &word, sizeof word);
    return true;
}

bool RequireIdent(const std::string& entered, BadField* bad) {
    if (!entered.empty()) return true;
    *bad = { Field::Ident };
    return RefuseIdent(1);
}

std::string ShowIdentWord(const uint8_t* place) {
    uint32_t word;
    std::memcpy(&word, place, sizeof word);
    return model::UnpackIdent(word >> model::kIdentShift);
}

}  // namespace dialogs
