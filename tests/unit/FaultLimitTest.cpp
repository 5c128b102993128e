// FaultLimitTest.cpp - a distance that is exactly the limit counts as within it. Positions of a file are never so exact,
// so the checks are given places of their own, on one meridian of the equator: there distances are exact.
#include "fakes/FaultAirport.h"

namespace {

using faults::Finding;
using faults::PassData;
using model::LatLon;
using model::SceneryObject;

constexpr double kHair = 1e-8;  // metres

struct FaultLimit : FaultTest {
    uint32_t AddNode(LatLon position, uint8_t type = model::kNormalNode) {
        data.network.places.push_back({ build::Node({}, type), position, true });
        return static_cast<uint32_t>(data.network.places.size() - 1);
    }
    uint32_t AddNodeNorth(double metres) { return AddNode({ metres / model::kNorthSouthRadius, 0 }); }
    void AddLink(uint32_t start, uint32_t end) {
        std::vector<faults::Place>& places = data.network.places;
        SceneryObject* object = build::Link(places[start].object, places[end].object);
        data.network.links.push_back({ object, model::kTaxiwayLink, start, end });
        for (const auto& [at, other] : { std::pair{ start, end }, std::pair{ end, start } }) {
            ++places[at].linkCount;
            places[at].neighbour = other;
        }
    }
    size_t ObjectsOfOpenLink() {
        PrepareOpenLinks(&data);
        Finding finding;
        return FindOpenLink(data, 0, &finding) ? finding.report.objects.size() : 0;
    }
    bool HasOverlap() {
        PrepareOverlaps(&data);
        Finding finding;
        return FindOverlap(data, 0, &finding);
    }
    void ForgetNetwork() {
        data = {};
        model::ClearModel();
    }

    PassData data;
};

double NorthOfEquator(double metres) { return model::DistanceBetween({}, { metres / model::kNorthSouthRadius, 0 }); }

}  // namespace

TEST_F(FaultLimit, AHoldShortNodeExactly225FeetFromTheEdgePasses) {
    const LatLon place = { 100 / model::kNorthSouthRadius, 0 };
    AddNode(place, model::kHoldShortNode);
    model::RunwayArea area;
    area.low = -1000;
    area.width = 45;
    area.halfWidth = 22.5;
    area.high = model::PlaceOnRunway(area, place).y - model::kHoldShortLimit;
    ASSERT_EQ(model::PlaceOnRunway(area, place).y - area.high, model::kHoldShortLimit);
    data.network.runways = { area };
    Finding finding;
    EXPECT_FALSE(FindHoldShortFault(data, 0, &finding));
    data.network.runways[0].high -= kHair;
    EXPECT_TRUE(FindHoldShortFault(data, 0, &finding));
}

TEST_F(FaultLimit, NodesExactly70FeetApartMayBeUnconnected) {
    ASSERT_EQ(NorthOfEquator(faults::kNodeGapLimit), faults::kNodeGapLimit);
    for (const double beyond : { 0.0, kHair }) {
        ForgetNetwork();
        AddNodeNorth(0);
        AddNodeNorth(faults::kNodeGapLimit + beyond);
        EXPECT_EQ(ObjectsOfOpenLink(), beyond == 0 ? 2u : 0u) << beyond;
    }
}

TEST_F(FaultLimit, ALinkExactly50FeetFromANodeMayBeUnconnected) {
    ASSERT_EQ(NorthOfEquator(faults::kLinkGapLimit), faults::kLinkGapLimit);
    for (const double beyond : { 0.0, kHair }) {
        ForgetNetwork();
        AddNodeNorth(0);
        const double latitude = (faults::kLinkGapLimit + beyond) / model::kNorthSouthRadius;
        const uint32_t west = AddNode({ latitude, 2e-5 }), east = AddNode({ latitude, -2e-5 });  // 128 m away each
        AddLink(west, east);
        EXPECT_EQ(ObjectsOfOpenLink(), beyond == 0 ? 2u : 0u) << beyond;
    }
}

TEST_F(FaultLimit, NodesExactly15FeetApartOverlap) {
    ASSERT_EQ(NorthOfEquator(faults::kOverlapLimit), faults::kOverlapLimit);
    for (const double beyond : { 0.0, kHair }) {
        ForgetNetwork();
        AddNodeNorth(0);
        AddNodeNorth(faults::kOverlapLimit + beyond);
        EXPECT_EQ(HasOverlap(), beyond == 0) << beyond;
    }
}
