#include "app/interface_list.h"

#include "base/conversions.h"

namespace app {

std::vector<std::string> InterfaceTexts(const std::vector<platform::InterfaceRow>& table) {
    std::vector<std::string> texts;
    std::uint8_t counter = 0;
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (i > 0) counter = base::ToByte(counter + 1.0);
        texts.push_back(std::to_string(counter) + ": " + table[i].description);
    }
    return texts;
}

}  // namespace app
