// ListRows.cpp - see ListRows.h.
#include "dialogs/ListRows.h"

#include <algorithm>
#include <cstdio>

#include "app/Settings.h"
#include "dialogs/Choices.h"
#include "dialogs/CommDialog.h"
#include "dialogs/DialogHost.h"
#include "dialogs/IlsRunway.h"
#include "dialogs/MarkerDialog.h"
#include "dialogs/NavaidFields.h"
#include "dialogs/NumberField.h"
#include "dialogs/ParkingCodes.h"
#include "dialogs/StartDialog.h"
#include "dialogs/Subject.h"
#include "dialogs/TextField.h"
#include "dialogs/VorDialog.h"
#include "map/HoldShortUpdate.h"
#include "map/Layers.h"
#include "map/Selection.h"
#include "model/DeleteRules.h"
#include "model/Names.h"
#include "model/ObjectList.h"
#include "model/Positions.h"
#include "model/Records.h"
#include "model/SpotBits.h"
#include "platform/Platform.h"
#include "platform/Text.h"

namespace dialogs {

namespace {

using platform::Answer;
using platform::Buttons;
using platform::Icon;

constexpr Quantity kRunwaySize = { "size", Unit::Length, 0, 0 };
constexpr Quantity kSpotRadius = { "radius", Unit::ParkingLength, 0, 0, 1, 1 };
constexpr Quantity kCommFrequency = { "frequency", Unit::Megahertz, 0, 0, 3, 0, false, false, 7 };

std::string Heading(double degrees) {
    char text[64];
    std::snprintf(text, sizeof text, "%05.1f", degrees);
    return text;
}

// The name of the runway end that the ILS serves: by the runway that names it, else by its own bytes.
std::string EndServed(const SceneryObject* ils) {
    if (const RunwayEndRef ref = EndServedBy(ils); ref.runway) return EndName(ref.runway, ref.end);
    const model::LocalizerPart localizer = model::PayloadAs<model::IlsPayload>(ils).localizer;
    const bool named = localizer.runwayNumber != 0 && RunwayNumberIndex(localizer.runwayNumber) >= 0;
    return named ? model::RunwayEndName(localizer.runwayNumber, localizer.runwayDesignator) : "";
}

std::string IlsRow(const SceneryObject* object) {
    const auto& ils = model::PayloadAs<model::IlsPayload>(object);
    return EndServed(object) + "\tLOC" + (ils.body.flags & model::kHasGlideSlope ? "+GP" : "") +
           (ils.body.flags & model::kHasDme ? "+DME" : "") + "\t" +
           ShowIdentWord(object->payload + offsetof(model::VorRecord, ident)) + "\t" +
           ShowNavFrequency(ils.body.frequency, FrequencyKind::Localizer) + "\t" + Heading(ils.localizer.heading) +
           "\t" + ShowText(ils.name, sizeof ils.name);
}

std::string MarkerRow(const SceneryObject* object) {
    const auto& marker = model::PayloadAs<model::MarkerBeaconPayload>(object);
    return "\tMKR\t" + ShowIdentWord(object->payload + offsetof(model::MarkerBeaconPayload, ident)) + "\t75.0\t" +
           Heading(MarkerHeading(object)) + "\t" + (marker.type < kMarkerTypes.size() ? kMarkerTypes[marker.type] : "");
}

std::string NdbRow(const SceneryObject* object) {
    const auto& ndb = model::PayloadAs<model::NdbPayload>(object);
    return "\tNDB\t" + ShowIdentWord(object->payload + offsetof(model::NdbPayload, ident)) + "\t" +
           ShowNavFrequency(ndb.frequency, FrequencyKind::Ndb) + "\t\t" + ShowText(ndb.name, sizeof ndb.name);
}

std::string VorRow(const SceneryObject* object) {
    const auto& vor = model::PayloadAs<model::VorDmePayload>(object);
    return std::string("\t") + kVorParts[static_cast<size_t>(VorPartsOf(object))] + "\t" +
           ShowIdentWord(object->payload + offsetof(model::VorRecord, ident)) + "\t" +
           ShowNavFrequency(vor.body.frequency, FrequencyKind::Vor) + "\t\t" + ShowText(vor.name, sizeof vor.name);
}

std::string RunwayRow(const SceneryObject* object) {
    const auto& body = model::PayloadAs<model::RunwayPayload>(object).body;
    const std::string unit = std::string(" ") + UnitLabel(Unit::Length);
    return model::RunwayName(object) + "\t" + ShowNumber(kRunwaySize, body.length) + unit + "\t" +
           ShowNumber(kRunwaySize, body.width) + unit;
}

std::string ParkingRow(const SceneryObject* object) {
    const auto& spot = model::PayloadAs<model::ParkingSpotRecord>(object);
    return std::string(model::ParkingNameText(model::ParkingNameCode(spot))) + "  " +
           std::to_string(model::ParkingNumber(spot)) + "\t" + model::ParkingTypeName(model::ParkingTypeCode(spot)) +
           "\t" + ShowNumber(kSpotRadius, spot.radius) + " " + UnitLabel(Unit::ParkingLength) + "\t" +
           CodesText(object);
}

std::string CommRow(const SceneryObject* object) {
    const auto& comm = model::PayloadAs<model::CommFrequencyRecord>(object);
    const bool known = comm.type >= 1 && comm.type <= kCommTypes.size();
    return ShowNumber(kCommFrequency, comm.frequency) + "\t" + (known ? kCommTypes[comm.type - 1U] : "") + "\t" +
           ShowText(comm.name, sizeof comm.name);
}

std::string DesignatorRow(const SceneryObject* object) {
    const std::string name = DesignatorName(object);
    return (name.empty() ? "\" \" (blank)" : name) + "\t" + std::to_string(LinksUsing(object));
}

bool IsListed(const SceneryObject* object, ListKind kind) {
    const uint32_t of = KindOf(object);
    switch (kind) {
    case ListKind::Navaids:
        return (of == model::kIls || of == model::kMarkerBeacon || of == model::kNdb || of == model::kVorDme) &&
               !model::IsReplacedStock(object);
    case ListKind::Runways: return of == model::kRunway;
    case ListKind::Parking: return of == model::kParkingSpot;
    case ListKind::Starts: return of == model::kStartLocation;
    case ListKind::Designators: return of == model::kTaxiDesignator;
    default: return of == model::kCommFrequency;
    }
}

// A designator in use goes only when the user knows what the links lose.
bool MayDeleteDesignator(const SceneryObject* object) {
    const std::string name = DesignatorName(object);
    if (name.empty()) {
        platform::ShowError(
            "You can't delete this blank designator.\nThere must always be a blank designator in the list");
        return false;
    }
    const uint32_t count = LinksUsing(object);
    if (count == 0) return true;
    const std::string links = count == 1 ? "1 taxi link uses" : std::to_string(count) + " taxi links use";
    const std::string question = links + " the designator \"" + name + "\".\n\nIf you delete it " +
                                 (count == 1 ? "this link" : "these links") +
                                 " will have no designator.\n\nDo you want to proceed?";
    return platform::ShowMessage(question, Buttons::OkCancel, Icon::Exclamation) == Answer::Ok;
}

// In capitals, and blanks that follow one another as one: the rows have more of them than anybody types.
std::string Findable(std::string_view text) {
    std::string found = platform::UpperCased(text);
    const auto last = std::unique(found.begin(), found.end(), [](char a, char b) { return a == ' ' && b == ' '; });
    found.erase(last, found.end());
    return found;
}

// Nothing is selected unseen.
void ShowLayerOf(const SceneryObject* object) {
    bool map::MapLayers::*layer = map::LayerOf(KindOf(object));
    if (!layer || map::layers.*layer) return;
    map::layers.*layer = true;
    ShowDialogState();
}

}  // namespace

const char* ListHeader(ListKind kind) {
    switch (kind) {
    case ListKind::Navaids: return "Rwy\tType\tIdent\tFreq\tHdg\tName or Type";
    case ListKind::Runways: return "Designator\tLength\tWidth";
    case ListKind::Parking: return "Name\tType\tRadius\tCodes";
    case ListKind::Starts: return "Designator\tHeading";
    case ListKind::Designators: return "Designator\tUsage Count";
    default: return "Freq\tType\tName";
    }
}

std::string RowText(const SceneryObject* object) {
    switch (KindOf(object)) {
    case model::kIls: return IlsRow(object);
    case model::kMarkerBeacon: return MarkerRow(object);
    case model::kNdb: return NdbRow(object);
    case model::kVorDme: return VorRow(object);
    case model::kRunway: return RunwayRow(object);
    case model::kParkingSpot: return ParkingRow(object);
    case model::kStartLocation:
        return StartName(object) + "\t" + Heading(model::PayloadAs<model::StartLocationRecord>(object).heading);
    case model::kTaxiDesignator: return DesignatorRow(object);
    case model::kCommFrequency: return CommRow(object);
    default: return "";
    }
}

std::vector<ListRow> ListRows(ListKind kind) {
    std::vector<ListRow> rows;
    for (SceneryObject* object = model::state.head; object; object = object->next) {
        if (IsListed(object, kind)) rows.push_back({ RowText(object), object });
    }
    return rows;
}

int RowShowing(const std::vector<ListRow>& rows, const SceneryObject* object) {
    const auto shows = [object](const ListRow& row) { return row.object == object || row.object->related == object; };
    const auto found = object ? std::find_if(rows.begin(), rows.end(), shows) : rows.end();
    return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
}

int RowToSelect(const std::vector<ListRow>& rows, const SceneryObject* object, int otherwise) {
    const int row = RowShowing(rows, object);
    return row >= 0 ? row : std::min(otherwise, static_cast<int>(rows.size()) - 1);
}

std::vector<std::string> CellsOf(const std::string& text) {
    std::vector<std::string> cells(1);
    for (const char c : text) {
        if (c == '\t')
            cells.emplace_back();
        else
            cells.back() += c;
    }
    return cells;
}

int RowBeginningWith(const std::vector<ListRow>& rows, int from, std::string_view typed) {
    const auto begins = [word = Findable(typed)](const std::string& cell) { return Findable(cell).starts_with(word); };
    const size_t first = static_cast<size_t>(std::max(from, 0));
    for (size_t i = 0; i < rows.size(); ++i) {
        const size_t row = (first + i) % rows.size();
        const std::vector<std::string> cells = CellsOf(rows[row].text);
        if (std::any_of(cells.begin(), cells.end(), begins)) return static_cast<int>(row);
    }
    return -1;
}

int RowAfterTyping(const std::vector<ListRow>& rows, int selected, std::string_view character, uint32_t now,
                   TypedWord* word) {
    constexpr uint32_t kPause = 1000;  // milliseconds
    if (now - word->at > kPause) word->text.clear();
    const bool first = word->text.empty();
    word->at = now;
    word->text += character;
    const int row = RowBeginningWith(rows, first ? selected + 1 : selected, word->text);
    return row < 0 ? selected : row;
}

bool IsEntrySelected(const SceneryObject* object) {
    if (object) return true;
    return platform::ShowRefusal("You must select an entry in the list first");
}

void ShowEntry(SceneryObject* object) {
    if (!model::HasPosition(object)) {  // the Delete key of the map must not find it
        map::DeselectAll();
        return platform::RequestRepaint();
    }
    ShowLayerOf(object);
    SelectOnly(object);
    ShowPlace(model::PositionOf(object), true);
}

bool DeleteEntry(SceneryObject* object) {
    if (!IsEntrySelected(object)) return false;
    if (KindOf(object) == model::kTaxiDesignator && !MayDeleteDesignator(object)) return false;
    SelectOnly(object);
    map::EraseSelected();
    // Undo brings back what is selected: the Delete key of the map must not find it then either.
    if (!model::HasPosition(object)) object->flags &= ~(model::kSelected | model::kWholeSelected);
    ShowDialogState();
    return !map::IsInList(object);
}

uint32_t LinksUsing(const SceneryObject* designator) {
    uint32_t count = 0;
    model::ForEachOfKind(model::kTaxiLink, [&](SceneryObject* link) {
        count += model::PayloadAs<model::TaxiLinkPayload>(link).designator == designator;
    });
    return count;
}

}  // namespace dialogs
