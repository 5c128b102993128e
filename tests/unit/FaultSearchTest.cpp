// FaultSearchTest.cpp - the order of the checks, resuming, edits between presses, switches; and the corpus: an
// airport without faults, and each fault in it.
#include <iterator>
#include <random>
#include <set>

#include "dialogs/Subject.h"
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
    MakeBrokenAirport();
    EXPECT_EQ(FirstLines(AllFaults()), Lines(std::begin(kFaultsOfBrokenAirport), std::end(kFaultsOfBrokenAirport)));
}

TEST_F(FaultSearch, WhatWasListedCanBeDroppedAndTheCheckGoesOnBehindIt) {
    MakeBrokenAirport();
    while (NextLine() != "ISOLATED SEGMENT.") {
    }
    DropLists(&search);
    EXPECT_EQ(NextLine(), "ISOLATED PARKING.");
    DropLists(&search);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(NextLine(), "ISOLATED NODE.");
    EXPECT_EQ(NextLine(), "OVERLAPPING NODES.");
    DropLists(&search);
    EXPECT_EQ(NextLine(), "BAD START LOCATION.");
    DropLists(&search);
    EXPECT_EQ(NextLine(), "LINK DESIGNATOR DOESN'T MATCH THE RUNWAY.");
    DropLists(&search);
    EXPECT_EQ(NextLine(), "MISPLACED RUNWAY LINK.");
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

TEST_F(FaultSearch, ADialogThatIsCancelledIsNoEdit) {
    FourIsolated();
    EXPECT_EQ(NextLine(), "ISOLATED PARKING.");
    dialogs::MakeProvisional(model::kHelipad, sizeof(model::HelipadRecord));
    dialogs::CancelDialog();
    EXPECT_EQ(NextLine(), "ISOLATED PARKING.");
    dialogs::MoveToClick(model::state.head, build::At({ 700, 700 }));
    dialogs::CancelDialog();
    EXPECT_EQ(NextLine(), "ISOLATED NODE.");
    EXPECT_EQ(NextLine(), "ISOLATED NODE.");
    EXPECT_EQ(Next(), SearchResult::NoMoreFaults);
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

TEST_F(FaultSearch, LinksWithoutAnEndAreNoDangerAndStillCountAtTheOther) {
    SceneryObject* node = Node({ 0, 0 });
    for (uint32_t type : { model::kTaxiwayLink, model::kRunwayLink }) Link(node, nullptr, type);
    Link(nullptr, nullptr, model::kRunwayLink);
    EXPECT_EQ(FirstLines(AllFaults()), Lines{ "ISOLATED NODE." });
    Node({ 10, 0 });  // open, beside the node with two links and beside no link
    const auto reports = AllFaults(Only(FaultCheck::OpenLinks));
    ASSERT_EQ(reports.size(), 1u);
    ExpectAt(reports[0], { 10, 0 });
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

struct Told {
    std::string line;
    std::vector<SceneryObject*> objects;  // in any order
    build::Place at;
};

struct Seeded {
    const char* name;
    std::vector<Told> (*seed)(const CleanAirport& a);  // into the airport; what is to be told of it then
};

std::multiset<SceneryObject*> AsSet(const std::vector<SceneryObject*>& objects) {
    return { objects.begin(), objects.end() };
}

constexpr const char* kSegment = "ISOLATED SEGMENT.";
constexpr build::Place kWestStart = { -1000 + 60.96, 0 }, kEastStart = { 1000 - 60.96, 0 };

SceneryObject* DesignateAfter(SceneryObject* link, SceneryObject* runway) {
    PayloadAs<model::TaxiLinkPayload>(link).designator = runway;
    return link;
}

const Seeded kCorpus[] = {
    { "hold-short node too far",
      [](auto& a) {
          model::SetPosition(a.eastHold, build::At({ 950, 95 }));
          return std::vector<Told>{ { "HOLD-SHORT NODE too far from runway.", { a.eastHold }, { 950, 95 } } };
      } },
    { "ILS hold-short node far off",
      [](auto& a) {
          PayloadAs<model::TaxiNodeRecord>(a.apronNode).type = model::kIlsHoldShortNode;
          return std::vector<Told>{};
      } },
    { "open end beside a node",
      [](auto& a) {
          SceneryObject* end = Node({ 935, 155 });
          Link(a.apronNode, end);
          return std::vector<Told>{ { "NODES POSSIBLY UNCONNECTED.", { end, a.eastCorner }, { 935, 155 } } };
      } },
    { "open end beside a link",
      [](auto& a) {
          SceneryObject* end = Node({ 500, 160 });
          Link(a.apronNode, end);
          return std::vector<Told>{ { "NODE AND LINK POSSIBLY UNCONNECTED.", { end, a.taxiLink }, { 500, 160 } } };
      } },
    { "segment",
      [](auto&) {
          SceneryObject *start = Node({ 0, 2000 }), *end = Node({ 500, 2000 });
          return std::vector<Told>{ { kSegment, { start, end, Link(start, end) }, { 0, 2000 } } };
      } },
    { "segment with parking",
      [](auto&) {
          SceneryObject *node = Node({ 0, 2000 }), *spot = build::Spot({ 500, 2000 });
          SceneryObject* link = Link(node, spot, model::kParkingLink);
          return std::vector<Told>{ { kSegment, { node, spot, link }, { 0, 2000 } } };
      } },
    { "the only way closed",
      [](auto& a) {
          PayloadAs<model::TaxiLinkPayload>(a.apronLink).flagsWord = model::kClosedLink;
          SceneryObject *second = a.apron->prev, *first = second->prev;  // the links to the spots
          return std::vector<Told>{
              { kSegment, { a.apronNode, a.firstSpot, a.secondSpot, first, second }, { 0, 250 } }
          };
      } },
    { "parking",
      [](auto&) {
          return std::vector<Told>{ { "ISOLATED PARKING.", { build::Spot({ 0, 2000 }) }, { 0, 2000 } } };
      } },
    { "parking behind a closed link",
      [](auto& a) {
          SceneryObject* spot = build::Spot({ 0, 400 });
          Link(a.apronNode, spot, model::kClosedLink);
          return std::vector<Told>{ { "ISOLATED PARKING.", { spot }, { 0, 400 } } };
      } },
    { "node",
      [](auto&) {
          return std::vector<Told>{ { "ISOLATED NODE.", { Node({ 0, 2000 }) }, { 0, 2000 } } };
      } },
    { "node behind a closed link",
      [](auto& a) {
          Link(a.apronNode, Node({ 0, 400 }), model::kClosedLink);
          return std::vector<Told>{};
      } },
    { "overlap",
      [](auto& a) {
          SceneryObject* twin = Node({ 3, 150 });
          Link(twin, a.apronNode);
          Link(twin, a.eastCorner);
          return std::vector<Told>{ { "OVERLAPPING NODES.", { a.junction, twin }, { 0, 150 } } };
      } },
    { "missing start",
      [](auto& a) {
          Free(a.reciprocalStart);
          return std::vector<Told>{ { "BAD START LOCATION.", { a.runway }, kEastStart } };
      } },
    { "start with the wrong name",
      [](auto& a) {
          PayloadAs<model::StartLocationRecord>(a.baseStart).number = 10;
          return std::vector<Told>{ { "BAD START LOCATION.", { a.runway }, kWestStart } };
      } },
    { "start of a helipad",
      [](auto& a) {
          PayloadAs<model::StartLocationRecord>(a.baseStart).designatorAndType = 0x30;
          return std::vector<Told>{ { "BAD START LOCATION.", { a.runway }, kWestStart } };
      } },
    { "missing start of a closed end",
      [](auto& a) {
          Free(a.reciprocalStart);
          PayloadAs<model::RunwayPayload>(a.runway).body.pattern = 0x08;
          return std::vector<Told>{};
      } },
    { "misplaced runway link",
      [](auto& a) {
          PayloadAs<model::TaxiLinkPayload>(a.apronLink).flagsWord = model::kRunwayLink;
          return std::vector<Told>{ { "MISPLACED RUNWAY LINK.", { a.apronLink }, { 0, 200 } } };
      } },
    { "runway link without a name",
      [](auto& a) {
          SceneryObject* link = DesignateAfter(a.runwayLink, nullptr);
          return std::vector<Told>{ { "LINK DESIGNATOR DOESN'T MATCH THE RUNWAY.", { link }, {} } };
      } },
    { "runway link named after another runway",
      [](auto& a) {
          SceneryObject* other = HeadedRunway(4, 40, { 9000, 0 });
          PayloadAs<model::RunwayPayload>(other).body.pattern = 0x09;
          SceneryObject* link = DesignateAfter(a.runwayLink, other);
          return std::vector<Told>{ { "LINK DESIGNATOR DOESN'T MATCH THE RUNWAY.", { link }, {} } };
      } },
    { "crossed apron",
      [](auto&) {
          SceneryObject* apron = build::Apron({ build::Encoded({ 0, 400 }), build::Encoded({ 50, 450 }),
                                                build::Encoded({ 50, 400 }), build::Encoded({ 0, 450 }) });
          return std::vector<Told>{ { "CROSSED APRON EDGES.", { apron }, { 25, 425 } } };
      } },
};

}  // namespace

TEST_F(FaultSearch, EachFaultInACleanAirportGivesItsReportAndNoOther) {
    for (const Seeded& seeded : kCorpus) {
        SCOPED_TRACE(seeded.name);
        model::ClearModel();
        const std::vector<Told> expected = seeded.seed(MakeCleanAirport());
        const std::vector<FaultReport> reports = AllFaults();
        ASSERT_EQ(reports.size(), expected.size()) << testing::PrintToString(FirstLines(reports));
        for (size_t i = 0; i < reports.size(); ++i) {
            EXPECT_EQ(FirstLine(reports[i].message), expected[i].line);
            EXPECT_EQ(AsSet(reports[i].objects), AsSet(expected[i].objects));
            ExpectAt(reports[i], expected[i].at, 0.3);
        }
    }
}
