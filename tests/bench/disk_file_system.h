#pragma once
// Real files on the Linux disk behind the program's file interface, so that a benchmark
// compares a save against the same bytes written by plain stdio.
#include <sys/stat.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "platform/files.h"

namespace bench {

// The program writes "\" separators; here they become "/".
inline std::string HostPath(const std::string& path) {
    std::string host = path;
    for (auto& c : host) {
        if (c == '\\') c = '/';
    }
    return host;
}

class DiskOutputFile : public platform::IOutputFile {
public:
    explicit DiskOutputFile(std::FILE* file) : m_file(file) {}
    ~DiskOutputFile() override { std::fclose(m_file); }
    bool Write(std::string_view bytes) override {
        return std::fwrite(bytes.data(), 1, bytes.size(), m_file) == bytes.size();
    }

private:
    std::FILE* m_file;
};

class DiskFileSystem : public platform::IFileSystem {
public:
    bool FileExists(const std::string& path) override { return std::filesystem::is_regular_file(HostPath(path)); }
    bool FolderExists(const std::string& path) override { return std::filesystem::is_directory(HostPath(path)); }
    bool CreateFolder(const std::string& path) override { return ::mkdir(HostPath(path).c_str(), 0755) == 0; }
    std::optional<std::uint64_t> FileSize(const std::string& path) override {
        std::error_code error;
        const auto size = std::filesystem::file_size(HostPath(path), error);
        if (error) return std::nullopt;
        return size;
    }
    std::unique_ptr<platform::IOutputFile> Open(const std::string& path, platform::OpenMode mode) override {
        std::FILE* file = std::fopen(HostPath(path).c_str(), mode == platform::OpenMode::Append ? "ab" : "wb");
        if (!file) return nullptr;
        return std::make_unique<DiskOutputFile>(file);
    }
    std::optional<std::string> ReadAll(const std::string& path) override {
        std::ifstream in(HostPath(path), std::ios::binary);
        if (!in) return std::nullopt;
        return std::string(std::istreambuf_iterator<char>(in), {});
    }
};

}  // namespace bench
