// AircraftEdits.cpp - see AircraftEdits.h.
#include "aircraft/AircraftEdits.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdio>
#include <string_view>

#include "aircraft/FilePair.h"
#include "aircraft/ModelFile.h"
#include "aircraft/ParkingTypes.h"
#include "app/ParkingSpecs.h"
#include "platform/Files.h"
#include "platform/Platform.h"
#include "platform/Text.h"

namespace aircraft {

namespace {

constexpr uint64_t kFileLimit = 256 << 20;  // bytes

bool RefuseField(const std::string& text, AircraftField field, AircraftField* bad) {
    *bad = field;
    return platform::ShowError(text);
}

std::string Trimmed(std::string_view text) { return std::string(platform::Trimmed(text)); }

// 0 for anything but a number of metres that a model may have.
uint32_t RadiusFrom(const std::string& entered) {
    const std::string digits = Trimmed(entered);
    uint32_t radius = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), radius);
    const bool number = error == std::errc() && end == digits.data() + digits.size();
    return number && radius >= kLeastRadius && radius <= kMostRadius ? radius : 0;
}

bool RefuseRadius(AircraftField* bad) {
    char text[80];
    std::snprintf(text, sizeof text, "Radius must be between %u and %u metres", kLeastRadius, kMostRadius);
    return RefuseField(text, AircraftField::Radius, bad);
}

bool ReadFileOrRefuse(const std::string& path, std::vector<uint8_t>* bytes) {
    return platform::ReadWholeFile(path, kFileLimit, bytes) || platform::ShowError("Unable to read file\n" + path);
}

// The configuration's bytes in *before and as a text that goes back to those bytes.
bool ReadConfig(const std::string& path, std::vector<uint8_t>* before, ConfigText* config) {
    if (!ReadFileOrRefuse(path, before)) return false;
    *config = DecodeConfig(*before);
    return EncodeConfig(*config) == *before || platform::ShowError("The encoding of this file is damaged\n" + path);
}

bool HasSection(const ConfigText& config, const std::string& section) {
    const std::vector<platform::IniSection> sections = platform::ParseIni(config.text);
    return FindSection(sections, section) != nullptr;
}

bool RefuseValue(const char* what, AircraftField field, AircraftField* bad) {
    return RefuseField(std::string("The ") + what + " contains something that Aircraft.cfg cannot hold", field, bad);
}

// What differs is written; the types always go out in the simulator's own words.
bool EditConfig(const Aircraft& aircraft, const AircraftFields& entered, ConfigText* config, AircraftField* bad) {
    const std::string section = SectionName(aircraft.number);
    std::string types, unknown;
    NormaliseTypes(entered.types, &types, &unknown);
    if (entered.airline != aircraft.shown.airline &&
        !SetConfigValue(config, section, kAirlineKey, Trimmed(entered.airline)))
        return RefuseValue("ATC airline", AircraftField::Airline, bad);
    if (!SetConfigValue(config, section, kTypesKey, types))
        return RefuseValue("parking type", AircraftField::Types, bad);
    if (entered.code != aircraft.shown.code && !SetConfigValue(config, section, kCodesKey, Trimmed(entered.code)))
        return RefuseValue("parking code", AircraftField::Code, bad);
    return true;
}

bool AddConfigChange(const Aircraft& aircraft, const AircraftFields& entered, std::vector<FileChange>* changes,
                     AircraftField* bad) {
    const AircraftFields& shown = aircraft.shown;
    if (entered.airline == shown.airline && entered.types == shown.types && entered.code == shown.code) return true;
    FileChange change{ aircraft.configPath, {}, {}, true };
    ConfigText config;
    if (!ReadConfig(aircraft.configPath, &change.before, &config)) return false;
    if (!HasSection(config, SectionName(aircraft.number)))
        return platform::ShowError("This variation is no longer in\n" + aircraft.configPath);
    if (!EditConfig(aircraft, entered, &config, bad)) return false;
    change.after = EncodeConfig(config);
    if (change.after != change.before) changes->push_back(std::move(change));
    return true;
}

bool AddModelChange(const Aircraft& aircraft, uint32_t radius, std::vector<FileChange>* changes) {
    if (radius == aircraft.radius) return true;
    FileChange change{ aircraft.modelPath, {}, {}, true };
    if (!ReadFileOrRefuse(aircraft.modelPath, &change.before)) return false;
    if (RadiusOf(change.before) == 0)
        return platform::ShowError("This model no longer has a radius\n" + aircraft.modelPath);
    change.after = change.before;
    for (size_t i = 0; i < sizeof radius; ++i) change.after[kRadiusOffset + i] = static_cast<uint8_t>(radius >> 8 * i);
    changes->push_back(std::move(change));
    return true;
}

bool WriteOrRefuse(const std::vector<FileChange>& changes) {
    std::string failed;
    return WriteChanges(changes, &failed) || platform::ShowError("Unable to write file\n" + failed);
}

