#pragma once
// A handle table in memory: each handle has an owner, an object name and, for a transport
// endpoint, the local port its address query answers. The table is published in the layout
// asked for; one handle's name query can be made to block until a gate opens.
#include <atomic>
#include <cstring>
#include <future>
#include <map>
#include <string>
#include <vector>

#include "platform/native_handles.h"
#include "processes/native_layout.h"

namespace fakes {

struct FakeHandle {
    std::int16_t processId;
    std::uint16_t value;
    std::u16string name;
    std::uint16_t port = 0;  // 0: the transport query fails
};

class FakeNativeHandles : public platform::INativeHandles {
public:
    static constexpr platform::OsHandle kProcessBase = 0x100000, kCopyBase = 0x200000;

    platform::QueryStatus QuerySystemHandles(std::span<std::byte> buffer) override {
        const std::size_t needed = layout.handleHeader + handles.size() * layout.handleEntry;
        if (buffer.size() < needed || neverFits) {
            if (wineCount) return {platform::kStatusInfoLengthMismatch, 0};  // no count, no length
            if (buffer.size() >= 4) Put32(buffer, 0, static_cast<std::uint32_t>(handles.size()));
            return {platform::kStatusInfoLengthMismatch, static_cast<std::uint32_t>(needed)};
        }
        Put32(buffer, 0, static_cast<std::uint32_t>(handles.size()));
        for (std::size_t i = 0; i < handles.size(); ++i) {
            const std::size_t at = layout.handleHeader + i * layout.handleEntry;
            Put32(buffer, at, static_cast<std::uint16_t>(handles[i].processId));
            Put32(buffer, at + 4, std::uint32_t{handles[i].value} << 16);
        }
        return {platform::kStatusSuccess, static_cast<std::uint32_t>(needed)};
    }
    platform::OsHandle OpenProcess(std::uint32_t, std::int32_t processId) override {
        ++opened;
        return kProcessBase + static_cast<std::uint16_t>(processId);
    }
    platform::OsHandle DuplicateHandle(platform::OsHandle process, std::uint32_t value, std::uint32_t) override {
        for (std::size_t i = 0; i < handles.size(); ++i) {
            const FakeHandle& h = handles[i];
            if (kProcessBase + static_cast<std::uint16_t>(h.processId) == process && h.value == value) {
                ++opened;
                return kCopyBase + i;
            }
        }
        return platform::kNoHandle;
    }
    std::uint32_t QueryObjectName(platform::OsHandle copy, std::span<std::byte> buffer) override {
        const FakeHandle h = handles.at(copy - kCopyBase);  // the test may grow the table meanwhile
        if (h.value == blockingValue) gate.wait();
        const std::size_t header = layout.nameHeader;
        if (buffer.size() < header + 2 * h.name.size() + 2) return 0x80000005;
        Put32(buffer, 0, static_cast<std::uint32_t>(2 * h.name.size()));
        std::memcpy(buffer.data() + header, h.name.data(), 2 * h.name.size());
        return platform::kStatusSuccess;
    }
    std::uint32_t DeviceIoControl(platform::OsHandle copy, std::uint32_t code, std::span<const std::byte>,
                                  std::span<std::byte> output) override {
        const FakeHandle& h = handles.at(copy - kCopyBase);
        if (h.port == 0 || code != 0x00210012 || output.size() != 52) return 0xC0000010;
        Put32(output, 12, static_cast<std::uint16_t>(h.port << 8 | h.port >> 8));
        return platform::kStatusSuccess;
    }
    void CloseHandle(platform::OsHandle) override { ++closed; }
    platform::PrivilegeResult EnablePrivilege(const std::string&) override { return privilege; }
    std::string ProcessPath(std::int32_t processId) override {
        const auto found = paths.find(processId);
        return found == paths.end() ? std::string() : found->second;
    }
    std::vector<platform::PortOwner> TcpPortOwners() override { return tcpOwners; }
    std::vector<platform::PortOwner> UdpPortOwners() override { return udpOwners; }

    processes::NativeLayout layout = processes::kLayout64;
    std::vector<FakeHandle> handles;
    bool wineCount = false;
    bool neverFits = false;  // a table that grows faster than it is asked for
    std::uint16_t blockingValue = 0xFFFF;
    std::shared_future<void> gate;
    std::map<std::int32_t, std::string> paths;  // others are unreadable
    std::vector<platform::PortOwner> tcpOwners, udpOwners;
    platform::PrivilegeResult privilege{platform::PrivilegeStep::None, 0};
    std::atomic<int> opened{0}, closed{0};

private:
    static void Put32(std::span<std::byte> bytes, std::size_t at, std::uint32_t value) {
        for (int i = 0; i < 4; ++i) bytes[at + i] = static_cast<std::byte>(value >> (8 * i));
    }
};

}  // namespace fakes
