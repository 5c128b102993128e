// SceneryObject.h - the object that everything in an airport is: a header and a payload.
//
// The payload of every kind that a scenery file knows is byte for byte the body of its record
// (Records.h). The same header serves as an entry of the edit history.
#pragma once

#include <cstddef>
#include <cstdint>

namespace model {

enum Kind : uint32_t {
    kAirport = 1,
    kTowerViewpoint = 2,
    kRunway = 3,
    kHelipad = 5,
    kCommFrequency = 6,
    kStartLocation = 7,
    kTaxiNode = 8,
    kTaxiLink = 9,
    kTaxiDesignator = 10,
    kParkingSpot = 11,
    kApron = 12,
    kApronEdgeLights = 13,
    kReferenceMarker = 14,
    kGuideline = 15,
    kIls = 16,
    kMarkerBeacon = 17,
    kNdb = 18,
    kVorDme = 19,
};

// Bits of the flags word. A new outline lives in its tool's state: kOutlineOpen is only honoured.
constexpr uint32_t kKindMask = 0x1F;
constexpr uint32_t kSelected = 0x20;
constexpr uint32_t kWholeSelected = 0x40;  // every part counts as selected
constexpr uint32_t kOutlineOpen = 0x80;    // an apron still being drawn; not written to a file
constexpr uint32_t kHistoryMask = 0x700;   // operation of a history entry, 0 in live objects
constexpr uint32_t kGroupStart = 0x800;    // first history entry of one user action
constexpr uint32_t kNewNode = 0x1000;      // set with kSelected when a tool makes a node-like object
constexpr uint32_t kNewLink = 0x2000;      // set with kSelected when a tool makes or re-attaches a link
constexpr uint32_t kStock = 0x4000;        // from the simulator's own files: never written or deleted
constexpr uint32_t kFaultMarkA = 0x8000;   // marks of the fault finder
constexpr uint32_t kFaultMarkB = 0x10000;

constexpr uint32_t kHistoryShift = 8;
enum HistoryOperation : uint32_t { kOpNone = 0, kOpAdded = 1, kOpModified = 2, kOpDeleted = 3 };

// Working values of the map, written by each paint and read by the hit tests; see map/ScreenPlace.h.
constexpr int kViewWords = 9;

struct SceneryObject {
    SceneryObject* next;         // in a history entry: the successor when the entry was made
    SceneryObject* prev;         // in a history entry: the predecessor when the entry was made
    SceneryObject* historyNext;  // link of the undo or redo chain; null in live objects
    uint32_t flags;
    SceneryObject* related;  // stock object <-> its replacement, set on both
    int32_t view[kViewWords];
    uint32_t payloadSize;
    uint8_t* payload;  // owned
};

// The header in a 32-bit build is the sum of its fields; a 64-bit build pads once, before `related`.
static_assert(offsetof(SceneryObject, flags) == 3 * sizeof(void*));
static_assert(offsetof(SceneryObject, related) == 4 * sizeof(void*));
static_assert(offsetof(SceneryObject, view) == 5 * sizeof(void*));
static_assert(offsetof(SceneryObject, payloadSize) == 5 * sizeof(void*) + 36);
static_assert(offsetof(SceneryObject, payload) == 5 * sizeof(void*) + 40);
static_assert(sizeof(SceneryObject) == 6 * sizeof(void*) + 40);

inline uint32_t KindOf(const SceneryObject* object) { return object->flags & kKindMask; }
inline bool IsSelected(const SceneryObject* object) { return (object->flags & kSelected) != 0; }
inline bool IsStock(const SceneryObject* object) { return (object->flags & kStock) != 0; }

// A stock object that a replacement stands for: not drawn, not picked, not selected.
inline bool IsReplacedStock(const SceneryObject* object) { return IsStock(object) && object->related != nullptr; }

// The payload seen as one of the packed records of Records.h. The caller has checked the kind.
template <class Record>
Record& PayloadAs(SceneryObject* object) {
    return *reinterpret_cast<Record*>(object->payload);
}
template <class Record>
const Record& PayloadAs(const SceneryObject* object) {
    return *reinterpret_cast<const Record*>(object->payload);
}

// A zeroed header with a zeroed payload block; in no list yet. The caller owns it.
SceneryObject* CreateObject(uint32_t kind, uint32_t payloadSize);

// A deep copy: all header words (next and prev included), and the payload byte for byte.
SceneryObject* CopyObject(const SceneryObject* object);

// As CopyObject with a payload of 4 x n + 20 bytes of which only the first 20 are copied: a parking
// spot whose airline-code count changes to n.
SceneryObject* ResizeCopy(const SceneryObject* object, uint32_t n);

void FreeObject(SceneryObject* object);

// Gives the object a payload of another size: the common start is kept, the rest zero.
void ResizePayload(SceneryObject* object, uint32_t payloadSize);

}  // namespace model
