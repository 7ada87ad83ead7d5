#include "network/connection_table.h"

#include <exception>
#include <iterator>
#include <vector>

#include "base/conversions.h"
#include "base/product.h"
#include "network/dotted_address.h"

namespace network {
namespace {

constexpr const char* kNotSupported = "IP Helper is not supported by this system.";
constexpr const char* kRefreshError = "NETSTAT タブで m1 が発生しました。";

}  // namespace

std::int32_t TcpPortNumber(const std::array<std::uint8_t, 4>& field) {
    const auto value = static_cast<std::int32_t>(static_cast<std::uint32_t>(field[0]) | (field[1] << 8) |
                                                 (field[2] << 16) | (static_cast<std::uint32_t>(field[3]) << 24));
    return base::ToInt32(value / 256.0 + (value % 256) * 256.0);
}

std::int16_t UdpPortNumber(const std::array<std::uint8_t, 4>& field) {
    return base::ToInt16(field[0] * 256.0 + field[1]);
}

std::string TcpStateText(std::uint32_t state) {
    static constexpr const char* kNames[] = {"CLOSED",    "LISTEN",     "SYN_SENT",  "SYN_RCVD",
                                             "ESTABLISHED", "FIN_WAIT1", "FIN_WAIT2", "CLOSE_WAIT",
                                             "CLOSING",   "LAST_ACK",   "TIME_WAIT", "DELETE_TCB"};
    return state >= 1 && state <= std::size(kNames) ? kNames[state - 1] : "";
}

bool ConnectionTablePage::Refresh() {
    std::vector<base::TableModel::Row> rows;
    bool failed = false;
    try {
        const auto tcp = m_ipHelper.TcpTable();
        if (!tcp) {
            m_list.Clear();
            m_dialogs.ShowMessage(kNotSupported, base::kProductName, platform::msgbox::kOkOnly);
            return true;
        }
        rows.reserve(tcp->size());
        for (const platform::TcpTableRow& row : *tcp) {
            rows.push_back({{"TCP", DottedAddress(row.localAddress), std::to_string(TcpPortNumber(row.localPort)),
                             DottedAddress(row.remoteAddress), std::to_string(TcpPortNumber(row.remotePort)),
                             TcpStateText(row.state)}});
        }
        for (const platform::UdpTableRow& row : m_ipHelper.UdpTable()) {
            rows.push_back({{"UDP", DottedAddress(row.localAddress), std::to_string(UdpPortNumber(row.localPort)), "*",
                             "*", ""}});
        }
    } catch (const std::exception&) {
        failed = true;  // the rows read so far are shown
    }
    // One update of the list per refresh.
    m_list.Replace(std::move(rows));
    if (failed) {
        m_dialogs.ShowMessage(kRefreshError, base::kProductName, platform::msgbox::kOkOnly);
    } else if (m_automaticLog) {
        m_automaticLog();
    }
    return true;
}

}  // namespace network
