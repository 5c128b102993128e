// NodeDialog.h - "Node Properties": the fields and their rules.
#pragma once

#include <array>

#include "dialogs/Field.h"
#include "dialogs/PositionField.h"
#include "model/SceneryObject.h"

namespace dialogs {

using model::SceneryObject;

inline constexpr std::array<const char*, 3> kNodeTypeNames = { "Normal node", "Hold-short node", "ILS hold-short" };
inline constexpr int kHoldShortIndex = 1;  // the check box is shown for this type only

struct NodeFields {
    CoordinateTexts position;
    int type = -1;  // position in kNodeTypeNames; -1 no choice
    bool reversed = false;
};

NodeFields LoadNodeFields(const SceneryObject* node);

// A changed type goes to every selected node, the rest to this one.
bool StoreNodeFields(const NodeFields& shown, const NodeFields& entered, SceneryObject* node, BadField* bad);

}  // namespace dialogs
