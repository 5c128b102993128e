// Random gestures of the mouse on random networks. After each of them the network is sound, one undo gives the file of
// before, and redo the file of after.
#include <gtest/gtest.h>

#include <set>

#include "fakes/RandomAirport.h"
#include "fakes/ToolFixture.h"
#include "map/ApronTool.h"
#include "map/HoldShortUpdate.h"
#include "map/LinkTool.h"
#include "map/ScreenPlace.h"
#include "map/Selection.h"
#include "model/DeleteRules.h"

namespace {

using namespace map;
using namespace model;

class ToolWalk : public ToolFixture {
protected:
    uint32_t Any(uint32_t limit) { return Below(&random, limit); }
    Pixel AnyPixel() { return { int(Any(kWidth)), int(Any(kHeight)) }; }
    KeyState AnyKeys() { return { OneIn(&random, 4), OneIn(&random, 8) }; }

    // Somewhere, or on something that was painted there.
    Pixel Target() {
        if (OneIn(&random, 3)) return AnyPixel();
        const std::vector<SceneryObject*> all = build::List();
        const SceneryObject* object = all[Any(static_cast<uint32_t>(all.size()))];
        if (!IsDrawn(object)) return AnyPixel();
        return { ScreenPoint(object, 0).x + int(Any(7)) - 3, ScreenPoint(object, 0).y + int(Any(7)) - 3 };
    }

    void MakeSmallAirport() {
        build::Runway(36);
        for (int i = 0; i < 6; ++i) {
            const build::Place place = { double(Any(700)) - 350, double(Any(500)) - 250 };
            build::Node(place, OneIn(&random, 3) ? kHoldShortNode : kNormalNode);
        }
        BigSpot({ 200, 100 });
        const std::vector<SceneryObject*> nodes = AllOf(kTaxiNode);
        for (size_t i = 1; i < nodes.size(); ++i) build::Link(nodes[i - 1], nodes[i], 1);
        SquareApron(60);
        Strip({ -200, -100 }, { -100, -100 });
        SceneryObject* vor = build::Vor({ 100, -200 });
        if (OneIn(&random, 2)) vor->flags |= kStock;
    }

    void ChangeView() {
        switch (Any(5)) {
        case 0: ZoomSteps(OneIn(&random, 2) ? 1 : -1); break;
        case 1: view.rotation = Any(628) / 100.0; break;
        case 2: PanStep(static_cast<PanDirection>(1 + Any(4))); break;
        case 3:
            view.span = kHeight;
            ResizeView(kWidth, kHeight);
            view.centre = build::kMiddle;
            break;
        default: layers.navaids = !layers.navaids; break;
        }
    }

    void Gesture() {
        SetTool(static_cast<Tool>(Any(9)));
        const uint32_t kinds[] = { 1, 2, 4, 5 };
        tools.linkKind = kinds[Any(4)];
        const uint8_t nodeKinds[] = { kNormalNode, kHoldShortNode, kHoldShortNode, kIlsHoldShortNode };
        tools.nodeKind = nodeKinds[Any(4)];
        if (OneIn(&random, 12)) SelectAll();
        if (OneIn(&random, 12)) layers.network = false;
        tools.lastParkingType = int(Any(12));
        Paint();
        const uint32_t presses = tools.toolMode == Tool::Apron ? 2 + Any(4) : 1;
        for (uint32_t i = 0; i < presses; ++i) PressAndDrag();
        if (tools.toolMode == Tool::Apron) Escape();
    }

    // The wheel, the middle button, and keys that turn and move the map or hide what it shows.
    void MoveViewUnderDrag() {
        switch (Any(5)) {
        case 0: OnWheel(OneIn(&random, 2) ? 120 : -120, OneIn(&random, 2), false); break;
        case 1: Rotate(RotateDirection::Add, false); break;
        case 2: PanStep(static_cast<PanDirection>(1 + Any(4))); break;
        case 3: ToggleLayer(); break;
        default:
            OnMiddleDown(AnyPixel());
            OnMouseMove(AnyPixel(), {});
            OnMiddleUp();
            break;
        }
    }

    void ToggleLayer() {
        bool* const shown[] = { &layers.network, &layers.lights, &layers.starts, &layers.navaids };
        bool* layer = shown[Any(4)];
        *layer = !*layer;
    }

    // An outline may be closed only once in a gesture: it is an action of its own.
    void PressAndDrag() {
        const bool draws = tools.toolMode == Tool::Apron;
        if (!draws && OneIn(&random, 8))
            OnDoubleClick(Target(), AnyKeys());
        else
            OnButtonDown(Target(), AnyKeys());
        for (uint32_t i = Any(4); i > 0; --i) {
            OnMouseMove(Target(), {});
            if (OneIn(&random, 4)) OnDragTimer();
            if (OneIn(&random, 6)) MoveViewUnderDrag();
            if (OneIn(&random, 12)) Paint();
            if (state.busy && OneIn(&random, 10)) Undo();  // refused
        }
        if (OneIn(&random, 8)) return CancelDrag();
        if (!draws && OneIn(&random, 10) && CanEscape()) Escape();
        OnButtonUp(Target(), {});
        Paint();
    }

