#include "dialogs/LinkDialog.h"

#include "dialogs/Choices.h"
#include "dialogs/Subject.h"
#include "fakes/DialogFixture.h"

namespace {

using namespace dialogs;

class LinkDialog : public DialogFixture {
protected:
    void SetUp() override {
        DialogFixture::SetUp();
        blank = build::Designator("");
        alpha = build::Designator("A");
        runway = build::Runway(16, 1);
        As<model::RunwayPayload>(runway).body.width = 46;
        a = build::Node({ 500, 0 });
        b = build::Node({ 600, 0 });
        link = build::Link(a, b, model::kTaxiwayLink, alpha);
        link->flags |= model::kSelected;
    }

    static model::TaxiLinkPayload& Link(SceneryObject* object) { return As<model::TaxiLinkPayload>(object); }
    static uint32_t Type(SceneryObject* object) { return model::LinkTypeOf(Link(object)); }
    static SceneryObject* Designator(SceneryObject* object) { return Link(object).designator; }
    static float Width(SceneryObject* object) { return Link(object).width; }
    static uint32_t SurfaceOfNew(uint32_t type) { return model::LinkSurface(map::LinkFromTemplate(type)); }

    int TypeIndex(uint32_t type) {
        const auto types = LinkTypeChoices(link);
        return static_cast<int>(std::find(types.begin(), types.end(), type) - types.begin());
    }
    int DesignatorIndex(SceneryObject* object) {
        const auto choices = DesignatorChoices();
        for (size_t i = 0; i < choices.size(); ++i) {
            if (choices[i].object == object) return static_cast<int>(i);
        }
        return -1;
    }
    // OK after `change` was made to the fields shown.
    template <class Change>
    bool Edit(SceneryObject* object, Change change) {
        return OkAfter<LoadLinkFields, StoreLinkFields>(object, change);
    }

