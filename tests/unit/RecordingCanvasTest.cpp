// RecordingCanvasTest.cpp - the recorder with which tests look at drawing calls.
#include "fakes/RecordingCanvas.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "fakes/MapFixture.h"

namespace {

class RecordingCanvasTest : public MapFixture {};

// One of each: a map that makes every kind of call.
void MakeAirportOfAllCalls() {
    app::settings.showLatLongGrid = true;
    build::Airport("KTST");
    model::PayloadAs<model::RunwayPayload>(build::Runway(36)).body.markings = 0x3F;
    auto* link = build::Link(build::Node({ -100, 0 }), build::Node({ 100, 0 }));
    model::PayloadAs<model::TaxiLinkPayload>(link).flagsWord |= 1u << 18;
    build::Apron({ build::Encoded({ 0, 0 }), build::Encoded({ 50, 0 }), build::Encoded({ 50, 50 }) })->flags |=
        model::kSelected;
    model::state.loaded = true;
}

void ExpectSame(const CanvasCall& a, const CanvasCall& b) {
    EXPECT_EQ(a.name, b.name);
    EXPECT_EQ(a.penWidth, b.penWidth);
    EXPECT_EQ(a.pen, b.pen);
    EXPECT_EQ(a.brush, b.brush);
    EXPECT_EQ(a.points, b.points);
    EXPECT_EQ(a.path.steps, b.path.steps);
    EXPECT_EQ(a.text, b.text);
    EXPECT_EQ(a.run.height, b.run.height);
    EXPECT_EQ(a.run.colour, b.run.colour);
    EXPECT_EQ(a.run.angle, b.run.angle);
    EXPECT_EQ(a.clipDepth, b.clipDepth);
}

// The benchmark of the redraw compares with these very calls.
TEST_F(RecordingCanvasTest, WhatWasWrittenDownIsIssuedAgainCallByCall) {
    MakeAirportOfAllCalls();
    RecordingCanvas map, again;
    Paint(&map);
    Replay(ReplaySteps(map.calls), &again.canvas);
    ASSERT_EQ(map.calls.size(), again.calls.size());
    std::set<std::string> names;
    for (size_t i = 0; i < map.calls.size() && !HasFailure(); ++i) {
        ExpectSame(map.calls[i], again.calls[i]);
        names.insert(map.calls[i].name);
    }
    EXPECT_EQ(names.size(), 10u) << "a kind of call was not tried";
}

}  // namespace
