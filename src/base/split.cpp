#include "base/split.h"

namespace base {

int Split(std::string_view text, std::string_view separator, std::vector<std::string>& pieces) {
    pieces.clear();
    if (separator.empty()) {
        pieces.emplace_back(text);
        return 0;
    }
    std::size_t start = 0;
    for (std::size_t at = text.find(separator); at != std::string_view::npos;
         at = text.find(separator, start)) {
        pieces.emplace_back(text.substr(start, at - start));
        start = at + separator.size();
    }
    pieces.emplace_back(text.substr(start));
    return static_cast<int>(pieces.size()) - 1;
}

}  // namespace base
