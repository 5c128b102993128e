// SpotColours.cpp - see SpotColours.h.
#include "map/SpotColours.h"

#include <cstring>

#include "map/MapView.h"
#include "model/Records.h"
#include "model/SpotBits.h"
#include "platform/Text.h"

namespace map {

namespace {

using model::kParkingCodeSize;

// Users write codes in ParkingSpecs.txt as they like; what they give to a spot from there is in upper case.
std::string KeyOf(const std::string& code) { return platform::UpperCased(code); }

// The code of a spot, which is zero padded there, as a key.
std::string CodeOf(const model::SceneryObject* spot, uint32_t number) {
    char code[kParkingCodeSize + 1] = {};
    std::memcpy(code, spot->payload + sizeof(model::ParkingSpotRecord) + number * kParkingCodeSize, kParkingCodeSize);
    return KeyOf(platform::Utf8FromWindows1252(code));
}

uint32_t CodeCount(const model::SceneryObject* spot) {
    const size_t room = (spot->payloadSize - sizeof(model::ParkingSpotRecord)) / kParkingCodeSize;
    const uint32_t count = model::ParkingCodeCount(model::PayloadAs<model::ParkingSpotRecord>(spot));
    return count < room ? count : static_cast<uint32_t>(room);
}

std::string Joined(const std::string& codes, const std::string& code) { return codes + code + ','; }

const app::ParkingSpec* Find(const std::unordered_map<std::string, const app::ParkingSpec*>& map,
                             const std::string& key) {
    const auto found = map.find(key);
    return found == map.end() ? nullptr : found->second;
}

}  // namespace

SpecIndex IndexSpecs() {
    SpecIndex index;
    for (const app::ParkingSpec& spec : app::parkingSpecs) {
        if (spec.codes.empty()) continue;
        std::string codes;
        for (const std::string& code : spec.codes) {
            codes = Joined(codes, KeyOf(code));
            index.byAnyCode.emplace(KeyOf(code), &spec);
        }
        index.byCodes.emplace(codes, &spec);
        index.byFirstCode.emplace(KeyOf(spec.codes.front()), &spec);
    }
    return index;
}

const app::ParkingSpec* SpecOfSpot(const SpecIndex& index, const model::SceneryObject* spot) {
    const uint32_t count = CodeCount(spot);
    if (count == 0 || index.byAnyCode.empty()) return nullptr;
    std::string codes;
    for (uint32_t i = 0; i < count; ++i) codes = Joined(codes, CodeOf(spot, i));
    if (const app::ParkingSpec* same = Find(index.byCodes, codes)) return same;
    const std::string first = CodeOf(spot, 0);
    const app::ParkingSpec* own = Find(index.byFirstCode, first);
    return own ? own : Find(index.byAnyCode, first);
}

Colour ColourOfSpec(const app::ParkingSpec& spec) {
    const Colour colour = layers.lights ? platform::Rgb(spec.halfRed, spec.halfGreen, spec.halfBlue)
                                        : platform::Rgb(spec.red, spec.green, spec.blue);
    return colour == platform::kNoBrush ? colour + 1 : colour;  // the shade of black that would fill nothing
}

}  // namespace map
