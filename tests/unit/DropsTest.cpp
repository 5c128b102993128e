#include "map/Drops.h"

#include "fakes/MapFixture.h"
#include "model/EditHistory.h"

namespace {

using namespace map;
using model::PayloadAs;
using model::SceneryObject;

class DropsTest : public MapFixture {
protected:
    void SetUp() override {
        MapFixture::SetUp();
        Open();
        model::state.airport = model::state.head;
    }
    static SceneryObject* Only(uint32_t kind) {
        EXPECT_EQ(model::CountKind(kind), 1u);
        return model::FirstOfKind(model::state.head, kind);
    }
    static double MetresFrom(const SceneryObject* object, build::Place place) {
        return model::DistanceBetween(model::PositionOf(object), build::At(place));
    }
};

TEST_F(DropsTest, ANodeOfTheToolsKindIsMadeAndSelected) {
    SceneryObject* other = build::Node({ 500, 500 });
    other->flags |= model::kSelected;
    tools.nodeKind = 2;
    DropNode(build::At({ 100, 50 }));
    SceneryObject* node = model::state.tail;
    EXPECT_EQ(model::KindOf(node), model::kTaxiNode);
    EXPECT_EQ(PayloadAs<model::TaxiNodeRecord>(node).type, 2);
    EXPECT_LT(MetresFrom(node, { 100, 50 }), 0.1);
    EXPECT_TRUE(model::IsSelected(node));
    EXPECT_FALSE(model::IsSelected(other));
    EXPECT_GT(fake.repaints, 0);
}

TEST_F(DropsTest, ADropIsOneUndo) {
    const SceneryObject* a = build::Node({ 0, 0 });
    const SceneryObject* b = build::Node({ 400, 0 });
    build::Link(const_cast<SceneryObject*>(a), const_cast<SceneryObject*>(b));
    DropNode(build::At({ 200, 1 }));
    EXPECT_EQ(model::CountKind(model::kTaxiLink), 2u) << "the link under it is split, as by the tool";
    EXPECT_TRUE(model::state.modified);
    model::Undo();
    EXPECT_EQ(model::CountKind(model::kTaxiLink), 1u);
    EXPECT_EQ(model::CountKind(model::kTaxiNode), 2u);
    EXPECT_FALSE(model::CanUndo());
}

TEST_F(DropsTest, NoNodeIsMadeOnTopOfAnother) {
    DropNode(build::At({ 100, 50 }));
    DropNode(build::At({ 100, 50 }));
    DropNode(build::At({ 105, 50 }));
    Only(model::kTaxiNode);
    DropNode(build::At({ 107, 50 }));
    EXPECT_EQ(model::CountKind(model::kTaxiNode), 2u);
}

TEST_F(DropsTest, NoNodeIsMadeOnASpot) {
    PayloadAs<model::ParkingSpotRecord>(build::Spot({ 0, 0 })).radius = 20;
    DropNode(build::At({ 15, 0 }));
    EXPECT_EQ(model::CountKind(model::kTaxiNode), 0u);
    DropNode(build::At({ 21, 0 }));
    EXPECT_EQ(model::CountKind(model::kTaxiNode), 1u);
}

TEST_F(DropsTest, TheZoomHasNoPartInIt) {
    Scale(0.001);
    DropNode(build::At({ 0, 0 }));
    Paint();
    DropNode(build::At({ 30, 0 }));
    EXPECT_EQ(model::CountKind(model::kTaxiNode), 2u);
}

TEST_F(DropsTest, ASpotHasTheHeadingAndTheToolsChoices) {
    tools.lastParkingType = 9;
    tools.parkingCodes = { "DLH", "AF" };
    DropParkingSpot(build::At({ 100, 50 }), 1.5 * model::kPi);
    const auto& spot = PayloadAs<model::ParkingSpotRecord>(Only(model::kParkingSpot));
    EXPECT_NEAR(double{ spot.heading }, 270, 1e-3);
    EXPECT_EQ(spot.radius, 38.0f);
    EXPECT_EQ(spot.packed >> 24, 2u);
    EXPECT_EQ(spot.packed >> 8 & 0xF, 9u);
    EXPECT_EQ(spot.packed >> 12 & 0xFFF, 1u);
    model::Undo();
    EXPECT_EQ(model::CountKind(model::kParkingSpot), 0u);
}

TEST_F(DropsTest, AMarkerIsMadeAndUndone) {
    DropMarker(build::At({ 100, 50 }));
    EXPECT_LT(MetresFrom(Only(model::kReferenceMarker), { 100, 50 }), 0.1);
    model::Undo();
    EXPECT_EQ(model::CountKind(model::kReferenceMarker), 0u);
}

TEST_F(DropsTest, TheNetworkIsShownWhenItGrows) {
    layers.network = false;
    DropMarker(build::At({ 100, 50 }));
    EXPECT_FALSE(layers.network);
    DropNode(build::At({ 100, 50 }));
    EXPECT_TRUE(layers.network);
}

TEST_F(DropsTest, APlaceThatTheFileCannotHoldGetsNothing) {
    const LatLon pole = { model::kPi / 2, 1 };
    DropNode(pole);
    DropParkingSpot(pole, 0);
    DropMarker(pole);
    EXPECT_EQ(model::state.head, model::state.tail);
    EXPECT_FALSE(model::CanUndo());
}

TEST_F(DropsTest, TheMapNeedNotLookThere) {
    ResetView(build::At({ 0, 900'000 }));
    view.lockedToSim = true;  // presses of the mouse do nothing then
    DropNode(build::At({ 100, 50 }));
    Only(model::kTaxiNode);
}

}  // namespace
