// AirportDialog.cpp - see AirportDialog.h.
#include "dialogs/AirportDialog.h"

#include <algorithm>
#include <cstring>

#include "dialogs/Edits.h"
#include "dialogs/NumberField.h"
#include "dialogs/Subject.h"
#include "dialogs/TextField.h"
#include "map/MapView.h"
#include "model/EditHistory.h"
#include "model/Ident.h"
#include "model/ObjectList.h"
#include "model/Positions.h"
#include "model/Records.h"
#include "platform/Platform.h"
#include "platform/Text.h"

namespace dialogs {

namespace {

using model::AirportRecord;
using model::PlaceTexts;

constexpr NumberRow<AirportFields> kRows[] = {
    { Field::Elevation, &AirportFields::elevation, offsetof(AirportRecord, altitude), &kElevation },
    { Field::Variation, &AirportFields::variation, offsetof(AirportRecord, magneticVariation), &kVariation },
};

// The texts that must not be blank, in the order in which they are asked for.
struct NeededText {
    Field field;
    std::string AirportFields::*text;
    const char* message;
};
constexpr NeededText kNeededTexts[] = {
    { Field::Ident, &AirportFields::id, "The Airport ID field is blank. You must supply an ID code" },
    { Field::Country, &AirportFields::country, "The Country field is blank. You must supply a country" },
    { Field::City, &AirportFields::city, "The City field is blank. You must supply a city" },
    { Field::Name, &AirportFields::name, "The Airport Name field is blank. You must supply an airport name" },
};

// The identifier as the dialog shows it: that of a new airport is a blank, which shows as nothing.
std::string ShownId(const AirportRecord& record) {
    const std::string id = model::UnpackIdent(record.ident >> model::kIdentShift);
    return IsBlank(id) ? "" : id;
}

bool CheckBlanks(const AirportFields& entered, BadField* bad) {
    for (const NeededText& needed : kNeededTexts) {
        if (!IsBlank(entered.*needed.text)) continue;
        platform::ShowRefusal(needed.message);
        *bad = { needed.field };
        return false;
    }
    return true;
}

bool CheckId(const AirportFields& shown, const AirportFields& entered, BadField* bad) {
    if (platform::EqualNoCase(shown.id, entered.id)) return true;
    const bool ok =
        entered.id.size() <= kAirportIdLimit && std::all_of(entered.id.begin(), entered.id.end(), [](char c) {
            return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
        });
    if (!ok) {
        platform::ShowError("The Airport ID must be 1 to 4 letters or digits");
        *bad = { Field::Ident };
    }
    return ok;
}

bool ReadPlace(const char* what, Field field, const std::string& shown, const std::string& entered, std::string* text,
               BadField* bad) {
    if (entered == shown) return true;
    if (EncodeText(what, entered, model::kAirportNameSize, text)) return true;
    *bad = { field };
    return false;
}

bool ReadTexts(const AirportFields& shown, const AirportFields& entered, PlaceTexts* texts, BadField* bad) {
    std::string name;
    if (!ReadPlace("country", Field::Country, shown.country, entered.country, &texts->country, bad) ||
        !ReadPlace("state or province", Field::State, shown.state, entered.state, &texts->state, bad) ||
        !ReadPlace("city", Field::City, shown.city, entered.city, &texts->city, bad) ||
        !ReadPlace("airport name", Field::Name, shown.name, entered.name, &name, bad))
        return false;
    if (entered.name != shown.name) {
        texts->name = {};
        std::copy(name.begin(), name.end(), texts->name.begin());
    }
    return true;
}

bool UserWantsOtherId(BadField* bad) {
    constexpr const char* kQuestion =
        "You have changed the ID code for the airport. If this is a stock airport\n"
        "then it will result in two airports at the same location with different ID codes.\n\n"
        "Do you want to do this?";
    if (platform::ShowMessage(kQuestion, platform::Buttons::YesNo, platform::Icon::Question) == platform::Answer::Yes)
        return true;
    *bad = { Field::Ident };
    return false;
}

bool CheckPlaced(const SceneryObject* draft, BadField* bad) {
    if (!IsPlaceholder(PointOf(draft))) return true;
    platform::ShowRefusal("You must enter at least an approximate\nlatitude and longitude for the airport");
    *bad = { Field::Latitude };
    return false;
}

void SetBit(uint32_t* word, uint32_t bit, bool on) { *word = on ? *word | bit : *word & ~bit; }

void RenameOwnNavaids(uint32_t oldIdentWord, uint32_t newIdentWord, Edits* edits) {
    for (SceneryObject* object = model::state.head; object; object = object->next) {
        const uint32_t kind = KindOf(object);
        if (model::IsStock(object) || (kind != model::kIls && kind != model::kVorDme && kind != model::kNdb)) continue;
        const size_t offset =
            kind == model::kNdb ? offsetof(model::NdbPayload, region) : offsetof(model::VorRecord, region);
        uint32_t region;
        std::memcpy(&region, object->payload + offset, sizeof region);
        if (!model::RegionWordNamesAirport(region, oldIdentWord)) continue;
        region = model::RegionWordWithAirport(region, newIdentWord);
        std::memcpy(DraftOf(edits, object)->payload + offset, &region, sizeof region);
    }
}

void StoreId(const std::string& entered, AirportRecord* record, PlaceTexts* texts, Edits* edits) {
    const uint32_t old = record->ident;
    record->ident = model::PackIdent(entered) << model::kIdentShift | (old & model::kIdentLowBits);
    texts->icao = platform::UpperCased(entered);
    if (model::RegionWordWithAirport(0, old) != 0) RenameOwnNavaids(old, record->ident, edits);
}

void StoreServices(const AirportFields& shown, const AirportFields& entered, AirportRecord* record) {
    uint32_t fuel = record->fuel;
    if (entered.jetFuel != shown.jetFuel) SetBit(&fuel, model::kJetFuel, entered.jetFuel);
    if (entered.avgas != shown.avgas) SetBit(&fuel, model::kAvgas, entered.avgas);
    record->fuel = fuel;
}

}  // namespace

AirportFields LoadAirportFields(const SceneryObject* airport) {
    const auto& record = model::PayloadAs<AirportRecord>(airport);
    AirportFields fields;
    fields.position = ShowPoint(PointOf(airport));
    LoadNumbers<AirportFields>(kRows, airport, &fields);
    fields.avgas = (record.fuel & model::kAvgas) != 0;
    fields.jetFuel = (record.fuel & model::kJetFuel) != 0;
    fields.id = ShownId(record);
    fields.country = platform::Utf8FromWindows1252(model::state.country);
    fields.state = platform::Utf8FromWindows1252(model::state.state);
    fields.city = platform::Utf8FromWindows1252(model::state.city);
    fields.name = platform::Utf8FromWindows1252(model::AirportName());
    return fields;
}

bool StoreAirportFields(const AirportFields& shown, const AirportFields& entered, SceneryObject* airport,
                        BadField* bad) {
    Edits edits;
    SceneryObject* draft = DraftOf(&edits, airport);
    auto& record = model::PayloadAs<AirportRecord>(draft);
    PlaceTexts texts = model::CurrentPlaceTexts();
    if (!ReadPosition(shown.position, entered.position, draft, bad) ||
        !StoreNumbers<AirportFields>(kRows, shown, entered, draft, bad) || !CheckBlanks(entered, bad) ||
        !CheckId(shown, entered, bad) || !ReadTexts(shown, entered, &texts, bad))
        return false;
    const bool otherId = !platform::EqualNoCase(shown.id, entered.id);
    if (otherId && !shown.id.empty() && !UserWantsOtherId(bad)) return false;
    if (!CheckPlaced(draft, bad)) return false;
    if (otherId) StoreId(entered.id, &record, &texts, &edits);
    StoreServices(shown, entered, &record);
    if (texts != model::CurrentPlaceTexts()) edits.texts = texts;
    Commit(&edits);
    return true;
}

SceneryObject* MakeNewAirport() {
    SceneryObject* airport = model::CreateObject(model::kAirport, sizeof(AirportRecord));
    auto& record = model::PayloadAs<AirportRecord>(airport);
    record.ident = model::PackIdent(" ") << model::kIdentShift;
    SetPoint(airport, kPlaceholder);
    model::AppendObject(airport);
    SceneryObject* tower = model::CreateObject(model::kTowerViewpoint, sizeof(model::TowerViewpointRecord));
    SetPoint(tower, kPlaceholder);
    model::AppendObject(tower);
    return airport;
}

bool StoreNewAirport(const AirportFields& shown, const AirportFields& entered, BadField* bad) {
    if (!StoreAirportFields(shown, entered, model::state.airport, bad)) return false;
    model::ClearHistory();
    model::state.loaded = model::state.modified = true;
    map::ResetView(model::PositionOf(model::state.airport));
    platform::RequestRepaint();
    return true;
}

void CancelNewAirport() {
    EndPreview();
    model::ClearModel();
    platform::RequestRepaint();
}

}  // namespace dialogs
