// ToolCombos.cpp - see ToolCombos.h.
#include "app/ToolCombos.h"

#include <algorithm>

#include "app/Keys.h"
#include "app/ParkingSpecs.h"
#include "app/Settings.h"
#include "app/ViewCommands.h"
#include "dialogs/DesignatorBox.h"
#include "dialogs/OverMap.h"
#include "dialogs/ParkingBoxes.h"
#include "map/MapView.h"
#include "map/Tools.h"
#include "model/ObjectList.h"
#include "platform/Platform.h"

namespace app {

ToolCombos toolCombos;

namespace {

constexpr uint64_t kRepeatGuard = 200 * 10000;  // 200 ms: one choice is sometimes told twice
constexpr size_t kLineLength = 87;
constexpr int kTypes = 11;  // codes from 1 on

bool IsRow(int row, size_t rows) { return row >= 0 && static_cast<size_t>(row) < rows; }

bool IsListed(const model::SceneryObject* designator) {
    const auto& rows = toolCombos.designators.rows;
    return std::any_of(rows.begin() + 1, rows.end(), [=](const auto& row) { return row.object == designator; });
}

// Objects can be changed: an airport is open, and neither a drag nor a dialog has them in hand.
bool MayEdit() { return model::state.loaded && !model::state.busy && !dialogs::overMap.open; }

int SpecNamed(std::string_view name) {
    const auto found = std::find_if(parkingSpecs.begin(), parkingSpecs.end(),
                                    [name](const ParkingSpec& spec) { return spec.name == name; });
    return found == parkingSpecs.end() ? kNoSpec : static_cast<int>(found - parkingSpecs.begin());
}

std::vector<SpecRow> MostUsedRows() {
    std::vector<SpecRow> rows;
    for (const std::string& name : settings.mostUsedSpecs) {
        const int spec = SpecNamed(name);
        if (spec != kNoSpec) rows.push_back({ name, spec, true });  // the file may have lost it
    }
    return rows;
}

// Whether enough time has gone by since the last choice; if so, this is the last choice from now on.
bool PassesGuard() {
    const uint64_t now = platform::SystemFileTime();
    const bool clockIsBack = now < toolCombos.lastChoice;
    if (toolCombos.hasChoice && !clockIsBack && now - toolCombos.lastChoice <= kRepeatGuard) return false;
    toolCombos.hasChoice = true;
    toolCombos.lastChoice = now;
    return true;
}

void UseSpec(const SpecRow& row, std::vector<std::string> codes) {
    toolCombos.spec = row.spec;
    toolCombos.fromMostUsed = row.mostUsed;
    map::tools.parkingCodes = std::move(codes);
    if (MayEdit()) dialogs::GiveParkingCodes(map::tools.parkingCodes);
    if (!CodeLabelsShown()) ToggleCodeLabels();
    if (row.spec != kNoSpec) NoteSpecUse(row.text);
}

}  // namespace

void RefreshDesignatorRows() {
    if (!model::state.loaded) TakeBackTyping();
    if (toolCombos.designators.revision == model::state.revision) return;
    toolCombos.designators = { dialogs::DesignatorChoices(), model::state.revision };
    if (map::layers.highlightedDesignator && !IsListed(map::layers.highlightedDesignator)) map::SetHighlight(nullptr);
}

int CurrentDesignatorRow() {
    const auto& rows = toolCombos.designators.rows;
    const model::SceneryObject* current = map::layers.highlightedDesignator;
    if (!current) return 0;
    const auto found =
        std::find_if(rows.begin() + 1, rows.end(), [=](const auto& row) { return row.object == current; });
    return found == rows.end() ? 0 : static_cast<int>(found - rows.begin());
}

void ChooseDesignator(int row) {
    RefreshDesignatorRows();
    const auto& rows = toolCombos.designators.rows;
    if (!IsRow(row, rows.size())) return;
    map::SetHighlight(row == 0 ? nullptr : rows[static_cast<size_t>(row)].object);
}

void CycleDesignator(bool backwards) {
    RefreshDesignatorRows();
    const int count = static_cast<int>(toolCombos.designators.rows.size());
    ChooseDesignator((CurrentDesignatorRow() + (backwards ? count - 1 : 1)) % count);
}

void TypeDesignatorText(const std::string& typed) {
    if (!MayEdit()) return;
    RefreshDesignatorRows();
    const int current = CurrentDesignatorRow();
    const auto& rows = toolCombos.designators.rows;
    map::SetHighlight(
        dialogs::TypeDesignator(typed, current == 0 ? nullptr : rows[static_cast<size_t>(current)].object));
}

void StartTyping() { toolCombos.typing = true; }

bool NeedsQuestion(const std::string& typed) {
    return toolCombos.typing && MayEdit() && dialogs::NamesNewDesignator(typed);
}

// The typing is over before the question comes: it takes the focus from the box, which then counts as left.
bool FinishTyping(const std::string& typed, bool held) {
    if (!toolCombos.typing) return false;
    TakeBackTyping();
    if (!held) TypeDesignatorText(typed);
    return true;
}

bool LeaveTyping(const std::string& typed, bool held) {
    if (!NeedsQuestion(typed)) return FinishTyping(typed, held);
    TakeBackTyping();
    return true;
}

void TakeBackTyping() { toolCombos.typing = false; }

TypingKey TypingKeyOf(int key, bool listOpen) {
    if (listOpen) return TypingKey::None;
    if (key == kEnter || key == kTab) return TypingKey::Finish;
    return key == kEscape ? TypingKey::TakeBack : TypingKey::None;
}

bool IsTypingKeyCharacter(int character) { return character == kEnter || character == kTab || character == kEscape; }

void RefreshSpecRows() {
    const SpecRow line = { std::string(kLineLength, '-'), kLineRow, false };
    const std::vector<SpecRow> mostUsed = MostUsedRows();
    std::vector<SpecRow>& rows = toolCombos.specs;
    rows = { SpecRow{} };
    if (!mostUsed.empty()) {
        rows.push_back(line);
        rows.insert(rows.end(), mostUsed.begin(), mostUsed.end());
        rows.push_back(line);
    }
    for (size_t i = 0; i < parkingSpecs.size(); ++i)
        rows.push_back({ parkingSpecs[i].name, static_cast<int>(i), false });
}

int CurrentSpecRow() {
    const std::vector<SpecRow>& rows = toolCombos.specs;
    int found = 0;
    for (size_t row = 0; row < rows.size(); ++row) {
        if (rows[row].spec != toolCombos.spec) continue;
        found = static_cast<int>(row);
        if (rows[row].mostUsed == toolCombos.fromMostUsed) break;
    }
    return found;
}

void ChooseSpec(int row, bool stepped) {
    const std::vector<SpecRow>& rows = toolCombos.specs;
    if (!IsRow(row, rows.size())) return;
    if (stepped && rows[static_cast<size_t>(row)].spec == kLineRow) row += row > CurrentSpecRow() ? 1 : -1;
    const SpecRow chosen = rows[static_cast<size_t>(row)];  // there is no line at either end
    if (chosen.spec == kLineRow || !PassesGuard()) return;
    std::vector<std::string> codes;
    if (chosen.spec != kNoSpec && !dialogs::ReadSpecCodes(parkingSpecs[static_cast<size_t>(chosen.spec)], &codes))
        return;
    UseSpec(chosen, std::move(codes));
}

int CurrentTypeRow() {
    const int row = map::tools.lastParkingType - 1;
    return IsRow(row, kTypes) ? row : -1;
}

void ChooseType(int row) {
    if (!IsRow(row, kTypes) || !PassesGuard()) return;
    map::tools.lastParkingType = row + 1;
    if (MayEdit()) dialogs::GiveParkingType(static_cast<uint32_t>(row) + 1);
}

void NoteSpecUse(std::string_view name) {
    std::vector<std::string>& used = settings.mostUsedSpecs;
    std::erase(used, name);
    used.insert(used.begin(), std::string(name));
    if (used.size() > kMostUsedSpecs) used.resize(kMostUsedSpecs);
}

// A choice is made when an open list closes with it, or at each step while the list is closed. Some systems tell the
// step after the list has closed: the guard swallows that.
ListResult FollowList(ListTracker* tracker, ListEvent event, bool open) {
    if (event == ListEvent::Moved && open) return ListResult::None;
    const bool accepted = tracker->accepted;
    tracker->accepted = event == ListEvent::Accepted;
    if (event == ListEvent::Moved) return ListResult::Choose;
    if (event == ListEvent::Closed) return accepted ? ListResult::Choose : ListResult::Restore;
    return ListResult::None;
}

}  // namespace app