// Takes the three values from the backup's section of the same number. A backup without that section has nothing to
// take: then *found is false and the values stay.
bool AddConfigRestore(const Aircraft& aircraft, std::vector<FileChange>* changes, bool* found) {
    FileChange change{ aircraft.configPath, {}, {}, false };
    ConfigText config, backup;
    std::vector<uint8_t> bytes;
    if (!ReadConfig(aircraft.configPath, &change.before, &config)) return false;
    if (!ReadFileOrRefuse(aircraft.configPath + kBackupEnd, &bytes)) return false;
    backup = DecodeConfig(bytes);
    const std::string name = SectionName(aircraft.number);
    const std::vector<platform::IniSection> sections = platform::ParseIni(backup.text);
    const platform::IniSection* section = FindSection(sections, name);
    *found = section != nullptr;
    if (!section) return true;
    for (const char* key : { kAirlineKey, kTypesKey, kCodesKey }) {
        if (!SetConfigValue(&config, name, key, ConfigValue(backup, *section, key)))
            return platform::ShowError("Unable to restore " + std::string(key) + " in\n" + aircraft.configPath);
    }
    change.after = EncodeConfig(config);
    if (change.after != change.before) changes->push_back(std::move(change));
    return true;
}

// A model that is gone comes back too.
bool AddModelRestore(const Aircraft& aircraft, std::vector<FileChange>* changes) {
    const std::string backup = aircraft.modelPath + kBackupEnd;
    if (aircraft.modelPath.empty() || !platform::FileExists(backup)) return true;
    FileChange change{ aircraft.modelPath, {}, {}, false };
    if (platform::FileExists(aircraft.modelPath) && !ReadFileOrRefuse(aircraft.modelPath, &change.before)) return false;
    if (!ReadFileOrRefuse(backup, &change.after)) return false;
    if (change.after != change.before) changes->push_back(std::move(change));
    return true;
}

}  // namespace

Aircraft LoadAircraft(const Variation& row) {
    Aircraft aircraft;
    std::vector<uint8_t> bytes;
    const std::string path = FileIn(row.folder, "Aircraft.cfg");
    if (path.empty() || !platform::ReadWholeFile(path, kFileLimit, &bytes)) return aircraft;
    const ConfigText config = DecodeConfig(bytes);
    const std::vector<platform::IniSection> sections = platform::ParseIni(config.text);
    const platform::IniSection* section = FindSection(sections, SectionName(row.number));
    if (!section) return aircraft;

    aircraft.title = platform::FirstCharacters(ShownText(config, platform::IniValue(*section, kTitleKey)), kTitleLimit);
    aircraft.shown.airline = platform::FirstCharacters(ConfigValue(config, *section, kAirlineKey), kAirlineLimit);
    aircraft.shown.types = platform::FirstCharacters(ConfigValue(config, *section, kTypesKey), kTypesLimit);
    aircraft.shown.code = FirstCode(ConfigValue(config, *section, kCodesKey));
    aircraft.modelPath = FindModelFile(row.folder, ModelOf(config, *section));
    aircraft.radius = ReadRadius(aircraft.modelPath);
    if (aircraft.radius) aircraft.shown.radius = std::to_string(aircraft.radius);
    aircraft.hasBackup = platform::FileExists(path + kBackupEnd);
    aircraft.configPath = path;
    aircraft.number = row.number;
    return aircraft;
}

bool ApplyFields(const Aircraft& aircraft, const AircraftFields& entered, AircraftField* bad) {
    *bad = AircraftField::None;
    if (aircraft.configPath.empty()) return true;
    const uint32_t radius = aircraft.radius ? RadiusFrom(entered.radius) : 0;
    if (aircraft.radius && !radius) return RefuseRadius(bad);
    std::string types, unknown;
    if (!NormaliseTypes(entered.types, &types, &unknown))
        return RefuseField("Unknown parking type '" + unknown + "'", AircraftField::Types, bad);
    std::vector<FileChange> changes;
    return AddConfigChange(aircraft, entered, &changes, bad) && AddModelChange(aircraft, radius, &changes) &&
           WriteOrRefuse(changes);
}

bool RestoreAircraft(const Aircraft& aircraft) {
    if (aircraft.configPath.empty() || !platform::FileExists(aircraft.configPath + kBackupEnd)) return true;
    std::vector<FileChange> changes;
    bool found = false;
    if (!AddConfigRestore(aircraft, &changes, &found) || !AddModelRestore(aircraft, &changes)) return false;
    if (!found && changes.empty())
        return platform::ShowError("This variation is not in\n" + aircraft.configPath + kBackupEnd);
    return WriteOrRefuse(changes);
}

std::vector<CodeChoice> CodeChoices() {
    std::vector<CodeChoice> choices;
    for (const app::ParkingSpec& spec : app::parkingSpecs) {
        for (const std::string& listed : spec.codes) {
            const std::string code = platform::UpperCased(listed);
            choices.push_back({ code, code + " - " + spec.name });
        }
    }
    return choices;
}

int CodeChoiceOf(const std::vector<CodeChoice>& choices, const std::string& code) {
    const auto found = std::find_if(choices.begin(), choices.end(), [&](const CodeChoice& choice) {
        return !code.empty() && platform::EqualNoCase(choice.code, code);
    });
    return found == choices.end() ? -1 : static_cast<int>(found - choices.begin());
}

}  // namespace aircraft
