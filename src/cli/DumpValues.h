// DumpValues.h - values as the dump writes them, each with its key.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "cli/Dump.h"
#include "cli/Json.h"
#include "model/Geodesy.h"

namespace cli {

void Integer(JsonWriter* json, const char* key, int64_t value);
void Float(JsonWriter* json, const char* key, float value);
void Boolean(JsonWriter* json, const char* key, bool value);
void Text(JsonWriter* json, const char* key, std::string_view utf8);

// Up to `size` Windows-1252 characters, fewer when a zero ends them.
void Name(JsonWriter* json, const char* key, const char* begin, size_t size);

void Elevation(JsonWriter* json, const char* key, int32_t millimetres);
void Position(JsonWriter* json, model::LatLon position);  // "north" and "east"
void Position(JsonWriter* json, uint32_t longitude, uint32_t latitude);
void PositionPair(JsonWriter* json, uint32_t longitude, uint32_t latitude);  // [north, east], without a key
void Surface(JsonWriter* json, uint32_t code);

// The object's place in the list; null when it is not there.
void Reference(JsonWriter* json, const char* key, const model::SceneryObject* object, const ListPositions& positions);

std::string ShiftedIdent(uint32_t field);  // of a word that holds it above five other bits

}  // namespace cli
