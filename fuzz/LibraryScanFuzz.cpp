// Any bytes as a file of the scenery library: the airports of the index can be told apart and found again.
#include <cstddef>

#include "bgl/AirportIndex.h"
#include "bgl/LibraryScan.h"
#include "fakes/FakePlatform.h"
#include "FuzzFolder.h"
#include "SavedAirport.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    ResetFakes();
    bgl::ReleaseLibrary();
    const std::string path = PutFuzzFile("scanned.bgl", data, size);
    const bool found = bgl::CollectAirportsFromFile(path);
    Require(found || bgl::library.airports.empty(), "a refused file leaves no airports");
    Require(fake.messages.size() == (found ? 0u : 1u), "a refusal says why, once");
    for (const bgl::AirportIndexEntry& airport : bgl::library.airports) {
        Require(airport.file < bgl::library.files.size(), "an airport lies in a file");
        Require(airport.name.find_first_of("|\r\n") == std::string_view::npos, "names are one line");
    }
    Require(bgl::AirportsInTreeOrder().size() == bgl::library.airports.size(), "each hangs on the tree once");
    return 0;
}
