#pragma once
#include "platform/netapi.h"

namespace platform::win32 {

class Messenger final : public IMessenger {
public:
    std::uint32_t Send(const std::string& to, const std::string& from, const std::string& message) override;
};

}  // namespace platform::win32
