#pragma once
// AppDictionary: the allowed applications in memory, loaded from app.ini on first use. Names
// are only ever added while the program runs; the look-up is exact and case-sensitive. Asking
// about an unknown name raises an alert and counts it.
#include <cstdint>
#include <string>
#include <unordered_map>

#include "processes/app_list_file.h"

namespace processes {

// Shows one alert through frmDemo's Appview.
class IAppAlert {
public:
    virtual ~IAppAlert() = default;
    virtual void Appview(const std::string& text) = 0;
};

class AppDictionary {
public:
    AppDictionary(AppListFile& file, IAppAlert& alert) : m_file(file), m_alert(alert) {}

    // The alert counter as decimal text; an unknown name first gets an alert and adds 1.
    std::string CheckDictionary2(const std::string& name);
    // Appends a non-empty name to the file (true when written), then loads the file again.
    bool WriteCache2(const std::string& name);

    void ResetAlertCounter() { m_alertCounter = 0; }

private:
    void Initialise();
    void EnsureCreated();

    AppListFile& m_file;
    IAppAlert& m_alert;
    bool m_created = false;
    std::unordered_map<std::string, std::string> m_names;
    std::int16_t m_alertCounter = 0;
};

}  // namespace processes
