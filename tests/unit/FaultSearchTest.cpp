// FaultSearchTest.cpp - the order of the checks, resuming, edits between presses, switches; and the corpus: an
// airport without faults, and each fault in it.
#include <functional>
#include <random>

#include "fakes/FaultAirport.h"

namespace {

using build::Link;
using build::Node;
using faults::FaultCheck;
using faults::FaultReport;
using faults::SearchResult;
using model::PayloadAs;
using model::SceneryObject;
using Lines = std::vector<std::string>;

struct FaultSearch : FaultTest {
    SearchResult Next() { return FindNextFault(&search, &report); }
    std::string NextLine() { return Next() == SearchResult::Fault ? FirstLine(report.message) : ""; }

    faults::FaultSearch search;
    FaultReport report;
};

void MoveTo(SceneryObject* object, build::Place place) {
    SceneryObject* edited = model::CopyObject(object);
    model::SetPosition(edited, build::At(place));
    model::BeginAction();
    model::ModifyObject(edited, object);
}

// Two isolated nodes, two isolated spots: faults of one check that needs four presses.
void FourIsolated() {
    build::Spot({ 0, 0 });
    build::Spot({ 500, 0 });
    Node({ 1000, 0 });
    Node({ 1500, 0 });
}

}  // namespace

TEST_F(FaultSearch, AnEmptyModelHasNoFaults) { EXPECT_EQ(Next(), SearchResult::NoFaults); }

TEST_F(FaultSearch, ACleanAirportHasNoFaults) {
    MakeCleanAirport();
    EXPECT_EQ(FirstLines(AllFaults()), Lines{});
    EXPECT_EQ(Next(), SearchResult::NoFaults);
    EXPECT_EQ(Next(), SearchResult::NoFaults);
}

TEST_F(FaultSearch, AfterTheLastFaultThereAreNoMoreAndTheNextPressStartsAgain) {
    FourIsolated();
    for (int pass = 0; pass < 2; ++pass) {
        EXPECT_EQ(NextLine(), "ISOLATED PARKING.");
        EXPECT_EQ(NextLine(), "ISOLATED PARKING.");
        EXPECT_EQ(NextLine(), "ISOLATED NODE.");
        EXPECT_EQ(NextLine(), "ISOLATED NODE.");
        EXPECT_EQ(Next(), SearchResult::NoMoreFaults);
        EXPECT_EQ(search.checkIndex, 0);
    }
}

TEST_F(FaultSearch, ChecksRunInTheirOrder) {
    const CleanAirport a = MakeCleanAirport();
    build::Apron(
        { build::Encoded({ 0, 0 }), build::Encoded({ 50, 50 }), build::Encoded({ 50, 0 }), build::Encoded({ 0, 50 }) });
    Link(a.westCorner, a.apronNode, model::kRunwayLink);
    model::UnlinkObject(a.baseStart);
    model::FreeObject(a.baseStart);
    SceneryObject* twin = Node({ 3, 250 });
    Link(twin, a.westCorner);
    Link(twin, a.eastCorner);
    Link(Node({ 0, 3000 }), Node({ 300, 3000 }));
    Node({ 0, 4000 });
    Node({ 15, 4000 });
    Node({ 0, 5000 }, model::kHoldShortNode);
    EXPECT_EQ(FirstLines(AllFaults()),
              (Lines{ "HOLD-SHORT NODE too far from runway.", "NODES POSSIBLY UNCONNECTED.", "ISOLATED SEGMENT.",
                      "ISOLATED NODE.", "ISOLATED NODE.", "ISOLATED NODE.", "OVERLAPPING NODES.", "BAD START LOCATION.",
                      "MISPLACED RUNWAY LINK.", "CROSSED APRON EDGES." }));
}

TEST_F(FaultSearch, AnEditStartsTheCheckAgainAndForgetsEarlierFaults) {
    FourIsolated();
    SceneryObject* first = model::state.head;
    EXPECT_EQ(NextLine(), "ISOLATED PARKING.");
    EXPECT_EQ(NextLine(), "ISOLATED PARKING.");
    MoveTo(first, { 0, 10 });
    EXPECT_EQ(NextLine(), "ISOLATED PARKING.");
    EXPECT_EQ(report.objects, std::vector{ first });
    ExpectAt(report, { 0, 10 });
}

