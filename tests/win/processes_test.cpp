// The process seams against the real system: this test program's own process, its icon and
// its import table.
#include <windows.h>
#include <commctrl.h>

#include <gtest/gtest.h>

#include "base/win32/unique_resource.h"
#include "base/win32/window.h"
#include "platform/win32/icon_list.h"

namespace {

base::UniqueHwnd ListView() {
    return base::UniqueHwnd(CreateWindowExW(0, WC_LISTVIEWW, L"", WS_POPUP | LVS_REPORT | LVS_SHAREIMAGELISTS, 0, 0,
                                            200, 100, nullptr, nullptr, base::ModuleInstance(), nullptr));
}

std::string OwnPath() {
    char path[MAX_PATH]{};
    GetModuleFileNameA(nullptr, path, MAX_PATH);
    return path;
}

// The colour of the image's pixel at (x, y) drawn on white.
COLORREF PixelOf(HIMAGELIST images, int index, int x, int y) {
    const base::UniqueDc dc(CreateCompatibleDC(nullptr));
    base::WindowDc screen(nullptr);
    const base::UniqueBitmap bitmap(CreateCompatibleBitmap(screen.Get(), 16, 16));
    base::SelectedObject selected(dc.Get(), bitmap.Get());
    const RECT all{0, 0, 16, 16};
    FillRect(dc.Get(), &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    ImageList_Draw(images, index, dc.Get(), 0, 0, ILD_TRANSPARENT);
    return GetPixel(dc.Get(), x, y);
}

TEST(IconListWindow, ShownByItsListViewWithOneImagePerAddedIcon) {
    const base::UniqueHwnd list = ListView();
    ASSERT_TRUE(list);
    platform::win32::IconList icons(list.Get());
    EXPECT_EQ(reinterpret_cast<HIMAGELIST>(SendMessageW(list.Get(), LVM_GETIMAGELIST, LVSIL_SMALL, 0)),
              icons.Handle());
    icons.AddStandByIcon();
    // The question mark's stroke, and the transparent corner.
    EXPECT_EQ(PixelOf(icons.Handle(), 0, 8, 2), RGB(0xC0, 0x40, 0x20));
    EXPECT_EQ(PixelOf(icons.Handle(), 0, 0, 0), RGB(255, 255, 255));
    // Wine's shell gives no icon list for the flags asked (it answers 0 to any set that holds
    // SHGFI_EXETYPE with others); on Windows the file's icon is added.
    const bool added = icons.AddFileIcon(OwnPath());
    EXPECT_EQ(ImageList_GetImageCount(icons.Handle()), added ? 2 : 1);
    int width = 0, height = 0;
    ImageList_GetIconSize(icons.Handle(), &width, &height);
    EXPECT_EQ(width, 16);
    EXPECT_EQ(height, 16);
    icons.Clear();
    EXPECT_EQ(ImageList_GetImageCount(icons.Handle()), 0);
}

}  // namespace
