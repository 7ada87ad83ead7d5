// netstat_bench: the NETSTAT tab's refresh (both tables read, every row made and put into the
// list) against a floor that makes the same table calls (size query and fill of GetTcpTable,
// then of GetUdpTable) and nothing else. Rounds alternate between the two; each side's time is
// its median round. Prints the row count, both times and the ratio; exits 1 above the limit.
//
//   netstat_bench.exe [ROUNDS] [LIMIT]     defaults 30 and 1.3
#include <winsock2.h>
#include <windows.h>
#include <iphlpapi.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "base/table_model.h"
#include "network/connection_table.h"
#include "platform/dialogs.h"
#include "platform/win32/ip_helper.h"

namespace {

using Clock = std::chrono::steady_clock;

// A message box here means the refresh failed: say so and stop.
class FailingDialogs : public platform::IDialogs {
public:
    int ShowMessage(const std::string& text, const std::string&, unsigned) override {
        std::printf("the refresh failed: %s\n", text.c_str());
        std::exit(2);
    }
    std::optional<std::string> SaveFile(const platform::SaveFileRequest&) override { return std::nullopt; }
    std::optional<base::Colour> ChooseColour() override { return std::nullopt; }
    void SetClipboardText(const std::string&) override {}
};

// Both tables the way the system is asked for them, with no rows made.
void Floor() {
    for (int table = 0; table < 2; ++table) {
        ULONG size = 0;
        const auto call = [&](void* buffer) {
            return table == 0 ? GetTcpTable(static_cast<MIB_TCPTABLE*>(buffer), &size, FALSE)
                              : GetUdpTable(static_cast<MIB_UDPTABLE*>(buffer), &size, FALSE);
        };
        if (call(nullptr) != ERROR_INSUFFICIENT_BUFFER) std::exit(2);
        std::vector<std::uint64_t> buffer(size / sizeof(std::uint64_t) + 1);
        size = static_cast<ULONG>(buffer.size() * sizeof(std::uint64_t));
        if (call(buffer.data()) != NO_ERROR) std::exit(2);
    }
}

double Seconds(Clock::duration duration) { return std::chrono::duration<double>(duration).count(); }

template <typename Body>
double Time(Body&& body) {
    const auto start = Clock::now();
    body();
    return Seconds(Clock::now() - start);
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

}  // namespace

int main(int argc, char** argv) {
    const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 30;
    const double limit = argc > 2 ? std::atof(argv[2]) : 1.3;
    FailingDialogs dialogs;
    platform::win32::IpHelper ipHelper;
    base::TableModel list;
    network::ConnectionTablePage page(dialogs, ipHelper, list, nullptr);
    page.Refresh();  // warms both paths
    Floor();
    std::vector<double> refresh, floor;
    for (int round = 0; round < rounds; ++round) {
        floor.push_back(Time(Floor));
        refresh.push_back(Time([&] { page.Refresh(); }));
    }
    const double refreshTime = Median(refresh);
    const double floorTime = Median(floor);
    const double ratio = refreshTime / floorTime;
    std::printf("netstat refresh: %zu rows, refresh %.3f ms, floor %.3f ms (medians of %d rounds)\n",
                list.RowCount(), refreshTime * 1000, floorTime * 1000, rounds);
    std::printf("ratio: %.2f (limit %.2f)\n", ratio, limit);
    return ratio <= limit ? 0 : 1;
}
