#include "base/conversions.h"

#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>
#include <utility>

#include "base/format.h"
#include "base/runtime_error.h"

namespace base {
namespace {

void ExpectError(RuntimeErrorNumber number, auto&& call) {
    try {
        call();
        FAIL() << "no runtime error";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), number);
    }
}

TEST(Conversions, WholeNumbersRoundHalfToEven) {
    EXPECT_EQ(ToInt16(2.5), 2);
    EXPECT_EQ(ToInt16(3.5), 4);
    EXPECT_EQ(ToInt16(-2.5), -2);
    EXPECT_EQ(ToByte(0.5), 0);
    EXPECT_EQ(ToByte(254.5), 254);
    EXPECT_EQ(ToInt32(2147483647.4), 2147483647);
    for (const auto& [value, rounded] : std::initializer_list<std::pair<double, double>>{
             {-3.5, -4}, {-0.5, 0}, {-0.51, -1}, {0.49999999999999994, 0}, {1.5, 2}, {4503599627370495.5, 4503599627370496},
             {-4503599627370497.0, -4503599627370497.0}, {1e300, 1e300}}) {
        EXPECT_EQ(RoundHalfEven(value), rounded) << value;
    }
    EXPECT_TRUE(std::isinf(RoundHalfEven(-INFINITY)));
    EXPECT_TRUE(std::isnan(RoundHalfEven(NAN)));
}

TEST(Conversions, OutOfRangeRaisesOverflow) {
    ExpectError(RuntimeErrorNumber::Overflow, [] { ToInt16(32767.5); });  // rounds to 32768
    ExpectError(RuntimeErrorNumber::Overflow, [] { ToInt16(-32769.0); });
    ExpectError(RuntimeErrorNumber::Overflow, [] { ToByte(-0.6); });
    ExpectError(RuntimeErrorNumber::Overflow, [] { ToByte(std::string_view("256")); });
    ExpectError(RuntimeErrorNumber::Overflow, [] { ToInt32(2147483648.0); });
    EXPECT_EQ(ToInt16(-32768.4), -32768);
    ExpectError(RuntimeErrorNumber::Overflow, [] { ToInt16(INFINITY); });
}

TEST(Conversions, TextMustBeANumber) {
    EXPECT_EQ(ToByte(std::string_view(" 7 ")), 7);
    EXPECT_EQ(ToInt32(std::string_view("-16777215")), -16777215);
    EXPECT_EQ(ToInt16(std::string_view("&HFFFF")), -1);  // short hex literals are 16-bit
    EXPECT_EQ(ToInt32(std::string_view("&HFFFFFF")), 16777215);
    EXPECT_EQ(ToInt32(std::string_view("1,000")), 1000);
    ExpectError(RuntimeErrorNumber::TypeMismatch, [] { ToByte(std::string_view("")); });
    ExpectError(RuntimeErrorNumber::TypeMismatch, [] { ToByte(std::string_view("1x")); });
    ExpectError(RuntimeErrorNumber::TypeMismatch, [] { ToInt32(std::string_view("abc")); });
}

TEST(Conversions, ValReadsTheLeadingNumberAndIgnoresBlanks) {
    EXPECT_EQ(Val("10"), 10);
    EXPECT_EQ(Val("-999999999999999"), -999999999999999.0);
    EXPECT_EQ(Val("+7"), 7);
    EXPECT_EQ(Val("-"), 0);
    EXPECT_EQ(Val("12345678901234567"), 12345678901234567.0);
    EXPECT_EQ(Val(" 1 2 3abc"), 123);
    EXPECT_EQ(Val("abc"), 0);
    EXPECT_EQ(Val(""), 0);
    EXPECT_DOUBLE_EQ(Val("-2.5e1x"), -25);
    EXPECT_EQ(Val("&H10"), 16);
    EXPECT_EQ(Val("3秒"), 3);
}

TEST(Conversions, NumberTextLikeTheRuntime) {
    EXPECT_EQ(NumberText(250000), "250000");
    EXPECT_EQ(NumberText(-5), "-5");
    EXPECT_EQ(NumberText(0.5), "0.5");
    EXPECT_EQ(NumberText(-0.0), "0");
    EXPECT_EQ(NumberText(1234.567), "1234.567");
}

TEST(Format, ThousandsRoundsAndGroups) {
    EXPECT_EQ(FormatThousands(1234.567), "1,235");
    EXPECT_EQ(FormatThousands(0), "0");
    EXPECT_EQ(FormatThousands(0.4), "0");
    EXPECT_EQ(FormatThousands(999.5), "1,000");
    EXPECT_EQ(FormatThousands(1234567890), "1,234,567,890");
    EXPECT_EQ(FormatThousands(-1234.5), "-1,235");
}

TEST(Format, AtSignsRightAlignInSixCharacters) {
    EXPECT_EQ(FormatAtSigns("80"), "    80");
    EXPECT_EQ(FormatAtSigns("123456"), "123456");
    EXPECT_EQ(FormatAtSigns("1234567"), "1234567");
    EXPECT_EQ(FormatAtSigns("ポート"), "   ポート");
}

}  // namespace
}  // namespace base
