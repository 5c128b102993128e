// ParkingCodes.cpp - see ParkingCodes.h.
#include "dialogs/ParkingCodes.h"

#include <algorithm>
#include <string_view>

#include "dialogs/NumberField.h"
#include "dialogs/TextField.h"
#include "model/Limits.h"
#include "model/Records.h"
#include "model/SpotBits.h"
#include "platform/Platform.h"
#include "platform/Text.h"

namespace dialogs {

namespace {

using model::kParkingCodeSize;
using model::kParkingCountShift;
using model::ParkingSpotRecord;

constexpr uint32_t kCountMask = 0xFFu << kParkingCountShift;
constexpr std::string_view kBlanks = " \t\r\n";

// The codes between the commas, trimmed, without the empty ones.
std::vector<std::string> SplitCodes(std::string_view text) {
    std::vector<std::string> codes;
    for (size_t start = 0; start <= text.size();) {
        const size_t comma = std::min(text.find(',', start), text.size());
        const std::string_view code = platform::Trimmed(text.substr(start, comma - start), kBlanks);
        if (!code.empty()) codes.emplace_back(code);
        start = comma + 1;
    }
    return codes;
}

bool Contains(const std::vector<std::string>& codes, const std::string& code) {
    return std::any_of(codes.begin(), codes.end(),
                       [&](const std::string& other) { return platform::EqualNoCase(other, code); });
}

std::string Joined(const std::vector<std::string>& codes) {
    std::string text;
    for (const std::string& code : codes) text += (text.empty() ? "" : ",") + code;
    return text;
}

}  // namespace

std::vector<std::string> CodesOf(const model::SceneryObject* spot) {
    std::vector<std::string> codes;
    for (size_t at = sizeof(ParkingSpotRecord); at + kParkingCodeSize <= spot->payloadSize; at += kParkingCodeSize) {
        codes.push_back(ShowText(reinterpret_cast<const char*>(spot->payload + at), kParkingCodeSize));
    }
    return codes;
}

std::string CodesText(const model::SceneryObject* spot) { return Joined(CodesOf(spot)); }

bool ReadCodes(const std::string& text, std::vector<std::string>* codes) {
    std::vector<std::string> read;
    for (const std::string& code : SplitCodes(text)) {
        std::string encoded;
        if (!ToSceneryText(platform::UpperCased(code), &encoded)) {
            platform::ShowError("The Parking Codes box contains a character that scenery files cannot hold");
            return false;
        }
        if (encoded.size() > kParkingCodeSize) {
            platform::ShowError("The Parking Codes box contains a code longer than the maximum four characters");
            return false;
        }
        read.push_back(std::move(encoded));
    }
    if (read.size() > model::kMostParkingCodes) {
        platform::ShowError("The Parking Codes box contains more than the maximum 255 codes");
        return false;
    }
    *codes = std::move(read);
    return true;
}

void SetCodes(model::SceneryObject* draft, const std::vector<std::string>& codes) {
    // The old codes go first: a resized payload keeps its common start.
    model::ResizePayload(draft, sizeof(ParkingSpotRecord));
    model::ResizePayload(draft, static_cast<uint32_t>(sizeof(ParkingSpotRecord) + kParkingCodeSize * codes.size()));
    auto& record = model::PayloadAs<ParkingSpotRecord>(draft);
    record.packed = (record.packed & ~kCountMask) | static_cast<uint32_t>(codes.size()) << kParkingCountShift;
    uint8_t* out = draft->payload + sizeof(ParkingSpotRecord);
    for (const std::string& code : codes) {
        std::copy_n(code.data(), std::min(code.size(), kParkingCodeSize), out);
        out += kParkingCodeSize;
    }
}

void InsertSpecCodes(const app::ParkingSpec& spec, std::string* text, size_t* cursor) {
    std::vector<std::string> present = SplitCodes(*text), missing;
    for (const std::string& code : spec.codes) {
        if (Contains(present, code)) continue;
        missing.push_back(platform::UpperCased(code));
        present.push_back(missing.back());
    }
    if (missing.empty()) return;
    const size_t at = std::min(text->find(',', std::min(*cursor, text->size())), text->size());
    const std::string_view before = platform::Trimmed(std::string_view(*text).substr(0, at), kBlanks);
    const std::string_view after = platform::Trimmed(std::string_view(*text).substr(at), kBlanks);
    std::string joined(before);
    if (!before.empty() && before.back() != ',') joined += ',';
    joined += Joined(missing);
    *cursor = joined.size();
    if (!after.empty() && after.front() != ',') joined += ',';
    *text = joined + std::string(after);
}

}  // namespace dialogs
