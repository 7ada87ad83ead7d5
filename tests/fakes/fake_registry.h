#pragma once
// A registry of keys holding values in insertion order. A value can be made to fail its read.
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

class FakeRegistry : public platform::IRegistry {
public:
    using Values = std::vector<FakeRegistryValue>;

    std::unique_ptr<platform::IRegistryKey> OpenKey(platform::RegistryHive hive, const std::string& path) override {
        const auto found = keys.find({hive, path});
        return found == keys.end() ? nullptr : std::make_unique<Key>(found->second);
    }

    std::map<std::pair<platform::RegistryHive, std::string>, Values> keys;

private:
    class Key : public platform::IRegistryKey {
    public:
        explicit Key(const Values& values) : m_values(values) {}
        std::optional<std::string> ValueName(std::uint32_t index) override {
            if (index >= m_values.size()) return std::nullopt;
            return m_values[index].name;
        }
        std::optional<platform::RegistryValueInfo> QueryValue(const std::string& name) override {
            const FakeRegistryValue* value = Find(name);
            if (!value) return std::nullopt;
            return platform::RegistryValueInfo{value->type, static_cast<std::uint32_t>(value->text.size() + 1)};
        }
        std::optional<std::string> ReadText(const std::string& name, std::uint32_t) override {
            const FakeRegistryValue* value = Find(name);
            if (!value || value->readFails) return std::nullopt;
            return value->text;
        }

    private:
        const FakeRegistryValue* Find(const std::string& name) const {
            for (const auto& value : m_values) {
                if (value.name == name) return &value;
            }
            return nullptr;
        }
        const Values& m_values;
    };
};

}  // namespace fakes
