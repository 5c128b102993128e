// Any bytes as a whole scenery file: as the airport's own, and as one with stock navaids.
#include <cstddef>

#include "bgl/Navaids.h"
#include "bgl/SceneryStructure.h"
#include "SavedAirport.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (!bgl::OpenAirportBytes({ data, size }, "")) return 0;
    bgl::SceneryStructure file;
    Require(bgl::ReadStructure(bgl::SourceOfBytes({ data, size }), &file), "a file with an airport is a scenery file");
    bgl::AppendStockNavaids(&file);
    bgl::TieReplacements();
    for (const model::SceneryObject* object = model::state.head; object; object = object->next) {
        Require(!object->related || object->related->related == object, "ties hold on both sides");
    }
    RequireThatTheOpenAirportSurvives();
    return 0;
}
