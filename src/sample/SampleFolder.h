// SampleFolder.h - makes a folder that looks like an installed simulator, out of real airport data.
#pragma once

#include <string>

namespace sample {

struct SampleOptions {
    std::string target;  // folder to make; what lies there under the same names is replaced
    std::string data;    // folder with airports.csv, runways.csv, navaids.csv and frequencies.csv
};

// The same data gives the same bytes. Uses the model and leaves it empty. False, with *error saying what
// could not be read or written, when the folder is not complete.
bool MakeSampleFolder(const SampleOptions& options, std::string* error);

}  // namespace sample
