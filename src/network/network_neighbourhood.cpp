#include "network/network_neighbourhood.h"

#include <exception>
#include <optional>
#include <string>
#include <vector>

#include "base/product.h"
#include "base/utf8_text.h"
#include "network/mac_address.h"
#include "network/name_resolution.h"

namespace network {
namespace {

namespace msgbox = platform::msgbox;
using platform::NetResource;

constexpr const char* kConfirmation =
    "\r\nマイ ネットワーク情報の取得には数分間\r\n\r\nかかることがございます。\r\n\r\n"
    "実行してもよろしいでしょうか？\r\n";

void Show(platform::IDialogs& dialogs, const char* text, unsigned style = msgbox::kOkOnly) {
    dialogs.ShowMessage(text, base::kProductName, style);
}

// The entries of one container whose display type is the wanted one: domains under the network
// provider, servers under a domain. The usage field cannot tell the two levels apart (domains and
// servers are both containers), the display type can. Nothing when the container cannot be opened;
// a failing read ends the level with what was read so far. The enumeration is closed on return.
std::optional<std::vector<NetResource>> ReadLevel(platform::IWNet& wnet, const NetResource& container,
                                                  std::uint32_t displayType) {
    const platform::OpenedEnumeration opened =
        wnet.OpenEnum(platform::wnet::kScopeGlobalNet, platform::wnet::kTypeAny, 0, container);
    if (opened.result != 0 || !opened.enumeration) return std::nullopt;
    std::vector<NetResource> kept;
    std::vector<NetResource> entries;
    while (opened.enumeration->Next(entries) == 0 && !entries.empty()) {
        for (NetResource& entry : entries) {
            if (entry.displayType == displayType) kept.push_back(std::move(entry));
        }
    }
    return kept;
}

// A server's remote name is "\\NAME"; the machine name is what follows the first two characters.
std::string MachineName(const std::string& remoteName) {
    return remoteName.substr(base::OffsetOfCharacter(remoteName, 3));
}

}  // namespace

std::size_t ListNetworkPcs(platform::IDialogs& dialogs, platform::IWNet& wnet, platform::IWinsock& winsock,
                           platform::IIpHelper& ipHelper, base::TableModel& lstvPc) {
    if (dialogs.ShowMessage(kConfirmation, base::kProductName, msgbox::kYesNo | msgbox::kQuestion) != msgbox::kYes) {
        return lstvPc.RowCount();
    }
    try {
        // Like every list of the program, rebuilt whole: a run starts from an empty list.
        lstvPc.Clear();
        NetResource network;
        network.provider = "Microsoft Windows Network";
        const auto domains = ReadLevel(wnet, network, platform::wnet::kDisplayTypeDomain);
        if (!domains) {
            Show(dialogs, "WNetOpenEnum Error No.1");
            return lstvPc.RowCount();
        }
        for (const NetResource& domain : *domains) {
            const auto servers = ReadLevel(wnet, domain, platform::wnet::kDisplayTypeServer);
            if (!servers) {
                Show(dialogs, "WNetOpenEnum Error No.2");
                return lstvPc.RowCount();
            }
            for (const NetResource& server : *servers) {
                const std::string name = MachineName(server.remoteName);
                std::string address;
                std::string mac;
                if (WinsockStart(winsock)) {
                    address = HostToAddress(winsock, name);
                    mac = AddressToMac(winsock, ipHelper, address);
                    WinsockStop(winsock, dialogs);
                }
                lstvPc.AddRow({name, address, mac, domain.remoteName});
            }
        }
        Show(dialogs, "マイ ネットワーク情報取得完了", msgbox::kInformation);
    } catch (const std::exception&) {
        Show(dialogs, "listPcEnum Error");
    }
    return lstvPc.RowCount();
}

}  // namespace network
