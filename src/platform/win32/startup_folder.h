#pragma once
#include "platform/shell.h"

namespace platform::win32 {

class StartupFolder final : public IStartupFolder {
public:
    std::optional<std::string> Path() override;
    bool SaveShortcut(const std::string& file, const std::string& target) override;
};

}  // namespace platform::win32
