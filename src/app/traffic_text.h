#pragma once
// Traffic figures as the main monitor shows them: thousands of octets, not 1024.
#include <string>

#include "base/conversions.h"
#include "base/format.h"

namespace app {

inline std::string KilobyteFigure(const std::string& octetsText) {
    return base::FormatThousands(base::Val(octetsText) / 1000);
}

}  // namespace app
