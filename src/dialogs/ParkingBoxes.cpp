// ParkingBoxes.cpp - see ParkingBoxes.h.
//
// Name, number and pushback directions of a spot stay: the user chose a type or an airline, nothing else.
#include "dialogs/ParkingBoxes.h"

#include <cmath>

#include "dialogs/Edits.h"
#include "dialogs/ParkingCodes.h"
#include "dialogs/ParkingDialog.h"
#include "model/ObjectList.h"
#include "model/Records.h"

namespace dialogs {

namespace {

using model::ParkingSpotRecord;

constexpr uint32_t kTypeMask = 0xF00;
constexpr int kTypeShift = 8;
constexpr double kSameRadius = 0.005;  // metres: the parking dialog keeps a default that was typed in feet this close

bool HasDefaultRadius(const ParkingSpotRecord& record) {
    const double usual = DefaultParkingRadius(model::ParkingTypeCode(record));
    return std::fabs(double{ record.radius } - usual) < kSameRadius;
}

void ChangeType(SceneryObject* draft, uint32_t typeCode) {
    auto& record = model::PayloadAs<ParkingSpotRecord>(draft);
    if (model::ParkingTypeCode(record) == typeCode) return;
    if (HasDefaultRadius(record)) record.radius = static_cast<float>(DefaultParkingRadius(typeCode));
    record.packed = (record.packed & ~kTypeMask) | (typeCode << kTypeShift & kTypeMask);
}

template <typename Change>
bool ChangeSelectedSpots(Change change) {
    Edits edits;
    for (SceneryObject* spot = model::FirstOfKind(model::state.head, model::kParkingSpot); spot;
         spot = model::NextOfKind(spot, model::kParkingSpot)) {
        if (model::IsSelected(spot)) change(DraftOf(&edits, spot));
    }
    return Commit(&edits);
}

}  // namespace

bool GiveParkingType(uint32_t typeCode) {
    return ChangeSelectedSpots([typeCode](SceneryObject* draft) { ChangeType(draft, typeCode); });
}

bool GiveParkingCodes(const std::vector<std::string>& codes) {
    return ChangeSelectedSpots([&codes](SceneryObject* draft) { SetCodes(draft, codes); });
}

bool ReadSpecCodes(const app::ParkingSpec& spec, std::vector<std::string>* codes) {
    std::string text;
    for (const std::string& code : spec.codes) text += code + ",";
    return ReadCodes(text, codes);
}

}  // namespace dialogs
