// MapHostWin.cpp - what the map and the dialogs ask of the window for the mouse tools.
#include <windows.h>

#include <string>

#include "app/EditCommands.h"
#include "app/MapSurfaceWin.h"
#include "app/Notices.h"
#include "app/Timers.h"
#include "map/MapHost.h"
#include "platform/PlatformWin.h"

namespace map {

void StartDragTimer() { SetTimer(platform::MainWindow(), app::kDragTimer, kDragTimerPeriod, nullptr); }

void StopDragTimer() {
    if (platform::MainWindow()) KillTimer(platform::MainWindow(), app::kDragTimer);
}

void RequestFeedback() { app::RepaintFeedback(); }

void OpenProperties(model::SceneryObject* object) { app::EditProperties(object); }

void ShowRemark(std::string_view text) { app::SetNotice(app::Notice::Remark, std::string(text)); }

}  // namespace map
