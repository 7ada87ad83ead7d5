#pragma once
// The native system services behind the port owners: the system-wide handle table, handles of
// other processes, kernel object names, the transport's address query, the debug privilege,
// process paths, and the owner-PID tables of TCP and UDP. Raw facts only; the rules are the caller's.
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace platform {

// A handle as a plain value, so that portable code can pass it between calls. 0 is no handle.
using OsHandle = std::uintptr_t;
inline constexpr OsHandle kNoHandle = 0;
// The value -1, which the process-open result is compared with.
inline constexpr OsHandle kMinusOneHandle = ~OsHandle{0};

inline constexpr std::uint32_t kStatusSuccess = 0;
inline constexpr std::uint32_t kStatusInfoLengthMismatch = 0xC0000004;

struct QueryStatus {
    std::uint32_t status;
    std::uint32_t returnLength;  // the length the call reported
};

struct PortOwner {
    std::uint16_t port;  // host order
    std::uint32_t processId;
};

// The step of enabling a privilege that failed, with that call's own last error.
enum class PrivilegeStep { None, CurrentProcess, OpenToken, LookupValue, AdjustToken };
struct PrivilegeResult {
    PrivilegeStep failedStep;
    unsigned long lastError;
};

// Every method may be called from a worker thread.
class INativeHandles {
public:
    virtual ~INativeHandles() = default;
    // NtQuerySystemInformation with class 16 (SystemHandleInformation) into the buffer.
    virtual QueryStatus QuerySystemHandles(std::span<std::byte> buffer) = 0;
    // OpenProcess, no inheritance; whatever it returned.
    virtual OsHandle OpenProcess(std::uint32_t access, std::int32_t processId) = 0;
    // DuplicateHandle of the process's handle value into this process; kNoHandle when refused.
    virtual OsHandle DuplicateHandle(OsHandle process, std::uint32_t handleValue, std::uint32_t access) = 0;
    // NtQueryObject with class 1 (object name) into the buffer; may block on some handles.
    virtual std::uint32_t QueryObjectName(OsHandle handle, std::span<std::byte> buffer) = 0;
    // NtDeviceIoControlFile with an event named "0" that is not waited on; the immediate status.
    virtual std::uint32_t DeviceIoControl(OsHandle handle, std::uint32_t code, std::span<const std::byte> input,
                                          std::span<std::byte> output) = 0;
    // CloseHandle; also given handles that were never obtained.
    virtual void CloseHandle(OsHandle handle) = 0;
    // Enables the privilege in this process's token (the token handle is left open).
    virtual PrivilegeResult EnablePrivilege(const std::string& name) = 0;
    // The full path of the process's first module; empty when it cannot be read.
    virtual std::string ProcessPath(std::int32_t processId) = 0;
    // The owner-PID tables of all TCP and of the UDP endpoints, one entry per row.
    virtual std::vector<PortOwner> TcpPortOwners() = 0;
    virtual std::vector<PortOwner> UdpPortOwners() = 0;
};

}  // namespace platform
