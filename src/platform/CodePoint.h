// CodePoint.h - reading UTF-8 one code point at a time.
#pragma once

#include <cstddef>
#include <cstdint>
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

}  // namespace platform