    void Delete() {
        fake.answers.clear();
        if (OneIn(&random, 3))
            DeleteGuidelinesAndMarkers();
        else
            EraseSelected();
    }

    // What a file would hold, and what it does not: the objects themselves, in their order, markers and guidelines.
    struct Shot {
        ByteList file;
        std::vector<SceneryObject*> objects;
        std::vector<uint8_t> aids;
        bool operator==(const Shot&) const = default;
    };
    static Shot Now() {
        Shot shot = { File(), build::List(), {} };
        for (const SceneryObject* o : shot.objects) {
            if (KindOf(o) != kReferenceMarker && KindOf(o) != kGuideline) continue;
            shot.aids.insert(shot.aids.end(), o->payload, o->payload + o->payloadSize);
        }
        return shot;
    }

    // Empty when the network is sound.
    static std::string WhatIsWrong() {
        if (build::List() != build::ListFromTail()) return "the list is broken";
        std::set<const SceneryObject*> live;
        for (const SceneryObject* o : build::List()) live.insert(o);
        std::set<std::pair<const SceneryObject*, const SceneryObject*>> joined;
        for (const SceneryObject* o : AllOf(kTaxiLink)) {
            const TaxiLinkPayload& link = LinkOf(o);
            const SceneryObject *start = link.start, *end = link.end, *name = link.designator;
            if (!live.contains(start) || !live.contains(end)) return "a link has no end";
            if (start == end) return "a link joins an object to itself";
            if (KindOf(start) != kTaxiNode) return "a link starts at a spot";
            if ((KindOf(end) == kParkingSpot) != (LinkTypeOf(link) == kParkingLink)) return "a link has the wrong type";
            if (!joined.insert(std::minmax(start, end)).second) return "two links join the same two objects";
            if (name && !live.contains(name)) return "a name is gone";
            if (name && (KindOf(name) == kRunway) != (LinkTypeOf(link) == kRunwayLink)) return "a name does not fit";
        }
        for (const SceneryObject* o : AllOf(kGuideline)) {
            const auto& line = PayloadAs<GuidelinePayload>(o);
            if (!live.contains(line.from) || !live.contains(line.to)) return "a guideline has no end";
        }
        return state.busy || tools.pressed ? "a drag goes on" : "";
    }

    Random random;
};

TEST_F(ToolWalk, EveryGestureLeavesASoundNetworkAndIsOneAction) {
    constexpr int kWalks = 60, kGestures = 40;
    int recorded = 0;
    for (int walk = 0; walk < kWalks; ++walk) {
        ClearModel();
        Open();
        ResetTools();
        layers = {};
        view.rotation = 0;
        random = { static_cast<uint64_t>(walk) };
        MakeSmallAirport();
        Paint();
        for (int i = 0; i < kGestures; ++i) {
            if (OneIn(&random, 6)) ChangeView();
            const Shot before = Now();
            const SceneryObject* newest = state.undoHead;
            if (OneIn(&random, 10))
                Delete();
            else
                Gesture();
            Paint();
            ASSERT_EQ(WhatIsWrong(), "") << walk << " " << i;
            const Shot after = Now();
            if (state.undoHead == newest) {
                ASSERT_TRUE(after == before) << "unrecorded, " << walk << " " << i;
                continue;
            }
            ++recorded;
            Undo();
            ASSERT_TRUE(Now() == before) << walk << " " << i;
            ASSERT_EQ(WhatIsWrong(), "") << walk << " " << i;
            Redo();
            ASSERT_TRUE(Now() == after) << walk << " " << i;
            ASSERT_EQ(WhatIsWrong(), "") << walk << " " << i;
        }
    }
    EXPECT_GT(recorded, kWalks * kGestures / 3);
}

TEST_F(ToolWalk, UndoingAllOfAWalkRestoresTheFile) {
    constexpr int kWalks = 40;
    for (int walk = 0; walk < kWalks; ++walk) {
        ClearModel();
        Open();
        ResetTools();
        random = { 1000 + static_cast<uint64_t>(walk) };
        MakeSmallAirport();
        Paint();
        const Shot before = Now();
        for (int i = 0; i < 20; ++i) OneIn(&random, 8) ? Delete() : Gesture();
        const Shot after = Now();
        while (CanUndo()) Undo();
        ASSERT_TRUE(Now() == before) << walk;
        while (CanRedo()) Redo();
        ASSERT_TRUE(Now() == after) << walk;
    }
}

}  // namespace
