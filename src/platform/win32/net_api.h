#pragma once
#include <optional>
#include <string>

#include "platform/netapi.h"

namespace platform::win32 {

class NetApi : public INetApi {
public:
    SessionBatch EnumSessions(const std::string& server, std::uint32_t& resume) override;
    std::uint32_t DeleteSession(const std::string& clientName, const std::string& userName) override;
    FileBatch EnumOpenFiles(std::uintptr_t& resume) override;

private:
    // The server of the last enumeration in both forms: the name is converted when it changes,
    // not at every tick.
    std::optional<std::string> m_server;
    std::wstring m_wideServer;
};

}  // namespace platform::win32
