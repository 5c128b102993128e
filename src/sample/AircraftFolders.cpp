// AircraftFolders.cpp - see AircraftFolders.h.
//
// Each aircraft has a folder with aircraft.cfg (one [fltsim.N] section a paint scheme) and a model folder
// with model.cfg and the model file, of which only the head is real: it holds the radius in metres.
#include "sample/AircraftFolders.h"

#include <span>

#include "bgl/ByteWriter.h"

namespace sample {

namespace {

struct Variation {
    const char* name;     // paint scheme
    const char* airline;  // call sign; "" for a private aircraft
    const char* types;    // parking types
    const char* codes;    // parking codes
    const char* model = "";
};

struct Aircraft {
    const char* folder;
    const char* manufacturer;
    const char* type;
    const char* atcType;
    const char* modelFile;
    uint32_t radius;  // metres
    bool heavy;
    std::vector<Variation> variations;
};

const std::vector<Aircraft>& AllAircraft() {
    static const std::vector<Aircraft> all = {
        { "b737_400",
          "Boeing",
          "737-400",
          "BOEING",
          "boeing737-400",
          18,
          false,
          { { "Alaska Airlines", "ALASKA", "GATE", "ASA" },
            { "United Airlines", "UNITED", "GATE", "UAL" },
            { "KLM", "KLM", "GATE", "KLM" },
            { "House colours", "", "GATE", "" } } },
        { "b737_700",
          "Boeing",
          "737-700",
          "BOEING",
          "boeing737-700",
          17,
          false,
          { { "Southwest Airlines", "SOUTHWEST", "GATE", "SWA" }, { "WestJet", "WESTJET", "GATE", "WJA" } } },
        { "b747_400",
          "Boeing",
          "747-400",
          "BOEING",
          "boeing747-400",
          35,
          true,
          { { "British Airways", "SPEEDBIRD", "GATE", "BAW" },
            { "Northwest Airlines", "NORTHWEST", "GATE", "NWA,KLM" },
            { "Cargolux", "CARGOLUX", "CARGO", "CLX", "cargo" } } },
        { "b757_200",
          "Boeing",
          "757-200",
          "BOEING",
          "boeing757-200",
          24,
          false,
          { { "Delta Air Lines", "DELTA", "GATE", "DAL" }, { "UPS", "UPS", "CARGO", "UPS" } } },
        { "b777_300",
          "Boeing",
          "777-300",
          "BOEING",
          "boeing777-300",
          36,
          true,
          { { "Singapore Airlines", "SINGAPORE", "GATE", "SIA" },
            { "All Nippon Airways", "ALL NIPPON", "GATE", "ANA" } } },
        { "a320",
          "Airbus",
          "A320-200",
          "AIRBUS",
          "a320",
          19,
          false,
          { { "Air Canada", "AIR CANADA", "GATE", "ACA" }, { "Frontier", "FRONTIER FLIGHT", "GATE", "FFT" } } },
        { "crj700",
          "Bombardier",
          "CRJ-700",
          "CANADAIR",
          "crj700",
          15,
          false,
          { { "Horizon Air", "HORIZON AIR", "GATE,RAMP", "QXE,ASA" }, { "SkyWest", "SKYWEST", "GATE,RAMP", "SKW" } } },
        { "dash8_100",
          "de Havilland Canada",
          "Dash 8-100",
          "DEHAVILLAND",
          "dash8",
          13,
          false,
          { { "Jazz", "JAZZ", "GATE,RAMP", "JZA" }, { "Horizon Air", "HORIZON AIR", "GATE,RAMP", "QXE" } } },
        { "dc10_30f",
          "McDonnell Douglas",
          "DC-10-30F",
          "DOUGLAS",
          "dc10f",
          29,
          true,
          { { "FedEx", "FEDEX", "CARGO", "FDX" } } },
        { "c172",
          "Cessna",
          "172SP Skyhawk",
          "CESSNA",
          "c172",
          6,
          false,
          { { "Blue stripes", "", "RAMP", "" },
            { "Red stripes", "", "RAMP", "" },
            { "Flying club", "", "RAMP", "" } } },
        { "beech_king_air_350",
          "Raytheon",
          "King Air 350",
          "BEECHCRAFT",
          "king_air_350",
          10,
          false,
          { { "White and gold", "", "RAMP", "" }, { "Air ambulance", "", "RAMP", "" } } },
        { "dhc2_beaver",
          "de Havilland Canada",
          "DHC-2 Beaver",
          "DEHAVILLAND",
          "beaver",
          9,
          false,
          { { "Harbour Air", "HARBOUR EXPRESS", "DOCK", "HRB", "floats" }, { "Wheels", "", "RAMP", "" } } },
        { "c17",
          "Boeing",
          "C-17A",
          "BOEING",
          "c17",
          30,
          true,
          { { "62nd Airlift Wing", "REACH", "MIL_CARGO", "RCH" } } },
    };
    return all;
}

std::vector<uint8_t> BytesOf(const std::string& text) { return { text.begin(), text.end() }; }

std::string VariationText(const Aircraft& aircraft, const Variation& variation, size_t number) {
    const auto line = [](const char* key, const std::string& value) { return std::string(key) + "=" + value + "\r\n"; };
    const std::string title = std::string(aircraft.manufacturer) + " " + aircraft.type + " " + variation.name;
    std::string text = "[fltsim." + std::to_string(number) + "]\r\n";
    text += line("title", title);
    text += line("sim", aircraft.folder);
    text += line("model", variation.model);
    text += line("panel", "");
    text += line("sound", "");
    text += line("texture", number == 0 ? "" : std::to_string(number));
    text += line("kb_checklists", std::string(aircraft.folder) + "_check");
    text += line("kb_reference", std::string(aircraft.folder) + "_ref");
    text += line("atc_id", "N70" + std::to_string(number) + "TV");
    text += line("atc_airline", variation.airline);
    text += line("atc_flight_number", variation.airline[0] != '\0' ? std::to_string(1120 + number) : "");
    text += line("atc_heavy", aircraft.heavy ? "1" : "0");
    text += line("atc_parking_types", variation.types);
    text += line("atc_parking_codes", variation.codes);
    text += line("ui_manufacturer", aircraft.manufacturer);
    text += line("ui_type", aircraft.type);
    text += line("ui_variation", variation.name);
    text += line("description", "Sample aircraft.\\nIt has no shape: only what an editor of traffic reads.");
    return text + "\r\n";
}

std::string ConfigText(const Aircraft& aircraft) {
    std::string text;
    size_t number = 0;
    for (const Variation& variation : aircraft.variations) text += VariationText(aircraft, variation, number++);
    text += "[General]\r\natc_type=" + std::string(aircraft.atcType) + "\r\natc_model=" + aircraft.type +
            "\r\neditable=0\r\nperformance=\r\n";
    return text;
}

// The start of a model file up to its bounding box.
std::vector<uint8_t> ModelBytes(uint32_t radius) {
    constexpr uint32_t kHeadSize = 32, kChunksOffset = 52, kVersion = 2304, kBoxSize = 28;
    bgl::ByteWriter out;
    const auto tag = [&](const char* name) { bgl::PutBytes(&out, name, 4); };
    tag("RIFF");
    bgl::Put(&out, uint32_t{ 0 });  // size of the file less 8, below
    tag("MDL8");
    tag("MDLH");
    for (const uint32_t word : { kHeadSize, 0u, 0u, radius, 0u, 0u, kChunksOffset }) bgl::Put(&out, word);
    tag("FS80");
    bgl::Put(&out, kVersion);
    tag("BBOX");
    bgl::Put(&out, kBoxSize);
    const auto half = static_cast<float>(radius);
    for (const float corner : { -half, -2.0f, -half, half, 6.0f, half }) bgl::Put(&out, corner);
    bgl::Put(&out, uint32_t{ 0 });
    bgl::PutAt(&out, 4, static_cast<uint32_t>(out.bytes.size() - 8));
    return std::move(out.bytes);
}

void AddModel(const Aircraft& aircraft, const std::string& variant, std::vector<MadeFile>* files) {
    const std::string folder =
        std::string("Aircraft\\") + aircraft.folder + "\\model" + (variant.empty() ? "" : "." + variant) + "\\";
    const std::string name = aircraft.modelFile + (variant.empty() ? "" : "_" + variant);
    files->push_back({ folder + "Model.cfg", BytesOf("[models]\r\nnormal=" + name + "\r\n") });
    files->push_back({ folder + name + ".mdl", ModelBytes(aircraft.radius) });
}

}  // namespace

std::vector<MadeFile> AircraftFiles() {
    std::vector<MadeFile> files;
    for (const Aircraft& aircraft : AllAircraft()) {
        files.push_back(
            { std::string("Aircraft\\") + aircraft.folder + "\\aircraft.cfg", BytesOf(ConfigText(aircraft)) });
        AddModel(aircraft, "", &files);
        for (const Variation& variation : aircraft.variations) {
            if (variation.model[0] != '\0') AddModel(aircraft, variation.model, &files);
        }
    }
    return files;
}

}  // namespace sample
