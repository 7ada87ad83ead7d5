#include "processes/app_list_file.h"

#include "base/conversions.h"
#include "base/delimited_text.h"
#include "base/product.h"
#include "base/text_encoding.h"

namespace processes {
namespace {

constexpr const char* kSection = "app";

std::string Record(const std::string& name) { return base::Utf8ToAnsi(name) + ",Ok\r\n"; }

}  // namespace

std::string AppListFile::DefaultPath() const {
    const bool separated = !m_folder.empty() && m_folder.back() == '\\';
    return m_folder + (separated ? "" : "\\") + "app.ini";
}

void AppListFile::CreateDefaultIfMissing() {
    const std::string path = DefaultPath();
    if (!m_files.FileExists(path)) m_files.Open(path, platform::OpenMode::Output);
}

std::string AppListFile::Path() {
    return m_settings.GetSetting(base::kProductName, kSection, "Filename").value_or(DefaultPath());
}

std::vector<std::pair<std::string, std::string>> AppListFile::ReadRecords() {
    std::vector<std::pair<std::string, std::string>> records;
    const auto bytes = m_files.ReadAll(Path());
    if (!bytes) return records;
    base::ForEachDelimitedRecord(base::AnsiToUtf8(*bytes), [&](const std::vector<std::string>& fields) {
        if (fields[0].empty()) return;
        records.emplace_back(fields[0], fields.size() > 1 ? fields[1] : std::string());
    });
    return records;
}

bool AppListFile::Append(const std::string& name) {
    const auto file = m_files.Open(Path(), platform::OpenMode::Append);
    return file && file->Write(Record(name));
}

bool AppListFile::Rewrite(const std::vector<std::string>& names) {
    const auto file = m_files.Open(Path(), platform::OpenMode::Output);
    if (!file) return false;
    std::string text;
    for (const std::string& name : names) text += Record(name);
    return file->Write(text);
}

double AppListFile::MaxSize() {
    return base::Val(m_settings.GetSetting(base::kProductName, kSection, "MaxSize").value_or("1000"));
}

}  // namespace processes
