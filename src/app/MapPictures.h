// MapPictures.h - "Save Map Picture": what the map shows as a PNG picture or an enhanced metafile.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "map/MapPicture.h"

namespace app {

enum class PictureFormat { Png, Metafile };

// A kind of picture that the save dialog offers.
struct PictureKind {
    PictureFormat format;
    int times;              // as fine as the screen
    std::string label;      // for the list of kinds, with the size of the picture
    const char* extension;  // with its dot
};
std::vector<PictureKind> PictureKinds();  // of the view as it is; the first one is proposed

struct PictureQuestion {
    std::string folder;  // shown first; "" leaves that to the system
    std::string name;    // proposed, without an extension
    std::vector<PictureKind> kinds;
    size_t kind = 0;  // chosen first
};

struct PictureAnswer {
    std::string path;
    size_t kind = 0;
};

// What is written for an answer: the extension ".png" or ".emf" that the user has typed tells the format, whatever kind
// was chosen; to any other name that of the kind is added.
struct PictureTarget {
    std::string path;
    PictureFormat format = PictureFormat::Png;
    int times = 1;
    bool renamed = false;  // the user has not been asked about a file of that name
};
PictureTarget TargetOf(const PictureQuestion& question, const PictureAnswer& answer);

// Asks where to and writes the picture, whole or not at all. Tells whether it did.
bool SaveMapPicture();

}  // namespace app
