// Any bytes as Tarvo2.ini: whatever it says, the settings are in their ranges.
#include <cstddef>

#include "app/Settings.h"
#include "app/SettingsFile.h"
#include "fakes/FakePlatform.h"
#include "FuzzFolder.h"
#include "SavedAirport.h"

namespace {

bool Between(int value, int least, int most) { return value >= least && value <= most; }

void RequireRanges(const app::Settings& settings) {
    Require(Between(settings.latLongFormat, 1, 5), "the coordinate format is one of five");
    Require(Between(settings.showLabels, 0, 2), "labels are none, types or codes");
    Require(Between(settings.latLongGridDivs, 0, 9), "the grid spacing is one of ten");
    Require(settings.nextUpdateNotice >= 0, "no notice lies before the first month");
    Require(settings.previousFiles.size() <= app::kPreviousFiles, "the recent list is not longer than its menu");
    Require(settings.mostUsedSpecs.size() <= app::kMostUsedSpecs, "nor is the list of specs");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    ResetFakes();
    PutFuzzFile("Tarvo2.ini", data, size);
    app::LoadSettings(FuzzFolder());
    RequireRanges(app::settings);
    return 0;
}
