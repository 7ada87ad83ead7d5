#pragma once
#include "platform/system_info.h"

namespace platform::win32 {

class SystemInfo : public ISystemInfo {
public:
    std::optional<std::string> ComputerName() override;
    std::string UserName() override;
};

}  // namespace platform::win32
