#pragma once
// The icons of a list whose rows name program files (the process, applications and startup
// tabs): image n is the icon of row n's file, and row n shows image n.
#include <cstddef>
#include <string>

#include "base/table_model.h"
#include "platform/dialogs.h"
#include "platform/file_icons.h"

namespace mainwindow {

// The error texts of the calling tab's icon routines.
struct IconErrorTexts {
    const char* allIcons;  // the routine that loads them all
    const char* oneIcon;   // the routine that adds one
};

// The rule for one file: the shell's small icon, or the stand-by picture for "SYSTEM" and for
// files the shell has no icon list for.
void AddFileOrStandByIcon(platform::IIconList& icons, const std::string& path);

// Clears the image list and adds one icon per row, from the row's path in pathColumn.
void LoadRowIcons(platform::IIconList& icons, const base::TableModel& list, std::size_t pathColumn,
                  platform::IDialogs& dialogs, const IconErrorTexts& texts);

}  // namespace mainwindow
