// NavaidModel.cpp - see NavaidModel.h.
#include "sample/NavaidModel.h"

#include <algorithm>
#include <cmath>
#include <span>

#include "model/Ident.h"
#include "model/Records.h"
#include "platform/Text.h"
#include "sample/AirportModel.h"

namespace sample {

namespace {

using model::PayloadAs;
using model::SceneryObject;

constexpr double kSquare = 2;  // degrees
constexpr int kRings = 5;      // squares around a place that are searched

// Kinds of a VOR record, and the kind of object in the low bits of an ident word.
constexpr uint8_t kTerminalVor = 1, kLowVor = 2, kHighVor = 3;
constexpr uint32_t kVorLowBits = 2, kNdbLowBits = 3;

// By a word of the table: the kind in the record and the range.
struct NavaidClass {
    std::string_view word;
    uint8_t type;
    double miles;  // nautical
};
constexpr NavaidClass kVorClasses[] = { { "TERMINAL", kTerminalVor, 25 },
                                        { "LO", kLowVor, 40 },
                                        { "HI", kHighVor, 100 },
                                        { "BOTH", kHighVor, 100 },
                                        { "RNAV", kHighVor, 100 } };
constexpr NavaidClass kNdbClasses[] = { { "LOW", 1, 25 },  // type: 0 compass point, 1 MH, 2 H, 3 HH
                                        { "MEDIUM", 2, 50 },
                                        { "HIGH", 3, 75 } };

const NavaidClass& ClassOf(std::span<const NavaidClass> classes, std::string_view word, size_t otherwise) {
    const auto known = std::find_if(classes.begin(), classes.end(),
                                    [&](const NavaidClass& row) { return platform::EqualNoCase(row.word, word); });
    return known == classes.end() ? classes[otherwise] : *known;
}

float Range(double miles) { return static_cast<float>(miles * model::kMetresPerNauticalMile); }

model::EncodedPoint Encoded(model::LatLon position) {
    const model::BglPoint code = model::LatLonToBgl(position);
    return { code.lonCode, code.latCode };
}

uint32_t IdentWord(const std::string& ident, uint32_t lowBits) {
    return model::PackIdent(ident) << model::kIdentShift | lowBits;
}

bool IsVhf(double kilohertz) { return kilohertz >= 108000 && kilohertz < 118000; }

// A TACAN transmits on a channel, told as the VHF frequency that belongs to it.
double VhfOf(const NavaidRow& row) { return IsVhf(row.frequency) ? row.frequency : row.dmeFrequency; }

SceneryObject* MakeVor(const NavaidRow& row, bool vor, bool dme) {
    const NavaidClass& kind = ClassOf(kVorClasses, row.usage, 0);
    SceneryObject* object = model::CreateObject(model::kVorDme, sizeof(model::VorDmePayload));
    auto& payload = PayloadAs<model::VorDmePayload>(object);
    const model::EncodedPoint at = Encoded(row.position);
    const int32_t altitude = Millimetres(row.elevation);
    const uint32_t flags = (vor ? model::kHasVor | model::kNavTrue : 0u) | (dme ? model::kHasDme : 0u);
    payload.body = { kind.type,
                     static_cast<uint8_t>(flags),
                     at.longitude,
                     at.latitude,
                     altitude,
                     static_cast<uint32_t>(VhfOf(row)) * 1000,
                     Range(kind.miles),
                     WestVariation(row.variation.value_or(0)),
                     IdentWord(row.ident, kVorLowBits),
                     0 };
    if (dme) payload.dme = { 0, at.longitude, at.latitude, altitude, Range(kind.miles) };
    StoreText(row.name, payload.name, sizeof payload.name);
    return object;
}

SceneryObject* MakeNdb(const NavaidRow& row) {
    const NavaidClass& kind = ClassOf(kNdbClasses, row.power, 1);
    SceneryObject* object = model::CreateObject(model::kNdb, sizeof(model::NdbPayload));
    auto& payload = PayloadAs<model::NdbPayload>(object);
    const model::EncodedPoint at = Encoded(row.position);
    payload.type = kind.type;
    payload.frequency = static_cast<uint32_t>(std::lround(row.frequency * 1000));
    payload.longitude = at.longitude;
    payload.latitude = at.latitude;
    payload.altitude = Millimetres(row.elevation);
    payload.range = Range(kind.miles);
    payload.magneticVariation = WestVariation(row.variation.value_or(0));
    payload.ident = IdentWord(row.ident, kNdbLowBits);
    StoreText(row.name, payload.name, sizeof payload.name);
    return object;
}

std::pair<int, int> SquareOf(model::LatLon position) {
    const auto square = [](double radians) {
        return static_cast<int>(std::floor(radians * model::kDegreesPerRadian / kSquare));
    };
    return { square(position.lat), square(position.lon) };
}

}  // namespace

std::vector<SceneryObject*> MakeNavaids(const NavaidRow& row) {
    constexpr double kLowestNdb = 150, kHighestNdb = 1800;  // kHz
    std::vector<SceneryObject*> objects;
    const bool ndb = row.type.starts_with("NDB"), vor = row.type.starts_with("VOR");
    const bool dme = row.type.ends_with("DME") || row.type == "VORTAC" || row.type == "TACAN";
    if (ndb && row.frequency >= kLowestNdb && row.frequency <= kHighestNdb) objects.push_back(MakeNdb(row));
    if ((vor || dme) && IsVhf(VhfOf(row))) objects.push_back(MakeVor(row, vor, dme));
    return objects;
}

VariationMap MapVariations(const World& world) {
    VariationMap map;
    for (const NavaidRow& row : world.navaids) {
        if (row.variation) map.squares[SquareOf(row.position)].push_back(&row);
    }
    return map;
}

double VariationAt(const VariationMap& map, model::LatLon position) {
    const auto [row, column] = SquareOf(position);
    const NavaidRow* nearest = nullptr;
    double best = 1e9;
    for (int ring = 0; ring <= kRings; ++ring) {
        for (int i = -ring; i <= ring; ++i) {
            for (int k = -ring; k <= ring; ++k) {
                if (std::abs(i) != ring && std::abs(k) != ring) continue;
                const auto found = map.squares.find({ row + i, column + k });
                if (found == map.squares.end()) continue;
                for (const NavaidRow* navaid : found->second) {
                    const double distance = model::DistanceBetween(position, navaid->position);
                    if (distance >= best) continue;
                    best = distance;
                    nearest = navaid;
                }
            }
        }
        if (nearest && ring > 0) break;  // one ring more than the first that holds one
    }
    return nearest ? *nearest->variation : 0;
}

}  // namespace sample
