// Messages.h - what the fault finder tells: its users learn from these texts how to build a taxi network.
//
// Lines end in \r\n for the window's edit control. Two blanks part sentences, and two texts end in them:
// another may follow.
#pragma once

namespace faults {

constexpr const char* kCheckingMessage = "Checking...";
// A property dialog or a drag works on what is selected.
constexpr const char* kEditUnderWayMessage = "Finish the edit that is open on the map first.";

constexpr const char* kNoFaultsMessage = "No faults found.";
constexpr const char* kNoMoreFaultsMessage = "No more faults found.";

constexpr const char* kHoldShortMessage =
    "HOLD-SHORT NODE too far from runway.\r\n"
    "If this is a taxiway entrance that AI might use to enter a runway for takeoff then the hold-short node must be "
    "within 225 feet (68.6m) of the edge of the runway.  AI aircraft will permanently stop if the final hold-short "
    "node before entering the runway is too far away.  This is only critical for hold-short nodes where AI aircraft "
    "actually enter the runway for takeoff, usually the taxiway junction nearest the end of the runway.  Also, this "
    "only applies to the active runway, the longest runway at the airport that is open for takeoffs.  FS2002 will "
    "essentially ignore all other hold-short nodes, including taxiways that cross inactive runways, and in those "
    "cases the node distance from the runway is not critical.\r\n"
    "The circles show a 225 foot radius.";

constexpr const char* kNodesUnconnectedMessage =
    "NODES POSSIBLY UNCONNECTED.\r\n"
    "These nodes are very close but are not directly connected.  Should they be connected?  If this is an "
    "unintended break in the taxiway then the AI will not use this path.";

constexpr const char* kLinkUnconnectedMessage =
    "NODE AND LINK POSSIBLY UNCONNECTED.\r\n"
    "This node and link are very close but they are not connected.  Should they be connected?  If this is an "
    "unintended break in the taxiway then the AI will not use this path.  ";

constexpr const char* kIsolatedSegmentMessage =
    "ISOLATED SEGMENT.\r\n"
    "This group of taxiway links is not connected to the rest of the airport.  AI will not be able to enter or "
    "leave this segment.  ";

// Follows the message above when parking belongs to the segment.
constexpr const char* kSegmentWithParkingMessage =
    "AI may freeze after landing because they can't reach parking in this segment and they may disappear on "
    "departure because they can't reach the runway.  It can also lock out all other parking spots at an airport for "
    "arrivals.";

constexpr const char* kIsolatedParkingMessage =
    "ISOLATED PARKING.\r\n"
    "This parking spot is not connected to the rest of the airport.  It can result in AI not being able to get to "
    "parking after landing, or disappearing on departure.  It can also lock out all other parking spots at the "
    "airport.";

constexpr const char* kIsolatedNodeMessage =
    "ISOLATED NODE.\r\n"
    "This node is not connected to the rest of the airport.  This has no effect on the AI so removing it is "
    "optional.";

constexpr const char* kOverlapMessage =
    "OVERLAPPING NODES.\r\n"
    "There are two overlapping nodes here.  This may have no effect on AI operation but it is an inefficient use of "
    "nodes.  Changing this is optional.";

// %s: the name of the runway end.
constexpr const char* kBadStartMessage =
    "BAD START LOCATION.\r\n"
    "Any runway that can be used as the active runway must have a Start Location.  This runway end is either "
    "missing a Start Location, or the Start Location has the wrong name.  The Start Location for this runway end "
    "must be named \"Rwy %s\".";

constexpr const char* kMisplacedLinkMessage =
    "MISPLACED RUNWAY LINK.\r\n"
    "This taxi link is a 'runway' type taxi link, but it is not on a runway.  Runway type taxi links are shown in "
    "black and are usually only used along the centerline of a runway.  The AI avoid runway links except where "
    "there is no other normal taxi route to get where they want to go, this keeps them off runways except to "
    "takeoff and land.  Having a runway link outside of a runway may affect AI movements.  Also, ATC will "
    "mis-identify this segment as a runway when giving verbal taxiing instructions.  You should change this to a "
    "normal taxiway link.";

// %s: both end names of the runway that the link is designated after, or "(blank)"; both end names of the runway
// that it lies on.
constexpr const char* kLinkDesignatorMessage =
    "LINK DESIGNATOR DOESN'T MATCH THE RUNWAY.\r\n"
    "This runway taxi link is designated as %s, but the runway itself is designated as %s.  ATC uses taxiway link "
    "designators to give verbal taxiing instructions, so having the wrong designator can result in incorrect or "
    "confusing ATC directions. You can change the designator by selecting one from the drop-down designator list on "
    "the Tool Bar.";

constexpr const char* kCrossedEdgesMessage =
    "CROSSED APRON EDGES.\r\n"
    "The edges of this apron surface cross over each other at one or more points.  This can result in parts of the "
    "apron surface not appearing in Flight Simulator";

}  // namespace faults
