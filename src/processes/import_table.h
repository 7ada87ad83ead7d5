#pragma once
// The import table of a program file as it lies on disk (32-bit and 64-bit images alike).
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace processes {

// The library names of the file's import descriptors in table order, duplicates included and
// each exactly as stored (code page bytes). Nothing for a file without an import directory.
// Reads only inside image: a name or descriptor whose address lies in no section of the file
// reads as empty, a table or a name cut off by the file's end ends where the file does.
std::vector<std::string> ImportedLibraryNames(std::span<const std::uint8_t> image);

}  // namespace processes
