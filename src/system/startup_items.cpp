#include "system/startup_items.h"

#include <algorithm>
#include <cctype>
#include <vector>

#include "mainwindow/list_icons.h"

namespace system_items {
namespace {

using platform::RegistryHive;

struct StartupLocation {
    platform::RegistryHive hive;
    const char* path;
    const char* label;
};

// User_Run, User_RunServices, Machine_Run, Machine_RunServices, in this order.
constexpr StartupLocation kLocations[] = {
    {RegistryHive::CurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Run", "User_Run"},
    {RegistryHive::CurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\RunServices", "User_RunServices"},
    {RegistryHive::LocalMachine, "Software\\Microsoft\\Windows\\CurrentVersion\\Run", "Machine_Run"},
    {RegistryHive::LocalMachine, "Software\\Microsoft\\Windows\\CurrentVersion\\RunServices", "Machine_RunServices"},
};

bool EndsExecutableName(const std::string& text, std::size_t at) {
    static constexpr char kExtension[] = ".exe";
    constexpr std::size_t length = sizeof kExtension - 1;
    if (at + length > text.size()) return false;
    for (std::size_t i = 0; i < length; ++i) {
        if (std::tolower(static_cast<unsigned char>(text[at + i])) != kExtension[i]) return false;
    }
    return at + length == text.size() || text[at + length] == ' ';
}

}  // namespace

std::string ProgramPathOf(const std::string& commandLine) {
    std::string text = commandLine;
    text.erase(std::remove(text.begin(), text.end(), '"'), text.end());
    for (std::size_t at = text.find('.'); at != std::string::npos; at = text.find('.', at + 1)) {
        if (EndsExecutableName(text, at)) return text.substr(0, at + 4);
    }
    return text.substr(0, text.find(' '));
}

bool StartupItemsPage::Refresh() {
    m_list.Clear();
    std::vector<base::TableModel::Row> rows;
    ValueNames names;
    for (const StartupLocation& location : kLocations) {
        const int count = m_reg.GetKey(location.hive, location.path, names);
        for (int j = 0; j < count; ++j) {
            std::string data = m_reg.qVal(location.hive, location.path, names[j]);
            rows.push_back({{names[j], std::move(data), location.label}});
        }
    }
    // Image n is row n's program; the rows reach the view with their icons in one update.
    m_icons.Clear();
    for (std::size_t row = 0; row < rows.size(); ++row) {
        mainwindow::AddFileOrStandByIcon(m_icons, ProgramPathOf(rows[row].cells[1]));
        rows[row].icon = static_cast<int>(row);
    }
    m_list.Replace(std::move(rows));
    if (m_automaticLog) m_automaticLog();
    return true;
}

}  // namespace system_items
