// process_tab_bench: what the process tab costs beyond the system calls it cannot avoid, under
// Wine or Windows. Two ratios of wall times (the system calls go to another process under Wine,
// so CPU time of this one would miss them), each against a floor program's part made of exactly
// the calls the tab makes:
//   tick:    a tmrTASK refresh while the number of processes stays the same, against the same
//            doubling EnumProcesses calls;                                          limit 1.2
//   rebuild: a full rebuild with icons into a real list view, against the same per-process calls
//            (open, modules, file name, memory counters, shell icon drawn into a picture); limit 1.3
// Program and floor run in turn so that the machine's load falls on both; each ratio is that of
// their fastest runs, the ones the load disturbed least. Prints the process count and both ratios; exits 1 when one is over its limit.
#include <windows.h>
#include <psapi.h>
#include <shellapi.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <vector>

#include "app/settings.h"
#include "base/win32/unique_resource.h"
#include "base/win32/window.h"
#include "mainwindow/list_columns.h"
#include "mainwindow/main_window_model.h"
#include "mainwindow/win32/virtual_list_view.h"
#include "platform/win32/clock.h"
#include "platform/win32/dialogs.h"
#include "platform/win32/file_system.h"
#include "platform/win32/icon_list.h"
#include "platform/win32/message_pump.h"
#include "platform/win32/processes.h"
#include "processes/process_list.h"

namespace {

using Clock = std::chrono::steady_clock;

double Seconds(const std::function<void()>& run) {
    const auto start = Clock::now();
    run();
    return std::chrono::duration<double>(Clock::now() - start).count();
}

// Program and floor one run each in turn, `runs` times; the ratio of their fastest runs.
double Ratio(const char* name, const std::function<void()>& program, const std::function<void()>& floor, int runs,
             double limit) {
    double fastestProgram = 1e9, fastestFloor = 1e9;
    for (int i = 0; i < runs; ++i) {
        fastestProgram = std::min(fastestProgram, Seconds(program));
        fastestFloor = std::min(fastestFloor, Seconds(floor));
    }
    const double ratio = fastestProgram / fastestFloor;
    std::printf("%s: program %.1f us, floor %.1f us, ratio %.2f (limit %.1f)\n", name, fastestProgram * 1e6,
                fastestFloor * 1e6, ratio, limit);
    return ratio;
}

// The floor's EnumProcesses: the tab's doubling buffer, nothing else.
std::vector<DWORD> EnumerateFloor() {
    DWORD size = 4, needed = 96;
    std::vector<DWORD> ids;
    while (size <= needed) {
        size *= 2;
        ids.assign(size / 4, 0);
        K32EnumProcesses(ids.data(), size, &needed);
    }
    ids.resize(needed / 4);
    return ids;
}

// The floor's per-process calls of a rebuild, and the shell icon of each path drawn into a picture.
void RebuildFloor(HDC picture) {
    for (const DWORD id : EnumerateFloor()) {
        HANDLE process = OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, id);
        HMODULE modules[125];
        DWORD needed = 0;
        char path[500] = "";
        if (process && K32EnumProcessModules(process, modules, 1000, &needed)) {
            K32GetModuleFileNameExA(process, modules[0], path, sizeof path);
            const base::UniqueHandle again(OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, id));
            PROCESS_MEMORY_COUNTERS counters{};
            K32GetProcessMemoryInfo(again.Get(), &counters, sizeof counters);
        }
        if (process) CloseHandle(process);
        if (!path[0]) continue;
        SHFILEINFOA info{};
        if (const auto list = reinterpret_cast<HIMAGELIST>(SHGetFileInfoA(path, 0, &info, sizeof info, 0x6605)))
            ImageList_Draw(list, info.iIcon, picture, 0, 0, ILD_TRANSPARENT);
    }
}

}  // namespace

int main() {
    app::Program program;
    program.settings = app::DefaultSettings();
    platform::win32::FileSystem files;
    platform::win32::Clock clock;
    platform::win32::MessagePump pump;
    platform::win32::Dialogs dialogs;
    mainwindow::MainWindowModel model(program, {files, clock, pump, dialogs});

    const base::UniqueHwnd parent(CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 800, 600, nullptr, nullptr,
                                                  base::ModuleInstance(), nullptr));
    mainwindow::VirtualListView view(parent.Get(), 1, model.List(mainwindow::ListId::lstvTask),
                                     mainwindow::Columns(mainwindow::ListId::lstvTask), {15, 15}, {0, 0, 800, 600});
    platform::win32::IconList icons(view.Handle());
    platform::win32::Processes processes;
    processes::ProcessListPage page(model, processes, icons, dialogs);
    page.Refresh();
    std::printf("processes: %zu listed, %zu running\n", model.List(mainwindow::ListId::lstvTask).RowCount(),
                EnumerateFloor().size());

    const base::UniqueDc picture(CreateCompatibleDC(nullptr));
    const base::UniqueBitmap bitmap(CreateCompatibleBitmap(base::WindowDc(nullptr).Get(), 16, 16));
    base::SelectedObject drawn(picture.Get(), bitmap.Get());
    const double tick = Ratio("tick", [&] { page.TimerRefresh(); }, [] { EnumerateFloor(); }, 150, 1.2);
    const double rebuild = Ratio(
        "rebuild",
        [&] { processes::ProcessListPage(model, processes, icons, dialogs).Refresh(); },
        [&] { RebuildFloor(picture.Get()); }, 30, 1.3);
    return tick <= 1.2 && rebuild <= 1.3 ? 0 : 1;
}
