#include "base/format.h"

#include <cmath>
#include <cstdio>

#include "base/utf8_text.h"

namespace base {

std::string FormatThousands(double value) {
    const double rounded = std::round(value);  // the display format rounds halves away from zero
    char digits[64];
    std::snprintf(digits, sizeof digits, "%.0f", std::fabs(rounded));
    const std::string plain = digits;
    std::string grouped;
    for (std::size_t i = 0; i < plain.size(); ++i) {
        if (i > 0 && (plain.size() - i) % 3 == 0) grouped += ',';
        grouped += plain[i];
    }
    return (rounded < 0 ? "-" : "") + grouped;
}

std::string FormatAtSigns(std::string_view text) {
    constexpr std::size_t width = 6;
    const std::size_t characters = CharacterCount(text);  // width counts characters, not bytes
    if (characters >= width) return std::string(text);
    return std::string(width - characters, ' ') + std::string(text);
}

}  // namespace base
