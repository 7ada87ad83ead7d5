#pragma once
// Files and folders. Paths are UTF-8 with "\" separators, as the program builds them;
// file contents are raw bytes (the callers convert text to code page 932).
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace platform {

enum class OpenMode { Output, Append };

class IOutputFile {
public:
    virtual ~IOutputFile() = default;  // closes the file
    virtual bool Write(std::string_view bytes) = 0;
};

class IFileSystem {
public:
    virtual ~IFileSystem() = default;
    virtual bool FileExists(const std::string& path) = 0;
    virtual bool FolderExists(const std::string& path) = 0;
    virtual bool CreateFolder(const std::string& path) = 0;
    // The length in bytes of an existing file.
    virtual std::optional<std::uint64_t> FileSize(const std::string& path) = 0;
    // Output replaces the file, Append adds to its end; both create a missing file.
    // Nothing when the file cannot be opened.
    virtual std::unique_ptr<IOutputFile> Open(const std::string& path, OpenMode mode) = 0;
    virtual std::optional<std::string> ReadAll(const std::string& path) = 0;
};

}  // namespace platform
