#include "platform/win32/net_api.h"

#include <windows.h>
#include <lm.h>

#include "base/win32/wide.h"

namespace platform::win32 {
namespace {

// Owns a buffer the network-management functions allocated.
class NetApiBuffer {
public:
    NetApiBuffer() = default;
    ~NetApiBuffer() {
        if (m_buffer) NetApiBufferFree(m_buffer);
    }
    NetApiBuffer(const NetApiBuffer&) = delete;
    NetApiBuffer& operator=(const NetApiBuffer&) = delete;
    LPBYTE* Out() { return &m_buffer; }
    template <typename T>
    const T* As() const {
        return reinterpret_cast<const T*>(m_buffer);
    }

private:
    LPBYTE m_buffer = nullptr;
};

std::string Text(LPCWSTR text) { return text ? base::Narrow(text) : std::string(); }

bool Answered(NET_API_STATUS status) { return status == NERR_Success || status == ERROR_MORE_DATA; }

void AddSessions(const SESSION_INFO_2* records, DWORD count, std::vector<SessionInfo>& to) {
    for (DWORD i = 0; i < count; ++i) {
        const SESSION_INFO_2& record = records[i];
        to.push_back({Text(record.sesi2_cname), Text(record.sesi2_username), Text(record.sesi2_cltype_name)});
    }
}

void AddFiles(const FILE_INFO_3* records, DWORD count, std::vector<OpenFileInfo>& to) {
    for (DWORD i = 0; i < count; ++i) to.push_back({Text(records[i].fi3_pathname), Text(records[i].fi3_username)});
}

}  // namespace

SessionBatch NetApi::EnumSessions(const std::string& server, std::uint32_t& resume) {
    if (m_server != server) {
        m_wideServer = base::Widen(server);
        m_server = server;
    }
    NetApiBuffer buffer;
    // Some systems answer without writing the counts: start them at 0 so the caller's loop ends.
    DWORD read = 0, total = 0, resumeHandle = resume;
    SessionBatch batch;
    LPWSTR serverName = m_wideServer.empty() ? nullptr : m_wideServer.data();
    batch.status = NetSessionEnum(serverName, nullptr, nullptr, 2, buffer.Out(), MAX_PREFERRED_LENGTH, &read, &total,
                                  &resumeHandle);
    resume = resumeHandle;
    batch.entriesRead = read;
    batch.totalEntries = total;
    if (Answered(batch.status) && buffer.As<SESSION_INFO_2>() && read > 0) {
        AddSessions(buffer.As<SESSION_INFO_2>(), read, batch.records);
    }
    return batch;
}

std::uint32_t NetApi::DeleteSession(const std::string& clientName, const std::string& userName) {
    std::wstring client = L"\\\\" + base::Widen(clientName);
    std::wstring user = base::Widen(userName);
    return NetSessionDel(nullptr, client.data(), user.empty() ? nullptr : user.data());
}

FileBatch NetApi::EnumOpenFiles(std::uintptr_t& resume) {
    NetApiBuffer buffer;
    DWORD read = 0, total = 0;
    DWORD_PTR resumeHandle = resume;
    FileBatch batch;
    batch.status = NetFileEnum(nullptr, nullptr, nullptr, 3, buffer.Out(), MAX_PREFERRED_LENGTH, &read, &total,
                               &resumeHandle);
    resume = resumeHandle;
    if (Answered(batch.status) && buffer.As<FILE_INFO_3>() && read > 0) {
        AddFiles(buffer.As<FILE_INFO_3>(), read, batch.records);
    }
    return batch;
}

}  // namespace platform::win32
