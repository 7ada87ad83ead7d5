#include "fakes/fake_wnet.h"

#include <stdexcept>

namespace fakes {
namespace {

class FakeEnumeration : public platform::IResourceEnumeration {
public:
    FakeEnumeration(const FakeContainer& container, int& openCount) : m_container(container), m_openCount(openCount) {
        ++m_openCount;
    }
    ~FakeEnumeration() override { --m_openCount; }
    FakeEnumeration(const FakeEnumeration&) = delete;
    FakeEnumeration& operator=(const FakeEnumeration&) = delete;

    std::uint32_t Next(std::vector<platform::NetResource>& entries) override {
        if (m_container.readThrows) throw std::runtime_error("read failed");
        if (m_next == m_container.batches.size()) return m_container.endResult;
        entries = m_container.batches[m_next++];
        return 0;
    }

private:
    const FakeContainer& m_container;
    int& m_openCount;
    std::size_t m_next = 0;
};

}  // namespace

platform::OpenedEnumeration FakeWNet::OpenEnum(std::uint32_t, std::uint32_t, std::uint32_t,
                                               const platform::NetResource& container) {
    const std::string& key = container.remoteName.empty() ? container.provider : container.remoteName;
    const auto found = containers.find(key);
    if (found == containers.end()) return {1222, nullptr};
    if (found->second.openResult != 0) return {found->second.openResult, nullptr};
    return {0, std::make_unique<FakeEnumeration>(found->second, openEnumerations)};
}

}  // namespace fakes
