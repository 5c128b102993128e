// SelectionBoxDragTest.cpp - the selection rectangle while it is drawn: what it keeps from happening, and how it ends.
#include <gtest/gtest.h>

#include "app/Airport.h"
#include "app/Commands.h"
#include "fakes/ToolFixture.h"
#include "map/PointerTool.h"
#include "map/Selection.h"
#include "map/SelectionBox.h"
#include "Resource.h"

namespace {

using namespace map;
using namespace model;

class SelectionBoxDragTest : public ToolFixture {
protected:
    void SetUp() override {
        ToolFixture::SetUp();
        SetTool(Tool::Nodes);
        Click({ 0, 0 });  // something to undo, and selected
        SetTool(Tool::Pointer);
        Paint();
    }
    static void OpenBox() {
        Press({ -100, 100 }, { .shift = true });
        EXPECT_FALSE(state.busy) << "it may still become a click";
        DragTo({ 100, -100 });
        ASSERT_TRUE(IsBoxOpen());
        ASSERT_TRUE(state.busy);
    }
    static void ExpectAtRest() {
        EXPECT_FALSE(IsBoxOpen());
        EXPECT_FALSE(state.busy);
        EXPECT_TRUE(CanUndo());
        EXPECT_TRUE(app::IsCommandEnabled(IDM_SAVE));
    }
};

TEST_F(SelectionBoxDragTest, NothingIsUndoneDeletedOrSavedUnderTheRectangle) {
    ASSERT_NO_FATAL_FAILURE(OpenBox());
    EXPECT_FALSE(CanUndo());
    Undo();
    for (const int id : { IDM_UNDO, IDT_UNDO, IDM_SELECT_ALL, IDK_DELETE, IDM_SAVE, IDM_SAVE_AS, IDM_CLOSE })
        EXPECT_FALSE(app::RunCommand(id)) << id;
    EXPECT_EQ(CountKind(kTaxiNode), 1u);
    Release({ 100, -100 });
    ExpectAtRest();
    EXPECT_TRUE(app::RunCommand(IDM_UNDO));
    EXPECT_EQ(CountKind(kTaxiNode), 0u);
}

TEST_F(SelectionBoxDragTest, NothingIsRedoneUnderTheRectangle) {
    Undo();
    OpenBox();
    EXPECT_FALSE(CanRedo());
    Redo();
    EXPECT_EQ(CountKind(kTaxiNode), 0u);
    Release({ 100, -100 });
    EXPECT_TRUE(CanRedo());
}

TEST_F(SelectionBoxDragTest, EveryEndOfTheRectangleLeavesTheAirportFree) {
    void (*const ends[])() = { [] { Escape(); },        [] { CancelDrag(); },
                               [] { CancelPointer(); }, [] { SetTool(Tool::Markers); },
                               [] { ResetTools(); },    [] { OnButtonDown({ 5, 5 }, { .shift = true }); } };
    for (const auto end : ends) {
        SetTool(Tool::Pointer);
        OpenBox();
        end();
        ExpectAtRest();
        OnButtonUp({ 5, 5 }, {});
    }
}

TEST_F(SelectionBoxDragTest, ClosingNoRectangleLeavesAnotherDragBusy) {
    OpenBox();
    Release({ 100, -100 });
    Press({ 0, 0 });
    DragTo({ 50, 0 });
    EXPECT_TRUE(state.busy);
    CancelBox();  // there is none
    EXPECT_TRUE(state.busy);
    Release({ 50, 0 });
    ExpectAtRest();
}

TEST_F(SelectionBoxDragTest, PartsLeftOnAnIlsThatIsNotSelectedAreNotAdded) {
    layers.navaids = true;
    SceneryObject* ils = build::IlsWithParts("IABC", { 200, 100 }, { -200, 0 }, { 50, 50 });
    PayloadAs<IlsPayload>(ils).selectedParts = kAllIlsParts;
    Paint();
    Drag({ -100, 100 }, { 100, -100 });
    EXPECT_TRUE(IsSelected(ils));
    EXPECT_EQ(PayloadAs<IlsPayload>(ils).selectedParts, kDmePart);
}

}  // namespace
