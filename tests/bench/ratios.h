#pragma once
// Benchmarks are judged by ratios of two of their timings, printed after the run: a ratio
// names its numerator and denominator benchmarks and the most it may reach.
#include <string>

namespace bench {

struct Ratio {
    std::string title;
    std::string numerator;    // a benchmark's name with its arguments, or "name:counter"
    std::string denominator;
    double limit;  // 0: printed for information only
};

// Registers a ratio; returns true so that it can initialise a static.
bool AddRatio(Ratio ratio);

}  // namespace bench
