// RunwayParts.h - where the parts of each runway end lie in the payload, and the pages as rows.
#pragma once

#include <cstddef>
#include <cstdint>

#include "dialogs/Field.h"
#include "dialogs/RunwayDialog.h"
#include "model/IlsEnds.h"
#include "model/Records.h"

namespace dialogs {

// Offsets in the payload, for the base and for the reciprocal end.
struct RunwayEndPlaces {
    size_t number, designator, ils, blastPad, displaced, approachLights, leftVasi, rightVasi;
};
inline constexpr RunwayEndPlaces kEndPlaces[2] = {
    { offsetof(model::RunwayRecord, primaryNumber), offsetof(model::RunwayRecord, primaryDesignator),
      offsetof(model::RunwayRecord, primaryIls), offsetof(model::RunwayPayload, primaryBlastPad),
      offsetof(model::RunwayPayload, primaryThreshold), offsetof(model::RunwayPayload, primaryApproachLights),
      offsetof(model::RunwayPayload, primaryLeftVasi), offsetof(model::RunwayPayload, primaryRightVasi) },
    { offsetof(model::RunwayRecord, secondaryNumber), offsetof(model::RunwayRecord, secondaryDesignator),
      offsetof(model::RunwayRecord, secondaryIls), offsetof(model::RunwayPayload, secondaryBlastPad),
      offsetof(model::RunwayPayload, secondaryThreshold), offsetof(model::RunwayPayload, secondaryApproachLights),
      offsetof(model::RunwayPayload, secondaryLeftVasi), offsetof(model::RunwayPayload, secondaryRightVasi) },
};

inline model::RunwayEnd ModelEnd(int end) { return end == 0 ? model::RunwayEnd::Primary : model::RunwayEnd::Secondary; }

// The pages: each loads its fields and writes those that changed into the draft.
void LoadDataPage(const SceneryObject* runway, RunwayFields* fields);
bool StoreDataPage(const RunwayFields& shown, const RunwayFields& entered, SceneryObject* draft, BadField* bad);
void LoadLightsPage(const SceneryObject* runway, RunwayFields* fields);
bool StoreLightsPage(const RunwayFields& shown, const RunwayFields& entered, SceneryObject* draft, BadField* bad);
void LoadVasiPage(const SceneryObject* runway, RunwayFields* fields);
bool StoreVasiPage(const RunwayFields& shown, const RunwayFields& entered, SceneryObject* draft, BadField* bad);
void LoadMarkingsPage(const SceneryObject* runway, RunwayFields* fields);
void StoreMarkingsPage(const RunwayFields& shown, const RunwayFields& entered, SceneryObject* draft);

// A change of the length leaves the distance between a VASI and its threshold as it was.
void KeepVasiDistances(double oldLength, SceneryObject* draft);

// A check box as a bit of a payload word.
template <class Fields>
struct BitRow {
    bool Fields::*box;
    uint32_t bit;
};

template <class Fields, size_t N>
void LoadBits(const BitRow<Fields> (&rows)[N], uint32_t word, Fields* fields) {
    for (const auto& row : rows) fields->*row.box = (word & row.bit) != 0;
}

template <class Fields, size_t N>
uint32_t StoreBits(const BitRow<Fields> (&rows)[N], const Fields& shown, const Fields& entered, uint32_t word) {
    for (const auto& row : rows) {
        if (entered.*row.box != shown.*row.box) word = entered.*row.box ? word | row.bit : word & ~row.bit;
    }
    return word;
}

}  // namespace dialogs
