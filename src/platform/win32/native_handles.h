#pragma once
// The native services of the port-owner walk: ntdll's functions, resolved once at construction,
// and the owner-PID tables of IP Helper.
#include "platform/native_handles.h"

namespace platform::win32 {

class NativeHandles final : public INativeHandles {
public:
    NativeHandles();

    QueryStatus QuerySystemHandles(std::span<std::byte> buffer) override;
    OsHandle OpenProcess(std::uint32_t access, std::int32_t processId) override;
    OsHandle DuplicateHandle(OsHandle process, std::uint32_t handleValue, std::uint32_t access) override;
    std::uint32_t QueryObjectName(OsHandle handle, std::span<std::byte> buffer) override;
    std::uint32_t DeviceIoControl(OsHandle handle, std::uint32_t code, std::span<const std::byte> input,
                                  std::span<std::byte> output) override;
    void CloseHandle(OsHandle handle) override;
    PrivilegeResult EnablePrivilege(const std::string& name) override;
    std::string ProcessPath(std::int32_t processId) override;
    std::vector<PortOwner> TcpPortOwners() override;
    std::vector<PortOwner> UdpPortOwners() override;

private:
    using QuerySystemInformation = long(__stdcall*)(unsigned long, void*, unsigned long, unsigned long*);
    using QueryObject = long(__stdcall*)(void*, unsigned long, void*, unsigned long, unsigned long*);
    using DeviceIoControlFile = long(__stdcall*)(void*, void*, void*, void*, void*, unsigned long, void*,
                                                 unsigned long, void*, unsigned long);

    QuerySystemInformation m_querySystemInformation = nullptr;
    QueryObject m_queryObject = nullptr;
    DeviceIoControlFile m_deviceIoControlFile = nullptr;
};

}  // namespace platform::win32
