// Text on disk is code page 932: these run on the real conversion functions and file APIs, in the
// Japanese locale the test runner sets up.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "base/text_encoding.h"
#include "base/win32/unique_resource.h"
#include "base/win32/wide.h"

namespace {

TEST(JapaneseSystem, AnsiCodePageIs932) {
    EXPECT_EQ(GetACP(), 932u);
}

TEST(TextEncoding, JapaneseRoundTripsThroughCodePage932) {
    const std::string text = "監視ログ：ｶﾅ混じり ABC 123";
    const std::string ansi = base::Utf8ToAnsi(text);
    // Full-width characters take two bytes, half-width katakana one.
    EXPECT_EQ(base::Utf8ToAnsi("監視"), "\x8a\xc4\x8e\x8b");
    EXPECT_EQ(base::Utf8ToAnsi("ｶﾅ"), "\xb6\xc5");
    EXPECT_EQ(base::AnsiToUtf8(ansi), text);
}

TEST(TextEncoding, CharactersOutsideCodePage932BecomeQuestionMarks) {
    EXPECT_EQ(base::Utf8ToAnsi("a€b"), "a?b");
    EXPECT_EQ(base::Utf8ToAnsi(""), "");
    EXPECT_EQ(base::AnsiToUtf8(""), "");
}

TEST(TextEncoding, Utf16ConversionsAgreeOnBothSidesOfAscii) {
    EXPECT_EQ(base::Widen(std::string_view("a\0\x7f", 3)), std::wstring(L"a\0\x7f", 3));
    EXPECT_EQ(base::Widen("\xc2\x80"), L"\x80");
    EXPECT_EQ(base::Widen("ab監視"), L"ab\x76e3\x8996");
    EXPECT_EQ(base::Narrow(std::wstring_view(L"a\0\x7f", 3)), std::string("a\0\x7f", 3));
    EXPECT_EQ(base::Narrow(L"\x80"), "\xc2\x80");
    EXPECT_EQ(base::Narrow(L"ab\x76e3\x8996"), "ab監視");
}

class JapaneseFolder : public ::testing::Test {
protected:
    void SetUp() override {
        wchar_t temp[MAX_PATH];
        ASSERT_GT(GetTempPathW(MAX_PATH, temp), 0u);
        m_folder = std::wstring(temp) + base::Widen("監視テスト_") + std::to_wstring(GetCurrentProcessId());
        ASSERT_TRUE(CreateDirectoryW(m_folder.c_str(), nullptr)) << GetLastError();
    }
    void TearDown() override {
        DeleteFileW(File().c_str());
        RemoveDirectoryW(m_folder.c_str());
    }
    std::wstring File() const { return m_folder + base::Widen("\\設定.ini"); }

    std::wstring m_folder;
};

TEST_F(JapaneseFolder, FileWrittenWithWideNameIsReadBackThroughTheAnsiName) {
    const std::string content = base::Utf8ToAnsi("\"許可\"\r\n");
    {
        base::UniqueFileHandle file(
            CreateFileW(File().c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
        ASSERT_TRUE(file) << GetLastError();
        DWORD written = 0;
        ASSERT_TRUE(WriteFile(file.Get(), content.data(), static_cast<DWORD>(content.size()), &written, nullptr));
        EXPECT_EQ(written, content.size());
    }
    // The program opens its files with the ANSI functions: the Shift-JIS form of the same path must
    // name the same file.
    const std::string ansiPath = base::Utf8ToAnsi(base::Narrow(File()));
    base::UniqueFileHandle file(
        CreateFileA(ansiPath.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(file) << GetLastError();
    std::string read(64, '\0');
    DWORD got = 0;
    ASSERT_TRUE(ReadFile(file.Get(), read.data(), static_cast<DWORD>(read.size()), &got, nullptr));
    read.resize(got);
    EXPECT_EQ(read, content);
    EXPECT_EQ(base::AnsiToUtf8(read), "\"許可\"\r\n");
}

}  // namespace
