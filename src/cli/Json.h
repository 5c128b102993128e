// Json.h - writes JSON text. The caller keeps to the grammar: a value or a container after each key.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace cli {

struct JsonWriter {
    std::string text;
    bool needsComma = false;  // a value stands before the next one
};

void OpenObject(JsonWriter* json);
void CloseObject(JsonWriter* json);
void OpenArray(JsonWriter* json);
void CloseArray(JsonWriter* json);
void Key(JsonWriter* json, std::string_view key);
void LineBreak(JsonWriter* json);  // before the next value, for the eyes only

void WriteText(JsonWriter* json, std::string_view utf8);
void WriteInteger(JsonWriter* json, int64_t value);
void WriteFloat(JsonWriter* json, float value);                 // the shortest text that reads back equal
void WriteFixed(JsonWriter* json, double value, int decimals);  // both: null when not finite
void WriteBoolean(JsonWriter* json, bool value);
void WriteNull(JsonWriter* json);

}  // namespace cli
