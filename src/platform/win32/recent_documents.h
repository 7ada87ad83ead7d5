#pragma once
#include "platform/shell.h"

namespace platform::win32 {

class RecentDocuments : public IRecentDocuments {
public:
    // SHAddToRecentDocs with no document empties the list.
    void Clear() override;
};

}  // namespace platform::win32
