#pragma once
// The libraries a program file imports directly, shown in a message box titled
// "File Dependencies": no recursion, no sorting, duplicates kept.
#include <string>

#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/imagehlp.h"
#include "platform/message_pump.h"

namespace processes {

struct DependencyServices {
    platform::IFileSystem& files;
    platform::IImageHelp& imageHelp;
    platform::IMessagePump& pump;
    platform::IDialogs& dialogs;
};

// Shows the box and returns its text: a line break, "File : " and the path, two line breaks,
// then one line per imported library, or "File <path> Doesn't Exist" when the path names
// nothing on disk. A file that cannot be mapped or imports nothing shows the header alone.
std::string ShowFileDependencies(const std::string& path, DependencyServices services);

}  // namespace processes
