// Any bytes as Scenery.cfg, as the airports of the index cache, and as a pair of cache files.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "bgl/AirportIndex.h"
#include "bgl/IndexCache.h"
#include "bgl/SceneryAreas.h"
#include "platform/IniText.h"

namespace {

using bgl::library;

void Require(bool holds) {
    if (!holds) std::abort();
}

bgl::CacheTexts Compose() {
    for (int step = 0; step < bgl::kTreeSteps; ++step) bgl::BuildPlacesStep(step);
    return bgl::ComposeCaches();
}

void ReadBack(const bgl::CacheTexts& texts) {
    bgl::ReleaseLibrary();
    Require(bgl::ParseFileList(texts, "C:\\FS9") == bgl::CacheState::Checked);
    for (bgl::SceneryFile& file : library.files) file.present = true;
    bgl::ParseAirportIndex(texts.airportIndex);
}

// Bytes as caches without check sums, or with wrong ones.
void ReadUnchecked(const std::string& text) {
    const bgl::CacheState state = bgl::ParseFileList({ text, text }, "C:\\FS9");
    Require(state != bgl::CacheState::Checked);
    Require(state == bgl::CacheState::Unchecked || library.files.empty());
    for (bgl::SceneryFile& file : library.files) file.present = true;
    bgl::ParseAirportIndex(text);
    bgl::DoubtFilesWithoutAirports();
    bgl::ReleaseLibrary();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    for (const auto& area : bgl::ParseSceneryAreas(platform::DecodeIniText({ data, size }), "C:\\FS9")) {
        Require(!area.folder.empty());
    }
    const std::string text(reinterpret_cast<const char*>(data), size);
    bgl::ReleaseLibrary();
    ReadUnchecked(text);
    for (const char* path : { "C:\\a.bgl", "C:\\b.bgl" }) {
        bgl::SceneryFile& file = library.files[bgl::FileNumberOf(path)];
        file.kind = bgl::FileKind::AddOn;
        file.present = true;
    }
    bgl::ParseAirportIndex(text);
    const size_t airports = library.airports.size();
    const bgl::CacheTexts first = Compose();
    Require(bgl::AirportsInTreeOrder().size() == airports);
    ReadBack(first);
    const bgl::CacheTexts second = Compose();
    Require(second.fileList == first.fileList && second.airportIndex == first.airportIndex);
    return 0;
}