TEST_F(FaultSearch, AFaultThatWasRepairedLeavesNoFaultsFound) {
    MakeCleanAirport();
    SceneryObject* spot = build::Spot({ 0, 2000 });
    EXPECT_EQ(NextLine(), "ISOLATED PARKING.");
    model::BeginAction();
    model::DeleteObject(spot);
    EXPECT_EQ(Next(), SearchResult::NoFaults);
}

TEST_F(FaultSearch, AnEditLeavesTheCheckThatWasReached) {
    Node({ 0, 0 }, model::kHoldShortNode);
    EXPECT_EQ(NextLine(), "HOLD-SHORT NODE too far from runway.");
    EXPECT_EQ(NextLine(), "ISOLATED NODE.");
    MoveTo(model::state.head, { 0, 10 });
    EXPECT_EQ(NextLine(), "ISOLATED NODE.");  // not the hold-short limit again
    EXPECT_EQ(Next(), SearchResult::NoMoreFaults);
}

TEST_F(FaultSearch, UndoAndRedoAreEdits) {
    FourIsolated();
    SceneryObject* first = model::state.head;
    MoveTo(first, { 0, 10 });
    EXPECT_EQ(NextLine(), "ISOLATED PARKING.");
    EXPECT_EQ(NextLine(), "ISOLATED PARKING.");
    model::Undo();
    EXPECT_EQ(NextLine(), "ISOLATED PARKING.");
    EXPECT_EQ(report.objects, std::vector{ first });
    EXPECT_EQ(NextLine(), "ISOLATED PARKING.");
    model::Redo();
    EXPECT_EQ(NextLine(), "ISOLATED PARKING.");
    EXPECT_EQ(report.objects, std::vector{ first });
}

TEST_F(FaultSearch, AnEditWhoseHistoryEntryTakesTheSamePlaceInMemoryIsNoticed) {
    FourIsolated();
    for (int i = 0; i < 50; ++i) {
        SceneryObject* added = model::CreateObject(model::kParkingSpot, sizeof(model::ParkingSpotRecord));
        model::SetPosition(added, build::At({ 100.0 * i, 500 }));
        model::BeginAction();
        model::AddObject(added);
        StartOver(&search);
        EXPECT_EQ(NextLine(), "ISOLATED PARKING.");
        EXPECT_EQ(NextLine(), "ISOLATED PARKING.");
        model::Undo();
        EXPECT_EQ(NextLine(), "ISOLATED PARKING.");
        ExpectAt(report, { 0, 0 });
    }
}

TEST_F(FaultSearch, TheReportedObjectMayBeDeletedBetweenPresses) {
    for (FaultCheck check : { FaultCheck::HoldShortLimits, FaultCheck::OpenLinks, FaultCheck::IsolatedSegments,
                              FaultCheck::OverlappingNodes }) {
        model::ClearModel();
        StartOver(&search);
        search.switches = Only(check);
        for (int i = 0; i < 6; ++i) Node({ i / 2 * 500.0 + i % 2 * 3.0, 0 }, model::kHoldShortNode);
        while (Next() == SearchResult::Fault) {
            model::BeginAction();
            for (SceneryObject* object : report.objects) model::DeleteObject(object);
        }
        EXPECT_EQ(model::state.head, nullptr);
    }
}

TEST_F(FaultSearch, ASwitchedOffCheckDoesNotRun) {
    FourIsolated();
    search.switches[static_cast<size_t>(FaultCheck::IsolatedSegments)] = false;
    EXPECT_EQ(Next(), SearchResult::NoFaults);
}

TEST_F(FaultSearch, SwitchingTheRunningCheckOffEndsIt) {
    FourIsolated();
    EXPECT_EQ(NextLine(), "ISOLATED PARKING.");
    search.switches[static_cast<size_t>(FaultCheck::IsolatedSegments)] = false;
    EXPECT_EQ(Next(), SearchResult::NoMoreFaults);
}

TEST_F(FaultSearch, StartOverBeginsAtTheFirstCheckAndKeepsTheSwitches) {
    Node({ 0, 0 }, model::kHoldShortNode);
    search.switches[static_cast<size_t>(FaultCheck::ApronPolygons)] = false;
    EXPECT_EQ(NextLine(), "HOLD-SHORT NODE too far from runway.");
    StartOver(&search);
    EXPECT_EQ(NextLine(), "HOLD-SHORT NODE too far from runway.");
    EXPECT_FALSE(search.switches[static_cast<size_t>(FaultCheck::ApronPolygons)]);
}

