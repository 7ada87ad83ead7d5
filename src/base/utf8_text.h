#pragma once
// Characters of UTF-8 text counted as the runtime's string functions count them: one per lead
// byte, whatever its length.
#include <cstddef>
#include <string_view>

namespace base {

std::size_t CharacterCount(std::string_view text);

// The byte offset of the character at this 1-based position (the text's end when it is shorter).
std::size_t OffsetOfCharacter(std::string_view text, std::size_t position);

}  // namespace base
