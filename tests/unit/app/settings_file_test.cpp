#include "app/settings_file.h"

#include <gtest/gtest.h>

#include "base/runtime_error.h"
#include "fakes/fake_dialogs.h"
#include "fakes/fake_file_system.h"
#include "fakes/fake_profile.h"

namespace app {
namespace {

class SettingsFileTest : public ::testing::Test {
protected:
    fakes::FakeFileSystem files;
    fakes::FakeProfile profile{files};
    fakes::FakeDialogs dialogs;
    SettingsFile file{"C:\\Lookout\\", files, profile, dialogs};
    Settings settings;
};

TEST_F(SettingsFileTest, MissingFileIsCreatedWithTheDefaults) {
    file.Read(settings);
    EXPECT_EQ(file.Path(), "C:\\Lookout\\\\setting.ini");
    EXPECT_EQ(files.Get("C:\\Lookout\\setting.ini"),
              "[main]\r\ntime=10\r\nopen=0\r\nstart=1\r\npacket=1\r\nbeep=0\r\nlogflag=1\r\n"
              "backcolor=16777215\r\nfontcolor=0\r\nwindow=1\r\nnc=\r\nfront=0\r\napp=0\r\n");
    EXPECT_EQ(settings.time, "10");
}

TEST_F(SettingsFileTest, OnlyExactKeysWithOneEqualsSignAreTakenAndConvertedByTheRuntimeRules) {
    files.Put("C:\\Lookout\\setting.ini", "[main]\r\nTime=99\r\nnc=a=b\r\nbeep=1\r\nbackcolor=-2147483648\r\nfront=  1 \r\n"
                                          "stray\r\nunknown=5\r\n[other]\r\ntime=77\r\n");
    settings.time = "3";
    settings.nc = "0: eth0";
    file.Read(settings);
    EXPECT_EQ(settings.time, "3");       // "Time" is another key
    EXPECT_EQ(settings.nc, "0: eth0");   // two "=" make the entry unusable
    EXPECT_EQ(settings.Backcolor(), INT32_MIN);
    EXPECT_EQ(settings.front, 1);
    EXPECT_EQ(settings.beep, 1);

    files.Put("C:\\Lookout\\setting.ini", "[main]\r\nstart=256\r\n");
    EXPECT_THROW(file.Read(settings), base::RuntimeError);  // a flag above 255 overflows
    files.Put("C:\\Lookout\\setting.ini", "[main]\r\nwindow=yes\r\n");
    EXPECT_THROW(file.Read(settings), base::RuntimeError);
}

TEST_F(SettingsFileTest, EmptySectionReportsAReadErrorAndKeepsTheValues) {
    files.Put("C:\\Lookout\\setting.ini", "[other]\r\nx=1\r\n");
    settings.time = "30";
    file.Read(settings);
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.messages[0].text, "読み込みエラー");
    EXPECT_EQ(settings.time, "30");
}

TEST_F(SettingsFileTest, WriteReplacesTheWholeSectionAndKeepsOtherSections) {
    files.Put("C:\\Lookout\\setting.ini", "[main]\r\ncomment=mine\r\ntime=5\r\n[keep]\r\na=1\r\n");
    Settings s = DefaultSettings();
    s.nc = "1: ネットワーク";
    s.Fontcolor() = 255;
    file.Write(s);
    EXPECT_EQ(files.Get("C:\\Lookout\\setting.ini"),
              "[main]\r\ntime=10\r\nopen=0\r\nstart=1\r\npacket=1\r\nbeep=0\r\nlogflag=1\r\n"
              "backcolor=16777215\r\nfontcolor=255\r\nwindow=1\r\nnc=1: ネットワーク\r\nfront=0\r\napp=0\r\n"
              "[keep]\r\na=1\r\n");

    profile.failWrites = true;
    file.Write(s);
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.messages[0].text, "INIファイル書き込みエラー");
}

}  // namespace
}  // namespace app
