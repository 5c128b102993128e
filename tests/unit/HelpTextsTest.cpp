#include "app/HelpTexts.h"

#include <gtest/gtest.h>

#include "app/Commands.h"
#include "fakes/FakeShell.h"
#include "Resource.h"

namespace {

constexpr char kKeyboardFunctions[] =
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

TEST(HelpTexts, AboutAndKeyboardFunctionsHaveTheirOwnTitles) {
    ResetProgram();
    app::RunCommand(IDM_ABOUT);
    app::RunCommand(IDM_KEYBOARD);
    ASSERT_EQ(fakeShell.texts.size(), 2u);
    EXPECT_EQ(fakeShell.textTitles[0], "About Tarvo");
    EXPECT_EQ(fakeShell.texts[0], "Tarvo Version 2.21 for FS2004");
    EXPECT_EQ(fakeShell.textTitles[1], "Keyboard Functions");
    EXPECT_EQ(fakeShell.texts[1], kKeyboardFunctions);
}

}  // namespace
