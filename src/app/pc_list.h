#pragma once
// An allow or deny list of PCs: slot 0 is the switch ("OK" = enforced), slots 1 to 20 the
// entries as typed. Only slots 2 to 20 are compared by the session guard.
#include <string>

#include "base/fixed_array.h"

namespace app {

using PcList = base::FixedArray<std::string, 0, 20>;

inline constexpr const char* kListOn = "OK";
inline constexpr const char* kListOff = "NG";

inline bool IsEnforced(const PcList& list) { return list[0] == kListOn; }

}  // namespace app
