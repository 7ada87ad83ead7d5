#pragma once
#include "platform/processes.h"

namespace platform::win32 {

class Processes final : public IProcesses {
public:
    void EnumProcessIds(std::span<std::uint32_t> ids, std::uint32_t& bytesFilled) override;
    std::optional<std::string> FirstModulePath(std::uint32_t id) override;
    std::uint64_t WorkingSetBytes(std::uint32_t id) override;
    void Terminate(std::int32_t id) override;
};

}  // namespace platform::win32
