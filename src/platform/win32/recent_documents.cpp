#include "platform/win32/recent_documents.h"

#include <windows.h>
#include <shlobj.h>

namespace platform::win32 {

void RecentDocuments::Clear() { SHAddToRecentDocs(SHARD_PIDL, nullptr); }

}  // namespace platform::win32
