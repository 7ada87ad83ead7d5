#pragma once
// pcset.ini (allow list) and pcset2.ini (deny list): up to 21 records, one per line, each a
// quoted text followed by CR LF; record 1 is the switch, records 2 to 21 the entries.
#include <array>
#include <string>

#include "app/pc_list.h"
#include "platform/files.h"

namespace app {

inline constexpr const char* kAllowListFile = "pcset.ini";
inline constexpr const char* kDenyListFile = "pcset2.ini";

// Creates a missing file with the single record "NG", then reads its records into slots
// 0, 1, 2 ... A file with more than 21 records raises the runtime's subscript error.
void LoadPcList(platform::IFileSystem& files, const std::string& path, PcList& list);

// Writes the switch and the twenty entries as 21 records. A file that cannot be opened for
// writing raises the runtime's path/file access error: nothing on the way traps it.
void SavePcList(platform::IFileSystem& files, const std::string& path, bool enforced,
                const std::array<std::string, 20>& entries);

}  // namespace app
