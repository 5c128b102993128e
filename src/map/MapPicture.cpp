// MapPicture.cpp - see MapPicture.h.
#include "map/MapPicture.h"

#include "map/MapView.h"
#include "map/PaintMap.h"

namespace map {

namespace {

// The bars of the window are not in the picture: all of it can be seen.
void ViewPicture(const PictureSize& picture) {
    const MapView onScreen = view;
    ResizeView(picture.width, picture.height);
    view.screenCentreX = onScreen.screenCentreX * picture.times;
    view.screenCentreY = onScreen.screenCentreY * picture.times;
    view.pixelsPerMetre = onScreen.pixelsPerMetre * picture.times;
    view.fineness = picture.times;
}

}  // namespace

PictureSize PictureSizeOf(int times) { return { view.clientWidth * times, view.clientHeight * times, times }; }

void PaintPicture(platform::Canvas* canvas, const PictureSize& picture) {
    const MapView onScreen = view;
    ViewPicture(picture);
    PaintPageMap(canvas, picture.times, onScreen);
}

}  // namespace map
