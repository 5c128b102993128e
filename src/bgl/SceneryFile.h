// SceneryFile.h - the outer structure of a scenery file: header, section table, subsections.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "bgl/AirportReader.h"
#include "platform/Files.h"

namespace bgl {

constexpr uint32_t kFileMagic = 0x19920201;
constexpr uint32_t kFileHeaderSize = 56;
constexpr uint32_t kSectionEntrySize = 20;
constexpr uint32_t kSubsectionEntrySize = 16;
constexpr uint32_t kRecordHeadSize = 6;

// "AP9", exactly five digits and ".bgl", without regard to case, as the last component of the path.
bool IsStockFileName(std::string_view path);

// Whether the last component of the path begins with "TV2_", without regard to case.
bool IsOwnFileName(std::string_view path);

// Finds the airport with that identifier (without regard to case), or the first airport when `ident` is
// empty. Reads only the header, the tables and the heads of airport records. False when the file cannot
// be opened, is no scenery file, or does not hold it.
bool FindAirportInFile(const std::string& path, std::string_view ident, AirportPlace* place);

}  // namespace bgl
