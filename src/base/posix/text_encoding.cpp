#include "base/text_encoding.h"

#include <iconv.h>

#include <cerrno>
#include <stdexcept>

namespace base {
namespace {

class Converter {
public:
    Converter(const char* to, const char* from, bool fromUtf8)
        : m_handle(iconv_open(to, from)), m_fromUtf8(fromUtf8) {
        if (m_handle == reinterpret_cast<iconv_t>(-1)) throw std::runtime_error("iconv_open failed");
    }
    ~Converter() { iconv_close(m_handle); }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    std::string Convert(std::string_view input, std::string_view replacement) {
        iconv(m_handle, nullptr, nullptr, nullptr, nullptr);
        std::string output;
        char* in = const_cast<char*>(input.data());
        std::size_t inLeft = input.size();
        char buffer[256];
        while (inLeft > 0) {
            char* out = buffer;
            std::size_t outLeft = sizeof buffer;
            const std::size_t result = iconv(m_handle, &in, &inLeft, &out, &outLeft);
            output.append(buffer, static_cast<std::size_t>(out - buffer));
            if (result == static_cast<std::size_t>(-1) && errno != E2BIG) {
                // Skip one whole input character and put the replacement in its place.
                std::size_t skip = 1;
                if (errno == EILSEQ || errno == EINVAL) {
                    const auto lead = static_cast<unsigned char>(*in);
                    skip = SkipLength(lead);
                }
                if (skip > inLeft) skip = inLeft;
                in += skip;
                inLeft -= skip;
                output += replacement;
            }
        }
        return output;
    }

private:
    std::size_t SkipLength(unsigned char lead) const {
        if (m_fromUtf8) {
            if (lead >= 0xF0) return 4;
            if (lead >= 0xE0) return 3;
            if (lead >= 0xC0) return 2;
            return 1;
        }
        return (lead >= 0x81 && lead <= 0x9F) || (lead >= 0xE0 && lead <= 0xFC) ? 2 : 1;
    }

    iconv_t m_handle;
    bool m_fromUtf8;
};

}  // namespace

std::string Utf8ToAnsi(std::string_view utf8) {
    thread_local Converter converter("CP932", "UTF-8", true);
    return converter.Convert(utf8, "?");
}

std::string AnsiToUtf8(std::string_view ansi) {
    thread_local Converter converter("UTF-8", "CP932", false);
    return converter.Convert(ansi, "\xE3\x83\xBB");  // "・", the system's default for unknown bytes
}

}  // namespace base
