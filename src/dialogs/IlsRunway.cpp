// IlsRunway.cpp - see IlsRunway.h.
#include "dialogs/IlsRunway.h"

#include <cstring>

#include "dialogs/NumberField.h"
#include "dialogs/RunwayFollow.h"
#include "dialogs/RunwayParts.h"
#include "model/IlsEnds.h"
#include "model/Records.h"
#include "platform/Platform.h"

namespace dialogs {

namespace {

using model::IlsPayload;
using model::LocalizerPart;

void SetRunwayIdent(const RunwayEndRef& ref, uint32_t ident, Edits* edits) {
    std::memcpy(DraftOf(edits, ref.runway)->payload + kEndPlaces[ref.end].ils, &ident, sizeof ident);
}

RunwayEndRef RefOf(const model::IlsEnd& at) { return { at.runway, static_cast<int>(at.end) }; }

// The end that the localizer names: of several with the name the nearest.
RunwayEndRef EndNamedBy(const SceneryObject* ils) {
    return RefOf(model::NearestEnd(
        ils, [ils](const model::IlsEnd& at) { return model::LocalizerNames(ils, at.runway, at.end); }));
}

// A runway end has room for one ILS.
bool CheckEndFree(const SceneryObject* ils, const SceneryObject* draft, BadField* bad) {
    const RunwayEndRef ref = EndNamedBy(draft);
    if (!ref.runway) return true;
    for (const SceneryObject* other : BelongingsOf(ref.runway, ref.end).ils) {
        if (other == ils) continue;
        platform::ShowError("Runway " + EndName(ref.runway, ref.end) + " already has an ILS");
        *bad = { Field::Runway };
        return false;
    }
    return true;
}

// The runway end that names the ILS follows it; another end that it now serves gets its name.
void UpdateRunways(const SceneryObject* ils, const SceneryObject* draft, bool otherEnd, Edits* edits) {
    const uint32_t oldIdent = model::IdentOfIls(ils), newIdent = model::IdentOfIls(draft);
    if (!otherEnd && oldIdent == newIdent) return;
    const RunwayEndRef served = EndServedBy(ils), chosen = otherEnd ? EndNamedBy(draft) : RunwayEndRef{};
    if (served.runway && model::IlsNamedBy(served.runway, ModelEnd(served.end)) != 0)
        SetRunwayIdent(served, otherEnd ? 0 : newIdent, edits);
    if (chosen.runway) SetRunwayIdent(chosen, newIdent, edits);
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

RunwayEndRef EndServedBy(const SceneryObject* ils) { return RefOf(model::ServedEnd(ils)); }

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
