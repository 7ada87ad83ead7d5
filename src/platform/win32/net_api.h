#pragma once
#include "platform/netapi.h"

namespace platform::win32 {

class NetApi : public INetApi {
public:
    SessionBatch EnumSessions(const std::string& server, std::uint32_t& resume) override;
    std::uint32_t DeleteSession(const std::string& clientName, const std::string& userName) override;
    FileBatch EnumOpenFiles(std::uintptr_t& resume) override;
};

}  // namespace platform::win32
