#pragma once
// The runtime's conversions: whole-number conversions round half to even and raise the
// overflow error outside their range; text that is not a number raises the type-mismatch error.
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace base {

// Round half to even, as the runtime's whole-number conversions do.
double RoundHalfEven(double value);

std::int16_t ToInt16(double value);
std::uint8_t ToByte(double value);
std::int32_t ToInt32(double value);
// The nearest single-precision number; a value beyond the single range raises the overflow error.
float ToSingle(double value);

// The number a whole text stands for (blanks around it allowed, "&H" hex), or nothing.
std::optional<double> ParseNumber(std::string_view text);

// Conversions from text: a text that is not a number raises the type-mismatch error.
std::int16_t ToInt16(std::string_view text);
std::uint8_t ToByte(std::string_view text);
std::int32_t ToInt32(std::string_view text);
double ToDouble(std::string_view text);

// The leading number of a text; blanks anywhere are skipped and text that is no number gives 0.
double Val(std::string_view text);

// A number as the runtime prints it: whole numbers without a point, others in up to
// 15 significant digits.
std::string NumberText(double value);

}  // namespace base
