// StockFiles.h - which of the simulator's own files hold airports and navaids near a position.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/Records.h"

namespace bgl {

// The airport files, then the navaid files, that hold something in the block of one of the points
// (3.75 by 2.8125 degrees); each path once. The region folders of a simulator are listed on the first
// call for it and remembered; while they hold no airport file or no navaid file, every call lists them afresh.
std::vector<std::string> StockFilesAt(const std::string& simulatorFolder, std::span<const model::EncodedPoint> points);

// Whether a file of that path is one of the simulator's own: in the scenery folder of a region, with a name that begins
// as one of their kinds does. Any spelling of the path counts, and there need be no such file.
bool IsStockSceneryPath(std::string_view path, const std::string& simulatorFolder);

// The next call lists the folders again: for tests, whose folders change.
void ForgetStockFiles();

}  // namespace bgl
