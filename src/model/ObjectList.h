// ObjectList.h - the one open airport: its list of objects and the state that goes with it.
//
// The order of the list is the order of output in a written file and the numbering of nodes, spots and
// designators. Every change of an open airport goes through EditHistory.h; the functions here are for
// the reader and for the history itself.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "model/PlaceTexts.h"
#include "model/Records.h"
#include "model/SceneryObject.h"

namespace model {

// How the lamps of new strips of apron edge lights stand; kept until the program ends, in no record.
struct EdgeLightDefaults {
    bool adjust = false;            // every strip ends at a lamp
    double optimumSpacing = 60.96;  // metres (200 ft), the stock value
};

// A position that a dialog shows elsewhere for as long as it is open.
struct MovedPoint {
    SceneryObject* object = nullptr;
    size_t offset = 0;    // of the position in the payload
    EncodedPoint stored;  // what the record holds in truth
};

struct ModelState {
    SceneryObject* head = nullptr;
    SceneryObject* tail = nullptr;
    SceneryObject* airport = nullptr;         // the object of kind 1; one while an airport is open
    char airportName[kAirportNameSize] = {};  // Windows-1252, zero padded, not always terminated
    std::string country, state, city;         // Windows-1252, as the file's name list gives them
    std::string icao;                         // the airport's identifier as text, "" when there is none
    uint32_t regionIdent = 0;
    EdgeLightDefaults edgeLights;
    SceneryObject* undoHead = nullptr;  // newest first
    SceneryObject* redoHead = nullptr;
    std::unordered_map<const SceneryObject*, PlaceTexts> otherTexts;  // of history entries that changed them
    bool groupStart = false;                                          // the next recorded edit opens a user action
    SceneryObject* provisional = nullptr;  // of an open dialog: at the end of the list, unknown to the history
    std::vector<MovedPoint> moved;         // by an open dialog, unknown to the history
    bool modified = false;
    bool loaded = false;  // an airport is open
    bool busy = false;    // a mouse drag is in progress
    // Both grow with every edit, undo and redo and with every other airport, and never fall back. The revision also
    // grows with what an open dialog shows for the time being.
    uint64_t revision = 0, editMark = 0;
};

extern ModelState state;

void AppendObject(SceneryObject* object);

// Takes the object out of the list. Its own next and prev stay: the history relies on them.
void UnlinkObject(SceneryObject* object);

// Frees every object of the list and of both history chains and returns the state to its start. How new strips of lights
// are made stays.
void ClearModel();

// The airport's name without its padding, Windows-1252.
std::string AirportName();
void SetAirportName(const std::string& windows1252);  // cut to 48 characters

// First object of the kind at or after `from`; null when there is none.
SceneryObject* FirstOfKind(SceneryObject* from, uint32_t kind);
SceneryObject* NextOfKind(SceneryObject* object, uint32_t kind);
uint32_t CountKind(uint32_t kind);

// Calls visit(object) for each object of the kind, in list order. A visit may modify its object; it deletes none.
template <class Visit>
void ForEachOfKind(uint32_t kind, Visit visit) {
    for (SceneryObject* o = FirstOfKind(state.head, kind); o; o = NextOfKind(o, kind)) visit(o);
}

// The objects of the list by kind, each kind in list order. One walk: the list is long and scattered in memory.
using KindLists = std::array<std::vector<SceneryObject*>, kKindMask + 1>;
KindLists SortByKind();

}  // namespace model
