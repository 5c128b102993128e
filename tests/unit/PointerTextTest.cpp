#include "app/PointerText.h"

#include <gtest/gtest.h>

#include "app/AppState.h"
#include "fakes/FakeShell.h"
#include "fakes/ToolFixture.h"

namespace {

using namespace model;

class PointerTextTest : public ToolFixture {
protected:
    void SetUp() override {
        ToolFixture::SetUp();
        app::state = {};
    }
    static const std::string& Shown() { return app::state.notices[static_cast<int>(app::Notice::Pointer)]; }
};

TEST_F(PointerTextTest, EveryKindHasItsWords) {
    SceneryObject* spot = build::Spot();
    PayloadAs<ParkingSpotRecord>(spot).packed = 12 | 9 << 8 | 34 << 12;
    SceneryObject* runway = build::Runway(16, 1);
    SceneryObject* a = build::Node({ 1, 0 });
    SceneryObject* b = build::Node({ 2, 0 }, kIlsHoldShortNode);
    SceneryObject* start = build::Placed<StartLocationRecord>(kStartLocation, {});
    PayloadAs<StartLocationRecord>(start).number = 9;
    PayloadAs<StartLocationRecord>(start).designatorAndType = 0x12;
    SceneryObject* medical = build::Placed<HelipadRecord>(kHelipad, {});
    PayloadAs<HelipadRecord>(medical).type = 0x14;  // transparent
    SceneryObject *vor = build::Vor(), *dme = build::Vor();
    PayloadAs<VorDmePayload>(vor).body.flags = kHasDme | 0x01;
    PayloadAs<VorDmePayload>(dme).body.flags = kHasDme;
    for (SceneryObject* navaid : { vor, dme })
        PayloadAs<VorDmePayload>(navaid).body.ident = PackIdent("ABC") << kIdentShift;
    const std::pair<const SceneryObject*, const char*> rows[] = {
        { state.airport, "Airport reference point" },
        { build::Tower(), "Control tower viewpoint" },
        { runway, "Runway 16L/34R" },
        { build::Placed<HelipadRecord>(kHelipad, {}), "Helipad" },
        { medical, "Helipad, Medical" },
        { vor, "VOR ABC" },
        { dme, "DME ABC" },
        { start, "Start location 9R" },
        { a, "Node 0" },
        { build::Node({}, kHoldShortNode), "Hold-short node 2" },
        { b, "ILS hold-short node 1" },
        { build::Link(a, b, kClosedLink, build::Designator("B5")), "Link, Closed, Taxi B5" },
        { build::Link(a, b, kApronRouteLink, build::Designator("")), "Link, Apron route" },
        { build::Link(a, b, kRunwayLink, runway), "Link, Runway, Runway 16L/34R" },
        { build::Link(a, b), "Link, Taxiway" },
        { spot, "Gate A 34, Gate Medium" },
        { SquareApron(), "Apron, Concrete" },
        { Strip({}, { 9, 9 }), "Apron edge lights" },
        { build::Marker(), "Reference marker" },
        { build::Guideline(a, b), "Guideline" },
        { build::Ils("IABC"), "ILS IABC" },
        { build::Placed<MarkerBeaconPayload>(kMarkerBeacon, {}), "Inner marker" },
    };
    for (const auto& [object, text] : rows) EXPECT_EQ(app::NameOfObject(object), text);
}

TEST_F(PointerTextTest, TheStatusBarFollowsThePointerButNotADrag) {
    build::Node();
    Paint();
    map::OnMouseMove(PixelOf({ 0, 0 }), {});
    app::ShowPointerText();
    EXPECT_EQ(Shown(), "Node 0");
    Press({ 0, 0 });
    DragTo({ 100, 100 });
    app::ShowPointerText();
    EXPECT_EQ(Shown(), "Node 0");
    Release({ 100, 100 });
    Paint();
    map::OnMouseMove(PixelOf({ 0, 0 }), {});
    app::ShowPointerText();
    EXPECT_EQ(Shown(), "");
}

TEST_F(PointerTextTest, WithoutAnAirportThereIsNothing) {
    ResetProgram();
    EXPECT_EQ(app::PointerText({ 10, 10 }), "");
}

}  // namespace
