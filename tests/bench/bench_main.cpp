// Runs every benchmark, then prints each registered ratio with its limit.
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <cstdio>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "bench/ratios.h"

namespace bench {
namespace {

std::vector<Ratio>& Ratios() {
    static std::vector<Ratio> ratios;
    return ratios;
}

// Keeps the processor time per iteration of every benchmark, and its counters as
// "name:counter", while printing as usual: the median of the repetitions where there are some.
// Processor time, because the machines that run this are shared and wall time carries the
// others' load.
class RecordingReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const auto& run : runs) {
            const std::string& args = run.run_name.args;
            const std::string name = run.run_name.function_name + (args.empty() ? "" : "/" + args);
            const bool median = run.run_type == Run::RT_Aggregate && run.aggregate_name == "median";
            if (!median && (run.run_type != Run::RT_Iteration || medians.count(name))) continue;
            if (median) medians.insert(name);
            times[name] = run.GetAdjustedCPUTime();
            for (const auto& [counter, value] : run.counters) times[name + ":" + counter] = value;
        }
        ConsoleReporter::ReportRuns(runs);
    }
    std::map<std::string, double> times;
    std::set<std::string> medians;
};

}  // namespace

bool AddRatio(Ratio ratio) {
    Ratios().push_back(std::move(ratio));
    return true;
}

}  // namespace bench

int main(int argc, char** argv) {
    // Benchmarks build and free large tables outside their timed sections. The allocator must
    // keep that memory rather than hand it back to the system each time, or the next timed
    // section pays for fresh pages, which has nothing to do with the code measured.
    mallopt(M_TRIM_THRESHOLD, 256 * 1024 * 1024);
    mallopt(M_MMAP_THRESHOLD, 256 * 1024 * 1024);

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
