#include "base/conversions.h"

#include <cctype>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <optional>
#include <string>

#include "base/runtime_error.h"

namespace base {
namespace {

template <typename T>
T ToWhole(double value) {
    if (std::isnan(value)) throw RuntimeError(RuntimeErrorNumber::Overflow);
    const double rounded = RoundHalfEven(value);
    if (rounded < static_cast<double>(std::numeric_limits<T>::min()) ||
        rounded > static_cast<double>(std::numeric_limits<T>::max())) {
        throw RuntimeError(RuntimeErrorNumber::Overflow);
    }
    return static_cast<T>(rounded);
}

bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

std::string_view TrimBlanks(std::string_view text) {
    while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
    return text;
}

std::optional<double> ParseHex(std::string_view digits, bool negative) {
    if (digits.empty() || digits.size() > 8) return std::nullopt;
    std::uint32_t bits = 0;
    for (char c : digits) {
        if (!std::isxdigit(static_cast<unsigned char>(c))) return std::nullopt;
        bits = bits * 16 + static_cast<std::uint32_t>(std::isdigit(static_cast<unsigned char>(c))
                                                           ? c - '0'
                                                           : std::toupper(static_cast<unsigned char>(c)) - 'A' + 10);
    }
    // "&H" literals of four digits or fewer are 16-bit, longer ones 32-bit, both signed.
    double value = digits.size() <= 4 ? static_cast<std::int16_t>(bits) : static_cast<std::int32_t>(bits);
    return negative ? -value : value;
}

}  // namespace

// The default rounding mode rounds half to even.
double RoundHalfEven(double value) { return std::nearbyint(value); }

std::int16_t ToInt16(double value) { return ToWhole<std::int16_t>(value); }
std::uint8_t ToByte(double value) { return ToWhole<std::uint8_t>(value); }
std::int32_t ToInt32(double value) { return ToWhole<std::int32_t>(value); }

float ToSingle(double value) {
    if (std::isfinite(value) && std::fabs(value) > std::numeric_limits<float>::max()) {
        throw RuntimeError(RuntimeErrorNumber::Overflow);
    }
    return static_cast<float>(value);
}

std::optional<double> ParseNumber(std::string_view text) {
    text = TrimBlanks(text);
    bool negative = false;
    if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
        negative = text.front() == '-';
        text.remove_prefix(1);
    }
    if (text.size() > 2 && text[0] == '&' && (text[1] == 'H' || text[1] == 'h')) {
        return ParseHex(text.substr(2), negative);
    }
    std::size_t i = 0;
    bool digits = false;
    while (i < text.size() && (std::isdigit(static_cast<unsigned char>(text[i])) || text[i] == ',')) {
        digits = digits || text[i] != ',';
        ++i;
    }
    if (i < text.size() && text[i] == '.') {
        ++i;
        while (i < text.size() && std::isdigit(static_cast<unsigned char>(text[i]))) {
            digits = true;
            ++i;
        }
    }
    if (!digits) return std::nullopt;
    if (i < text.size() && (text[i] == 'E' || text[i] == 'e')) {
        std::size_t j = i + 1;
        if (j < text.size() && (text[j] == '-' || text[j] == '+')) ++j;
        const std::size_t expStart = j;
        while (j < text.size() && std::isdigit(static_cast<unsigned char>(text[j]))) ++j;
        if (j == expStart) return std::nullopt;
        i = j;
    }
    if (i != text.size()) return std::nullopt;
    std::string plain;
    for (char c : text) {
        if (c != ',') plain += c;
    }
    const double value = std::strtod(plain.c_str(), nullptr);
    return negative ? -value : value;
}

namespace {
template <typename T>
T FromText(std::string_view text, T (*convert)(double)) {
    const auto number = ParseNumber(text);
    if (!number) throw RuntimeError(RuntimeErrorNumber::TypeMismatch);
    return convert(*number);
}
double Identity(double value) { return value; }
}  // namespace

std::int16_t ToInt16(std::string_view text) { return FromText<std::int16_t>(text, ToInt16); }
std::uint8_t ToByte(std::string_view text) { return FromText<std::uint8_t>(text, ToByte); }
std::int32_t ToInt32(std::string_view text) { return FromText<std::int32_t>(text, ToInt32); }
double ToDouble(std::string_view text) { return FromText<double>(text, Identity); }

double Val(std::string_view text) {
    std::string packed;
    for (char c : text) {
        if (!IsBlank(c)) packed += c;
    }
    std::size_t i = 0;
    if (i < packed.size() && (packed[i] == '-' || packed[i] == '+')) ++i;
    if (packed.size() > i + 1 && packed[i] == '&' && (packed[i + 1] == 'H' || packed[i + 1] == 'h')) {
        std::size_t end = i + 2;
        while (end < packed.size() && std::isxdigit(static_cast<unsigned char>(packed[end]))) ++end;
        const auto hex = ParseHex(std::string_view(packed).substr(i + 2, end - i - 2), packed[0] == '-');
        return hex.value_or(0.0);
    }
    while (i < packed.size() && std::isdigit(static_cast<unsigned char>(packed[i]))) ++i;
    if (i < packed.size() && packed[i] == '.') {
        ++i;
        while (i < packed.size() && std::isdigit(static_cast<unsigned char>(packed[i]))) ++i;
    }
    if (i < packed.size() && (packed[i] == 'E' || packed[i] == 'e' || packed[i] == 'D' || packed[i] == 'd')) {
        std::size_t j = i + 1;
        if (j < packed.size() && (packed[j] == '-' || packed[j] == '+')) ++j;
        const std::size_t expStart = j;
        while (j < packed.size() && std::isdigit(static_cast<unsigned char>(packed[j]))) ++j;
        if (j > expStart) {
            packed[i] = 'E';
            i = j;
        }
    }
    packed.resize(i);
    return std::strtod(packed.c_str(), nullptr);
}

std::string NumberText(double value) {
    if (value == 0) return "0";
    if (value == std::floor(value) && std::fabs(value) < 1e15) return std::to_string(static_cast<std::int64_t>(value));
    char buffer[40];
    std::snprintf(buffer, sizeof buffer, "%.15G", value);
    return buffer;
}

}  // namespace base
