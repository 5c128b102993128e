// PictureListWin.h - the toolbar's pictures as image lists.
#pragma once

#include <windows.h>

#include <commctrl.h>

namespace app {

struct PictureLists {
    HIMAGELIST normal = nullptr, disabled = nullptr;
};

// All pictures of Toolbar.h in their order, at the size for the resolution.
PictureLists MakePictureLists(int dpi);
void FreePictureLists(const PictureLists& lists);

}  // namespace app
