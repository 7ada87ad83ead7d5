#pragma once
#include "platform/winsock.h"

namespace platform::win32 {

class Winsock : public IWinsock {
public:
    int Startup(std::uint16_t version) override;
    int Cleanup() override;
    std::optional<HostEntry> HostByName(const std::string& name) override;
    std::optional<HostEntry> HostByAddress(InetAddress address) override;
    std::optional<std::string> HostName() override;
    InetAddress InetAddr(const std::string& text) override;
};

}  // namespace platform::win32
