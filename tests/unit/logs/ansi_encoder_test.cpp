#include "logs/ansi_encoder.h"

#include <gtest/gtest.h>

#include "base/text_encoding.h"

namespace logs {
namespace {

std::string Encoded(AnsiEncoder& encoder, std::string_view text) {
    std::string out = "prefix:";
    encoder.Append(text, out);
    return out.substr(7);
}

// The encoder must give exactly the bytes of the program's own conversion, whatever the mix
// of ASCII runs (shorter and longer than eight bytes) and other characters.
TEST(AnsiEncoder, GivesTheSameBytesAsTheProgramsConversion) {
    const std::string texts[] = {
        "",
        "plain ASCII text that is longer than eight bytes\t\r\n",
        "[2005/06/22 09:05:03]  送信 : 1,235 KB  受信 : 3 KB",
        "使用中のファイル : C:\\共有\\資料.xls USER : 田中",
        "ｶﾀｶﾅ半角と全角カタカナ、記号「」・。",
        "§°±×÷ΑΩαωАЯ",                     // two-byte UTF-8 characters that code page 932 has
        "€ é ü 한국어 😀 end",              // characters it lacks: the conversion's replacement
        "1234567ア",                        // a character right after an eight-byte boundary
        "－〜∥￢",                           // characters whose mapping differs between tables
        "ab\xE3\x81", "\xC3", "x\x80y", "\xED\xA0\x80 surrogate",  // malformed: left to the conversion
    };
    AnsiEncoder encoder;
    for (int pass = 0; pass < 2; ++pass) {  // the second pass reads remembered characters
        for (const auto& text : texts) EXPECT_EQ(Encoded(encoder, text), base::Utf8ToAnsi(text)) << text;
    }
}

}  // namespace
}  // namespace logs
