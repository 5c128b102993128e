// Main.cpp - runs the benchmarks and prints the table of their ratios.
#include "Ratios.h"

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    if (!ratios.empty()) PrintRatios();
}
