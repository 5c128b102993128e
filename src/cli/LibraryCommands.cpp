// LibraryCommands.cpp - index and find: the scenery library as lines or JSON.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "bgl/AirportIndex.h"
#include "bgl/LibraryScan.h"
#include "cli/Json.h"
#include "cli/Verbs.h"
#include "platform/Files.h"
#include "platform/Text.h"

namespace cli {

namespace {

struct Row {
    std::string ident, name, city, state, country, path;  // UTF-8
    std::string type;
    uint32_t layer = 0;
    bool superseded = false;   // another file has the airport in a higher layer
    bool sharesLayer = false;  // another file has it in the same layer
};

std::string Utf8(std::string_view text) { return platform::Utf8FromWindows1252(text); }

Row RowOf(const bgl::AirportIndexEntry& entry) {
    const bgl::SceneryFile& file = bgl::library.files[entry.file];
    Row row{ Utf8(entry.ident),   Utf8(entry.name), Utf8(entry.city), Utf8(entry.state),
             Utf8(entry.country), file.path,        "Unknwn",         file.layer };
    if (file.kind == bgl::FileKind::Stock) row.type = "Stock";
    if (file.kind == bgl::FileKind::AddOn) row.type = "Mod";
    std::replace(row.path.begin(), row.path.end(), '\\', '/');
    return row;
}

// Sorted by identifier, the highest layer first.
std::vector<Row> RowsOfLibrary() {
    std::vector<Row> rows;
    rows.reserve(bgl::library.airports.size());
    for (const bgl::AirportIndexEntry& entry : bgl::library.airports) rows.push_back(RowOf(entry));
    std::stable_sort(rows.begin(), rows.end(), [](const Row& a, const Row& b) {
        if (a.ident != b.ident) return a.ident < b.ident;
        return a.layer != b.layer ? a.layer > b.layer : a.path < b.path;
    });
    for (size_t i = 1; i < rows.size(); ++i) {
        const Row& before = rows[i - 1];
        const bool sameAirport = before.ident == rows[i].ident;
        rows[i].superseded = sameAirport && (before.superseded || before.layer > rows[i].layer);
        if (sameAirport && before.layer == rows[i].layer) rows[i].sharesLayer = rows[i - 1].sharesLayer = true;
    }
    return rows;
}

// A name may hold anything: what would end a field or the line becomes a blank.
void AppendLine(std::initializer_list<std::string> fields, std::string* text) {
    const auto endsField = [](char c) { return c == '\t' || c == '\n' || c == '\r'; };
    for (const std::string& field : fields) {
        if (&field != fields.begin()) *text += '\t';
        for (const char c : field) *text += endsField(c) ? ' ' : c;
    }
    *text += '\n';
}

struct Statistic {
    const char* name;
    uint32_t bgl::CollectionReport::*count;
};
constexpr Statistic kStatistics[] = {
    { "areas", &bgl::CollectionReport::areas },
    { "files", &bgl::CollectionReport::present },
    { "opened", &bgl::CollectionReport::opened },
    { "with airports", &bgl::CollectionReport::withAirports },
    { "without airports", &bgl::CollectionReport::noAirports },
    { "no scenery files", &bgl::CollectionReport::notScenery },
    { "cannot be opened", &bgl::CollectionReport::cannotOpen },
};

// Of the present files, whether opened in this run or known from the caches.
struct KindCount {
    const char* name;
    bgl::FileKind kind;
};
constexpr KindCount kKindCounts[] = {
    { "kind stock", bgl::FileKind::Stock },
    { "kind add-on", bgl::FileKind::AddOn },
    { "kind none", bgl::FileKind::NoAirports },
};

int64_t FilesOfKind(bgl::FileKind kind) {
    const auto& files = bgl::library.files;
    return std::count_if(files.begin(), files.end(),
                         [&](const bgl::SceneryFile& file) { return file.present && file.kind == kind; });
}

struct Duration {
    const char* name;
    double bgl::CollectionReport::*seconds;
};
constexpr Duration kDurations[] = {
    { "listing, seconds", &bgl::CollectionReport::listSeconds },
    { "examining, seconds", &bgl::CollectionReport::examineSeconds },
    { "all, seconds", &bgl::CollectionReport::allSeconds },
};

std::string StatisticsText() {
    std::string text;
    for (const Statistic& row : kStatistics) {
        text += std::string("# ") + row.name + ": " + std::to_string(bgl::library.report.*row.count) + '\n';
    }
    for (const KindCount& row : kKindCounts) {
        text += std::string("# ") + row.name + ": " + std::to_string(FilesOfKind(row.kind)) + '\n';
    }
    for (const Duration& row : kDurations) {
        char line[80];
        std::snprintf(line, sizeof line, "# %s: %.3f\n", row.name, bgl::library.report.*row.seconds);
        text += line;
    }
    return text;
}

// Which of two files in one layer the simulator takes, nobody can tell from here.
const char* Standing(const Row& row) { return row.superseded ? "superseded" : row.sharesLayer ? "same layer" : "wins"; }

std::string RowsText(const std::vector<Row>& rows) {
    std::string text;
    for (const Row& row : rows) {
        AppendLine({ row.ident, row.type, std::to_string(row.layer), row.superseded ? "superseded" : "-", row.name,
                     row.city, row.state, row.country, row.path },
                   &text);
    }
    return text;
}

void WriteField(JsonWriter* json, const char* key, const std::string& text) {
    Key(json, key);
    WriteText(json, text);
}

void WriteRow(JsonWriter* json, const Row& row) {
    LineBreak(json);
    OpenObject(json);
    WriteField(json, "ident", row.ident);
    WriteField(json, "type", row.type);
    Key(json, "layer");
    WriteInteger(json, row.layer);
    Key(json, "superseded");
    WriteBoolean(json, row.superseded);
    WriteField(json, "name", row.name);
    WriteField(json, "city", row.city);
    WriteField(json, "state", row.state);
    WriteField(json, "country", row.country);
    WriteField(json, "path", row.path);
    CloseObject(json);
}

std::string RowsJson(const std::vector<Row>& rows, bool withStatistics) {
    JsonWriter json;
    OpenObject(&json);
    Key(&json, "airports");
    OpenArray(&json);
    for (const Row& row : rows) WriteRow(&json, row);
    CloseArray(&json);
    if (withStatistics) {
        Key(&json, "stats");
        OpenObject(&json);
        for (const Statistic& row : kStatistics) {
            Key(&json, row.name);
            WriteInteger(&json, bgl::library.report.*row.count);
        }
        for (const KindCount& row : kKindCounts) {
            Key(&json, row.name);
            WriteInteger(&json, FilesOfKind(row.kind));
        }
        for (const Duration& row : kDurations) {
            Key(&json, row.name);
            WriteFixed(&json, bgl::library.report.*row.seconds, 3);
        }
        CloseObject(&json);
    }
    CloseObject(&json);
    return json.text + '\n';
}

// False, with *error saying why, when there is nothing to collect from or the caches cannot be kept.
bool Collect(const Arguments& arguments, std::string* error) {
    const std::string simulator = arguments.operands[0], cache = OptionOr(arguments, "--cache", "");
    if (!platform::FolderExists(simulator)) *error = "no folder '" + simulator + "'";
    if (HasOption(arguments, "--cache") && !platform::FolderExists(cache)) *error = "no folder '" + cache + "'";
    if (!error->empty()) return false;
    bgl::CollectAllAirports(simulator, cache);
    if (bgl::library.report.areas == 0) *error = "'" + simulator + "' has no Scenery.cfg that lists an area";
    if (!bgl::library.report.cachesKept) *error = "cannot write the caches in '" + cache + "'";
    return error->empty();
}

}  // namespace

ToolResult RunIndex(const Arguments& arguments) {
    std::string error;
    if (!Collect(arguments, &error)) return Failure(error);
    const std::vector<Row> rows = RowsOfLibrary();
    const bool withStatistics = HasOption(arguments, "--stats");
    if (HasOption(arguments, "--json")) return { 0, RowsJson(rows, withStatistics), "" };
    return { 0, RowsText(rows) + (withStatistics ? StatisticsText() : ""), "" };
}

ToolResult RunFind(const Arguments& arguments) {
    std::string error;
    if (!Collect(arguments, &error)) return Failure(error);
    const std::string& ident = arguments.operands[1];
    std::string text;
    for (const Row& row : RowsOfLibrary()) {
        if (!platform::EqualNoCase(row.ident, ident)) continue;
        AppendLine({ Standing(row), std::to_string(row.layer), row.type, row.name, row.path }, &text);
    }
    if (text.empty()) return Failure("no airport '" + ident + "' in the library");
    return { 0, text, "" };
}

}  // namespace cli
