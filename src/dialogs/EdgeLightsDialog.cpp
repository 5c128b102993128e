// EdgeLightsDialog.cpp - see EdgeLightsDialog.h.
//
// The record's brightness is 1.0 for normal lights; the dialog shows thirteen times as much.
#include "dialogs/EdgeLightsDialog.h"

#include <algorithm>
#include <cstdio>

#include "dialogs/Edits.h"
#include "dialogs/NumberField.h"
#include "model/EdgeLights.h"
#include "model/ObjectList.h"
#include "model/Records.h"

namespace dialogs {

namespace {

using model::EdgeLightsHead;
using model::EdgeLightStrip;

constexpr double kNormalBrightness = 13;
constexpr Quantity kSpacing = { "light spacing", Unit::TaxiLength, 0.5, 1000, 1, 1 };
constexpr Quantity kOptimum = { "optimum light spacing", Unit::TaxiLength, 0.5, 1000, 1, 1 };
constexpr Quantity kBrightness = { "brightness", Unit::Plain, 0, 1000 };

bool IsSelected(const EdgeLightStrip& strip) {
    return strip.segmentSelected != 0 || strip.startSelected != 0 || strip.endSelected != 0;
}

bool AnySelected(const std::vector<EdgeLightStrip>& strips) {
    return std::any_of(strips.begin(), strips.end(), IsSelected);
}

std::string ShowSpacing(const SceneryObject* lights) {
    const std::vector<EdgeLightStrip> strips = model::StripsOf(lights);
    const bool some = AnySelected(strips);
    std::string text;
    for (const EdgeLightStrip& strip : strips) {
        if (some && !IsSelected(strip)) continue;
        const std::string spacing = ShowNumber(kSpacing, strip.spacing);
        if (!text.empty() && text != spacing) return "";
        text = spacing;
    }
    return text;
}

std::string ShowBrightness(float stored) {
    char text[32];
    std::snprintf(text, sizeof text, "%g", stored * kNormalBrightness);
    return text;
}

}  // namespace

EdgeLightsFields LoadEdgeLightsFields(const SceneryObject* lights) {
    const model::EdgeLightDefaults& defaults = model::state.edgeLights;
    return { ShowSpacing(lights), defaults.adjust, ShowNumber(kOptimum, defaults.optimumSpacing),
             ShowBrightness(model::PayloadAs<EdgeLightsHead>(lights).brightness) };
}

bool StoreEdgeLightsFields(const EdgeLightsFields& shown, const EdgeLightsFields& entered, SceneryObject* lights,
                           BadField* bad) {
    double spacing = 0, optimum = model::state.edgeLights.optimumSpacing, brightness = 0;
    if (!ReadField(kSpacing, shown.spacing, entered.spacing, Field::Spacing, &spacing, bad) ||
        !ReadField(kOptimum, shown.optimum, entered.optimum, Field::OptimumSpacing, &optimum, bad) ||
        !ReadField(kBrightness, shown.brightness, entered.brightness, Field::Brightness, &brightness, bad))
        return false;
    Edits edits;
    SceneryObject* draft = DraftOf(&edits, lights);
    std::vector<EdgeLightStrip> strips = model::StripsOf(draft);
    const bool some = AnySelected(strips);
    const bool adjust = entered.adjust && (!shown.adjust || entered.optimum != shown.optimum);
    for (EdgeLightStrip& strip : strips) {
        const bool typed = entered.spacing != shown.spacing && (!some || IsSelected(strip));
        const double wanted = typed ? spacing : optimum;
        if (entered.adjust && (typed || adjust))
            strip.spacing = static_cast<float>(model::AdjustedSpacing(model::StripLength(strip), wanted));
        else if (typed)
            strip.spacing = static_cast<float>(spacing);
    }
    model::SetStrips(draft, strips);
    if (entered.brightness != shown.brightness)
        model::PayloadAs<EdgeLightsHead>(draft).brightness = static_cast<float>(brightness / kNormalBrightness);
    Commit(&edits);
    model::state.edgeLights = { entered.adjust, optimum };
    return true;
}

}  // namespace dialogs
