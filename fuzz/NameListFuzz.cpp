// Any bytes as a name list. What its entries say can be written, and reads back.
#include <cstddef>
#include <vector>

#include "bgl/NameList.h"
#include "SavedAirport.h"

namespace {

std::vector<bgl::NamedAirport> EntriesOf(bgl::Bytes bytes) {
    std::vector<bgl::NamedAirport> entries;
    bgl::NameListView list;
    if (!bgl::OpenNameList(bytes, &list)) return entries;
    for (uint32_t i = 0; i < list.airportCount && i < 64; ++i) entries.push_back(bgl::NameListEntry(list, i));
    return entries;
}

// A string in a list ends at its first zero.
bool CanBeWritten(const bgl::NamedAirport& entry) {
    return (entry.country + entry.state + entry.city + entry.name).find('\0') == std::string::npos;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::vector<bgl::NamedAirport> entries = EntriesOf({ data, size });
    for (const bgl::NamedAirport& entry : entries) Require(CanBeWritten(entry), "strings end where the list says");
    if (entries.empty()) return 0;
    bgl::ByteWriter out;
    Require(bgl::WriteNameList(entries, &out), "64 airports have few strings");
    const std::vector<bgl::NamedAirport> again = EntriesOf(out.bytes);
    Require(again.size() == entries.size(), "every airport is written");
    for (size_t i = 0; i < entries.size(); ++i) {
        const bgl::NamedAirport &a = entries[i], &b = again[i];
        Require(a.country == b.country && a.state == b.state && a.city == b.city && a.name == b.name,
                "names come back");
        Require(a.ident == b.ident, "the identifier comes back");
    }
    return 0;
}
