// MapPicture.cpp - see MapPicture.h.
#include "map/MapPicture.h"

#include "map/MapView.h"
#include "map/PaintMap.h"
#include "platform/Platform.h"

namespace map {

namespace {

platform::Path Outline(const PictureSize& picture) {
    platform::Path path;
    platform::MoveTo(&path, { 0, 0 });
    platform::LineTo(&path, { picture.width, 0 });
    platform::LineTo(&path, { picture.width, picture.height });
    platform::LineTo(&path, { 0, picture.height });
    platform::ClosePath(&path);
    return path;
}

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
    canvas->thinnestPen = picture.times;
    platform::PushClip(canvas, Outline(picture));
    PaintMap(canvas);
    platform::PopClip(canvas);
    canvas->thinnestPen = 1;
    view = onScreen;
    platform::RequestRepaint();  // the objects now know their places in the picture, and the hit tests read them
}

}  // namespace map
