// Text on disk is code page 932: these run on the real conversion functions, in the Japanese
// locale the test runner sets up (full-width text is in every file the scenarios read back).
#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "base/text_encoding.h"
#include "base/win32/wide.h"

namespace {

TEST(TextEncoding, CodePage932AndUtf16ConversionsAtTheirEdges) {
    // Half-width katakana take one byte; what code page 932 lacks becomes "?".
    EXPECT_EQ(base::Utf8ToAnsi("ｶﾅ"), "\xb6\xc5");
    EXPECT_EQ(base::AnsiToUtf8("\xb6\xc5"), "ｶﾅ");
    EXPECT_EQ(base::Utf8ToAnsi("a€b"), "a?b");
    EXPECT_EQ(base::Widen(std::string_view("a\0\x7f", 3)), std::wstring(L"a\0\x7f", 3));
    EXPECT_EQ(base::Widen("\xc2\x80"), L"\x80");
    EXPECT_EQ(base::Narrow(L"ab\x76e3\x8996"), "ab監視");
}

}  // namespace
