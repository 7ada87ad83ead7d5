#include "base/format.h"

#include <cmath>
#include <cstdio>

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
    // Width counts characters, not bytes: count UTF-8 lead bytes.
    std::size_t characters = 0;
    for (unsigned char c : text) {
        if ((c & 0xC0) != 0x80) ++characters;
    }
    if (characters >= width) return std::string(text);
    return std::string(width - characters, ' ') + std::string(text);
}

}  // namespace base
