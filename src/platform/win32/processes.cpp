#include "platform/win32/processes.h"

#include <windows.h>
#include <psapi.h>

#include <algorithm>
#include <vector>

#include "base/text_encoding.h"
#include "base/win32/unique_resource.h"

namespace platform::win32 {
namespace {

constexpr DWORD kQueryAccess = PROCESS_QUERY_INFORMATION | PROCESS_VM_READ;  // 0x410
constexpr DWORD kModuleSlots = 1000;
// The call is told 500 bytes; the program's text it fills holds 256.
constexpr DWORD kNameBufferSize = 500;
constexpr DWORD kNameTextSize = 256;

base::UniqueHandle OpenForQuery(std::uint32_t id) { return base::UniqueHandle(OpenProcess(kQueryAccess, FALSE, id)); }

}  // namespace

void Processes::EnumProcessIds(std::span<std::uint32_t> ids, std::uint32_t& bytesFilled) {
    DWORD filled = 0;
    const auto size = static_cast<DWORD>(ids.size_bytes());
    if (K32EnumProcesses(reinterpret_cast<DWORD*>(ids.data()), size, &filled)) bytesFilled = filled;
}

std::optional<std::string> Processes::FirstModulePath(std::uint32_t id) {
    const base::UniqueHandle process = OpenForQuery(id);
    if (!process) return std::nullopt;
    // The module array has 1000 slots, but the call is told 1000 bytes, as the program always did.
    std::vector<HMODULE> modules(kModuleSlots);
    DWORD needed = 0;
    if (!K32EnumProcessModules(process.Get(), modules.data(), kModuleSlots, &needed)) return std::nullopt;
    char name[kNameBufferSize]{};
    const DWORD length = K32GetModuleFileNameExA(process.Get(), modules[0], name, kNameBufferSize);
    return base::AnsiToUtf8(std::string_view(name, std::min(length, kNameTextSize)));
}

std::uint64_t Processes::WorkingSetBytes(std::uint32_t id) {
    const base::UniqueHandle process = OpenForQuery(id);
    if (!process) return 0;
    PROCESS_MEMORY_COUNTERS counters{};
    if (!K32GetProcessMemoryInfo(process.Get(), &counters, sizeof counters)) return 0;
    return counters.WorkingSetSize;
}

void Processes::Terminate(std::int32_t id) {
    const base::UniqueHandle process(OpenProcess(PROCESS_TERMINATE, FALSE, static_cast<DWORD>(id)));
    if (process) TerminateProcess(process.Get(), static_cast<UINT>(-1));
}

}  // namespace platform::win32
