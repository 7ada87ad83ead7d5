#include "processes/app_dictionary.h"

#include "base/conversions.h"

namespace processes {

void AppDictionary::EnsureCreated() {
    if (m_created) return;
    m_created = true;
    Initialise();
}

void AppDictionary::Initialise() {
    m_file.CreateDefaultIfMissing();
    // Later duplicates keep the first value.
    for (auto& [name, value] : m_file.ReadRecords()) m_names.emplace(std::move(name), std::move(value));
}

std::string AppDictionary::CheckDictionary2(const std::string& name) {
    EnsureCreated();
    if (!m_names.count(name)) {
        m_alert.Appview("[アプリケーション]\r\n" + name + "\r\n");
        m_alertCounter = base::ToInt16(m_alertCounter + 1.0);
    }
    return std::to_string(m_alertCounter);
}

bool AppDictionary::WriteCache2(const std::string& name) {
    EnsureCreated();
    const bool written = !name.empty() && m_file.Append(name);
    Initialise();
    return written;
}

}  // namespace processes
