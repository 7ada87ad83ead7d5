#pragma once
// Message boxes asked for on a worker thread, kept until the window's thread shows them.
#include <mutex>
#include <vector>

#include "platform/dialogs.h"

namespace processes {

class DeferredMessages final : public platform::IDialogs {
public:
    // Kept for later; answers OK.
    int ShowMessage(const std::string& text, const std::string& title, unsigned style) override;
    std::optional<std::string> SaveFile(const platform::SaveFileRequest&) override { return std::nullopt; }
    std::optional<base::Colour> ChooseColour() override { return std::nullopt; }
    void SetClipboardText(const std::string&) override {}

    // Shows what was kept so far, in order, and forgets it.
    void ShowOn(platform::IDialogs& dialogs);

private:
    struct Message {
        std::string text, title;
        unsigned style;
    };
    std::mutex m_mutex;
    std::vector<Message> m_messages;
};

}  // namespace processes
