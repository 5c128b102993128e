// ParkingOrder.cpp - see ParkingOrder.h.
#include "dialogs/ParkingOrder.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <unordered_map>
#include <utility>

#include "dialogs/ParkingCodes.h"
#include "model/Names.h"
#include "model/Records.h"
#include "model/SpotBits.h"

namespace dialogs {

namespace {

using model::ParkingSpotRecord;

// Type rank by type code: gates, then GA ramps and the dock, cargo, military, and what is unknown.
constexpr int kTypeRanks[] = { 4, 4, 1, 1, 1, 2, 3, 3, 0, 0, 0, 1 };
constexpr int kUnknownRank = 4;

const ParkingSpotRecord& SpotOf(const ListRow& row) { return model::PayloadAs<ParkingSpotRecord>(row.object); }

int TypeRank(const ListRow& row) {
    const uint32_t type = model::ParkingTypeCode(SpotOf(row));
    return type < std::size(kTypeRanks) ? kTypeRanks[type] : kUnknownRank;
}

uint32_t NameRank(const ListRow& row) {
    const uint32_t code = model::ParkingNameCode(SpotOf(row));
    using enum model::ParkingName;
    constexpr uint32_t kAfterGates = kGateZ - kGateA + 2, kParkings = kNorthwestParking - kParking + 1;
    if (code == kGateName) return 0;
    if (code >= kGateA && code <= kGateZ) return code - kGateA + 1;
    if (code >= kParking && code <= kNorthwestParking) return kAfterGates + code - kParking;
    return kAfterGates + kParkings + (code == kDockName ? 0 : 1);
}

std::pair<uint32_t, uint32_t> NameOf(const ListRow& row) {
    return { NameRank(row), model::ParkingNumber(SpotOf(row)) };
}

float RadiusOf(const ListRow& row) {
    const float radius = SpotOf(row).radius;
    return std::isnan(radius) ? 0 : radius;
}

// Negative, 0 or positive, without regard to the case of letters.
int CompareCode(const uint8_t* a, const uint8_t* b) {
    const auto upper = [](uint8_t c) { return c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c; };
    for (size_t i = 0; i < model::kParkingCodeSize; ++i) {
        if (upper(a[i]) != upper(b[i])) return upper(a[i]) - upper(b[i]);
    }
    return 0;
}

bool CodesBefore(const ListRow& a, const ListRow& b) {
    const size_t countA = (a.object->payloadSize - sizeof(ParkingSpotRecord)) / model::kParkingCodeSize;
    const size_t countB = (b.object->payloadSize - sizeof(ParkingSpotRecord)) / model::kParkingCodeSize;
    if ((countA == 0) != (countB == 0)) return countA > 0;
    for (size_t i = 0; i < std::min(countA, countB); ++i) {
        const size_t at = sizeof(ParkingSpotRecord) + i * model::kParkingCodeSize;
        const int order = CompareCode(a.object->payload + at, b.object->payload + at);
        if (order != 0) return order < 0;
    }
    if (countA != countB) return countA < countB;
    return NameOf(a) < NameOf(b);
}

bool NameBefore(const ListRow& a, const ListRow& b) { return NameOf(a) < NameOf(b); }

bool TypeRankBefore(const ListRow& a, const ListRow& b) { return TypeRank(a) < TypeRank(b); }

bool TypeBefore(const ListRow& a, const ListRow& b) {
    return std::pair(TypeRank(a), NameOf(a)) < std::pair(TypeRank(b), NameOf(b));
}

bool RadiusBefore(const ListRow& a, const ListRow& b) { return RadiusOf(a) < RadiusOf(b); }

}  // namespace

void SortParking(ParkingKey key, std::vector<ListRow>* rows) {
    constexpr bool (*kBefore[])(const ListRow&, const ListRow&) = { NameBefore, TypeBefore, RadiusBefore, CodesBefore };
    std::stable_sort(rows->begin(), rows->end(), kBefore[static_cast<int>(key)]);
}

void RandomizeParking(const std::function<uint32_t()>& random, std::vector<ListRow>* rows) {
    for (ListRow& row : *rows) std::swap(row, (*rows)[random() % rows->size()]);
    std::stable_sort(rows->begin(), rows->end(), TypeRankBefore);
}

void OrderLike(const std::vector<ListRow>& before, std::vector<ListRow>* rows) {
    std::unordered_map<const SceneryObject*, size_t> places;
    for (const ListRow& row : before) places.emplace(row.object, places.size());
    const auto placeOf = [&](const ListRow& row) {
        const auto found = places.find(row.object);
        return found == places.end() ? places.size() : found->second;
    };
    std::stable_sort(rows->begin(), rows->end(),
                     [&](const ListRow& a, const ListRow& b) { return placeOf(a) < placeOf(b); });
}

void OriginalParkingOrder(std::vector<ListRow>* rows) { *rows = ListRows(ListKind::Parking); }

}  // namespace dialogs
