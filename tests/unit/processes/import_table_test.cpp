#include "processes/import_table.h"

#include <gtest/gtest.h>

namespace processes {
namespace {

using Names = std::vector<std::string>;

// A 32-bit image (the platform test reads a 64-bit one) with one section at address 0x1000, file
// offset 0x200: the descriptors, then the names from 0x300.
std::vector<std::uint8_t> Image(const Names& names) {
    std::vector<std::uint8_t> b(0x400, 0);
    const auto put = [&](std::size_t at, std::uint32_t value) {
        for (int i = 0; i < 4; ++i) b[at + i] = static_cast<std::uint8_t>(value >> (8 * i));
    };
    const std::size_t optionalSize = 224, directories = 0xB8, section = 0x58 + optionalSize;
    put(0x3C, 0x40), put(0x40, 0x4550), put(0x46, 1), put(0x54, optionalSize), put(0x58, 0x10B);
    put(directories - 4, 16), put(directories + 8, names.empty() ? 0 : 0x1000), put(section + 12, 0x1000);
    put(section + 16, 0x200), put(section + 20, 0x200);
    std::size_t at = 0x300;
    for (std::size_t i = 0; i < names.size(); at += names[i++].size() + 1) {
        put(0x200 + 20 * i + 12, static_cast<std::uint32_t>(0x1000 + at - 0x200));
        std::copy(names[i].begin(), names[i].end(), b.begin() + static_cast<std::ptrdiff_t>(at));
    }
    return b;
}

TEST(ImportTable, NamesInTableOrderAsStoredAndBrokenFilesReadOnlyWithinTheirBytes) {
    const Names names{"KERNEL32.dll", "msvcrt.DLL", "KERNEL32.dll"};
    EXPECT_EQ(ImportedLibraryNames(Image(names)), names);
    EXPECT_TRUE(ImportedLibraryNames(Image({})).empty());

    std::vector<std::uint8_t> image = Image({"A.dll", "B.dll"});
    image[0x200 + 15] = 0x7F;  // the first name lies in no section
    EXPECT_EQ(ImportedLibraryNames(image), (Names{"", "B.dll"}));
    image.resize(0x308);  // cut inside the second name
    EXPECT_EQ(ImportedLibraryNames(image), (Names{"", "B."}));
    image.resize(0x200 + 30);  // cut inside the second descriptor
    EXPECT_EQ(ImportedLibraryNames(image), (Names{""}));
    image[0x3F] = 0xFF;  // headers beyond the end
    EXPECT_TRUE(ImportedLibraryNames(image).empty());
}

}  // namespace
}  // namespace processes
