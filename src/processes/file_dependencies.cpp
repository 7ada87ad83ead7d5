#include "processes/file_dependencies.h"

#include "base/text_encoding.h"
#include "processes/import_table.h"

namespace processes {

std::string ShowFileDependencies(const std::string& path, DependencyServices services) {
    std::string list;
    // A folder counts as found too: it then cannot be mapped and lists nothing.
    if (!services.files.FileExists(path) && !services.files.FolderExists(path)) {
        list = "File " + path + " Doesn't Exist";
    } else {
        services.pump.DoEvents();
        services.imageHelp.ReadMappedImage(path, [&](std::span<const std::uint8_t> image) {
            for (const std::string& name : ImportedLibraryNames(image)) {
                list += base::AnsiToUtf8(name) + "\r\n";
                services.pump.DoEvents();
            }
        });
    }
    const std::string text = "\r\nFile : " + path + "\r\n\r\n" + list;
    services.dialogs.ShowMessage(text, "File Dependencies", platform::msgbox::kInformation);
    return text;
}

}  // namespace processes
