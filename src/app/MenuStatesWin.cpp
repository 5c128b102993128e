// MenuStatesWin.cpp - see MenuStatesWin.h.
#include "app/MenuStatesWin.h"

#include "app/Commands.h"

namespace app {

void ShowMenuStates(HMENU menu) {
    for (int position = 0; position < GetMenuItemCount(menu); ++position) {
        if (const HMENU inner = GetSubMenu(menu, position)) {
            ShowMenuStates(inner);
            continue;
        }
        const auto id = static_cast<int>(GetMenuItemID(menu, position));
        if (id <= 0) continue;  // a separator
        const auto place = static_cast<UINT>(position);
        EnableMenuItem(menu, place, MF_BYPOSITION | (IsCommandEnabled(id) ? MF_ENABLED : MF_GRAYED));
        CheckMenuItem(menu, place, MF_BYPOSITION | (IsCommandChecked(id) ? MF_CHECKED : MF_UNCHECKED));
    }
}

}  // namespace app
