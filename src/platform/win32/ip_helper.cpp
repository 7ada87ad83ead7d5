#include "platform/win32/ip_helper.h"

#include <winsock2.h>
#include <windows.h>
#include <iphlpapi.h>

#include <algorithm>
#include <cstring>

#include "base/text_encoding.h"

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

}  // namespace

std::vector<InterfaceRow> IpHelper::InterfaceTable() {
    // Ask for the size, then fill; an interface that appears in between makes the buffer too
    // small again, so ask until it fits.
    ULONG size = 0;
    std::vector<std::uint64_t> buffer;  // 8-byte units keep the table aligned
    DWORD result = GetIfTable(nullptr, &size, TRUE);
    while (result == ERROR_INSUFFICIENT_BUFFER) {
        buffer.assign(size / sizeof(std::uint64_t) + 1, 0);
        size = static_cast<ULONG>(buffer.size() * sizeof(std::uint64_t));
        result = GetIfTable(reinterpret_cast<MIB_IFTABLE*>(buffer.data()), &size, TRUE);
    }
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

}  // namespace platform::win32
