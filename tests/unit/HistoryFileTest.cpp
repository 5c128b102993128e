// The file that would be written is the best witness: after undoing and redoing it is the same again.
#include <gtest/gtest.h>

#include <iterator>
#include <string>
#include <vector>

#include "bgl/AirportWriter.h"
#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "fakes/RandomAirport.h"
#include "model/DeleteRules.h"
#include "model/EditHistory.h"

namespace {

using namespace model;
using Bytes = std::vector<uint8_t>;

class HistoryFile : public testing::Test {
protected:
    void SetUp() override {
        ResetFakes();
        ClearModel();
    }
    void TearDown() override { ClearModel(); }

    static Bytes Written() {
        Bytes bytes;
        std::string refusal;
        EXPECT_TRUE(bgl::BuildAirportFile(0x01C0000000000000, &bytes, &refusal)) << refusal;
        return bytes;
    }

    std::vector<SceneryObject*> Movable() const {
        std::vector<SceneryObject*> found;
        for (SceneryObject* o : build::List()) {
            if (HasPosition(o) && !IsStock(o)) found.push_back(o);
        }
        return found;
    }

    void MoveSome() {
        const auto movable = Movable();
        for (uint32_t i = 1 + Below(&random, 5); i > 0 && !movable.empty(); --i) {
            SceneryObject* object = movable[Below(&random, static_cast<uint32_t>(movable.size()))];
            SceneryObject* edited = CopyObject(object);
            SetPosition(edited, build::At({ 1.0 * Below(&random, 3000), 1.0 * Below(&random, 3000) }));
            ModifyObject(edited, object);
        }
    }

    void AddNodesAndALink() {
        SceneryObject* ends[2];
        for (SceneryObject*& end : ends) {
            end = CreateObject(kTaxiNode, sizeof(TaxiNodeRecord));
            PayloadAs<TaxiNodeRecord>(end).type = kNormalNode;
            SetPosition(end, build::At({ 1.0 * Below(&random, 3000), 0 }));
            AddObject(end);
        }
        SceneryObject* link = CreateObject(kTaxiLink, sizeof(TaxiLinkPayload));
        auto& payload = PayloadAs<TaxiLinkPayload>(link);
        payload.flagsWord = kTaxiwayLink;
        payload.start = ends[0];
        payload.end = ends[1];
        AddObject(link);
    }

    void GiveSpotsMoreCodes() {
        for (SceneryObject* spot : build::List()) {
            if (KindOf(spot) != kParkingSpot || !OneIn(&random, 3)) continue;
            const uint32_t codes = Below(&random, 5);
            SceneryObject* edited = ResizeCopy(spot, codes);
            auto& record = PayloadAs<ParkingSpotRecord>(edited);
            record.packed = (record.packed & 0x00FFFFFF) | codes << 24;
            ModifyObject(edited, spot);
        }
    }

    void SelectSome() {
        for (SceneryObject* object : build::List()) {
            object->flags &= ~(kSelected | kWholeSelected);
            if (!OneIn(&random, 8)) continue;
            object->flags |= kSelected | (OneIn(&random, 2) ? kWholeSelected : 0);
            if (KindOf(object) == kApron)
                PayloadAs<ApronHead>(object).selection[0] = static_cast<uint8_t>(Next(&random));
        }
    }

    void OneAction() {
        BeginAction();
        switch (Below(&random, 6)) {
        case 0: MoveSome(); break;
        case 1: AddNodesAndALink(); break;
        case 2: GiveSpotsMoreCodes(); break;
        case 3: DeleteGuidelinesAndMarkers(); break;
        default:
            SelectSome();
            DeleteSelected();
            break;
        }
    }

    Random random;
};

TEST_F(HistoryFile, UndoingAndRedoingGoesThroughTheSameFiles) {
    for (uint64_t seed = 1; seed <= 60; ++seed) {
        SCOPED_TRACE(seed);
        ResetFakes();
        random.state = seed * 1000003;
        MakeRandomAirport(seed, SmallCounts(&random));
        std::vector<Bytes> files = { Written() };
        for (int action = 0; action < kUndoActions; ++action) {
            const SceneryObject* before = state.undoHead;
            OneAction();
            if (state.undoHead != before) files.push_back(Written());
        }
        for (size_t i = files.size() - 1; i-- > 0;) {
            Undo();
            ASSERT_EQ(Written(), files[i]) << "undone to " << i;
        }
        EXPECT_FALSE(CanUndo());
        for (size_t i = 1; i < files.size(); ++i) {
            Redo();
            ASSERT_EQ(Written(), files[i]) << "redone to " << i;
        }
        EXPECT_FALSE(CanRedo());
    }
}

}  // namespace
