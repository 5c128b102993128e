// TowerDialog.cpp - see TowerDialog.h.
//
// A tower at the placeholder counts as none: every new airport has one, and files without a tower say so
// by that place.
#include "dialogs/TowerDialog.h"

#include "dialogs/Edits.h"
#include "dialogs/NumberField.h"
#include "dialogs/Subject.h"
#include "model/ObjectList.h"
#include "model/Records.h"
#include "platform/Platform.h"

namespace dialogs {

namespace {

using model::TowerViewpointRecord;

constexpr NumberRow<TowerFields> kRows[] = {
    { Field::Elevation, &TowerFields::elevation, offsetof(TowerViewpointRecord, altitude), &kElevation },
};

}  // namespace

TowerFields LoadTowerFields(const SceneryObject* tower) {
    TowerFields fields;
    fields.position = ShowPoint(PointOf(tower));
    LoadNumbers<TowerFields>(kRows, tower, &fields);
    return fields;
}

bool StoreTowerFields(const TowerFields& shown, const TowerFields& entered, SceneryObject* tower, BadField* bad) {
    Edits edits;
    SceneryObject* draft = DraftOf(&edits, tower);
    if (!ReadPosition(shown.position, entered.position, draft, bad) ||
        !StoreNumbers<TowerFields>(kRows, shown, entered, draft, bad) ||
        !RequirePosition(draft, "the control tower viewpoint", bad))
        return false;
    Commit(&edits);
    return true;
}

SceneryObject* InsertTower() {
    if (SceneryObject* tower = model::FirstOfKind(model::state.head, model::kTowerViewpoint)) {
        if (IsPlaceholder(PointOf(tower))) return tower;
        platform::ShowMessage("This airport already has a control tower viewpoint,\nyou can't add another.",
                              platform::Buttons::Ok, platform::Icon::Exclamation);
        return nullptr;
    }
    SceneryObject* tower = MakeProvisional(model::kTowerViewpoint, sizeof(TowerViewpointRecord));
    SetPoint(tower, kPlaceholder);
    model::PayloadAs<TowerViewpointRecord>(tower).altitude = AirportAltitude();
    return tower;
}

}  // namespace dialogs
