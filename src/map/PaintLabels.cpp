// PaintLabels.cpp - parking labels: the spot's name and number, or its first airline code.
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string>

#include "app/Settings.h"
#include "map/Painter.h"
#include "model/Names.h"
#include "model/Records.h"
#include "platform/Text.h"

namespace map {

namespace {

enum LabelMode { kNoLabels = 0, kTypeLabels = 1, kCodeLabels = 2 };  // the setting
constexpr size_t kCodeSize = 4;
constexpr int kLabelHeight = 14, kLabelGap = 3;  // pixels

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
    if (model::ParkingCodeCount(spot) == 0 || object->payloadSize < kFixed + kCodeSize) return {};
    char code[kCodeSize];
    std::memcpy(code, object->payload + kFixed, kCodeSize);
    char text[kCodeSize + 1];
    std::snprintf(text, sizeof text, "%.4s", code);
    return platform::Utf8FromWindows1252(text);
}

void PaintLabel(const Painter& painter, const SceneryObject* object) {
    const auto& spot = model::PayloadAs<model::ParkingSpotRecord>(object);
    const std::string text = app::settings.showLabels == kTypeLabels ? NameLabel(spot) : CodeLabel(object);
    const Pixel centre = ScreenPoint(object, 0);
    platform::TextRun run;
    run.text = text;
    run.at = { centre.x + ScreenRadius(object) + kLabelGap, centre.y };
    run.alignY = platform::AlignY::Middle;
    run.height = kLabelHeight;
    run.colour = InkOf(Ink::ParkingLabel);
    const Point from = { double(run.at.x), run.at.y - kLabelHeight / 2.0 };
    if (!Contains(painter.clip, from)) return;
    platform::DrawText(painter.canvas, run);
}

}  // namespace

void PaintParkingLabels(Painter* painter) {
    ForEachOfKind(model::kParkingSpot, [&](SceneryObject* spot) {
        if (IsDrawn(spot)) PaintLabel(*painter, spot);
    });
}

}  // namespace map
