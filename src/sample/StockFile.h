// StockFile.h - packs many airports and navaids into one file, as the simulator's own files are.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "bgl/FileBuilder.h"
#include "bgl/NameList.h"
#include "bgl/RecordIds.h"
#include "model/SceneryObject.h"

namespace sample {

constexpr uint64_t kSampleFileTime = 127039104000000000;  // FILETIME of 29 July 2003: the same bytes every time

struct IndexedNavaid {
    std::string ident;  // decoded, for sorting
    uint32_t identWord = 0, regionWord = 0;
    model::EncodedPoint position;
};

struct StockFile {
    bgl::SectionContent airports{ bgl::kAirportSection, bgl::kByCell, {} };
    bgl::SectionContent vors{ bgl::kVorSection, bgl::kByCell, {} };
    bgl::SectionContent markers{ bgl::kMarkerSection, bgl::kByCell, {} };
    bgl::SectionContent ndbs{ bgl::kNdbSection, bgl::kByCell, {} };
    std::vector<IndexedNavaid> vorIndex, ndbIndex;
    std::vector<bgl::NamedAirport> names;
};

// Adds the airport of the model with its ILSs. False, with *error saying why, when it cannot be written.
bool AddModelAirport(StockFile* file, std::string* error);

// Adds an ILS, VOR, marker or NDB. The object stays the caller's.
void AddNavaid(StockFile* file, model::SceneryObject* navaid);

bool IsEmpty(const StockFile& file);

// False when the airports have more different names than a name list can number.
bool BuildStockFile(const StockFile& file, std::vector<uint8_t>* bytes);

}  // namespace sample
