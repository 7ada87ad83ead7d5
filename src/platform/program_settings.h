#pragma once
// The operating system's per-user store of program settings: values by application, section
// and key. Read only.
#include <optional>
#include <string>

namespace platform {

class IProgramSettings {
public:
    virtual ~IProgramSettings() = default;
    // The stored text, or nothing when the value is absent.
    virtual std::optional<std::string> GetSetting(const std::string& application, const std::string& section,
                                                  const std::string& key) = 0;
};

}  // namespace platform
