#pragma once
// Network-resource enumeration (WNetOpenEnum, WNetEnumResource, WNetCloseEnum).
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace platform {

namespace wnet {
constexpr std::uint32_t kScopeGlobalNet = 2;     // RESOURCE_GLOBALNET
constexpr std::uint32_t kTypeAny = 0;            // RESOURCETYPE_ANY
constexpr std::uint32_t kDisplayTypeDomain = 1;  // RESOURCEDISPLAYTYPE_DOMAIN
constexpr std::uint32_t kDisplayTypeServer = 2;  // RESOURCEDISPLAYTYPE_SERVER
constexpr std::uint32_t kUsageConnectable = 1;   // RESOURCEUSAGE_CONNECTABLE
constexpr std::uint32_t kUsageContainer = 2;     // RESOURCEUSAGE_CONTAINER
constexpr std::uint32_t kNoMoreItems = 259;      // ERROR_NO_MORE_ITEMS
}  // namespace wnet

// One NETRESOURCE record; a null string pointer reads as empty text.
struct NetResource {
    std::uint32_t scope = 0;
    std::uint32_t type = 0;
    std::uint32_t displayType = 0;
    std::uint32_t usage = 0;
    std::string localName;
    std::string remoteName;
    std::string comment;
    std::string provider;
};

// An open enumeration; destroying it closes it (WNetCloseEnum).
class IResourceEnumeration {
public:
    virtual ~IResourceEnumeration() = default;
    // WNetEnumResource asking for as many entries as fit: 0 with the next entries replacing the
    // content of `entries`, wnet::kNoMoreItems at the end, any other code when the call fails.
    virtual std::uint32_t Next(std::vector<NetResource>& entries) = 0;
};

struct OpenedEnumeration {
    std::uint32_t result = 0;                          // WNetOpenEnum's result, 0 on success
    std::unique_ptr<IResourceEnumeration> enumeration; // set only on success
};

class IWNet {
public:
    virtual ~IWNet() = default;
    // WNetOpenEnum on the container record.
    virtual OpenedEnumeration OpenEnum(std::uint32_t scope, std::uint32_t type, std::uint32_t usage,
                                       const NetResource& container) = 0;
};

}  // namespace platform
