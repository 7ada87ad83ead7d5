#pragma once
#include "platform/files.h"

namespace platform::win32 {

class FileSystem : public IFileSystem {
public:
    bool FileExists(const std::string& path) override;
    bool FolderExists(const std::string& path) override;
    bool CreateFolder(const std::string& path) override;
    std::optional<std::uint64_t> FileSize(const std::string& path) override;
    std::unique_ptr<IOutputFile> Open(const std::string& path, OpenMode mode) override;
    std::optional<std::string> ReadAll(const std::string& path) override;
};

}  // namespace platform::win32
