#include "app/settings_file.h"

#include <utility>
#include <vector>

#include "base/conversions.h"
#include "base/product.h"
#include "base/split.h"

namespace app {
namespace {

constexpr const char* kSection = "main";

// The entries in the order the file is written.
std::vector<std::pair<std::string, std::string>> Entries(const Settings& s) {
    const auto flag = [](std::uint8_t value) { return std::to_string(value); };
    return {
        {"time", s.time},
        {"open", s.open},
        {"start", flag(s.start)},
        {"packet", flag(s.packet)},
        {"beep", flag(s.beep)},
        {"logflag", flag(s.logflag)},
        {"backcolor", std::to_string(s.Backcolor())},
        {"fontcolor", std::to_string(s.Fontcolor())},
        {"window", flag(s.window)},
        {"nc", s.nc},
        {"front", flag(s.front)},
        {"app", flag(s.app)},
    };
}

// Keys are compared exactly: "Time" is not "time".
void Apply(Settings& s, const std::string& key, const std::string& value) {
    if (key == "time") s.time = value;
    else if (key == "open") s.open = value;
    else if (key == "start") s.start = base::ToByte(value);
    else if (key == "packet") s.packet = base::ToByte(value);
    else if (key == "beep") s.beep = base::ToByte(value);
    else if (key == "logflag") s.logflag = base::ToByte(value);
    else if (key == "backcolor") s.Backcolor() = base::ToInt32(value);
    else if (key == "fontcolor") s.Fontcolor() = base::ToInt32(value);
    else if (key == "window") s.window = base::ToByte(value);
    else if (key == "nc") s.nc = value;
    else if (key == "front") s.front = base::ToByte(value);
    else if (key == "app") s.app = base::ToByte(value);
}

}  // namespace

SettingsFile::SettingsFile(std::string programFolder, platform::IFileSystem& files, platform::IProfile& profile,
                           platform::IDialogs& dialogs)
    // The program folder ends in "\" already; the doubled separator is accepted by the system.
    : m_path(std::move(programFolder) + "\\setting.ini"), m_files(files), m_profile(profile), m_dialogs(dialogs) {}

void SettingsFile::Read(Settings& settings) {
    if (!m_files.FileExists(m_path)) {
        for (const auto& [key, value] : Entries(DefaultSettings())) m_profile.WriteString(m_path, kSection, key, value);
    }
    const std::string section = m_profile.ReadSection(m_path, kSection);
    if (section.empty()) {
        m_dialogs.ShowMessage("読み込みエラー", base::kProductName, platform::msgbox::kExclamation);
        return;
    }
    std::vector<std::string> entries;
    std::vector<std::string> pieces;
    base::Split(section, std::string_view("\0", 1), entries);
    for (const auto& entry : entries) {
        if (base::Split(entry, "=", pieces) == 1) Apply(settings, pieces[0], pieces[1]);
    }
}

void SettingsFile::Write(const Settings& settings) {
    std::string block;
    for (const auto& [key, value] : Entries(settings)) {
        block += key + "=" + value;
        block += '\0';
    }
    if (!m_profile.WriteSection(m_path, kSection, block)) {
        m_dialogs.ShowMessage("INIファイル書き込みエラー", base::kProductName, platform::msgbox::kExclamation);
    }
}

}  // namespace app
