// The per-user program settings read from the registry key the program's settings live under.
#include <windows.h>

#include <gtest/gtest.h>

#include "platform/win32/program_settings.h"

namespace {

TEST(ProgramSettings, ReadsATextValueAndKnowsAnAbsentOne) {
    const wchar_t* key = L"Software\\VB and VBA Program Settings\\Veskar_Lookout\\app";
    HKEY opened = nullptr;
    ASSERT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, key, 0, nullptr, 0, KEY_SET_VALUE, nullptr, &opened, nullptr), 0);
    const std::wstring path = L"D:\\リスト\\app.ini";
    RegSetValueExW(opened, L"Filename", 0, REG_SZ, reinterpret_cast<const BYTE*>(path.c_str()),
                   static_cast<DWORD>((path.size() + 1) * sizeof(wchar_t)));
    RegCloseKey(opened);
    platform::win32::ProgramSettings settings;
    EXPECT_EQ(settings.GetSetting("Veskar_Lookout", "app", "Filename"), "D:\\リスト\\app.ini");
    EXPECT_EQ(settings.GetSetting("Veskar_Lookout", "app", "MaxSize"), std::nullopt);
    RegDeleteKeyW(HKEY_CURRENT_USER, key);
}

}  // namespace
