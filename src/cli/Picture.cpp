// Picture.cpp - the map of an airport as an SVG file, painted by the same code as the window.
#include <cmath>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "app/Settings.h"
#include "cli/Verbs.h"
#include "map/MapView.h"
#include "map/PaintMap.h"
#include "model/Geodesy.h"
#include "model/ObjectList.h"
#include "model/Positions.h"
#include "platform/CanvasSvg.h"
#include "platform/Files.h"

namespace cli {

namespace {

constexpr uint64_t kMostPixels = 16384;  // a side
constexpr double kMostMetres = 1e8;

struct PictureOptions {
    int32_t width = 1280, height = 960;
    double span = map::kInitialSpan;  // metres
    double rotation = 0;              // radians, [0, 2 pi)
    bool night = false;
    map::MapLayers layers;
    bool grid = true;
    int labels = 0;  // as the setting
};

std::optional<int32_t> ParseSide(std::string_view text) {
    const std::optional<uint64_t> side = ParseWhole(text);
    if (!side || *side == 0 || *side > kMostPixels) return std::nullopt;
    return static_cast<int32_t>(*side);
}

bool ParseSize(std::string_view text, PictureOptions* options) {
    const size_t cross = text.find('x');
    if (cross == std::string_view::npos) return false;
    const auto width = ParseSide(text.substr(0, cross)), height = ParseSide(text.substr(cross + 1));
    if (!width || !height) return false;
    options->width = *width;
    options->height = *height;
    return true;
}

bool ParseSpan(std::string_view text, PictureOptions* options) {
    const std::optional<double> metres = ParseDecimal(text);
    if (!metres || *metres < 1 || *metres > kMostMetres) return false;
    options->span = *metres;
    return true;
}

bool ParseRotation(std::string_view text, PictureOptions* options) {
    const std::optional<double> degrees = ParseDecimal(text);
    if (!degrees) return false;
    const double turned = std::fmod(*degrees, 360.0);
    options->rotation = (turned < 0 ? turned + 360 : turned) * model::kRadiansPerDegree;
    if (options->rotation >= model::kTwoPi) options->rotation = 0;
    return true;
}

// What a name in the list of layers turns on.
struct LayerName {
    std::string_view name;
    bool map::MapLayers::*layer;
};
constexpr LayerName kLayerNames[] = {
    { "network", &map::MapLayers::network },
    { "starts", &map::MapLayers::starts },
    { "navaids", &map::MapLayers::navaids },
    { "holdshort", &map::MapLayers::holdShortLimits },
};

bool ShowLayer(std::string_view name, PictureOptions* options) {
    if (name == "grid") return options->grid = true;
    for (const LayerName& row : kLayerNames) {
        if (row.name == name) return options->layers.*row.layer = true;
    }
    return false;
}

// Exactly the layers named; an empty list shows the ground only.
bool ParseLayers(std::string_view text, PictureOptions* options) {
    options->grid = false;
    for (const LayerName& row : kLayerNames) options->layers.*row.layer = false;
    for (bool more = !text.empty(); more;) {
        const size_t comma = text.find(',');
        if (!ShowLayer(text.substr(0, comma), options)) return false;
        more = comma != std::string_view::npos;
        if (more) text.remove_prefix(comma + 1);
    }
    return true;
}

bool ParseLabels(std::string_view text, PictureOptions* options) {
    options->labels = text == "types" ? 1 : text == "codes" ? 2 : 0;
    return options->labels != 0;
}

// What each option's text means; false when it means nothing.
struct Reading {
    const char* name;
    bool (*parse)(std::string_view text, PictureOptions* options);
};
constexpr Reading kReadings[] = {
    { "--size", ParseSize },     { "--span", ParseSpan },     { "--rotate", ParseRotation },
    { "--labels", ParseLabels }, { "--layers", ParseLayers },
};

void SetUpMap(const PictureOptions& options) {
    app::settings = {};
    app::settings.showLabels = options.labels;
    app::settings.showLatLongGrid = options.grid;
    map::layers = options.layers;
    map::layers.lights = options.night;
    map::ResetView(model::PositionOf(model::state.airport));
    map::view.span = options.span;
    map::view.rotation = options.rotation;
    map::ResizeView(options.width, options.height);
}

}  // namespace

ToolResult RunPicture(const Arguments& arguments) {
    PictureOptions options;
    options.night = HasOption(arguments, "--night");
    for (const Reading& reading : kReadings) {
        const std::string text = OptionOr(arguments, reading.name, "");
        if (HasOption(arguments, reading.name) && !reading.parse(text, &options))
            return WrongUsage("'" + text + "' does not fit " + reading.name);
    }
    std::string error;
    if (!OpenNamedAirport(arguments.operands[0], arguments, "", &error)) return Failure(error);
    SetUpMap(options);
    const std::string picture = platform::SvgDocument(options.width, options.height, map::PaintMap);
    const std::string& target = arguments.operands[1];
    const std::span bytes(reinterpret_cast<const uint8_t*>(picture.data()), picture.size());
    if (!platform::WriteFileWhole(target, bytes)) return Failure("cannot write '" + target + "'");
    return {};
}

}  // namespace cli
