// CodePoint.h - reading and writing UTF-8 one code point at a time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace platform {

// Takes one code point off the front of the text, which is not empty. A half of a surrogate pair counts as one; a
// broken sequence gives -1 and loses one byte.
inline int32_t TakeCodePoint(std::string_view* text) {
    const auto lead = static_cast<uint8_t>(text->front());
    const size_t length = lead < 0x80 ? 1 : lead < 0xC2 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF5 ? 4 : 0;
    uint32_t code = length <= 1 ? lead : lead & (0x7Fu >> length);
    bool good = length != 0 && text->size() >= length;
    for (size_t i = 1; good && i < length; ++i) {
        const auto byte = static_cast<uint8_t>((*text)[i]);
        good = (byte & 0xC0) == 0x80;
        code = code << 6 | (byte & 0x3F);
    }
    constexpr uint32_t kFirstOfLength[5] = { 0, 0, 0x80, 0x800, 0x10000 };
    good = good && code >= kFirstOfLength[length] && code <= 0x10FFFF;
    text->remove_prefix(good ? length : 1);
    return good ? static_cast<int32_t>(code) : -1;
}

// A half of a surrogate pair is written like any other code point.
inline void AppendUtf8(uint32_t code, std::string* text) {
    if (code < 0x80) {
        text->push_back(static_cast<char>(code));
        return;
    }
    const int tail = code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
    constexpr uint32_t kLead[4] = { 0, 0xC0, 0xE0, 0xF0 };
    text->push_back(static_cast<char>(kLead[tail] | code >> (6 * tail)));
    for (int i = tail - 1; i >= 0; --i) text->push_back(static_cast<char>(0x80 | (code >> (6 * i) & 0x3F)));
}

}  // namespace platform
