#include "network/machine_panel.h"

#include <string_view>
#include <vector>

#include "base/product.h"
#include "base/split.h"
#include "base/utf8_text.h"

#ifndef LOOKOUT_ECHO_URL
#error "the build defines LOOKOUT_ECHO_URL"
#endif

namespace network {
namespace {

constexpr std::uint32_t kNameNotFound = 2273;  // NERR_NameNotFound

}  // namespace

std::string EchoAddress(platform::IProfile& profile, const std::string& settingsFile) {
    static constexpr std::string_view kKey = "echo_url=";
    std::vector<std::string> entries;
    base::Split(profile.ReadSection(settingsFile, "utility"), std::string_view("\0", 1), entries);
    for (const std::string& entry : entries) {
        if (entry.starts_with(kKey) && entry.size() > kKey.size()) return entry.substr(kKey.size());
    }
    return LOOKOUT_ECHO_URL;
}

std::string ParseEchoReply(const std::string& reply) {
    const std::string_view line = std::string_view(reply).substr(0, reply.find("\r\n"));
    // As Mid(line, InStr(line, "REMOTE_ADDR") + 25), InStr giving 0 when the word is missing.
    const std::size_t word = line.find("REMOTE_ADDR");
    const std::size_t wordPosition = word == std::string_view::npos ? 0 : base::CharacterCount(line.substr(0, word)) + 1;
    return std::string(line.substr(base::OffsetOfCharacter(line, wordPosition + 25)));
}

MachinePanel::MachinePanel(std::string echoAddress, std::string machineName, Services services)
    : m_echoAddress(std::move(echoAddress)), m_services(services), m_text7(std::move(machineName)) {}

void MachinePanel::cmdGET_Click() {
    if (!m_getEnabled) return;
    m_getEnabled = false;
    Changed();
    m_services.http.Get(m_echoAddress, [this](std::string reply) {
        m_textIP = ParseEchoReply(reply);
        m_getEnabled = true;
        Changed();
    });
}

void MachinePanel::Command1_Click(const std::string& target, const std::string& sender, const std::string& message) {
    if (!m_sendEnabled) return;
    m_sendEnabled = false;
    Changed();
    const std::uint32_t result = m_services.messenger.Send(target, sender, message);
    const char* text = result == 0               ? "送信が成功しました。"
                       : result == kNameNotFound ? "PC名もしくはIPアドレスを確認してください。"
                                                 : "送信に失敗しました。";
    m_services.dialogs.ShowMessage(text, base::kProductName, platform::msgbox::kExclamation);
    m_sendEnabled = true;
    Changed();
}

}  // namespace network
