// Replacement.cpp - see Replacement.h.
#include "model/Replacement.h"

#include <cassert>

#include "model/EditHistory.h"
#include "model/Records.h"

namespace model {

void ReplaceStock(SceneryObject* edited, SceneryObject* stock) {
    assert(IsStock(stock) && !stock->related);
    edited->flags &= ~kStock;
    edited->related = stock;
    AddObject(edited);
    SceneryObject* tied = CopyObject(stock);
    tied->flags &= ~(kSelected | kWholeSelected);
    if (KindOf(tied) == kIls) PayloadAs<IlsPayload>(tied).selectedParts = 0;
    tied->related = edited;
    ModifyObject(tied, stock);
}

}  // namespace model
