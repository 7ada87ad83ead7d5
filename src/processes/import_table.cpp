#include "processes/import_table.h"

#include <algorithm>
#include <optional>

namespace processes {
namespace {

constexpr std::uint16_t kPe32Magic = 0x10B;
constexpr std::uint16_t kPe32PlusMagic = 0x20B;
constexpr std::size_t kImportEntry = 1;  // the directory entry of the imports
constexpr std::size_t kDescriptorSize = 20;
constexpr std::size_t kDescriptorNameOffset = 12;
constexpr std::size_t kSectionHeaderSize = 40;

// Little-endian fields read only where the file has them.
class FileReader {
public:
    explicit FileReader(std::span<const std::uint8_t> bytes) : m_bytes(bytes) {}

    std::optional<std::uint32_t> U32(std::size_t offset) const { return Field(offset, 4); }
    std::optional<std::uint16_t> U16(std::size_t offset) const {
        const auto value = Field(offset, 2);
        return value ? std::optional<std::uint16_t>(static_cast<std::uint16_t>(*value)) : std::nullopt;
    }
    bool Has(std::size_t offset, std::size_t length) const {
        return offset <= m_bytes.size() && length <= m_bytes.size() - offset;
    }
    // The characters from offset up to the first NUL or the file's end.
    std::string Text(std::size_t offset) const {
        if (offset >= m_bytes.size()) return {};
        const auto begin = m_bytes.begin() + static_cast<std::ptrdiff_t>(offset);
        return {begin, std::find(begin, m_bytes.end(), std::uint8_t{0})};
    }

private:
    std::optional<std::uint32_t> Field(std::size_t offset, std::size_t length) const {
        if (!Has(offset, length)) return std::nullopt;
        std::uint32_t value = 0;
        for (std::size_t i = length; i-- > 0;) value = value << 8 | m_bytes[offset + i];
        return value;
    }

    std::span<const std::uint8_t> m_bytes;
};

struct Section {
    std::uint32_t address;  // relative virtual address
    std::uint32_t rawSize;
    std::uint32_t rawOffset;
};

// The headers of the file: its sections and where its import directory is.
struct Headers {
    std::vector<Section> sections;
    std::uint32_t importAddress = 0;
};

std::optional<Headers> ReadHeaders(const FileReader& file) {
    const auto ntOffset = file.U32(0x3C);
    if (!ntOffset || file.U32(*ntOffset) != 0x00004550) return std::nullopt;  // "PE\0\0"
    const std::size_t fileHeader = std::size_t{*ntOffset} + 4;
    const auto sectionCount = file.U16(fileHeader + 2);
    const auto optionalSize = file.U16(fileHeader + 16);
    const std::size_t optional = fileHeader + 20;
    const auto magic = file.U16(optional);
    if (!sectionCount || !optionalSize || !magic) return std::nullopt;
    std::size_t directories = 0;
    if (*magic == kPe32Magic) directories = optional + 96;
    else if (*magic == kPe32PlusMagic) directories = optional + 112;
    else return std::nullopt;
    const auto directoryCount = file.U32(directories - 4);

    Headers headers;
    if (directoryCount && *directoryCount > kImportEntry) {
        headers.importAddress = file.U32(directories + 8 * kImportEntry).value_or(0);
    }
    const std::size_t table = optional + *optionalSize;
    for (std::size_t i = 0; i < *sectionCount; ++i) {
        const std::size_t header = table + i * kSectionHeaderSize;
        if (!file.Has(header, kSectionHeaderSize)) break;
        headers.sections.push_back({*file.U32(header + 12), *file.U32(header + 16), *file.U32(header + 20)});
    }
    return headers;
}

// Where a relative virtual address lies in the file: in the raw data of the section holding it.
std::optional<std::size_t> FileOffset(const Headers& headers, std::uint32_t address) {
    for (const Section& s : headers.sections) {
        if (address >= s.address && address - s.address < s.rawSize) {
            return std::size_t{s.rawOffset} + (address - s.address);
        }
    }
    return std::nullopt;
}

}  // namespace

std::vector<std::string> ImportedLibraryNames(std::span<const std::uint8_t> image) {
    const FileReader file(image);
    const std::optional<Headers> headers = ReadHeaders(file);
    if (!headers || headers->importAddress == 0) return {};
    const std::optional<std::size_t> table = FileOffset(*headers, headers->importAddress);
    if (!table) return {};
    std::vector<std::string> names;
    for (std::size_t descriptor = *table; file.Has(descriptor, kDescriptorSize); descriptor += kDescriptorSize) {
        const std::uint32_t nameAddress = *file.U32(descriptor + kDescriptorNameOffset);
        if (nameAddress == 0) break;
        const std::optional<std::size_t> name = FileOffset(*headers, nameAddress);
        names.push_back(name ? file.Text(*name) : std::string());
    }
    return names;
}

}  // namespace processes
