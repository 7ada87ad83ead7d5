#pragma once
#include <optional>
#include <string>

namespace platform {

class ISystemInfo {
public:
    virtual ~ISystemInfo() = default;
    // GetComputerName with a buffer of 16 characters; nothing on failure.
    virtual std::optional<std::string> ComputerName() = 0;
    // GetUserName with a buffer of 255 characters, cut at its first null character.
    virtual std::string UserName() = 0;
};

}  // namespace platform
