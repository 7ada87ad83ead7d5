#include "platform/win32/wnet.h"

#include <windows.h>
#include <winnetwk.h>

#include "base/win32/unique_resource.h"
#include "base/win32/wide.h"

namespace platform::win32 {
namespace {

using UniqueEnumHandle = base::UniqueResource<base::SimpleTraits<HANDLE, WNetCloseEnum>>;

// The size the system suggests for one read of a resource enumeration.
constexpr DWORD kFirstBufferSize = 16 * 1024;

std::string Text(const wchar_t* text) { return text ? base::Narrow(text) : std::string(); }

class ResourceEnumeration : public IResourceEnumeration {
public:
    explicit ResourceEnumeration(HANDLE handle) : m_handle(handle), m_buffer(kFirstBufferSize / sizeof(NETRESOURCEW)) {}

    std::uint32_t Next(std::vector<NetResource>& entries) override {
        for (;;) {
            DWORD count = 0xFFFFFFFF;  // as many as fit
            DWORD size = static_cast<DWORD>(m_buffer.size() * sizeof(NETRESOURCEW));
            const DWORD result = WNetEnumResourceW(m_handle.Get(), &count, m_buffer.data(), &size);
            // More data with a larger size: not even one entry fits, so grow and ask again.
            if (result == ERROR_MORE_DATA && size > m_buffer.size() * sizeof(NETRESOURCEW)) {
                m_buffer.resize(size / sizeof(NETRESOURCEW) + 1);
                continue;
            }
            if (result != NO_ERROR) return result;
            entries.clear();
            for (DWORD i = 0; i < count; ++i) {
                const NETRESOURCEW& record = m_buffer[i];
                entries.push_back({record.dwScope, record.dwType, record.dwDisplayType, record.dwUsage,
                                   Text(record.lpLocalName), Text(record.lpRemoteName), Text(record.lpComment),
                                   Text(record.lpProvider)});
            }
            return NO_ERROR;
        }
    }

private:
    UniqueEnumHandle m_handle;
    // The records come first and their strings after them, all in this one buffer; records
    // keep it aligned for their pointers.
    std::vector<NETRESOURCEW> m_buffer;
};

// A null pointer for an empty text: that is how the enumeration itself hands absent names back.
wchar_t* Field(std::wstring& text) { return text.empty() ? nullptr : text.data(); }

}  // namespace

OpenedEnumeration WNet::OpenEnum(std::uint32_t scope, std::uint32_t type, std::uint32_t usage,
                                 const NetResource& container) {
    std::wstring localName = base::Widen(container.localName);
    std::wstring remoteName = base::Widen(container.remoteName);
    std::wstring comment = base::Widen(container.comment);
    std::wstring provider = base::Widen(container.provider);
    NETRESOURCEW record{};
    record.dwScope = container.scope;
    record.dwType = container.type;
    record.dwDisplayType = container.displayType;
    record.dwUsage = container.usage;
    record.lpLocalName = Field(localName);
    record.lpRemoteName = Field(remoteName);
    record.lpComment = Field(comment);
    record.lpProvider = Field(provider);

    HANDLE handle = nullptr;
    const DWORD result = WNetOpenEnumW(scope, type, usage, &record, &handle);
    if (result != NO_ERROR) return {result, nullptr};
    return {NO_ERROR, std::make_unique<ResourceEnumeration>(handle)};
}

}  // namespace platform::win32
