// Adding rows to the main monitor must cost the same at 10,000 rows as at the start: the
// monitor runs all day and is saved and cleared only past 10,000 rows.
//
// Each iteration fills one main monitor from 0 to 10,000 rows and times two windows of it,
// rows 0-1,000 and rows 9,000-10,000, in processor time of this thread, so that both windows
// see the same memory and the same neighbours on a shared machine.
#include <benchmark/benchmark.h>
#include <time.h>

#include <memory>
#include <string>
#include <vector>

#include "app/program.h"
#include "bench/disk_file_system.h"
#include "bench/quiet_services.h"
#include "bench/ratios.h"
#include "mainwindow/main_window_model.h"

namespace bench {
namespace {

// Stands in for the list view: takes the new row count on every change, as the real view does.
class CountingView {
public:
    explicit CountingView(base::TableModel& rows) : m_rows(rows) {
        rows.SetChangeListener([this](bool) { benchmark::DoNotOptimize(m_count = m_rows.RowCount()); });
    }

private:
    base::TableModel& m_rows;
    std::size_t m_count = 0;
};

const std::vector<std::string>& Rows() {
    static const std::vector<std::string> rows = [] {
        std::vector<std::string> texts;
        for (int i = 0; i < 1000; ++i) {
            texts.push_back("[2005/06/22 09:05:03]  使用中のファイル : C:\\共有\\資料" + std::to_string(i) +
                            ".xls USER : tanaka");
        }
        return texts;
    }();
    return rows;
}

double ThreadSeconds() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

// Appends the next thousand rows; returns the processor seconds it took.
double AppendThousand(mainwindow::MainWindowModel& model) {
    const double start = ThreadSeconds();
    for (const auto& row : Rows()) model.AddMonitorRow(row);
    return ThreadSeconds() - start;
}

void MainMonitorRows(benchmark::State& state) {
    app::Program program;
    DiskFileSystem files;
    FixedClock clock;
    NoMessages pump;
    CancelledDialogs dialogs;
    double early = 0;
    double late = 0;
    for (auto _ : state) {
        mainwindow::MainWindowModel model(program, {files, clock, pump, dialogs});
        CountingView view(model.List(mainwindow::ListId::lstvMain));
        early += AppendThousand(model);
        for (int thousand = 1; thousand < 9; ++thousand) AppendThousand(model);
        late += AppendThousand(model);
    }
    state.counters["rows_0_1000_us"] = benchmark::Counter(early * 1e6, benchmark::Counter::kAvgIterations);
    state.counters["rows_9000_10000_us"] = benchmark::Counter(late * 1e6, benchmark::Counter::kAvgIterations);
}
BENCHMARK(MainMonitorRows)->Iterations(300)->Repetitions(5)->ReportAggregatesOnly()->Unit(benchmark::kMicrosecond);

const bool kRatio = AddRatio({"main monitor: rows 9,000-10,000 / rows 0-1,000", "MainMonitorRows:rows_9000_10000_us",
                              "MainMonitorRows:rows_0_1000_us", 1.2});

}  // namespace
}  // namespace bench
