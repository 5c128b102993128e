// TowerDialog.cpp - see TowerDialog.h.
//
// A tower that stands nowhere counts as none: that of a new airport stands at the placeholder, and compiled files
// without a tower hold zeros. The map shows no tower of elevation 0 either, so this dialog is the only way to it.
#include "dialogs/TowerDialog.h"

#include "dialogs/Edits.h"
#include "dialogs/NumberField.h"
#include "dialogs/Subject.h"
#include "map/Placing.h"
#include "model/ObjectList.h"
#include "model/Records.h"
#include "platform/Platform.h"

namespace dialogs {

namespace {

using model::TowerViewpointRecord;

constexpr NumberRow<TowerFields> kRows[] = {
    { Field::Elevation, &TowerFields::elevation, offsetof(TowerViewpointRecord, altitude), &kElevation },
};

// One that stands nowhere comes to the placeholder, at the elevation of the airport.
void Unplace(SceneryObject* draft) {
    if (!map::StandsNowhere(draft)) return;
    SetPoint(draft, kPlaceholder);
    auto& record = model::PayloadAs<TowerViewpointRecord>(draft);
    if (record.altitude == 0) record.altitude = AirportAltitude();
}

}  // namespace

TowerFields LoadTowerFields(const SceneryObject* tower) {
    const ObjectPtr draft(model::CopyObject(tower));
    Unplace(draft.get());
    TowerFields fields;
    fields.position = ShowPoint(PointOf(draft.get()));
    LoadNumbers<TowerFields>(kRows, draft.get(), &fields);
    return fields;
}

bool StoreTowerFields(const TowerFields& shown, const TowerFields& entered, SceneryObject* tower, BadField* bad) {
    Edits edits;
    SceneryObject* draft = DraftOf(&edits, tower);
    Unplace(draft);
    if (!ReadPosition(shown.position, entered.position, draft, bad) ||
        !StoreNumbers<TowerFields>(kRows, shown, entered, draft, bad) ||
        !RequirePosition(draft, "the control tower viewpoint", bad))
        return false;
    Commit(&edits);
    return true;
}

SceneryObject* InsertTower() {
    if (SceneryObject* tower = model::FirstOfKind(model::state.head, model::kTowerViewpoint)) {
        if (!map::IsTowerPlaced(tower)) return tower;
        platform::ShowRefusal("This airport already has a control tower viewpoint,\nyou can't add another.");
        return nullptr;
    }
    SceneryObject* tower = MakeProvisional(model::kTowerViewpoint, sizeof(TowerViewpointRecord));
    SetPoint(tower, kPlaceholder);
    return tower;
}

}  // namespace dialogs
