#include "platform/win32/profile.h"

#include <windows.h>

#include <vector>

#include "base/win32/wide.h"

namespace platform::win32 {

std::string Profile::ReadSection(const std::string& file, const std::string& section) {
    std::vector<wchar_t> buffer(32767);
    const DWORD count = GetPrivateProfileSectionW(base::Widen(section).c_str(), buffer.data(),
                                                  static_cast<DWORD>(buffer.size()), base::Widen(file).c_str());
    return base::Narrow(std::wstring_view(buffer.data(), count));
}

bool Profile::WriteSection(const std::string& file, const std::string& section, const std::string& entries) {
    // The block ends with an extra null character.
    std::wstring block = base::Widen(entries);
    block.push_back(L'\0');
    return WritePrivateProfileSectionW(base::Widen(section).c_str(), block.c_str(), base::Widen(file).c_str()) !=
           FALSE;
}

bool Profile::WriteString(const std::string& file, const std::string& section, const std::string& key,
                          const std::string& value) {
    return WritePrivateProfileStringW(base::Widen(section).c_str(), base::Widen(key).c_str(),
                                      base::Widen(value).c_str(), base::Widen(file).c_str()) != FALSE;
}

}  // namespace platform::win32
