// The real file and profile wrappers under the Japanese code page.
#include <windows.h>

#include <gtest/gtest.h>

#include "app/settings_file.h"
#include "base/text_encoding.h"
#include "base/win32/wide.h"
#include "platform/win32/dialogs.h"
#include "platform/win32/file_system.h"
#include "platform/win32/profile.h"

namespace {

class PlatformFiles : public ::testing::Test {
protected:
    void SetUp() override {
        wchar_t temp[MAX_PATH];
        ASSERT_GT(GetTempPathW(MAX_PATH, temp), 0u);
        folder = base::Narrow(temp) + "監視テスト" + std::to_string(GetCurrentProcessId());
        ASSERT_TRUE(files.CreateFolder(folder));
    }
    void TearDown() override {
        for (const char* name : {"\\setting.ini", "\\pcset.ini", "\\a.txt"}) DeleteFileW(base::Widen(folder + name).c_str());
        RemoveDirectoryW(base::Widen(folder).c_str());
    }

    platform::win32::FileSystem files;
    std::string folder;
};

TEST_F(PlatformFiles, WritesAppendsAndMeasuresFiles) {
    const std::string path = folder + "\\a.txt";
    EXPECT_FALSE(files.FileExists(path));
    EXPECT_TRUE(files.FolderExists(folder));
    EXPECT_FALSE(files.FileExists(folder));
    ASSERT_TRUE(files.Open(path, platform::OpenMode::Output)->Write("abc\r\n"));
    ASSERT_TRUE(files.Open(path, platform::OpenMode::Append)->Write(base::Utf8ToAnsi("監視\r\n")));
    EXPECT_EQ(files.FileSize(path), 11u);
    EXPECT_EQ(files.ReadAll(path), "abc\r\n\x8a\xc4\x8e\x8b\r\n");
    files.Open(path, platform::OpenMode::Output)->Write("x");
    EXPECT_EQ(files.ReadAll(path), "x");
    EXPECT_EQ(files.Open(folder + "\\missing\\b.txt", platform::OpenMode::Output), nullptr);
}

TEST_F(PlatformFiles, SettingsRoundTripThroughTheProfileFunctionsInShiftJis) {
    platform::win32::Profile profile;
    platform::win32::Dialogs dialogs;
    // The program folder ends in a separator and the settings path doubles it.
    app::SettingsFile file(folder + "\\", files, profile, dialogs);
    app::Settings settings;
    settings.nc = "1: ネットワーク アダプタ";
    file.Write(settings);
    app::Settings again;
    file.Read(again);
    EXPECT_EQ(again.nc, "1: ネットワーク アダプタ");
    const auto bytes = files.ReadAll(folder + "\\setting.ini");
    ASSERT_TRUE(bytes);
    EXPECT_NE(bytes->find(base::Utf8ToAnsi("nc=1: ネットワーク アダプタ")), std::string::npos);
}

}  // namespace
