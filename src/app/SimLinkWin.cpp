// SimLinkWin.cpp - the link's place in the main window.
#include <windows.h>

#include "app/SimLink.h"
#include "app/SimLinkHost.h"
#include "app/StatusBarWin.h"
#include "map/MapHost.h"
#include "map/Tools.h"
#include "platform/DialogWin.h"
#include "platform/PlatformWin.h"

namespace app {

bool IsMapInFront() { return IsWindowEnabled(platform::MainWindow()) && !platform::DialogOverMap(); }

void ShowReadOuts() { ShowStatus(map::tools.cursor); }

}  // namespace app

namespace map {

void PlaceSimAircraft(model::LatLon position, double heading) { app::PlaceAircraft(position, heading); }

}  // namespace map
