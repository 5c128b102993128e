// NodeDialog.cpp - see NodeDialog.h.
#include "dialogs/NodeDialog.h"

#include <algorithm>
#include <iterator>

#include "dialogs/Edits.h"
#include "model/ObjectList.h"
#include "model/Records.h"

namespace dialogs {

namespace {

using model::TaxiNodeRecord;

constexpr uint8_t kTypes[] = { model::kNormalNode, model::kHoldShortNode, model::kIlsHoldShortNode };
static_assert(std::size(kTypes) == kNodeTypeNames.size() && kTypes[kHoldShortIndex] == model::kHoldShortNode);

int TypeIndex(uint8_t type) {
    const auto found = std::find(std::begin(kTypes), std::end(kTypes), type);
    return found == std::end(kTypes) ? -1 : static_cast<int>(found - kTypes);
}

void GiveTypeToSelection(uint8_t type, Edits* edits) {
    for (SceneryObject* node = model::FirstOfKind(model::state.head, model::kTaxiNode); node;
         node = model::NextOfKind(node, model::kTaxiNode)) {
        if (model::IsSelected(node)) model::PayloadAs<TaxiNodeRecord>(DraftOf(edits, node)).type = type;
    }
}

}  // namespace

NodeFields LoadNodeFields(const SceneryObject* node) {
    const auto& record = model::PayloadAs<TaxiNodeRecord>(node);
    return { ShowPoint(PointOf(node)), TypeIndex(record.type), record.reversed != 0 };
}

bool StoreNodeFields(const NodeFields& shown, const NodeFields& entered, SceneryObject* node, BadField* bad) {
    Edits edits;
    SceneryObject* draft = DraftOf(&edits, node);
    if (!ReadPosition(shown.position, entered.position, draft, bad)) return false;
    auto& record = model::PayloadAs<TaxiNodeRecord>(draft);
    if (entered.type >= 0 && entered.type != shown.type) {
        record.type = kTypes[entered.type];
        GiveTypeToSelection(record.type, &edits);
    }
    // The marker has a direction at hold-short nodes only; others keep the byte that they have.
    if (record.type == model::kHoldShortNode && entered.reversed != shown.reversed) record.reversed = entered.reversed;
    Commit(&edits);
    return true;
}

}  // namespace dialogs
