// IlsRunway.cpp - see IlsRunway.h.
#include "dialogs/IlsRunway.h"

#include <cstring>

#include "dialogs/NumberField.h"
#include "dialogs/RunwayFollow.h"
#include "dialogs/RunwayParts.h"
#include "model/Ident.h"
#include "model/IlsEnds.h"
#include "model/Records.h"

namespace dialogs {

namespace {

using model::IlsPayload;
using model::LocalizerPart;

void SetRunwayIdent(const RunwayEndRef& ref, uint32_t ident, Edits* edits) {
    std::memcpy(DraftOf(edits, ref.runway)->payload + kEndPlaces[ref.end].ils, &ident, sizeof ident);
}

// The end that the localizer names: of several with the name the nearest.
bool IsMeant(const SceneryObject* ils, const RunwayEndRef& ref) {
    return model::LocalizerNames(ils, ref.runway, ModelEnd(ref.end)) && !IsNearerToNamesake(ils, ref.runway, ref.end);
}

// A runway end has room for one ILS.
bool CheckEndFree(const SceneryObject* ils, const SceneryObject* draft, BadField* bad) {
    for (const RunwayEndRef& ref : AllRunwayEnds()) {
        if (!IsMeant(draft, ref)) continue;
        for (const SceneryObject* other : BelongingsOf(ref.runway, ref.end).ils) {
            if (other == ils) continue;
            ShowError("Runway " + EndName(ref.runway, ref.end) + " already has an ILS");
            *bad = { Field::Runway };
            return false;
        }
    }
    return true;
}

// Runway ends that name the ILS follow it; another end that it now serves gets its name.
void UpdateRunways(const SceneryObject* ils, const SceneryObject* draft, bool otherEnd, Edits* edits) {
    const auto& is = model::PayloadAs<IlsPayload>(draft);
    const uint32_t oldIdent = model::PayloadAs<IlsPayload>(ils).body.ident >> model::kIdentShift;
    const uint32_t newIdent = is.body.ident >> model::kIdentShift;
    if (!otherEnd && oldIdent == newIdent) return;
    for (const RunwayEndRef& ref : AllRunwayEnds()) {
        const uint32_t named = model::IlsNamedBy(ref.runway, ModelEnd(ref.end));
        if (otherEnd && IsMeant(draft, ref))
            SetRunwayIdent(ref, newIdent, edits);
        else if (named != 0 && named == oldIdent && ServesEnd(ils, ref.runway, ref.end))
            SetRunwayIdent(ref, otherEnd ? 0 : newIdent, edits);
    }
}

// Whether the user chose another runway end.
bool StoreEnd(const IlsFields& shown, const IlsFields& entered, LocalizerPart* localizer) {
    const bool number = entered.number >= 0 && entered.number != shown.number;
    const bool suffix = entered.suffix >= 0 && entered.suffix != shown.suffix;
    if (!number && !suffix) return false;
    if (entered.number >= 0) localizer->runwayNumber = static_cast<uint8_t>(entered.number);
    if (entered.suffix >= 0) localizer->runwayDesignator = static_cast<uint8_t>(entered.suffix);
    return true;
}

}  // namespace

RunwayEndRef EndServedBy(const SceneryObject* ils) {
    for (const RunwayEndRef& ref : AllRunwayEnds()) {
        if (ServesEnd(ils, ref.runway, ref.end)) return ref;
    }
    return {};
}

// The bytes of a stock file are not to be relied on: where a runway end is tied to the ILS, it is shown instead.
void LoadIlsEnd(const SceneryObject* ils, IlsFields* fields) {
    const LocalizerPart localizer = model::PayloadAs<IlsPayload>(ils).localizer;
    const RunwayEndRef ref = model::HasStockEnd(ils) ? EndServedBy(ils) : RunwayEndRef{};
    const uint8_t* runway = ref.runway ? ref.runway->payload : nullptr;
    fields->number = RunwayNumberIndex(runway ? runway[kEndPlaces[ref.end].number] : localizer.runwayNumber);
    fields->suffix = SuffixIndex(runway ? runway[kEndPlaces[ref.end].designator] : localizer.runwayDesignator);
}

bool StoreIlsEnd(const IlsFields& shown, const IlsFields& entered, SceneryObject* ils, Edits* edits, BadField* bad) {
    SceneryObject* draft = DraftOf(edits, ils);
    auto& localizer = model::PayloadAs<IlsPayload>(draft).localizer;
    const bool otherEnd = StoreEnd(shown, entered, &localizer);
    if (otherEnd && !CheckEndFree(ils, draft, bad)) return false;
    UpdateRunways(ils, draft, otherEnd, edits);
    return true;
}

}  // namespace dialogs
