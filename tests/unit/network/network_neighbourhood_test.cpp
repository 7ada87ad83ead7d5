#include "network/network_neighbourhood.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/fake_dialogs.h"
#include "fakes/fake_ip_helper.h"
#include "fakes/fake_winsock.h"
#include "fakes/fake_wnet.h"

namespace network {
namespace {

using ::testing::ElementsAre;
namespace msgbox = platform::msgbox;
namespace wnet = platform::wnet;

constexpr const char* kProvider = "Microsoft Windows Network";
constexpr const char* kConfirmation =
    "\r\nマイ ネットワーク情報の取得には数分間\r\n\r\nかかることがございます。\r\n\r\n実行してもよろしいでしょうか？\r\n";

platform::NetResource Record(std::uint32_t displayType, std::uint32_t usage, const std::string& remoteName) {
    return {wnet::kScopeGlobalNet, 0, displayType, usage, "", remoteName, "", kProvider};
}
platform::NetResource Domain(const std::string& name) {
    return Record(wnet::kDisplayTypeDomain, wnet::kUsageContainer, name);
}
platform::NetResource Server(const std::string& name) {
    return Record(wnet::kDisplayTypeServer, wnet::kUsageContainer, name);
}

using Rows = std::vector<std::vector<std::string>>;

class ListNetworkPcsTest : public ::testing::Test {
protected:
    void SetUp() override { dialogs.answers = {msgbox::kYes}; }

    std::size_t Run() { return ListNetworkPcs(dialogs, net, winsock, arp, lstvPc); }

    Rows AllRows() const {
        Rows rows;
        for (std::size_t i = 0; i < lstvPc.RowCount(); ++i) rows.push_back(lstvPc.RowAt(i).cells);
        return rows;
    }
    // A PC that resolves and answers ARP.
    void AddPc(const std::string& name, const std::string& address, const std::vector<std::uint8_t>& mac) {
        winsock.AddHost(name, {address});
        arp.AddArpReply(fakes::InetAddr(address), mac);
    }
    void TwoWorkgroups() {
        net.containers[kProvider].batches = {{Domain("WORKGROUP"), Domain("OFFICE")}};
        net.containers["WORKGROUP"].batches = {{Server("\\\\PC01"), Server("\\\\PC02")}};
        net.containers["OFFICE"].batches = {{Server("\\\\SV01")}};
        AddPc("PC01", "192.168.1.11", {0x00, 0x0A, 0x95, 0x9D, 0x68, 0x16});
        AddPc("PC02", "192.168.1.12", {0x00, 0x1B, 0x0C, 0x00, 0x05, 0xFF});
        AddPc("SV01", "10.0.0.2", {0x08, 0x00, 0x27, 0xAA, 0xBB, 0xCC});
    }

