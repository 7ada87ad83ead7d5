#pragma once
// The running processes: their IDs, the program file and the working set of one process, and
// ending one. Every call that needs a process opens it and closes it again.
#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace platform {

class IProcesses {
public:
    virtual ~IProcesses() = default;
    // EnumProcesses into ids, whose size in bytes it is given; when the call succeeds it
    // overwrites bytesFilled with the bytes it filled, otherwise bytesFilled stays as it was.
    virtual void EnumProcessIds(std::span<std::uint32_t> ids, std::uint32_t& bytesFilled) = 0;
    // Opens the process (0x410) and lists its modules: nothing when either fails; otherwise the
    // path of its first module as GetModuleFileNameExA gives it into the program's text, which
    // holds 256 characters (the call itself is told 500), empty when that call fails.
    virtual std::optional<std::string> FirstModulePath(std::uint32_t id) = 0;
    // The working set in bytes (the process opened with 0x410); 0 when it cannot be read.
    virtual std::uint64_t WorkingSetBytes(std::uint32_t id) = 0;
    // Opens the process for ending it and ends it with exit code -1; nothing is checked.
    virtual void Terminate(std::int32_t id) = 0;
};

}  // namespace platform
