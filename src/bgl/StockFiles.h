// StockFiles.h - which of the simulator's own files hold airports and navaids near a position.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "model/Records.h"

namespace bgl {

// The airport files, then the navaid files, that hold something in the block of one of the points
// (3.75 by 2.8125 degrees); each path once. The region folders of a simulator are listed on the first
// call for it and remembered.
std::vector<std::string> StockFilesAt(const std::string& simulatorFolder, std::span<const model::EncodedPoint> points);

void ForgetStockFiles();  // the next call lists the folders again

}  // namespace bgl
