#include "platform/win32/native_handles.h"

#include <winsock2.h>
#include <windows.h>
#include <iphlpapi.h>
#include <psapi.h>

#include <array>
#include <cstring>
#include <memory>

#include "base/win32/unique_resource.h"
#include "base/win32/wide.h"
#include "platform/win32/table_buffer.h"

namespace platform::win32 {
namespace {

constexpr unsigned long kSystemHandleInformation = 16;
constexpr unsigned long kObjectNameInformation = 1;
constexpr std::uint32_t kStatusNotFound = 0xC0000225;  // the function is missing from ntdll
constexpr long kStatusPending = 0x103;

struct IoStatusBlock {
    union {
        long status;
        void* pointer;
    };
    ULONG_PTR information;
};

// What a transport query that has not finished may still write into.
struct PendingIo {
    IoStatusBlock status{};
    std::array<std::byte, 64> output{};
};

HANDLE AsHandle(OsHandle handle) { return reinterpret_cast<HANDLE>(handle); }
OsHandle AsValue(HANDLE handle) { return reinterpret_cast<OsHandle>(handle); }

template <typename Function>
Function Resolve(HMODULE module, const char* name) {
    return module ? reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name))) : nullptr;
}

// The owner-PID table of one kind, asked until it fits.
std::vector<std::uint64_t> OwnerTable(DWORD (*query)(void*, DWORD*)) {
    std::vector<std::uint64_t> buffer;
    if (ReadTable(buffer, query) != NO_ERROR) buffer.clear();
    return buffer;
}

template <typename Table>
std::vector<PortOwner> Owners(const std::vector<std::uint64_t>& buffer) {
    std::vector<PortOwner> owners;
    if (buffer.empty()) return owners;
    const auto* table = reinterpret_cast<const Table*>(buffer.data());
    for (DWORD i = 0; i < table->dwNumEntries; ++i) {
        owners.push_back({ntohs(static_cast<u_short>(table->table[i].dwLocalPort)), table->table[i].dwOwningPid});
    }
    return owners;
}

}  // namespace

NativeHandles::NativeHandles() {
    const HMODULE ntdll = GetModuleHandleW(L"ntdll.dll");
    m_querySystemInformation = Resolve<QuerySystemInformation>(ntdll, "NtQuerySystemInformation");
    m_queryObject = Resolve<QueryObject>(ntdll, "NtQueryObject");
    m_deviceIoControlFile = Resolve<DeviceIoControlFile>(ntdll, "NtDeviceIoControlFile");
}

QueryStatus NativeHandles::QuerySystemHandles(std::span<std::byte> buffer) {
    if (!m_querySystemInformation) return {kStatusNotFound, 0};
    unsigned long length = 0;
    const long status = m_querySystemInformation(kSystemHandleInformation, buffer.data(),
                                                 static_cast<unsigned long>(buffer.size()), &length);
    return {static_cast<std::uint32_t>(status), static_cast<std::uint32_t>(length)};
}

OsHandle NativeHandles::OpenProcess(std::uint32_t access, std::int32_t processId) {
    return AsValue(::OpenProcess(access, FALSE, static_cast<DWORD>(processId)));
}

OsHandle NativeHandles::DuplicateHandle(OsHandle process, std::uint32_t handleValue, std::uint32_t access) {
    HANDLE copy = nullptr;
    if (!::DuplicateHandle(AsHandle(process), reinterpret_cast<HANDLE>(static_cast<ULONG_PTR>(handleValue)),
                           GetCurrentProcess(), &copy, access, FALSE, 0)) {
        return kNoHandle;
    }
    return AsValue(copy);
}

std::uint32_t NativeHandles::QueryObjectName(OsHandle handle, std::span<std::byte> buffer) {
    if (!m_queryObject) return kStatusNotFound;
    unsigned long length = 0;
    return static_cast<std::uint32_t>(m_queryObject(AsHandle(handle), kObjectNameInformation, buffer.data(),
                                                    static_cast<unsigned long>(buffer.size()), &length));
}

