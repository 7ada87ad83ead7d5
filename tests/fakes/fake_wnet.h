#pragma once
// Network-resource enumeration over a table of containers, counting the enumerations left open.
#include <map>
#include <string>
#include <vector>

#include "platform/wnet.h"

namespace fakes {

struct FakeContainer {
    std::uint32_t openResult = 0;                            // what WNetOpenEnum answers
    std::vector<std::vector<platform::NetResource>> batches; // what each read returns, in order
    std::uint32_t endResult = platform::wnet::kNoMoreItems;  // the answer after the last batch
    bool readThrows = false;                                 // the first read raises an error
};

class FakeWNet : public platform::IWNet {
public:
    platform::OpenedEnumeration OpenEnum(std::uint32_t scope, std::uint32_t type, std::uint32_t usage,
                                         const platform::NetResource& container) override;

    // Keyed by the container's remote name; the network itself (no remote name) by its provider.
    // Opening a container that is not here fails with 1222, no network.
    std::map<std::string, FakeContainer> containers;
    int openEnumerations = 0;  // opened and not yet closed
};

}  // namespace fakes
