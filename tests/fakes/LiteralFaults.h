// LiteralFaults.h - the fault finder's rules as nested walks over the object list, with nothing to make them fast.
//
// What the real fault finder reports must be what these walks report, in the same order and with the same marks.
// Written for reading beside the rules; shares only the earth model and the object list with the real one.
#pragma once

#include <array>
#include <list>
#include <set>
#include <string>
#include <vector>

#include "model/Geodesy.h"
#include "model/SceneryObject.h"

namespace literal {

struct Cell {  // of a segment group
    model::SceneryObject *link, *start, *end;
};
struct MissingStart {
    model::SceneryObject* runway;
    int end;           // 0 base, 1 reciprocal
    std::string name;  // of that end
};

struct Finder {
    std::array<bool, 7> switches = { true, true, true, true, true, true, true };
    int checkIndex = 0;
    bool resumeCheck = false, anyFaultFound = false;
    int lastEdit = 0;
    model::SceneryObject* cursor[7] = {};  // where each check last stopped
    std::vector<std::list<Cell>> groups;
    size_t largestGroup = 0, nextGroup = 0;
    std::list<MissingStart> missingStarts;
};

struct Report {
    int check = -1;  // -1: none, the message tells so
    std::string message;
    std::set<model::SceneryObject*> objects;
    model::LatLon point;
};

// One press of the button. `edit` is another number after every edit, undo or redo.
Report Press(Finder* finder, int edit);

}  // namespace literal
