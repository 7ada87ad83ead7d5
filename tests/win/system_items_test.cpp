// The registry as the startup tab reads it.
#include <windows.h>

#include <gtest/gtest.h>

#include "base/win32/wide.h"
#include "platform/win32/registry.h"
#include "system/registry_reader.h"

namespace {

TEST(Registry, NamesAndStringsComeBackAsWritten) {
    const auto hive = platform::RegistryHive::CurrentUser;
    const char* path = "Software\\Veskar_Lookout_platform_test";
    HKEY key = nullptr;
    ASSERT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, base::Widen(path).c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr,
                              &key, nullptr), ERROR_SUCCESS);
    const auto set = [&](const wchar_t* name, DWORD type, const std::wstring& data) {
        RegSetValueExW(key, name, 0, type, reinterpret_cast<const BYTE*>(data.c_str()),
                       static_cast<DWORD>((data.size() + 1) * sizeof(wchar_t)));
    };
    set(L"日本語", REG_SZ, L"\"C:\\メモ 帳\\x.exe\" -y");
    set(L"expand", REG_EXPAND_SZ, L"%windir%");
    RegCloseKey(key);
    platform::win32::Registry registry;
    system_items::cReg reg(registry);
    system_items::ValueNames names;
    ASSERT_EQ(reg.GetKey(hive, path, names), 2);
    EXPECT_EQ(reg.qVal(hive, path, "日本語"), "\"C:\\メモ 帳\\x.exe\" -y");
    EXPECT_THROW(reg.qVal(hive, path, "expand"), base::RuntimeError);
    RegDeleteKeyW(HKEY_CURRENT_USER, base::Widen(path).c_str());
    EXPECT_EQ(reg.GetKey(hive, path, names), 0);
}

}  // namespace
