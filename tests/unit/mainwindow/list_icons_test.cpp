#include "mainwindow/list_icons.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "fakes/fake_dialogs.h"
#include "fakes/fake_icon_list.h"

namespace mainwindow {
namespace {

const IconErrorTexts kTexts{"all failed", "one failed"};

// An image list that cannot take the icon of one file.
struct BrokenIconList : fakes::FakeIconList {
    bool AddFileIcon(const std::string& path) override {
        if (path == "C:\\broken.exe") throw std::runtime_error("ImageList_AddMasked");
        return FakeIconList::AddFileIcon(path);
    }
};

TEST(ListIcons, OneImagePerRowWithTheStandByPictureForSystemAndFilesWithoutIcon) {
    base::TableModel list;
    list.AddRow({"a", "C:\\a.exe"});
    list.AddRow({"b", "SYSTEM"});
    list.AddRow({"c", "C:\\plain.dat"});
    fakes::FakeIconList icons;
    icons.images = {"old"};
    icons.noIcon = {"C:\\plain.dat"};
    fakes::FakeDialogs dialogs;

    LoadRowIcons(icons, list, 1, dialogs, kTexts);
    AssignRowIcons(list);

    EXPECT_EQ(icons.images, (std::vector<std::string>{"C:\\a.exe", "?", "?"}));
    for (std::size_t row = 0; row < 3; ++row) EXPECT_EQ(list.Icon(row), static_cast<int>(row));
    EXPECT_TRUE(dialogs.messages.empty());
}

TEST(ListIcons, AFailedIconShowsItsOwnTextAndTheOtherRowsStillGetTheirs) {
    base::TableModel list;
    list.AddRow({"C:\\broken.exe"});
    list.AddRow({"C:\\b.exe"});
    BrokenIconList icons;
    fakes::FakeDialogs dialogs;

    LoadRowIcons(icons, list, 0, dialogs, kTexts);

    EXPECT_EQ(icons.images, (std::vector<std::string>{"C:\\b.exe"}));
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.messages[0].text, "one failed");
}

}  // namespace
}  // namespace mainwindow
