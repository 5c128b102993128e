// PaintLabels.cpp - parking labels: the spot's name and number, or its first airline code.
//
// A label stands on the right of its circle, or on another side where it would cover a neighbour. Where spots crowd
// together on the screen, a label that would run into an earlier one is left out. Spots beside the page count too, so
// that no label comes or goes while the map is moved.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <string>
#include <unordered_map>
#include <vector>

#include "app/Settings.h"
#include "map/Painter.h"
#include "model/Names.h"
#include "model/Records.h"
#include "model/SpotBits.h"
#include "platform/Text.h"

namespace map {

namespace {

enum LabelMode { kNoLabels = 0, kTypeLabels = 1, kCodeLabels = 2 };  // the setting
constexpr int kLabelHeight = 14, kLabelGap = 3;                      // pixels
constexpr double kCharacterWidth = 7;                                // pixels; near enough to keep labels apart
constexpr double kCellSize = 64;                                     // pixels
constexpr double kFarOff = 100'000;                                  // pixels beside the page: no label there matters
constexpr double kCircleShare = 0.8, kRoomyCircle = 30,
                 kWidestCircle = 256;  // pixels; circles wider than that leave room inside

std::string NameLabel(const model::ParkingSpotRecord& spot) {
    const char* name = model::ParkingNameText(model::ParkingNameCode(spot));
    char text[48];
    std::snprintf(text, sizeof text, "%s %d", name, static_cast<int>(model::ParkingNumber(spot)));
    return *name ? text : text + 1;  // no blank in front of a bare number
}

// Zero padded, not terminated when all four characters are used.
std::string CodeLabel(const SceneryObject* object) {
    constexpr size_t kFixed = sizeof(model::ParkingSpotRecord);
    const auto& spot = model::PayloadAs<model::ParkingSpotRecord>(object);
    if (model::ParkingCodeCount(spot) == 0 || object->payloadSize < kFixed + model::kParkingCodeSize) return {};
    char code[model::kParkingCodeSize];
    std::memcpy(code, object->payload + kFixed, model::kParkingCodeSize);
    char text[model::kParkingCodeSize + 1];
    std::snprintf(text, sizeof text, "%.4s", code);
    return platform::Utf8FromWindows1252(text);
}

struct Label {
    std::string text;
    Point middle;  // of its text
    Box box;
};

std::string TextOf(const SceneryObject* spot) {
    if (app::settings.showLabels == kTypeLabels) return NameLabel(model::PayloadAs<model::ParkingSpotRecord>(spot));
    return CodeLabel(spot);
}

double RadiusOf(const TaxiHub& hub) {
    return ScaledPixels(double{ model::PayloadAs<model::ParkingSpotRecord>(hub.object).radius });
}

// Beside the circle: (1, 0) right, (-1, 0) left, (0, 1) below, (0, -1) above. The canvas may draw texts larger than a
// screen's pixels ask for.
Label LabelBeside(const Painter& painter, const TaxiHub& hub, const std::string& text, Point side) {
    const double pixel = std::max(FromScreen(1), painter.canvas->textScale);
    const Point half = { kCharacterWidth * pixel * static_cast<double>(text.size()) / 2, kLabelHeight * pixel / 2 };
    const double reach = RadiusOf(hub) + FromScreen(kLabelGap);
    const Point middle = hub.at + Point{ side.x * (reach + half.x), side.y * (reach + half.y) };
    return { text, middle, { middle.x - half.x, middle.y - half.y, middle.x + half.x, middle.y + half.y } };
}

// Boxes on the screen, found again by the cells of a grid that they lie in.
struct TakenPlaces {
    std::unordered_map<int64_t, std::vector<Box>> cells;
};

template <class Visit>
void ForEachCell(const Box& box, Visit visit) {
    const auto cell = [](double at) { return int64_t{ ToWhole(std::floor(at / FromScreen(kCellSize))) }; };
    for (int64_t x = cell(box.left); x <= cell(box.right); ++x) {
        for (int64_t y = cell(box.top); y <= cell(box.bottom); ++y) visit(x * (int64_t{ 1 } << 32) + y);
    }
}

bool IsTaken(const TakenPlaces& places, const Box& box) {
    bool taken = false;
    ForEachCell(box, [&](int64_t cell) {
        const auto found = places.cells.find(cell);
        if (found == places.cells.end()) return;
        for (const Box& other : found->second) taken = taken || Meets(other, box);
    });
    return taken;
}

void Take(TakenPlaces* places, const Box& box) {
    ForEachCell(box, [&](int64_t cell) { places->cells[cell].push_back(box); });
}

struct Room {
    TakenPlaces spots, labels;
};

// The circles, somewhat smaller than they are: a label may touch the rim of a neighbour.
TakenPlaces PlacesOfSpots(const Painter& painter) {
    TakenPlaces spots;
    for (const TaxiHub& hub : painter.network.hubs) {
        if (model::KindOf(hub.object) != model::kParkingSpot) continue;
        const double radius = RadiusOf(hub);
        const Box box = BoundsOf(hub.at, radius * kCircleShare);
        if (radius <= FromScreen(kWidestCircle) && Meets(box, Grown(painter.clip, kFarOff, kFarOff))) Take(&spots, box);
    }
    return spots;
}

bool FindPlace(const Painter& painter, const Room& room, const TaxiHub& hub, Label* label) {
    const std::string text = TextOf(hub.object);
    if (text.empty()) return false;
    for (const Point side : { Point{ 1, 0 }, Point{ -1, 0 }, Point{ 0, 1 }, Point{ 0, -1 } }) {
        *label = LabelBeside(painter, hub, text, side);
        if (!IsTaken(room.spots, label->box) && !IsTaken(room.labels, label->box)) return true;
    }
    // Circles that lie on one another do so at any scale: once they are large, the label may cover a neighbour.
    *label = LabelBeside(painter, hub, text, { 1, 0 });
    return RadiusOf(hub) >= FromScreen(kRoomyCircle) && !IsTaken(room.labels, label->box);
}

void PaintLabel(const Painter& painter, const SceneryObject* spot, const Label& label) {
    if (!Meets(label.box, painter.clip)) return;
    platform::TextRun run;
    run.text = label.text;
    // On the right the text begins at the circle however wide its letters are, on the left it ends there.
    const double centre = ScreenPoint(spot, 0).x;
    if (label.box.left > centre)
        run.at = ToPixel({ label.box.left, label.middle.y });
    else if (label.box.right < centre)
        run.at = ToPixel({ label.box.right, label.middle.y }), run.alignX = platform::AlignX::Right;
    else
        run.at = ToPixel(label.middle), run.alignX = platform::AlignX::Centre;
    run.alignY = platform::AlignY::Middle;
    run.height = kLabelHeight;
    run.colour = InkOf(Ink::ParkingLabel);
    platform::DrawText(painter.canvas, run);
}

}  // namespace

void PaintParkingLabels(Painter* painter) {
    Room room = { PlacesOfSpots(*painter), {} };
    for (const TaxiHub& hub : painter->network.hubs) {
        if (model::KindOf(hub.object) != model::kParkingSpot) continue;
        if (!Meets(BoundsOf(hub.at, 0), Grown(painter->clip, kFarOff, kFarOff))) continue;
        Label label;
        if (!FindPlace(*painter, room, hub, &label)) continue;
        Take(&room.labels, label.box);
        if (IsDrawn(hub.object)) PaintLabel(*painter, hub.object, label);
    }
}

}  // namespace map