    SceneryObject *blank = nullptr, *alpha = nullptr, *runway = nullptr, *a = nullptr, *b = nullptr, *link = nullptr;
};

TEST_F(LinkDialog, DesignatorsAreTheBlankOneTheNamedOnesAndTheRunways) {
    const auto choices = DesignatorChoices();
    ASSERT_EQ(choices.size(), 3u);
    EXPECT_EQ(choices[0].text, "");
    EXPECT_EQ(choices[0].object, blank);
    EXPECT_EQ(choices[1].text, "Taxi A");
    EXPECT_EQ(choices[2].text, "Rwy 16L/34R");
}

TEST_F(LinkDialog, TypesAreListedRunwayTaxiwayApronRouteClosed) {
    EXPECT_EQ(LinkTypeChoices(link), (std::vector<uint32_t>{ 2, 1, 4, 5 }));
    EXPECT_STREQ(LinkTypeName(4), "Apron route");
    EXPECT_EQ(LoadLinkFields(link).type, 1);
    SceneryObject* connector = build::Link(a, build::Spot(), model::kParkingLink);
    EXPECT_EQ(LinkTypeChoices(connector), (std::vector<uint32_t>{ 3 }));
    EXPECT_EQ(LoadLinkFields(connector).type, 0);
    Link(link).flagsWord = 6;
    EXPECT_EQ(LoadLinkFields(link).type, -1);
}

TEST_F(LinkDialog, EveryBitOfTheFlagsWordIsShown) {
    Link(link).flagsWord = 0x04u << 24 | 2u << 21 | 1u << 20 | 1u << 18 | 1u << 16 | 0x61;
    LinkFields fields = LoadLinkFields(link);
    EXPECT_EQ(fields.surface, 4);
    EXPECT_TRUE(fields.centreLine);
    EXPECT_FALSE(fields.centreLights);
    EXPECT_EQ(fields.leftEdge, 1);
    EXPECT_EQ(fields.rightEdge, 2);
    EXPECT_TRUE(fields.leftLights);
    EXPECT_FALSE(fields.rightLights);
    Link(link).flagsWord = 0xFEu << 24 | 1u << 23 | 1u << 17 | 3u << 18 | 1;
    fields = LoadLinkFields(link);
    EXPECT_EQ(fields.surface, -1);
    EXPECT_EQ(fields.leftEdge, -1);
    EXPECT_TRUE(fields.rightLights);
    EXPECT_TRUE(fields.centreLights);
}

TEST_F(LinkDialog, TheWidthIsAWholeNumberOfFeetOrMetres) {
    Link(link).width = 22.86F;
    EXPECT_EQ(LoadLinkFields(link).width, "75");
    app::settings.metric = true;
    EXPECT_EQ(LoadLinkFields(link).width, "23");
}

TEST_F(LinkDialog, OkWithoutAChangeRecordsNothing) {
    for (SceneryObject* object : { link, build::Link(a, build::Spot(), model::kParkingLink, alpha) }) {
        const auto before = Bytes(object);
        EXPECT_TRUE(Edit(object, [](LinkFields&) {}));
        EXPECT_EQ(Bytes(object), before);
    }
    EXPECT_EQ(Actions(), 0);
}

TEST_F(LinkDialog, AnUnchangedLinkIsNoPatternForNewOnes) {
    const uint32_t usual = SurfaceOfNew(model::kTaxiwayLink);
    Link(link).flagsWord |= 2u << 24;
    EXPECT_TRUE(Edit(link, [](LinkFields&) {}));
    EXPECT_NE(usual, 2u);
    EXPECT_EQ(SurfaceOfNew(model::kTaxiwayLink), usual);
}

TEST_F(LinkDialog, RetypingTheShownWidthKeepsTheStoredOne) {
    Link(link).width = 22.9123F;
    EXPECT_TRUE(Edit(link, [](LinkFields& fields) { fields.width = std::string("75"); }));
    EXPECT_EQ(Width(link), 22.9123F);
    EXPECT_EQ(Actions(), 0);
}

TEST_F(LinkDialog, AWidthInFeetIsMultipliedByTheFoot) {
    EXPECT_TRUE(Edit(link, [](LinkFields& fields) { fields.width = "100"; }));
    EXPECT_EQ(Width(link), 30.48F);
    app::settings.metric = true;
    EXPECT_TRUE(Edit(link, [](LinkFields& fields) { fields.width = "7.5"; }));
    EXPECT_EQ(Width(link), 7.5F);
}

TEST_F(LinkDialog, AWidthThatIsNoNumberOrNoneIsRefused) {
    for (const char* text : { "75 ft", "", "-1", "0", "0.0", "4000" }) {
        EXPECT_FALSE(Edit(link, [&](LinkFields& fields) { fields.width = text; })) << text;
        EXPECT_EQ(bad.field, Field::Width);
        EXPECT_EQ(LastMessage(), "ERROR: The width must be a number from 1 to 3280 feet");
    }
    EXPECT_EQ(Actions(), 0);
}

TEST_F(LinkDialog, AnUntouchedWidthOfNothingStays) {
    Link(link).width = 0;
    EXPECT_TRUE(Edit(link, [](LinkFields& fields) { fields.surface = 7; }));
    EXPECT_EQ(Width(link), 0);
}

TEST_F(LinkDialog, OnlyTheChangedFieldsGoToTheOtherSelectedLinks) {
    SceneryObject* other = build::Link(b, a, model::kClosedLink, blank);
    other->flags |= model::kSelected;
    Link(other).width = 5;
    SceneryObject* free = build::Link(a, b);
    const auto before = Bytes(other), beforeFree = Bytes(free);
    EXPECT_TRUE(Edit(link, [](LinkFields& fields) { fields.surface = 4; }));
    EXPECT_EQ(model::LinkSurface(Link(other)), 4u);
    EXPECT_EQ(Type(other), model::kClosedLink);
    EXPECT_EQ(Width(other), 5);
    EXPECT_EQ(Designator(other), blank);
    EXPECT_EQ(Bytes(free), beforeFree);
    EXPECT_EQ(Actions(), 1);
    model::Undo();
    EXPECT_EQ(Bytes(other), before);
}

TEST_F(LinkDialog, ATaxiwaysNameMakesASelectedRunwayLinkATaxiwayToo) {
    SceneryObject* other = build::Link(b, a, model::kRunwayLink, runway);
    other->flags |= model::kSelected;
    EXPECT_TRUE(Edit(link, [](LinkFields& fields) { fields.designator = 0; }));
    EXPECT_EQ(Type(other), model::kTaxiwayLink);
    EXPECT_EQ(Designator(other), blank);
    EXPECT_EQ(Type(link), model::kTaxiwayLink);
}

TEST_F(LinkDialog, ARunwaysNameMakesASelectedTaxiwayARunwayLinkToo) {
    SceneryObject* south = build::Runway(9);
    As<model::RunwayPayload>(south).body.width = 30;
    SceneryObject* own = build::Link(b, a, model::kRunwayLink, runway);
    own->flags |= model::kSelected;
    Link(own).width = 46;
    EXPECT_TRUE(Edit(own, [&](LinkFields& fields) { fields.designator = DesignatorIndex(south); }));
    EXPECT_EQ(Designator(own), south);
    EXPECT_EQ(Width(own), 46);  // its type has not changed
    EXPECT_EQ(Type(link), model::kRunwayLink);
    EXPECT_EQ(Designator(link), south);
    EXPECT_EQ(Width(link), 30);
}

TEST_F(LinkDialog, AnotherTypeTakesTheRunwaysNameFromASelectedRunwayLink) {
    SceneryObject* other = build::Link(b, a, model::kRunwayLink, runway);
    other->flags |= model::kSelected;
    EXPECT_TRUE(Edit(link, [&](LinkFields& fields) { fields.type = TypeIndex(model::kClosedLink); }));
    EXPECT_EQ(Type(other), model::kClosedLink);
    EXPECT_EQ(Designator(other), blank);
    EXPECT_EQ(Designator(link), alpha);
}

TEST_F(LinkDialog, BothEdgesAreWrittenTogetherAndSoAreTheirLights) {
    SceneryObject* other = build::Link(b, a);
    other->flags |= model::kSelected;
    Link(other).flagsWord |= 2u << 21 | 1u << 23;
    EXPECT_TRUE(Edit(link, [](LinkFields& fields) {
        fields.leftEdge = 1;
        fields.leftLights = true;
    }));
    const LinkFields fields = LoadLinkFields(other);
    EXPECT_EQ(fields.leftEdge, 1);
    EXPECT_EQ(fields.rightEdge, 0);
    EXPECT_TRUE(fields.leftLights);
    EXPECT_FALSE(fields.rightLights);
}

TEST_F(LinkDialog, AnEdgeStyleWithoutAButtonSurvives) {
    Link(link).flagsWord |= 3u << 18;
    EXPECT_TRUE(Edit(link, [](LinkFields& fields) { fields.rightEdge = 2; }));
    EXPECT_EQ(Link(link).flagsWord >> 18 & 3, 3u);
    EXPECT_EQ(LoadLinkFields(link).rightEdge, 2);
}

TEST_F(LinkDialog, CentreLineAndCentreLightsAreWrittenEachForItself) {
    EXPECT_TRUE(Edit(link, [](LinkFields& fields) { fields.centreLine = true; }));
    EXPECT_EQ(Link(link).flagsWord >> 16 & 3, 1u);
    EXPECT_TRUE(Edit(link, [](LinkFields& fields) { fields.centreLights = true; }));
    EXPECT_EQ(Link(link).flagsWord >> 16 & 3, 3u);
}

TEST_F(LinkDialog, ARunwayDesignatorMakesATaxiwayARunwayLinkOfTheRunwaysWidth) {
    EXPECT_TRUE(Edit(link, [&](LinkFields& fields) { fields.designator = DesignatorIndex(runway); }));
    EXPECT_EQ(Type(link), model::kRunwayLink);
    EXPECT_EQ(Designator(link), runway);
    EXPECT_EQ(Width(link), 46);
}

TEST_F(LinkDialog, ARunwayLinkIsNoPatternForNewOnes) {
    EXPECT_TRUE(Edit(link, [&](LinkFields& fields) {
        fields.designator = DesignatorIndex(runway);
        fields.surface = 2;
    }));
    EXPECT_EQ(model::LinkSurface(Link(link)), 2u);
    for (const uint32_t type : { model::kTaxiwayLink, model::kParkingLink }) EXPECT_NE(SurfaceOfNew(type), 2u);
}

TEST_F(LinkDialog, ATaxiDesignatorMakesARunwayLinkATaxiway) {
    Link(link).flagsWord = 0x62;
    Link(link).designator = runway;
    EXPECT_TRUE(Edit(link, [&](LinkFields& fields) { fields.designator = DesignatorIndex(alpha); }));
    EXPECT_EQ(Type(link), model::kTaxiwayLink);
    EXPECT_EQ(Designator(link), alpha);
}

TEST_F(LinkDialog, ARunwayLinkTakesTheRunwayUnderIt) {
    model::SetPosition(a, build::At({ 0, -100 }));
    model::SetPosition(b, build::At({ 0, 100 }));
    EXPECT_TRUE(Edit(link, [&](LinkFields& fields) { fields.type = TypeIndex(model::kRunwayLink); }));
    EXPECT_EQ(Designator(link), runway);
    EXPECT_EQ(Width(link), 46);
}

TEST_F(LinkDialog, ARunwayLinkThatLiesOnNoRunwayHasNoDesignator) {
    EXPECT_TRUE(Edit(link, [&](LinkFields& fields) { fields.type = TypeIndex(model::kRunwayLink); }));
    EXPECT_EQ(Type(link), model::kRunwayLink);
    EXPECT_EQ(Designator(link), nullptr);
    EXPECT_EQ(Width(link), 23);
}

TEST_F(LinkDialog, ARunwayChosenWithTheTypeRunwayIsKept) {
    build::Runway(7, 0, { 500, 0 });  // under the link
    EXPECT_TRUE(Edit(link, [&](LinkFields& fields) {
        fields.type = TypeIndex(model::kRunwayLink);
        fields.designator = DesignatorIndex(runway);
    }));
    EXPECT_EQ(Designator(link), runway);
}

TEST_F(LinkDialog, ATypeOtherThanRunwayDropsARunwayDesignator) {
    Link(link).flagsWord = 0x62;
    Link(link).designator = runway;
    EXPECT_TRUE(Edit(link, [&](LinkFields& fields) { fields.type = TypeIndex(model::kClosedLink); }));
    EXPECT_EQ(Type(link), model::kClosedLink);
    EXPECT_EQ(Designator(link), blank);
}

TEST_F(LinkDialog, TheBlankDesignatorIsMadeInTheSameActionWhenThereIsNone) {
    model::UnlinkObject(blank);
    model::FreeObject(blank);
    EXPECT_TRUE(Edit(link, [](LinkFields& fields) { fields.designator = 0; }));
    SceneryObject* made = BlankDesignator();
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(Designator(link), made);
    EXPECT_EQ(Actions(), 1);
    model::Undo();
    EXPECT_EQ(BlankDesignator(), nullptr);
    EXPECT_EQ(Designator(link), alpha);
}

TEST_F(LinkDialog, ABlankDesignatorThatTheTypeOverrulesIsNotMade) {
    model::UnlinkObject(blank);
    model::FreeObject(blank);
    EXPECT_TRUE(Edit(link, [&](LinkFields& fields) {
        fields.designator = 0;
        fields.type = TypeIndex(model::kRunwayLink);
    }));
    EXPECT_EQ(Type(link), model::kRunwayLink);
    EXPECT_EQ(BlankDesignator(), nullptr);
}

TEST_F(LinkDialog, TheBlankDesignatorIsNotMadeBeyondTheMostThatAFileHolds) {
    model::UnlinkObject(blank);
    model::FreeObject(blank);
    while (model::CountKind(model::kTaxiDesignator) < 256) build::Designator("Q");
    const auto before = Bytes(link);
    EXPECT_FALSE(Edit(link, [](LinkFields& fields) { fields.designator = 0; }));
    EXPECT_EQ(LastMessage(), "ERROR: An airport can have at most 256 taxiway designators");
    EXPECT_EQ(bad.field, Field::Designator);
    EXPECT_EQ(model::CountKind(model::kTaxiDesignator), 256u);
    EXPECT_EQ(Bytes(link), before);
    EXPECT_EQ(Actions(), 0);
    EXPECT_TRUE(Edit(link, [](LinkFields& fields) { fields.surface = 3; })) << "what makes none is no matter";
}

TEST_F(LinkDialog, AParkingConnectorKeepsItsTypeAndHasTheBlankDesignator) {
    SceneryObject* connector = build::Link(a, build::Spot(), model::kParkingLink);
    EXPECT_TRUE(Edit(connector, [&](LinkFields& fields) {
        fields.designator = DesignatorIndex(alpha);
        fields.surface = 1;
    }));
    EXPECT_EQ(Type(connector), model::kParkingLink);
    EXPECT_EQ(Designator(connector), blank);
    EXPECT_EQ(Designator(link), alpha);  // selected too, but what was chosen is no choice for it
    EXPECT_EQ(model::LinkSurface(Link(link)), 1u);
}

TEST_F(LinkDialog, ASelectedParkingConnectorNeitherChangesItsTypeNorGetsAName) {
    SceneryObject* connector = build::Link(a, build::Spot(), model::kParkingLink, blank);
    connector->flags |= model::kSelected;
    EXPECT_TRUE(Edit(link, [&](LinkFields& fields) {
        fields.type = TypeIndex(model::kClosedLink);
        fields.designator = 0;
        fields.width = "50";
    }));
    EXPECT_EQ(Type(connector), model::kParkingLink);
    EXPECT_EQ(Designator(connector), blank);
    EXPECT_EQ(Width(connector), 15.24F);
    EXPECT_EQ(Type(link), model::kClosedLink);
}

TEST_F(LinkDialog, ALinkThatEndsAtASpotBecomesAParkingConnector) {
    SceneryObject* wrong = build::Link(a, build::Spot(), model::kTaxiwayLink, alpha);
    EXPECT_EQ(LinkTypeChoices(wrong), (std::vector<uint32_t>{ 3 }));
    EXPECT_TRUE(Edit(wrong, [](LinkFields& fields) { fields.surface = 2; }));
    EXPECT_EQ(Type(wrong), model::kParkingLink);
    EXPECT_EQ(Designator(wrong), blank);
}

TEST_F(LinkDialog, TheDrawFlagsGoAndComeWithTheTypeApronRoute) {
    Link(link).flagsWord = 0xE1;
    EXPECT_TRUE(Edit(link, [&](LinkFields& fields) { fields.type = TypeIndex(model::kClosedLink); }));
    EXPECT_EQ(Link(link).flagsWord & 0xFF, 0xE5u);
    EXPECT_TRUE(Edit(link, [&](LinkFields& fields) { fields.type = TypeIndex(model::kApronRouteLink); }));
    EXPECT_EQ(Link(link).flagsWord & 0xFF, 0x84u);
    EXPECT_TRUE(Edit(link, [&](LinkFields& fields) { fields.type = TypeIndex(model::kTaxiwayLink); }));
    EXPECT_EQ(Link(link).flagsWord & 0xFF, 0xE1u);
}

TEST_F(LinkDialog, AnEditedLinkIsThePatternForNewOnes) {
    EXPECT_TRUE(Edit(link, [](LinkFields& fields) { fields.surface = 2; }));
    EXPECT_EQ(SurfaceOfNew(model::kTaxiwayLink), 2u);
    EXPECT_NE(SurfaceOfNew(model::kParkingLink), 2u);
    SceneryObject* connector = build::Link(a, build::Spot(), model::kParkingLink, blank);
    EXPECT_TRUE(Edit(connector, [](LinkFields& fields) { fields.surface = 5; }));
    EXPECT_EQ(SurfaceOfNew(model::kTaxiwayLink), 2u);
    EXPECT_EQ(SurfaceOfNew(model::kParkingLink), 5u);
}

TEST_F(LinkDialog, CarriedWordsAndEndsStay) {
    Link(link).carried[0] = 0x12345678;
    Link(link).carried[1] = 0x9ABCDEF0;
    EXPECT_TRUE(Edit(link, [&](LinkFields& fields) {
        fields.type = TypeIndex(model::kClosedLink);
        fields.designator = 0;
        fields.width = "60";
        fields.rightLights = true;
    }));
    EXPECT_EQ(+Link(link).carried[0], 0x12345678u);
    EXPECT_EQ(+Link(link).carried[1], 0x9ABCDEF0u);
    EXPECT_EQ(+Link(link).start, a);
    EXPECT_EQ(+Link(link).end, b);
}

TEST_F(LinkDialog, ShiftAddsTheLinkToTheSelectionAndOkChangesAll) {
    SceneryObject* other = build::Link(b, a);
    SelectSubject(other, true);
    EXPECT_TRUE(Edit(other, [](LinkFields& fields) { fields.surface = 8; }));
    EXPECT_EQ(model::LinkSurface(Link(link)), 8u);
}

TEST_F(LinkDialog, NoChoiceKeepsTheRecordsValues) {
    const auto before = Bytes(link);
    EXPECT_TRUE(Edit(link, [](LinkFields& fields) {
        fields.designator = fields.type = fields.surface = fields.leftEdge = fields.rightEdge = -1;
    }));
    EXPECT_EQ(Bytes(link), before);
    EXPECT_EQ(Actions(), 0);
}

}  // namespace
