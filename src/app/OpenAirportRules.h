// OpenAirportRules.h - what the Open Airport dialog lists and chooses. The collection behind it is bgl::library.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace app {

constexpr size_t kMostCandidates = 200;
constexpr size_t kIdentFieldLimit = 7;    // characters that the "Airport ID" field takes
constexpr uint8_t kSupersededGrey = 160;  // red, green and blue of a superseded row

// What the dialog remembers while the program runs.
struct AirportSource {
    bool fromFile = false;     // "From Specific File"
    std::string specificFile;  // UTF-8 path, empty until one was chosen
};
extern AirportSource airportSource;

// One row of the list; texts are UTF-8.
struct AirportRow {
    std::string ident, type, layer, name;
    std::string path;         // of the file that holds the airport
    bool superseded = false;  // another row has the same identifier in a higher layer
};

// Collects what the source asks for. False when the chosen file was refused, after its message, and when no
// file is chosen yet.
bool CollectAirports(const std::string& simulatorFolder, const std::string& programFolder);

// The item's name for the tree, UTF-8. Items are the places of bgl::library; the first is the root.
std::string PlaceText(uint32_t place);

// The airports that hang on the item itself, sorted; empty for an item that only holds others.
std::vector<AirportRow> RowsOfPlace(uint32_t place);

// The rows become those of the item, which the tree has selected. False, with the rows as they were, for an item that
// only holds others, and for one that the tree has selected by itself, on getting the focus, while an identifier stands
// in the field.
bool ListPlace(uint32_t place, bool byUser, std::string_view identText, std::vector<AirportRow>* rows);

// The levels of a new tree that are opened at once: those of the single branch that most single files have.
size_t LevelsToOpen();

// The airports whose identifier begins with the text, without regard to case: the first 200 on a walk through
// the whole tree, sorted. No text finds none. Identifiers have four characters, so more text counts no further.
std::vector<AirportRow> SearchRows(std::string_view identText);

// The row that OK opens: the selected one, else the first that the text finds, which then are the rows. Null,
// with the message shown, when there is none. `selected` is -1 for no selection.
const AirportRow* ChooseRow(std::vector<AirportRow>* rows, int selected, std::string_view identText);

}  // namespace app
