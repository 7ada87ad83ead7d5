#include "controls/property_bag.h"

namespace controls {
namespace {

std::string Escape(std::string_view value) {
    std::string escaped;
    for (char c : value) {
        switch (c) {
        case '\\': escaped += "\\\\"; break;
        case '\r': escaped += "\\r"; break;
        case '\n': escaped += "\\n"; break;
        default: escaped += c;
        }
    }
    return escaped;
}

std::string Unescape(std::string_view value) {
    std::string plain;
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (value[i] != '\\' || i + 1 == value.size()) {
            plain += value[i];
            continue;
        }
        const char next = value[++i];
        plain += next == 'r' ? '\r' : next == 'n' ? '\n' : next;
    }
    return plain;
}

}  // namespace

void PropertyBag::Write(const std::string& name, const std::string& value, const std::string& defaultValue) {
    if (value == defaultValue) {
        m_values.erase(name);
    } else {
        m_values[name] = value;
    }
}

std::string PropertyBag::Read(const std::string& name, const std::string& defaultValue) const {
    const auto found = m_values.find(name);
    return found == m_values.end() ? defaultValue : found->second;
}

std::string PropertyBag::Save() const {
    std::string text;
    for (const auto& [name, value] : m_values) text += name + "=" + Escape(value) + "\r\n";
    return text;
}

PropertyBag PropertyBag::Load(std::string_view text) {
    PropertyBag bag;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
        if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
        const std::size_t equals = line.find('=');
        if (equals == std::string_view::npos) continue;
        bag.m_values[std::string(line.substr(0, equals))] = Unescape(line.substr(equals + 1));
    }
    return bag;
}

}  // namespace controls
