// Any bytes as an aircraft.cfg. Listing it never harms; a value that is accepted reads back, nothing else of the file
// changes, and the old value brings the old bytes back.
#include <cstddef>
#include <string>
#include <vector>

#include "aircraft/ConfigText.h"
#include "aircraft/ParkingTypes.h"
#include "aircraft/Variations.h"
#include "fakes/FakePlatform.h"
#include "SavedAirport.h"

namespace {

using namespace aircraft;

// All values of the file but the first one of that key in that section.
std::vector<std::string> OtherValues(const ConfigText& config, std::string_view name, std::string_view key) {
    std::vector<std::string> values;
    const auto sections = platform::ParseIni(config.text);
    const auto* edited = FindSection(sections, name);
    for (const auto& section : sections) {
        bool passed = false;
        values.emplace_back(section.name);
        for (const auto& value : section.values) {
            const bool skip =
                &section == edited && !passed && platform::IniValue(section, key).data() == value.second.data();
            passed |= skip;
            if (!skip) values.push_back(std::string(value.first) + "=" + std::string(value.second));
        }
    }
    return values;
}

std::string ValueOf(const ConfigText& config, const std::string& name, const char* key, bool* present) {
    const auto sections = platform::ParseIni(config.text);
    const auto* section = FindSection(sections, name);
    Require(section != nullptr, "a listed variation has a section");
    *present = platform::IniValue(*section, key).data() != nullptr;
    return ConfigValue(config, *section, key);
}

void RequireThatAnEditStaysWhereItIs(const ConfigText& config, const std::string& name, const char* key) {
    bool present = false;
    const std::string old = ValueOf(config, name, key, &present);
    for (const std::string value : { "KLM", "", "a b=c" }) {
        ConfigText edited = config;
        if (!SetConfigValue(&edited, name, key, value)) {
            Require(edited.text == config.text, "what is refused changes nothing");
            continue;
        }
        bool now = false;
        const ConfigText again = DecodeConfig(EncodeConfig(edited));
        Require(ValueOf(again, name, key, &now) == value, "what is written reads back");
        Require(OtherValues(again, name, key) == OtherValues(config, name, key), "all other values stay");
        if (!present || !SetConfigValue(&edited, name, key, old)) continue;
        Require(ValueOf(edited, name, key, &now) == old, "the old value is back");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    ResetFakes();
    const ConfigText config = DecodeConfig({ data, size });
    if (config.encoding != Encoding::Utf16)
        Require(EncodeConfig(config) == std::vector<uint8_t>(data, data + size), "an untouched file keeps its bytes");
    std::string types, unknown;
    NormaliseTypes({ reinterpret_cast<const char*>(data), size }, &types, &unknown);
    const std::vector<Variation> rows = VariationsOf("/nonexistent", config);
    for (size_t i = 0; i < rows.size() && i < 3; ++i) {
        for (const char* key : { kAirlineKey, kTypesKey, kCodesKey })
            RequireThatAnEditStaysWhereItIs(config, SectionName(rows[i].number), key);
    }
    return 0;
}
