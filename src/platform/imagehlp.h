#pragma once
// A program file mapped read-only, as the image-help library maps it for reading its tables.
#include <cstdint>
#include <functional>
#include <span>
#include <string>

namespace platform {

class IImageHelp {
public:
    virtual ~IImageHelp() = default;
    // MapAndLoad (no search path, ".DLL" as the default extension, read-only), read gets the
    // mapped file's bytes, then UnMapAndLoad. False, without calling read, when it cannot be mapped.
    virtual bool ReadMappedImage(const std::string& path,
                                 const std::function<void(std::span<const std::uint8_t>)>& read) = 0;
};

}  // namespace platform
