#include "dialogs/DesignatorBox.h"

#include "dialogs/Choices.h"
#include "fakes/DialogFixture.h"

namespace {

using namespace dialogs;
using platform::Answer;

class DesignatorBox : public DialogFixture {
protected:
    void SetUp() override {
        DialogFixture::SetUp();
        alpha = build::Designator("A");
        seven = build::Designator("ABCDEFG");
        link = build::Link(build::Node(), build::Node());
        link->flags |= model::kSelected;
    }
    SceneryObject* DesignatorOf(SceneryObject* object) { return As<model::TaxiLinkPayload>(object).designator; }
    SceneryObject *alpha = nullptr, *seven = nullptr, *link = nullptr;
};

TEST_F(DesignatorBox, AnExistingNameBecomesCurrentAndGoesToTheSelectedLinks) {
    EXPECT_EQ(TypeDesignator("a", nullptr), alpha);
    EXPECT_EQ(DesignatorOf(link), alpha);
    EXPECT_EQ(Actions(), 1);
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(DesignatorBox, TheWordTaxiAndTheBlanksBehindItAreDropped) {
    EXPECT_EQ(TypeDesignator("Taxi A", nullptr), alpha);
    EXPECT_EQ(TypeDesignator("TAXI    a", nullptr), alpha);
    EXPECT_EQ(TypeDesignator("taxia", nullptr), alpha);
}

TEST_F(DesignatorBox, OnlyTheFirstSevenCharactersCount) { EXPECT_EQ(TypeDesignator("abcdefghijk", nullptr), seven); }

TEST_F(DesignatorBox, OnlyTheFirst19CharactersOfTheBoxAreRead) {
    EXPECT_EQ(TypeDesignator("TAXI" + std::string(14, ' ') + "A", nullptr), alpha);
    EXPECT_EQ(TypeDesignator("TAXI" + std::string(15, ' ') + "A", nullptr), nullptr);
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(DesignatorBox, NothingABlankAndRunwaysAreNoDesignators) {
    for (const char* text :
         { "", " A", "taxi", "TAXI  ", "RWY 16L", "rwy", "taxi rwy", "\xE4\xB8\xAD", "A\tB", "A\n" }) {
        EXPECT_EQ(TypeDesignator(text, alpha), nullptr) << text;
    }
    EXPECT_EQ(Actions(), 0);
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(DesignatorBox, OnlyANameThatTheAirportLacksIsNew) {
    EXPECT_TRUE(NamesNewDesignator("b"));
    EXPECT_TRUE(NamesNewDesignator("taxi b1"));
    for (const char* text : { "a", "Taxi A", "", " B", "taxi", "Rwy 16L/34R", "abcdefghijk", "\xE4\xB8\xAD" })
        EXPECT_FALSE(NamesNewDesignator(text)) << text;
}

TEST_F(DesignatorBox, AnUnknownNameIsAskedAboutAndMadeInTheSameActionAsItsUse) {
    fake.answers = { Answer::No, Answer::Cancel, Answer::Yes };
    EXPECT_EQ(TypeDesignator("b1", alpha), nullptr);
    EXPECT_EQ(LastMessage(),
              "The taxiway designator \"B1\" does not exist.\nDo you want to enter it as a new designator?");
    EXPECT_EQ(fake.messages.back().buttons, platform::Buttons::YesNoCancel);
    EXPECT_EQ(TypeDesignator("b1", alpha), nullptr);
    EXPECT_EQ(Actions(), 0);
    SceneryObject* made = TypeDesignator("b1", alpha);
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(DesignatorName(made), "B1");
    EXPECT_EQ(model::state.tail, made);
    EXPECT_EQ(DesignatorOf(link), made);
    EXPECT_EQ(Actions(), 1);
    model::Undo();
    EXPECT_EQ(model::CountKind(model::kTaxiDesignator), 2u);
    EXPECT_EQ(DesignatorOf(link), nullptr);
}

TEST_F(DesignatorBox, TheCurrentDesignatorTypedAgainChangesNoLinks) {
    EXPECT_EQ(TypeDesignator("A", alpha), alpha);
    EXPECT_EQ(DesignatorOf(link), nullptr);
    EXPECT_EQ(Actions(), 0);
}

TEST_F(DesignatorBox, RunwayLinksBecomeTaxiwaysAndParkingConnectorsStay) {
    SceneryObject* runway = build::Runway(16);
    SceneryObject* onRunway = build::Link(build::Node(), build::Node(), model::kRunwayLink, runway);
    SceneryObject* connector = build::Link(build::Node(), build::Spot(), model::kParkingLink);
    for (SceneryObject* object : { onRunway, connector }) object->flags |= model::kSelected;
    const auto before = Bytes(connector);
    EXPECT_EQ(TypeDesignator("A", nullptr), alpha);
    EXPECT_EQ(DesignatorOf(onRunway), alpha);
    EXPECT_EQ(model::LinkTypeOf(As<model::TaxiLinkPayload>(onRunway)), model::kTaxiwayLink);
    EXPECT_EQ(Bytes(connector), before);
    EXPECT_EQ(Actions(), 1);
}

TEST_F(DesignatorBox, AnAirportHoldsAtMost256Designators) {
    while (model::CountKind(model::kTaxiDesignator) < 256) build::Designator("Q");
    EXPECT_EQ(TypeDesignator("NEW", nullptr), nullptr);
    EXPECT_EQ(LastMessage(), "ERROR: An airport can have at most 256 taxiway designators");
}

}  // namespace
