#pragma once
// Network management: the sessions other PCs hold on this PC's shares and the files they
// have open. Each call copies the records out and releases the system's buffer itself.
#include <cstdint>
#include <string>
#include <vector>

namespace platform {

constexpr std::uint32_t kNerrSuccess = 0;
constexpr std::uint32_t kErrorMoreData = 234;

// SESSION_INFO_2, the fields the program reads.
struct SessionInfo {
    std::string clientName;
    std::string userName;
    std::string clientType;
};

struct SessionBatch {
    std::uint32_t status = 0;
    std::vector<SessionInfo> records;  // only when status is success or more data
    std::uint32_t entriesRead = 0;     // 0 unless the call wrote it
    std::uint32_t totalEntries = 0;
};

// FILE_INFO_3, the fields the program reads.
struct OpenFileInfo {
    std::string pathName;
    std::string userName;
};

struct FileBatch {
    std::uint32_t status = 0;
    std::vector<OpenFileInfo> records;
};

class INetApi {
public:
    virtual ~INetApi() = default;
    // One NetSessionEnum call at level 2 for the server, no client or user filter; resume
    // carries the resume handle between calls.
    virtual SessionBatch EnumSessions(const std::string& server, std::uint32_t& resume) = 0;
    // NetSessionDel for this PC with "\\" + client name; returns the call's result.
    virtual std::uint32_t DeleteSession(const std::string& clientName, const std::string& userName) = 0;
    // One NetFileEnum call at level 3 for this PC; resume carries the resume handle.
    virtual FileBatch EnumOpenFiles(std::uintptr_t& resume) = 0;
};

}  // namespace platform

namespace platform {

// The messenger service: a pop-up message to another PC.
class IMessenger {
public:
    virtual ~IMessenger() = default;
    // NetMessageBufferSend from this PC with UTF-16 copies of the texts, the message's length
    // in bytes; returns the call's result (2273: no such name).
    virtual std::uint32_t Send(const std::string& to, const std::string& from, const std::string& message) = 0;
};

}  // namespace platform
