#pragma once
#include "platform/imagehlp.h"

namespace platform::win32 {

class ImageHelp final : public IImageHelp {
public:
    bool ReadMappedImage(const std::string& path,
                         const std::function<void(std::span<const std::uint8_t>)>& read) override;
};

}  // namespace platform::win32
