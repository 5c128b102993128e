// MainPosix.cpp - the process of tarvo-tool, and what the map asks of the program around it.
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "bgl/LibraryHost.h"
#include "cli/Tool.h"
#include "map/MapHost.h"

namespace map {

void RotationChanged() {}  // no read-out here

void PlaceSimAircraft(model::LatLon, double) {}  // no simulator link here

// No mouse here.
void StartDragTimer() {}
void StopDragTimer() {}
void RequestFeedback() {}
void OpenProperties(model::SceneryObject*) {}
void ShowRemark(std::string_view) {}

}  // namespace map

namespace bgl {

void ShowProgress(const std::string&) {}  // a pipe shows no bar

void SetProgress(int) {}

void CloseProgress() {}

void FinishProgress() {}

}  // namespace bgl

namespace {

// A full disk often shows only when the last bytes leave.
bool Print(const std::string& text) {
    if (text.empty()) return true;
    const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
    return std::fflush(stdout) == 0 && written && std::fclose(stdout) == 0;
}

}  // namespace

int main(int count, char** words) {
    std::signal(SIGPIPE, SIG_IGN);  // a closed pipe is a failed write, not a death
    const std::vector<std::string> arguments(words + (count > 0), words + count);
    const cli::ToolResult result = cli::RunTool(arguments);
    std::fputs(result.errorOutput.c_str(), stderr);
    if (!Print(result.output)) {
        std::fprintf(stderr, "tarvo-tool: cannot write the output: %s\n", std::strerror(errno));
        return cli::kFailed;
    }
    return result.status;
}
