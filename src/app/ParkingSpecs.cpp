// ParkingSpecs.cpp - reads the parking specs, one a line: name, red, green, blue, code, code, ...
//
// A ";" ends a line wherever it stands. After a bad colour the line goes on without one; a bad code drops
// the rest of its line's codes.
#include "app/ParkingSpecs.h"

#include <algorithm>
#include <string_view>

#include "platform/Files.h"
#include "platform/IniText.h"
#include "platform/Platform.h"
#include "platform/Text.h"

namespace app {

std::vector<ParkingSpec> parkingSpecs;

namespace {

constexpr const char* kFileName = "ParkingSpecs.txt";
constexpr uint64_t kFileLimit = 16 * 1024 * 1024;
constexpr size_t kLineLimit = 1000, kCodeLimit = 4;  // characters
constexpr const char* kNameMissing = "The parking spec name (e.g. \"Air India\") is missing.";
constexpr const char* kBadColour =
    "Bad syntax for the RGB colour field.\nIt should look something like \"100,255,255\"\n"
    "or use four commas: ,,,, to omit the colour field";

void Complain(std::string_view line, const std::string& what) {
    std::string text = "Error found in ";
    text.append(kFileName).append(" file on the following line:\n\n").append(line).append("\n\n").append(what);
    platform::ShowRefusal(text);
}

// The fields of a line, trimmed.
std::vector<std::string_view> FieldsOf(std::string_view line) {
    line = line.substr(0, line.find(';'));
    std::vector<std::string_view> fields;
    for (;;) {
        const size_t comma = line.find(',');
        fields.push_back(platform::Trimmed(line.substr(0, comma)));
        if (comma == std::string_view::npos) return fields;
        line.remove_prefix(comma + 1);
    }
}

// A decimal number that begins with a digit, at most 255. What follows the digits does not count.
bool ReadChannel(std::string_view field, uint8_t* channel) {
    int value = 0;
    size_t digits = 0;
    for (; digits < field.size() && field[digits] >= '0' && field[digits] <= '9'; ++digits) {
        value = std::min(value * 10 + (field[digits] - '0'), 255);
    }
    *channel = static_cast<uint8_t>(value);
    return digits > 0;
}

// Fields 2 to 4. False for a bad colour; all three empty or absent is no colour.
bool ReadColour(const std::vector<std::string_view>& fields, ParkingSpec* spec) {
    std::string_view channels[3];
    for (size_t i = 0; i < 3 && i + 1 < fields.size(); ++i) channels[i] = fields[i + 1];
    if (channels[0].empty() && channels[1].empty() && channels[2].empty()) return true;
    uint8_t values[3];
    for (size_t i = 0; i < 3; ++i) {
        if (!ReadChannel(channels[i], &values[i])) return false;
    }
    spec->hasColour = true;
    spec->red = values[0], spec->green = values[1], spec->blue = values[2];
    spec->halfRed = values[0] / 2, spec->halfGreen = values[1] / 2, spec->halfBlue = values[2] / 2;
    return true;
}

void ReadLine(std::string_view line) {
    const std::string_view text = platform::Trimmed(line);
    if (text.empty() || text.front() == ';') return;
    const std::vector<std::string_view> fields = FieldsOf(text);
    if (fields[0].empty()) {
        Complain(text, kNameMissing);
        return;
    }
    ParkingSpec spec;
    spec.name = fields[0];
    if (!ReadColour(fields, &spec)) Complain(text, kBadColour);
    for (size_t i = 4; i < fields.size() && !fields[i].empty(); ++i) {
        if (platform::CharacterCount(fields[i]) > kCodeLimit) {
            Complain(text, "The parking code \"" + std::string(fields[i]) + "\" is more than 4 characters long\n");
            break;
        }
        spec.codes.emplace_back(fields[i]);
    }
    parkingSpecs.push_back(std::move(spec));
}

}  // namespace

bool LoadParkingSpecs(const std::string& programFolder) {
    parkingSpecs.clear();
    std::vector<uint8_t> bytes;
    if (!platform::ReadWholeFile(programFolder + "\\" + kFileName, kFileLimit, &bytes)) return false;
    const std::string text = platform::DecodeIniText(bytes);  // people write it in the editors they write INI files in
    for (size_t start = 0; start < text.size();) {
        const size_t end = std::min(text.find_first_of("\r\n", start), text.size());
        ReadLine(platform::FirstCharacters(std::string_view(text).substr(start, end - start), kLineLimit));
        start = end + 1;
    }
    return true;
}

}  // namespace app
