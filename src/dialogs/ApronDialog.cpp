// ApronDialog.cpp - see ApronDialog.h.
//
// An apron has two records: the paved area and what is painted. Both have a surface; one without the other
// would look different from what it feels like.
#include "dialogs/ApronDialog.h"

#include "dialogs/Choices.h"
#include "dialogs/Edits.h"
#include "model/Records.h"

namespace dialogs {

ApronFields LoadApronFields(const SceneryObject* apron) {
    const auto& head = model::PayloadAs<model::ApronHead>(apron);
    return { SurfaceIndex(head.surface), (head.drawFlags & model::kDrawApronSurface) != 0 };
}

bool StoreApronFields(const ApronFields& shown, const ApronFields& entered, SceneryObject* apron) {
    Edits edits;
    auto& head = model::PayloadAs<model::ApronHead>(DraftOf(&edits, apron));
    if (entered.surface >= 0 && entered.surface != shown.surface)
        head.surface = head.outlineSurface = static_cast<uint8_t>(entered.surface);
    if (entered.drawSurface != shown.drawSurface)
        head.drawFlags = static_cast<uint8_t>((head.drawFlags & ~model::kDrawApronSurface) |
                                              (entered.drawSurface ? model::kDrawApronSurface : 0));
    Commit(&edits);
    return true;
}

}  // namespace dialogs
