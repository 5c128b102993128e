// Json.cpp - see Json.h.
#include "cli/Json.h"

#include <charconv>
#include <cmath>
#include <cstdio>

namespace cli {

namespace {

void StartValue(JsonWriter* json) {
    if (json->needsComma) json->text += ", ";
    json->needsComma = true;
}

void Open(JsonWriter* json, char bracket) {
    StartValue(json);
    json->text += bracket;
    json->needsComma = false;
}

void Close(JsonWriter* json, char bracket) {
    json->text += bracket;
    json->needsComma = true;
}

void AppendEscaped(std::string* text, char c) {
    switch (c) {
    case '"': *text += "\\\""; return;
    case '\\': *text += "\\\\"; return;
    case '\n': *text += "\\n"; return;
    case '\r': *text += "\\r"; return;
    case '\t': *text += "\\t"; return;
    default: break;
    }
    const auto byte = static_cast<uint8_t>(c);
    if (byte >= 0x20) {
        *text += c;
        return;
    }
    char escape[8];
    std::snprintf(escape, sizeof escape, "\\u%04x", unsigned{ byte });
    *text += escape;
}

void AppendQuoted(JsonWriter* json, std::string_view utf8) {
    json->text += '"';
    for (char c : utf8) AppendEscaped(&json->text, c);
    json->text += '"';
}

}  // namespace

void OpenObject(JsonWriter* json) { Open(json, '{'); }
void CloseObject(JsonWriter* json) { Close(json, '}'); }
void OpenArray(JsonWriter* json) { Open(json, '['); }
void CloseArray(JsonWriter* json) { Close(json, ']'); }

void Key(JsonWriter* json, std::string_view key) {
    StartValue(json);
    AppendQuoted(json, key);
    json->text += ": ";
    json->needsComma = false;
}

void LineBreak(JsonWriter* json) {
    if (json->needsComma) json->text += ',';
    json->text += '\n';
    json->needsComma = false;
}

void WriteText(JsonWriter* json, std::string_view utf8) {
    StartValue(json);
    AppendQuoted(json, utf8);
}

void WriteInteger(JsonWriter* json, int64_t value) {
    StartValue(json);
    json->text += std::to_string(value);
}

void WriteFloat(JsonWriter* json, float value) {
    if (!std::isfinite(value)) return WriteNull(json);
    StartValue(json);
    char digits[32];
    const auto end = std::to_chars(digits, digits + sizeof digits, value);
    json->text.append(digits, end.ptr);
}

void WriteFixed(JsonWriter* json, double value, int decimals) {
    if (!std::isfinite(value)) return WriteNull(json);
    StartValue(json);
    char digits[400];  // the largest double has 309 digits before its point
    const auto end = std::to_chars(digits, digits + sizeof digits, value, std::chars_format::fixed, decimals);
    json->text.append(digits, end.ptr);
}

void WriteBoolean(JsonWriter* json, bool value) {
    StartValue(json);
    json->text += value ? "true" : "false";
}

void WriteNull(JsonWriter* json) {
    StartValue(json);
    json->text += "null";
}

}  // namespace cli
