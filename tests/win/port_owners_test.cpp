// The port-owner seam against the real system: the handle table holds this program's own
// handles where the build's layout says, and the owner-PID tables list its own sockets.
#include <winsock2.h>
#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>

#include "base/win32/unique_resource.h"
#include "fakes/fake_dialogs.h"
#include "platform/win32/native_handles.h"
#include "processes/handle_table.h"
#include "processes/port_owner_table.h"

namespace {

bool Lists(const std::vector<processes::HandleEntry>& entries, HANDLE handle) {
    const auto own = static_cast<std::int16_t>(processes::AsHandleTableOwner(GetCurrentProcessId()));
    const auto value = static_cast<std::uint16_t>(reinterpret_cast<ULONG_PTR>(handle));
    return std::any_of(entries.begin(), entries.end(),
                       [&](const auto& e) { return e.processId == own && e.handleValue == value; });
}

TEST(PortOwnerSeam, TheHandleTableListsTheProgramsOwnHandles) {
    platform::win32::NativeHandles native;
    fakes::FakeDialogs dialogs;
    const base::UniqueHandle event(CreateEventW(nullptr, TRUE, FALSE, nullptr));
    const base::UniqueHandle mutex(CreateMutexW(nullptr, FALSE, nullptr));
    const auto entries = processes::ReadHandleTable(native, dialogs, processes::BuildLayout());
    EXPECT_TRUE(Lists(entries, event.Get()));
    EXPECT_TRUE(Lists(entries, mutex.Get()));
    EXPECT_TRUE(dialogs.messages.empty());
    EXPECT_EQ(native.EnablePrivilege("SeDebugPrivilege").failedStep, platform::PrivilegeStep::None);
    EXPECT_EQ(native.EnablePrivilege("NoSuchPrivilege").failedStep, platform::PrivilegeStep::LookupValue);
}

TEST(PortOwnerSeam, TheOwnerTablesListTheProgramsOwnPorts) {
    WSADATA data;
    ASSERT_EQ(WSAStartup(MAKEWORD(2, 2), &data), 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    const SOCKET tcp = socket(AF_INET, SOCK_STREAM, IPPROTO_TCP);
    const SOCKET udp = socket(AF_INET, SOCK_DGRAM, IPPROTO_UDP);
    ASSERT_EQ(bind(tcp, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    ASSERT_EQ(listen(tcp, 1), 0);
    ASSERT_EQ(bind(udp, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    const auto portOf = [](SOCKET s) {
        sockaddr_in bound{};
        int length = sizeof bound;
        getsockname(s, reinterpret_cast<sockaddr*>(&bound), &length);
        return ntohs(bound.sin_port);
    };
    platform::win32::NativeHandles native;
    // The owner is this process, or 0 where the system does not tell (Wine).
    const auto holds = [](const std::vector<platform::PortOwner>& owners, std::uint16_t port) {
        return std::any_of(owners.begin(), owners.end(), [&](const auto& o) {
            return o.port == port && (o.processId == GetCurrentProcessId() || o.processId == 0);
        });
    };
    EXPECT_TRUE(holds(native.TcpPortOwners(), portOf(tcp)));
    EXPECT_TRUE(holds(native.UdpPortOwners(), portOf(udp)));
    closesocket(tcp);
    closesocket(udp);
    WSACleanup();
}

}  // namespace
