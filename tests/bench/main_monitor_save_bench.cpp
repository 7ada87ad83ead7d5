// Saving a full main monitor (10,001 rows, the size at which it is saved automatically)
// against writing the same bytes with stdio.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "base/table_model.h"
#include "bench/disk_file_system.h"
#include "bench/quiet_services.h"
#include "bench/ratios.h"
#include "logs/log_writer.h"

namespace bench {
namespace {

// A day of monitoring: traffic rows, open files of other users, session rows.
const base::TableModel& BusyMainMonitor() {
    static const base::TableModel rows = [] {
        base::TableModel table;
        table.AddRow({"Veskar_Lookout v1.01 - Veskar Development"});
        for (int i = 1; i < 10001; ++i) {
            const std::string stamp = "[2005/06/22 09:" + std::to_string(10 + i % 50) + ":03]";
            switch (i % 3) {
                case 0: table.AddRow({stamp + "  送信 : " + std::to_string(i % 977) + " KB  受信 : 3 KB"}); break;
                case 1:
                    table.AddRow({stamp + "  使用中のファイル : C:\\共有\\資料" + std::to_string(i) +
                                  ".xls USER : tanaka"});
                    break;
                default:
                    table.AddRow({stamp + "  PC-" + std::to_string(i % 40) + " (192.168.0." + std::to_string(i % 250) +
                                  ") から接続されています。"});
            }
        }
        return table;
    }();
    return rows;
}

// A program folder of its own in the temporary folder, and a writer over real files.
class SaveFixture {
public:
    SaveFixture() : m_root(std::filesystem::temp_directory_path() / ("lookout-bench-" + std::to_string(::getpid()))) {
        std::filesystem::create_directories(m_root);
    }
    ~SaveFixture() { std::filesystem::remove_all(m_root); }

    void RemoveLogs() { std::filesystem::remove_all(m_root / "logs"); }
    logs::LogWriter& Writer() { return m_writer; }
    std::string Path(const std::string& name) const { return (m_root / name).string(); }
    // The bytes a save of the busy main monitor puts on disk.
    std::string SavedBytes() {
        RemoveLogs();
        m_writer.SaveMainMonitor(BusyMainMonitor());
        return *m_files.ReadAll(Path("logs/20050622-1.txt"));
    }

private:
    std::filesystem::path m_root;
    std::string m_folder = m_root.string() + "/";
    DiskFileSystem m_files;
    FixedClock m_clock;
    NoMessages m_pump;
    logs::LogWriter m_writer{m_folder, {m_files, m_clock, m_pump}};
};

void SaveMainMonitor(benchmark::State& state) {
    SaveFixture fixture;
    const std::size_t size = fixture.SavedBytes().size();
    for (auto _ : state) {
        state.PauseTiming();
        fixture.RemoveLogs();
        state.ResumeTiming();
        fixture.Writer().SaveMainMonitor(BusyMainMonitor());
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * size));
}
BENCHMARK(SaveMainMonitor)->Unit(benchmark::kMicrosecond)->Repetitions(5)->ReportAggregatesOnly();

// Writes pieces of bytes to a fresh file with stdio, once per iteration.
void WriteFresh(benchmark::State& state, const std::string& path, const std::vector<std::string_view>& pieces,
                std::size_t size) {
    for (auto _ : state) {
        state.PauseTiming();
        std::filesystem::remove(path);  // a fresh file, as the save gets
        state.ResumeTiming();
        std::FILE* file = std::fopen(path.c_str(), "wb");
        for (const auto piece : pieces) std::fwrite(piece.data(), 1, piece.size(), file);
        std::fclose(file);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * size));
}

// The floor of any line-by-line writer: the file's lines, already in code page 932, one
// buffered stdio write each. No names to find, nothing to convert, no messages to pump.
void WriteSameBytesRaw(benchmark::State& state) {
    SaveFixture fixture;
    const std::string bytes = fixture.SavedBytes();
    std::vector<std::string_view> lines;
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t next = bytes.find("\r\n", at) + 2;
        lines.push_back(std::string_view(bytes).substr(at, next - at));
        at = next;
    }
    WriteFresh(state, fixture.Path("raw.txt"), lines, bytes.size());
}
BENCHMARK(WriteSameBytesRaw)->Unit(benchmark::kMicrosecond)->Repetitions(5)->ReportAggregatesOnly();

// The whole file in one write: the bare cost of the bytes reaching the disk, for comparison.
void WriteSameBytesAtOnce(benchmark::State& state) {
    SaveFixture fixture;
    const std::string bytes = fixture.SavedBytes();
    WriteFresh(state, fixture.Path("raw.txt"), {bytes}, bytes.size());
}
BENCHMARK(WriteSameBytesAtOnce)->Unit(benchmark::kMicrosecond)->Repetitions(5)->ReportAggregatesOnly();

const bool kRatios[] = {
    AddRatio({"save of a 10,001-row main monitor / the same lines written raw", "SaveMainMonitor",
              "WriteSameBytesRaw", 2.0}),
    AddRatio({"save of a 10,001-row main monitor / the same bytes in one write", "SaveMainMonitor",
              "WriteSameBytesAtOnce", 0.0}),
};

}  // namespace
}  // namespace bench
