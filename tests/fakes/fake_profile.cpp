#include "fakes/fake_profile.h"

#include <sstream>
#include <utility>
#include <vector>

namespace fakes {
namespace {

using Section = std::pair<std::string, std::vector<std::string>>;  // name, "key=value" lines

std::vector<Section> Parse(const std::string& text) {
    std::vector<Section> sections{{"", {}}};
    std::istringstream in(text);
    std::string line;
    while (std::getline(in, line)) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (line.size() >= 2 && line.front() == '[' && line.back() == ']') {
            sections.emplace_back(line.substr(1, line.size() - 2), std::vector<std::string>{});
        } else if (!line.empty()) {
            sections.back().second.push_back(line);
        }
    }
    return sections;
}

std::string Render(const std::vector<Section>& sections) {
    std::string text;
    for (const auto& [name, lines] : sections) {
        if (!name.empty()) text += "[" + name + "]\r\n";
        for (const auto& line : lines) text += line + "\r\n";
    }
    return text;
}

std::vector<std::string>& Lines(std::vector<Section>& sections, const std::string& name) {
    for (auto& section : sections) {
        if (section.first == name) return section.second;
    }
    return sections.emplace_back(name, std::vector<std::string>{}).second;
}

}  // namespace

std::string FakeProfile::ReadSection(const std::string& file, const std::string& section) {
    auto sections = Parse(m_files.Get(file));
    std::string result;
    for (const auto& line : Lines(sections, section)) result += line + '\0';
    return result;
}

bool FakeProfile::WriteSection(const std::string& file, const std::string& section, const std::string& entries) {
    if (failWrites) return false;
    auto sections = Parse(m_files.Get(file));
    auto& lines = Lines(sections, section);
    lines.clear();
    std::istringstream in(entries);
    for (std::string entry; std::getline(in, entry, '\0');) {
        if (!entry.empty()) lines.push_back(entry);
    }
    m_files.Put(file, Render(sections));
    return true;
}

// Only ever used to fill a new file, so a key is appended, never replaced.
bool FakeProfile::WriteString(const std::string& file, const std::string& section, const std::string& key,
                              const std::string& value) {
    return WriteSection(file, section, ReadSection(file, section) + key + "=" + value + '\0');
}

}  // namespace fakes
