// AirportPlan.h - an airport as a designer thinks of it: in metres east and north of its reference point.
//
// Tables and generators fill a plan; Network.h turns its taxi lines into nodes and links; AirportModel.h
// turns the whole into the objects of the model.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "model/Geodesy.h"
#include "model/Names.h"
#include "model/Records.h"

namespace sample {

using model::Local;

using enum model::Surface;
using enum model::ParkingType;
using enum model::ParkingName;
using enum model::ApproachLights;
using enum model::SlopeLights;
using model::ParkingType;
using model::Surface;

constexpr uint8_t GateOf(char letter) { return static_cast<uint8_t>(kGateA + (letter - 'A')); }

struct IlsPlan {
    std::string ident;       // empty: none
    uint32_t frequency = 0;  // Hz
};

struct RunwayEndPlan {
    uint8_t number = 0, designator = 0;
    double displaced = 0;  // metres of displaced threshold
    double blastPad = 0;   // metres before the end
    model::ApproachLights approach = kNoApproachLights;
    uint8_t strobes = 0;
    bool endLights = false, reil = false, touchdownLights = false;
    model::SlopeLights vasi = kNoSlopeLights;
    bool vasiRight = false;  // else left of the runway
    IlsPlan ils;
    bool rightPattern = false;
};

struct RunwayPlan {
    std::array<RunwayEndPlan, 2> ends;  // primary, secondary
    Local centre;
    double heading = 0;            // degrees true, seen from the primary end
    double length = 0, width = 0;  // metres
    Surface surface = kAsphalt;
    uint8_t edgeLights = 0, centreLights = 0;  // 0 none to 3 high
    bool redEndLights = false;
    uint16_t markings = 0;
    double holdDistance = 75;    // of hold-short lines from the centre line, metres
    double ilsHoldDistance = 0;  // 0: no ILS hold-short lines
};

struct HelipadPlan {
    Local at;
    double heading = 0, length = 15.24, width = 15.24;
    Surface surface = kConcrete;
};

struct CommPlan {
    uint16_t type = 0;       // 1 ATIS to 13 ASOS
    uint32_t frequency = 0;  // Hz
    std::string name;        // UTF-8
};

// The lines painted on a taxiway.
enum class Paint : uint8_t { None, Centre, Taxiway, Lighted };

// A taxiway as a chain of straight pieces. Where lines cross or end on one another, Network.h puts nodes.
struct TaxiLine {
    const char* name = "";
    model::LinkType type = model::kTaxiwayLink;  // taxiway or apron route
    double width = 23;                           // metres
    Surface surface = kAsphalt;
    Paint paint = Paint::Taxiway;
    std::vector<Local> points;
};

struct SpotPlan {
    Local at;
    double heading = 0, radius = 20;  // degrees true; metres
    ParkingType type = kRampGaSmall;
    uint8_t name = kParking;
    uint16_t number = 0;
    const char* codes = "";  // airline codes separated by commas
    uint8_t pushback = 0;    // 0 none, 1 left, 2 right, 3 both
    double connector = 12;   // width of the link that leads to it, metres
};

struct ApronPlan {
    Surface surface = kConcrete;
    std::vector<Local> outline;
};

struct LightStrip {
    Local from, to;
};

struct AirportPlan {
    std::string ident, name, city, state, country;  // UTF-8
    model::LatLon reference;
    double elevation = 0;  // metres
    double variation = 0;  // magnetic, degrees, EAST positive
    bool hasTower = false;
    Local tower;
    double towerHeight = 15;  // metres above the field
    bool avgas = false, jetFuel = false;
    std::vector<RunwayPlan> runways;
    std::vector<HelipadPlan> helipads;
    std::vector<CommPlan> comms;
    std::vector<TaxiLine> lines;
    std::vector<SpotPlan> spots;
    std::vector<ApronPlan> aprons;
    std::vector<LightStrip> lights;
};

}  // namespace sample
