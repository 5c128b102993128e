// ListRows.h - the six list windows: rows, order, and what "Delete" does.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "model/SceneryObject.h"

namespace dialogs {

using model::SceneryObject;

enum class ListKind { Navaids, Runways, Parking, Starts, Designators, Comms };

struct ListRow {
    std::string text;  // columns parted by tabs
    SceneryObject* object = nullptr;
};

// The header row; that of the parking list has a column header control for each text.
const char* ListHeader(ListKind kind);

// In the order of the object list. Stock navaids that are replaced have no row.
std::vector<ListRow> ListRows(ListKind kind);
std::string RowText(const SceneryObject* object);

// The row of the object, or of the one that replaces it; -1 when there is none. The object need not exist any more.
int RowShowing(const std::vector<ListRow>& rows, const SceneryObject* object);

// The row that is selected when the rows have changed: that of the object, else `otherwise` or what has come to its place;
// -1 for none.
int RowToSelect(const std::vector<ListRow>& rows, const SceneryObject* object, int otherwise);

std::vector<std::string> CellsOf(const std::string& text);  // of a row or a header

// The first row from `from` on, around the end, of which a cell begins with what was typed; -1 when there is none.
int RowBeginningWith(const std::vector<ListRow>& rows, int from, std::string_view typed);

// What the user is typing to find a row. Whoever pauses for more than a second begins a new word.
struct TypedWord {
    std::string text;
    uint32_t at = 0;  // milliseconds of a clock that may wrap
};

// The row that is selected after one more character: the next one that a new word begins, or where the longer word leads.
// What goes on with no row stays at the selected one.
int RowAfterTyping(const std::vector<ListRow>& rows, int selected, std::string_view character, uint32_t now,
                   TypedWord* word);

// Whether a row is selected; without one the message is shown.
bool IsEntrySelected(const SceneryObject* object);

// A selected row selects its object on the map, which shows the layer of it and centres it when it cannot be seen. What
// has no place on the map selects nothing there.
void ShowEntry(SceneryObject* object);

// "Delete": asks and refuses by message boxes. Whether the entry is gone.
bool DeleteEntry(SceneryObject* object);

uint32_t LinksUsing(const SceneryObject* designator);

}  // namespace dialogs
