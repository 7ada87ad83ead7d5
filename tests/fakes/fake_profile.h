#pragma once
// The profile functions over the fake file system: sections of "key=value" lines, CR LF.
#include "fakes/fake_file_system.h"
#include "platform/profile.h"

namespace fakes {

class FakeProfile : public platform::IProfile {
public:
    explicit FakeProfile(FakeFileSystem& files) : m_files(files) {}

    std::string ReadSection(const std::string& file, const std::string& section) override;
    bool WriteSection(const std::string& file, const std::string& section, const std::string& entries) override;
    bool WriteString(const std::string& file, const std::string& section, const std::string& key,
                     const std::string& value) override;

    bool failWrites = false;

private:
    FakeFileSystem& m_files;
};

}  // namespace fakes
