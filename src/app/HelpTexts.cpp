// HelpTexts.cpp - see HelpTexts.h.
//
// The keyboard text names Home for a rotation; the keys are Page Down and End, and Home returns to the airport. Users
// know the text as it is.
#include "app/HelpTexts.h"

#include "app/AppHost.h"

namespace app {

namespace {

const char* const kKeyboardText =
    "Shift\tHold down while selecting multiple objects\n"
    "Ctrl\tSame as above\n"
    "\n"
    "A\tNavaids toggle\n"
    "G\tGrid toggle\n"
    "H\tHold-short limits toggle\n"
    "L\tLights toggle\n"
    "N\tNodes, links and parking toggle\n"
    "P\tParking labels toggle\n"
    "S\tStart locations toggle\n"
    "T\tTaxiway designator cycle\n"
    "Shift+T\tTaxiway designator cycle reverse\n"
    "\n"
    "Ctrl+A\tSelect all\n"
    "Ctrl+Y\tRedo\n"
    "Ctrl+Z\tUndo\n"
    "Del\tDelete any selected objects\n"
    "Ctrl+Del\tDelete markers and guidelines\n"
    "\n"
    "+\tZoom in (or use mouse wheel)\n"
    "-\tZoom out (or use mouse wheel)\n"
    "Home\tRotate CCW (or use Ctrl+mouse wheel)\n"
    "End\tRotate CW (or use Ctrl+mouse wheel)\n"
    "Shift+Home  Fine rotate CCW (or use Shift+mouse wheel)\n"
    "Shift+End     Fine rotate CW (or use Shift+mouse wheel)\n"
    "Arrows\tPan window (or use mouse wheel button)\n"
    "Home\tSlew to airport center\n"
    "\n"
    "Esc\tClose polygon\n"
    "\n"
    "In Flight Simulator:\n"
    "o\tCreate a parking spot\n"
    ".\tCreate a node\n"
    "M\tCreate a marker\n";

const char* const kAboutText = "Tarvo Version 2.21 for FS2004";

}  // namespace

void ShowKeyboardFunctions() { ShowText("Keyboard Functions", kKeyboardText, platform::Icon::None); }

void ShowAbout() { ShowText("About Tarvo", kAboutText, platform::Icon::Information); }

}  // namespace app
