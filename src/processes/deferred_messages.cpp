#include "processes/deferred_messages.h"

namespace processes {

int DeferredMessages::ShowMessage(const std::string& text, const std::string& title, unsigned style) {
    const std::lock_guard lock(m_mutex);
    m_messages.push_back({text, title, style});
    return platform::msgbox::kOk;
}

void DeferredMessages::ShowOn(platform::IDialogs& dialogs) {
    std::vector<Message> messages;
    {
        const std::lock_guard lock(m_mutex);
        messages.swap(m_messages);
    }
    for (const Message& m : messages) dialogs.ShowMessage(m.text, m.title, m.style);
}

}  // namespace processes
