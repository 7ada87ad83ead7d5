#pragma once
#include "platform/wnet.h"

namespace platform::win32 {

class WNet : public IWNet {
public:
    OpenedEnumeration OpenEnum(std::uint32_t scope, std::uint32_t type, std::uint32_t usage,
                               const NetResource& container) override;
};

}  // namespace platform::win32
