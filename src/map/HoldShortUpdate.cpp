// HoldShortUpdate.cpp - see HoldShortUpdate.h.
#include "map/HoldShortUpdate.h"

#include <vector>

#include "map/HoldShortRule.h"
#include "model/DeleteRules.h"
#include "model/EditHistory.h"
#include "model/ObjectList.h"
#include "model/Records.h"

namespace map {

using model::PayloadAs;
using model::SceneryObject;

namespace {

using NodeLinks = std::unordered_map<const SceneryObject*, LinkList>;

bool IsHoldShort(const SceneryObject* object) {
    return model::KindOf(object) == model::kTaxiNode &&
           PayloadAs<model::TaxiNodeRecord>(object).type == model::kHoldShortNode;
}

// Of the nodes in the map, which get their links.
void CollectLinks(NodeLinks* nodes) {
    model::ForEachOfKind(model::kTaxiLink, [&](SceneryObject* o) {
        const auto& link = PayloadAs<model::TaxiLinkPayload>(o);
        for (const SceneryObject* end : { link.start, link.end }) {
            if (const auto found = nodes->find(end); found != nodes->end()) found->second.push_back(o);
        }
    });
}

void SetFlag(SceneryObject* node, bool reversed) {
    if (reversed == (PayloadAs<model::TaxiNodeRecord>(node).reversed != 0)) return;
    SceneryObject* edited = model::CopyObject(node);
    PayloadAs<model::TaxiNodeRecord>(edited).reversed = reversed;
    model::ModifyObject(edited, node);
}

}  // namespace

void UpdateHoldShort(SceneryObject* node) {
    if (!IsHoldShort(node)) return;
    NodeLinks links = { { node, {} } };
    CollectLinks(&links);
    bool reversed = false;
    if (DecideReverse(node, links[node], model::RunwayAreas(), &reversed)) SetFlag(node, reversed);
}

HoldShortSides NoteHoldShorts() {
    NodeLinks nodes;
    model::ForEachOfKind(model::kTaxiNode, [&](SceneryObject* o) {
        if (IsHoldShort(o)) nodes[o] = {};
    });
    if (nodes.empty()) return {};
    CollectLinks(&nodes);
    const std::vector<model::RunwayArea> runways = model::RunwayAreas();
    HoldShortSides sides;
    for (const auto& [node, links] : nodes) {
        bool reversed = false;
        if (DecideReverse(node, links, runways, &reversed)) sides[node] = reversed;
    }
    return sides;
}

void FollowHoldShorts(const HoldShortSides& before) {
    const HoldShortSides now = NoteHoldShorts();
    model::ForEachOfKind(model::kTaxiNode, [&](SceneryObject* o) {
        const auto is = now.find(o), was = before.find(o);
        if (is != now.end() && was != before.end() && is->second != was->second) SetFlag(o, is->second);
    });
}

int EraseSelected() {
    const HoldShortSides before = NoteHoldShorts();
    const int edits = model::DeleteSelected();
    if (edits > 0) FollowHoldShorts(before);
    return edits;
}

}  // namespace map
