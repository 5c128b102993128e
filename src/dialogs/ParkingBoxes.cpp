// ParkingBoxes.cpp - see ParkingBoxes.h.
//
// Name, number and pushback directions of a spot stay: the user chose a type or an airline, nothing else.
#include "dialogs/ParkingBoxes.h"

#include "dialogs/Edits.h"
#include "dialogs/ParkingCodes.h"
#include "dialogs/ParkingDialog.h"
#include "model/ObjectList.h"
#include "model/Records.h"

namespace dialogs {

namespace {

template <typename Change>
bool ChangeSelectedSpots(Change change) {
    Edits edits;
    model::ForEachOfKind(model::kParkingSpot, [&](SceneryObject* spot) {
        if (model::IsSelected(spot)) change(DraftOf(&edits, spot));
    });
    return Commit(&edits);
}

}  // namespace

bool GiveParkingType(uint32_t typeCode) {
    return ChangeSelectedSpots([typeCode](SceneryObject* draft) {
        GiveSpotType(&model::PayloadAs<model::ParkingSpotRecord>(draft), typeCode);
    });
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
