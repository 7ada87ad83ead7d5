#pragma once
// cReg: the two registry questions of the startup tab, with the limits the tab has always had.
#include <string>

#include "base/fixed_array.h"
#include "platform/registry.h"

namespace system_items {

// Room for 51 value names (indexes 0 to 50).
using ValueNames = base::FixedArray<std::string, 0, 50>;

class cReg {
public:
    explicit cReg(platform::IRegistry& registry) : m_registry(registry) {}

    // The key's value names in enumeration order; returns how many. A key that cannot be opened
    // has none; a 52nd name raises the subscript error.
    int GetKey(platform::RegistryHive hive, const std::string& path, ValueNames& names);
    // A string value's text; "Error" when it cannot be read after all. Any other type (and a
    // value that cannot even be queried) raises the type-mismatch error.
    std::string qVal(platform::RegistryHive hive, const std::string& path, const std::string& name);

private:
    platform::IRegistry& m_registry;
};

}  // namespace system_items
