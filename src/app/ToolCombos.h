// ToolCombos.h - what the three boxes of the toolbars list and what choosing in them does.
//
// The designator box names the taxi path that stands out on the map and that new links belong to. The parking boxes
// name the type and the codes of new spots, and give them to the selected ones.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "dialogs/Choices.h"

namespace app {

// Rows of the designator box: the first is empty and stands for none.
struct DesignatorRows {
    std::vector<dialogs::DesignatorChoice> rows = { {} };
    uint64_t revision = UINT64_MAX;  // of the model that they were read from
};

constexpr int kNoSpec = -1, kLineRow = -2;

struct SpecRow {
    std::string text;
    int spec = kNoSpec;  // position in parkingSpecs; kLineRow for a line, which cannot be chosen
    bool mostUsed = false;
};

struct ToolCombos {
    DesignatorRows designators;
    bool typing = false;         // the designator box holds what the user types
    std::vector<SpecRow> specs;  // as the box shows them; they follow the most-used specs when its list opens
    int spec = kNoSpec;          // the current one
    bool fromMostUsed = false;   // it was chosen among the most-used ones
    bool hasChoice = false;
    uint64_t lastChoice = 0;  // time of the last choice in a parking box, 100 ns units
};

extern ToolCombos toolCombos;

// The designator box. A current designator that the airport has no more is current no longer.
void RefreshDesignatorRows();
int CurrentDesignatorRow();
void ChooseDesignator(int row);
void CycleDesignator(bool backwards);               // the row behind or before the current one, around the ends
void TypeDesignatorText(const std::string& typed);  // the user has finished typing

// Typing in the designator box, which ends when the user says so, goes elsewhere or takes it back. Under a dialog that
// holds the airport nothing comes of it.
enum class TypingKey { None, Finish, TakeBack };
void StartTyping();
bool NeedsQuestion(const std::string& typed);            // finishing now makes a new designator, if the user agrees
bool FinishTyping(const std::string& typed, bool held);  // false when nobody was typing
bool LeaveTyping(const std::string& typed, bool held);   // the same, but nobody is asked: a new name is dropped
void TakeBackTyping();
TypingKey TypingKeyOf(int key, bool listOpen);  // an open list has these keys for itself
bool IsTypingKeyCharacter(int character);       // what these keys type, which is no text for the box

// The parking boxes. A choice that comes too soon after the last one, or that cannot be made, leaves all as it was.
void RefreshSpecRows();
int CurrentSpecRow();
void ChooseSpec(int row, bool stepped);  // `stepped`: by a key with the list closed, which passes over lines
int CurrentTypeRow();                    // -1 for a type that the list lacks
void ChooseType(int row);

// The airline has been used: it leads the most-used ones, and beyond their limit the last one goes.
void NoteSpecUse(std::string_view name);

// What a box tells of its list, in the orders that systems differ in, and what follows.
enum class ListEvent { Opened, Accepted, Cancelled, Moved, Closed };
enum class ListResult { None, Choose, Restore };
struct ListTracker {
    bool accepted = false;
};
ListResult FollowList(ListTracker* tracker, ListEvent event, bool open);

}  // namespace app
