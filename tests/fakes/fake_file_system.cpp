#include "fakes/fake_file_system.h"

namespace fakes {
namespace {

class FakeOutputFile : public platform::IOutputFile {
public:
    explicit FakeOutputFile(std::string& target) : m_target(target) {}
    bool Write(std::string_view bytes) override {
        m_target.append(bytes);
        return true;
    }

private:
    std::string& m_target;
};

}  // namespace

std::string FakeFileSystem::Normalise(const std::string& path) {
    std::string result;
    for (char c : path) {
        if (c == '\\' && !result.empty() && result.back() == '\\') continue;
        result += c;
    }
    while (result.size() > 1 && result.back() == '\\') result.pop_back();
    return result;
}

bool FakeFileSystem::FileExists(const std::string& path) { return Has(path); }

bool FakeFileSystem::FolderExists(const std::string& path) { return folders.count(Normalise(path)) != 0; }

bool FakeFileSystem::CreateFolder(const std::string& path) {
    if (failFolderCreation) return false;
    folders.insert(Normalise(path));
    return true;
}

std::optional<std::uint64_t> FakeFileSystem::FileSize(const std::string& path) {
    return Has(path) ? std::optional<std::uint64_t>(Get(path).size()) : std::nullopt;
}

std::unique_ptr<platform::IOutputFile> FakeFileSystem::Open(const std::string& path, platform::OpenMode mode) {
    const std::string key = Normalise(path);
    if (unwritable.count(key)) return nullptr;
    std::string& target = files[key];
    if (mode == platform::OpenMode::Output) target.clear();
    return std::make_unique<FakeOutputFile>(target);
}

std::optional<std::string> FakeFileSystem::ReadAll(const std::string& path) {
    return Has(path) ? std::optional(Get(path)) : std::nullopt;
}

std::string FakeFileSystem::Get(const std::string& path) const {
    const auto it = files.find(Normalise(path));
    return it == files.end() ? std::string() : it->second;
}

}  // namespace fakes
