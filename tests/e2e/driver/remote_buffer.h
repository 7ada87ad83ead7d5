#pragma once
// Memory inside another process. Common-control messages carry pointers that the receiving
// process dereferences, so their structures and text buffers must live in the target's address
// space: allocate there, write the request, send the message, read the answer back.
#include <windows.h>

#include <cstddef>
#include <string>

#include "base/win32/unique_resource.h"

namespace driver {

class RemoteBuffer {
public:
    RemoteBuffer(HWND owner, std::size_t size);
    ~RemoteBuffer();
    RemoteBuffer(const RemoteBuffer&) = delete;
    RemoteBuffer& operator=(const RemoteBuffer&) = delete;

    HANDLE Process() const { return m_process.Get(); }
    // The address in the target, offset bytes in.
    void* At(std::size_t offset = 0) const { return static_cast<char*>(m_address) + offset; }
    LPARAM Param(std::size_t offset = 0) const { return reinterpret_cast<LPARAM>(At(offset)); }

    void Write(std::size_t offset, const void* data, std::size_t size);
    void Read(std::size_t offset, void* data, std::size_t size) const;
    template <typename T>
    void Put(std::size_t offset, const T& value) {
        Write(offset, &value, sizeof value);
    }
    template <typename T>
    T Get(std::size_t offset) const {
        T value{};
        Read(offset, &value, sizeof value);
        return value;
    }
    // A NUL-terminated UTF-16 string at offset, at most maxChars long, as UTF-8.
    std::string Text(std::size_t offset, std::size_t maxChars) const;
    void Clear();

private:
    base::UniqueHandle m_process;
    void* m_address = nullptr;
    std::size_t m_size;
};

}  // namespace driver
