// FaultAirport.h - what the tests of the fault finder share: one check alone, and an airport without faults.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "faults/FaultSearch.h"
#include "model/EditHistory.h"

struct FaultTest : testing::Test {
    void SetUp() override {
        ResetFakes();
        model::ClearModel();
    }
    void TearDown() override { model::ClearModel(); }
};

inline faults::Switches Only(faults::FaultCheck check) {
    faults::Switches switches{};
    switches[static_cast<size_t>(check)] = true;
    return switches;
}

// Every report of a whole pass.
inline std::vector<faults::FaultReport> AllFaults(const faults::Switches& switches = faults::AllSwitches()) {
    faults::FaultSearch search;
    search.switches = switches;
    std::vector<faults::FaultReport> reports;
    faults::FaultReport report;
    while (FindNextFault(&search, &report) == faults::SearchResult::Fault) reports.push_back(report);
    return reports;
}

inline std::string FirstLine(const std::string& message) { return message.substr(0, message.find("\r\n")); }

inline std::vector<std::string> FirstLines(const std::vector<faults::FaultReport>& reports) {
    std::vector<std::string> lines;
    for (const faults::FaultReport& report : reports) lines.push_back(FirstLine(report.message));
    return lines;
}

inline void ExpectAt(const faults::FaultReport& report, build::Place place, double tolerance = 0.1) {
    EXPECT_LT(model::DistanceBetween(report.position, build::At(place)), tolerance);
}

// A runway along 90 degrees with its starts and hold-short nodes, a parallel taxiway, parking and an apron.
struct CleanAirport {
    model::SceneryObject *runway, *baseStart, *reciprocalStart;
    model::SceneryObject *westEnd, *eastEnd, *westHold, *eastHold, *westCorner, *eastCorner, *junction, *apronNode;
    model::SceneryObject *firstSpot, *secondSpot, *runwayLink, *taxiLink, *apronLink, *apron;
};

inline model::SceneryObject* Start(uint8_t number, uint8_t designatorAndType = 0x10) {
    model::SceneryObject* start = build::Placed<model::StartLocationRecord>(model::kStartLocation, {});
    auto& record = model::PayloadAs<model::StartLocationRecord>(start);
    record.number = number;
    record.designatorAndType = designatorAndType;
    return start;
}

inline model::SceneryObject* HeadedRunway(uint8_t number, float heading, build::Place place = {}) {
    model::SceneryObject* runway = build::Runway(number, 0, place);
    model::PayloadAs<model::RunwayPayload>(runway).body.heading = heading;
    return runway;
}

inline CleanAirport MakeCleanAirport() {
    CleanAirport a{};
    build::Airport("TEST");
    a.runway = HeadedRunway(9, 90);  // 2000 m long, 45 m wide
    a.baseStart = Start(9);
    a.reciprocalStart = Start(27);
    a.westEnd = build::Node({ -950, 0 });
    a.eastEnd = build::Node({ 950, 0 });
    a.westHold = build::Node({ -950, 80 }, model::kHoldShortNode);
    a.eastHold = build::Node({ 950, 80 }, model::kHoldShortNode);
    a.westCorner = build::Node({ -950, 150 });
    a.eastCorner = build::Node({ 950, 150 });
    a.junction = build::Node({ 0, 150 });
    a.apronNode = build::Node({ 0, 250 });
    a.firstSpot = build::Spot({ -40, 300 });
    a.secondSpot = build::Spot({ 40, 300 });
    a.runwayLink = build::Link(a.westEnd, a.eastEnd, model::kRunwayLink, a.runway);
    build::Link(a.westEnd, a.westHold);
    build::Link(a.eastEnd, a.eastHold);
    build::Link(a.westHold, a.westCorner);
    build::Link(a.eastHold, a.eastCorner);
    build::Link(a.westCorner, a.junction);
    a.taxiLink = build::Link(a.junction, a.eastCorner);
    a.apronLink = build::Link(a.junction, a.apronNode, model::kApronRouteLink);
    build::Link(a.apronNode, a.firstSpot, model::kParkingLink);
    build::Link(a.apronNode, a.secondSpot, model::kParkingLink);
    a.apron = build::Apron({ build::Encoded({ -80, 220 }), build::Encoded({ -80, 340 }), build::Encoded({ 80, 340 }),
                             build::Encoded({ 80, 220 }) });
    return a;
}

inline void Free(model::SceneryObject* object) {
    model::UnlinkObject(object);
    model::FreeObject(object);
}

// The same airport with faults of all checks.
inline void MakeBrokenAirport() {
    const CleanAirport a = MakeCleanAirport();
    Free(a.baseStart);
    Free(a.reciprocalStart);
    model::PayloadAs<model::TaxiLinkPayload>(a.runwayLink).designator = nullptr;
    build::Link(a.westCorner, a.apronNode, model::kRunwayLink);
    model::SceneryObject* twin = build::Node({ 3, 250 });
    build::Link(twin, a.westCorner);
    build::Link(twin, a.eastCorner);
    build::Link(a.apronNode, build::Node({ 500, 160 }));
    build::Link(build::Node({ 0, 2600 }), build::Spot({ 300, 2600 }), model::kParkingLink);
    build::Link(build::Node({ 0, 3000 }), build::Node({ 300, 3000 }));
    build::Node({ 0, 4000 });
    build::Node({ 15, 4000 });
    build::Node({ 0, 5000 }, model::kHoldShortNode);
    build::Spot({ 0, 6000 });
    build::Apron({ build::Encoded({ 200, 400 }), build::Encoded({ 250, 450 }), build::Encoded({ 250, 400 }),
                   build::Encoded({ 200, 450 }) });
}

// First lines of what is told of it, press after press.
inline constexpr const char* kFaultsOfBrokenAirport[] = {
    "HOLD-SHORT NODE too far from runway.",
    "NODE AND LINK POSSIBLY UNCONNECTED.",
    "NODES POSSIBLY UNCONNECTED.",
    "ISOLATED SEGMENT.",
    "ISOLATED SEGMENT.",
    "ISOLATED PARKING.",
    "ISOLATED NODE.",
    "ISOLATED NODE.",
    "ISOLATED NODE.",
    "OVERLAPPING NODES.",
    "BAD START LOCATION.",
    "BAD START LOCATION.",
    "LINK DESIGNATOR DOESN'T MATCH THE RUNWAY.",
    "MISPLACED RUNWAY LINK.",
    "CROSSED APRON EDGES.",
};
