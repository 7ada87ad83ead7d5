#pragma once
// The registry, read only: open a key, list its value names, read a value. Names and texts are
// UTF-8 here; the system is asked through its ANSI functions.
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace platform {

enum class RegistryHive { CurrentUser, LocalMachine };

namespace regtype {
constexpr std::uint32_t kString = 1;        // REG_SZ
constexpr std::uint32_t kExpandString = 2;  // REG_EXPAND_SZ
}  // namespace regtype

struct RegistryValueInfo {
    std::uint32_t type = 0;
    std::uint32_t size = 0;  // bytes
};

// An open key; closing it is the destructor's job.
class IRegistryKey {
public:
    virtual ~IRegistryKey() = default;
    // RegEnumValueA at this index with a name buffer of 2000 characters: the name cut to the
    // returned length; nothing when the call fails (no more values).
    virtual std::optional<std::string> ValueName(std::uint32_t index) = 0;
    // RegQueryValueExA without a buffer: the value's type and size; nothing when it fails.
    virtual std::optional<RegistryValueInfo> QueryValue(const std::string& name) = 0;
    // RegQueryValueExA into a buffer of size bytes: the text up to its first null character;
    // nothing when the call fails.
    virtual std::optional<std::string> ReadText(const std::string& name, std::uint32_t size) = 0;
};

class IRegistry {
public:
    virtual ~IRegistry() = default;
    // RegOpenKeyExA with KEY_READ; nothing when the key cannot be opened.
    virtual std::unique_ptr<IRegistryKey> OpenKey(RegistryHive hive, const std::string& path) = 0;
};

}  // namespace platform
