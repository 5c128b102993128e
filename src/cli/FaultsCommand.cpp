// FaultsCommand.cpp - tarvo-tool faults: every report of the fault finder, for one file or a folder of them.
#include "cli/FaultsCommand.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "bgl/OpenAirport.h"
#include "bgl/SceneryStructure.h"
#include "cli/Columns.h"
#include "cli/Verbs.h"
#include "faults/FaultSearch.h"
#include "model/Names.h"
#include "model/ObjectList.h"
#include "model/Records.h"
#include "model/SpotBits.h"
#include "platform/Files.h"
#include "platform/Text.h"

namespace cli {

namespace {

using faults::FaultReport;
using model::SceneryObject;
using Reports = std::vector<FaultReport>;

constexpr int kDegreeDecimals = 6;

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

std::string LinkName(const SceneryObject* link) {
    const auto& payload = model::PayloadAs<model::TaxiLinkPayload>(link);
    constexpr const char* kTypes[] = { "", "taxiway ", "runway ", "parking ", "apron ", "closed " };
    const uint32_t type = model::LinkTypeOf(payload);
    std::string name = std::string(type < std::size(kTypes) ? kTypes[type] : "") + "link";
    const SceneryObject* designator = payload.designator;
    if (designator && KindOf(designator) == model::kRunway) return name + ' ' + model::RunwayName(designator);
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
        text += Wrapped(message.substr(0, end), 4);
        message.remove_prefix(std::min(end + 2, message.size()));
    }
    return text;
}

std::string AirportIdent() { return model::state.icao.empty() ? "airport" : model::state.icao; }

void WriteAirport(JsonWriter* json, const std::string& file, const Reports& reports) {
    OpenObject(json);
    Key(json, "file");
    WriteText(json, file);
    Key(json, "airport");
    WriteText(json, AirportIdent());
    Key(json, "faults");
    WriteFaults(json, reports);
    CloseObject(json);
}

ToolResult ExamineFile(const std::string& path, const Arguments& arguments) {
    std::string error;
    if (!OpenNamedAirport(path, arguments, "", &error)) return Failure(error);
    const Reports reports = ListFaults();
    const int status = reports.empty() ? 0 : kHasFaults;
    if (!HasOption(arguments, "--json"))
        return { status, AirportIdent() + ": " + SummarizeFaults(reports) + '\n' + DescribeFaults(reports), "" };
    JsonWriter json;
    WriteAirport(&json, path, reports);
    return { status, json.text + '\n', "" };
}

// The airports to examine: all of the file, or the one that --ident names.
std::vector<bgl::AirportPlace> WantedAirports(const std::string& path, const Arguments& arguments) {
    if (!HasOption(arguments, "--ident")) return bgl::AirportsInFile(path);
    bgl::AirportPlace place;
    if (!bgl::FindAirportInFile(path, OptionOr(arguments, "--ident", ""), &place)) return {};
    return { place };
}

// "KSEA: 2 faults: ..." of one airport, "31 airports: ..." of more.
std::string SummaryLine(const std::vector<std::string>& idents, const Reports& reports) {
    if (idents.empty()) return "no airport";
    const size_t count = idents.size();
    return (count == 1 ? idents[0] : std::to_string(count) + " airports") + ": " + SummarizeFaults(reports);
}

ToolResult ExamineFolder(const std::string& folder, const Arguments& arguments) {
    const std::vector<platform::FileEntry> entries = platform::ListFiles(folder, ".bgl");
    if (entries.empty()) return Failure("no scenery files in '" + folder + "'");
    ToolResult answer;
    JsonWriter json;
    OpenArray(&json);
    for (const platform::FileEntry& entry : entries) {
        std::vector<std::string> idents;
        Reports ofFile;  // for the summary alone: their objects go with each airport
        for (const bgl::AirportPlace& place : WantedAirports(folder + '/' + entry.name, arguments)) {
            if (!bgl::OpenAirport(place, "")) continue;
            const Reports reports = ListFaults();
            LineBreak(&json);
            WriteAirport(&json, entry.name, reports);
            idents.push_back(AirportIdent());
            ofFile.insert(ofFile.end(), reports.begin(), reports.end());
        }
        if (!ofFile.empty()) answer.status = kHasFaults;
        answer.output += entry.name + ": " + SummaryLine(idents, ofFile) + '\n';
    }
    CloseArray(&json);
    if (HasOption(arguments, "--json")) answer.output = json.text + '\n';
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
    case model::kRunway: return "runway " + model::RunwayName(object);
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
        text += Wrapped(objects, 4);
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
    return platform::FolderExists(path) ? ExamineFolder(path, arguments) : ExamineFile(path, arguments);
}

}  // namespace cli
