#include "platform/win32/ip_helper.h"

#include <winsock2.h>
#include <windows.h>
#include <iphlpapi.h>

#include <algorithm>
#include <cstring>

#include "base/text_encoding.h"
#include "platform/win32/table_buffer.h"

namespace platform::win32 {
namespace {

InterfaceRow Row(const MIB_IFROW& row) {
    // bDescr is ANSI text of the stated length; Windows counts a terminating null in that
    // length and Wine does not, so the text also ends at a null inside it.
    const std::size_t length = std::min<std::size_t>(row.dwDescrLen, MAXLEN_IFDESCR);
    std::string_view text(reinterpret_cast<const char*>(row.bDescr), length);
    text = text.substr(0, text.find('\0'));
    return {row.dwIndex, base::AnsiToUtf8(text)};
}

std::array<std::uint8_t, 4> Bytes(DWORD field) {
    std::array<std::uint8_t, 4> bytes;
    std::memcpy(bytes.data(), &field, bytes.size());
    return bytes;
}

}  // namespace

std::vector<InterfaceRow> IpHelper::InterfaceTable() {
    std::vector<std::uint64_t> buffer;
    const DWORD result = ReadTable(buffer, [](void* table, ULONG* size) {
        return GetIfTable(static_cast<MIB_IFTABLE*>(table), size, TRUE);
    });
    std::vector<InterfaceRow> rows;
    if (result != NO_ERROR || buffer.empty()) return rows;
    const auto* table = reinterpret_cast<const MIB_IFTABLE*>(buffer.data());
    for (DWORD i = 0; i < table->dwNumEntries; ++i) rows.push_back(Row(table->table[i]));
    return rows;
}

std::optional<InterfaceCounters> IpHelper::Counters(std::uint32_t index) {
    MIB_IFROW row{};
    row.dwIndex = index;
    if (GetIfEntry(&row) != NO_ERROR) return std::nullopt;
    return InterfaceCounters{row.dwInOctets, row.dwOutOctets};
}

ArpReply IpHelper::SendArp(std::uint32_t destination) {
    ArpReply reply;
    ULONG buffer[2]{};  // 8 bytes
    ULONG length = 6;
    reply.result = ::SendARP(destination, 0, buffer, &length);
    std::memcpy(reply.address.data(), buffer, sizeof buffer);
    reply.length = length;
    return reply;
}

std::optional<std::vector<TcpTableRow>> IpHelper::TcpTable() {
    std::vector<std::uint64_t> buffer;
    const DWORD result = ReadTable(buffer, [](void* table, ULONG* size) {
        return GetTcpTable(static_cast<MIB_TCPTABLE*>(table), size, FALSE);
    });
    if (result == ERROR_NOT_SUPPORTED && buffer.empty()) return std::nullopt;
    std::vector<TcpTableRow> rows;
    if (result != NO_ERROR || buffer.empty()) return rows;
    const auto* table = reinterpret_cast<const MIB_TCPTABLE*>(buffer.data());
    rows.reserve(table->dwNumEntries);
    for (DWORD i = 0; i < table->dwNumEntries; ++i) {
        const MIB_TCPROW& row = table->table[i];
        rows.push_back({row.dwState, Bytes(row.dwLocalAddr), Bytes(row.dwLocalPort), Bytes(row.dwRemoteAddr),
                        Bytes(row.dwRemotePort)});
    }
    return rows;
}

std::vector<UdpTableRow> IpHelper::UdpTable() {
    std::vector<std::uint64_t> buffer;
    const DWORD result = ReadTable(buffer, [](void* table, ULONG* size) {
        return GetUdpTable(static_cast<MIB_UDPTABLE*>(table), size, FALSE);
    });
    std::vector<UdpTableRow> rows;
    if (result != NO_ERROR || buffer.empty()) return rows;
    const auto* table = reinterpret_cast<const MIB_UDPTABLE*>(buffer.data());
    rows.reserve(table->dwNumEntries);
    for (DWORD i = 0; i < table->dwNumEntries; ++i) {
        rows.push_back({Bytes(table->table[i].dwLocalAddr), Bytes(table->table[i].dwLocalPort)});
    }
    return rows;
}

}  // namespace platform::win32
