// Any bytes as an airport record.
#include <cstddef>

#include "bgl/AirportReader.h"
#include "SavedAirport.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    model::ClearModel();
    bgl::ReadAirport({ data, size });
    RequireThatTheOpenAirportSurvives();
    return 0;
}
