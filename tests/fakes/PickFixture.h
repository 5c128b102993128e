// PickFixture.h - what is picked on the map of ToolFixture.h.
#pragma once

#include "fakes/ToolFixture.h"
#include "map/Selection.h"

class PickFixture : public ToolFixture {
protected:
    static model::SceneryObject* PickedAt(build::Place place) { return map::PickObject(PixelOf(place)).object; }
    static model::Pixel Beside(model::Pixel at, int dx, int dy = 0) { return { at.x + dx, at.y + dy }; }
    static model::SceneryObject* Ils() {
        model::SceneryObject* ils = build::IlsWithParts("IABC", { 0, 100 }, { 120, 0 }, { 200, 0 });
        model::PayloadAs<model::IlsPayload>(ils).localizer.width = 5;
        return ils;
    }
    static model::SceneryObject* FlatStrip() { return Strip({ -100, 0 }, { 100, 0 }); }
};
