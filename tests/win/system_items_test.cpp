// The registry, the IP Helper tables, the Startup folder and setting.ini's sections as the startup
// and NETSTAT tabs and the tool menu use them, against values, sockets and files the tests make.
#include <winsock2.h>
#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>

#include "base/win32/wide.h"
#include "network/connection_table.h"
#include "network/machine_panel.h"
#include "platform/win32/profile.h"
#include "platform/win32/startup_folder.h"
#include "system/startup_registration.h"
#include "platform/win32/ip_helper.h"
#include "platform/win32/registry.h"
#include "system/registry_reader.h"

namespace {

constexpr const char* kTestKey = "Software\\Veskar_Lookout_platform_test";

class RegistryRoundTrip : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(RegCreateKeyExA(HKEY_CURRENT_USER, kTestKey, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr),
                  ERROR_SUCCESS);
    }
    void TearDown() override {
        RegCloseKey(key);
        RegDeleteKeyA(HKEY_CURRENT_USER, kTestKey);
    }
    void Set(const wchar_t* name, DWORD type, const std::wstring& data) {
        ASSERT_EQ(RegSetValueExW(key, name, 0, type, reinterpret_cast<const BYTE*>(data.c_str()),
                                 static_cast<DWORD>((data.size() + 1) * sizeof(wchar_t))),
                  ERROR_SUCCESS);
    }

    HKEY key = nullptr;
    platform::win32::Registry registry;
    system_items::cReg reg{registry};
};

TEST_F(RegistryRoundTrip, NamesAndStringsComeBackAsWritten) {
    Set(L"first", REG_SZ, L"\"C:\\A B\\x.exe\" -y");
    Set(L"日本語", REG_SZ, L"メモ帳");
    Set(L"expand", REG_EXPAND_SZ, L"%windir%");
    system_items::ValueNames names;
    ASSERT_EQ(reg.GetKey(platform::RegistryHive::CurrentUser, kTestKey, names), 3);
    std::vector<std::string> found{names[0], names[1], names[2]};
    std::sort(found.begin(), found.end());
    EXPECT_EQ(found, (std::vector<std::string>{"expand", "first", "日本語"}));
    EXPECT_EQ(reg.qVal(platform::RegistryHive::CurrentUser, kTestKey, "first"), "\"C:\\A B\\x.exe\" -y");
    EXPECT_EQ(reg.qVal(platform::RegistryHive::CurrentUser, kTestKey, "日本語"), "メモ帳");
    EXPECT_THROW(reg.qVal(platform::RegistryHive::CurrentUser, kTestKey, "expand"), base::RuntimeError);
    EXPECT_EQ(reg.GetKey(platform::RegistryHive::CurrentUser, "Software\\no such key here", names), 0);
}

TEST(TcpTable, ListsALoopbackListenerWithItsPortAsShown) {
    WSADATA data{};
    ASSERT_EQ(WSAStartup(MAKEWORD(2, 2), &data), 0);
    const SOCKET listener = socket(AF_INET, SOCK_STREAM, IPPROTO_TCP);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    int length = sizeof address;
    ASSERT_EQ(bind(listener, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    ASSERT_EQ(listen(listener, 1), 0);
    ASSERT_EQ(getsockname(listener, reinterpret_cast<sockaddr*>(&address), &length), 0);
    const int port = ntohs(address.sin_port);

    platform::win32::IpHelper ipHelper;
    const auto rows = ipHelper.TcpTable();
    ASSERT_TRUE(rows);
    const auto found = std::find_if(rows->begin(), rows->end(), [&](const platform::TcpTableRow& row) {
        return row.localAddress == std::array<std::uint8_t, 4>{127, 0, 0, 1} &&
               row.localPort[0] == (port >> 8) && row.localPort[1] == (port & 0xFF);
    });
    ASSERT_NE(found, rows->end());
    EXPECT_EQ(network::TcpStateText(found->state), "LISTEN");
    closesocket(listener);
    WSACleanup();
}

}  // namespace

namespace {

TEST(StartupFolder, SavesAndReplacesAShortcutThere) {
    platform::win32::StartupFolder startup;
    const auto folder = startup.Path();
    ASSERT_TRUE(folder);
    const std::string file = *folder + "\\" + system_items::ShortcutName("platform_test");
    ASSERT_TRUE(startup.SaveShortcut(file, "C:\\windows\\notepad.exe"));
    ASSERT_TRUE(startup.SaveShortcut(file, "C:\\windows\\regedit.exe"));
    const std::wstring wide = base::Widen(file);
    EXPECT_NE(GetFileAttributesW(wide.c_str()), INVALID_FILE_ATTRIBUTES);
    EXPECT_TRUE(DeleteFileW(wide.c_str()));
}

// The echo address lives in a section of its own because the settings writer replaces "main".
TEST(Profile, ReplacingOneSectionKeepsTheOthers) {
    wchar_t folder[MAX_PATH];
    ASSERT_NE(GetTempPathW(MAX_PATH, folder), 0u);
    const std::string file = base::Narrow(folder) + "lookout_sections.ini";
    platform::win32::Profile profile;
    ASSERT_TRUE(profile.WriteSection(file, "main", std::string("time=10\0", 8)));
    ASSERT_TRUE(profile.WriteSection(file, "utility", std::string("echo_url=http://127.0.0.1:1/\0", 29)));
    ASSERT_TRUE(profile.WriteSection(file, "main", std::string("time=20\0", 8)));
    EXPECT_EQ(network::EchoAddress(profile, file), "http://127.0.0.1:1/");
    DeleteFileW(base::Widen(file).c_str());
}

}  // namespace
