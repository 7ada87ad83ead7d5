#include "logs/ansi_encoder.h"

#include <algorithm>
#include <bit>
#include <cstring>

#include "base/text_encoding.h"

namespace logs {
namespace {

constexpr std::uint64_t kHighBits = 0x8080808080808080ull;

bool IsContinuation(unsigned char byte) { return (byte & 0xC0) == 0x80; }

// The length of the UTF-8 sequence a lead byte starts; 1 for a byte that starts none, which
// the program's conversion then replaces on its own.
std::size_t SequenceLength(unsigned char lead) {
    if (lead >= 0xF0 && lead < 0xF8) return 4;
    if (lead >= 0xE0) return 3;
    if (lead >= 0xC2) return 2;
    return 1;
}

// The code point of a well-formed two- or three-byte sequence (the basic plane without
// surrogates); 0 for anything else.
std::uint32_t BasicPlaneCodePoint(const unsigned char* s, std::size_t length) {
    if (length == 2 && IsContinuation(s[1])) return ((s[0] & 0x1Fu) << 6) | (s[1] & 0x3Fu);
    if (length == 3 && IsContinuation(s[1]) && IsContinuation(s[2])) {
        const std::uint32_t codePoint = ((s[0] & 0x0Fu) << 12) | ((s[1] & 0x3Fu) << 6) | (s[2] & 0x3Fu);
        if (codePoint >= 0x800 && (codePoint < 0xD800 || codePoint > 0xDFFF)) return codePoint;
    }
    return 0;
}

// How many of the eight bytes at p are ASCII before the first that is not.
std::size_t AsciiPrefix(const unsigned char* p) {
    std::uint64_t word = 0;
    std::memcpy(&word, p, 8);
    const std::uint64_t high = word & kHighBits;
    if (high == 0) return 8;
    if constexpr (std::endian::native == std::endian::little) {
        return static_cast<std::size_t>(std::countr_zero(high)) / 8;
    } else {
        std::size_t n = 0;
        while (p[n] < 0x80) ++n;
        return n;
    }
}

}  // namespace

std::uint32_t AnsiEncoder::Known(std::uint32_t codePoint, std::string_view character) {
    if (m_known.empty()) m_known.resize(0x10000, 0);
    std::uint32_t& entry = m_known[codePoint];
    if (entry == 0) {
        const std::string bytes = base::Utf8ToAnsi(character);
        // Remembered only when it is no longer than in UTF-8 (always so in code page 932).
        if (bytes.empty() || bytes.size() > character.size()) return 0;
        entry = static_cast<std::uint32_t>(bytes.size()) << 24;
        for (std::size_t b = 0; b < bytes.size(); ++b) {
            entry |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[b])) << (8 * b);
        }
    }
    return entry;
}

// The output is sized for the input first. A remembered character never takes more bytes in
// code page 932 than in UTF-8, so the output never overtakes the input and eight bytes can be
// copied ahead whenever eight input bytes are left; only the fallback for malformed or rare
// characters makes room for itself.
void AnsiEncoder::Append(std::string_view utf8, std::string& out) {
    const std::size_t start = out.size();
    out.resize(start + utf8.size());
    char* at = out.data() + start;
    const auto* p = reinterpret_cast<const unsigned char*>(utf8.data());
    const auto* end = p + utf8.size();

    while (p < end) {
        // ASCII stands as it is.
        if (end - p >= 8) {
            std::memcpy(at, p, 8);
            const std::size_t ascii = AsciiPrefix(p);
            p += ascii;
            at += ascii;
            if (ascii == 8) continue;
        } else {
            while (p < end && *p < 0x80) *at++ = static_cast<char>(*p++);
            if (p == end) break;
        }
        std::size_t length = SequenceLength(*p);
        if (length > static_cast<std::size_t>(end - p)) length = static_cast<std::size_t>(end - p);
        const std::uint32_t codePoint = BasicPlaneCodePoint(p, length);
        const std::string_view character(reinterpret_cast<const char*>(p), length);
        p += length;
        std::uint32_t entry = 0;
        if (codePoint != 0) entry = m_known.empty() ? 0 : m_known[codePoint];
        if (codePoint != 0 && entry == 0) entry = Known(codePoint, character);
        if (entry != 0) {
            // Up to three bytes fit, since the character took at least as many in UTF-8.
            at[0] = static_cast<char>(entry & 0xFF);
            at[1] = static_cast<char>((entry >> 8) & 0xFF);
            if (length == 3) at[2] = static_cast<char>((entry >> 16) & 0xFF);
            at += entry >> 24;
            continue;
        }
        const std::string bytes = base::Utf8ToAnsi(character);
        const auto written = static_cast<std::size_t>(at - out.data());
        out.resize(std::max(out.size(), written + bytes.size() + static_cast<std::size_t>(end - p)));
        at = out.data() + written;
        std::memcpy(at, bytes.data(), bytes.size());
        at += bytes.size();
    }
    out.resize(static_cast<std::size_t>(at - out.data()));
}

}  // namespace logs
