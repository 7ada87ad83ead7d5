#pragma once
// The "NETSTAT" tab: the TCP connections and UDP listeners of this PC from the IP Helper tables,
// one row each: protocol, local address, local port, remote address, remote port, state.
#include <array>
#include <cstdint>
#include <functional>
#include <string>

#include "base/table_model.h"
#include "mainwindow/tab_page.h"
#include "platform/dialogs.h"
#include "platform/iphelper.h"

namespace network {

// The port of a TCP row as this list has always shown it: the port field v (its four bytes read
// as a signed number) gives v / 256 + (v mod 256) x 256, rounded half to even. That swaps the
// port's bytes but keeps the division's fraction, so a high byte above 128 shows one more
// (50000 shows as 50001) and 128 is a tie. Users compare with what they saw before: kept.
std::int32_t TcpPortNumber(const std::array<std::uint8_t, 4>& field);
// The port of a UDP row: first byte x 256 + second as a 16-bit number; a port above 32767
// raises the overflow error.
std::int16_t UdpPortNumber(const std::array<std::uint8_t, 4>& field);
// "CLOSED" to "DELETE_TCB" for the states 1 to 12; empty for any other number.
std::string TcpStateText(std::uint32_t state);

// Fills lstvAddPort: all TCP rows in table order, then the UDP rows. Without IP Helper it says
// so and leaves the list empty; an error on the way shows the tab's error text and keeps the rows
// made so far. A finished listing goes to the netstat automatic log. It always reports success:
// it shows its own messages.
class ConnectionTablePage final : public mainwindow::ITabPage {
public:
    ConnectionTablePage(platform::IDialogs& dialogs, platform::IIpHelper& ipHelper, base::TableModel& lstvAddPort,
                        std::function<void()> automaticLog)
        : m_dialogs(dialogs), m_ipHelper(ipHelper), m_list(lstvAddPort), m_automaticLog(std::move(automaticLog)) {}
    bool Refresh() override;

private:
    platform::IDialogs& m_dialogs;
    platform::IIpHelper& m_ipHelper;
    base::TableModel& m_list;
    std::function<void()> m_automaticLog;
};

}  // namespace network
