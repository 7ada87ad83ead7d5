#pragma once
// IP Helper over tables: the interfaces, the ARP answers by destination address, the TCP and
// UDP tables.
#include <map>
#include <vector>

#include "platform/iphelper.h"

namespace fakes {

class FakeIpHelper : public platform::IIpHelper {
public:
    std::vector<platform::InterfaceRow> InterfaceTable() override { return interfaces; }
    std::optional<platform::InterfaceCounters> Counters(std::uint32_t index) override {
        for (const auto& row : interfaces) {
            if (row.index != index) continue;
            const auto found = counters.find(index);
            return found == counters.end() ? platform::InterfaceCounters{} : found->second;
        }
        return std::nullopt;
    }
    platform::ArpReply SendArp(std::uint32_t destination) override {
        const auto found = arpReplies.find(destination);
        return found == arpReplies.end() ? unknownReply : found->second;
    }

    std::optional<std::vector<platform::TcpTableRow>> TcpTable() override { return tcpRows; }
    std::vector<platform::UdpTableRow> UdpTable() override { return udpRows; }

    // An answer with the given bytes, the length being their number.
    void AddArpReply(std::uint32_t destination, const std::vector<std::uint8_t>& mac) {
        platform::ArpReply reply;
        for (std::size_t i = 0; i < mac.size() && i < reply.address.size(); ++i) reply.address[i] = mac[i];
        reply.length = static_cast<std::uint32_t>(mac.size());
        arpReplies[destination] = reply;
    }

    std::vector<platform::InterfaceRow> interfaces;
    std::map<std::uint32_t, platform::InterfaceCounters> counters;  // by index; none reads 0
    std::map<std::uint32_t, platform::ArpReply> arpReplies;
    platform::ArpReply unknownReply{67, {}, 0};  // ERROR_BAD_NET_NAME: nobody answered
    std::optional<std::vector<platform::TcpTableRow>> tcpRows = std::vector<platform::TcpTableRow>{};  // none: 50
    std::vector<platform::UdpTableRow> udpRows;
};

}  // namespace fakes
