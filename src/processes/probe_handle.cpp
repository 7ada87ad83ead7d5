#include "processes/probe_handle.h"

#include <array>
#include <utility>
#include <vector>

#include "base/conversions.h"
#include "platform/error_trap.h"
#include "processes/native_bytes.h"

namespace processes {
namespace {

constexpr std::uint32_t kProcessDupHandle = 0x40;
constexpr std::uint32_t kGenericAllStandardRightsAll = 0x101F0000;
constexpr std::uint32_t kTdiQueryInformation = 0x00210012;
constexpr std::uint32_t kTdiQueryAddressInfo = 3;
constexpr std::uint16_t kTransportNameBytes = 22;  // "\Device\Tcp", "\Device\Udp"

// Closes the handle it was given when it goes, unless none was obtained.
class OwnedHandle {
public:
    OwnedHandle(platform::INativeHandles& native, platform::OsHandle handle) : m_native(native), m_handle(handle) {}
    ~OwnedHandle() {
        if (m_handle != platform::kNoHandle) m_native.CloseHandle(m_handle);
    }
    OwnedHandle(const OwnedHandle&) = delete;
    OwnedHandle& operator=(const OwnedHandle&) = delete;
    platform::OsHandle Get() const { return m_handle; }
    platform::OsHandle Release() { return std::exchange(m_handle, platform::kNoHandle); }

private:
    platform::INativeHandles& m_native;
    platform::OsHandle m_handle;
};

// The name behind the header. (The header's padding on 64-bit systems would end the text at once.)
std::u16string NameCharacters(const std::vector<std::byte>& bytes, std::size_t header) {
    std::u16string text((bytes.size() - header) / 2, u'\0');
    for (std::size_t i = 0; i < text.size(); ++i) {
        text[i] = static_cast<char16_t>(ReadUint16(bytes, header + 2 * i));
    }
    return text;
}

bool NamesTcp(std::u16string text) {
    for (char16_t& c : text) {
        if (c >= u'a' && c <= u'z') c = static_cast<char16_t>(c - u'a' + u'A');
    }
    return text.find(u"TCP") != std::u16string::npos;
}

}  // namespace

std::int16_t WordToInteger(std::int32_t value, platform::IDialogs& dialogs) {
    std::int16_t result = 0;
    platform::TrapErrors(dialogs, "アプリケーション で Error Level m5 が発生しました。",
                         [&] { result = base::ToInt16(value > 32767 ? value - 65536 : value); });
    return result;
}

std::u16string TrimAtNull(std::u16string_view text, platform::IDialogs& dialogs) {
    std::u16string result;
    platform::TrapErrors(dialogs, "アプリケーション で Error Level m6 が発生しました。",
                         [&] { result = text.substr(0, text.find(u'\0')); });
    return result;
}

std::int32_t QueryLocalPort(platform::INativeHandles& native, platform::OsHandle handle,
                            platform::IDialogs& dialogs) {
    std::int32_t port = 0;
    platform::TrapErrors(dialogs, "アプリケーション で Error Level m4 が発生しました。", [&] {
        std::array<std::byte, 24> request{};
        request[16] = std::byte{kTdiQueryAddressInfo};
        std::array<std::byte, 52> reply{};
        if (native.DeviceIoControl(handle, kTdiQueryInformation, request, reply) != platform::kStatusSuccess) return;
        const std::int16_t word = WordToInteger(static_cast<std::int32_t>(ReadUint32(reply, 12) & 0xFFFF), dialogs);
        const auto network = static_cast<std::uint16_t>(word);
        const auto host = static_cast<std::int16_t>(static_cast<std::uint16_t>(network << 8 | network >> 8));
        port = host < 0 ? host + 65536 : host;
    });
    return port;
}

std::optional<PortOwnerCell> ProbeHandle(platform::INativeHandles& native, const HandleEntry& entry,
                                         const NativeLayout& layout, platform::IDialogs& dialogs) {
    std::optional<PortOwnerCell> found;
    platform::TrapErrors(dialogs, "アプリケーション で Error Level m3-2 が発生しました。", [&] {
        if (entry.processId == 0) return;  // the idle process
        OwnedHandle process(native, native.OpenProcess(kProcessDupHandle, entry.processId));
        // Only -1 ends the probe; a refused open just makes the duplication fail.
        if (process.Get() == platform::kMinusOneHandle) {
            process.Release();
            return;
        }
        OwnedHandle copy(native,
                         native.DuplicateHandle(process.Get(), entry.handleValue, kGenericAllStandardRightsAll));
        if (copy.Get() == platform::kNoHandle) return;
        std::vector<std::byte> name(layout.NameBuffer());
        if (native.QueryObjectName(copy.Get(), name) != platform::kStatusSuccess) return;
        if (ReadUint16(name, 0) != kTransportNameBytes) return;
        const bool tcp = NamesTcp(TrimAtNull(NameCharacters(name, layout.nameHeader), dialogs));
        const std::int32_t port = QueryLocalPort(native, copy.Get(), dialogs);
        if (port != 0) found = PortOwnerCell{port, tcp ? Protocol::Tcp : Protocol::Udp, entry.processId};
    });
    return found;
}

}  // namespace processes
