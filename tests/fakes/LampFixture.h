// LampFixture.h - a night map of 4000 x 4000 pixels, four to the metre, and the lamps painted on it in metres.
#pragma once

#include <algorithm>
#include <cmath>
#include <vector>

#include "fakes/MapFixture.h"

class LampFixture : public MapFixture {
protected:
    static constexpr double kPixels = 4;  // to the metre
    static constexpr double kNear = 0.6;  // metres that count as the same place

    struct LampAt {
        double east = 0, north = 0;  // metres from the middle of the airport
    };

    void SetUp() override {
        MapFixture::SetUp();
        Open();
        map::layers.lights = true;
        map::layers.network = false;
        Look({ 0, 0 });
    }
    static void Look(build::Place centre) {
        map::view.centre = build::At(centre);
        map::view.span = 4000 / kPixels;
        map::ResizeView(4000, 4000);
    }
    static constexpr double FeetOf(double feet) { return feet * model::kMetresPerFoot; }

    // A runway to the north, 150 feet wide, whose primary end lies in the middle of the airport.
    static model::SceneryObject* RunwayFromTheMiddle(float length = 2000) {
        model::SceneryObject* runway = build::Runway(36, 0, { 0, length / 2 });
        Parts(runway).body.length = length;
        Parts(runway).body.width = 45.72F;
        return runway;
    }
    static model::RunwayPayload& Parts(model::SceneryObject* runway) {
        return model::PayloadAs<model::RunwayPayload>(runway);
    }

    static std::vector<LampAt> Lit(map::Ink ink) {
        RecordingCanvas log;
        Paint(&log);
        std::vector<LampAt> lamps;
        const model::Point origin = map::WorldToScreen(build::At({ 0, 0 }));
        for (const CanvasCall& call : log.FilledWith(map::InkOf(ink))) {
            if (call.name != "ellipse") continue;
            const double x = (call.points[0].x + call.points[1].x) / 2.0;  // the middle of the lamp's middle pixel
            const double y = (call.points[0].y + call.points[1].y) / 2.0;
            lamps.push_back({ (x - origin.x) / kPixels, (origin.y - y) / kPixels });
        }
        return lamps;
    }
    static int CountAt(const std::vector<LampAt>& lamps, double east, double north) {
        return static_cast<int>(std::count_if(lamps.begin(), lamps.end(), [=](const LampAt& lamp) {
            return std::abs(lamp.east - east) < kNear && std::abs(lamp.north - north) < kNear;
        }));
    }
    // The norths on the centre line, from the nearest to the farthest to the south.
    static std::vector<double> OutAlongCentre(const std::vector<LampAt>& lamps) {
        std::vector<double> out;
        for (const LampAt& lamp : lamps) {
            if (std::abs(lamp.east) < kNear) out.push_back(-lamp.north);
        }
        std::sort(out.begin(), out.end());
        return out;
    }
};
