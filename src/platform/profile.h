#pragma once
// The system's initialisation-file functions, one section at a time. Texts are UTF-8;
// the files themselves are in the system's ANSI code page.
#include <string>

namespace platform {

class IProfile {
public:
    virtual ~IProfile() = default;
    // The section's "key=value" entries, each followed by a null character, as the system
    // returns them into a buffer of 32767 characters; empty when it returned nothing.
    virtual std::string ReadSection(const std::string& file, const std::string& section) = 0;
    // Replaces the section with entries given in the same null-separated form.
    virtual bool WriteSection(const std::string& file, const std::string& section, const std::string& entries) = 0;
    virtual bool WriteString(const std::string& file, const std::string& section, const std::string& key,
                             const std::string& value) = 0;
};

}  // namespace platform
