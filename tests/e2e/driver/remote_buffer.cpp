#include "remote_buffer.h"

#include <vector>

#include "base/win32/wide.h"
#include "driver.h"

namespace driver {

RemoteBuffer::RemoteBuffer(HWND owner, std::size_t size) : m_size(size) {
    DWORD processId = 0;
    GetWindowThreadProcessId(owner, &processId);
    m_process.Reset(OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE |
                                       PROCESS_CREATE_THREAD | PROCESS_QUERY_INFORMATION,
                                   FALSE, processId));
    if (!m_process) throw Failure("cannot open process " + std::to_string(processId) + " (error " +
                                  std::to_string(GetLastError()) + ")");
    m_address = VirtualAllocEx(m_process.Get(), nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    if (!m_address) throw Failure("cannot allocate memory in process " + std::to_string(processId));
}

RemoteBuffer::~RemoteBuffer() {
    VirtualFreeEx(m_process.Get(), m_address, 0, MEM_RELEASE);
}

void RemoteBuffer::Write(std::size_t offset, const void* data, std::size_t size) {
    SIZE_T done = 0;
    if (offset + size > m_size || !WriteProcessMemory(m_process.Get(), At(offset), data, size, &done) || done != size)
        throw Failure("cannot write into the target process");
}

void RemoteBuffer::Read(std::size_t offset, void* data, std::size_t size) const {
    SIZE_T done = 0;
    if (offset + size > m_size || !ReadProcessMemory(m_process.Get(), At(offset), data, size, &done) || done != size)
        throw Failure("cannot read from the target process");
}

std::string RemoteBuffer::Text(std::size_t offset, std::size_t maxChars) const {
    std::wstring text(maxChars, L'\0');
    Read(offset, text.data(), maxChars * sizeof(wchar_t));
    text.resize(text.find(L'\0') == std::wstring::npos ? maxChars : text.find(L'\0'));
    return base::Narrow(text);
}

void RemoteBuffer::Clear() {
    const std::vector<char> zeros(m_size, 0);
    Write(0, zeros.data(), zeros.size());
}

}  // namespace driver
