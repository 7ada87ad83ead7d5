#include "platform/win32/registry.h"

#include <windows.h>

#include <vector>

#include "base/text_encoding.h"
#include "base/win32/unique_resource.h"

namespace platform::win32 {
namespace {

constexpr DWORD kNameCharacters = 2000;

class RegistryKey final : public IRegistryKey {
public:
    explicit RegistryKey(HKEY key) : m_key(key) {}

    std::optional<std::string> ValueName(std::uint32_t index) override {
        char name[kNameCharacters];
        DWORD length = kNameCharacters;
        if (RegEnumValueA(m_key.Get(), index, name, &length, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS) {
            return std::nullopt;
        }
        return base::AnsiToUtf8(std::string_view(name, length));
    }

    std::optional<RegistryValueInfo> QueryValue(const std::string& name) override {
        const std::string ansi = base::Utf8ToAnsi(name);
        DWORD type = 0;
        DWORD size = 0;
        if (RegQueryValueExA(m_key.Get(), ansi.c_str(), nullptr, &type, nullptr, &size) != ERROR_SUCCESS) {
            return std::nullopt;
        }
        return RegistryValueInfo{type, size};
    }

    std::optional<std::string> ReadText(const std::string& name, std::uint32_t size) override {
        const std::string ansi = base::Utf8ToAnsi(name);
        std::vector<char> buffer(size + 1, '\0');  // one more: a value stored without its null
        DWORD length = size;
        if (RegQueryValueExA(m_key.Get(), ansi.c_str(), nullptr, nullptr, reinterpret_cast<BYTE*>(buffer.data()),
                             &length) != ERROR_SUCCESS) {
            return std::nullopt;
        }
        return base::AnsiToUtf8(std::string_view(buffer.data()));
    }

private:
    base::UniqueRegKey m_key;
};

HKEY Root(RegistryHive hive) { return hive == RegistryHive::CurrentUser ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE; }

}  // namespace

std::unique_ptr<IRegistryKey> Registry::OpenKey(RegistryHive hive, const std::string& path) {
    const std::string ansi = base::Utf8ToAnsi(path);
    HKEY key = nullptr;
    if (RegOpenKeyExA(Root(hive), ansi.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return nullptr;
    return std::make_unique<RegistryKey>(key);
}

}  // namespace platform::win32
