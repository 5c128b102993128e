// DumpValues.cpp - see DumpValues.h.
#include "cli/DumpValues.h"

#include <algorithm>

#include "model/Ident.h"
#include "model/Names.h"
#include "platform/Text.h"

namespace cli {

namespace {

constexpr int kDegreeDecimals = 8;  // a millimetre; an encoded unit is four centimetres
constexpr double kMetresPerUnit = 0.001;

void Degrees(JsonWriter* json, double radians) {
    WriteFixed(json, radians * model::kDegreesPerRadian, kDegreeDecimals);
}

}  // namespace

void Integer(JsonWriter* json, const char* key, int64_t value) {
    Key(json, key);
    WriteInteger(json, value);
}

void Float(JsonWriter* json, const char* key, float value) {
    Key(json, key);
    WriteFloat(json, value);
}

void Boolean(JsonWriter* json, const char* key, bool value) {
    Key(json, key);
    WriteBoolean(json, value);
}

void Text(JsonWriter* json, const char* key, std::string_view utf8) {
    Key(json, key);
    WriteText(json, utf8);
}

void Name(JsonWriter* json, const char* key, const char* begin, size_t size) {
    Text(json, key, platform::Utf8FromWindows1252({ begin, std::find(begin, begin + size, '\0') }));
}

void Elevation(JsonWriter* json, const char* key, int32_t millimetres) {
    Key(json, key);
    WriteFixed(json, millimetres * kMetresPerUnit, 3);
}

void Position(JsonWriter* json, model::LatLon position) {
    Key(json, "north");
    Degrees(json, position.lat);
    Key(json, "east");
    Degrees(json, 0 - position.lon);
}

void Position(JsonWriter* json, uint32_t longitude, uint32_t latitude) {
    Position(json, model::BglToLatLon({ latitude, longitude }));
}

void PositionPair(JsonWriter* json, uint32_t longitude, uint32_t latitude) {
    const model::LatLon position = model::BglToLatLon({ latitude, longitude });
    OpenArray(json);
    Degrees(json, position.lat);
    Degrees(json, 0 - position.lon);
    CloseArray(json);
}

void Surface(JsonWriter* json, uint32_t code) {
    Integer(json, "surfaceCode", code);
    if (code < model::kSurfaceCount) Text(json, "surface", model::SurfaceName(code));
}

void Reference(JsonWriter* json, const char* key, const model::SceneryObject* object, const ListPositions& positions) {
    Key(json, key);
    const auto found = positions.find(object);
    if (found == positions.end())
        WriteNull(json);
    else
        WriteInteger(json, found->second);
}

std::string ShiftedIdent(uint32_t field) { return model::UnpackIdent(field >> model::kIdentShift); }

}  // namespace cli
