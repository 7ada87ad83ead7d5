#include "network/machine_panel.h"

#include <algorithm>
#include <string_view>

#include "base/product.h"

#ifndef LOOKOUT_ECHO_URL
#error "the build defines LOOKOUT_ECHO_URL"
#endif

namespace network {
namespace {

constexpr std::uint32_t kNameNotFound = 2273;  // NERR_NameNotFound

// The byte offset of the character at this 1-based position of UTF-8 text (its end when the
// text is shorter), counting characters as the runtime's string functions do.
std::size_t OffsetOfCharacter(std::string_view text, std::size_t position) {
    std::size_t offset = 0;
    for (std::size_t character = 1; character < position && offset < text.size(); ++character) {
        ++offset;
        while (offset < text.size() && (static_cast<unsigned char>(text[offset]) & 0xC0) == 0x80) ++offset;
    }
    return offset;
}

std::size_t CharacterCount(std::string_view text) {
    std::size_t count = 0;
    for (const char byte : text) count += (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
    return count;
}

}  // namespace

std::string EchoAddress(platform::IProfile& profile, const std::string& settingsFile) {
    static constexpr std::string_view kKey = "echo_url=";
    const std::string section = profile.ReadSection(settingsFile, "utility");
    for (std::size_t start = 0; start < section.size();) {
        const std::size_t end = std::min(section.find('\0', start), section.size());
        const std::string_view entry(section.data() + start, end - start);
        if (entry.substr(0, kKey.size()) == kKey && entry.size() > kKey.size()) {
            return std::string(entry.substr(kKey.size()));
        }
        start = end + 1;
    }
    return LOOKOUT_ECHO_URL;
}

std::string ParseEchoReply(const std::string& reply) {
    const std::string_view line = std::string_view(reply).substr(0, reply.find("\r\n"));
    // As Mid(line, InStr(line, "REMOTE_ADDR") + 25), InStr giving 0 when the word is missing.
    const std::size_t word = line.find("REMOTE_ADDR");
    const std::size_t wordPosition = word == std::string_view::npos ? 0 : CharacterCount(line.substr(0, word)) + 1;
    return std::string(line.substr(OffsetOfCharacter(line, wordPosition + 25)));
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
