#include "platform/win32/file_system.h"

#include <windows.h>

#include "base/win32/unique_resource.h"
#include "base/win32/wide.h"

namespace platform::win32 {
namespace {

DWORD Attributes(const std::string& path) { return GetFileAttributesW(base::Widen(path).c_str()); }

class OutputFile : public IOutputFile {
public:
    explicit OutputFile(base::UniqueFileHandle handle) : m_handle(std::move(handle)) {}

    bool Write(std::string_view bytes) override {
        while (!bytes.empty()) {
            DWORD written = 0;
            const DWORD chunk = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), 1u << 30));
            if (!WriteFile(m_handle.Get(), bytes.data(), chunk, &written, nullptr) || written == 0) return false;
            bytes.remove_prefix(written);
        }
        return true;
    }

private:
    base::UniqueFileHandle m_handle;
};

}  // namespace

bool FileSystem::FileExists(const std::string& path) {
    const DWORD attributes = Attributes(path);
    return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

bool FileSystem::FolderExists(const std::string& path) {
    const DWORD attributes = Attributes(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

bool FileSystem::CreateFolder(const std::string& path) {
    return CreateDirectoryW(base::Widen(path).c_str(), nullptr) != FALSE;
}

std::optional<std::uint64_t> FileSystem::FileSize(const std::string& path) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (!GetFileAttributesExW(base::Widen(path).c_str(), GetFileExInfoStandard, &data)) return std::nullopt;
    return (static_cast<std::uint64_t>(data.nFileSizeHigh) << 32) | data.nFileSizeLow;
}

std::unique_ptr<IOutputFile> FileSystem::Open(const std::string& path, OpenMode mode) {
    const bool append = mode == OpenMode::Append;
    base::UniqueFileHandle handle(CreateFileW(base::Widen(path).c_str(), append ? FILE_APPEND_DATA : GENERIC_WRITE,
                                              FILE_SHARE_READ, nullptr, append ? OPEN_ALWAYS : CREATE_ALWAYS,
                                              FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!handle) return nullptr;
    return std::make_unique<OutputFile>(std::move(handle));
}

std::optional<std::string> FileSystem::ReadAll(const std::string& path) {
    base::UniqueFileHandle handle(CreateFileW(base::Widen(path).c_str(), GENERIC_READ,
                                              FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                              FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!handle) return std::nullopt;
    std::string bytes;
    char buffer[65536];
    DWORD read = 0;
    while (ReadFile(handle.Get(), buffer, sizeof buffer, &read, nullptr) && read > 0) bytes.append(buffer, read);
    return bytes;
}

}  // namespace platform::win32
