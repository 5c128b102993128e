// FakeProgress.h - the progress box as tests see it.
#pragma once

#include <functional>
#include <string>
#include <vector>

struct FakeProgress {
    std::vector<std::string> texts;
    std::vector<int> positions;
    int shown = 0;                        // calls that showed it
    int closed = 0;                       // calls that closed it
    std::function<void(int)> onPosition;  // called for each position, to change the world in the middle of a scan
};

extern FakeProgress fakeProgress;
