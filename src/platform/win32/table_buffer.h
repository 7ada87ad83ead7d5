#pragma once
// The size-query pattern of the IP Helper tables in one place: ask with no buffer for the size,
// then fill a buffer of that size; a table that grew in between answers "too small" again with
// its new size and is asked for once more, so a changing table never overruns the buffer.
#include <windows.h>

#include <cstdint>
#include <vector>

namespace platform::win32 {

// call(buffer, &size) is one call of the API. Returns the last call's result; on NO_ERROR the
// table starts at buffer.data() (8-byte units keep it aligned). The first call's result is
// returned as it is when it is not "too small" (for example 50: not supported).
template <typename Call>
DWORD ReadTable(std::vector<std::uint64_t>& buffer, Call call) {
    ULONG size = 0;
    buffer.clear();
    DWORD result = call(nullptr, &size);
    while (result == ERROR_INSUFFICIENT_BUFFER) {
        buffer.assign(size / sizeof(std::uint64_t) + 1, 0);
        size = static_cast<ULONG>(buffer.size() * sizeof(std::uint64_t));
        result = call(buffer.data(), &size);
    }
    return result;
}

}  // namespace platform::win32
