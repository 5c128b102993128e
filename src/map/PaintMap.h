// PaintMap.h - paints the open airport as a chart.
//
// Each paint walks the object list once a layer, culls what lies outside the clip rectangle before any
// drawing call, and stores every object's screen place in its header for the hit tests.
#pragma once

#include "platform/Canvas.h"

namespace map {

struct MapView;

// Draws the whole map of view.clientWidth x view.clientHeight pixels. The canvas is the off-screen
// surface of the window, a picture file or a test's log.
void PaintMap(platform::Canvas* canvas);

// Draws it on a page, with the page's view, cut to the page's edges and with no pen thinner than `thinnestPen`.
// Afterwards the view is `onScreen` again, and a repaint is requested: the objects now know their places on the page,
// and the hit tests read them.
void PaintPageMap(platform::Canvas* canvas, int thinnestPen, const MapView& onScreen);

// Draws what belongs on the window itself after the copy: the aircraft while the map is not locked to it, and the
// feedback of the active mouse tool.
void PaintFeedback(platform::Canvas* canvas);
void PaintToolFeedback(platform::Canvas* canvas);  // the tool's part of it

}  // namespace map
