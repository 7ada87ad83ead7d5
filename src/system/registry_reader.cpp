#include "system/registry_reader.h"

#include "base/runtime_error.h"

namespace system_items {

int cReg::GetKey(platform::RegistryHive hive, const std::string& path, ValueNames& names) {
    const auto key = m_registry.OpenKey(hive, path);
    if (!key) return 0;
    int count = 0;
    while (auto name = key->ValueName(static_cast<std::uint32_t>(count))) {
        names[count] = std::move(*name);
        ++count;
    }
    return count;
}

std::string cReg::qVal(platform::RegistryHive hive, const std::string& path, const std::string& name) {
    const auto key = m_registry.OpenKey(hive, path);
    const auto info = key ? key->QueryValue(name) : std::nullopt;
    // Only strings are read; anything else ends in converting the text "ERROR" to a number.
    if (!info || info->type != platform::regtype::kString) {
        throw base::RuntimeError(base::RuntimeErrorNumber::TypeMismatch);
    }
    return key->ReadText(name, info->size).value_or("Error");
}

}  // namespace system_items
