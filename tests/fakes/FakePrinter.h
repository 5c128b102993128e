// FakePrinter.h - the system's printing as tests see it: each step is recorded, how it ends prepared.
#pragma once

#include <string>
#include <vector>

#include "app/PrinterHost.h"

struct FakePrinter {
    std::vector<std::string> steps;  // as they are called in PrinterHost.h
    app::PrintStep asked = app::PrintStep::Done, pageEnd = app::PrintStep::Done, documentEnd = app::PrintStep::Done;
    bool documentBegins = true, pageBegins = true;
    bool open = false, underWay = false;
};

extern FakePrinter fakePrinter;
