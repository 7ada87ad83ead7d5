#include "processes/handle_table.h"

#include <algorithm>
#include <span>

#include "base/product.h"
#include "processes/native_bytes.h"

namespace processes {
namespace {

constexpr int kMaxRounds = 8;
constexpr std::size_t kFirstQueryLength = 20;
// A count beyond this is no usable size.
constexpr std::uint64_t kMaxTableBytes = 512ull * 1024 * 1024;
constexpr std::uint64_t kFirstGuess = 64 * 1024;

std::vector<HandleEntry> Entries(std::span<const std::byte> buffer, const NativeLayout& layout,
                                 std::uint64_t listed) {
    const std::uint64_t fit = buffer.size() < layout.handleHeader
                                  ? 0
                                  : (buffer.size() - layout.handleHeader) / layout.handleEntry;
    std::vector<HandleEntry> entries(static_cast<std::size_t>(std::min(listed, fit)));
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const std::size_t at = layout.handleHeader + i * layout.handleEntry;
        entries[i] = {static_cast<std::int16_t>(ReadUint16(buffer, at)), ReadUint16(buffer, at + 6)};
    }
    return entries;
}

}  // namespace

std::vector<HandleEntry> ReadHandleTable(platform::INativeHandles& native, platform::IDialogs& dialogs,
                                         const NativeLayout& layout) {
    std::uint64_t reported = 0;
    std::uint64_t guess = kFirstGuess;
    for (int round = 0; round < kMaxRounds; ++round) {
        std::vector<std::byte> first(kFirstQueryLength);
        const platform::QueryStatus counted = native.QuerySystemHandles(first);
        if (counted.status == platform::kStatusSuccess) {
            dialogs.ShowMessage("アプリケーション で Error Level m2-1 が発生しました。", base::kProductName,
                                platform::msgbox::kOkOnly);
            return {};
        }
        const std::uint32_t count = ReadUint32(first, 0);
        reported = std::max<std::uint64_t>(reported, counted.returnLength);
        std::uint64_t size = std::uint64_t{count} * layout.handleEntry + layout.handleHeader;
        if (count == 0 || size > kMaxTableBytes) size = 0;
        size = std::max(size, std::min(reported, kMaxTableBytes));
        if (size <= layout.handleHeader) {
            // Neither a count nor a length: guess, larger every round.
            size = guess;
            guess = std::min(guess * 2, kMaxTableBytes);
        }
        std::vector<std::byte> table(static_cast<std::size_t>(size));
        const platform::QueryStatus listed = native.QuerySystemHandles(table);
        if (listed.status == platform::kStatusInfoLengthMismatch) {
            reported = std::max<std::uint64_t>(reported, listed.returnLength);
            continue;
        }
        // A failed answer leaves the buffer as it stands: its entries are read all the same.
        const std::uint64_t entries = listed.status == platform::kStatusSuccess ? ReadUint32(table, 0) : count;
        return Entries(table, layout, entries);
    }
    return {};
}

}  // namespace processes