    fakes::FakeDialogs dialogs;
    fakes::FakeWNet net;
    fakes::FakeWinsock winsock;
    fakes::FakeIpHelper arp;
    base::TableModel lstvPc;
};

TEST_F(ListNetworkPcsTest, ListsEveryServerOfEveryDomain) {
    TwoWorkgroups();
    lstvPc.AddRow({"OLD", "1.2.3.4", "00:1:2:3:4:5", "GONE"});

    EXPECT_EQ(Run(), 3u);

    EXPECT_EQ(AllRows(), (Rows{{"PC01", "192.168.1.11", "00:A:95:9D:68:16", "WORKGROUP"},
                               {"PC02", "192.168.1.12", "00:1B:C:00:5:FF", "WORKGROUP"},
                               {"SV01", "10.0.0.2", "8:00:27:AA:BB:CC", "OFFICE"}}));
    EXPECT_THAT(dialogs.Texts(), ElementsAre(kConfirmation, "マイ ネットワーク情報取得完了"));
}

TEST_F(ListNetworkPcsTest, KeepsDomainsAtTheFirstLevelAndServersAtTheSecond) {
    platform::NetResource share = Record(6, wnet::kUsageConnectable, "\\\\PC01\\共有");  // a share point
    platform::NetResource generic = Record(0, wnet::kUsageContainer, "\\\\ODD");
    net.containers[kProvider].batches = {{Server("\\\\STRAY"), Domain("WORKGROUP"), generic}};
    net.containers["WORKGROUP"].batches = {{Domain("INNER"), share, Server("\\\\PC01"), generic}};

    EXPECT_EQ(Run(), 1u);
    // Opening the stray server or the inner domain would fail and end the run.
    EXPECT_EQ(AllRows(), (Rows{{"PC01", "", "", "WORKGROUP"}}));
}

TEST_F(ListNetworkPcsTest, ReadsEveryBatchAndAFailedReadEndsThatLevelOnly) {
    net.containers[kProvider].batches = {{Domain("A")}, {Domain("B")}};
    net.containers[kProvider].endResult = 1222;
    net.containers["A"].batches = {{Server("\\\\PC01")}, {Server("\\\\PC02")}};
    net.containers["A"].endResult = 59;  // ERROR_UNEXP_NET_ERR
    net.containers["B"].batches = {{Server("\\\\PC03")}};
    EXPECT_EQ(Run(), 3u);
    EXPECT_EQ(lstvPc.Cell(1, 0), "PC02");
}

TEST_F(ListNetworkPcsTest, WinsockFailuresAreReportedForEachPcOrLeaveItsNameOnly) {
    TwoWorkgroups();
    winsock.cleanupResult = -1;
    EXPECT_EQ(Run(), 3u);
    EXPECT_THAT(dialogs.Texts(),
                ElementsAre(kConfirmation, "エラー", "エラー", "エラー", "マイ ネットワーク情報取得完了"));
    // Without Winsock, as for a name that does not resolve, a PC is listed by name only.
    winsock.startupResult = 10091;
    dialogs.answers = {msgbox::kYes};
    EXPECT_EQ(Run(), 3u);
    EXPECT_EQ(lstvPc.RowAt(0).cells, (std::vector<std::string>{"PC01", "", "", "WORKGROUP"}));
}

TEST_F(ListNetworkPcsTest, MachineNameDropsTheFirstTwoCharacters) {
    net.containers[kProvider].batches = {{Domain("作業グループ")}};
    net.containers["作業グループ"].batches = {{Server("\\\\経理PC"), Server("\\\\"), Server("\\")}};
    EXPECT_EQ(Run(), 3u);
    EXPECT_EQ(AllRows(), (Rows{{"経理PC", "", "", "作業グループ"}, {"", "", "", "作業グループ"}, {"", "", "", "作業グループ"}}));
}

TEST_F(ListNetworkPcsTest, DecliningLeavesTheListUntouchedAndNoNetworkIsErrorNumberOne) {
    lstvPc.AddRow({"OLD", "1.2.3.4", "00:1:2:3:4:5", "GONE"});
    for (const int answer : {msgbox::kNo, msgbox::kCancel}) {
        dialogs.answers = {answer};
        EXPECT_EQ(Run(), 1u);
    }
    EXPECT_EQ(AllRows(), (Rows{{"OLD", "1.2.3.4", "00:1:2:3:4:5", "GONE"}}));
    // No container at all: 1222, no network, as on a PC without one.
    dialogs.answers = {msgbox::kYes};
    EXPECT_EQ(Run(), 0u);
    EXPECT_THAT(dialogs.Texts(),
                ElementsAre(kConfirmation, kConfirmation, kConfirmation, "WNetOpenEnum Error No.1"));
}

TEST_F(ListNetworkPcsTest, ADomainThatCannotBeOpenedOrReadEndsTheRunWithItsError) {
    TwoWorkgroups();
    net.containers[kProvider].batches = {{Domain("WORKGROUP"), Domain("LOCKED"), Domain("OFFICE")}};
    net.containers["LOCKED"].openResult = 5;  // access denied
    EXPECT_EQ(Run(), 2u);                     // OFFICE is not read
    net.containers["LOCKED"].openResult = 0;
    net.containers["OFFICE"].readThrows = true;
    dialogs.answers = {msgbox::kYes};
    EXPECT_EQ(Run(), 2u);
    EXPECT_THAT(dialogs.Texts(),
                ElementsAre(kConfirmation, "WNetOpenEnum Error No.2", kConfirmation, "listPcEnum Error"));
    EXPECT_EQ(net.openEnumerations, 0);
}

}  // namespace
}  // namespace network
