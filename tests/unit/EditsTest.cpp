#include "dialogs/Edits.h"

#include "dialogs/OverMap.h"
#include "dialogs/PositionField.h"
#include "dialogs/Subject.h"
#include "fakes/DialogFixture.h"
#include "map/HoldShortUpdate.h"
#include "map/MapView.h"
#include "model/CoordinateText.h"
#include "model/DeleteRules.h"

namespace {

using namespace dialogs;
using model::state;

class EditsTest : public DialogFixture {
protected:
    static uint8_t& TypeOf(SceneryObject* node) { return As<model::TaxiNodeRecord>(node).type; }
    Edits edits;
};

TEST_F(EditsTest, OneCommitIsOneActionOfWhatDiffers) {
    SceneryObject *a = build::Node(), *b = build::Node(), *c = build::Node();
    TypeOf(DraftOf(&edits, a)) = 2;
    TypeOf(DraftOf(&edits, b)) = 2;
    DraftOf(&edits, c);
    EXPECT_EQ(TypeOf(a), 1);
    EXPECT_TRUE(Commit(&edits));
    EXPECT_EQ(TypeOf(a), 2);
    EXPECT_EQ(TypeOf(b), 2);
    EXPECT_EQ(Actions(), 1);
    EXPECT_EQ(state.undoHead->historyNext->historyNext, nullptr);
    EXPECT_EQ(fake.repaints, 1);
    model::Undo();
    EXPECT_EQ(TypeOf(a), 1);
    EXPECT_EQ(TypeOf(b), 1);
}

TEST_F(EditsTest, ACommitWithoutADifferenceRecordsNothingAndLeavesTheModifiedFlag) {
    DraftOf(&edits, build::Node());
    EXPECT_FALSE(Commit(&edits));
    EXPECT_EQ(state.undoHead, nullptr);
    EXPECT_FALSE(state.modified);
}

TEST_F(EditsTest, TheDraftOfAnObjectIsAlwaysTheSame) {
    SceneryObject* node = build::Node();
    SceneryObject* first = DraftOf(&edits, node);
    DraftOf(&edits, build::Node());
    EXPECT_EQ(DraftOf(&edits, node), first);
}

TEST_F(EditsTest, AProvisionalRecordIsInTheListButNotInTheHistory) {
    SceneryObject* node = build::Node();
    SceneryObject* made = MakeProvisional(model::kTaxiNode, sizeof(model::TaxiNodeRecord));
    EXPECT_EQ(build::List(), (std::vector<SceneryObject*>{ node, made }));
    EXPECT_TRUE(IsProvisional(made));
    EXPECT_FALSE(state.modified);
    CancelDialog();
    EXPECT_EQ(build::List(), (std::vector<SceneryObject*>{ node }));
    EXPECT_EQ(build::ListFromTail(), build::List());
    EXPECT_EQ(state.undoHead, nullptr);
    EXPECT_FALSE(state.modified);
}

TEST_F(EditsTest, AProvisionalRecordIsRecordedAsAddedWithWhatTheDraftHolds) {
    build::Node();
    SceneryObject* made = MakeProvisional(model::kTaxiNode, sizeof(model::TaxiNodeRecord));
    TypeOf(DraftOf(&edits, made)) = 4;
    EXPECT_TRUE(Commit(&edits));
    EXPECT_FALSE(IsProvisional(made));
    EXPECT_EQ(TypeOf(made), 4);
    EXPECT_EQ(state.tail, made);
    EXPECT_EQ(Actions(), 1);
    model::Undo();
    EXPECT_EQ(build::List().size(), 1u);
    model::Redo();
    EXPECT_EQ(TypeOf(state.tail), 4);
}

TEST_F(EditsTest, AProvisionalRecordIsAddedEvenWhenNothingWasChanged) {
    SceneryObject* made = MakeProvisional(model::kTaxiNode, sizeof(model::TaxiNodeRecord));
    DraftOf(&edits, made);
    EXPECT_TRUE(Commit(&edits));
    EXPECT_NE(state.undoHead, nullptr);
}

TEST_F(EditsTest, AStockObjectGetsAReplacementAndUndoTakesItAway) {
    SceneryObject* stock = build::Ndb();
    stock->flags |= model::kStock | model::kSelected;
    const auto original = Bytes(stock);
    As<model::NdbPayload>(DraftOf(&edits, stock)).frequency = 350000;
    EXPECT_TRUE(Commit(&edits));
    SceneryObject* replacement = stock->related;
    ASSERT_NE(replacement, nullptr);
    EXPECT_EQ(replacement->related, stock);
    EXPECT_FALSE(model::IsStock(replacement));
    EXPECT_TRUE(model::IsSelected(replacement));
    EXPECT_TRUE(model::IsReplacedStock(stock));
    EXPECT_FALSE(model::IsSelected(stock));
    EXPECT_EQ(Bytes(stock), original);
    EXPECT_EQ(+As<model::NdbPayload>(replacement).frequency, 350000u);
    EXPECT_EQ(Actions(), 1);
    model::Undo();
    EXPECT_EQ(build::List(), (std::vector<SceneryObject*>{ stock }));
    EXPECT_EQ(stock->related, nullptr);
    model::Redo();
    EXPECT_EQ(build::List(), (std::vector<SceneryObject*>{ stock, replacement }));
    EXPECT_EQ(stock->related, replacement);
}

TEST_F(EditsTest, AClickMovesTheObjectOnTheMapAndGivesTheTextsButNotTheDraft) {
    SceneryObject* node = build::Node();
    const auto original = Bytes(node);
    const uint64_t revision = state.revision;
    const model::CoordinateTexts texts = MoveToClick(node, build::At({ 500, 300 }));
    EXPECT_EQ(texts.latitude, model::FormatLatLon(build::At({ 500, 300 })).latitude);
    EXPECT_NE(Bytes(node), original);
    EXPECT_GT(state.revision, revision);
    MoveToClick(node, build::At({ 700, 300 }));
    EXPECT_EQ(Bytes(DraftOf(&edits, node)), original);
    EXPECT_FALSE(state.modified);
    CancelDialog();
    EXPECT_EQ(Bytes(node), original);
}

TEST_F(EditsTest, CommitEndsThePreviewSoThatUndoFindsTheOldPlace) {
    SceneryObject* node = build::Node();
    const auto original = Bytes(node);
    MoveToClick(node, build::At({ 500, 300 }));
    SetPoint(DraftOf(&edits, node), build::Encoded({ 100, 100 }));
    EXPECT_TRUE(Commit(&edits));
    EXPECT_EQ(+PointOf(node).longitude, +build::Encoded({ 100, 100 }).longitude);
    model::Undo();
    EXPECT_EQ(Bytes(node), original);
}

TEST_F(EditsTest, EveryPartOfAnIlsCanBeMovedByClicks) {
    SceneryObject* ils = build::Ils("ISEA");
    const auto original = Bytes(ils);
    MoveToClick(ils, build::At({ 1, 1 }));
    MoveToClick(ils, offsetof(model::IlsPayload, glideSlope) + offsetof(model::GlideSlopePart, longitude),
                build::At({ 2, 2 }));
    EXPECT_EQ(model::state.moved.size(), 2u);
    EndPreview();
    EXPECT_EQ(Bytes(ils), original);
}

TEST_F(EditsTest, TheSubjectReplacesTheSelectionUnlessItIsPartOfItOrAKeyIsHeld) {
    SceneryObject *a = build::Node(), *b = build::Node();
    a->flags |= model::kSelected;
    SelectSubject(b, true);
    EXPECT_TRUE(model::IsSelected(a));
    SelectSubject(a, false);
    EXPECT_TRUE(model::IsSelected(b));
    b->flags &= ~model::kSelected;
    SelectSubject(b, false);
    EXPECT_FALSE(model::IsSelected(a));
    EXPECT_TRUE(model::IsSelected(b));
    EXPECT_EQ(state.undoHead, nullptr);
}

TEST_F(EditsTest, CancelOfAnInsertedRecordLeavesTheSelectionAsItWas) {
    SceneryObject *a = build::Node(), *b = build::Node();
    a->flags |= model::kSelected;
    SceneryObject* made = MakeProvisional(model::kTaxiNode, sizeof(model::TaxiNodeRecord));
    SelectSubject(made, false);
    EXPECT_TRUE(model::IsSelected(made));
    CancelDialog();
    EXPECT_TRUE(model::IsSelected(a));
    EXPECT_FALSE(model::IsSelected(b));
}

TEST_F(EditsTest, AnInsertedRecordThatIsRecordedIsSelectedAlone) {
    SceneryObject *a = build::Node(), *b = build::Node();
    a->flags |= model::kSelected;
    b->flags |= model::kSelected;
    SceneryObject* made = MakeProvisional(model::kTaxiNode, sizeof(model::TaxiNodeRecord));
    SelectSubject(made, false);
    DraftOf(&edits, made);
    TypeOf(DraftOf(&edits, b)) = 2;
    EXPECT_TRUE(Commit(&edits));
    EXPECT_FALSE(model::IsSelected(a));
    EXPECT_FALSE(model::IsSelected(b));
    EXPECT_TRUE(model::IsSelected(made));
}

TEST_F(EditsTest, ARecordIsInsertedOnlyWhileNoOtherDialogIsOpen) {
    const auto make = [] { return MakeProvisional(model::kTaxiNode, sizeof(model::TaxiNodeRecord)); };
    const auto edit = [](SceneryObject* object) { return IsProvisional(object); };
    overMap.open = true;
    EXPECT_FALSE(InsertAndEdit(make, edit));
    overMap = {};
    EXPECT_EQ(state.provisional, nullptr);
    EXPECT_TRUE(InsertAndEdit(make, edit));
    CancelDialog();
    EXPECT_FALSE(InsertAndEdit([]() -> SceneryObject* { return nullptr; }, edit)) << "it was refused";
}

TEST_F(EditsTest, AnApronThatBecomesTheSubjectIsSelectedAsAWhole) {
    SceneryObject* apron = build::Apron({ build::Encoded({}), build::Encoded({ 100, 0 }), build::Encoded({ 0, 100 }) });
    SelectSubject(apron, false);
    model::BeginAction();
    EXPECT_EQ(model::DeleteSelected(), 1);
    EXPECT_EQ(state.head, nullptr);
}

// The link to the runway gets another type: the way there is another one then.
TEST_F(EditsTest, HoldShortMarkingsFollowInTheSameAction) {
    build::Runway(36);
    SceneryObject* hold = build::Node({ 80, 0 }, model::kHoldShortNode);
    SceneryObject* link = build::Link(hold, build::Node({ 5, 130 }));
    build::Link(hold, build::Node({ 70, 0 }));
    auto isReversed = [&] { return As<model::TaxiNodeRecord>(hold).reversed != 0; };
    model::BeginAction();
    map::UpdateHoldShort(hold);
    ASSERT_TRUE(isReversed());
    model::ClearHistory();
    auto& draft = As<model::TaxiLinkPayload>(DraftOf(&edits, link));
    draft.flagsWord = (draft.flagsWord & ~0xFu) | model::kRunwayLink;
    EXPECT_TRUE(Commit(&edits));
    EXPECT_FALSE(isReversed());
    EXPECT_EQ(Actions(), 1);
    model::Undo();
    EXPECT_TRUE(isReversed());
}

TEST_F(EditsTest, OnlyAPlaceOutsideTheViewIsCentred) {
    map::ResetView(build::kMiddle);
    map::ResizeView(800, 600);
    ShowPlace(build::At({ 200, 200 }), true);
    EXPECT_EQ(map::view.centre.lon, build::kMiddle.lon);
    ShowPlace(build::At({ 200, 200 }), false);
    EXPECT_EQ(map::view.centre.lon, build::At({ 200, 200 }).lon);
    ShowPlace(build::At({ 90000, 200 }), true);
    EXPECT_EQ(map::view.centre.lon, build::At({ 90000, 200 }).lon);
    map::view.lockedToSim = true;
    ShowPlace(build::kMiddle, false);
    EXPECT_EQ(map::view.centre.lon, build::At({ 90000, 200 }).lon);
    map::view = {};
}

// A runway that exists only for its dialog, with an ILS made for it there.
TEST_F(EditsTest, AProvisionalRecordAndWhatIsAddedWithItAreUndoneAndRedoneTogether) {
    SceneryObject* node = build::Node();
    SceneryObject* runway = MakeProvisional(model::kRunway, sizeof(model::RunwayPayload));
    SceneryObject* ils = AddDraft(&edits, ObjectPtr(model::CreateObject(model::kIls, sizeof(model::IlsPayload))));
    As<model::RunwayPayload>(DraftOf(&edits, runway)).body.primaryIls = 7;
    TypeOf(DraftOf(&edits, node)) = 2;
    ASSERT_TRUE(Commit(&edits));
    const std::vector<SceneryObject*> all = { node, ils, runway };
    EXPECT_EQ(build::List(), all);
    EXPECT_EQ(Actions(), 1);
    for (int round = 0; round < 2; ++round) {
        model::Undo();
        EXPECT_EQ(build::List(), (std::vector<SceneryObject*>{ node }));
        EXPECT_EQ(build::ListFromTail(), build::List());
        EXPECT_EQ(TypeOf(node), 1);
        model::Redo();
        EXPECT_EQ(build::List(), all);
        EXPECT_EQ(build::ListFromTail(), all);
        EXPECT_EQ(TypeOf(node), 2);
        EXPECT_EQ(+As<model::RunwayPayload>(runway).body.primaryIls, 7u);
    }
}

TEST_F(EditsTest, EditsBesideAnOpenDialogOutliveItsProvisionalRecord) {
    SceneryObject *first = build::Node(), *second = build::Node();
    SceneryObject* made = MakeProvisional(model::kTaxiNode, sizeof(model::TaxiNodeRecord));
    model::BeginAction();
    SceneryObject* added = model::CreateObject(model::kTaxiNode, sizeof(model::TaxiNodeRecord));
    model::AddObject(added);
    EXPECT_EQ(build::List(), (std::vector<SceneryObject*>{ first, second, added, made }));
    model::BeginAction();
    model::DeleteObject(added);
    model::BeginAction();
    SceneryObject* edited = model::CopyObject(second);
    TypeOf(edited) = 4;
    model::ModifyObject(edited, second);
    model::Undo();
    model::Undo();
    EXPECT_EQ(build::List(), (std::vector<SceneryObject*>{ first, second, added, made }));
    EXPECT_EQ(build::ListFromTail(), build::List());
    CancelDialog();
    const std::vector<SceneryObject*> left = { first, second, added };
    EXPECT_EQ(build::List(), left);
    model::Undo();
    EXPECT_EQ(build::List(), (std::vector<SceneryObject*>{ first, second }));
    for (int i = 0; i < 3; ++i) model::Redo();
    EXPECT_EQ(build::List(), (std::vector<SceneryObject*>{ first, second }));
    EXPECT_EQ(build::ListFromTail(), build::List());
    EXPECT_EQ(TypeOf(second), 4);
}

TEST_F(EditsTest, AProvisionalRecordIsCommittedBehindEditsMadeBesideItsDialog) {
    SceneryObject* made = MakeProvisional(model::kTaxiNode, sizeof(model::TaxiNodeRecord));
    model::BeginAction();
    SceneryObject* added = model::CreateObject(model::kTaxiNode, sizeof(model::TaxiNodeRecord));
    model::AddObject(added);
    DraftOf(&edits, made);
    EXPECT_TRUE(Commit(&edits));
    EXPECT_EQ(build::List(), (std::vector<SceneryObject*>{ added, made }));
    model::Undo();
    EXPECT_EQ(build::List(), (std::vector<SceneryObject*>{ added }));
    model::Undo();
    EXPECT_TRUE(build::List().empty());
    model::Redo();
    model::Redo();
    EXPECT_EQ(build::List(), (std::vector<SceneryObject*>{ added, made }));
}

TEST_F(EditsTest, AnotherAirportEndsTheDialogsPreviewsAndItsProvisionalRecord) {
    SceneryObject* node = build::Node();
    MakeProvisional(model::kTaxiNode, sizeof(model::TaxiNodeRecord));
    MoveToClick(node, build::At({ 10, 10 }));
    model::ClearModel();
    EXPECT_EQ(model::state.provisional, nullptr);
    EXPECT_TRUE(model::state.moved.empty());
    CancelDialog();
    EXPECT_TRUE(IsProvisional(MakeProvisional(model::kTaxiNode, sizeof(model::TaxiNodeRecord))));
    CancelDialog();
    EXPECT_EQ(model::state.head, nullptr);
}

TEST_F(EditsTest, DeletingLeavesTheProvisionalRecordToItsDialog) {
    SceneryObject* node = build::Node();
    SceneryObject* made = MakeProvisional(model::kTaxiNode, sizeof(model::TaxiNodeRecord));
    node->flags |= model::kSelected;
    made->flags |= model::kSelected;
    EXPECT_EQ(model::DeleteSelected(), 1);
    EXPECT_EQ(build::List(), (std::vector<SceneryObject*>{ made }));
    CancelDialog();
    model::Undo();
    EXPECT_EQ(build::List(), (std::vector<SceneryObject*>{ node }));
}

}  // namespace
