#pragma once
#include "platform/registry.h"

namespace platform::win32 {

class Registry final : public IRegistry {
public:
    std::unique_ptr<IRegistryKey> OpenKey(RegistryHive hive, const std::string& path) override;
};

}  // namespace platform::win32
