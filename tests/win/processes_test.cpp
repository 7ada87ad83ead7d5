// The process seams on this test program itself: its process, its icon, its file's imports.
#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>


#include "platform/win32/icon_list.h"
#include "platform/win32/image_help.h"
#include "platform/win32/processes.h"
#include "processes/import_table.h"
#include "processes/process_list.h"

namespace {

TEST(ProcessesSystem, ThisProgramsProcessIconAndImports) {
    char path[MAX_PATH]{};
    const std::string ownPath(path, GetModuleFileNameA(nullptr, path, MAX_PATH));
    platform::win32::Processes system;
    const std::vector<std::uint32_t> ids = processes::EnumerateProcessIds(system);
    EXPECT_NE(std::find(ids.begin(), ids.end(), GetCurrentProcessId()), ids.end());
    EXPECT_EQ(system.FirstModulePath(GetCurrentProcessId()), ownPath);
    EXPECT_GT(system.WorkingSetBytes(GetCurrentProcessId()), 0u);
    EXPECT_FALSE(system.FirstModulePath(0));  // the idle process cannot be opened
    platform::win32::IconList icons(nullptr);
    icons.AddStandByIcon();  // Wine's shell answers 0 to the flags asked; Windows gives the icon
    EXPECT_EQ(ImageList_GetImageCount(icons.Handle()), icons.AddFileIcon(ownPath) ? 2 : 1);
    // The mapped file holds the imports the loader resolved.
    const auto base = reinterpret_cast<const BYTE*>(GetModuleHandleW(nullptr));
    const auto* nt = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + reinterpret_cast<const IMAGE_DOS_HEADER*>(base)->e_lfanew);
    const DWORD table = nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    std::vector<std::string> loaded, names;
    for (auto d = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + table); d->Name; ++d)
        loaded.emplace_back(reinterpret_cast<const char*>(base + d->Name));
    EXPECT_TRUE(platform::win32::ImageHelp().ReadMappedImage(
        ownPath, [&](std::span<const std::uint8_t> image) { names = processes::ImportedLibraryNames(image); }));
    EXPECT_EQ(names, loaded);
}

}  // namespace
