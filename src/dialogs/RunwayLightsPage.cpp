// RunwayLightsPage.cpp - the lights page of the runway editor: two approach light words and a byte.
#include <charconv>
#include <cstring>
#include <string_view>

#include "dialogs/NumberField.h"
#include "dialogs/RunwayParts.h"
#include "model/Names.h"
#include "model/RunwayBits.h"
#include "platform/Platform.h"

namespace dialogs {

namespace {

constexpr uint32_t kSystemMask = model::kApproachSystemMask, kLevelMask = model::kEdgeLightsMask;

constexpr BitRow<RunwayEndFields> kApproachBits[] = {
    { &RunwayEndFields::endLights, model::kEndLights },
    { &RunwayEndFields::reil, model::kReil },
    { &RunwayEndFields::touchdownLights, model::kTouchdownLights },
};
constexpr BitRow<RunwayFields> kLightBits[] = { { &RunwayFields::redEndLights, model::kRedLights } };

uint16_t WordAt(const SceneryObject* runway, size_t end) {
    uint16_t word;
    std::memcpy(&word, runway->payload + kEndPlaces[end].approachLights, sizeof word);
    return word;
}

// 0x and a leading 0 choose the base, as in C. What does not fit into five bits is cut to them.
bool ReadStrobes(std::string_view text, uint32_t* strobes) {
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    int base = 10;
    if (text.starts_with("0x") || text.starts_with("0X")) {
        base = 16;
        text.remove_prefix(2);
    } else if (text.size() > 1 && text.front() == '0') {
        base = 8;
    }
    uint32_t value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value, base);
    if (result.ec != std::errc() || result.ptr != text.data() + text.size()) return false;
    *strobes = value & model::kStrobesMask;
    return true;
}

uint32_t WithLevel(uint32_t byte, int shift, int shown, int entered) {
    if (entered < 0 || entered == shown) return byte;
    return (byte & ~(kLevelMask << shift)) | static_cast<uint32_t>(entered) << shift;
}

bool StoreApproach(const RunwayEndFields& shown, const RunwayEndFields& entered, uint16_t* stored) {
    uint32_t word = *stored;
    if (entered.approachSystem >= 0 && entered.approachSystem != shown.approachSystem)
        word = (word & ~kSystemMask) | static_cast<uint32_t>(entered.approachSystem);
    if (entered.strobes != shown.strobes) {
        uint32_t strobes = 0;
        if (!ReadStrobes(entered.strobes, &strobes)) return false;
        word = (word & ~(model::kStrobesMask << model::kStrobesShift)) | strobes << model::kStrobesShift;
    }
    *stored = static_cast<uint16_t>(StoreBits(kApproachBits, shown, entered, word));
    return true;
}

}  // namespace

void LoadLightsPage(const SceneryObject* runway, RunwayFields* fields) {
    for (size_t end = 0; end < 2; ++end) {
        const uint32_t word = WordAt(runway, end), system = word & kSystemMask;
        RunwayEndFields& to = fields->ends[end];
        to.approachSystem = system < model::kApproachLightsCount ? static_cast<int>(system) : -1;
        to.strobes = std::to_string(word >> model::kStrobesShift & model::kStrobesMask);
        LoadBits(kApproachBits, word, &to);
    }
    const uint32_t lights = model::PayloadAs<model::RunwayPayload>(runway).body.lights;
    fields->edgeLights = static_cast<int>(lights & kLevelMask);
    fields->centreLights = static_cast<int>(lights >> model::kCentreLightsShift & kLevelMask);
    LoadBits(kLightBits, lights, fields);
}

bool StoreLightsPage(const RunwayFields& shown, const RunwayFields& entered, SceneryObject* draft, BadField* bad) {
    for (size_t end = 0; end < 2; ++end) {
        uint16_t word = WordAt(draft, end);
        if (!StoreApproach(shown.ends[end], entered.ends[end], &word)) {
            platform::ShowError("The approach strobes must be a whole number from 0 to 31");
            *bad = { Field::Strobes, static_cast<int>(end) };
            return false;
        }
        std::memcpy(draft->payload + kEndPlaces[end].approachLights, &word, sizeof word);
    }
    auto& body = model::PayloadAs<model::RunwayPayload>(draft).body;
    uint32_t lights = WithLevel(body.lights, 0, shown.edgeLights, entered.edgeLights);
    lights = WithLevel(lights, model::kCentreLightsShift, shown.centreLights, entered.centreLights);
    body.lights = static_cast<uint8_t>(StoreBits(kLightBits, shown, entered, lights));
    return true;
}

}  // namespace dialogs
