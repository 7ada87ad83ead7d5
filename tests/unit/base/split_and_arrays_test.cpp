#include <gtest/gtest.h>

#include "base/fixed_array.h"
#include "base/local_time.h"
#include "base/split.h"
#include "base/text_encoding.h"
using namespace std::string_literals;

namespace base {
namespace {

TEST(Split, ReturnsTheHighestIndex) {
    std::vector<std::string> pieces;
    EXPECT_EQ(Split("time=10", "=", pieces), 1);
    EXPECT_EQ(pieces, (std::vector<std::string>{"time", "10"}));
    EXPECT_EQ(Split("nc=a=b", "=", pieces), 2);
    EXPECT_EQ(Split("", "=", pieces), 0);
    EXPECT_EQ(Split("a\0b\0"s, std::string_view("\0", 1), pieces), 2);
    EXPECT_EQ(pieces.back(), "");
}

TEST(FixedArray, IndexOutsideTheBoundsRaisesTheSubscriptError) {
    FixedArray<std::string, 0, 20> list;
    list[20] = "last";
    EXPECT_EQ(list[20], "last");
    EXPECT_THROW(list[21], RuntimeError);
    EXPECT_THROW(list[-1], RuntimeError);
}

TEST(Stamps, DateAndTimeFormats) {
    const LocalTime t{2005, 6, 22, 9, 5, 3};
    EXPECT_EQ(MonitorStamp(t), "[2005/06/22 09:05:03]");
    EXPECT_EQ(LogStamp(t), "2005/06/22 09:05:03");
    EXPECT_EQ(DateStem(t), "20050622");
}

TEST(TextEncoding, JapaneseRoundTripsThroughCodePage932) {
    const std::string ansi = Utf8ToAnsi("ユーザ : 太郎");
    EXPECT_EQ(ansi, "\x83\x86\x81\x5B\x83\x55 : \x91\xBE\x98\x59");
    EXPECT_EQ(AnsiToUtf8(ansi), "ユーザ : 太郎");
    EXPECT_EQ(Utf8ToAnsi("a😀b"), "a?b");  // not in the code page
}

}  // namespace
}  // namespace base
