// World.cpp - see World.h.
#include "sample/World.h"

#include <algorithm>
#include <cmath>

#include "platform/Files.h"
#include "sample/CsvReader.h"

namespace sample {

namespace {

constexpr uint64_t kTableLimit = 256u << 20;  // bytes; far above any table of the world

// The columns of one table, by name. A required one that is missing makes the table unusable.
struct Columns {
    const CsvTable& table;
    std::string missing;

    int Need(std::string_view name) {
        const int column = ColumnOf(table, name);
        if (column < 0 && missing.empty()) missing = name;
        return column;
    }
    int Want(std::string_view name) const { return ColumnOf(table, name); }
};

double NumberOr(const CsvTable& table, int column, double otherwise) {
    NumberIn(Field(table, column), &otherwise);
    return otherwise;
}

std::string TextIn(const CsvTable& table, int column) { return std::string(Field(table, column)); }

std::optional<double> MaybeNumber(const CsvTable& table, int column) {
    double value = 0;
    if (!NumberIn(Field(table, column), &value)) return std::nullopt;
    return value;
}

// Degrees north and east positive in the table, radians and west positive inside. The poles themselves are
// no places for an airport: nothing can be laid out in metres there.
std::optional<model::LatLon> PositionIn(const CsvTable& table, int latitude, int longitude) {
    const auto lat = MaybeNumber(table, latitude), lon = MaybeNumber(table, longitude);
    if (!lat || !lon || std::fabs(*lat) > 89.9 || std::fabs(*lon) > 180) return std::nullopt;
    return model::LatLon{ *lat * model::kRadiansPerDegree, -*lon * model::kRadiansPerDegree };
}

bool ReadAirports(CsvTable* table, World* world, std::string* missing) {
    Columns columns{ *table, {} };
    const int ident = columns.Need("ident"), name = columns.Need("name");
    const int lat = columns.Need("lat"), lon = columns.Need("lon");
    const int city = columns.Want("city"), state = columns.Want("state"), country = columns.Want("country");
    const int elevation = columns.Want("elevation_ft");
    *missing = columns.missing;
    while (missing->empty() && NextRow(table)) {
        const auto position = PositionIn(*table, lat, lon);
        if (!position || Field(*table, ident).empty()) continue;
        world->airports.push_back({ TextIn(*table, ident), TextIn(*table, name), TextIn(*table, city),
                                    TextIn(*table, state), TextIn(*table, country),
                                    NumberOr(*table, elevation, 0) * model::kMetresPerFoot, *position });
    }
    return missing->empty();
}

struct EndColumns {
    int ident, latitude, longitude, heading, displaced;
};

RunwayEndRow EndIn(const CsvTable& table, const EndColumns& columns) {
    RunwayEndRow end;
    end.ident = TextIn(table, columns.ident);
    end.position = PositionIn(table, columns.latitude, columns.longitude);
    end.heading = MaybeNumber(table, columns.heading);
    end.displaced = std::max(0.0, NumberOr(table, columns.displaced, 0)) * model::kMetresPerFoot;
    return end;
}

bool ReadRunways(CsvTable* table, World* world, std::string* missing) {
    Columns columns{ *table, {} };
    const int airport = columns.Need("airport_ident");
    const int length = columns.Need("length_ft"), width = columns.Want("width_ft");
    const int surface = columns.Want("surface"), lighted = columns.Want("lighted"), closed = columns.Want("closed");
    const EndColumns low{ columns.Need("le_ident"), columns.Want("le_latitude_deg"), columns.Want("le_longitude_deg"),
                          columns.Want("le_heading_degT"), columns.Want("le_displaced_threshold_ft") };
    const EndColumns high{ columns.Need("he_ident"), columns.Want("he_latitude_deg"), columns.Want("he_longitude_deg"),
                           columns.Want("he_heading_degT"), columns.Want("he_displaced_threshold_ft") };
    *missing = columns.missing;
    while (missing->empty() && NextRow(table)) {
        RunwayRow row;
        row.airport = TextIn(*table, airport);
        if (row.airport.empty()) continue;
        row.surface = TextIn(*table, surface);
        row.length = std::max(0.0, NumberOr(*table, length, 0)) * model::kMetresPerFoot;
        row.width = std::max(0.0, NumberOr(*table, width, 0)) * model::kMetresPerFoot;
        row.lighted = Field(*table, lighted) == "1";
        row.closed = Field(*table, closed) == "1";
        row.low = EndIn(*table, low);
        row.high = EndIn(*table, high);
        world->runways.push_back(std::move(row));
    }
    return missing->empty();
}

bool ReadNavaids(CsvTable* table, World* world, std::string* missing) {
    Columns columns{ *table, {} };
    const int ident = columns.Need("ident"), type = columns.Need("type"), frequency = columns.Need("frequency_khz");
    const int lat = columns.Need("latitude_deg"), lon = columns.Need("longitude_deg");
    const int name = columns.Want("name"), usage = columns.Want("usageType"), power = columns.Want("power");
    const int dme = columns.Want("dme_frequency_khz"), elevation = columns.Want("elevation_ft");
    const int variation = columns.Want("magnetic_variation_deg");
    *missing = columns.missing;
    while (missing->empty() && NextRow(table)) {
        const auto position = PositionIn(*table, lat, lon);
        if (!position || Field(*table, ident).empty()) continue;
        NavaidRow row;
        row.ident = TextIn(*table, ident);
        row.name = TextIn(*table, name);
        row.type = TextIn(*table, type);
        row.usage = TextIn(*table, usage);
        row.power = TextIn(*table, power);
        row.frequency = NumberOr(*table, frequency, 0);
        row.dmeFrequency = NumberOr(*table, dme, 0);
        row.elevation = NumberOr(*table, elevation, 0) * model::kMetresPerFoot;
        row.variation = MaybeNumber(*table, variation);
        row.position = *position;
        world->navaids.push_back(std::move(row));
    }
    return missing->empty();
}

bool ReadFrequencies(CsvTable* table, World* world, std::string* missing) {
    Columns columns{ *table, {} };
    const int airport = columns.Need("airport_ident"), type = columns.Need("type");
    const int frequency = columns.Need("frequency_mhz"), name = columns.Want("description");
    *missing = columns.missing;
    while (missing->empty() && NextRow(table)) {
        if (Field(*table, airport).empty()) continue;
        world->frequencies.push_back(
            { TextIn(*table, airport), TextIn(*table, type), TextIn(*table, name), NumberOr(*table, frequency, 0) });
    }
    return missing->empty();
}

using TableReader = bool (*)(CsvTable*, World*, std::string*);

bool LoadTable(const std::string& folder, const char* file, TableReader read, World* world, std::string* error) {
    const std::string path = folder + "/" + file;
    std::vector<uint8_t> bytes;
    if (!platform::ReadWholeFile(path, kTableLimit, &bytes)) {
        *error = "cannot read " + path;
        return false;
    }
    std::string missing;
    CsvTable table = OpenCsv({ reinterpret_cast<const char*>(bytes.data()), bytes.size() });
    if (read(&table, world, &missing)) return true;
    *error = path + " has no column " + missing;
    return false;
}

template <class Row>
std::span<const Row> RowsOf(const std::vector<Row>& rows, const std::string& airport) {
    // Iterators instead of ranges: not every compiler of ours takes what the ranges' forms return.
    const auto first = std::ranges::lower_bound(rows, airport, {}, &Row::airport);
    const auto last = std::ranges::upper_bound(rows, airport, {}, &Row::airport);
    return { first, last };
}

}  // namespace

bool LoadWorld(const std::string& folder, World* world, std::string* error) {
    *world = {};
    if (!LoadTable(folder, "airports.csv", ReadAirports, world, error)) return false;
    if (!LoadTable(folder, "runways.csv", ReadRunways, world, error)) return false;
    if (!LoadTable(folder, "navaids.csv", ReadNavaids, world, error)) return false;
    if (!LoadTable(folder, "frequencies.csv", ReadFrequencies, world, error)) return false;
    std::ranges::stable_sort(world->airports, {}, &AirportRow::ident);
    std::ranges::stable_sort(world->runways, {}, &RunwayRow::airport);
    std::ranges::stable_sort(world->navaids, {}, &NavaidRow::ident);
    std::ranges::stable_sort(world->frequencies, {}, &FrequencyRow::airport);
    const auto sameIdent = [](const AirportRow& a, const AirportRow& b) { return a.ident == b.ident; };
    world->airports.erase(std::unique(world->airports.begin(), world->airports.end(), sameIdent),
                          world->airports.end());
    return true;
}

std::span<const RunwayRow> RunwaysOf(const World& world, const std::string& airport) {
    return RowsOf(world.runways, airport);
}

std::span<const FrequencyRow> FrequenciesOf(const World& world, const std::string& airport) {
    return RowsOf(world.frequencies, airport);
}

const AirportRow* FindAirport(const World& world, const std::string& ident) {
    const auto found = std::ranges::lower_bound(world.airports, ident, {}, &AirportRow::ident);
    return found != world.airports.end() && found->ident == ident ? &*found : nullptr;
}

}  // namespace sample