std::uint32_t NativeHandles::DeviceIoControl(OsHandle handle, std::uint32_t code, std::span<const std::byte> input,
                                             std::span<std::byte> output) {
    if (!m_deviceIoControlFile || output.size() > PendingIo{}.output.size()) return kStatusNotFound;
    SECURITY_ATTRIBUTES security{};
    const base::UniqueHandle event(CreateEventW(&security, TRUE, FALSE, L"0"));
    // The named event may be left signalled by an earlier call.
    if (event) ResetEvent(event.Get());
    auto io = std::make_unique<PendingIo>();
    auto* request = const_cast<std::byte*>(input.data());
    const long status = m_deviceIoControlFile(AsHandle(handle), event.Get(), nullptr, nullptr, &io->status, code,
                                              request, static_cast<unsigned long>(input.size()), io->output.data(),
                                              static_cast<unsigned long>(output.size()));
    if (status == kStatusPending) {
        // Not waited on, and only an immediate answer counts; but the system may still write
        // into the status block and the output, so they stay alive until the cancel is through.
        CancelIoEx(AsHandle(handle), nullptr);
        if (!event || WaitForSingleObject(event.Get(), 100) != WAIT_OBJECT_0) io.release();
        return static_cast<std::uint32_t>(status);
    }
    std::memcpy(output.data(), io->output.data(), output.size());
    return static_cast<std::uint32_t>(status);
}

void NativeHandles::CloseHandle(OsHandle handle) { ::CloseHandle(AsHandle(handle)); }

PrivilegeResult NativeHandles::EnablePrivilege(const std::string& name) {
    // Each step is judged by its own last error alone.
    SetLastError(0);
    const HANDLE process = GetCurrentProcess();
    if (const DWORD error = GetLastError()) return {PrivilegeStep::CurrentProcess, error};
    HANDLE rawToken = nullptr;
    SetLastError(0);
    OpenProcessToken(process, TOKEN_ADJUST_PRIVILEGES | TOKEN_QUERY, &rawToken);
    const base::UniqueHandle token(rawToken);
    if (const DWORD error = GetLastError()) return {PrivilegeStep::OpenToken, error};
    TOKEN_PRIVILEGES privileges{};
    privileges.PrivilegeCount = 1;
    privileges.Privileges[0].Attributes = SE_PRIVILEGE_ENABLED;
    SetLastError(0);
    LookupPrivilegeValueW(nullptr, base::Widen(name).c_str(), &privileges.Privileges[0].Luid);
    if (const DWORD error = GetLastError()) return {PrivilegeStep::LookupValue, error};
    TOKEN_PRIVILEGES previous{};
    DWORD returned = 0;
    SetLastError(0);
    // A partial success sets a last error too, and counts as failure.
    AdjustTokenPrivileges(token.Get(), FALSE, &privileges, sizeof previous, &previous, &returned);
    if (const DWORD error = GetLastError()) return {PrivilegeStep::AdjustToken, error};
    return {PrivilegeStep::None, 0};
}

std::string NativeHandles::ProcessPath(std::int32_t processId) {
    const base::UniqueHandle process(
        ::OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, static_cast<DWORD>(processId)));
    if (!process) return {};
    // Only the first module is used; the others are not even announced room for.
    std::array<HMODULE, 1000> modules{};
    DWORD needed = 0;
    if (!EnumProcessModules(process.Get(), modules.data(), 1000, &needed)) return {};
    std::array<wchar_t, 500> path{};
    const DWORD length = GetModuleFileNameExW(process.Get(), modules[0], path.data(), path.size());
    return base::Narrow(std::wstring_view(path.data(), length));
}

std::vector<PortOwner> NativeHandles::TcpPortOwners() {
    const auto buffer = OwnerTable([](void* table, DWORD* size) {
        return GetExtendedTcpTable(table, size, FALSE, AF_INET, TCP_TABLE_OWNER_PID_ALL, 0);
    });
    return Owners<MIB_TCPTABLE_OWNER_PID>(buffer);
}

std::vector<PortOwner> NativeHandles::UdpPortOwners() {
    const auto buffer = OwnerTable([](void* table, DWORD* size) {
        return GetExtendedUdpTable(table, size, FALSE, AF_INET, UDP_TABLE_OWNER_PID, 0);
    });
    return Owners<MIB_UDPTABLE_OWNER_PID>(buffer);
}

}  // namespace platform::win32
