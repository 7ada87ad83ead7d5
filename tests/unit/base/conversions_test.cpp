#include "base/conversions.h"

#include <gtest/gtest.h>

#include <cmath>

#include "base/format.h"
#include "unit/expect_runtime_error.h"

namespace base {
namespace {

TEST(Conversions, WholeNumbersRoundHalfToEven) {
    EXPECT_EQ(ToInt16(2.5), 2);
    EXPECT_EQ(ToInt16(3.5), 4);
    EXPECT_EQ(RoundHalfEven(0.49999999999999994), 0);
}

TEST(Conversions, OutOfRangeRaisesOverflow) {
    ExpectRuntimeError(RuntimeErrorNumber::Overflow, [] { ToInt16(32767.5); });  // rounds to 32768
    ExpectRuntimeError(RuntimeErrorNumber::Overflow, [] { ToByte(-0.6); });
    ExpectRuntimeError(RuntimeErrorNumber::Overflow, [] { ToInt32(2147483648.0); });
    ExpectRuntimeError(RuntimeErrorNumber::Overflow, [] { ToInt16(INFINITY); });
}

TEST(Conversions, TextMustBeANumber) {
    EXPECT_EQ(ToByte(std::string_view(" 7 ")), 7);
    EXPECT_EQ(ToInt16(std::string_view("&HFFFF")), -1);  // short hex literals are 16-bit
    EXPECT_EQ(ToInt32(std::string_view("&HFFFFFF")), 16777215);
    EXPECT_EQ(ToInt32(std::string_view("1,000")), 1000);
    ExpectRuntimeError(RuntimeErrorNumber::TypeMismatch, [] { ToByte(std::string_view("")); });
    ExpectRuntimeError(RuntimeErrorNumber::TypeMismatch, [] { ToByte(std::string_view("1x")); });
}

TEST(Conversions, ValReadsTheLeadingNumberAndIgnoresBlanks) {
    EXPECT_EQ(Val("-999999999999999"), -999999999999999.0);
    EXPECT_EQ(Val("-"), 0);
    EXPECT_TRUE(std::signbit(Val("-0")));
    EXPECT_EQ(Val(" 1 2 3abc"), 123);
    EXPECT_DOUBLE_EQ(Val("-2.5e1x"), -25);
    EXPECT_EQ(Val("&H10"), 16);
    EXPECT_EQ(Val("3秒"), 3);
}

TEST(Conversions, NumberTextLikeTheRuntime) {
    EXPECT_EQ(NumberText(250000), "250000");
    EXPECT_EQ(NumberText(0.5), "0.5");
    EXPECT_EQ(NumberText(-0.0), "0");
}

TEST(Format, ThousandsRoundsAndGroups) {
    EXPECT_EQ(FormatThousands(1234.567), "1,235");
    EXPECT_EQ(FormatThousands(0.4), "0");
    EXPECT_EQ(FormatThousands(1234567890), "1,234,567,890");
    EXPECT_EQ(FormatThousands(-1234.5), "-1,235");
}

TEST(Format, AtSignsRightAlignInSixCharacters) {
    EXPECT_EQ(FormatAtSigns("80"), "    80");
    EXPECT_EQ(FormatAtSigns("1234567"), "1234567");
    EXPECT_EQ(FormatAtSigns("ポート"), "   ポート");
}

}  // namespace
}  // namespace base
