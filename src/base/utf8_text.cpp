#include "base/utf8_text.h"

namespace base {
namespace {

bool IsContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

}  // namespace

std::size_t CharacterCount(std::string_view text) {
    std::size_t count = 0;
    for (const char byte : text) count += !IsContinuation(byte);
    return count;
}

std::size_t OffsetOfCharacter(std::string_view text, std::size_t position) {
    std::size_t offset = 0;
    for (std::size_t character = 1; character < position && offset < text.size(); ++character) {
        ++offset;
        while (offset < text.size() && IsContinuation(text[offset])) ++offset;
    }
    return offset;
}

}  // namespace base
