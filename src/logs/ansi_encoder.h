#pragma once
// Converts UTF-8 text to code page 932 for the log files, fast enough for a 10,000-line save:
// ASCII is copied as it is, and every other character is converted once by the program's
// conversion and then remembered. Code page 932 is stateless, so converting character by
// character gives the same bytes as converting the whole text.
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace logs {

class AnsiEncoder {
public:
    // Appends the code page 932 bytes of utf8 to out.
    void Append(std::string_view utf8, std::string& out);

private:
    // The remembered bytes of one character, converting it the first time; 0 when it is not
    // to be remembered.
    std::uint32_t Known(std::uint32_t codePoint, std::string_view character);

    // Per code point of the basic plane: 0 while unknown, else the byte count in the top
    // byte and up to three bytes below it.
    std::vector<std::uint32_t> m_known;
};

}  // namespace logs
