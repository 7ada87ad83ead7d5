// Runs every benchmark, then prints each registered ratio with its limit.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <vector>

#include "bench/ratios.h"

namespace bench {
namespace {

std::vector<Ratio>& Ratios() {
    static std::vector<Ratio> ratios;
    return ratios;
}

// Keeps the time per iteration of every run while printing as usual.
class RecordingReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const auto& run : runs) {
            if (run.run_type == Run::RT_Iteration && run.iterations > 0) {
                times[run.benchmark_name()] = run.real_accumulated_time / static_cast<double>(run.iterations);
            }
        }
        ConsoleReporter::ReportRuns(runs);
    }
    std::map<std::string, double> times;
};

}  // namespace

bool AddRatio(Ratio ratio) {
    Ratios().push_back(std::move(ratio));
    return true;
}

}  // namespace bench

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    bench::RecordingReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();

    int over = 0;
    for (const auto& ratio : bench::Ratios()) {
        const auto n = reporter.times.find(ratio.numerator);
        const auto d = reporter.times.find(ratio.denominator);
        if (n == reporter.times.end() || d == reporter.times.end() || d->second <= 0) continue;
        const double value = n->second / d->second;
        if (ratio.limit <= 0) {
            std::printf("ratio %-72s %6.3f (for information)\n", ratio.title.c_str(), value);
            continue;
        }
        const bool ok = value <= ratio.limit;
        over += ok ? 0 : 1;
        std::printf("ratio %-72s %6.3f (at most %.2f) %s\n", ratio.title.c_str(), value, ratio.limit,
                    ok ? "ok" : "OVER");
    }
    return over == 0 ? 0 : 2;
}
