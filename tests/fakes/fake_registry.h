#pragma once
// A registry of keys holding values in insertion order; a value can be made to fail its read.
#include <algorithm>
#include <map>
#include <utility>
#include <vector>

#include "platform/registry.h"

namespace fakes {

struct FakeRegistryValue {
    std::string name;
    std::uint32_t type = platform::regtype::kString;
    std::string text;
    bool readFails = false;
};
using FakeRegistryKey = std::vector<FakeRegistryValue>;

class FakeRegistry : public platform::IRegistry {
    struct Key : platform::IRegistryKey {
        explicit Key(const FakeRegistryKey& values) : values(values) {}
        std::optional<std::string> ValueName(std::uint32_t i) override {
            return i < values.size() ? std::optional(values[i].name) : std::nullopt;
        }
        std::optional<platform::RegistryValueInfo> QueryValue(const std::string& name) override {
            return Find(name) ? std::optional(platform::RegistryValueInfo{Find(name)->type, 0}) : std::nullopt;
        }
        std::optional<std::string> ReadText(const std::string& name, std::uint32_t) override {
            return Find(name) && !Find(name)->readFails ? std::optional(Find(name)->text) : std::nullopt;
        }
        const FakeRegistryValue* Find(const std::string& name) const {
            const auto found = std::find_if(values.begin(), values.end(), [&](auto& v) { return v.name == name; });
            return found == values.end() ? nullptr : &*found;
        }
        const FakeRegistryKey& values;
    };

public:
    std::unique_ptr<platform::IRegistryKey> OpenKey(platform::RegistryHive hive, const std::string& path) override {
        const auto found = keys.find({hive, path});
        return found == keys.end() ? nullptr : std::make_unique<Key>(found->second);
    }
    std::map<std::pair<platform::RegistryHive, std::string>, FakeRegistryKey> keys;
};

}  // namespace fakes
