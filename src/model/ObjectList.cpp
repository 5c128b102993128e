// ObjectList.cpp - linking, unlinking and clearing the object list.
#include "model/ObjectList.h"

#include <algorithm>

#include "model/Blocks.h"
#include "model/EditHistory.h"

namespace model {

ModelState state;

void AppendObject(SceneryObject* object) {
    ++state.revision;
    object->next = nullptr;
    object->prev = state.tail;
    if (state.tail)
        state.tail->next = object;
    else
        state.head = object;
    state.tail = object;
    if (KindOf(object) == kAirport) state.airport = object;
}

void UnlinkObject(SceneryObject* object) {
    ++state.revision;
    if (object->prev)
        object->prev->next = object->next;
    else
        state.head = object->next;
    if (object->next)
        object->next->prev = object->prev;
    else
        state.tail = object->prev;
    if (object == state.airport) state.airport = nullptr;
}

void ClearModel() {
    ClearHistory();
    while (SceneryObject* object = state.head) {
        state.head = object->next;
        FreeObject(object);
    }
    ReleaseBlocks();
    const uint64_t revision = state.revision + 1, editMark = state.editMark + 1;
    const EdgeLightDefaults edgeLights = state.edgeLights;
    state = ModelState{};
    state.revision = revision;
    state.editMark = editMark;
    state.edgeLights = edgeLights;  // the user's, as the patterns of new links are
}

std::string AirportName() {
    const char* begin = state.airportName;
    return std::string(begin, std::find(begin, begin + kAirportNameSize, '\0'));
}

void SetAirportName(const std::string& windows1252) {
    std::fill_n(state.airportName, kAirportNameSize, '\0');
    std::copy_n(windows1252.begin(), std::min(windows1252.size(), kAirportNameSize), state.airportName);
}

SceneryObject* FirstOfKind(SceneryObject* from, uint32_t kind) {
    while (from && KindOf(from) != kind) from = from->next;
    return from;
}

SceneryObject* NextOfKind(SceneryObject* object, uint32_t kind) { return FirstOfKind(object->next, kind); }

uint32_t CountKind(uint32_t kind) {
    uint32_t count = 0;
    for (SceneryObject* object = state.head; object; object = object->next) count += KindOf(object) == kind;
    return count;
}

KindLists SortByKind() {
    KindLists lists;
    for (SceneryObject* object = state.head; object; object = object->next) lists[KindOf(object)].push_back(object);
    return lists;
}

}  // namespace model