TEST_F(FaultSearch, AnotherAirportInBetweenIsNoDanger) {
    FourIsolated();
    EXPECT_EQ(NextLine(), "ISOLATED PARKING.");
    model::ClearModel();
    EXPECT_EQ(Next(), SearchResult::NoFaults);
}

TEST_F(FaultSearch, CodesOfMoreThanOneTurnAreNoDanger) {
    std::mt19937 random(1);
    std::vector<SceneryObject*> nodes;
    for (int i = 0; i < 60; ++i) {
        SceneryObject* node = Node({}, i % 2 == 0 ? model::kHoldShortNode : model::kNormalNode);
        auto& record = PayloadAs<model::TaxiNodeRecord>(node);
        record.longitude = static_cast<uint32_t>(random());
        record.latitude = static_cast<uint32_t>(random());
        nodes.push_back(node);
        if (i % 3 == 0) Link(node, nodes[random() % nodes.size()], static_cast<uint32_t>(1 + random() % 5));
    }
    HeadedRunway(9, 90);
    EXPECT_GT(AllFaults().size(), 30u);
}

namespace {

struct Seeded {
    const char* name;
    std::function<void(const CleanAirport&)> seed;
    Lines expected;
};

void Free(SceneryObject* object) {
    model::UnlinkObject(object);
    model::FreeObject(object);
}

const Seeded kCorpus[] = {
    { "hold-short node too far",
      [](auto& a) {
          model::SetPosition(a.eastHold, build::At({ 950, 95 }));
      },
      { "HOLD-SHORT NODE too far from runway." } },
    { "open end beside a node",
      [](auto& a) {
          Link(a.apronNode, Node({ 935, 155 }));
      },
      { "NODES POSSIBLY UNCONNECTED." } },
    { "open end beside a link",
      [](auto& a) {
          Link(a.apronNode, Node({ 500, 160 }));
      },
      { "NODE AND LINK POSSIBLY UNCONNECTED." } },
    { "segment",
      [](auto&) {
          Link(Node({ 0, 2000 }), Node({ 500, 2000 }));
      },
      { "ISOLATED SEGMENT." } },
    { "segment with parking",
      [](auto&) {
          Link(Node({ 0, 2000 }), build::Spot({ 500, 2000 }), model::kParkingLink);
      },
      { "ISOLATED SEGMENT." } },
    { "parking",
      [](auto&) {
          build::Spot({ 0, 2000 });
      },
      { "ISOLATED PARKING." } },
    { "node",
      [](auto&) {
          Node({ 0, 2000 });
      },
      { "ISOLATED NODE." } },
    { "overlap",
      [](auto& a) {
          SceneryObject* twin = Node({ 3, 150 });
          Link(twin, a.apronNode);
          Link(twin, a.eastCorner);
      },
      { "OVERLAPPING NODES." } },
    { "missing start", [](auto& a) { Free(a.reciprocalStart); }, { "BAD START LOCATION." } },
    { "start with the wrong name",
      [](auto& a) { PayloadAs<model::StartLocationRecord>(a.baseStart).number = 10; },
      { "BAD START LOCATION." } },
    { "misplaced runway link",
      [](auto& a) { PayloadAs<model::TaxiLinkPayload>(a.apronLink).flagsWord = model::kRunwayLink; },
      { "MISPLACED RUNWAY LINK." } },
    { "runway link without a name",
      [](auto& a) { PayloadAs<model::TaxiLinkPayload>(a.runwayLink).designator = nullptr; },
      { "LINK DESIGNATOR DOESN'T MATCH THE RUNWAY." } },
    { "crossed apron",
      [](auto&) {
          build::Apron({ build::Encoded({ 0, 400 }), build::Encoded({ 50, 450 }), build::Encoded({ 50, 400 }),
                         build::Encoded({ 0, 450 }) });
      },
      { "CROSSED APRON EDGES." } },
};

}  // namespace

TEST_F(FaultSearch, EachFaultInACleanAirportGivesItsReportAndNoOther) {
    for (const Seeded& seeded : kCorpus) {
        SCOPED_TRACE(seeded.name);
        model::ClearModel();
        seeded.seed(MakeCleanAirport());
        EXPECT_EQ(FirstLines(AllFaults()), seeded.expected);
    }
}
