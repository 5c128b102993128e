#include "dialogs/NodeDialog.h"

#include "fakes/DialogFixture.h"
#include "map/HoldShortUpdate.h"
#include "model/CoordinateText.h"
#include "model/Geodesy.h"

namespace {

using namespace dialogs;

class NodeDialog : public DialogFixture {
protected:
    static model::TaxiNodeRecord& Node(SceneryObject* node) { return As<model::TaxiNodeRecord>(node); }

    bool Store(SceneryObject* node, const NodeFields& entered) {
        return StoreNodeFields(LoadNodeFields(node), entered, node, &bad);
    }
};

TEST_F(NodeDialog, TheThreeTypesAreShownInTheirOrder) {
    EXPECT_EQ(LoadNodeFields(build::Node({}, 1)).type, 0);
    EXPECT_EQ(LoadNodeFields(build::Node({}, 2)).type, 1);
    EXPECT_EQ(LoadNodeFields(build::Node({}, 4)).type, 2);
    EXPECT_EQ(LoadNodeFields(build::Node({}, 5)).type, -1);
    EXPECT_STREQ(kNodeTypeNames[2], "ILS hold-short");
}

TEST_F(NodeDialog, OkWithoutAChangeRecordsNothing) {
    SceneryObject* node = build::Node({ 12, 34 }, 2);
    Node(node).reversed = 7;
    const auto before = Bytes(node);
    EXPECT_TRUE(Store(node, LoadNodeFields(node)));
    EXPECT_EQ(Bytes(node), before);
    EXPECT_EQ(Actions(), 0);
    EXPECT_FALSE(model::state.modified);
}

TEST_F(NodeDialog, AChangedPositionMovesThisNodeOnly) {
    SceneryObject *node = build::Node(), *other = build::Node({ 50, 0 });
    node->flags |= model::kSelected;
    other->flags |= model::kSelected;
    const auto before = Bytes(node), beforeOther = Bytes(other);
    NodeFields fields = LoadNodeFields(node);
    fields.position = { "N47* 30.0000'", "W122* 15.0000'" };
    EXPECT_TRUE(Store(node, fields));
    EXPECT_EQ(+Node(node).latitude, model::LatLonToBgl({ 47.5 * model::kRadiansPerDegree, 0 }).latCode);
    EXPECT_EQ(Bytes(other), beforeOther);
    EXPECT_TRUE(model::state.modified);
    model::Undo();
    EXPECT_EQ(Bytes(node), before);
}

TEST_F(NodeDialog, APositionThatDoesNotParseChangesNothing) {
    SceneryObject* node = build::Node();
    const auto before = Bytes(node);
    NodeFields fields = LoadNodeFields(node);
    fields.type = 2;
    fields.position.longitude = "X5";
    EXPECT_FALSE(Store(node, fields));
    EXPECT_EQ(bad.field, Field::Longitude);
    EXPECT_EQ(Bytes(node), before);
    EXPECT_EQ(Actions(), 0);
}

TEST_F(NodeDialog, AChangedTypeGoesToEverySelectedNodeInOneAction) {
    SceneryObject *node = build::Node(), *selected = build::Node({}, 4), *same = build::Node({}, 2),
                  *free = build::Node();
    for (SceneryObject* object : { node, selected, same }) object->flags |= model::kSelected;
    NodeFields fields = LoadNodeFields(node);
    fields.type = kHoldShortIndex;
    EXPECT_TRUE(Store(node, fields));
    EXPECT_EQ(Node(node).type, 2);
    EXPECT_EQ(Node(selected).type, 2);
    EXPECT_EQ(Node(free).type, 1);
    EXPECT_EQ(Actions(), 1);
    EXPECT_EQ(model::state.undoHead->historyNext->historyNext, nullptr);  // the node of that type got no entry
    model::Undo();
    EXPECT_EQ(Node(node).type, 1);
    EXPECT_EQ(Node(selected).type, 4);
}

TEST_F(NodeDialog, NoChoiceKeepsATypeThatTheListLacks) {
    SceneryObject* node = build::Node({}, 5);
    NodeFields fields = LoadNodeFields(node);
    fields.position.latitude = "N47* 30.0000'";
    EXPECT_TRUE(Store(node, fields));
    EXPECT_EQ(Node(node).type, 5);
}

TEST_F(NodeDialog, TheMarkerDirectionIsThatOfAHoldShortNode) {
    SceneryObject* node = build::Node({}, 2);
    NodeFields fields = LoadNodeFields(node);
    fields.reversed = true;
    EXPECT_TRUE(Store(node, fields));
    EXPECT_EQ(Node(node).reversed, 1);
    SceneryObject* normal = build::Node();
    fields = LoadNodeFields(normal);
    fields.reversed = true;
    EXPECT_TRUE(Store(normal, fields));
    EXPECT_EQ(Node(normal).reversed, 0);
}

TEST_F(NodeDialog, ANodeThatBecomesAHoldShortNodeTakesTheDirectionToo) {
    SceneryObject* node = build::Node();
    NodeFields fields = LoadNodeFields(node);
    fields.type = kHoldShortIndex;
    fields.reversed = true;
    EXPECT_TRUE(Store(node, fields));
    EXPECT_EQ(Node(node).type, 2);
    EXPECT_EQ(Node(node).reversed, 1);
}

TEST_F(NodeDialog, AnyOtherByteThanZeroIsReversedAndKeptUntilTheBoxChanges) {
    SceneryObject* node = build::Node({}, 2);
    Node(node).reversed = 0x80;
    EXPECT_TRUE(LoadNodeFields(node).reversed);
    NodeFields fields = LoadNodeFields(node);
    fields.position.latitude = "N47* 30.0000'";
    EXPECT_TRUE(Store(node, fields));
    EXPECT_EQ(Node(node).reversed, 0x80);
    fields = LoadNodeFields(node);
    fields.reversed = false;
    EXPECT_TRUE(Store(node, fields));
    EXPECT_EQ(Node(node).reversed, 0);
}

TEST_F(NodeDialog, CarriedBytesStay) {
    SceneryObject* node = build::Node();
    Node(node).carried = 0xBEEF;
    NodeFields fields = LoadNodeFields(node);
    fields.type = 2;
    fields.position.latitude = "N47* 30.0000'";
    EXPECT_TRUE(Store(node, fields));
    EXPECT_EQ(+Node(node).carried, 0xBEEF);
}

TEST_F(NodeDialog, ANodeThatBecomesHoldShortTurnsItsMarkingUnlessTheUserChoseIt) {
    build::Runway(36);
    SceneryObject* onRunway = build::Node();
    std::vector<SceneryObject*> nodes;
    for (const double east : { 80.0, 90.0, 100.0 }) {
        nodes.push_back(build::Node({ east, 0 }));
        Node(nodes.back()).reversed = 1;  // wrong: the way to the runway is straight
        build::Link(nodes.back(), onRunway);
        nodes.back()->flags |= model::kSelected;
    }
    NodeFields fields = LoadNodeFields(nodes[0]);
    fields.type = kHoldShortIndex;
    EXPECT_TRUE(Store(nodes[0], fields));
    for (SceneryObject* node : nodes) EXPECT_EQ(Node(node).reversed, 0);
    model::Undo();
    for (SceneryObject* node : nodes) EXPECT_EQ(Node(node).reversed, 1);
    EXPECT_FALSE(model::CanUndo());
    for (SceneryObject* node : nodes) Node(node).reversed = 0;
    fields = LoadNodeFields(nodes[0]);
    fields.type = kHoldShortIndex;
    fields.reversed = true;
    EXPECT_TRUE(Store(nodes[0], fields));
    EXPECT_EQ(Node(nodes[0]).reversed, 1);
    EXPECT_EQ(Node(nodes[1]).reversed, 0);
}

// Moved to the other side of the node that leads away from the runway.
TEST_F(NodeDialog, TheMarkingFollowsANewPlaceUnlessTheUserTurnedItHimself) {
    build::Runway(36);
    SceneryObject* node = build::Node({ 80, 0 }, model::kHoldShortNode);
    build::Link(node, build::Node({ 5, 130 }));
    build::Link(node, build::Node({ 75, 0 }));
    model::BeginAction();
    map::UpdateHoldShort(node);
    const bool before = Node(node).reversed != 0;
    model::ClearHistory();
    NodeFields fields = LoadNodeFields(node);
    fields.position = model::FormatLatLon(build::At({ 70, 0 }));
    EXPECT_TRUE(Store(node, fields));
    EXPECT_EQ(Node(node).reversed != 0, !before);
    EXPECT_EQ(Actions(), 1);
    model::Undo();
    EXPECT_EQ(Node(node).reversed != 0, before);
    Node(node).reversed = !before;
    fields = LoadNodeFields(node);
    fields.position = model::FormatLatLon(build::At({ 70, 0 }));
    fields.reversed = before;
    EXPECT_TRUE(Store(node, fields));
    EXPECT_EQ(Node(node).reversed != 0, before);
}

}  // namespace
