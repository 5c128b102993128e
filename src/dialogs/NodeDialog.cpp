// NodeDialog.cpp - see NodeDialog.h.
#include "dialogs/NodeDialog.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "dialogs/Edits.h"
#include "map/HoldShortUpdate.h"
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
    model::ForEachOfKind(model::kTaxiNode, [&](SceneryObject* node) {
        if (model::IsSelected(node)) model::PayloadAs<TaxiNodeRecord>(DraftOf(edits, node)).type = type;
    });
}

// Those that get another type.
std::vector<SceneryObject*> ChangedNodes(const Edits& edits) {
    std::vector<SceneryObject*> nodes;
    for (const Draft& draft : edits.drafts) {
        const uint8_t type = model::PayloadAs<TaxiNodeRecord>(draft.copy.get()).type;
        if (type != model::PayloadAs<TaxiNodeRecord>(draft.live).type) nodes.push_back(draft.live);
    }
    return nodes;
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
    const bool chosen = record.type == model::kHoldShortNode && entered.reversed != shown.reversed;
    if (chosen) {
        record.reversed = entered.reversed;
        edits.turned = node;
    }
    const std::vector<SceneryObject*> changed = ChangedNodes(edits);
    Commit(&edits);
    for (SceneryObject* other : changed) {  // still the same action
        if (other != node || !chosen) map::UpdateHoldShort(other);
    }
    return true;
}

}  // namespace dialogs
