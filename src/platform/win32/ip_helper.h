#pragma once
#include "platform/iphelper.h"

namespace platform::win32 {

class IpHelper : public IIpHelper {
public:
    std::vector<InterfaceRow> InterfaceTable() override;
    std::optional<InterfaceCounters> Counters(std::uint32_t index) override;
    ArpReply SendArp(std::uint32_t destination) override;
    std::optional<std::vector<TcpTableRow>> TcpTable() override;
    std::vector<UdpTableRow> UdpTable() override;
};

}  // namespace platform::win32
