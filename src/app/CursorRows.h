// CursorRows.h - what the pictures of the mouse pointer are drawn from.
#pragma once

#include <string_view>

namespace app {

// Rows from the top: '#' is the line, 'o' the fill, anything else is left open.
using Rows = std::string_view;

constexpr Rows kArrow =
    "#\n"
    "##\n"
    "#o#\n"
    "#oo#\n"
    "#ooo#\n"
    "#oooo#\n"
    "#ooooo#\n"
    "#oooooo#\n"
    "#ooooooo#\n"
    "#oooooooo#\n"
    "#ooooooooo#\n"
    "#oooooo#####\n"
    "#ooo#oo#\n"
    "#oo# #oo#\n"
    "#o#  #oo#\n"
    "##    #oo#\n"
    "#     #oo#\n"
    "       ##\n";

constexpr Rows kHand =
    "       ##\n"
    "   ## #oo###\n"
    "  #oo##oo#oo#\n"
    "  #oo##oo#oo# #\n"
    "   #oo#oo#oo##o#\n"
    "   #oo#oo#oo#oo#\n"
    " ## #ooooooooo#\n"
    "#oo##ooooooooo#\n"
    "#ooo#ooooooooo#\n"
    " #ooooooooooo#\n"
    "  #oooooooooo#\n"
    "  #oooooooooo#\n"
    "   #ooooooooo#\n"
    "    #ooooooo#\n"
    "     #oooooo#\n"
    "     #oooooo#\n"
    "     ########\n";

constexpr Rows kFourArrows =
    "          #\n"
    "         #o#\n"
    "        #ooo#\n"
    "       ###o###\n"
    "         #o#\n"
    "         #o#\n"
    "         #o#\n"
    "   #     #o#     #\n"
    "  ##     #o#     ##\n"
    " #o#######o#######o#\n"
    "#ooooooooooooooooooo#\n"
    " #o#######o#######o#\n"
    "  ##     #o#     ##\n"
    "   #     #o#     #\n"
    "         #o#\n"
    "         #o#\n"
    "         #o#\n"
    "       ###o###\n"
    "        #ooo#\n"
    "         #o#\n"
    "          #\n";

constexpr Rows kTurnArrow =
    "     #####\n"
    "   ##     ##\n"
    "  #         #\n"
    " #           #\n"
    " #           #\n"
    "#\n"
    "#\n"
    "#\n"
    "#           #\n"
    "#          ###\n"
    " #        #####\n"
    " #           #\n"
    "  #         #\n"
    "   ##     ##\n"
    "     #####\n";

constexpr Rows kNode =
    "\n"
    "   #####\n"
    "  #ooooo#\n"
    " #ooooooo#\n"
    " #ooooooo#\n"
    " #ooooooo#\n"
    " #ooooooo#\n"
    " #ooooooo#\n"
    "  #ooooo#\n"
    "   #####\n";

constexpr Rows kLink =
    "         ##\n"
    "        #o#\n"
    "       #o#\n"
    "      #o#\n"
    "     #o#\n"
    "    #o#\n"
    "   #o#\n"
    "  #o#\n"
    " #o#\n"
    "#o#\n"
    "##\n";

constexpr Rows kSpot =
    "#######\n"
    "#ooooo##\n"
    "#o###oo#\n"
    "#o# #oo#\n"
    "#o###oo#\n"
    "#ooooo##\n"
    "#o#####\n"
    "#o#\n"
    "#o#\n"
    "###\n";

constexpr Rows kApron =
    "   #######\n"
    "  #ooooo#\n"
    " #oooooo#\n"
    "#ooooooo##\n"
    "#oooooooo##\n"
    "#ooooooooo#\n"
    "#ooooooooo#\n"
    " #oooooooo#\n"
    " #oooooooo#\n"
    "  #########\n";

constexpr Rows kCorner =
    "#\n"
    "##\n"
    "#o#\n"
    "#oo#  #\n"
    "#ooo# #\n"
    "#oo# #####\n"
    "#o#   #\n"
    "##    #\n"
    "#\n";

constexpr Rows kLamps =
    " ##\n"
    "#oo#\n"
    "#oo#\n"
    " ## ##\n"
    "   #oo#\n"
    "   #oo#\n"
    "    ## ##\n"
    "      #oo#\n"
    "      #oo#\n"
    "       ##\n";

constexpr Rows kMarker =
    "     #\n"
    "     #\n"
    "   #####\n"
    "  #  #  #\n"
    "  #  #  #\n"
    "###########\n"
    "  #  #  #\n"
    "  #  #  #\n"
    "   #####\n"
    "     #\n"
    "     #\n";

constexpr Rows kGuideline =
    "         ##\n"
    "         ##\n"
    "       #\n"
    "      #\n"
    "\n"
    "    #\n"
    "   #\n"
    "\n"
    " #\n"
    "##\n"
    "##\n";

}  // namespace app
