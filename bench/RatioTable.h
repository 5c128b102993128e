// RatioTable.h - measuring, and the one table of all comparisons that ends a run.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

struct Ratio {
    std::string what;  // "A / B"
    double value = 0;
    double aim = 0;  // at most; 0: none
};
inline std::vector<Ratio> ratios;

inline double SecondsSince(std::chrono::steady_clock::time_point start) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// What disturbs a measurement only makes it longer, so the shortest round is the truest.
template <class Work>
double BestSeconds(int rounds, Work work) {
    double best = 1e9;
    for (int i = 0; i < rounds; ++i) {
        const auto start = std::chrono::steady_clock::now();
        work();
        best = std::min(best, SecondsSince(start));
    }
    return best;
}

inline void PrintRatios() {
    std::printf("\n%-62s %9s %7s\n", "ratio", "measured", "aim");
    for (const Ratio& ratio : ratios) {
        std::printf("%-62s %9.2f", ratio.what.c_str(), ratio.value);
        if (ratio.aim > 0)
            std::printf(" %7.2f%s\n", ratio.aim, ratio.value <= ratio.aim ? "" : "  missed");
        else
            std::printf(" %7s\n", "-");
    }
}
