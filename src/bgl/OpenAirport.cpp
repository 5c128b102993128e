// OpenAirport.cpp - see OpenAirport.h.
#include "bgl/OpenAirport.h"

#include <algorithm>

#include "bgl/NameList.h"
#include "bgl/Navaids.h"
#include "bgl/SceneryFile.h"
#include "model/ObjectList.h"
#include "platform/Files.h"

namespace bgl {

namespace {

void ReadPlaceNames(SceneryFile* file) {
    NamedAirport names;
    if (!FindNames(file, model::PayloadAs<model::AirportRecord>(model::state.airport).ident, &names)) return;
    model::state.country = names.country;
    model::state.state = names.state;
    model::state.city = names.city;
}

}  // namespace

bool OpenAirport(const AirportPlace& place, const std::string& simulatorFolder) {
    model::ClearModel();
    if (!ReadAirport(place) || !model::state.airport) {
        model::ClearModel();
        return false;
    }
    const platform::FileHandle handle = platform::OpenForReading(place.path);
    SceneryFile file;
    if (handle && ReadStructure(SourceOfFile(handle.get()), &file)) {
        ReadPlaceNames(&file);
        if (!IsStockFileName(place.path)) AppendOwnNavaids(&file);
    }
    if (!simulatorFolder.empty()) LoadStockNavaids(simulatorFolder);
    return true;
}

bool OpenAirportBytes(std::span<const uint8_t> bytes, std::string_view ident) {
    model::ClearModel();
    SceneryFile file;
    AirportPlace place;
    if (!ReadStructure(SourceOfBytes(bytes), &file) || !FindAirport(&file, ident, &place)) return false;
    const Bytes rest = bytes.subspan(static_cast<size_t>(place.offset));
    ReadAirportBytes(rest.first(std::min<size_t>(rest.size(), place.size)));
    if (!model::state.airport) {  // its record is cut short
        model::ClearModel();
        return false;
    }
    ReadPlaceNames(&file);
    AppendOwnNavaids(&file);
    return true;
}

}  // namespace bgl
