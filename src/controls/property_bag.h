#pragma once
// The store a control's properties persist in, kept by its host between runs: names and
// values as text. A value equal to its default is not stored, so a bag holds only what
// differs from a new control, and reading a missing name gives the default back.
#include <map>
#include <string>
#include <string_view>

namespace controls {

class PropertyBag {
public:
    // Stores the value under the name, or forgets the name when the value is the default.
    void Write(const std::string& name, const std::string& value, const std::string& defaultValue);
    // The value stored under the name, or the default when none is.
    std::string Read(const std::string& name, const std::string& defaultValue) const;
    bool Contains(const std::string& name) const { return m_values.count(name) != 0; }

    // One "name=value" line per stored property, each ending in CR LF; backslash, CR and LF
    // inside a value are written as \\, \r and \n.
    std::string Save() const;
    // Reads what Save wrote; lines without "=" are skipped.
    static PropertyBag Load(std::string_view text);

    bool operator==(const PropertyBag&) const = default;

private:
    std::map<std::string, std::string> m_values;
};

}  // namespace controls
