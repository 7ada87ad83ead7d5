#pragma once
// Records every message box and dialog it is asked for and answers as told.
#include <deque>
#include <string>
#include <vector>

#include "platform/dialogs.h"

namespace fakes {

struct AskedMessage {
    std::string text;
    std::string title;
    unsigned style;
};

class FakeDialogs : public platform::IDialogs {
public:
    int ShowMessage(const std::string& text, const std::string& title, unsigned style) override {
        messages.push_back({text, title, style});
        if (answers.empty()) return platform::msgbox::kOk;
        const int answer = answers.front();
        answers.pop_front();
        return answer;
    }
    std::optional<std::string> SaveFile(const platform::SaveFileRequest& request) override {
        saveRequests.push_back(request);
        return saveAnswer;
    }
    std::optional<base::Colour> ChooseColour() override { return colourAnswer; }
    void SetClipboardText(const std::string& text) override { clipboard = text; }

    // The message boxes' texts, in order.
    std::vector<std::string> Texts() const {
        std::vector<std::string> texts;
        for (const AskedMessage& m : messages) texts.push_back(m.text);
        return texts;
    }

    std::vector<AskedMessage> messages;
    std::deque<int> answers;  // answers to the next message boxes; OK when empty
    std::vector<platform::SaveFileRequest> saveRequests;
    std::optional<std::string> saveAnswer;
    std::optional<base::Colour> colourAnswer;
    std::string clipboard;
};

}  // namespace fakes
