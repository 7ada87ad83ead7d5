#include <gtest/gtest.h>

#include "base/text_encoding.h"
#include "mainwindow/about_box.h"
#include "mainwindow/list_columns.h"
#include "mainwindow/maker_web_site.h"
#include "unit/mainwindow/main_window_fixture.h"

namespace mainwindow {
namespace {

using enum MenuItem;

// The style is read from the check mark; the mark itself is read from the real menu end to end.
TEST_F(MainWindowTest, GridLinesFollowTheCheckMark) {
    EXPECT_EQ(model.TabListStyle(), 0x20u);
    model.MenuClick(mnuGRID);
    EXPECT_EQ(model.TabListStyle(), 0x21u);
    model.MenuClick(mnuGRID);
    EXPECT_EQ(model.TabListStyle(), 0x20u);
}

// The reset differs from the load-time widths in three columns only, and leaves lstvPc alone.
TEST_F(MainWindowTest, ResetWidthsDifferFromTheLoadWidthsInThreeColumns) {
    std::vector<std::string> differences;
    for (const ColumnWidths& reset : ResetColumnWidths()) {
        EXPECT_NE(reset.list, ListId::lstvPc);
        const auto loaded = Columns(reset.list);
        ASSERT_EQ(reset.twips.size(), loaded.size());
        for (std::size_t i = 0; i < loaded.size(); ++i) {
            if (reset.twips[i] == loaded[i].widthTwips) continue;
            differences.push_back(std::string(loaded[i].caption) + " " +
                                  std::to_string(reset.twips[i] - loaded[i].widthTwips));
        }
    }
    EXPECT_EQ(differences, (std::vector<std::string>{"パス 100", "パス 50", "コマンド 50"}));
    model.MenuClick(mnuITEM_HABA);
    EXPECT_EQ(view.Count(Change::ColumnWidths), 1);
}

TEST_F(MainWindowTest, AlwaysOnTopWhileMinimisedOnlyChecksTheItem) {
    model.SetMinimised(true);
    model.MenuClick(mnuFRONT);
    EXPECT_TRUE(model.MenuChecked(mnuFRONT));
    EXPECT_FALSE(model.AlwaysOnTop());
    model.SetMinimised(false);
    model.MenuClick(mnuFRONT);
    EXPECT_FALSE(model.MenuChecked(mnuFRONT));
    EXPECT_FALSE(model.AlwaysOnTop());
    model.MenuClick(mnuFRONT);
    EXPECT_TRUE(model.AlwaysOnTop());
}

TEST(AboutBox, CaptionAndVersionLabel) {
    const AboutTexts texts = MakeAboutTexts({1, 0, 12});
    EXPECT_EQ(texts.caption, "Veskar_Lookout （ﾊﾞｰｼﾞｮﾝ情報）");
    EXPECT_EQ(texts.versionLabel, "Veskar_Lookout Version.1.0.12");
}

// A browser that opens the page shows no message: that is seen end to end.
struct FailingBrowser : platform::IBrowser {
    bool Navigate(const std::string&) override { return false; }
};

TEST(MakerWebSite, AFailingBrowserIsReportedInAMessageBox) {
    FailingBrowser browser;
    fakes::FakeDialogs dialogs;
    OpenMakerWebSite(browser, dialogs);
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.messages[0].text, "WEB サイト表示 でエラーが発生しました。");
}

}  // namespace
}  // namespace mainwindow
