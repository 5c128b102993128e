// EdgeLightsDialog.h - "Apron Edge Lights Properties".
//
// The object holds all strips of the airport. The spacing is that of the strips with a selected part, or of
// all when none has one; where they differ the text is empty, and untouched it leaves each as it is.
#pragma once

#include <string>

#include "dialogs/Field.h"
#include "model/SceneryObject.h"

namespace dialogs {

using model::SceneryObject;

struct EdgeLightsFields {
    std::string spacing;
    bool adjust = false;     // "Adjust spacing to always end at a light"
    std::string optimum;     // spacing wanted then, and for new strips
    std::string brightness;  // 13 is normal
};

EdgeLightsFields LoadEdgeLightsFields(const SceneryObject* lights);

// With "Adjust" switched on, or another optimum while it is on, every strip gets the spacing nearest to the
// optimum that ends at a lamp. A spacing that is typed while it is on is an optimum for its strips.
bool StoreEdgeLightsFields(const EdgeLightsFields& shown, const EdgeLightsFields& entered, SceneryObject* lights,
                           BadField* bad);

}  // namespace dialogs
