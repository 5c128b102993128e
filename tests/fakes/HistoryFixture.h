// HistoryFixture.h - nodes that are added, changed and deleted, and what undo and redo make of the list.
#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "model/EditHistory.h"
#include "model/ObjectList.h"

namespace history {

using namespace model;
using Objects = std::vector<SceneryObject*>;

class HistoryFixture : public testing::Test {
protected:
    void SetUp() override {
        ResetFakes();
        ClearModel();
    }
    void TearDown() override { ClearModel(); }

    static SceneryObject* NewNode(uint8_t type = kNormalNode) {
        SceneryObject* node = CreateObject(kTaxiNode, 12);
        node->payload[0] = type;
        return node;
    }
    static SceneryObject* AddNode() {
        SceneryObject* node = NewNode();
        BeginAction();
        AddObject(node);
        return node;
    }
    static void SetType(SceneryObject* node, uint8_t type) {
        SceneryObject* edited = CopyObject(node);
        edited->payload[0] = type;
        ModifyObject(edited, node);
    }
    static uint8_t TypeOf(const SceneryObject* node) { return node->payload[0]; }
    static void ExpectList(const Objects& expected) {
        EXPECT_EQ(build::List(), expected);
        EXPECT_EQ(build::ListFromTail(), expected);
        for (const SceneryObject* object : build::List()) {
            EXPECT_EQ(object->flags & (kHistoryMask | kGroupStart), 0u);
            EXPECT_EQ(object->historyNext, nullptr);
        }
    }
    static void ExpectUndoes(const Objects& before, const Objects& after, int rounds) {
        for (int round = 0; round < rounds; ++round) {
            Undo();
            ExpectList(before);
            Redo();
            ExpectList(after);
        }
        Undo();
        ExpectList(before);
    }
    static int ChainLength(const SceneryObject* entry) {
        int length = 0;
        for (; entry; entry = entry->historyNext) ++length;
        return length;
    }
};

}  // namespace history
