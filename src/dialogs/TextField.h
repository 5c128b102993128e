// TextField.h - names and identifiers in dialogs. Texts in the file are Windows-1252, in dialogs UTF-8.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "dialogs/Field.h"

namespace dialogs {

constexpr size_t kIdentLimit = 5;  // characters

// The text of a zero-padded buffer as dialogs show it.
std::string ShowText(const char* text, size_t size);

bool IsBlank(std::string_view text);  // empty or blanks only

// The entered text in Windows-1252; false when it holds a character that scenery files cannot hold.
bool ToSceneryText(const std::string& entered, std::string* encoded);

// The same with messages. Refused when it is longer than `most` characters or holds one that
// scenery files cannot hold; `what` is for example "name".
bool EncodeText(const char* what, const std::string& entered, size_t most, std::string* encoded);

// Writes a changed text into a buffer of `size` bytes, padded with zeros and ended by at least one.
bool ReadName(const std::string& shown, const std::string& entered, char* buffer, size_t size, BadField* bad);

// An identifier of `least` (0 or 1) to 5 letters or digits, upper-cased and packed, not shifted. An
// unchanged text leaves *packed alone.
bool ReadIdent(const std::string& shown, const std::string& entered, size_t least, uint32_t* packed, BadField* bad);

// The same for a record's shifted ident word, whose low five bits are kept.
bool ReadIdentWord(const std::string& shown, const std::string& entered, size_t least, uint8_t* place, BadField* bad);
std::string ShowIdentWord(const uint8_t* place);

// Refuses the empty identifier of a new record.
bool RequireIdent(const std::string& entered, BadField* bad);

}  // namespace dialogs
