// ToolFixture.h - an open airport at one pixel to the metre, and the mouse on it.
#pragma once

#include <string>
#include <vector>

#include "fakes/MapFixture.h"
#include "fakes/SceneryBytes.h"
#include "map/LinkTemplate.h"
#include "model/EditHistory.h"

class ToolFixture : public MapFixture {
protected:
    void SetUp() override {
        MapFixture::SetUp();
        map::ForgetLinkTemplates();
        Scale(1);
        Open();
        model::SetPosition(model::state.airport, build::At({ -390, 290 }));  // out of the way, in a corner
    }

    static void Press(build::Place place, map::KeyState keys = {}) { map::OnButtonDown(PixelOf(place), keys); }
    static void DragTo(build::Place place) { map::OnMouseMove(PixelOf(place), {}); }
    static void Release(build::Place place) { map::OnButtonUp(PixelOf(place), {}); }
    static void Click(build::Place place, map::KeyState keys = {}) {
        Press(place, keys);
        Release(place);
    }
    // The window paints between two messages of the user.
    static void Drag(build::Place from, build::Place to, map::KeyState keys = {}) {
        Paint();
        Press(from, keys);
        DragTo({ (from.east + to.east) / 2, (from.north + to.north) / 2 });
        DragTo(to);
        Release(to);
        Paint();
    }

    static double DistanceTo(const model::SceneryObject* object, build::Place place) {
        return model::DistanceBetween(model::PositionOf(object), build::At(place));
    }
    static std::vector<model::SceneryObject*> AllOf(uint32_t kind) {
        std::vector<model::SceneryObject*> objects;
        for (model::SceneryObject* o : build::List()) {
            if (model::KindOf(o) == kind) objects.push_back(o);
        }
        return objects;
    }
    static const model::TaxiLinkPayload& LinkOf(const model::SceneryObject* link) {
        return model::PayloadAs<model::TaxiLinkPayload>(link);
    }
    // The link between two objects, either way round; null when there is none.
    static model::SceneryObject* Between(const model::SceneryObject* a, const model::SceneryObject* b) {
        for (model::SceneryObject* link : AllOf(model::kTaxiLink)) {
            const auto& payload = LinkOf(link);
            if ((payload.start == a && payload.end == b) || (payload.start == b && payload.end == a)) return link;
        }
        return nullptr;
    }
    static model::SceneryObject* BigSpot(build::Place place, float radius = 20) {
        model::SceneryObject* spot = build::Spot(place);
        model::PayloadAs<model::ParkingSpotRecord>(spot).radius = radius;
        return spot;
    }
    static model::SceneryObject* SquareApron(double half = 100) {
        return build::Apron({ build::Encoded({ -half, -half }), build::Encoded({ half, -half }),
                              build::Encoded({ half, half }), build::Encoded({ -half, half }) });
    }
    static model::SceneryObject* Strip(build::Place from, build::Place to) {
        const model::EncodedPoint a = build::Encoded(from), b = build::Encoded(to);
        return build::EdgeLights({ { 60, a.longitude, a.latitude, b.longitude, b.latitude, 0, 0, 0 } });
    }

    // What a file would hold, without the time in its head.
    static ByteList File() { return BuildFile(); }

    // One undo takes all of it back, one redo repeats it.
    static void ExpectOneAction(const ByteList& before) {
        const ByteList after = File();
        EXPECT_TRUE(model::CanUndo());
        model::Undo();
        EXPECT_EQ(File(), before);
        EXPECT_FALSE(model::CanUndo());
        model::Redo();
        EXPECT_EQ(File(), after);
    }
};
