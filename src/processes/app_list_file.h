#pragma once
// app.ini, the allowed applications: one "name,Ok" record a line, in code page 932. Its path is
// the per-user setting "Filename" of section "app", or app.ini in the program folder.
#include <string>
#include <vector>

#include "platform/files.h"
#include "platform/program_settings.h"

namespace processes {

class AppListFile {
public:
    // folder is the program folder.
    AppListFile(platform::IFileSystem& files, platform::IProgramSettings& settings, std::string folder)
        : m_files(files), m_settings(settings), m_folder(std::move(folder)) {}

    // Creates app.ini in the program folder when it is missing (a file elsewhere is never created).
    void CreateDefaultIfMissing();
    std::string Path();
    // The records whose name is not empty, in file order: name, then value. Nothing when the
    // file cannot be read.
    std::vector<std::pair<std::string, std::string>> ReadRecords();
    // Appends one record; false when the file cannot be opened.
    bool Append(const std::string& name);
    // Replaces the file with one record per name; false when it cannot be opened.
    bool Rewrite(const std::vector<std::string>& names);
    // The setting "MaxSize" of section "app" as a number, 1000 when absent.
    double MaxSize();

private:
    std::string DefaultPath() const;

    platform::IFileSystem& m_files;
    platform::IProgramSettings& m_settings;
    std::string m_folder;
};

}  // namespace processes
