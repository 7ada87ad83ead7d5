// Text on disk is code page 932: these run on the real conversion functions, in the Japanese
// locale the test runner sets up.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "base/text_encoding.h"
#include "base/win32/wide.h"

namespace {

TEST(TextEncoding, JapaneseRoundTripsThroughCodePage932) {
    const std::string text = "監視ログ：ｶﾅ混じり ABC 123";
    const std::string ansi = base::Utf8ToAnsi(text);
    // Full-width characters take two bytes, half-width katakana one.
    EXPECT_EQ(base::Utf8ToAnsi("監視"), "\x8a\xc4\x8e\x8b");
    EXPECT_EQ(base::Utf8ToAnsi("ｶﾅ"), "\xb6\xc5");
    EXPECT_EQ(base::AnsiToUtf8(ansi), text);
    EXPECT_EQ(base::Utf8ToAnsi("a€b"), "a?b");  // outside code page 932
}

TEST(TextEncoding, Utf16ConversionsAgreeOnBothSidesOfAscii) {
    EXPECT_EQ(base::Widen(std::string_view("a\0\x7f", 3)), std::wstring(L"a\0\x7f", 3));
    EXPECT_EQ(base::Widen("\xc2\x80"), L"\x80");
    EXPECT_EQ(base::Narrow(L"ab\x76e3\x8996"), "ab監視");
}

}  // namespace
