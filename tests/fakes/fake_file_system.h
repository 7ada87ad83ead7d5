#pragma once
// An in-memory file system. Files can be made unwritable to test failure paths.
#include <map>
#include <set>
#include <string>

#include "platform/files.h"

namespace fakes {

class FakeFileSystem : public platform::IFileSystem {
public:
    bool FileExists(const std::string& path) override;
    bool FolderExists(const std::string& path) override;
    bool CreateFolder(const std::string& path) override;
    std::optional<std::uint64_t> FileSize(const std::string& path) override;
    std::unique_ptr<platform::IOutputFile> Open(const std::string& path, platform::OpenMode mode) override;
    std::optional<std::string> ReadAll(const std::string& path) override;

    // Test set-up and inspection.
    void Put(const std::string& path, std::string bytes) { files[Normalise(path)] = std::move(bytes); }
    std::string Get(const std::string& path) const;
    bool Has(const std::string& path) const { return files.count(Normalise(path)) != 0; }

    std::map<std::string, std::string> files;
    std::set<std::string> folders;
    std::set<std::string> unwritable;     // Open fails for these paths
    bool failFolderCreation = false;

    // Doubled separators name the same file, as on Windows.
    static std::string Normalise(const std::string& path);
};

}  // namespace fakes
