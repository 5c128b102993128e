// Any bytes as ParkingSpecs.txt: every spec that is taken has a name and codes that fit a parking spot.
#include <cstddef>

#include "app/ParkingSpecs.h"
#include "fakes/FakePlatform.h"
#include "FuzzFolder.h"
#include "platform/Text.h"
#include "SavedAirport.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    ResetFakes();
    PutFuzzFile("ParkingSpecs.txt", data, size);
    Require(app::LoadParkingSpecs(FuzzFolder()), "the file is there");
    for (const app::ParkingSpec& spec : app::parkingSpecs) {
        Require(!spec.name.empty(), "a spec has a name");
        Require(spec.halfRed == spec.red / 2 && spec.halfBlue == spec.blue / 2, "night colours are half as bright");
        for (const std::string& code : spec.codes) {
            Require(!code.empty() && platform::CharacterCount(code) <= 4, "codes have 1 to 4 characters");
        }
    }
    return 0;
}
