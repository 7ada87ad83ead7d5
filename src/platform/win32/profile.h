#pragma once
#include "platform/profile.h"

namespace platform::win32 {

// The W profile functions: the file stays in the system's ANSI code page.
class Profile : public IProfile {
public:
    std::string ReadSection(const std::string& file, const std::string& section) override;
    bool WriteSection(const std::string& file, const std::string& section, const std::string& entries) override;
    bool WriteString(const std::string& file, const std::string& section, const std::string& key,
                     const std::string& value) override;
};

}  // namespace platform::win32
