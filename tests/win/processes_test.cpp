// The process seams where the process tab scenario cannot reach them: a process that cannot be
// opened, and file icons (the tab's own rows, memory, path and imports are checked end to end).
#include <windows.h>

#include <gtest/gtest.h>

#include "platform/win32/icon_list.h"
#include "platform/win32/processes.h"

namespace {

TEST(ProcessesSystem, TheIdleProcessHasNoPathAndAFileGetsItsIconOrNone) {
    EXPECT_FALSE(platform::win32::Processes().FirstModulePath(0));  // the idle process cannot be opened
    char path[MAX_PATH]{};
    const std::string ownPath(path, GetModuleFileNameA(nullptr, path, MAX_PATH));
    platform::win32::IconList icons(nullptr);
    icons.AddStandByIcon();  // Wine's shell answers 0 to the flags asked; Windows gives the icon
    EXPECT_EQ(ImageList_GetImageCount(icons.Handle()), icons.AddFileIcon(ownPath) ? 2 : 1);
}

}  // namespace
