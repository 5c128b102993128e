// ApronDialog.h - "Apron Properties".
#pragma once

#include "dialogs/Field.h"
#include "model/SceneryObject.h"

namespace dialogs {

using model::SceneryObject;

struct ApronFields {
    int surface = -1;  // position in SurfaceChoices()
    bool drawSurface = false;
};

ApronFields LoadApronFields(const SceneryObject* apron);
bool StoreApronFields(const ApronFields& shown, const ApronFields& entered, SceneryObject* apron);

}  // namespace dialogs
