#include "fakes/fake_profile.h"

#include <sstream>
#include <vector>

namespace fakes {
namespace {

struct Section {
    std::string name;
    std::vector<std::string> lines;
};

std::vector<Section> Parse(const std::string& text) {
    std::vector<Section> sections{{"", {}}};
    std::istringstream in(text);
    std::string line;
    while (std::getline(in, line)) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (line.size() >= 2 && line.front() == '[' && line.back() == ']') {
            sections.push_back({line.substr(1, line.size() - 2), {}});
        } else if (!line.empty()) {
            sections.back().lines.push_back(line);
        }
    }
    return sections;
}

std::string Render(const std::vector<Section>& sections) {
    std::string text;
    for (const auto& s : sections) {
        if (!s.name.empty()) text += "[" + s.name + "]\r\n";
        for (const auto& l : s.lines) text += l + "\r\n";
    }
    return text;
}

bool SameName(const std::string& a, const std::string& b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (std::tolower(static_cast<unsigned char>(a[i])) != std::tolower(static_cast<unsigned char>(b[i]))) {
            return false;
        }
    }
    return true;
}

Section& FindOrAdd(std::vector<Section>& sections, const std::string& name) {
    for (auto& s : sections) {
        if (!s.name.empty() && SameName(s.name, name)) return s;
    }
    sections.push_back({name, {}});
    return sections.back();
}

}  // namespace

std::string FakeProfile::ReadSection(const std::string& file, const std::string& section) {
    std::string result;
    for (const auto& s : Parse(m_files.Get(file))) {
        if (s.name.empty() || !SameName(s.name, section)) continue;
        for (const auto& l : s.lines) result += l + '\0';
        break;
    }
    return result;
}

bool FakeProfile::WriteSection(const std::string& file, const std::string& section, const std::string& entries) {
    if (failWrites) return false;
    auto sections = Parse(m_files.Get(file));
    Section& target = FindOrAdd(sections, section);
    target.lines.clear();
    std::size_t start = 0;
    for (std::size_t at = entries.find('\0'); at != std::string::npos; at = entries.find('\0', start)) {
        if (at > start) target.lines.push_back(entries.substr(start, at - start));
        start = at + 1;
    }
    m_files.Put(file, Render(sections));
    return true;
}

bool FakeProfile::WriteString(const std::string& file, const std::string& section, const std::string& key,
                              const std::string& value) {
    if (failWrites) return false;
    auto sections = Parse(m_files.Get(file));
    Section& target = FindOrAdd(sections, section);
    for (auto& l : target.lines) {
        if (SameName(l.substr(0, l.find('=')), key)) {
            l = key + "=" + value;
            m_files.Put(file, Render(sections));
            return true;
        }
    }
    target.lines.push_back(key + "=" + value);
    m_files.Put(file, Render(sections));
    return true;
}

}  // namespace fakes
