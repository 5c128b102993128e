#include "model/Links.h"

#include <gtest/gtest.h>

#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "model/EditHistory.h"

namespace {

using namespace model;

class LinksTest : public testing::Test {
protected:
    void SetUp() override {
        ResetFakes();
        ClearModel();
    }
    void TearDown() override { ClearModel(); }

    // A link as a file gives it: indices, no pointers.
    static SceneryObject* Read(uint16_t start, uint16_t endField, uint32_t type, uint32_t indexByte) {
        SceneryObject* object = build::Link(nullptr, nullptr, type);
        auto& link = Payload(object);
        link.startIndex = start;
        link.endField = endField;
        link.flagsWord |= indexByte << 8;
        return object;
    }
    static TaxiLinkPayload& Payload(SceneryObject* link) { return PayloadAs<TaxiLinkPayload>(link); }
    static SceneryObject* Start(SceneryObject* link) { return Payload(link).start; }
    static SceneryObject* End(SceneryObject* link) { return Payload(link).end; }
    static SceneryObject* Name(SceneryObject* link) { return Payload(link).designator; }
};

TEST_F(LinksTest, IndicesCountObjectsOfOneKindInListOrder) {
    SceneryObject* link = Read(0, 1, kTaxiwayLink, 1);  // the link may stand before its nodes
    build::Spot();
    SceneryObject* first = build::Node();
    build::Designator("A");
    SceneryObject* designator = build::Designator("B");
    SceneryObject* second = build::Node();
    ResolveLinks();
    EXPECT_EQ(Start(link), first);
    EXPECT_EQ(End(link), second);
    EXPECT_EQ(Name(link), designator);
}

TEST_F(LinksTest, AParkingLinkEndsAtASpot) {
    build::Node();
    SceneryObject* node = build::Node();
    build::Spot();
    SceneryObject* spot = build::Spot();
    SceneryObject* link = Read(1, 1, kParkingLink, 0);
    ResolveLinks();
    EXPECT_EQ(Start(link), node);
    EXPECT_EQ(End(link), spot);
}

TEST_F(LinksTest, ARunwayLinkFindsItsRunwayByNumberAndDesignator) {
    build::Node();
    build::Node();
    build::Designator("A");
    build::Runway(16, 1);
    SceneryObject* right = build::Runway(16, 2);
    SceneryObject* link = Read(0, 0x2001, kRunwayLink, 16);
    SceneryObject* unknown = Read(0, 0x3001, kRunwayLink, 16);
    ResolveLinks();
    EXPECT_EQ(Name(link), right);
    EXPECT_EQ(Name(unknown), nullptr);  // stays: only the name is missing
    EXPECT_EQ(CountKind(kTaxiLink), 2u);
}

TEST_F(LinksTest, TheRunwayIsMatchedByItsPrimaryEndOnly) {
    build::Node();
    build::Node();
    build::Runway(16);  // its secondary end is 34
    SceneryObject* link = Read(0, 1, kRunwayLink, 34);
    ResolveLinks();
    EXPECT_EQ(Name(link), nullptr);
}

TEST_F(LinksTest, TheTopFourBitsOfTheEndFieldAreNoPartOfTheIndex) {
    build::Node();
    SceneryObject* node = build::Node();
    SceneryObject* link = Read(0, 0xF001, kTaxiwayLink, 0);
    ResolveLinks();
    EXPECT_EQ(End(link), node);
}

TEST_F(LinksTest, LinksWithoutStartOrEndAreTakenOutUnrecorded) {
    build::Node();
    build::Node();
    Read(2, 1, kTaxiwayLink, 0);                        // no such start
    SceneryObject* kept = Read(0, 1, kTaxiwayLink, 9);  // no such designator
    Read(0, 2, kTaxiwayLink, 0);                        // no such end
    Read(0, 0, kParkingLink, 0);                        // no spots at all
    Read(0xFFFF, 0xFFFF, kTaxiwayLink, 0xFF);
    ResolveLinks();
    EXPECT_EQ(CountKind(kTaxiLink), 1u);
    EXPECT_EQ(FirstOfKind(state.head, kTaxiLink), kept);
    EXPECT_EQ(Name(kept), nullptr);
    EXPECT_EQ(state.undoHead, nullptr);
    EXPECT_FALSE(state.modified);
    EXPECT_EQ(build::List(), build::ListFromTail());
}

TEST_F(LinksTest, AnEmptyModelHasNothingToResolve) {
    ResolveLinks();
    UpdateLinkIndices();
    EXPECT_EQ(state.head, nullptr);
}

TEST_F(LinksTest, UpdatedIndicesFollowTheListOrder) {
    SceneryObject *a = build::Node(), *b = build::Node(), *c = build::Node(), *spot = build::Spot();
    build::Designator("A");
    SceneryObject* name = build::Designator("B");
    SceneryObject* link = build::Link(c, b, kTaxiwayLink, name);
    SceneryObject* parking = build::Link(b, spot, kParkingLink);
    UpdateLinkIndices();
    EXPECT_EQ(uint16_t{ Payload(link).startIndex }, 2);
    EXPECT_EQ(uint16_t{ Payload(link).endField }, 1);
    EXPECT_EQ(LinkIndexByte(Payload(link)), 1u);
    EXPECT_EQ(uint16_t{ Payload(parking).startIndex }, 1);
    EXPECT_EQ(uint16_t{ Payload(parking).endField }, 0);
    UnlinkObject(a);
    UpdateLinkIndices();
    EXPECT_EQ(uint16_t{ Payload(link).startIndex }, 1);
    EXPECT_EQ(uint16_t{ Payload(link).endField }, 0);
    FreeObject(a);
}

TEST_F(LinksTest, ARunwayLinkTakesNumberAndDesignatorOfTheRunwaysPrimaryEnd) {
    SceneryObject *a = build::Node(), *b = build::Node();
    SceneryObject* runway = build::Runway(16, 2);
    SceneryObject* link = build::Link(a, b, kRunwayLink, runway);
    Payload(link).endField = 0x5003;
    UpdateLinkIndices();
    EXPECT_EQ(LinkIndexByte(Payload(link)), 16u);
    EXPECT_EQ(uint16_t{ Payload(link).endField }, 0x2001);
    PayloadAs<RunwayPayload>(runway).body.primaryDesignator = 0x13;  // only its low four bits fit
    UpdateLinkIndices();
    EXPECT_EQ(uint16_t{ Payload(link).endField }, 0x3001);
}

TEST_F(LinksTest, OtherLinksKeepTheTopFourBitsOfTheirEndField) {
    SceneryObject *a = build::Node(), *b = build::Node();
    SceneryObject* link = build::Link(a, b);
    Payload(link).endField = 0xA123;
    UpdateLinkIndices();
    EXPECT_EQ(uint16_t{ Payload(link).endField }, 0xA001);
}

TEST_F(LinksTest, APointerThatIsNotInTheListLeavesZero) {
    build::Node();
    SceneryObject *a = build::Node(), *gone = CreateObject(kTaxiNode, 12);
    build::Designator("A");
    SceneryObject* goneName = CreateObject(kTaxiDesignator, 8);
    SceneryObject* goneRunway = CreateObject(kRunway, sizeof(RunwayPayload));
    SceneryObject* link = build::Link(gone, gone, kTaxiwayLink, goneName);
    SceneryObject* runwayLink = build::Link(a, a, kRunwayLink, goneRunway);
    Payload(link).flagsWord |= 0x0700;
    Payload(runwayLink).flagsWord |= 0x0700;
    Payload(runwayLink).endField = 0x4000;
    UpdateLinkIndices();
    EXPECT_EQ(uint16_t{ Payload(link).startIndex }, 0);
    EXPECT_EQ(uint16_t{ Payload(link).endField }, 0);
    EXPECT_EQ(LinkIndexByte(Payload(link)), 0u);
    EXPECT_EQ(LinkIndexByte(Payload(runwayLink)), 0u);
    EXPECT_EQ(uint16_t{ Payload(runwayLink).endField }, 1);
    FreeObject(gone);
    FreeObject(goneName);
    FreeObject(goneRunway);
}

TEST_F(LinksTest, LinesLightsAndSurfaceAreUntouched) {
    SceneryObject *a = build::Node(), *b = build::Node();
    SceneryObject* link = build::Link(a, b);
    Payload(link).flagsWord = 0x17FF5561;
    UpdateLinkIndices();
    EXPECT_EQ(uint32_t{ Payload(link).flagsWord }, 0x17FF0061u);
}

TEST_F(LinksTest, UpdatingThenResolvingGivesTheSamePointers) {
    std::vector<SceneryObject*> nodes;
    for (int i = 0; i < 300; ++i) nodes.push_back(build::Node());
    std::vector<SceneryObject*> names;
    for (int i = 0; i < 200; ++i) names.push_back(build::Designator("N"));
    std::vector<SceneryObject*> links;
    for (size_t i = 0; i < 299; ++i) links.push_back(build::Link(nodes[i], nodes[299 - i / 2], 1, names[i % 200]));
    UpdateLinkIndices();
    for (SceneryObject* link : links) Payload(link).start = Payload(link).end = Payload(link).designator = nullptr;
    ResolveLinks();
    ASSERT_EQ(CountKind(kTaxiLink), 299u);
    for (size_t i = 0; i < 299; ++i) {
        EXPECT_EQ(Start(links[i]), nodes[i]);
        EXPECT_EQ(End(links[i]), nodes[299 - i / 2]);
        EXPECT_EQ(Name(links[i]), names[i % 200]);
    }
}

TEST_F(LinksTest, ALinkWithoutADesignatorHoldsZero) {
    SceneryObject *a = build::Node(), *b = build::Node();
    build::Designator("A");
    SceneryObject* blank = build::Designator("");
    build::Designator("");
    SceneryObject *nameless = build::Link(a, b), *onRunway = build::Link(b, a, kRunwayLink);
    SceneryObject* named = build::Link(b, a, kTaxiwayLink, blank);
    for (SceneryObject* link : { nameless, onRunway }) Payload(link).flagsWord |= 0x0700;
    UpdateLinkIndices();
    EXPECT_EQ(LinkIndexByte(Payload(nameless)), 0u);
    EXPECT_EQ(LinkIndexByte(Payload(onRunway)), 0u);
    EXPECT_EQ(LinkIndexByte(Payload(named)), 1u);
    EXPECT_EQ(BlankDesignator(), blank) << "the first of two";
    EXPECT_EQ(Name(nameless), nullptr) << "writing changes no pointer";
}

TEST_F(LinksTest, ABlankDesignatorForAnEditIsMadeOnceAndUndone) {
    build::Designator("A");
    BeginAction();
    SceneryObject* made = BlankDesignatorForEdit();
    EXPECT_EQ(state.tail, made);
    EXPECT_EQ(BlankDesignatorForEdit(), made);
    EXPECT_EQ(BlankDesignator(), made);
    Undo();
    EXPECT_EQ(BlankDesignator(), nullptr);
    EXPECT_EQ(state.undoHead, nullptr);
}

}  // namespace
