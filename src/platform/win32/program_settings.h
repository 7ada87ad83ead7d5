#pragma once
#include "platform/program_settings.h"

namespace platform::win32 {

// HKEY_CURRENT_USER\Software\VB and VBA Program Settings\<application>\<section>, text values.
class ProgramSettings final : public IProgramSettings {
public:
    std::optional<std::string> GetSetting(const std::string& application, const std::string& section,
                                          const std::string& key) override;
};

}  // namespace platform::win32
