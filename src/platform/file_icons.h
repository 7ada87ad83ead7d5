#pragma once
// The small-icon image list of one list view: image n belongs to row n.
#include <string>

namespace platform {

class IIconList {
public:
    virtual ~IIconList() = default;
    virtual void Clear() = 0;
    // Appends the shell's small icon of the file (its system image list entry drawn transparently
    // into a 16 x 16 picture). False, appending nothing, when the shell gives no icon list for it.
    virtual bool AddFileIcon(const std::string& path) = 0;
    // Appends the stand-by picture of files without an icon (PicQuestion).
    virtual void AddStandByIcon() = 0;
};

}  // namespace platform
