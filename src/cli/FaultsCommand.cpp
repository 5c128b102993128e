// FaultsCommand.cpp - tarvo-tool faults: every report of the fault finder, for one file or a folder of them.
#include "cli/FaultsCommand.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "cli/Verbs.h"
#include "faults/FaultSearch.h"
#include "model/Names.h"
#include "model/ObjectList.h"
#include "model/Records.h"
#include "platform/Files.h"
#include "platform/Text.h"

namespace cli {

namespace {

using faults::FaultReport;
using model::SceneryObject;
using Reports = std::vector<FaultReport>;

constexpr size_t kColumns = 78;
constexpr int kDegreeDecimals = 6;

struct FileResult {
    std::string file, airport;  // no airport: the file holds none
    Reports reports;            // point into the model, which the next file replaces
};

// As many words a line as fit.
std::string Wrapped(std::string_view text, const std::string& indent) {
    std::string result, line;
    while (!text.empty()) {
        const size_t end = std::min(text.find(' '), text.size());
        const std::string_view word = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (word.empty()) continue;
        if (!line.empty() && indent.size() + line.size() + 1 + word.size() > kColumns) {
            result += indent + line + '\n';
            line.clear();
        }
        line += line.empty() ? "" : " ";
        line += word;
    }
    return result + indent + line + '\n';
}

std::unordered_map<const SceneryObject*, int64_t> ListPlaces() {
    std::unordered_map<const SceneryObject*, int64_t> places;
    for (const SceneryObject* object = model::state.head; object; object = object->next) {
        const auto place = static_cast<int64_t>(places.size());
        places[object] = place;
    }
    return places;
}

uint32_t NumberAmongNodes(const SceneryObject* node) {
    uint32_t number = 0;
    for (const SceneryObject* object = node->prev; object; object = object->prev)
        number += KindOf(object) == model::kTaxiNode;
    return number;
}

std::string NodeName(const SceneryObject* node) {
    const uint8_t type = model::PayloadAs<model::TaxiNodeRecord>(node).type;
    const char* what = type == model::kHoldShortNode      ? "hold-short node "
                       : type == model::kIlsHoldShortNode ? "ILS hold-short node "
                                                          : "node ";
    return what + std::to_string(NumberAmongNodes(node));
}

std::string RunwayName(const SceneryObject* runway) {
    const model::RunwayRecord& body = model::PayloadAs<model::RunwayPayload>(runway).body;
    return model::RunwayEndName(body.primaryNumber, body.primaryDesignator) + '/' +
           model::RunwayEndName(body.secondaryNumber, body.secondaryDesignator);
}

std::string LinkName(const SceneryObject* link) {
    const auto& payload = model::PayloadAs<model::TaxiLinkPayload>(link);
    constexpr const char* kTypes[] = { "", "taxiway ", "runway ", "parking ", "apron ", "closed " };
    const uint32_t type = model::LinkTypeOf(payload);
    std::string name = std::string(type < std::size(kTypes) ? kTypes[type] : "") + "link";
    const SceneryObject* designator = payload.designator;
    if (designator && KindOf(designator) == model::kRunway) return name + ' ' + RunwayName(designator);
    if (designator && KindOf(designator) == model::kTaxiDesignator) {
        const auto& text = model::PayloadAs<model::TaxiDesignatorRecord>(designator).name;
        const std::string_view taxiway(text, static_cast<size_t>(std::find(text, std::end(text), '\0') - text));
        if (!taxiway.empty()) name += ' ' + platform::Utf8FromWindows1252(taxiway);
    }
    return name;
}

std::string SpotName(const SceneryObject* spot) {
    const auto& record = model::PayloadAs<model::ParkingSpotRecord>(spot);
    std::string name = model::ParkingNameText(model::ParkingNameCode(record));
    if (name.empty()) name = "parking spot";
    return name + ' ' + std::to_string(model::ParkingNumber(record));
}

std::string PositionText(model::LatLon position) {
    char text[80];
    std::snprintf(text, sizeof text, "%.*f north, %.*f east", kDegreeDecimals, position.lat * model::kDegreesPerRadian,
                  kDegreeDecimals, 0 - position.lon * model::kDegreesPerRadian);
    return text;
}

// The message's lines, indented and wrapped.
std::string MessageText(std::string_view message) {
    std::string text;
    while (!message.empty()) {
        const size_t end = std::min(message.find("\r\n"), message.size());
        text += Wrapped(message.substr(0, end), "    ");
        message.remove_prefix(std::min(end + 2, message.size()));
    }
    return text;
}

// Reads the airport and finds its faults. False, with *error, when the file holds no such airport.
bool ExamineFile(const std::string& path, const std::string& shownName, const Arguments& arguments, FileResult* result,
                 std::string* error) {
    result->file = shownName;
    if (!OpenNamedAirport(path, arguments, "", error)) return false;
    result->airport = model::state.icao.empty() ? "airport without identifier" : model::state.icao;
    result->reports = ListFaults();
    return true;
}

void WriteFile(JsonWriter* json, const FileResult& result) {
    OpenObject(json);
    Key(json, "file");
    WriteText(json, result.file);
    Key(json, "airport");
    if (result.airport.empty())
        WriteNull(json);
    else
        WriteText(json, result.airport);
    Key(json, "faults");
    WriteFaults(json, result.reports);
    CloseObject(json);
}

ToolResult ExamineOne(const std::string& path, const Arguments& arguments) {
    FileResult result;
    std::string error;
    if (!ExamineFile(path, path, arguments, &result, &error)) return Failure(error);
    const int status = result.reports.empty() ? 0 : kHasFaults;
    if (HasOption(arguments, "--json")) {
        JsonWriter json;
        WriteFile(&json, result);
        return { status, json.text + '\n', "" };
    }
    std::string text = result.airport + ": " + SummarizeFaults(result.reports) + '\n';
    return { status, text + DescribeFaults(result.reports), "" };
}

ToolResult ExamineFolder(const std::string& folder, const Arguments& arguments) {
    const std::vector<platform::FileEntry> entries = platform::ListFiles(folder, ".bgl");
    if (entries.empty()) return Failure("no scenery files in '" + folder + "'");
    const bool asJson = HasOption(arguments, "--json");
    ToolResult answer;
    JsonWriter json;
    OpenArray(&json);
    for (const platform::FileEntry& entry : entries) {
        FileResult result;
        std::string error;
        const bool hasAirport = ExamineFile(folder + '/' + entry.name, entry.name, arguments, &result, &error);
        if (!result.reports.empty()) answer.status = kHasFaults;
        LineBreak(&json);
        WriteFile(&json, result);
        answer.output += entry.name + ": ";
        answer.output += hasAirport ? result.airport + ": " + SummarizeFaults(result.reports) : "no such airport";
        answer.output += '\n';
    }
    CloseArray(&json);
    if (asJson) answer.output = json.text + '\n';
    return answer;
}

}  // namespace

Reports ListFaults() {
    faults::FaultSearch search;
    Reports reports;
    FaultReport report;
    while (FindNextFault(&search, &report) == faults::SearchResult::Fault) reports.push_back(std::move(report));
    return reports;
}

std::string ObjectName(const SceneryObject* object) {
    switch (KindOf(object)) {
    case model::kTaxiNode: return NodeName(object);
    case model::kTaxiLink: return LinkName(object);
    case model::kParkingSpot: return SpotName(object);
    case model::kRunway: return "runway " + RunwayName(object);
    case model::kApron: return "apron";
    default: return "object";
    }
}

std::string SummarizeFaults(const Reports& reports) {
    if (reports.empty()) return "no faults";
    std::string text = std::to_string(reports.size()) + (reports.size() == 1 ? " fault" : " faults");
    const char* separator = ": ";
    for (int i = 0; i < faults::kCheckCount; ++i) {
        const auto check = static_cast<faults::FaultCheck>(i);
        const auto count = std::count_if(reports.begin(), reports.end(), [&](auto& r) { return r.check == check; });
        if (count == 0) continue;
        text += separator + std::to_string(count) + ' ' + CheckName(check);
        separator = ", ";
    }
    return text;
}

std::string DescribeFaults(const Reports& reports) {
    const auto places = ListPlaces();
    std::string text;
    for (size_t i = 0; i < reports.size(); ++i) {
        const FaultReport& report = reports[i];
        text += '\n' + std::to_string(i + 1) + ". " + CheckName(report.check) + " at " + PositionText(report.position) +
                '\n' + MessageText(report.message);
        std::string objects = "Objects: ";
        for (const SceneryObject* object : report.objects) {
            if (object != report.objects.front()) objects += ", ";
            objects += std::to_string(places.at(object)) + ' ' + ObjectName(object);
        }
        text += Wrapped(objects, "    ");
    }
    return text;
}

void WriteFaults(JsonWriter* json, const Reports& reports) {
    const auto places = ListPlaces();
    OpenArray(json);
    for (const FaultReport& report : reports) {
        LineBreak(json);
        OpenObject(json);
        Key(json, "check");
        WriteText(json, CheckName(report.check));
        Key(json, "message");
        WriteText(json, report.message);
        Key(json, "north");
        WriteFixed(json, report.position.lat * model::kDegreesPerRadian, kDegreeDecimals);
        Key(json, "east");
        WriteFixed(json, 0 - report.position.lon * model::kDegreesPerRadian, kDegreeDecimals);
        Key(json, "objects");
        OpenArray(json);
        for (const SceneryObject* object : report.objects) {
            OpenObject(json);
            Key(json, "position");
            WriteInteger(json, places.at(object));
            Key(json, "name");
            WriteText(json, ObjectName(object));
            CloseObject(json);
        }
        CloseArray(json);
        CloseObject(json);
    }
    CloseArray(json);
}

ToolResult RunFaults(const Arguments& arguments) {
    const std::string& path = arguments.operands[0];
    return platform::FolderExists(path) ? ExamineFolder(path, arguments) : ExamineOne(path, arguments);
}

}  // namespace cli
