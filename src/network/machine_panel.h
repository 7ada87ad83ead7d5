#pragma once
// frmMACHINE, "ユーティリティ", without a screen: this PC's global address fetched from a page
// that echoes its caller's address, and a pop-up message sent to another PC through the
// messenger service.
#include <functional>
#include <string>

#include "platform/dialogs.h"
#include "platform/http.h"
#include "platform/netapi.h"
#include "platform/profile.h"

namespace network {

// The echo page: setting.ini's section "utility", key "echo_url", when it names one, else the
// address chosen when the program was built. Its own section: the settings writer replaces
// section "main" whole.
std::string EchoAddress(platform::IProfile& profile, const std::string& settingsFile);

// The address in the echo page's reply: only the first line counts; it starts 25 characters
// after the start of "REMOTE_ADDR" in it (14 after the word's end), or at character 25 when the
// word is missing. Nothing checks that it is an address.
std::string ParseEchoReply(const std::string& reply);

class MachinePanel {
public:
    struct Services {
        platform::IHttpClient& http;
        platform::IMessenger& messenger;
        platform::IDialogs& dialogs;
    };

    // machineName: the computer name the main window shows, for Text7.
    MachinePanel(std::string echoAddress, std::string machineName, Services services);

    // Told after TextIP or a button's state changed.
    void SetListener(std::function<void()> changed) { m_changed = std::move(changed); }

    const std::string& TextIP() const { return m_textIP; }
    const std::string& Text7() const { return m_text7; }
    bool GetEnabled() const { return m_getEnabled; }
    bool SendEnabled() const { return m_sendEnabled; }

    // "取得": one request to the echo page; the button waits for its answer.
    void cmdGET_Click();
    // "送信": target (Text5), sender (Text7) and message (Text6); the result in a message box.
    void Command1_Click(const std::string& target, const std::string& sender, const std::string& message);

private:
    void Changed() const {
        if (m_changed) m_changed();
    }

    std::string m_echoAddress;
    Services m_services;
    std::string m_textIP;
    std::string m_text7;
    bool m_getEnabled = true;
    bool m_sendEnabled = true;
    std::function<void()> m_changed;
};

}  // namespace network
