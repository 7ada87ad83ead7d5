#include "app/options_model.h"

#include <gtest/gtest.h>

#include "app/interface_list.h"
#include "fakes/fake_dialogs.h"
#include "fakes/fake_file_system.h"
#include "fakes/fake_profile.h"
#include "unit/expect_runtime_error.h"

namespace app {
namespace {

class OptionsModelTest : public ::testing::Test {
protected:
    OptionsModelTest() { program.folder = "C:\\L\\"; }

    Program program;
    fakes::FakeFileSystem files;
    fakes::FakeProfile profile{files};
    fakes::FakeDialogs dialogs;
    OptionsModel model{program, files, profile, dialogs, {"0: lo", "1: eth0"}};
};

TEST_F(OptionsModelTest, LoadFillsTheControlsFromTheFiles) {
    files.Put("C:\\L\\setting.ini", "[main]\r\ntime=30\r\nopen=1\r\nstart=0\r\nfontcolor=65280\r\nnc=1: eth0\r\n");
    files.Put("C:\\L\\pcset2.ini", "\"OK\"\r\n\"first\"\r\n\"second\"\r\n");
    model.Load();
    EXPECT_EQ(model.interfaceText, "1: eth0");
    EXPECT_TRUE(model.open);
    EXPECT_FALSE(model.start);
    EXPECT_EQ(model.swatches[static_cast<int>(Swatch::Text)], 65280u);
    EXPECT_TRUE(model.deny.enabled);
    EXPECT_EQ(model.deny.entries[1], "second");
    EXPECT_FALSE(model.allow.enabled);      // pcset.ini was missing: created "NG"
    EXPECT_EQ(program.settings.time, "30");  // the settings were read again
}

TEST_F(OptionsModelTest, OkWritesBothListsAndTheSettingsAndUpdatesMemory) {
    model.Load();
    model.allow.enabled = false;
    model.deny.enabled = true;
    model.deny.entries[1] = "BADPC";
    model.interval = "5";
    model.interfaceText = "0: lo";
    model.open = true;
    model.window = false;
    model.Ok();

    std::string ng = "\"NG\"\r\n";
    for (int i = 0; i < 20; ++i) ng += "\"\"\r\n";
    EXPECT_EQ(files.Get("C:\\L\\pcset.ini"), ng);
    EXPECT_EQ(files.Get("C:\\L\\pcset2.ini").substr(0, 19), "\"OK\"\r\n\"\"\r\n\"BADPC\"\r\n");
    EXPECT_EQ(program.denyList[2], "BADPC");  // the lists take effect at once
    EXPECT_EQ(files.Get("C:\\L\\setting.ini"),
              "[main]\r\ntime=5\r\nopen=1\r\nstart=1\r\npacket=1\r\nbeep=0\r\nlogflag=1\r\n"
              "backcolor=16777215\r\nfontcolor=0\r\nwindow=0\r\nnc=0: lo\r\nfront=0\r\napp=0\r\n");
}

TEST_F(OptionsModelTest, AListThatCannotBeWrittenRaisesAnErrorBeforeTheSettingsAreWritten) {
    model.Load();
    const std::string settings = files.Get("C:\\L\\setting.ini");
    model.interval = "7";
    for (const char* list : {"C:\\L\\pcset.ini", "C:\\L\\pcset2.ini"}) {
        files.unwritable = {list};
        SCOPED_TRACE(list);
        ExpectRuntimeError(base::RuntimeErrorNumber::PathFileAccess, [&] { model.Ok(); });
        EXPECT_EQ(files.Get("C:\\L\\setting.ini"), settings);
    }
}

TEST_F(OptionsModelTest, ColourDialogChangesTheSwatchOnlyWhenConfirmed) {
    dialogs.colourAnswer = 0x123456;
    model.ChooseSwatchColour(Swatch::Background);
    dialogs.colourAnswer.reset();
    model.ChooseSwatchColour(Swatch::Background);
    EXPECT_EQ(model.swatches[static_cast<int>(Swatch::Background)], 0x123456u);
}

// The texts themselves are pinned where the monitoring loads them.
TEST(InterfaceList, TheCounterIsOneByte) {
    EXPECT_EQ(InterfaceTexts(std::vector<platform::InterfaceRow>(256)).back(), "255: ");
    EXPECT_THROW(InterfaceTexts(std::vector<platform::InterfaceRow>(257)), base::RuntimeError);
}

}  // namespace
}  // namespace app
