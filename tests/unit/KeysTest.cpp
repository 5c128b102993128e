#include "app/Keys.h"

#include <gtest/gtest.h>

#include "Resource.h"

namespace {

using app::CommandForKey;

constexpr app::KeyModifiers kPlain, kCtrl = { true, false }, kShift = { false, true };

TEST(Keys, LettersToggleLayers) {
    EXPECT_EQ(CommandForKey('A', kPlain), IDM_NAVAIDS);
    EXPECT_EQ(CommandForKey('G', kPlain), IDM_GRID);
    EXPECT_EQ(CommandForKey('H', kPlain), IDM_HOLD_SHORT_LIMITS);
    EXPECT_EQ(CommandForKey('L', kPlain), IDM_LIGHTS);
    EXPECT_EQ(CommandForKey('N', kPlain), IDM_NETWORK);
    EXPECT_EQ(CommandForKey('P', kPlain), IDK_CYCLE_LABELS);
    EXPECT_EQ(CommandForKey('S', kPlain), IDM_STARTS);
}

TEST(Keys, CtrlMakesOtherCommandsOfALetter) {
    EXPECT_EQ(CommandForKey('A', kCtrl), IDM_SELECT_ALL);
    EXPECT_EQ(CommandForKey('Y', kCtrl), IDM_REDO);
    EXPECT_EQ(CommandForKey('Z', kCtrl), IDM_UNDO);
    EXPECT_EQ(CommandForKey('Y', kPlain), 0);
    EXPECT_EQ(CommandForKey('Z', kPlain), 0);
    EXPECT_EQ(CommandForKey('Z', kShift), 0);
}

TEST(Keys, DelDeletesTheSelectionAndWithCtrlTheGuidelines) {
    EXPECT_EQ(CommandForKey(46, kPlain), IDK_DELETE);
    EXPECT_EQ(CommandForKey(46, kCtrl), IDM_DELETE_GUIDELINES);
}

TEST(Keys, PageDownAndEndRotateAndShiftMakesItFine) {
    EXPECT_EQ(CommandForKey(34, kPlain), IDK_ROTATE_DOWN);
    EXPECT_EQ(CommandForKey(34, kShift), IDK_ROTATE_DOWN_FINE);
    EXPECT_EQ(CommandForKey(35, kPlain), IDK_ROTATE_UP);
    EXPECT_EQ(CommandForKey(35, kShift), IDK_ROTATE_UP_FINE);
}

TEST(Keys, HomeAndArrowsMoveTheMapWhateverElseIsHeld) {
    for (app::KeyModifiers held : { kPlain, kCtrl, kShift }) {
        EXPECT_EQ(CommandForKey(36, held), IDK_HOME);
        EXPECT_EQ(CommandForKey(37, held), IDK_PAN_LEFT);
        EXPECT_EQ(CommandForKey(38, held), IDK_PAN_UP);
        EXPECT_EQ(CommandForKey(39, held), IDK_PAN_RIGHT);
        EXPECT_EQ(CommandForKey(40, held), IDK_PAN_DOWN);
    }
}

TEST(Keys, F1OpensTheManual) { EXPECT_EQ(CommandForKey(112, kPlain), IDM_HELP); }

TEST(Keys, PlusAndMinusZoomOnBothKeyboards) {
    EXPECT_EQ(CommandForKey(107, kPlain), IDT_ZOOM_IN);
    EXPECT_EQ(CommandForKey(187, kPlain), IDT_ZOOM_IN);
    EXPECT_EQ(CommandForKey(187, kShift), IDT_ZOOM_IN);  // "+" is a shifted key on most keyboards
    EXPECT_EQ(CommandForKey(109, kPlain), IDT_ZOOM_OUT);
    EXPECT_EQ(CommandForKey(189, kPlain), IDT_ZOOM_OUT);
}

TEST(Keys, TGoesThroughTheDesignatorsAndWithShiftBackwards) {
    EXPECT_EQ(CommandForKey('T', kPlain), IDK_CYCLE_DESIGNATOR);
    EXPECT_EQ(CommandForKey('T', kShift), IDK_CYCLE_DESIGNATOR_BACK);
}

TEST(Keys, ClearAndTheMiddleOfTheNumericKeypadStopTheSlew) {
    EXPECT_EQ(CommandForKey(12, kPlain), IDK_SLEW_STOP);
    EXPECT_EQ(CommandForKey(101, kPlain), IDK_SLEW_STOP);
}

TEST(Keys, EscapeClosesThePolygon) { EXPECT_EQ(CommandForKey(27, kPlain), IDK_CLOSE_POLYGON); }

TEST(Keys, EnterAndBackspaceBelongToAnOpenOutline) {
    EXPECT_EQ(app::CommandForOutlineKey(13), IDK_FINISH_POLYGON);
    EXPECT_EQ(app::CommandForOutlineKey(8), IDK_TAKE_BACK_CORNER);
    for (int key : { 0, 27, 46, int{ 'A' } }) EXPECT_EQ(app::CommandForOutlineKey(key), 0);
}

TEST(Keys, OtherKeysDoNothing) {
    for (int key : { -1, 0, 8, 9, 11, 13, 32, int{ 'B' }, int{ 'Q' }, 188, 190, 255, 1000 }) {
        EXPECT_EQ(CommandForKey(key, kPlain), 0) << key;
        EXPECT_EQ(CommandForKey(key, kCtrl), 0) << key;
    }
}

}  // namespace
