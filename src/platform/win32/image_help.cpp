#include "platform/win32/image_help.h"

#include <windows.h>
#include <imagehlp.h>

#include "base/text_encoding.h"

namespace platform::win32 {
namespace {

// Unmaps what MapAndLoad mapped.
class LoadedImage {
public:
    LoadedImage() = default;
    ~LoadedImage() {
        if (m_loaded) UnMapAndLoad(&m_image);
    }
    LoadedImage(const LoadedImage&) = delete;
    LoadedImage& operator=(const LoadedImage&) = delete;

    bool Load(std::string& ansiPath) {
        m_loaded = MapAndLoad(ansiPath.data(), nullptr, &m_image, TRUE, TRUE) != FALSE;
        return m_loaded;
    }
    // The whole file: MapAndLoad maps it from its start and gives its length.
    std::span<const std::uint8_t> Bytes() const { return {m_image.MappedAddress, m_image.SizeOfImage}; }

private:
    LOADED_IMAGE m_image{};
    bool m_loaded = false;
};

}  // namespace

bool ImageHelp::ReadMappedImage(const std::string& path,
                                const std::function<void(std::span<const std::uint8_t>)>& read) {
    std::string ansiPath = base::Utf8ToAnsi(path);
    LoadedImage image;
    if (!image.Load(ansiPath)) return false;
    read(image.Bytes());
    return true;
}

}  // namespace platform::win32
